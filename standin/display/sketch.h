// Draws items roughly, straight into the pixels of a picture and within a budget of them: what is shown while
// the view moves.
#pragma once

#include "standin/display/picture_order.h"

#include <QImage>

namespace standin {

class Sketch {
public:
    // The picture has 32 bits for a pixel and begins at this place of the order's view.
    Sketch(QImage& picture, const PictureOrder& order, const QPoint& corner);

    // Draws the items that are to be seen in the picture.
    void draw();
    // What was painted so far, in pixels and points.
    std::size_t spent() const { return budgetAtFirst - budget; }
    // When this much is spent, each further item becomes a pixel.
    static constexpr std::size_t kBudget = 4000000;

private:
    void draw(const Item& item);
    void drawShapes(const Item& item, double size);
    void draw(const Shape& shape, double size);
    void drawRun(const std::vector<QPointF>& points, std::size_t from, std::size_t to, double size);
    void drawArc(const Shape& arc, double size);
    void drawText(const Shape& text);
    void drawMark(const QPointF& at, double reach);
    void line(const QPointF& a, const QPointF& b);
    void put(int x, int y);
    void spend(std::size_t steps) { budget -= std::min(budget, steps); }
    QPointF toPixel(const QPointF& point) const { return (view.toPixel(point) - origin) * ratio; }
    QRgb colorOf(Ink ink) const;

    const PictureOrder& wanted;
    const View& view;
    const QPointF origin;
    const double ratio, scale;
    const QRgb foreground;
    const bool isWide;
    QRgb* const pixels;
    const int stride;
    const QRect clip; // device pixels
    Box seen;         // of the drawing
    QRgb color = 0;
    const std::size_t budgetAtFirst = kBudget;
    std::size_t budget = kBudget;
};

} // namespace standin
