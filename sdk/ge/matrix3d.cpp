// Matrices of placed blocks and of the planes that entities lie in.
#include "sdk/ge/matrix3d.h"

#include "sdk/ge/point3d.h"

#include <algorithm>
#include <cmath>

const OdGeMatrix3d OdGeMatrix3d::kIdentity{};

namespace {

OdGeMatrix3d fromAxes(const OdGeVector3d& x, const OdGeVector3d& y, const OdGeVector3d& z) {
    OdGeMatrix3d result;
    const OdGeVector3d* axes[] = {&x, &y, &z};
    for (int column = 0; column < 3; ++column) {
        result.entry[0][column] = axes[column]->x;
        result.entry[1][column] = axes[column]->y;
        result.entry[2][column] = axes[column]->z;
    }
    return result;
}

} // namespace

OdGeMatrix3d OdGeMatrix3d::translation(const OdGeVector3d& offset) {
    OdGeMatrix3d result;
    result.entry[0][3] = offset.x;
    result.entry[1][3] = offset.y;
    result.entry[2][3] = offset.z;
    return result;
}

OdGeMatrix3d OdGeMatrix3d::rotation(double angle, const OdGeVector3d& axis) {
    const OdGeVector3d a = axis.normal();
    const double c = std::cos(angle), s = std::sin(angle), t = 1 - c;
    OdGeMatrix3d result;
    const double rows[3][3] = {{t * a.x * a.x + c, t * a.x * a.y - s * a.z, t * a.x * a.z + s * a.y},
                               {t * a.x * a.y + s * a.z, t * a.y * a.y + c, t * a.y * a.z - s * a.x},
                               {t * a.x * a.z - s * a.y, t * a.y * a.z + s * a.x, t * a.z * a.z + c}};
    for (int row = 0; row < 3; ++row)
        std::copy(rows[row], rows[row] + 3, result.entry[row]);
    return result;
}

OdGeMatrix3d OdGeMatrix3d::scaling(const OdGeScale3d& factors) {
    OdGeMatrix3d result;
    result.entry[0][0] = factors.sx;
    result.entry[1][1] = factors.sy;
    result.entry[2][2] = factors.sz;
    return result;
}

OdGeMatrix3d OdGeMatrix3d::planeToWorld(const OdGeVector3d& normal) {
    const OdGeVector3d z = normal.isZeroLength() ? OdGeVector3d::kZAxis : normal.normal();
    constexpr double nearAxis = 1.0 / 64;
    const bool alongWorldZ = std::fabs(z.x) < nearAxis && std::fabs(z.y) < nearAxis;
    const OdGeVector3d x =
        (alongWorldZ ? OdGeVector3d::kYAxis.crossProduct(z) : OdGeVector3d::kZAxis.crossProduct(z)).normal();
    return fromAxes(x, z.crossProduct(x).normal(), z);
}

OdGeMatrix3d OdGeMatrix3d::worldToPlane(const OdGeVector3d& normal) {
    return planeToWorld(normal).transpose();
}

OdGeMatrix3d& OdGeMatrix3d::setCoordSystem(const OdGePoint3d& origin, const OdGeVector3d& xAxis,
                                           const OdGeVector3d& yAxis, const OdGeVector3d& zAxis) {
    return *this = translation(origin.asVector()) * fromAxes(xAxis, yAxis, zAxis);
}

OdGeMatrix3d OdGeMatrix3d::transpose() const {
    OdGeMatrix3d result;
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            result.entry[row][column] = entry[column][row];
    return result;
}

OdGeMatrix3d operator*(const OdGeMatrix3d& a, const OdGeMatrix3d& b) {
    OdGeMatrix3d result;
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column) {
            result.entry[row][column] = 0;
            for (int k = 0; k < 4; ++k)
                result.entry[row][column] += a.entry[row][k] * b.entry[k][column];
        }
    return result;
}

bool operator==(const OdGeMatrix3d& a, const OdGeMatrix3d& b) {
    return std::equal(&a.entry[0][0], &a.entry[0][0] + 16, &b.entry[0][0]);
}

OdGePoint3d operator*(const OdGeMatrix3d& m, const OdGePoint3d& p) {
    const auto& e = m.entry;
    return {e[0][0] * p.x + e[0][1] * p.y + e[0][2] * p.z + e[0][3],
            e[1][0] * p.x + e[1][1] * p.y + e[1][2] * p.z + e[1][3],
            e[2][0] * p.x + e[2][1] * p.y + e[2][2] * p.z + e[2][3]};
}

OdGeVector3d operator*(const OdGeMatrix3d& m, const OdGeVector3d& v) {
    const auto& e = m.entry;
    return {e[0][0] * v.x + e[0][1] * v.y + e[0][2] * v.z, e[1][0] * v.x + e[1][1] * v.y + e[1][2] * v.z,
            e[2][0] * v.x + e[2][1] * v.y + e[2][2] * v.z};
}
