#include "standin/display/hatch_nesting.h"

#include "standin/display/box.h"
#include "standin/display/flat.h"
#include "standin/display/shape.h"

#include <algorithm>

namespace standin {

namespace {

using Loop = OdDbHatch::Loop;

const std::size_t mostNested = 2000; // of more borders than these all count: they are compared in pairs

Shape shapeOf(const Loop& loop) {
    Shape shape{Shape::Fill, {}, {}, {}};
    for (const OdGePoint3d& point : loop)
        shape.points.push_back(flat(point));
    return shape;
}

// How many other borders go around each.
std::vector<int> depthsOf(const std::vector<Loop>& loops) {
    std::vector<Shape> shapes;
    std::vector<Box> boxes;
    for (const Loop& loop : loops) {
        shapes.push_back(shapeOf(loop));
        boxes.push_back(boxOf(shapes.back()));
    }
    std::vector<int> depths(loops.size(), 0);
    for (std::size_t inner = 0; inner < loops.size(); ++inner)
        for (std::size_t outer = 0; outer < loops.size(); ++outer)
            if (outer != inner && boxes[outer].contains(boxes[inner]) &&
                isInside(shapes[outer], shapes[inner].points.front()))
                ++depths[inner];
    return depths;
}

} // namespace

std::vector<Loop> loopsOfStyle(std::vector<Loop> loops, OdDbHatch::Style style) {
    loops.erase(std::remove_if(loops.begin(), loops.end(), [](const Loop& loop) { return loop.size() < 3; }),
                loops.end());
    if (style == OdDbHatch::kNormal || loops.size() > mostNested)
        return loops;
    const std::vector<int> depths = depthsOf(loops);
    const int deepest = style == OdDbHatch::kOutermost ? 1 : 0;
    std::vector<Loop> kept;
    for (std::size_t i = 0; i < loops.size(); ++i)
        if (depths[i] <= deepest)
            kept.push_back(std::move(loops[i]));
    return kept;
}

} // namespace standin
