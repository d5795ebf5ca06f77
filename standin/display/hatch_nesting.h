// Which borders of a hatch count, by its style.
#pragma once

#include "sdk/db/hatch.h"

#include <vector>

namespace standin {

// Of borders within each other: all of them by the normal style, whose every second one is left out when it
// is filled; the two outermost, or the outermost alone, by the others. Borders without an area are left out.
std::vector<OdDbHatch::Loop> loopsOfStyle(std::vector<OdDbHatch::Loop> loops, OdDbHatch::Style style);

} // namespace standin
