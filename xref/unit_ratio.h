// The ratio of two drawing units, for display.
#pragma once

#include "sdk/db/units.h"

// How many `b` make one `a`; 1.0 when one of them is no unit.
double unitRatio(OdDb::UnitsValue a, OdDb::UnitsValue b);
