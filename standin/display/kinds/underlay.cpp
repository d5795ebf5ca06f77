// Pages of other files that lie below the drawing, by their clipping border and the name of their file. How
// large a page is that isn't clipped stands in its file alone: it is a mark with the name.
#include "sdk/db/database.h"
#include "standin/display/kinds.h"
#include "standin/display/kinds/frame.h"

namespace standin {

namespace {

constexpr std::string_view kMarker = "AcDbUnderlayReference";
constexpr double kDegree = M_PI / 180;

OdString nameOf(const OdDbEntity& entity) {
    const std::size_t found = entity.tags().find(340);
    const OdDbObjectPtr definition =
        found == DxfTagList::npos || !entity.database()
            ? OdDbObjectPtr()
            : entity.database()->getOdDbObjectId(dxfHandle(entity.tags()[found].value())).openObject();
    const OdString name =
        definition.isNull() ? OdString() : fileOf(definition->textValue("AcDbUnderlayDefinition", 1));
    return name.isEmpty() ? entity.dxfName() : name;
}

// Two points are opposite corners.
std::vector<OdGePoint3d> borderOf(const DxfTagList& tags) {
    const std::vector<OdGePoint3d> points = cornersIn(tags, kMarker, 11);
    if (points.size() != 2)
        return points;
    const OdGePoint3d &a = points[0], &b = points[1];
    return {a, {b.x, a.y, 0}, b, {a.x, b.y, 0}};
}

} // namespace

void draw::underlay(const OdDbEntity& entity, const Pencil& pencil) {
    const DxfTagList& tags = entity.tags();
    const OdGeScale3d scale(tags.real(kMarker, 41, 1), tags.real(kMarker, 42, 1), tags.real(kMarker, 43, 1));
    const OdGeMatrix3d toBlock =
        OdGeMatrix3d::planeToWorld(entity.normal()) *
        OdGeMatrix3d::translation(tags.point(kMarker, 10).asVector()) *
        OdGeMatrix3d::rotation(tags.real(kMarker, 50) * kDegree, OdGeVector3d::kZAxis) *
        OdGeMatrix3d::scaling(scale);
    std::vector<OdGePoint3d> corners = borderOf(tags);
    if (corners.size() < 3)
        return pencil.missing(pencil.world() * (toBlock * OdGePoint3d()), nameOf(entity));
    for (OdGePoint3d& corner : corners)
        corner = toBlock * corner;
    drawFrame(corners, nameOf(entity), pencil);
}

} // namespace standin
