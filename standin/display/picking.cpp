#include "standin/display/picking.h"

#include <QPolygonF>
#include <cmath>

namespace standin {

namespace {

double distanceToSegment(const QPointF& point, const QPointF& a, const QPointF& b) {
    const QPointF along = b - a;
    const double square = QPointF::dotProduct(along, along);
    const double part = square > 0 ? std::clamp(QPointF::dotProduct(point - a, along) / square, 0.0, 1.0) : 0;
    const QPointF off = point - (a + along * part);
    return std::hypot(off.x(), off.y());
}

// The outline of a shape as points joined by lines.
std::vector<QPointF> outline(const Shape& shape, double scale) {
    if (shape.kind == Shape::Arc)
        return arcPoints(shape, scale);
    if (shape.kind == Shape::Text || shape.kind == Shape::Fill) {
        std::vector<QPointF> corners = shape.kind == Shape::Text ? textCorners(shape) : shape.points;
        corners.push_back(corners.front());
        return corners;
    }
    if (shape.kind != Shape::Missing)
        return shape.points;
    const Box mark =
        Box{shape.points[0].x(), shape.points[0].y(), shape.points[0].x(), shape.points[0].y()}.grown(
            kMissingMark / scale);
    return {{mark.left, mark.bottom},
            {mark.right, mark.bottom},
            {mark.right, mark.top},
            {mark.left, mark.top},
            {mark.left, mark.bottom}};
}

// Texts and marks are picked anywhere inside, other shapes on their lines.
double distanceTo(const Shape& shape, const QPointF& point, double scale) {
    const std::vector<QPointF> points = outline(shape, scale);
    const bool filled =
        shape.kind == Shape::Text || shape.kind == Shape::Missing || shape.kind == Shape::Fill;
    if (filled &&
        QPolygonF(QVector<QPointF>(points.begin(), points.end())).containsPoint(point, Qt::OddEvenFill))
        return 0;
    double nearest = distanceToSegment(point, points.front(), points.front());
    for (std::size_t i = 0; i + 1 < points.size(); ++i)
        nearest = std::min(nearest, distanceToSegment(point, points[i], points[i + 1]));
    return nearest;
}

double distanceTo(const Item& item, const QPointF& point, double scale) {
    double nearest = HUGE_VAL;
    for (const Shape& shape : item.shapes)
        nearest = std::min(nearest, distanceTo(shape, point, scale));
    return nearest;
}

// Cuts the line by the sides of the box one after the other; something is left when they touch.
bool crosses(const Box& box, const QPointF& a, const QPointF& b) {
    double from = 0, to = 1;
    const QPointF along = b - a;
    const double steps[] = {-along.x(), along.x(), -along.y(), along.y()};
    const double rooms[] = {a.x() - box.left, box.right - a.x(), a.y() - box.bottom, box.top - a.y()};
    for (int side = 0; side < 4; ++side) {
        if (steps[side] == 0) {
            if (rooms[side] < 0)
                return false;
        } else if (steps[side] < 0) {
            from = std::max(from, rooms[side] / steps[side]);
        } else {
            to = std::min(to, rooms[side] / steps[side]);
        }
    }
    return from <= to;
}

bool touches(const Item& item, const Box& window, double scale) {
    for (const Shape& shape : item.shapes) {
        const std::vector<QPointF> points = outline(shape, scale);
        if (window.contains(points.front()))
            return true;
        for (std::size_t i = 0; i + 1 < points.size(); ++i)
            if (crosses(window, points[i], points[i + 1]))
                return true;
    }
    return false;
}

} // namespace

OdDbObjectId itemAt(const DisplayList& list, const QPointF& point, double reach, double scale) {
    OdDbObjectId found;
    double nearest = reach;
    const double mark = kMissingMark / scale; // marks reach beyond their boxes
    for (const Item* item : list.within(boxOf(point, point).grown(reach + mark))) {
        const double distance = distanceTo(*item, point, scale);
        if (distance > nearest)
            continue;
        nearest = distance;
        found = item->id;
    }
    return found;
}

OdDbObjectIdArray itemsIn(const DisplayList& list, const Box& window, bool crossing, double scale) {
    OdDbObjectIdArray found;
    for (const Item* item : list.within(window))
        if (window.contains(item->box) || (crossing && touches(*item, window, scale)))
            found.push_back(item->id);
    return found;
}

} // namespace standin
