// The shapes of what covers an area: filled areas, hatches, wide polylines and the heads of arrows.
#include "sdk/db/hatch.h"
#include "sdk/db/leader.h"
#include "sdk/db/polyline.h"
#include "sdk/ge/bulge_arc.h"
#include "standin/display/flat.h"
#include "standin/display/hatch_lines.h"
#include "standin/display/item_builder.h"
#include "standin/display/wide_line.h"

#include <algorithm>
#include <cmath>

namespace standin {

namespace {

const double arcSmoothness = 400; // of a wide arc: as if its radius were so many pixels

// How much a matrix stretches what lies in the plane.
double stretchOf(const OdGeMatrix3d& matrix) {
    const QPointF x = flat(matrix * OdGeVector3d::kXAxis), y = flat(matrix * OdGeVector3d::kYAxis);
    return std::sqrt(std::fabs(x.x() * y.y() - x.y() * y.x()));
}

void addArcPoints(std::vector<QPointF>& path, const OdGeBulgeArc& bulge) {
    const Shape arc{Shape::Arc,
                    kForeground,
                    {flat(bulge.center), flat(bulge.zero), flat(bulge.quarter), {0, bulge.sweep}},
                    {}};
    const std::vector<QPointF> points = arcPoints(arc, arcSmoothness / bulge.zero.length());
    path.insert(path.end(), points.begin() + 1, points.end());
}

// The vertices of a polyline with its arcs as short lines, in the polyline's plane.
std::vector<QPointF> planePath(const OdDbPolylineBase& polyline) {
    const std::vector<OdDbPolylineVertex> list = polyline.vertices();
    std::vector<QPointF> path;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const bool isLast = i + 1 == list.size();
        if (path.empty())
            path.push_back(flat(list[i].point));
        if (isLast && !polyline.isClosed())
            break;
        const OdGePoint3d& next = list[isLast ? 0 : i + 1].point;
        if (const auto arc = odGeBulgeArc(list[i].point, next, list[i].bulge))
            addArcPoints(path, *arc);
        else
            path.push_back(flat(next));
    }
    return path;
}

} // namespace

// The corners come in the order of a Z; the fourth may be missing or the same as the third.
void ItemBuilder::addArea(const OdDbEntity& entity, const OdGeMatrix3d& toWorld, Ink ink) {
    Shape area{Shape::Fill, ink, {}, {}};
    for (const int code : {10, 11, 13, 12})
        if (entity.tags().find(code) != DxfTagList::npos)
            area.points.push_back(flat(toWorld * entity.tags().point(entity.tags().whole(), code)));
    if (area.points.size() > 2)
        put(std::move(area));
}

// False for a polyline that has no width, or different ones.
bool ItemBuilder::addWide(const OdDbPolylineBase& polyline, const OdGeMatrix3d& toWorld, Ink ink) {
    const double width = polyline.constantWidth();
    if (!(width > 0))
        return false;
    const OdGeMatrix3d matrix = toWorld * polyline.vertexToWorld();
    const double height = polyline.vertices().front().point.z;
    Shape line{Shape::Fill, ink, {}, {}};
    Area area;
    area.rule = Qt::WindingFill;
    for (const std::vector<QPointF>& border : wideBorders(planePath(polyline), polyline.isClosed(), width)) {
        if (!line.points.empty())
            area.starts.push_back(line.points.size());
        for (const QPointF& point : border)
            line.points.push_back(flat(matrix * OdGePoint3d(point.x(), point.y(), height)));
    }
    if (line.points.empty())
        return false;
    line.area = std::make_shared<Area>(std::move(area));
    put(std::move(line));
    return true;
}

// A pattern that can't be shown by its lines is a shade.
void ItemBuilder::addHatch(const OdDbHatch& hatch, const OdGeMatrix3d& toWorld, Ink ink) {
    std::vector<OdDbHatch::Loop> loops = hatch.loops();
    loops.erase(std::remove_if(loops.begin(), loops.end(), [](const auto& loop) { return loop.size() < 3; }),
                loops.end());
    const OdGeMatrix3d matrix = toWorld * hatch.loopToWorld();
    Shape fill{Shape::Fill, ink, {}, {}};
    Area area;
    for (const OdDbHatch::Loop& loop : loops) {
        if (!fill.points.empty())
            area.starts.push_back(fill.points.size());
        for (const OdGePoint3d& point : loop)
            fill.points.push_back(flat(matrix * point));
    }
    area.isSolid = hatch.isSolidFill();
    if (!area.isSolid)
        addHatching(area, hatch, loops, matrix);
    fill.area = std::make_shared<Area>(std::move(area));
    put(std::move(fill));
}

void ItemBuilder::addHatching(Area& area, const OdDbHatch& hatch,
                              const std::vector<std::vector<OdGePoint3d>>& loops,
                              const OdGeMatrix3d& toWorld) {
    const auto found =
        hatchLines(loops, hatch.patternLines(), std::min(kMostLinesOfHatch, kMostHatchLines - hatchingLines));
    if (!found)
        return;
    hatchingLines += found->lines.size();
    area.finest = found->finest * stretchOf(toWorld);
    const auto moved = [&](const QPointF& point) {
        return flat(toWorld * OdGePoint3d(point.x(), point.y(), 0));
    };
    for (const QLineF& line : found->lines)
        area.hatching.emplace_back(moved(line.p1()), moved(line.p2()));
}

// The head is a third as wide as long, and leaves half of a short first line free.
void ItemBuilder::addLeader(const OdDbLeader& leader, const OdGeMatrix3d& toWorld, Ink ink) {
    const std::vector<OdGePoint3d> path = leader.vertices();
    const std::size_t before = item.shapes.size();
    addPath(path, toWorld, ink);
    if (item.shapes.size() == before || !leader.hasArrowHead())
        return;
    const OdGeVector3d first = path[1] - path[0];
    const double size = std::min(leader.arrowSize(), first.length() / 2);
    if (!(size > 0))
        return;
    const OdGeVector3d back = first.normal() * size;
    const OdGeVector3d side = leader.normal().crossProduct(back) * (1 / 6.0);
    put({Shape::Fill,
         ink,
         {flat(toWorld * path[0]), flat(toWorld * (path[0] + back + side)),
          flat(toWorld * (path[0] + back - side))},
         {}});
}

} // namespace standin
