// Directions, lengths and angles.
#include "sdk/ge/vector3d.h"

#include "sdk/ge/matrix3d.h"

#include <cmath>

const OdGeVector3d OdGeVector3d::kIdentity{0, 0, 0};
const OdGeVector3d OdGeVector3d::kXAxis{1, 0, 0};
const OdGeVector3d OdGeVector3d::kYAxis{0, 1, 0};
const OdGeVector3d OdGeVector3d::kZAxis{0, 0, 1};

double OdGeVector3d::length() const { return std::sqrt(x * x + y * y + z * z); }

OdGeVector3d OdGeVector3d::crossProduct(const OdGeVector3d& other) const {
    return {y * other.z - z * other.y, z * other.x - x * other.z, x * other.y - y * other.x};
}

OdGeVector3d OdGeVector3d::normal() const { return isZeroLength() ? *this : *this * (1 / length()); }

bool OdGeVector3d::isZeroLength() const { return !(length() > 1e-300); }

double OdGeVector3d::angleTo(const OdGeVector3d& other) const {
    return std::atan2(crossProduct(other).length(), dotProduct(other));
}

double OdGeVector3d::angleTo(const OdGeVector3d& other, const OdGeVector3d& reference) const {
    const double angle = angleTo(other);
    return crossProduct(other).dotProduct(reference) < 0 ? 2 * M_PI - angle : angle;
}

OdGeVector3d OdGeVector3d::rotatedBy(double angle, const OdGeVector3d& axis) const {
    return OdGeMatrix3d::rotation(angle, axis) * *this;
}

OdGeVector3d& OdGeVector3d::transformBy(const OdGeMatrix3d& matrix) { return *this = matrix * *this; }
