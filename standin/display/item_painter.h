// Paints items with as little work as their size on the screen deserves.
#pragma once

#include "standin/display/picture_budget.h"
#include "standin/display/shape.h"
#include "standin/display/view.h"

#include <QLineF>
#include <QPainter>
#include <QVector>
#include <atomic>

namespace standin {

class ItemPainter {
public:
    ItemPainter(QPainter& painter, const View& view, const QColor& foreground);
    ~ItemPainter(); // paints what is left
    ItemPainter(const ItemPainter&) = delete;
    ItemPainter& operator=(const ItemPainter&) = delete;

    // All shapes in one pen from now on, as for what is selected. With Qt::DashLine the dashes run on along
    // the pieces of a curve.
    void setPen(const QPen& pen);
    void draw(const Item& item);
    // Leaves out what lies outside of this part of the drawing.
    void paintOnly(const Box& part) { inSight = part; }
    void endAt(const PictureEnd& wanted) { end = wanted; }
    // Draws no more as soon as it is true; another thread may change it.
    void stopAt(const std::atomic<bool>* wanted) { isStopped = wanted; }

private:
    bool isOut(const Shape& shape, const Item& item) const;
    void draw(const Shape& shape);
    void drawPart(const Shape& shape); // in the pen that is in use
    void drawDot(const Shape& dot);
    void drawText(const Shape& text);
    void drawMissing(const Shape& mark);
    void drawRun(const std::vector<QPointF>& points, const Dashes& dashes);
    void addLine(const QPointF& a, const QPointF& b, Dasher* dasher);
    void drawFill(const Shape& fill);
    void drawOutline(const Shape& fill);
    void paintFill(const Shape& fill);
    QColor colorOf(Ink ink) const;
    void use(const Shape& shape);
    QPen currentPen() const;
    bool isApart() const;
    bool isSideBySide() const;
    void flushSideBySide();
    bool isSmooth() const;
    void addDot(const QPointF& at);
    void flush();

    QPainter& target;
    const View& shownView;
    const QColor standOut;
    const QRectF clip;
    Box inSight; // in the drawing
    PictureEnd end;
    QPen ownPen;
    bool hasOwnPen = false, isDashed = false;
    Ink current = kForeground;
    const std::atomic<bool>* isStopped = nullptr;
    int weight = 0;
    int opacity = 255;
    // Waiting to be painted in the current ink. Smooth edges are painted in their order.
    QVector<QLineF> lines;
    QVector<QPointF> dots;
};

} // namespace standin
