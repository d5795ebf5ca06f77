// Leaders: a line from what it points at to its note.
#pragma once

#include "sdk/db/entity.h"

class OdDbLeader : public OdDbEntity {
    ODRX_DECLARE_CLASS(OdDbLeader)
public:
    // World coordinates; the first one is what the leader points at. A curved leader goes through them.
    std::vector<OdGePoint3d> vertices() const;
    bool hasArrowHead() const;
    // The length of the arrow head by the leader's own override or its dimension style, scale included.
    double arrowSize() const;
    void addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const override;
};
using OdDbLeaderPtr = OdSmartPtr<OdDbLeader>;
