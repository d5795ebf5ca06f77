#include "standin/display/shape.h"

#include "standin/display/letters.h"

#include <cmath>

namespace standin {

namespace {

const float largestName = 64; // pixels from the middle of a mark to the end of its letters, up or down
const double farthest = 1e15; // beyond it pixels can't be told apart any more

bool isUsable(const QPointF& point) {
    return std::isfinite(point.x()) && std::isfinite(point.y()) && std::fabs(point.x()) < farthest &&
           std::fabs(point.y()) < farthest;
}

QPointF arcPoint(const Shape& arc, double angle) {
    return arc.points[0] + arc.points[1] * std::cos(angle) + arc.points[2] * std::sin(angle);
}

double lengthOf(const QPointF& vector) { return std::hypot(vector.x(), vector.y()); }

// The ends, and the places in between where the arc turns back along one of the axes.
Box boxOfArc(const Shape& arc) {
    const double start = arc.points[3].x(), sweep = arc.points[3].y();
    Box box = boxOf(arcPoint(arc, start), arcPoint(arc, start + sweep));
    for (const double turn :
         {std::atan2(arc.points[2].x(), arc.points[1].x()), std::atan2(arc.points[2].y(), arc.points[1].y())})
        for (int half = 0; half < 2; ++half) {
            const double angle = turn + half * M_PI;
            const double behind = std::fmod(std::fmod(angle - start, 2 * M_PI) + 2 * M_PI, 2 * M_PI);
            if (behind <= sweep)
                box.add(arcPoint(arc, angle));
        }
    return box;
}

} // namespace

double weightInPixels(int weight) {
    const double dotsPerHundredth = 96 / 2540.0;
    return std::max(1.0, weight * dotsPerHundredth);
}

bool isDrawable(const Shape& shape) {
    return !shape.points.empty() && std::all_of(shape.points.begin(), shape.points.end(), isUsable);
}

std::vector<QPointF> arcPoints(const Shape& arc, double scale) {
    const double radius = std::max(lengthOf(arc.points[1]), lengthOf(arc.points[2])) * scale;
    const double start = arc.points[3].x(), sweep = arc.points[3].y();
    // A chord stays within a quarter of a pixel of its arc.
    const double step = radius > 1 ? 2 * std::acos(1 - 0.25 / radius) : M_PI / 2;
    const int count = static_cast<int>(std::clamp(std::ceil(sweep / step), 4.0, 4000.0));
    std::vector<QPointF> points;
    points.reserve(static_cast<std::size_t>(count) + 1);
    for (int i = 0; i <= count; ++i)
        points.push_back(arcPoint(arc, start + sweep * i / count));
    return points;
}

std::vector<QPointF> textCorners(const Shape& text) {
    const double width = lettersOf(text.text, text.isBold).width;
    const QPointF along = text.points[1] * width, up = text.points[2];
    const QPointF corner = text.points[0] - along * text.points[3].x() - up * text.points[3].y();
    return {corner, corner + along, corner + along + up, corner + up};
}

std::vector<std::vector<QPointF>> bordersOf(const Shape& fill) {
    std::vector<std::vector<QPointF>> borders;
    visitBorders(fill, [&](std::size_t from, std::size_t to) {
        const auto begin = fill.points.begin();
        borders.emplace_back(begin + static_cast<std::ptrdiff_t>(from),
                             begin + static_cast<std::ptrdiff_t>(to));
        borders.back().push_back(fill.points[from]);
    });
    return borders;
}

// Counts how often the borders go round the point.
bool isInside(const Shape& fill, const QPointF& point) {
    int turns = 0;
    const auto pass = [&](const QPointF& from, const QPointF& to) {
        const QPointF a = from - point, b = to - point;
        if ((a.y() > 0) == (b.y() > 0))
            return;
        const double side = a.x() * b.y() - a.y() * b.x();
        if ((b.y() > 0) == (side > 0))
            turns += b.y() > 0 ? 1 : -1;
    };
    visitBorders(fill, [&](std::size_t from, std::size_t to) {
        for (std::size_t i = from; i + 1 < to; ++i)
            pass(fill.points[i], fill.points[i + 1]);
        pass(fill.points[to - 1], fill.points[from]);
    });
    return fill.area && fill.area->rule == Qt::WindingFill ? turns != 0 : turns % 2 != 0;
}

Box extentsOf(const Item& item) {
    if (!item.isEndless)
        return item.box;
    Box box;
    for (const Shape& shape : item.shapes)
        box.add(shape.isEndless ? boxOf(shape.points[0], shape.points[0]) : boxOf(shape));
    return box;
}

// Thick lines take longer; letters are areas with many corners.
Weight weightOf(const Shape& shape) {
    const double pointsOfArc = 64, pointsOfLetter = 20, thick = 4;
    double length = 0, points = static_cast<double>(shape.points.size());
    if (shape.kind == Shape::Path || shape.kind == Shape::Fill)
        for (std::size_t i = 0; i + 1 < shape.points.size(); ++i)
            length += lengthOf(shape.points[i + 1] - shape.points[i]);
    if (shape.kind == Shape::Arc) {
        length = shape.points[3].y() * std::max(lengthOf(shape.points[1]), lengthOf(shape.points[2]));
        points = pointsOfArc;
    }
    if (shape.area) {
        for (const QLineF& line : shape.area->hatching)
            length += line.length();
        points += 2 * static_cast<double>(shape.area->hatching.size());
    }
    points += pointsOfLetter * shape.text.size();
    if (weightInPixels(shape.weight) > 1)
        length *= thick;
    const bool isFilled = shape.kind == Shape::Fill || shape.kind == Shape::Text;
    return {static_cast<float>(points), static_cast<float>(length),
            isFilled ? static_cast<float>(shape.box.width() * shape.box.height()) : 0, isFilled ? 1.0f : 0};
}

// Letters may reach out of the corners of their text, as those below the base line do.
Reach reachOf(const Shape& shape) {
    Reach reach;
    if (shape.kind == Shape::Missing)
        reach.pixels = largestName;
    if (shape.kind == Shape::Dot)
        reach.pixels = 1;
    if (shape.kind == Shape::Dot && shape.points.size() > 1)
        reach.ofWindow = static_cast<float>(std::fabs(shape.points[1].y()) / 100);
    if (shape.kind != Shape::Text)
        return reach;
    const Letters& letters = lettersOf(shape.text, shape.isBold);
    const QRectF drawn = letters.outline.controlPointRect();
    const double out =
        std::max({0.0, -drawn.left(), drawn.right() - letters.width, -drawn.top(), drawn.bottom() - 1});
    reach.units = static_cast<float>(out * (std::hypot(shape.points[1].x(), shape.points[1].y()) +
                                            std::hypot(shape.points[2].x(), shape.points[2].y())));
    return reach;
}

Box boxOf(const Shape& shape) {
    if (shape.kind == Shape::Arc)
        return boxOfArc(shape);
    if (shape.kind == Shape::Dot)
        return boxOf(shape.points[0], shape.points[0]);
    Box box;
    for (const QPointF& point : shape.kind == Shape::Text ? textCorners(shape) : shape.points)
        box.add(point);
    return box;
}

} // namespace standin
