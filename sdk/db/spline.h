// Splines. A canvas draws path(); the numbers behind it are there for those who need more.
#pragma once

#include "sdk/db/entity.h"
#include "sdk/db/spline_curve.h"

class OdDbSpline : public OdDbEntity {
    ODRX_DECLARE_CLASS(OdDbSpline)
public:
    bool isClosed() const;
    OdDbSplineCurve curve() const; // in world coordinates
    std::vector<OdGePoint3d> fitPoints() const;
    // World coordinates, from the first point to the last; a closed spline comes back to its start. A spline
    // that has fit points alone goes smoothly from one to the next.
    std::vector<OdGePoint3d> path(int piecesOfSpan = 12) const;
    void addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const override;

private:
    std::vector<OdGePoint3d> points(int code) const;
    std::vector<OdGePoint3d> fitPath(int piecesOfSpan) const;
};
using OdDbSplinePtr = OdSmartPtr<OdDbSpline>;
