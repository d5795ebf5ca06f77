#include "groups/group_names.h"

#include "groups/current_drawing.h"
#include "host/xstring.h"

#include <QObject>
#include <cwctype>

namespace {

constexpr int kLongestName = 31;

bool isNameCharacter(wchar_t c) {
    return std::iswalnum(static_cast<std::wint_t>(c)) || c == L'$' || c == L'-' || c == L'_';
}

// The second pass through a format is meant: it changes only a translation that holds a percent sign.
OdString automaticName(int number) {
    const QByteArray composed = QObject::tr("Group%1").arg(number, 0, 10, QLatin1Char(' ')).toLocal8Bit();
    CXString formatted;
    formatted.Format(composed.constData(), number);
    return OdString(formatted.c_str(), CP_LOCAL_8BIT);
}

} // namespace

bool isValidGroupName(const OdString& name) {
    OdString trimmed = name;
    trimmed.trimLeft().trimRight();
    if (trimmed.isEmpty() || trimmed.getLength() > kLongestName)
        return false;
    for (int i = trimmed.getLength() - 1; i >= 0; --i)
        if (!isNameCharacter(trimmed.getAt(i)))
            return false;
    return true;
}

int nextGroupNumber(const OdDbDictionaryPtr& dictionary) {
    const int limit = static_cast<int>(dictionary->numEntries()) + 1;
    for (int i = 1; i <= limit; ++i)
        if (!dictionary->has(automaticName(i)))
            return i;
    return 1;
}

OdString nextGroupName(const OdDbDatabasePtr& database) {
    return automaticName(nextGroupNumber(openGroupDictionary(database)));
}
