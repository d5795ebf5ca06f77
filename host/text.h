// Conversions between the host's, Qt's and the SDK's texts; lossless between the wide forms.
#pragma once

#include "host/xstring.h"
#include "sdk/rx/od_string.h"

#include <QString>
#include <string>

namespace hostqt {

QString qString(const CXStringW& text);
QString qString(const wchar_t* text, int length = -1); // null gives the empty text
QString qString(const OdString& text);
CXStringW cxStringW(const QString& text);
OdString odString(const CXStringW& text);
OdString odString(const QString& text);
std::wstring stdWString(const QString& text);

// Text of a widget on its way into a drawing: through the local 8-bit code page, in which a character that
// the locale cannot express is lost.
OdString odStringFromWidget(const QString& text);

} // namespace hostqt

// The host's translation of a text of the option data; a null translation gives the empty text.
QString translated(const CXStringW& text);
