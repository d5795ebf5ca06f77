// Points, lines, circles, arcs and ellipses. Circles and arcs are kept in the coordinates of their plane,
// which their normal gives; their getters and setters are in those coordinates.
#pragma once

#include "sdk/db/entity.h"

class OdDbPoint : public OdDbEntity {
    ODRX_DECLARE_CLASS(OdDbPoint)
public:
    OdDbPoint();
    OdGePoint3d position() const;
    void setPosition(const OdGePoint3d& point);
    void addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const override;
};
using OdDbPointPtr = OdSmartPtr<OdDbPoint>;

class OdDbLine : public OdDbEntity {
    ODRX_DECLARE_CLASS(OdDbLine)
public:
    OdDbLine();
    OdGePoint3d startPoint() const;
    OdGePoint3d endPoint() const;
    void setStartPoint(const OdGePoint3d& point);
    void setEndPoint(const OdGePoint3d& point);
    void addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const override;
};
using OdDbLinePtr = OdSmartPtr<OdDbLine>;

class OdDbCircle : public OdDbEntity {
    ODRX_DECLARE_CLASS(OdDbCircle)
public:
    OdDbCircle();
    OdGePoint3d center() const;
    double radius() const;
    void setCenter(const OdGePoint3d& point);
    void setRadius(double radius);
    void addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const override;
};
using OdDbCirclePtr = OdSmartPtr<OdDbCircle>;

// Counter-clockwise from the start angle to the end angle, in radians.
class OdDbArc : public OdDbEntity {
    ODRX_DECLARE_CLASS(OdDbArc)
public:
    OdDbArc();
    OdGePoint3d center() const;
    double radius() const;
    double startAngle() const;
    double endAngle() const;
    void setCenter(const OdGePoint3d& point);
    void setRadius(double radius);
    void setStartAngle(double angle);
    void setEndAngle(double angle);
    void addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const override;
};
using OdDbArcPtr = OdSmartPtr<OdDbArc>;

class OdDbEllipse : public OdDbEntity {
    ODRX_DECLARE_CLASS(OdDbEllipse)
public:
    OdGePoint3d center() const;
    OdGeVector3d majorAxis() const;
    OdGeVector3d minorAxis() const;
    double startParam() const;
    double endParam() const;
    void addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const override;
};
using OdDbEllipsePtr = OdSmartPtr<OdDbEllipse>;
