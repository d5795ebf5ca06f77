// A transformation of space: a 4 by 4 matrix that acts on column vectors.
#pragma once

#include "sdk/ge/vector3d.h"

class OdGeMatrix3d {
public:
    double entry[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};

    static const OdGeMatrix3d kIdentity;
    static OdGeMatrix3d translation(const OdGeVector3d& offset);
    static OdGeMatrix3d rotation(double angle, const OdGeVector3d& axis);
    static OdGeMatrix3d scaling(const OdGeScale3d& factors);
    // From the coordinates of the plane with this normal to world coordinates, by the arbitrary axis rule,
    // and back. Coordinates of planar entities are stored in their plane's coordinates.
    static OdGeMatrix3d planeToWorld(const OdGeVector3d& normal);
    static OdGeMatrix3d worldToPlane(const OdGeVector3d& normal);

    OdGeMatrix3d& setCoordSystem(const OdGePoint3d& origin, const OdGeVector3d& xAxis,
                                 const OdGeVector3d& yAxis, const OdGeVector3d& zAxis);
    OdGeMatrix3d& setToIdentity() { return *this = kIdentity; }
    OdGeMatrix3d transpose() const;

    friend OdGeMatrix3d operator*(const OdGeMatrix3d& a, const OdGeMatrix3d& b);
    friend bool operator==(const OdGeMatrix3d& a, const OdGeMatrix3d& b);
    friend OdGePoint3d operator*(const OdGeMatrix3d& m, const OdGePoint3d& p);
    friend OdGeVector3d operator*(const OdGeMatrix3d& m, const OdGeVector3d& v);
};
