// Nearly every text has one unit for each character on both sides, and lists convert thousands of them.
#include "sdk/rx/wide_text.h"

#include <algorithm>

namespace {

bool isOneUnit(wchar_t c) { return static_cast<unsigned>(c) < 0x10000; }

void appendCharacter(QString& text, wchar_t character) {
    const auto code = static_cast<uint>(character);
    if (!QChar::requiresSurrogates(code))
        text.append(QChar(static_cast<ushort>(code)));
    else if (code > QChar::LastValidCodePoint)
        text.append(QChar(QChar::ReplacementCharacter));
    else
        text.append(QChar(QChar::highSurrogate(code))).append(QChar(QChar::lowSurrogate(code)));
}

} // namespace

QString odQString(std::wstring_view text) {
    QString result;
    const int length = static_cast<int>(text.size());
    result.reserve(length);
    if (!std::all_of(text.begin(), text.end(), isOneUnit)) {
        std::for_each(text.begin(), text.end(), [&](wchar_t c) { appendCharacter(result, c); });
        return result;
    }
    result.resize(length);
    std::transform(text.begin(), text.end(), result.begin(),
                   [](wchar_t c) { return QChar(static_cast<ushort>(c)); });
    return result;
}
