// Smooth curves through points: a cubic for each span, whose slopes make the bend continuous at every point.
#include "sdk/db/spline_curve.h"

#include <cmath>

namespace {

// The slopes at the points, by cutting down the equations of three neighbours each (they are never singular).
class Slopes {
public:
    Slopes(const std::vector<OdGePoint3d>& list, const OdGeVector3d& start, const OdGeVector3d& end)
        : points(list), last(list.size() - 1) {
        for (std::size_t i = 0; i < last; ++i)
            lengths.push_back((list[i + 1] - list[i]).length());
        solve(start, end);
    }
    const OdGeVector3d& operator[](std::size_t point) const { return slopes[point]; }
    double length(std::size_t span) const { return lengths[span]; }

private:
    OdGeVector3d chord(std::size_t span) const {
        return (points[span + 1] - points[span]) * (1 / lengths[span]);
    }
    // lower * slope before + diagonal * own slope + upper * slope behind = right
    struct Equation {
        double lower, diagonal, upper;
        OdGeVector3d right;
    };
    Equation equation(std::size_t i, const OdGeVector3d& start, const OdGeVector3d& end) const {
        if (i == 0 || i == last) {
            const OdGeVector3d& given = i == 0 ? start : end;
            if (!given.isZeroLength())
                return {0, 1, 0, given.normal()};
            const OdGeVector3d free = chord(i == 0 ? 0 : last - 1) * 3;
            return i == 0 ? Equation{0, 2, 1, free} : Equation{1, 2, 0, free};
        }
        const double before = lengths[i - 1], behind = lengths[i];
        return {behind, 2 * (before + behind), before, (chord(i - 1) * behind + chord(i) * before) * 3};
    }
    void solve(const OdGeVector3d& start, const OdGeVector3d& end) {
        std::vector<Equation> rows;
        for (std::size_t i = 0; i <= last; ++i) {
            Equation row = equation(i, start, end);
            if (i > 0) {
                const double factor = row.lower / rows.back().diagonal;
                row.diagonal -= factor * rows.back().upper;
                row.right = row.right - rows.back().right * factor;
            }
            rows.push_back(row);
        }
        slopes.resize(last + 1);
        for (std::size_t i = last + 1; i-- > 0;) {
            const OdGeVector3d behind = i == last ? OdGeVector3d() : slopes[i + 1] * rows[i].upper;
            slopes[i] = (rows[i].right - behind) * (1 / rows[i].diagonal);
        }
    }

    const std::vector<OdGePoint3d>& points;
    std::size_t last;
    std::vector<double> lengths;
    std::vector<OdGeVector3d> slopes;
};

// Points that follow each other at the same place make no span.
std::vector<OdGePoint3d> withoutRepeats(const std::vector<OdGePoint3d>& points) {
    std::vector<OdGePoint3d> result;
    for (const OdGePoint3d& point : points)
        if (result.empty() || point.distanceTo(result.back()) > 0)
            result.push_back(point);
    return result;
}

} // namespace

std::vector<OdGePoint3d> odDbCurveThrough(const std::vector<OdGePoint3d>& points, int piecesOfSpan,
                                          const OdGeVector3d& startDirection,
                                          const OdGeVector3d& endDirection) {
    const std::vector<OdGePoint3d> nodes = withoutRepeats(points);
    const bool isStraight = nodes.size() == 2 && startDirection.isZeroLength() && endDirection.isZeroLength();
    if (nodes.size() < 2 || isStraight)
        return nodes;
    const Slopes slopes(nodes, startDirection, endDirection);
    std::vector<OdGePoint3d> path{nodes.front()};
    for (std::size_t span = 0; span + 1 < nodes.size(); ++span)
        for (int piece = 1; piece <= piecesOfSpan; ++piece) {
            const double t = 1.0 * piece / piecesOfSpan, s = 1 - t, length = slopes.length(span);
            const OdGeVector3d chord = nodes[span + 1] - nodes[span];
            path.push_back(nodes[span] + chord * (t * t * (3 - 2 * t)) + slopes[span] * (length * t * s * s) -
                           slopes[span + 1] * (length * t * t * s));
        }
    return path;
}
