// Walks the nested lists of a hatch: loops, and in them polylines or edges of four kinds.
#include "sdk/db/hatch_loops.h"

#include "sdk/db/spline_curve.h"
#include "sdk/ge/bulge_arc.h"

#include <algorithm>
#include <cmath>

namespace {

using Loop = OdDbHatch::Loop;

constexpr int kLoopFlags = 92;
constexpr int kPolylineLoop = 2;
constexpr int kStyle = 75; // the first tag behind the loops
constexpr int kEdgeKind = 72;
constexpr double kDegreeOfArc = M_PI / 180;

enum EdgeKind { kLineEdge = 1, kArcEdge, kEllipseEdge, kSplineEdge };

// The ellipse about `center` with the half axes `major` and `minor`, from one angle to the other.
void addArc(Loop& loop, const OdGePoint3d& center, const OdGeVector3d& major, const OdGeVector3d& minor,
            double from, double to) {
    if (!std::isfinite(to - from))
        return;
    const double sweep = std::clamp(to - from, -2 * M_PI, 2 * M_PI);
    const int pieces = std::max(4, static_cast<int>(std::ceil(std::fabs(sweep) / (M_PI / 24))));
    for (int piece = 0; piece <= pieces; ++piece) {
        const double angle = from + sweep * piece / pieces;
        loop.push_back(center + major * std::cos(angle) + minor * std::sin(angle));
    }
}

// The tags of one border or of one edge of it.
class Part {
public:
    Part(const DxfTagList& list, DxfTagList::Range part) : tags(list), range(part) {}

    Loop polyline() const {
        struct Corner {
            OdGePoint3d point;
            double bulge = 0;
        };
        std::vector<Corner> corners;
        for (std::size_t i = range.begin; i < range.end; ++i) {
            const double number = dxfReal(tags[i].value());
            if (tags[i].code == 10)
                corners.push_back({{number, 0, 0}});
            else if (tags[i].code == 20 && !corners.empty())
                corners.back().point.y = number;
            else if (tags[i].code == 42 && !corners.empty())
                corners.back().bulge = number;
        }
        Loop loop;
        for (std::size_t i = 0; i < corners.size(); ++i) {
            loop.push_back(corners[i].point);
            const OdGePoint3d& next = corners[(i + 1) % corners.size()].point;
            if (const auto arc = odGeBulgeArc(corners[i].point, next, corners[i].bulge))
                addArc(loop, arc->center, arc->zero, arc->quarter, 0, arc->sweep);
        }
        return loop;
    }

    void addEdge(Loop& loop) const {
        switch (tags.integer(range, kEdgeKind)) {
        case kLineEdge:
            loop.push_back(flat(10));
            loop.push_back(flat(11));
            break;
        case kArcEdge: {
            const double radius = tags.real(range, 40);
            return addTurned(loop, {radius, 0, 0}, {0, radius, 0});
        }
        case kEllipseEdge: {
            const OdGePoint3d end = flat(11);
            const double ratio = tags.real(range, 40, 1);
            return addTurned(loop, {end.x, end.y, 0}, {-end.y * ratio, end.x * ratio, 0});
        }
        case kSplineEdge:
            addSpline(loop);
            break;
        default:
            break;
        }
    }

private:
    OdGePoint3d flat(int code) const { return {tags.real(range, code), tags.real(range, code + 10), 0}; }

    // Angles of clockwise edges are those of the mirrored edge.
    void addTurned(Loop& loop, const OdGeVector3d& major, const OdGeVector3d& minor) const {
        const double sign = tags.integer(range, 73, 1) != 0 ? 1 : -1;
        const double from = tags.real(range, 50) * kDegreeOfArc, to = tags.real(range, 51) * kDegreeOfArc;
        addArc(loop, flat(10), major, minor, sign * from, sign * (to < from ? to + 2 * M_PI : to));
    }

    void addSpline(Loop& loop) const {
        OdDbSplineCurve curve;
        curve.degree = static_cast<int>(tags.integer(range, 94, 3));
        for (std::size_t i = range.begin; i < range.end; ++i) {
            const double number = dxfReal(tags[i].value());
            if (tags[i].code == 40)
                curve.knots.push_back(number);
            else if (tags[i].code == 42)
                curve.weights.push_back(number);
            else if (tags[i].code == 10)
                curve.controls.push_back({number, 0, 0});
            else if (tags[i].code == 20 && !curve.controls.empty())
                curve.controls.back().y = number;
        }
        const std::vector<OdGePoint3d> path = curve.path();
        loop.insert(loop.end(), path.begin(), path.end());
    }

    const DxfTagList& tags;
    DxfTagList::Range range;
};

// Positions of the tags with the code, and the end of the range.
std::vector<std::size_t> cuts(const DxfTagList& tags, DxfTagList::Range range, int code) {
    std::vector<std::size_t> result;
    for (std::size_t i = range.begin; i < range.end; ++i)
        if (tags[i].code == code)
            result.push_back(i);
    result.push_back(range.end);
    return result;
}

Loop readLoop(const DxfTagList& tags, DxfTagList::Range range) {
    if ((dxfInteger(tags[range.begin].value()) & kPolylineLoop) != 0)
        return Part(tags, range).polyline();
    Loop loop;
    const std::vector<std::size_t> edges = cuts(tags, range, kEdgeKind);
    for (std::size_t i = 0; i + 1 < edges.size(); ++i)
        Part(tags, {edges[i], edges[i + 1]}).addEdge(loop);
    return loop;
}

} // namespace

std::vector<Loop> odDbHatchLoops(const DxfTagList& tags, DxfTagList::Range range) {
    std::vector<Loop> loops;
    const std::size_t first = tags.find(kLoopFlags, range);
    if (first == DxfTagList::npos)
        return loops;
    const std::size_t end = tags.find(kStyle, {first, range.end});
    const DxfTagList::Range part{first, end == DxfTagList::npos ? range.end : end};
    const std::vector<std::size_t> starts = cuts(tags, part, kLoopFlags);
    for (std::size_t i = 0; i + 1 < starts.size(); ++i)
        loops.push_back(readLoop(tags, {starts[i], starts[i + 1]}));
    return loops;
}
