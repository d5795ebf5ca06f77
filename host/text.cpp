// All wide texts here hold one unit for each character, so that none of these conversions loses anything but
// the one through the local 8-bit code page.
#include "host/text.h"

#include "host/app.h"
#include "sdk/rx/wide_text.h"

#include <cwchar>

namespace hostqt {

QString qString(const CXStringW& text) { return qString(text.c_str()); }
QString qString(const wchar_t* text, int length) {
    if (!text)
        return {};
    return odQString({text, length < 0 ? std::wcslen(text) : static_cast<std::size_t>(length)});
}
QString qString(const OdString& text) { return odQString(text.wide()); }
CXStringW cxStringW(const QString& text) { return CXStringW(text.toStdWString().c_str()); }
OdString odString(const CXStringW& text) { return OdString(text.c_str()); }
OdString odString(const QString& text) { return OdString(text.toStdWString()); }
std::wstring stdWString(const QString& text) { return text.toStdWString(); }
OdString odStringFromWidget(const QString& text) {
    return OdString(text.toLocal8Bit().constData(), CP_LOCAL_8BIT);
}

} // namespace hostqt

QString translated(const CXStringW& text) { return hostqt::qString(Supp_Translate(text.c_str())); }
