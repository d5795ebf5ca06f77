#include "standin/display/picture_budget.h"

#include "standin/display/clipping.h"

#include <cmath>

namespace standin {

namespace {

const double filledToALine = 16; // pixels of an area that are painted as quickly as one of a line
const double edge = 16;          // pixels around the window that are painted, too
const double pointsOfLetter = 20;

// Adds up what one view shows of lines.
class Ruler {
public:
    explicit Ruler(const PictureOrder& order)
        : view(order.view), clip(QRectF(order.window()).adjusted(-edge, -edge, edge, edge)) {}

    void add(const QPointF& a, const QPointF& b) {
        QPointF from = view.toPixel(a), to = view.toPixel(b);
        ++points;
        if (clipLine(clip, from, to))
            pixels += std::hypot(to.x() - from.x(), to.y() - from.y());
    }
    void addRun(const std::vector<QPointF>& run) {
        for (std::size_t i = 0; i + 1 < run.size(); ++i)
            add(run[i], run[i + 1]);
    }
    void addBox(const Box& box) {
        const QRectF seen =
            clip & QRectF(view.toPixel({box.left, box.top}), view.toPixel({box.right, box.bottom}));
        if (!seen.isEmpty())
            pixels += seen.width() * seen.height() / filledToALine;
    }
    double cost() const { return points + pixels; }

private:
    const View& view;
    const QRectF clip;
    double points = 1, pixels = 0;
};

void addFill(Ruler& ruler, const Shape& fill) {
    ruler.addBox(fill.box);
    for (std::size_t i = 0; i + 1 < fill.points.size(); ++i)
        ruler.add(fill.points[i], fill.points[i + 1]);
    if (fill.area)
        for (const QLineF& line : fill.area->hatching)
            ruler.add(line.p1(), line.p2());
}

} // namespace

double mostCostOf(const Item& item, const PictureOrder& order) {
    const double scale = order.view.scale();
    const double width = order.view.size().width() + 2 * edge, height = order.view.size().height() + 2 * edge;
    const Weight& weight = item.weight;
    return static_cast<double>(item.shapes.size()) + static_cast<double>(weight.points) +
           std::min(weight.length * scale, weight.points * (width + height)) +
           std::min(weight.area * scale * scale, weight.fills * width * height) / filledToALine;
}

double costOf(const Shape& shape, const PictureOrder& order) {
    Ruler ruler(order);
    double letters = 0;
    switch (shape.kind) {
    case Shape::Path:
        ruler.addRun(shape.points);
        break;
    case Shape::Arc:
        ruler.addRun(arcPoints(shape, order.view.scale()));
        break;
    case Shape::Fill:
        addFill(ruler, shape);
        break;
    default:
        ruler.addBox(shape.box);
        letters = shape.text.size() * pointsOfLetter;
    }
    return ruler.cost() + letters;
}

PictureEnd endOf(const std::vector<const Item*>& items, const PictureOrder& order) {
    double cost = 0;
    for (const Item* item : items) {
        for (std::size_t i = 0; i < item->shapes.size(); ++i) {
            cost += costOf(item->shapes[i], order);
            if (cost > order.budget)
                return {item, i};
        }
    }
    return {};
}

} // namespace standin
