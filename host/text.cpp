// All wide texts here hold one unit for each character, so that none of these conversions loses anything but
// the one through the local 8-bit code page.
#include "host/text.h"

#include "host/app.h"

#include <algorithm>
#include <cwchar>

namespace {

bool isOneUnit(wchar_t c) {
    const auto code = static_cast<unsigned>(c);
    return code < 0xd800 || (code > 0xdfff && code < 0xfffe);
}

// Nearly every text has one unit for each character on both sides. Lists convert thousands of them, and Qt's
// own conversion, which also looks for byte order marks, takes several times as long.
QString fromWide(const wchar_t* text, int length) {
    if (!std::all_of(text, text + length, isOneUnit))
        return QString::fromWCharArray(text, length);
    QString result(length, Qt::Uninitialized);
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
    return OdString(text.toLocal8Bit().constData(), OdCodePageId(46));
}

} // namespace hostqt

QString translated(const CXStringW& text) { return hostqt::qString(Supp_Translate(text.c_str())); }
