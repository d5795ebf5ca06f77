// The code pages that drawing files name, under all the names that are in use for them.
#pragma once

#include <string_view>

class QTextCodec;

// Null for a name that stands for none. Case, hyphens, underscores and blanks play no part.
QTextCodec* dxfCodePage(std::string_view name);
