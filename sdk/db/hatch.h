// Hatched and filled areas. A canvas draws or fills the paths of loops(), as the style says, moved by
// loopToWorld().
#pragma once

#include "sdk/db/entity.h"

class OdDbHatch : public OdDbEntity {
    ODRX_DECLARE_CLASS(OdDbHatch)
public:
    using Loop = std::vector<OdGePoint3d>; // closed: the last point leads back to the first
    // Parallel lines of a pattern, in the coordinates of the hatch's plane. One goes through the base, each
    // further one is moved by the offset.
    struct PatternLines {
        double angle = 0; // radians
        OdGePoint3d base;
        OdGeVector3d offset;
        std::vector<double>
            dashes; // dashes, gaps (negative) and dots (0) from the base on; empty: solid lines
    };

    enum Style { kNormal = 0, kOutermost = 1, kIgnoreInner = 2 };

    Style style() const;
    bool isSolidFill() const;
    OdString patternName() const;
    // The borders in the coordinates of the hatch's plane, curved edges as short lines.
    std::vector<Loop> loops() const;
    std::vector<PatternLines> patternLines() const; // angle and scale of the hatch are in them already
    OdGeMatrix3d loopToWorld() const;
    void addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const override;
};
using OdDbHatchPtr = OdSmartPtr<OdDbHatch>;
