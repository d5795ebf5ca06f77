// All wide texts here hold one unit for each character, so that none of these conversions loses anything but
// the one through the local 8-bit code page.
#include "host/text.h"

#include "host/app.h"

#include <algorithm>
#include <cwchar>

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

// Not Qt's own conversion, which takes a leading U+FEFF for a mark of the byte order and drops it. Nearly
// every text has one unit for each character on both sides, and lists convert thousands of them.
QString fromWide(const wchar_t* text, int length) {
    QString result;
    result.reserve(length);
    if (!std::all_of(text, text + length, isOneUnit)) {
        std::for_each(text, text + length, [&](wchar_t c) { appendCharacter(result, c); });
        return result;
    }
    result.resize(length);
    std::transform(text, text + length, result.begin(),
                   [](wchar_t c) { return QChar(static_cast<ushort>(c)); });
    return result;
}

} // namespace

namespace hostqt {

QString qString(const CXStringW& text) { return qString(text.c_str()); }
QString qString(const wchar_t* text, int length) {
    if (!text)
        return {};
    return fromWide(text, length < 0 ? static_cast<int>(std::wcslen(text)) : length);
}
QString qString(const OdString& text) { return fromWide(text.c_str(), static_cast<int>(text.wide().size())); }
CXStringW cxStringW(const QString& text) { return CXStringW(text.toStdWString().c_str()); }
OdString odString(const CXStringW& text) { return OdString(text.c_str()); }
OdString odString(const QString& text) { return OdString(text.toStdWString()); }
std::wstring stdWString(const QString& text) { return text.toStdWString(); }
OdString odStringFromWidget(const QString& text) {
    return OdString(text.toLocal8Bit().constData(), CP_LOCAL_8BIT);
}

} // namespace hostqt

QString translated(const CXStringW& text) { return hostqt::qString(Supp_Translate(text.c_str())); }
