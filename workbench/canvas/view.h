// What part of a drawing a window shows, and how large.
#pragma once

#include "workbench/canvas/box.h"

#include <QSize>

namespace workbench {

class View {
public:
    QPointF toPixel(const QPointF& point) const {
        return {window.width() / 2.0 + (point.x() - middle.x()) * pixelsPerUnit,
                window.height() / 2.0 - (point.y() - middle.y()) * pixelsPerUnit};
    }
    QPointF toDrawing(const QPointF& pixel) const {
        return {middle.x() + (pixel.x() - window.width() / 2.0) / pixelsPerUnit,
                middle.y() - (pixel.y() - window.height() / 2.0) / pixelsPerUnit};
    }
    double scale() const { return pixelsPerUnit; }
    QSize size() const { return window; }
    Box visible() const;

    void resize(const QSize& pixels) { window = pixels; }
    void panBy(const QPointF& pixels);
    // The point under `pixel` stays where it is.
    void zoomAt(const QPointF& pixel, double factor);
    void setScale(double scale); // about the middle
    // Shows the box with a margin; a box without size is only put into the middle.
    void fit(const Box& box);

private:
    QPointF middle;
    double pixelsPerUnit = 1;
    QSize window{1, 1};
};

} // namespace workbench
