// Cuts off what lies beyond an area: places far away would overflow the painter.
#pragma once

#include <QPolygonF>
#include <QRectF>

namespace standin {

// Leaves the part of the line inside of the area; false when there is none.
bool clipLine(const QRectF& area, QPointF& a, QPointF& b);
// The part of a filled polygon inside of the area. Parts that are not connected are joined along the area's
// sides, which changes nothing of what is filled, by either rule.
QPolygonF clippedPolygon(const QRectF& area, const QPolygonF& polygon);

} // namespace standin
