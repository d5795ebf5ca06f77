#include "standin/display/clipping.h"

#include <algorithm>

namespace standin {

namespace {

// What lies on the inner side of one straight line: `inside` tells how far within a point is, or negative.
template <class Inside> QPolygonF cutBy(const QPolygonF& polygon, Inside inside) {
    QPolygonF kept;
    if (polygon.isEmpty())
        return kept;
    QPointF last = polygon.last();
    double lastWithin = inside(last);
    for (const QPointF& point : polygon) {
        const double within = inside(point);
        if ((within < 0) != (lastWithin < 0))
            kept.append(last + (point - last) * (lastWithin / (lastWithin - within)));
        if (within >= 0)
            kept.append(point);
        last = point;
        lastWithin = within;
    }
    return kept;
}

} // namespace

bool clipLine(const QRectF& area, QPointF& a, QPointF& b) {
    double from = 0, to = 1;
    const QPointF along = b - a;
    const double steps[] = {-along.x(), along.x(), -along.y(), along.y()};
    const double rooms[] = {a.x() - area.left(), area.right() - a.x(), a.y() - area.top(),
                            area.bottom() - a.y()};
    for (int side = 0; side < 4; ++side) {
        if (steps[side] == 0 && rooms[side] < 0)
            return false;
        if (steps[side] < 0)
            from = std::max(from, rooms[side] / steps[side]);
        else if (steps[side] > 0)
            to = std::min(to, rooms[side] / steps[side]);
    }
    if (from > to)
        return false;
    b = a + along * to;
    a += along * from;
    return true;
}

QPolygonF clippedPolygon(const QRectF& area, const QPolygonF& polygon) {
    QPolygonF kept = cutBy(polygon, [&](const QPointF& p) { return p.x() - area.left(); });
    kept = cutBy(kept, [&](const QPointF& p) { return area.right() - p.x(); });
    kept = cutBy(kept, [&](const QPointF& p) { return p.y() - area.top(); });
    return cutBy(kept, [&](const QPointF& p) { return area.bottom() - p.y(); });
}

} // namespace standin
