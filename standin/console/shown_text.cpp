#include "standin/console/shown_text.h"

#include <algorithm>

namespace standin {

namespace {

bool isControl(QChar character) {
    const bool breaksLines = character == QLatin1Char('\n') || character == QLatin1Char('\t');
    return character.category() == QChar::Other_Control && !breaksLines;
}

} // namespace

QString withoutControls(const QString& text) {
    if (std::none_of(text.begin(), text.end(), isControl))
        return text;
    QString shown;
    for (const QChar character : text)
        if (isControl(character))
            shown += QStringLiteral("\\U+%1").arg(QString::number(character.unicode(), 16).toUpper(), 4,
                                                  QLatin1Char('0'));
        else
            shown += character;
    return shown;
}

} // namespace standin
