// Points and the boxes around them.
#include "sdk/ge/point3d.h"

#include <algorithm>
#include <cmath>

const OdGePoint3d OdGePoint3d::kOrigin{0, 0, 0};

double OdGePoint3d::distanceTo(const OdGePoint3d& other) const { return (*this - other).length(); }

OdGePoint3d& OdGePoint3d::transformBy(const OdGeMatrix3d& matrix) { return *this = matrix * *this; }

void OdGeExtents3d::addPoint(const OdGePoint3d& point) {
    if (!std::isfinite(point.x) || !std::isfinite(point.y) || !std::isfinite(point.z))
        return;
    if (!filled)
        lower = upper = point;
    filled = true;
    lower = {std::min(lower.x, point.x), std::min(lower.y, point.y), std::min(lower.z, point.z)};
    upper = {std::max(upper.x, point.x), std::max(upper.y, point.y), std::max(upper.z, point.z)};
}

void OdGeExtents3d::addExtents(const OdGeExtents3d& other) {
    if (!other.filled)
        return;
    addPoint(other.lower);
    addPoint(other.upper);
}
