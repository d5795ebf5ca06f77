// The outline of a line that has a width.
#pragma once

#include <QPointF>
#include <vector>

namespace standin {

// Borders that, filled by the winding rule, are the line along the path with mitred corners. None for numbers
// of which nothing can be made.
std::vector<std::vector<QPointF>> wideBorders(const std::vector<QPointF>& path, bool closed, double width);

// A path whose width goes evenly from one number to another.
struct TaperedSegment {
    std::vector<QPointF> path; // two points or more
    double startWidth = 0, endWidth = 0;
};

// The same for segments that follow each other; where they meet in one width their corner is mitred. Segments
// without any width are left as narrow as nothing.
std::vector<std::vector<QPointF>> taperedBorders(const std::vector<TaperedSegment>& segments, bool closed);

} // namespace standin
