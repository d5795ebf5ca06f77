// The marks of points.
#pragma once

#include "standin/display/shape.h"

#include <vector>

namespace standin {

constexpr double kUsualMarkPercent = 5; // of the height of the window

// Of PDMODE: 0 a dot, 1 nothing, 2 a cross, 3 an oblique cross, 4 a tick upwards; with 32 a circle around it,
// with 64 a square. `size` is that of circle and square.
std::vector<Shape> pointMark(int mode, const QPointF& at, double size);

} // namespace standin
