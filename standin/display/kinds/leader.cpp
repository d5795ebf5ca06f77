// Leaders: a line, straight or curved, with a filled head.
#include "sdk/db/leader.h"

#include "sdk/db/spline_curve.h"
#include "standin/display/kinds.h"
#include "standin/display/kinds/arrow.h"

namespace standin {

namespace {

constexpr int kPathKind = 72; // 1: curved
constexpr int kPiecesOfSpan = 24;

} // namespace

void draw::leader(const OdDbEntity& entity, const Pencil& pencil) {
    const auto* leader = dynamic_cast<const OdDbLeader*>(&entity);
    if (!leader)
        return;
    const std::vector<OdGePoint3d> path = leader->vertices();
    const bool isCurved = entity.tags().integer("AcDbLeader", kPathKind) == 1;
    const bool isShown = pencil.path(isCurved ? odDbCurveThrough(path, kPiecesOfSpan) : path, pencil.world());
    if (isShown && leader->hasArrowHead())
        drawArrow(path[0], path[1], leader->arrowSize(), leader->normal(), pencil);
}

} // namespace standin
