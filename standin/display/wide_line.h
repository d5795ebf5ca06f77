// The outline of a line that has a width.
#pragma once

#include <QPointF>
#include <vector>

namespace standin {

// Borders that, filled by the winding rule, are the line along the path with mitred corners. None for numbers
// of which nothing can be made.
std::vector<std::vector<QPointF>> wideBorders(const std::vector<QPointF>& path, bool closed, double width);

} // namespace standin
