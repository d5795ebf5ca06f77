#include "standin/display/item_painter.h"

#include "standin/display/clipping.h"
#include "standin/display/letters.h"
#include "standin/display/point_mark.h"

#include <QPainterPath>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <optional>

namespace standin {

namespace {

const double smallestItem = 1.2; // pixels; below it an item is one dot
const double smallestText = 3;   // pixels; below it a text is a line
const int mostWaiting = 4096;
const double kNameBorder = 5;    // pixels around the name of a missing reference
const double finestHatching = 3; // pixels between the lines of a pattern; below it they are a shade
const int shadeAlpha = 70;
const std::vector<double> ownDashes{8, -7}; // pixels, before the round ends of each dash
const double mostCrossings = 3e6; // of borders with rows of pixels; filling takes longer with each of them

bool isFlat(const QLineF& line) { return std::fabs(line.dx()) > std::fabs(line.dy()); }

// How far the polygon goes up and down in all.
double heightsOf(const QPolygonF& polygon) {
    double sum = 0;
    for (int i = 1; i < polygon.size(); ++i)
        sum += std::fabs(polygon[i].y() - polygon[i - 1].y());
    return sum;
}

} // namespace

ItemPainter::ItemPainter(QPainter& painter, const View& view, const QColor& foreground)
    : target(painter), shownView(view), standOut(foreground),
      clip(-16, -16, view.size().width() + 32, view.size().height() + 32),
      inSight(boxOf(view.toDrawing(clip.topLeft()), view.toDrawing(clip.bottomRight()))) {
    lines.reserve(mostWaiting);
}

ItemPainter::~ItemPainter() { flush(); }

void ItemPainter::setPen(const QPen& pen) {
    flush();
    ownPen = pen;
    ownPen.setStyle(Qt::SolidLine);
    isDashed = pen.style() == Qt::DashLine;
    hasOwnPen = true;
}

QColor ItemPainter::colorOf(Ink ink) const {
    if (hasOwnPen)
        return ownPen.color();
    QColor color = ink == kForeground ? standOut : QColor(ink);
    color.setAlpha(opacity);
    return color;
}

QPen ItemPainter::currentPen() const {
    if (hasOwnPen)
        return ownPen;
    const double width = weightInPixels(weight);
    return QPen(colorOf(current), width > 1 ? width : 0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// Whether what overlaps looks different when it is painted together. Each shape is painted by itself then, so
// that it looks the same whatever is painted before it.
bool ItemPainter::isApart() const {
    if (isSideBySide())
        return false;
    return hasOwnPen ? ownPen.widthF() > 1 : opacity < 255 || weightInPixels(weight) > 1;
}

void ItemPainter::use(const Shape& shape) {
    if (shape.ink != current || shape.weight != weight || shape.opacity != opacity ||
        lines.size() >= mostWaiting || isApart())
        flush();
    current = shape.ink;
    weight = shape.weight;
    opacity = shape.opacity;
}

// Thick lines without smooth edges are painted as thin ones beside each other, which takes a tenth of the
// time.
bool ItemPainter::isSideBySide() const { return hasOwnPen && ownPen.widthF() > 1 && !isSmooth(); }

void ItemPainter::flushSideBySide() {
    const double ratio = target.device()->devicePixelRatioF();
    const int across = qRound(ownPen.widthF() * ratio);
    const auto flatEnd = std::partition(lines.begin(), lines.end(), isFlat);
    const int flat = static_cast<int>(flatEnd - lines.begin());
    target.setPen(QPen(ownPen.color(), 0));
    for (int i = 0; i < across; ++i) {
        const double aside = (i - across / 2) / ratio;
        target.translate(0, aside);
        target.drawLines(lines.constData(), flat);
        target.translate(aside, -aside);
        target.drawLines(lines.constData() + flat, lines.size() - flat);
        target.translate(-aside, 0);
    }
    lines.clear();
}

void ItemPainter::flush() {
    if (isSideBySide())
        flushSideBySide();
    target.setPen(currentPen());
    target.setBrush(Qt::NoBrush);
    if (!lines.isEmpty())
        target.drawLines(lines);
    if (!dots.isEmpty())
        target.drawPoints(dots.constData(), dots.size());
    lines.clear();
    dots.clear();
}

void ItemPainter::draw(const Item& item) {
    const double size = std::max(item.box.width(), item.box.height()) * shownView.scale();
    const bool isPlain = item.shapes.front().kind != Shape::Missing && item.shapes.front().kind != Shape::Dot;
    if ((size < smallestItem && isPlain) || end.isBefore(item)) {
        use(item.shapes.front());
        return addDot(shownView.toPixel(item.box.center()));
    }
    if (!dots.isEmpty() && isSmooth())
        flush();
    const std::size_t count = &item == end.item ? end.shapes : item.shapes.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (isStopped && *isStopped)
            return;
        if (!isOut(item.shapes[i], item))
            draw(item.shapes[i]);
    }
}

// Marks reach out of their boxes by pixels, letters by a part of their size.
bool ItemPainter::isOut(const Shape& shape, const Item& item) const {
    return shape.kind != Shape::Dot && shape.kind != Shape::Missing && !shape.box.isEmpty() &&
           !shape.box.intersects(inSight.grown(item.reach.units));
}

bool ItemPainter::isSmooth() const { return target.testRenderHint(QPainter::Antialiasing); }

void ItemPainter::addDot(const QPointF& at) {
    if (!lines.isEmpty() && isSmooth())
        flush();
    dots.append(at);
}

void ItemPainter::draw(const Shape& shape) {
    use(shape);
    drawPart(shape);
}

void ItemPainter::drawPart(const Shape& shape) {
    switch (shape.kind) {
    case Shape::Path:
        return drawRun(shape.points, shape.dashes);
    case Shape::Arc:
        return drawRun(arcPoints(shape, shownView.scale()), shape.dashes);
    case Shape::Fill:
        return drawFill(shape);
    case Shape::Text:
        return drawText(shape);
    case Shape::Dot:
        return drawDot(shape);
    case Shape::Missing:
        return drawMissing(shape);
    }
}

void ItemPainter::drawDot(const Shape& dot) {
    if (dot.points.size() > 1) {
        const double size = shownView.size().height() * dot.points[1].y() / 100 / shownView.scale();
        for (const Shape& part : pointMark(static_cast<int>(dot.points[1].x()), dot.points[0], size))
            drawPart(part);
        return;
    }
    const QPointF at = shownView.toPixel(dot.points[0]);
    addLine(at - QPointF(1, 0), at + QPointF(1, 0), nullptr);
    addLine(at - QPointF(0, 1), at + QPointF(0, 1), nullptr);
}

void ItemPainter::drawRun(const std::vector<QPointF>& points, const Dashes& dashes) {
    std::optional<Dasher> dasher;
    if (isDashed)
        dasher.emplace(ownDashes, 1);
    else if (dashes && !hasOwnPen)
        dasher.emplace(*dashes, shownView.scale());
    QPointF last = shownView.toPixel(points.front());
    for (std::size_t i = 1; i < points.size(); ++i) {
        const QPointF next = shownView.toPixel(points[i]);
        addLine(last, next, dasher && !dasher->isPlain() ? &*dasher : nullptr);
        last = next;
    }
}

void ItemPainter::addLine(const QPointF& a, const QPointF& b, Dasher* dasher) {
    QPointF from = a, to = b;
    const bool seen = clipLine(clip, from, to);
    if (dasher)
        dasher->add(seen ? QLineF(from, to) : QLineF(), QLineF(a, from).length(), QLineF(a, b).length(),
                    lines);
    else if (seen)
        lines.append(QLineF(from, to));
}

void ItemPainter::drawOutline(const Shape& fill) {
    for (const std::vector<QPointF>& border : bordersOf(fill))
        drawRun(border, nullptr);
}

// What is marked has an outline instead, so that what lies upon it is still seen.
void ItemPainter::drawFill(const Shape& fill) {
    if (hasOwnPen) {
        drawOutline(fill);
    } else if (fill.area && !fill.area->hatching.empty() &&
               fill.area->finest * shownView.scale() >= finestHatching) {
        for (const QLineF& line : fill.area->hatching)
            addLine(shownView.toPixel(line.p1()), shownView.toPixel(line.p2()), nullptr);
    } else {
        paintFill(fill);
    }
}

// A solid area has its outline, too, so that a narrow one is still seen.
void ItemPainter::paintFill(const Shape& fill) {
    flush();
    QPainterPath path;
    path.setFillRule(fill.area ? fill.area->rule : Qt::OddEvenFill);
    double crossings = 0;
    for (const std::vector<QPointF>& border : bordersOf(fill)) {
        QPolygonF corners;
        for (const QPointF& point : border)
            corners.append(shownView.toPixel(point));
        if (!clip.contains(corners.boundingRect()))
            corners = clippedPolygon(clip, corners);
        crossings += heightsOf(corners);
        path.addPolygon(corners);
    }
    if (crossings > mostCrossings)
        return drawOutline(fill);
    const bool isSolid = !fill.area || fill.area->isSolid;
    QColor color = colorOf(fill.ink);
    if (!isSolid)
        color.setAlpha(shadeAlpha * opacity / 255);
    const bool smooth = isSmooth();
    target.setRenderHint(QPainter::Antialiasing, false); // no seams between areas that touch
    target.setPen(isSolid && opacity == 255 ? QPen(color, 0) : QPen(Qt::NoPen));
    target.setBrush(color);
    target.drawPath(path);
    target.setRenderHint(QPainter::Antialiasing, smooth);
}

void ItemPainter::drawText(const Shape& text) {
    const double height = std::hypot(text.points[2].x(), text.points[2].y()) * shownView.scale();
    const std::vector<QPointF> corners = textCorners(text);
    const double far = 1e5; // letters larger than this have no edge in sight
    if (height < smallestText || height > far || hasOwnPen)
        drawRun({corners[0], corners[1]}, nullptr);
    if (height < smallestText || height > far)
        return;
    flush();
    const QPointF origin = shownView.toPixel(corners[0]);
    const QPointF along = text.points[1] * shownView.scale(), up = text.points[2] * shownView.scale();
    target.save();
    target.setTransform(QTransform(along.x(), -along.y(), up.x(), -up.y(), origin.x(), origin.y()), true);
    target.fillPath(lettersOf(text.text, text.isBold).outline, colorOf(text.ink));
    target.restore();
}

// The name in a box.
void ItemPainter::drawMissing(const Shape& mark) {
    const QPointF at = shownView.toPixel(mark.points[0]);
    if (!clip.contains(at))
        return;
    flush();
    QRectF box = QFontMetricsF(target.font()).boundingRect(mark.text);
    box.setSize(box.size().expandedTo({2 * kMissingMark, 2 * kMissingMark - kNameBorder}) +
                QSizeF(2 * kNameBorder, kNameBorder));
    box.moveCenter(at);
    target.drawRect(box);
    target.drawText(box, Qt::AlignCenter, mark.text);
}

} // namespace standin
