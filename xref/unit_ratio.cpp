// The ratio of two unit factors, safe against units without one.
#include "xref/unit_ratio.h"

#include <cmath>

double unitRatio(OdDb::UnitsValue a, OdDb::UnitsValue b) {
    constexpr double zero = 1e-10;
    double fa = 0, fb = 0;
    if (GetUnitFactor(a, fa) != eOk || GetUnitFactor(b, fb) != eOk)
        return 1.0;
    if (std::fabs(fa) <= zero || std::fabs(fb) <= zero)
        return 1.0;
    return fa / fb;
}
