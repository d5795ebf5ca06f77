#include "standin/display/picking.h"

#include <QPolygonF>
#include <algorithm>
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

using Runs = std::vector<std::vector<QPointF>>;

std::vector<QPointF> closed(std::vector<QPointF> corners) {
    corners.push_back(corners.front());
    return corners;
}

std::vector<QPointF> frameOf(const Box& box) {
    return closed(
        {{box.left, box.bottom}, {box.right, box.bottom}, {box.right, box.top}, {box.left, box.top}});
}

// The outlines of a shape as points joined by lines.
Runs outlines(const Shape& shape, double scale) {
    switch (shape.kind) {
    case Shape::Arc:
        return {arcPoints(shape, scale)};
    case Shape::Text:
        return {closed(textCorners(shape))};
    case Shape::Fill:
        return bordersOf(shape);
    case Shape::Missing:
        return {frameOf(boxOf(shape).grown(kMissingMark / scale))};
    default:
        return {shape.points};
    }
}

double distanceToLines(const Runs& runs, const QPointF& point) {
    double nearest = HUGE_VAL;
    for (const std::vector<QPointF>& run : runs) {
        nearest = std::min(nearest, distanceToSegment(point, run.front(), run.front()));
        for (std::size_t i = 0; i + 1 < run.size(); ++i)
            nearest = std::min(nearest, distanceToSegment(point, run[i], run[i + 1]));
    }
    return nearest;
}

// Texts and marks are picked anywhere inside, other shapes on their lines. The inside of an area is just
// within reach, so that whatever lies upon it comes first.
double distanceTo(const Shape& shape, const QPointF& point, double reach, double scale) {
    const Runs runs = outlines(shape, scale);
    const bool isPlate = shape.kind == Shape::Text || shape.kind == Shape::Missing;
    if (isPlate &&
        QPolygonF(QVector<QPointF>(runs[0].begin(), runs[0].end())).containsPoint(point, Qt::OddEvenFill))
        return 0;
    const double distance = distanceToLines(runs, point);
    return shape.kind == Shape::Fill && distance > reach && isInside(shape, point) ? reach : distance;
}

double distanceTo(const Item& item, const QPointF& point, double reach, double scale) {
    double nearest = HUGE_VAL;
    for (const Shape& shape : item.shapes)
        nearest = std::min(nearest, distanceTo(shape, point, reach, scale));
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

bool touches(const Shape& shape, const Box& window, double scale) {
    for (const std::vector<QPointF>& run : outlines(shape, scale)) {
        if (window.contains(run.front()))
            return true;
        for (std::size_t i = 0; i + 1 < run.size(); ++i)
            if (crosses(window, run[i], run[i + 1]))
                return true;
    }
    return shape.kind == Shape::Fill && isInside(shape, window.center()); // the window may lie within
}

bool touches(const Item& item, const Box& window, double scale) {
    return std::any_of(item.shapes.begin(), item.shapes.end(),
                       [&](const Shape& shape) { return touches(shape, window, scale); });
}

} // namespace

OdDbObjectId itemAt(const DisplayList& list, const QPointF& point, double reach, double scale) {
    OdDbObjectId found;
    double nearest = reach;
    const double mark = kMissingMark / scale; // marks reach beyond their boxes
    for (const Item* item : list.within(boxOf(point, point).grown(reach + mark))) {
        const double distance = distanceTo(*item, point, reach, scale);
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
