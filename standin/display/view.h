// What part of a drawing a window shows, and how large.
#pragma once

#include "standin/display/box.h"

#include <QSize>
#include <QTransform>

namespace standin {

class View {
public:
    View() = default;
    // Just the box, with a border of some pixels.
    static View of(const Box& box, double scale, int border);
    QTransform drawingToPixels() const;
    QTransform pixelsToDrawing() const { return drawingToPixels().inverted(); }
    QPointF toPixel(const QPointF& point) const {
        return {window.width() / 2.0 + (point.x() - middle.x()) * pixelsPerUnit,
                window.height() / 2.0 - (point.y() - middle.y()) * pixelsPerUnit};
    }
    QPointF toDrawing(const QPointF& pixel) const {
        return {middle.x() + (pixel.x() - window.width() / 2.0) / pixelsPerUnit,
                middle.y() - (pixel.y() - window.height() / 2.0) / pixelsPerUnit};
    }
    friend bool operator==(const View& a, const View& b) {
        return a.middle.x() == b.middle.x() && a.middle.y() == b.middle.y() &&
               a.pixelsPerUnit == b.pixelsPerUnit && a.window == b.window;
    }
    double scale() const { return pixelsPerUnit; }
    QSize size() const { return window; }
    Box visible() const;

    void resize(const QSize& pixels) { window = pixels; }
    void panBy(const QPointF& pixels);
    // The point under `pixel` stays where it is.
    void zoomAt(const QPointF& pixel, double factor);
    void setScale(double scale); // about the middle
    void lookAt(const QPointF& point) { middle = point; }
    // Shows the box with a margin; a box without size is only put into the middle.
    void fit(const Box& box);

private:
    QPointF middle;
    double pixelsPerUnit = 1;
    QSize window{1, 1};
};

} // namespace standin
