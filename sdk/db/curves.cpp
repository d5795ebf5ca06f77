// The simple curves, read from and written to their tags.
#include "sdk/db/curves.h"

#include "sdk/db/arc_extents.h"

#include <cmath>

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbPoint, OdDbEntity)
ODRX_DEFINE_CLASS_WITH_MAKER(OdDbLine, OdDbEntity)
ODRX_DEFINE_CLASS_WITH_MAKER(OdDbCircle, OdDbEntity)
ODRX_DEFINE_CLASS_WITH_MAKER(OdDbArc, OdDbEntity)
ODRX_DEFINE_CLASS_WITH_MAKER(OdDbEllipse, OdDbEntity)

namespace {

constexpr std::string_view kPoint = "AcDbPoint";
constexpr std::string_view kLine = "AcDbLine";
constexpr std::string_view kCircle = "AcDbCircle";
constexpr std::string_view kArc = "AcDbArc";
constexpr std::string_view kEllipse = "AcDbEllipse";
constexpr double kDegree = M_PI / 180;

} // namespace

OdDbPoint::OdDbPoint() {
    startEntity("POINT", kPoint);
    content.setPoint(kPoint, 10, {});
}
OdGePoint3d OdDbPoint::position() const { return content.point(kPoint, 10); }
void OdDbPoint::setPosition(const OdGePoint3d& point) { edit().setPoint(kPoint, 10, point); }
void OdDbPoint::addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const {
    extents.addPoint(toWorld * position());
}

OdDbLine::OdDbLine() {
    startEntity("LINE", kLine);
    content.setPoint(kLine, 10, {});
    content.setPoint(kLine, 11, {});
}
OdGePoint3d OdDbLine::startPoint() const { return content.point(kLine, 10); }
OdGePoint3d OdDbLine::endPoint() const { return content.point(kLine, 11); }
void OdDbLine::setStartPoint(const OdGePoint3d& point) { edit().setPoint(kLine, 10, point); }
void OdDbLine::setEndPoint(const OdGePoint3d& point) { edit().setPoint(kLine, 11, point); }
void OdDbLine::addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const {
    extents.addPoint(toWorld * startPoint());
    extents.addPoint(toWorld * endPoint());
}

OdDbCircle::OdDbCircle() {
    startEntity("CIRCLE", kCircle);
    content.setPoint(kCircle, 10, {});
    content.append(40, "1.0");
}
OdGePoint3d OdDbCircle::center() const { return content.point(kCircle, 10); }
double OdDbCircle::radius() const { return content.real(kCircle, 40); }
void OdDbCircle::setCenter(const OdGePoint3d& point) { edit().setPoint(kCircle, 10, point); }
void OdDbCircle::setRadius(double radius) { edit().set(kCircle, 40, dxfText(radius)); }
void OdDbCircle::addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const {
    odDbAddArcExtents(extents, toWorld * planeToWorld(), center(), radius(), 0, 2 * M_PI);
}

OdDbArc::OdDbArc() {
    startEntity("ARC", kCircle);
    content.setPoint(kCircle, 10, {});
    content.append(40, "1.0");
    content.append(100, kArc);
    content.append(50, "0.0");
    content.append(51, "90.0");
}
OdGePoint3d OdDbArc::center() const { return content.point(kCircle, 10); }
double OdDbArc::radius() const { return content.real(kCircle, 40); }
double OdDbArc::startAngle() const { return content.real(kArc, 50) * kDegree; }
double OdDbArc::endAngle() const { return content.real(kArc, 51) * kDegree; }
void OdDbArc::setCenter(const OdGePoint3d& point) { edit().setPoint(kCircle, 10, point); }
void OdDbArc::setRadius(double radius) { edit().set(kCircle, 40, dxfText(radius)); }
void OdDbArc::setStartAngle(double angle) { edit().set(kArc, 50, dxfText(angle / kDegree)); }
void OdDbArc::setEndAngle(double angle) { edit().set(kArc, 51, dxfText(angle / kDegree)); }
void OdDbArc::addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const {
    odDbAddArcExtents(extents, toWorld * planeToWorld(), center(), radius(), startAngle(), endAngle());
}

OdGePoint3d OdDbEllipse::center() const { return content.point(kEllipse, 10); }
OdGeVector3d OdDbEllipse::majorAxis() const { return content.point(kEllipse, 11).asVector(); }
OdGeVector3d OdDbEllipse::minorAxis() const {
    const double ratio = content.real(kEllipse, 40, 1);
    return normal().normal().crossProduct(majorAxis()) * ratio;
}
double OdDbEllipse::startParam() const { return content.real(kEllipse, 41); }
double OdDbEllipse::endParam() const { return content.real(kEllipse, 42, 2 * M_PI); }
void OdDbEllipse::addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const {
    OdGeMatrix3d unitCircle;
    unitCircle.setCoordSystem(center(), majorAxis(), minorAxis(), normal());
    odDbAddArcExtents(extents, toWorld * unitCircle, {}, 1, startParam(), endParam());
}
