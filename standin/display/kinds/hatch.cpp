// Hatches: filled, or by the lines of their pattern.
#include "sdk/db/hatch.h"

#include "standin/display/flat.h"
#include "standin/display/hatch_lines.h"
#include "standin/display/hatch_nesting.h"
#include "standin/display/kinds.h"

#include <algorithm>
#include <cmath>

namespace standin {

namespace {

// How much a matrix stretches what lies in the plane.
double stretchOf(const OdGeMatrix3d& matrix) {
    const QPointF x = flat(matrix * OdGeVector3d::kXAxis), y = flat(matrix * OdGeVector3d::kYAxis);
    return std::sqrt(std::fabs(x.x() * y.y() - x.y() * y.x()));
}

// A pattern that can't be shown by its lines is a shade.
void addHatching(Area& area, const OdDbHatch& hatch, const std::vector<OdDbHatch::Loop>& loops,
                 const OdGeMatrix3d& toWorld, const Pencil& pencil) {
    const auto found = hatchLines(loops, hatch.patternLines(), pencil.hatchLinesLeft());
    if (!found)
        return;
    pencil.countHatchLines(found->lines.size());
    area.finest = found->finest * stretchOf(toWorld);
    const auto moved = [&](const QPointF& point) {
        return flat(toWorld * OdGePoint3d(point.x(), point.y(), 0));
    };
    for (const QLineF& line : found->lines)
        area.hatching.emplace_back(moved(line.p1()), moved(line.p2()));
}

} // namespace

void draw::hatch(const OdDbEntity& entity, const Pencil& pencil) {
    const auto* hatch = dynamic_cast<const OdDbHatch*>(&entity);
    if (!hatch)
        return;
    const std::vector<OdDbHatch::Loop> loops = loopsOfStyle(hatch->loops(), hatch->style());
    const OdGeMatrix3d matrix = pencil.world() * hatch->loopToWorld();
    Shape fill{Shape::Fill, {}, {}, {}};
    Area area;
    for (const OdDbHatch::Loop& loop : loops) {
        if (!fill.points.empty())
            area.starts.push_back(fill.points.size());
        for (const OdGePoint3d& point : loop)
            fill.points.push_back(flat(matrix * point));
    }
    area.isSolid = hatch->isSolidFill();
    if (!area.isSolid)
        addHatching(area, *hatch, loops, matrix, pencil);
    fill.area = std::make_shared<Area>(std::move(area));
    pencil.draw(std::move(fill));
}

} // namespace standin
