// The outlines of segments whose width changes: each goes along its left side and back along its right one.
#include "standin/display/wide_line.h"

#include <algorithm>
#include <cmath>

namespace standin {

namespace {

const double longestMitre = 5; // half widths

double lengthOf(const QPointF& vector) { return std::hypot(vector.x(), vector.y()); }

QPointF leftOf(const QPointF& from, const QPointF& to) {
    const QPointF along = to - from;
    const double length = lengthOf(along);
    return length > 0 ? QPointF(-along.y(), along.x()) / length : QPointF();
}

// To the left of a corner, as long as it takes to be 1 away from both sides.
QPointF mitre(const QPointF& before, const QPointF& behind) {
    const QPointF middle = before + behind;
    const double square = QPointF::dotProduct(middle, middle);
    if (square * longestMitre * longestMitre < 4)
        return behind;
    return middle * (2 / square);
}

class Border {
public:
    explicit Border(const TaperedSegment& segment) : path(segment.path) {
        double whole = 0;
        for (std::size_t i = 1; i < path.size(); ++i)
            whole += lengthOf(path[i] - path[i - 1]);
        double walked = 0;
        for (std::size_t i = 0; i < path.size(); ++i) {
            walked += i > 0 ? lengthOf(path[i] - path[i - 1]) : 0;
            const double part = whole > 0 ? walked / whole : 0;
            halves.push_back((segment.startWidth + (segment.endWidth - segment.startWidth) * part) / 2);
            sides.push_back(sideAt(i));
        }
    }
    QPointF firstSide() const { return leftOf(path[0], path[1]); }
    QPointF lastSide() const { return leftOf(path[path.size() - 2], path.back()); }
    void setFirst(const QPointF& side) { sides.front() = side; }
    void setLast(const QPointF& side) { sides.back() = side; }
    std::vector<QPointF> points() const {
        std::vector<QPointF> result;
        for (std::size_t i = 0; i < path.size(); ++i)
            result.push_back(path[i] + sides[i] * halves[i]);
        for (std::size_t i = path.size(); i-- > 0;)
            result.push_back(path[i] - sides[i] * halves[i]);
        return result;
    }

private:
    QPointF sideAt(std::size_t i) const {
        if (i == 0)
            return firstSide();
        if (i + 1 == path.size())
            return lastSide();
        return mitre(leftOf(path[i - 1], path[i]), leftOf(path[i], path[i + 1]));
    }
    const std::vector<QPointF>& path;
    std::vector<double> halves;
    std::vector<QPointF> sides;
};

void join(Border& before, Border& behind) {
    const QPointF first = before.lastSide(), second = behind.firstSide();
    const QPointF both = mitre(first, second);
    if (both == second && first != second)
        return; // too sharp
    before.setLast(both);
    behind.setFirst(both);
}

} // namespace

std::vector<std::vector<QPointF>> taperedBorders(const std::vector<TaperedSegment>& segments, bool closed) {
    std::vector<Border> borders;
    for (const TaperedSegment& segment : segments)
        borders.emplace_back(segment);
    for (std::size_t i = 0; i + (closed ? 0 : 1) < borders.size(); ++i) {
        const std::size_t next = (i + 1) % borders.size();
        if (next != i && segments[i].endWidth == segments[next].startWidth)
            join(borders[i], borders[next]);
    }
    std::vector<std::vector<QPointF>> result;
    for (const Border& border : borders)
        result.push_back(border.points());
    return result;
}

} // namespace standin
