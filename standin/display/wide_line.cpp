#include "standin/display/wide_line.h"

#include <QPainterPath>
#include <QPainterPathStroker>
#include <cmath>

namespace standin {

namespace {

const double longestMitre = 5;    // widths
const double farthest = 1e9;      // widths
const double smallestStep = 1e-6; // widths; shorter ones have no direction to speak of

} // namespace

// The stroker works in widths from the first point, where its own tolerances are small enough.
std::vector<std::vector<QPointF>> wideBorders(const std::vector<QPointF>& path, bool closed, double width) {
    if (path.empty() || !(width > 0))
        return {};
    QPainterPath line{QPointF()};
    QPointF last;
    for (const QPointF& point : path) {
        const QPointF next = (point - path.front()) / width;
        if (!(std::fabs(next.x()) < farthest) || !(std::fabs(next.y()) < farthest))
            return {};
        if (std::hypot(next.x() - last.x(), next.y() - last.y()) < smallestStep)
            continue;
        line.lineTo(next);
        last = next;
    }
    if (line.elementCount() < 2)
        return {};
    if (closed)
        line.closeSubpath();
    QPainterPathStroker stroker;
    stroker.setWidth(1);
    stroker.setCapStyle(Qt::FlatCap);
    stroker.setJoinStyle(Qt::MiterJoin);
    stroker.setMiterLimit(longestMitre);
    std::vector<std::vector<QPointF>> borders;
    for (const QPolygonF& polygon : stroker.createStroke(line).toSubpathPolygons()) {
        std::vector<QPointF> border;
        for (const QPointF& point : polygon)
            border.push_back(path.front() + point * width);
        borders.push_back(std::move(border));
    }
    return borders;
}

} // namespace standin
