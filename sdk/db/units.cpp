// The list of units with their sizes in metres.
#include "sdk/db/units.h"

#include <iterator>

namespace {

constexpr double foot = 0.3048;
constexpr double surveyFoot = 1200.0 / 3937.0;

// In the order of OdDb::UnitsValue.
constexpr double metresOf[] = {0,
                               foot / 12,
                               foot,
                               foot * 5280,
                               1e-3,
                               1e-2,
                               1,
                               1e3,
                               foot / 12 * 1e-6,
                               foot / 12 * 1e-3,
                               foot * 3,
                               1e-10,
                               1e-9,
                               1e-6,
                               1e-1,
                               1e1,
                               1e2,
                               1e9,
                               149597870700.0,
                               9460730472580800.0,
                               3.0856775814913673e16,
                               surveyFoot,
                               surveyFoot / 12,
                               surveyFoot * 3,
                               surveyFoot * 5280};

} // namespace

OdResult GetUnitFactor(OdDb::UnitsValue unit, double& metres) {
    const int index = unit;
    if (index <= 0 || index >= static_cast<int>(std::size(metresOf)))
        return eInvalidInput;
    metres = metresOf[index];
    return eOk;
}

double GetUnitFactor(OdDb::UnitsValue from, OdDb::UnitsValue to) {
    double one = 0, other = 0;
    if (GetUnitFactor(from, one) != eOk || GetUnitFactor(to, other) != eOk)
        return 1.0;
    return one / other;
}
