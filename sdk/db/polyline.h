// Polylines: the light one with its vertices in its own tags, and the old one, whose vertices are entities
// that follow it.
#pragma once

#include "sdk/db/entity.h"

struct OdDbPolylineVertex {
    OdGePoint3d point;
    double bulge = 0; // of the segment that starts here, like the widths
    double startWidth = 0, endWidth = 0;
};

class OdDbPolylineBase : public OdDbEntity {
    ODRX_DECLARE_CLASS(OdDbPolylineBase)
public:
    virtual std::vector<OdDbPolylineVertex> vertices() const { return {}; }
    virtual bool isClosed() const { return false; }
    // 0 when the width differs from place to place, too.
    virtual double constantWidth() const { return 0; }
    // From the coordinates of the vertices to world coordinates.
    virtual OdGeMatrix3d vertexToWorld() const { return planeToWorld(); }
    void addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const override;
};

class OdDbPolyline : public OdDbPolylineBase {
    ODRX_DECLARE_CLASS(OdDbPolyline)
public:
    OdDbPolyline();
    std::vector<OdDbPolylineVertex> vertices() const override;
    bool isClosed() const override;
    double constantWidth() const override;
    void setClosed(bool closed);
    void setVertices(const std::vector<OdDbPolylineVertex>& list);
};
using OdDbPolylinePtr = OdSmartPtr<OdDbPolyline>;

class OdDb2dPolyline : public OdDbPolylineBase {
    ODRX_DECLARE_CLASS(OdDb2dPolyline)
public:
    // Without spline frame points, and without the faces of a mesh.
    std::vector<OdDbPolylineVertex> vertices() const override;
    bool isClosed() const override;
    double constantWidth() const override;
    OdGeMatrix3d vertexToWorld() const override;
    bool isMesh() const; // polygon and polyface meshes: vertices are no path then
};
using OdDb2dPolylinePtr = OdSmartPtr<OdDb2dPolyline>;
