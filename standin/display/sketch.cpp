#include "standin/display/sketch.h"

#include "standin/display/clipping.h"

#include <cmath>

namespace standin {

namespace {

const double smallestItem = 2.5; // pixels; below it an item is one pixel
const double pixelsToAPoint = 3; // of a path that has more points than can be told apart
const double letterWidth = 0.9;  // of a usual letter, in letter heights
const double tallText = 4;       // pixels; above it a text is a box
const double fewestPixels = 4;   // to a shape: an item has no more of them than find room

QRgb opaque(const QColor& color) { return color.rgb() | 0xff000000u; }

} // namespace

Sketch::Sketch(QImage& picture, const PictureOrder& order, const QPoint& corner)
    : wanted(order), view(order.view), origin(corner), ratio(order.ratio),
      scale(order.view.scale() * order.ratio), foreground(opaque(order.foreground())),
      isWide(order.pen.has_value()), pixels(reinterpret_cast<QRgb*>(picture.bits())),
      stride(picture.bytesPerLine() / 4), clip(picture.rect()) {}

QRgb Sketch::colorOf(Ink ink) const {
    return ink == kForeground || wanted.pen ? foreground : opaque(QColor(ink));
}

void Sketch::draw() {
    const QPointF end = origin + QPointF(clip.width(), clip.height()) / ratio;
    seen = boxOf(view.toDrawing(origin), view.toDrawing(end));
    if (!wanted.only)
        return wanted.list->visit(seen, [this](const Item& item) {
            draw(item);
            return true;
        });
    for (const Item* item : *wanted.only)
        if (item->box.intersects(seen))
            draw(*item);
}

void Sketch::draw(const Item& item) {
    const double size = std::max(item.box.width(), item.box.height()) * scale;
    color = colorOf(item.shapes.front().ink);
    if (size >= smallestItem && budget > 0)
        return drawShapes(item, size);
    if ((item.reach.pixels > 0 || item.reach.ofWindow > 0) && budget > 0)
        return drawShapes(item, size);
    const QPointF at = toPixel(item.box.center());
    if (clip.contains(int(at.x()), int(at.y())))
        put(int(at.x()), int(at.y()));
}

// Of so many shapes that their pixels lie one upon the other, some are drawn.
void Sketch::drawShapes(const Item& item, double size) {
    const double room = std::max(item.box.width() * scale, 1.0) * std::max(item.box.height() * scale, 1.0);
    const auto most = static_cast<std::size_t>(std::clamp(room / fewestPixels, 8.0, 1e6));
    const std::size_t step = 1 + item.shapes.size() / most;
    const bool isMarked = item.reach.pixels > 0 || item.reach.ofWindow > 0;
    for (std::size_t i = 0; i < item.shapes.size() && budget > 0; i += step) {
        if (!isMarked && !item.shapes[i].box.intersects(seen))
            continue;
        color = colorOf(item.shapes[i].ink);
        draw(item.shapes[i], size);
    }
}

void Sketch::draw(const Shape& shape, double size) {
    switch (shape.kind) {
    case Shape::Path:
        return drawRun(shape.points, 0, shape.points.size(), size);
    case Shape::Arc:
        return drawArc(shape, size);
    case Shape::Text:
        return drawText(shape);
    case Shape::Dot:
        return drawMark(toPixel(shape.points[0]),
                        ratio *
                            (shape.points.size() > 1 ? shape.points[1].y() / 100 * view.size().height() : 1));
    case Shape::Missing:
        return drawMark(toPixel(shape.points[0]), kMissingMark * ratio);
    case Shape::Fill: {
        std::size_t from = 0;
        if (shape.area)
            for (const std::size_t start : shape.area->starts) {
                drawRun(shape.points, from, start, size);
                from = start;
            }
        drawRun(shape.points, from, shape.points.size(), size);
        return line(toPixel(shape.points.back()), toPixel(shape.points[from]));
    }
    }
}

void Sketch::drawRun(const std::vector<QPointF>& points, std::size_t from, std::size_t to, double size) {
    if (from >= to)
        return;
    const auto most = static_cast<std::size_t>(std::clamp(size / pixelsToAPoint, 2.0, 1e6)) * 4;
    const std::size_t step = 1 + (to - from) / most;
    QPointF last = toPixel(points[from]);
    for (std::size_t i = from + step; i < to && budget > 0; i += step) {
        const QPointF next = toPixel(points[i]);
        line(last, next);
        last = next;
    }
    if (step > 1)
        line(last, toPixel(points[to - 1]));
}

void Sketch::drawArc(const Shape& arc, double size) {
    const double start = arc.points[3].x(), sweep = arc.points[3].y();
    const int count = static_cast<int>(std::clamp(size * sweep / 40, 3.0, 64.0));
    const double turn = sweep / count, cosine = std::cos(turn), sine = std::sin(turn);
    double x = std::cos(start), y = std::sin(start);
    const auto pointAt = [&] { return toPixel(arc.points[0] + arc.points[1] * x + arc.points[2] * y); };
    QPointF last = pointAt();
    for (int i = 0; i < count; ++i) {
        const double turned = x * cosine - y * sine;
        y = x * sine + y * cosine;
        x = turned;
        const QPointF next = pointAt();
        line(last, next);
        last = next;
    }
}

// Without its letters, which may never have been made as yet.
void Sketch::drawText(const Shape& text) {
    const QPointF along = text.points[1] * (letterWidth * text.text.size()), up = text.points[2];
    const QPointF corner = text.points[0] - along * text.points[3].x() - up * text.points[3].y();
    const QPointF a = toPixel(corner), b = toPixel(corner + along);
    line(a, b);
    if (std::hypot(up.x(), up.y()) * scale < tallText)
        return;
    const QPointF c = toPixel(corner + along + up), d = toPixel(corner + up);
    line(b, c);
    line(c, d);
    line(d, a);
}

void Sketch::drawMark(const QPointF& at, double reach) {
    line(at - QPointF(reach, 0), at + QPointF(reach, 0));
    line(at - QPointF(0, reach), at + QPointF(0, reach));
}

void Sketch::line(const QPointF& a, const QPointF& b) {
    QPointF from = a, to = b;
    const QRectF area(clip.left(), clip.top(), clip.width() - 0.5, clip.height() - 0.5);
    spend(1);
    if (clip.isEmpty() || !clipLine(area, from, to))
        return;
    const QPointF along = to - from;
    const int steps = static_cast<int>(std::max(std::fabs(along.x()), std::fabs(along.y())));
    spend(static_cast<std::size_t>(steps));
    const double each = steps > 0 ? 1.0 / steps : 0;
    // In 65536ths of a pixel.
    auto x = static_cast<std::int64_t>(from.x() * 65536), y = static_cast<std::int64_t>(from.y() * 65536);
    const auto dx = static_cast<std::int64_t>(along.x() * each * 65536);
    const auto dy = static_cast<std::int64_t>(along.y() * each * 65536);
    for (int i = 0; i <= steps; ++i, x += dx, y += dy)
        put(static_cast<int>(x >> 16), static_cast<int>(y >> 16));
}

void Sketch::put(int x, int y) {
    QRgb* const at = pixels + static_cast<std::ptrdiff_t>(y) * stride + x;
    *at = color;
    if (!isWide)
        return;
    if (x < clip.right())
        at[1] = color;
    if (y < clip.bottom())
        at[stride] = color;
}

} // namespace standin
