#include "standin/display/view.h"

namespace standin {

namespace {

const double margin = 0.94; // of the window that a fitted box fills
const double smallestScale = 1e-9, largestScale = 1e9;

} // namespace

Box View::visible() const {
    return boxOf(toDrawing({0, 0}), toDrawing({1.0 * window.width(), 1.0 * window.height()}));
}

View View::of(const Box& box, double scale, int border) {
    View view;
    view.middle = box.center();
    view.pixelsPerUnit = scale;
    view.window =
        QSize(int(box.width() * scale) + 1 + 2 * border, int(box.height() * scale) + 1 + 2 * border);
    return view;
}

QTransform View::drawingToPixels() const {
    const QPointF origin = toPixel({0, 0});
    return {pixelsPerUnit, 0, 0, -pixelsPerUnit, origin.x(), origin.y()};
}

void View::panBy(const QPointF& pixels) {
    middle -= QPointF(pixels.x() / pixelsPerUnit, -pixels.y() / pixelsPerUnit);
}

void View::zoomAt(const QPointF& pixel, double factor) {
    const QPointF fixed = toDrawing(pixel);
    setScale(pixelsPerUnit * factor);
    middle += fixed - toDrawing(pixel);
}

void View::setScale(double scale) { pixelsPerUnit = std::clamp(scale, smallestScale, largestScale); }

void View::fit(const Box& box) {
    if (box.isEmpty())
        return;
    middle = box.center();
    double scale = largestScale;
    if (box.width() > 0)
        scale = std::min(scale, margin * window.width() / box.width());
    if (box.height() > 0)
        scale = std::min(scale, margin * window.height() / box.height());
    if (scale < largestScale)
        setScale(scale);
}

} // namespace standin
