// Wide texts as Qt's.
#pragma once

#include <QString>
#include <string_view>

// Nothing is lost: Qt's own conversion takes a leading U+FEFF for a mark of the byte order and drops it.
QString odQString(std::wstring_view text);
