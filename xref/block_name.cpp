// Which characters a block name can hold, and how a taken one is numbered.
#include "xref/block_name.h"

#include <QFileInfo>
#include <algorithm>
#include <limits>

namespace {

const int longestName = 255;

bool isLegal(QChar character) {
    static const QString forbidden = QStringLiteral("<>/\\\":;?*|,=`");
    return character.category() != QChar::Other_Control && !forbidden.contains(character);
}

// A surrogate pair is never cut in two.
QString shortened(QString name) {
    if (name.size() <= longestName)
        return name;
    name.truncate(name.at(longestName - 1).isHighSurrogate() ? longestName - 1 : longestName);
    return name;
}

} // namespace

QString legalBlockName(const QString& text) {
    QString name = text.trimmed();
    for (QChar& character : name)
        if (!isLegal(character))
            character = QLatin1Char('_');
    return shortened(name);
}

bool blockNameFromFile(const QString& fileName, int, QString& name) {
    const QString legal = legalBlockName(QFileInfo(fileName).baseName());
    if (legal.isEmpty())
        return false;
    name = legal;
    return true;
}

OdString uniqueBlockName(const OdDbBlockTablePtr& table, const OdString& name) {
    OdString candidate;
    for (int number = 1;; ++number) {
        candidate.format(L"%s_%d", name.c_str(), number);
        if (!table->has(candidate) || number + 1 == std::numeric_limits<int>::max())
            return candidate;
    }
}
