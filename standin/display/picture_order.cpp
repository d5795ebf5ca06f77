#include "standin/display/picture_order.h"

namespace standin {

namespace {

const std::size_t effortOfArea = 20; // in lines
const double lineReach = 5;          // pixels: half the thickest line, and a little more

} // namespace

QColor contrastOf(const QColor& background) {
    return qGray(background.rgb()) > 127 ? QColor(Qt::black) : QColor(Qt::white);
}

Box PictureOrder::boxOfRows(double top, double bottom, double more) const {
    return boxOf(view.toDrawing(QPointF(-more, top - more)),
                 view.toDrawing(QPointF(view.size().width() + more, bottom + more)));
}

Box PictureOrder::box() const {
    return boxOfRows(0, view.size().height(), lineReach).grown(kMissingMark / view.scale());
}

void visitItems(const PictureOrder& order, const std::function<bool(const Item&)>& visitor) {
    const Box box = order.box();
    if (!order.only)
        return order.list->visit(box, visitor);
    for (const Item* item : *order.only)
        if (item->box.intersects(box) && !visitor(*item))
            return;
}

std::vector<const Item*> itemsOf(const PictureOrder& order, std::size_t most) {
    std::vector<const Item*> items;
    visitItems(order, [&](const Item& item) {
        items.push_back(&item);
        return items.size() < most;
    });
    return items;
}

std::size_t effortOf(const Item& item) {
    std::size_t effort = 0;
    for (const Shape& shape : item.shapes)
        effort += 1 + shape.points.size() + static_cast<std::size_t>(shape.text.size()) +
                  (shape.kind == Shape::Fill ? effortOfArea : 0) +
                  (shape.area ? shape.area->hatching.size() : 0);
    return effort;
}

std::size_t effortOf(const PictureOrder& order, std::size_t most) {
    std::size_t effort = 0;
    visitItems(order, [&](const Item& item) {
        effort += effortOf(item);
        return effort < most;
    });
    return effort;
}

} // namespace standin
