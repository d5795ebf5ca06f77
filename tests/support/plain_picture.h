// The picture of a drawing by one painter that goes through its shapes one after the other: what every
// quicker way of painting is compared with.
#pragma once

#include "standin/display/item_painter.h"
#include "standin/display/picture_order.h"

#include <QImage>

inline QImage plainPicture(const standin::PictureOrder& order) {
    using namespace standin;
    QImage image(order.view.size() * order.ratio, order.format());
    image.setDevicePixelRatio(order.ratio);
    image.fill(order.ground());
    const std::vector<const Item*> items = order.only ? *order.only : order.list->within(order.box());
    QPainter painter(&image);
    painter.setClipRect(order.window()); // without one, lines take three times as long
    painter.setRenderHint(QPainter::Antialiasing, items.size() <= order.mostSmooth());
    ItemPainter itemPainter(painter, order.view, order.foreground());
    if (order.pen)
        itemPainter.setPen(*order.pen);
    for (const Item* item : items)
        itemPainter.draw(*item);
    return image;
}
