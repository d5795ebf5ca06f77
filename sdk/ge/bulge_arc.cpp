#include "sdk/ge/bulge_arc.h"

#include <cmath>

namespace {

constexpr double kStraight = 1e-9; // a bulge below that can't be told from a line

} // namespace

std::optional<OdGeBulgeArc> odGeBulgeArc(const OdGePoint3d& from, const OdGePoint3d& to, double bulge) {
    const OdGeVector3d chord(to.x - from.x, to.y - from.y, 0);
    if (!(std::fabs(bulge) > kStraight) || !std::isfinite(bulge) || (chord.x == 0 && chord.y == 0))
        return std::nullopt;
    const double away = (1 - bulge * bulge) / (4 * bulge); // of the centre from the chord, in its lengths
    OdGeBulgeArc arc;
    arc.center = from + chord * 0.5 + OdGeVector3d(-chord.y, chord.x, 0) * away;
    arc.zero = from - arc.center;
    arc.quarter = OdGeVector3d(-arc.zero.y, arc.zero.x, 0) * (bulge > 0 ? 1 : -1);
    arc.sweep = std::fabs(4 * std::atan(bulge));
    return arc;
}
