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

// The lines of a shape, one by one, until the visitor says false.
template <class Visitor>
bool visitRun(const QPointF* points, std::size_t count, bool isClosed, Visitor visitor) {
    if (count == 1)
        return visitor(points[0], points[0]);
    for (std::size_t i = 0; i + 1 < count; ++i)
        if (!visitor(points[i], points[i + 1]))
            return false;
    return !isClosed || visitor(points[count - 1], points[0]);
}

template <class Visitor> bool visitRun(const std::vector<QPointF>& points, bool isClosed, Visitor visitor) {
    return visitRun(points.data(), points.size(), isClosed, visitor);
}

std::vector<QPointF> cornersOf(const Box& box) {
    return {{box.left, box.bottom}, {box.right, box.bottom}, {box.right, box.top}, {box.left, box.top}};
}

template <class Visitor> bool visitLines(const Shape& shape, double scale, Visitor visitor) {
    switch (shape.kind) {
    case Shape::Path:
        return visitRun(shape.points, false, visitor);
    case Shape::Arc:
        return visitRun(arcPoints(shape, scale), false, visitor);
    case Shape::Text:
        return visitRun(textCorners(shape), true, visitor);
    case Shape::Missing:
        return visitRun(cornersOf(boxOf(shape).grown(kMissingMark / scale)), true, visitor);
    case Shape::Dot:
        return visitor(shape.points[0], shape.points[0]);
    case Shape::Fill: {
        bool goesOn = true;
        visitBorders(shape, [&](std::size_t from, std::size_t to) {
            goesOn = goesOn && visitRun(&shape.points[from], to - from, true, visitor);
        });
        return goesOn;
    }
    }
    return true;
}

// Whether the lines of the shape can't come as near as this.
bool isFar(const Shape& shape, const Box& from, double reach, double scale) {
    const double mark = shape.kind == Shape::Missing ? kMissingMark / scale : 0;
    return !shape.box.intersects(from.grown(reach + mark));
}

bool isOnPlate(const Shape& shape, const QPointF& point, double scale) {
    const std::vector<QPointF> corners =
        shape.kind == Shape::Text ? textCorners(shape) : cornersOf(boxOf(shape).grown(kMissingMark / scale));
    return QPolygonF(QVector<QPointF>(corners.begin(), corners.end())).containsPoint(point, Qt::OddEvenFill);
}

// Texts and marks are picked anywhere inside, other shapes on their lines. The inside of an area is just
// within reach, so that whatever lies upon it comes first.
double distanceTo(const Shape& shape, const QPointF& point, double reach, double scale) {
    const bool isPlate = shape.kind == Shape::Text || shape.kind == Shape::Missing;
    if (isPlate && isOnPlate(shape, point, scale))
        return 0;
    double nearest = HUGE_VAL;
    visitLines(shape, scale, [&](const QPointF& a, const QPointF& b) {
        nearest = std::min(nearest, distanceToSegment(point, a, b));
        return true;
    });
    return shape.kind == Shape::Fill && nearest > reach && isInside(shape, point) ? reach : nearest;
}

double distanceTo(const Item& item, const QPointF& point, double reach, double scale) {
    double nearest = HUGE_VAL;
    for (const Shape& shape : item.shapes)
        if (!isFar(shape, boxOf(point, point), reach, scale))
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
    if (isFar(shape, window, 0, scale))
        return false;
    const bool isApart =
        visitLines(shape, scale, [&](const QPointF& a, const QPointF& b) { return !crosses(window, a, b); });
    // The window may lie within.
    return !isApart || (shape.kind == Shape::Fill && isInside(shape, window.center()));
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
