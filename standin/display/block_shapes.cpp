#include "standin/display/block_shapes.h"

#include "standin/display/flat.h"

#include <cmath>

namespace standin {

namespace {

void move(QLineF& line, const FlatMovement& movement) {
    line = {movement.point(line.p1()), movement.point(line.p2())};
}

std::shared_ptr<const Area> movedArea(const std::shared_ptr<const Area>& area, const FlatMovement& movement) {
    if (!area || area->hatching.empty())
        return area;
    auto moved = std::make_shared<Area>(*area);
    for (QLineF& line : moved->hatching)
        move(line, movement);
    moved->finest *= movement.stretch();
    return moved;
}

// How many points of a shape are places, and how many behind them are directions; what is left are numbers.
std::pair<std::size_t, std::size_t> meaningOf(const Shape& shape) {
    switch (shape.kind) {
    case Shape::Arc:
    case Shape::Text:
        return {1, 2};
    case Shape::Dot:
        return {1, 0};
    default:
        return {shape.points.size(), 0};
    }
}

} // namespace

std::optional<FlatMovement> FlatMovement::of(const OdGeMatrix3d& matrix) {
    if (matrix.entry[0][2] != 0 || matrix.entry[1][2] != 0)
        return std::nullopt;
    return FlatMovement{flat(matrix * OdGePoint3d()), flat(matrix * OdGeVector3d::kXAxis),
                        flat(matrix * OdGeVector3d::kYAxis)};
}

double FlatMovement::stretch() const { return std::sqrt(std::fabs(x.x() * y.y() - x.y() * y.x())); }

Shape movedShape(const Shape& shape, const FlatMovement& movement) {
    Shape moved = shape;
    const auto [places, directions] = meaningOf(shape);
    for (std::size_t i = 0; i < places; ++i)
        moved.points[i] = movement.point(shape.points[i]);
    for (std::size_t i = places; i < places + directions; ++i)
        moved.points[i] = movement.vector(shape.points[i]);
    moved.area = movedArea(shape.area, movement);
    return moved;
}

bool BlockShapes::Entry::fits(const Place& within) const {
    return layers == within.layers && layer == within.layer && look == within.look &&
           isExternal == within.isExternal;
}

std::shared_ptr<const BlockShapes::Made> BlockShapes::find(const Place& within) const {
    const auto found = entries.find(within.block);
    if (found == entries.end())
        return nullptr;
    for (const Entry& entry : found->second)
        if (entry.fits(within))
            return entry.made;
    return nullptr;
}

void BlockShapes::add(const Place& within, std::shared_ptr<const Made> made) {
    entries[within.block].push_back(
        {within.layers, within.layer, within.look, within.isExternal, std::move(made)});
}

} // namespace standin
