// Binary drawing files, turned into the text form of the same tags.
#pragma once

#include <string>
#include <string_view>

bool isBinaryDxf(std::string_view bytes);
// Throws DxfFault at a byte of `bytes` where the file is damaged or cut off.
std::string textOfBinaryDxf(std::string_view bytes);
