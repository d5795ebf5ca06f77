// Bitmaps as PNG, without a graphics library.
#pragma once

#include <string>
#include <string_view>

// Of a bitmap from its info header on, with 1, 4, 8, 24 or 32 bits a pixel and no compression; empty for any
// other.
std::string odDbPngOfBitmap(std::string_view bitmap);
