// Polylines: thin ones by lines and arcs, wide ones as filled areas, meshes by their edges.
#include "sdk/db/polyline.h"

#include "sdk/ge/bulge_arc.h"
#include "standin/display/flat.h"
#include "standin/display/kinds.h"
#include "standin/display/kinds/polymesh.h"
#include "standin/display/wide_line.h"

#include <algorithm>

namespace standin {

namespace {

const double arcSmoothness = 400; // of a wide arc: as if its radius were so many pixels

void addArcPoints(std::vector<QPointF>& path, const OdGeBulgeArc& bulge) {
    const Shape arc{Shape::Arc,
                    kForeground,
                    {flat(bulge.center), flat(bulge.zero), flat(bulge.quarter), {0, bulge.sweep}},
                    {}};
    const std::vector<QPointF> points = arcPoints(arc, arcSmoothness / bulge.zero.length());
    path.insert(path.end(), points.begin() + 1, points.end());
}

// From one vertex to the next, arcs as short lines, in the polyline's plane.
std::vector<QPointF> segmentPath(const OdDbPolylineVertex& from, const OdDbPolylineVertex& to) {
    std::vector<QPointF> path{flat(from.point)};
    if (const auto arc = odGeBulgeArc(from.point, to.point, from.bulge))
        addArcPoints(path, *arc);
    else
        path.push_back(flat(to.point));
    return path;
}

std::vector<QPointF> planePath(const std::vector<OdDbPolylineVertex>& list) {
    std::vector<QPointF> path{flat(list.front().point)};
    for (std::size_t i = 0; i + 1 < list.size(); ++i) {
        const std::vector<QPointF> segment = segmentPath(list[i], list[i + 1]);
        path.insert(path.end(), segment.begin() + 1, segment.end());
    }
    return path;
}

// Straight runs become one path each, bulges arcs between them.
void drawThin(const std::vector<OdDbPolylineVertex>& list, const OdGeMatrix3d& matrix, const Pencil& pencil) {
    Shape run{Shape::Path, {}, {flat(matrix * list.front().point)}, {}};
    for (std::size_t i = 0; i + 1 < list.size(); ++i) {
        if (const auto arc = odGeBulgeArc(list[i].point, list[i + 1].point, list[i].bulge)) {
            pencil.arc(arc->center, arc->zero, arc->quarter, 0, arc->sweep, matrix);
            if (run.points.size() > 1)
                pencil.draw(run);
            run.points.clear();
        }
        run.points.push_back(flat(matrix * list[i + 1].point));
    }
    if (run.points.size() > 1 || list.size() == 1)
        pencil.draw(std::move(run));
}

// False where nothing can be made of the width.
bool drawBorders(const std::vector<std::vector<QPointF>>& borders, double height, const OdGeMatrix3d& matrix,
                 const Pencil& pencil) {
    Shape line{Shape::Fill, {}, {}, {}};
    Area area;
    area.rule = Qt::WindingFill;
    for (const std::vector<QPointF>& border : borders) {
        if (!line.points.empty())
            area.starts.push_back(line.points.size());
        for (const QPointF& point : border)
            line.points.push_back(flat(matrix * OdGePoint3d(point.x(), point.y(), height)));
    }
    if (line.points.empty())
        return false;
    line.area = std::make_shared<Area>(std::move(area));
    pencil.draw(std::move(line));
    return true;
}

// Each segment as an area of its own, as wide as its ends say.
bool drawTapered(const std::vector<OdDbPolylineVertex>& list, const OdGeMatrix3d& matrix,
                 const Pencil& pencil) {
    std::vector<TaperedSegment> segments;
    for (std::size_t i = 0; i + 1 < list.size(); ++i)
        segments.push_back({segmentPath(list[i], list[i + 1]), list[i].startWidth, list[i].endWidth});
    const bool closes = list.size() > 2 && list.front().point == list.back().point;
    return drawBorders(taperedBorders(segments, closes), list.front().point.z, matrix, pencil);
}

bool hasWidths(const std::vector<OdDbPolylineVertex>& list) {
    return std::any_of(list.begin(), list.end(), [](const OdDbPolylineVertex& vertex) {
        return vertex.startWidth > 0 || vertex.endWidth > 0;
    });
}

} // namespace

void draw::polyline(const OdDbEntity& entity, const Pencil& pencil) {
    const auto* polyline = dynamic_cast<const OdDbPolylineBase*>(&entity);
    if (!polyline)
        return;
    if (const auto* old = dynamic_cast<const OdDb2dPolyline*>(polyline); old && old->isMesh())
        return drawPolymesh(*old, pencil);
    std::vector<OdDbPolylineVertex> list = polyline->vertices();
    if (list.empty())
        return;
    const OdGeMatrix3d matrix = pencil.world() * polyline->vertexToWorld();
    const double width = polyline->constantWidth();
    const double height = list.front().point.z;
    const bool isClosed = polyline->isClosed();
    if (isClosed)
        list.push_back(list.front());
    if (width > 0 && drawBorders(wideBorders(planePath(list), isClosed, width), height, matrix, pencil))
        return;
    if (!(width > 0) && hasWidths(list) && drawTapered(list, matrix, pencil))
        return;
    drawThin(list, matrix, pencil);
}

} // namespace standin
