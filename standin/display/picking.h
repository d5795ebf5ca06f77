// Which items lie at a point or in a window.
#pragma once

#include "standin/display/display_list.h"

namespace standin {

// The one nearest to the point within `reach` drawing units, the topmost of equals; null when there is none.
// `scale` is the number of pixels for a unit.
OdDbObjectId itemAt(const DisplayList& list, const QPointF& point, double reach, double scale);
// Those inside of the window, or with `crossing` those that it touches.
OdDbObjectIdArray itemsIn(const DisplayList& list, const Box& window, bool crossing, double scale);

} // namespace standin
