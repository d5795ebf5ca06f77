#include "standin/display/scene_image.h"

#include "standin/display/item_painter.h"

#include <QRegion>
#include <cmath>

namespace standin {

namespace {

const std::size_t mostSmoothItems = 20000; // more of them are painted without smooth edges

Box drawingBox(const View& view, const QRect& part) {
    return boxOf(view.toDrawing(part.topLeft()),
                 view.toDrawing(QPointF(part.right() + 1, part.bottom() + 1)));
}

} // namespace

QColor contrastOf(const QColor& background) {
    return qGray(background.rgb()) > 127 ? QColor(Qt::black) : QColor(Qt::white);
}

void SceneImage::setBackground(const QColor& color) {
    if (color != background)
        forget();
    background = color;
}

const QPixmap& SceneImage::of(const DisplayList& list, const View& view, double ratio) {
    const QSize pixels = view.size() * ratio;
    if (image.size() != pixels || image.devicePixelRatio() != ratio) {
        image = QPixmap(pixels);
        image.setDevicePixelRatio(ratio);
        forget();
    }
    if (paintedRevision != list.revision())
        forget();
    paintedRevision = list.revision();
    if (isCurrent && movedTo(list, view))
        return image;
    isCurrent = true;
    painted = view;
    paint(list, QRect(QPoint(), view.size()));
    return image;
}

// False when the view differs by more than a move of whole pixels.
bool SceneImage::movedTo(const DisplayList& list, const View& view) {
    const QPointF moved = view.toPixel(painted.toDrawing({0, 0}));
    const QPoint steps = moved.toPoint();
    const double off = std::max(std::fabs(moved.x() - steps.x()), std::fabs(moved.y() - steps.y()));
    if (view.scale() != painted.scale() || off > 1e-3)
        return false;
    if (steps.isNull())
        return true;
    QRegion exposed;
    const double ratio = image.devicePixelRatio();
    if (ratio != std::floor(ratio))
        return false;
    image.scroll(steps.x() * int(ratio), steps.y() * int(ratio), image.rect());
    const QRect whole(QPoint(), view.size());
    painted = view;
    for (const QRect& part : QRegion(whole).subtracted(whole.translated(steps)))
        paint(list, part);
    return true;
}

void SceneImage::paint(const DisplayList& list, const QRect& part) {
    QPainter painter(&image);
    painter.setClipRect(part);
    painter.fillRect(part, background);
    const QRect around = part.adjusted(-5, -5, 5, 5); // half the thickest line, and a little more
    const std::vector<const Item*> items =
        list.within(drawingBox(painted, around).grown(kMissingMark / painted.scale()));
    painter.setRenderHint(QPainter::Antialiasing, items.size() <= mostSmoothItems);
    ItemPainter itemPainter(painter, painted, contrastOf(background));
    for (const Item* item : items)
        itemPainter.draw(*item);
}

} // namespace standin
