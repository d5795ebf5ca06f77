// Places and directions of a drawing as they are seen from above.
#pragma once

#include "sdk/ge/point3d.h"

#include <QPointF>

namespace standin {

inline QPointF flat(const OdGePoint3d& point) { return {point.x, point.y}; }
inline QPointF flat(const OdGeVector3d& vector) { return {vector.x, vector.y}; }

} // namespace standin
