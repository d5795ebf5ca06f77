// All wide texts here hold one unit for each character, so that none of these conversions loses anything but
// the one through the local 8-bit code page.
#include "host/text.h"

#include "host/app.h"

namespace hostqt {

QString qString(const CXStringW& text) { return QString::fromWCharArray(text.c_str()); }
QString qString(const wchar_t* text, int length) {
    return text ? QString::fromWCharArray(text, length) : QString();
}
QString qString(const OdString& text) { return QString::fromStdWString(text.wide()); }
CXStringW cxStringW(const QString& text) { return CXStringW(text.toStdWString().c_str()); }
OdString odString(const CXStringW& text) { return OdString(text.c_str()); }
OdString odString(const QString& text) { return OdString(text.toStdWString()); }
std::wstring stdWString(const QString& text) { return text.toStdWString(); }
OdString odStringFromWidget(const QString& text) {
    return OdString(text.toLocal8Bit().constData(), OdCodePageId(46));
}

} // namespace hostqt

QString translated(const CXStringW& text) { return hostqt::qString(Supp_Translate(text.c_str())); }
