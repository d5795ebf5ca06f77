// A drawing of many mixed objects in rows of 500, for the tests and benchmarks of what is painted.
#pragma once

#include "sdk/db/database.h"

// Half of them lines, then circles, polylines with bulges, arcs and texts, in seven colours.
OdDbDatabasePtr mixedDrawing(int count);

// The middle of the objects of such a drawing lies in the rows of 8 and columns of 10 units.
constexpr int kMixedColumns = 500;
