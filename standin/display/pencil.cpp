#include "standin/display/pencil.h"

#include "sdk/rx/wide_text.h"
#include "standin/display/flat.h"
#include "standin/display/item_builder.h"

#include <cmath>

namespace standin {

namespace {

const int longestName = 255;       // letters, at the mark of a missing reference
const double endlessLength = 1e10; // longer ones would not be exact where they begin

bool hasLines(const Shape& shape) {
    return shape.kind == Shape::Path || shape.kind == Shape::Arc || (shape.area && !shape.area->isSolid);
}

std::vector<QPointF> moved(const std::vector<OdGePoint3d>& points, const OdGeMatrix3d& matrix) {
    std::vector<QPointF> result;
    result.reserve(points.size());
    for (const OdGePoint3d& point : points)
        result.push_back(flat(matrix * point));
    return result;
}

} // namespace

Pencil Pencil::inked(Ink ink) const {
    Pencil other = *this;
    other.ownLook.ink = ink;
    return other;
}

Pencil Pencil::plain() const {
    Pencil other = *this;
    other.ownLook.dashes = nullptr;
    return other;
}

const DrawingVariables& Pencil::variables() const { return maker.shown->variables(); }

bool Pencil::draw(Shape shape) const {
    if (!isDrawable(shape))
        return false;
    shape.ink = ownLook.ink;
    shape.opacity = ownLook.opacity;
    if (shape.kind == Shape::Path || shape.kind == Shape::Arc)
        shape.dashes = ownLook.dashes;
    if (hasLines(shape) && variables().showsWeights)
        shape.weight = static_cast<std::int16_t>(ownLook.weight);
    maker.put(std::move(shape));
    return true;
}

bool Pencil::path(const std::vector<OdGePoint3d>& points, const OdGeMatrix3d& matrix) const {
    return points.size() > 1 && draw({Shape::Path, {}, moved(points, matrix), {}});
}

void Pencil::arc(const OdGePoint3d& center, const OdGeVector3d& zero, const OdGeVector3d& quarter,
                 double start, double sweep, const OdGeMatrix3d& matrix) const {
    draw({Shape::Arc,
          {},
          {flat(matrix * center), flat(matrix * zero), flat(matrix * quarter), {start, sweep}},
          {}});
}

void Pencil::fill(const std::vector<OdGePoint3d>& corners, const OdGeMatrix3d& matrix) const {
    if (corners.size() > 2)
        draw({Shape::Fill, {}, moved(corners, matrix), {}});
}

void Pencil::endless(const OdGePoint3d& start, const OdGeVector3d& direction,
                     const OdGeMatrix3d& matrix) const {
    const QPointF from = flat(matrix * start), along = flat(matrix * direction);
    const double length = std::hypot(along.x(), along.y());
    if (!(length > 0))
        return;
    Shape line{Shape::Path, {}, {from, from + along * (endlessLength / length)}, {}};
    line.isEndless = true;
    draw(std::move(line));
}

bool Pencil::block(OdDbObjectId block, const OdGeMatrix3d& toWorld, const Repeats& repeats) const {
    return maker.addBlock(block, {where, layerLook, ownLook}, toWorld, repeats);
}

void Pencil::missing(const OdGePoint3d& at, const OdString& name) const {
    draw({Shape::Missing, {}, {flat(at)}, odQString(name.wide()).left(longestName)});
}

void Pencil::part(const OdDbEntity& entity) const { maker.add(entity, where); }

std::wstring Pencil::shortened(std::wstring text, std::size_t most) const {
    if (text.size() > most) {
        text.resize(most);
        maker.item.isCut = maker.item.isTooLarge = true;
    }
    return text;
}

bool Pencil::isFull() const { return maker.isFull(); }

std::size_t Pencil::hatchLinesLeft() const {
    return std::min(ItemBuilder::kMostLinesOfHatch, ItemBuilder::kMostHatchLines - maker.hatchingLines);
}

void Pencil::countHatchLines(std::size_t lines) const { maker.hatchingLines += lines; }

} // namespace standin
