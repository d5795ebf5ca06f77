// Hatched and filled areas. A canvas draws or fills the paths of loops(), odd-even, moved by loopToWorld().
#pragma once

#include "sdk/db/entity.h"

class OdDbHatch : public OdDbEntity {
    ODRX_DECLARE_CLASS(OdDbHatch)
public:
    using Loop = std::vector<OdGePoint3d>; // closed: the last point leads back to the first

    bool isSolidFill() const;
    OdString patternName() const;
    // The borders in the coordinates of the hatch's plane, curved edges as short lines.
    std::vector<Loop> loops() const;
    OdGeMatrix3d loopToWorld() const { return planeToWorld(); }
    void addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const override;
};
using OdDbHatchPtr = OdSmartPtr<OdDbHatch>;
