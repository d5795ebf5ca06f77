#include "standin/display/marks_image.h"

#include "standin/display/item_painter.h"

namespace standin {

namespace {

const std::size_t mostSmoothMarks = 2000; // more of them are painted without smooth edges

} // namespace

const QPixmap& MarksImage::of(const DisplayList& list, const OdDbObjectIdArray& selected, const View& view,
                              double ratio) {
    if (isCurrent && painted == view)
        return image;
    isCurrent = true;
    painted = view;
    std::unordered_set<OdDbObjectId> marked = list.highlighted();
    marked.insert(selected.begin(), selected.end());
    image = marked.empty() ? QPixmap() : QPixmap(view.size() * ratio);
    if (marked.empty())
        return image;
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    paint(list, marked);
    return image;
}

void MarksImage::paint(const DisplayList& list, const std::unordered_set<OdDbObjectId>& marked) {
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, marked.size() <= mostSmoothMarks);
    ItemPainter itemPainter(painter, painted, pen.color());
    itemPainter.setPen(pen);
    const Box visible = painted.visible();
    for (const OdDbObjectId& id : marked) {
        const Item* item = list.find(id);
        if (item && item->box.intersects(visible))
            itemPainter.draw(*item);
    }
}

} // namespace standin
