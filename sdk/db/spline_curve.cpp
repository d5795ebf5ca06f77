// Points of a rational spline by repeated cutting of corners, which is stable for every degree allowed here.
#include "sdk/db/spline_curve.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int kHighestDegree = 15;

// A point times its weight, and the weight.
struct Weighted {
    double x = 0, y = 0, z = 0, w = 0;
};

Weighted between(const Weighted& a, const Weighted& b, double t) {
    const double s = 1 - t;
    return {s * a.x + t * b.x, s * a.y + t * b.y, s * a.z + t * b.z, s * a.w + t * b.w};
}

} // namespace

bool OdDbSplineCurve::isSound() const {
    if (degree < 1 || degree > kHighestDegree || controls.size() <= static_cast<std::size_t>(degree))
        return false;
    const auto isFinite = [](double number) { return std::isfinite(number); };
    return knots.size() == controls.size() + static_cast<std::size_t>(degree) + 1 &&
           std::all_of(knots.begin(), knots.end(), isFinite) && std::is_sorted(knots.begin(), knots.end()) &&
           (weights.empty() || weights.size() == controls.size());
}

// The point is found by cutting corners, `degree` times, between the control points that have a part in the
// span.
OdGePoint3d OdDbSplineCurve::pointAt(std::size_t span, double parameter) const {
    const auto order = static_cast<std::size_t>(degree);
    std::array<Weighted, kHighestDegree + 1> corners;
    for (std::size_t i = 0; i <= order; ++i) {
        const std::size_t control = span - order + i;
        const double w = weight(control);
        const OdGePoint3d& p = controls[control];
        corners[i] = {p.x * w, p.y * w, p.z * w, w};
    }
    for (std::size_t round = 1; round <= order; ++round)
        for (std::size_t i = order; i >= round; --i) {
            const double from = knots[span - order + i], to = knots[span + 1 + i - round];
            const double t = to > from ? (parameter - from) / (to - from) : 0;
            corners[i] = between(corners[i - 1], corners[i], t);
        }
    const Weighted& found = corners[order];
    return {found.x / found.w, found.y / found.w, found.z / found.w};
}

std::vector<OdGePoint3d> OdDbSplineCurve::path(int piecesOfSpan) const {
    if (!isSound())
        return controls;
    std::vector<OdGePoint3d> points;
    for (auto span = static_cast<std::size_t>(degree); span < controls.size(); ++span) {
        if (knots[span + 1] <= knots[span])
            continue;
        for (int piece = points.empty() ? 0 : 1; piece <= piecesOfSpan; ++piece)
            points.push_back(
                pointAt(span, knots[span] + (knots[span + 1] - knots[span]) * piece / piecesOfSpan));
    }
    return points.empty() ? controls : points;
}
