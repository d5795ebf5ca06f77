// Arcs are measured exactly, not by points along them: boxes of whole drawings are made of these.
#include "sdk/db/arc_extents.h"

#include "sdk/ge/bulge_arc.h"

#include <cmath>

namespace {

constexpr double kTurn = 2 * M_PI;

double withinTurn(double angle) {
    const double rest = std::fmod(angle, kTurn);
    return rest < 0 ? rest + kTurn : rest;
}

} // namespace

void odDbAddArcExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld, const OdGePoint3d& center,
                       double radius, double start, double end) {
    const auto add = [&](double angle) {
        extents.addPoint(toWorld * OdGePoint3d(center.x + radius * std::cos(angle),
                                               center.y + radius * std::sin(angle), center.z));
    };
    // Angles that are the same are those of a whole circle.
    const bool whole = start == end || std::fabs(end - start) >= kTurn - 1e-12;
    const double sweep = whole ? kTurn : withinTurn(end - start);
    add(start);
    add(start + sweep);
    // Along each world axis the arc is farthest out where its tangent is square to that axis.
    for (int axis = 0; axis < 3; ++axis) {
        const double peak = std::atan2(toWorld.entry[axis][1], toWorld.entry[axis][0]);
        for (double angle = peak; angle < peak + 4; angle += M_PI)
            if (withinTurn(angle - start) <= sweep)
                add(angle);
    }
}

void odDbAddBulgeExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld, const OdGePoint3d& from,
                         const OdGePoint3d& to, double bulge) {
    extents.addPoint(toWorld * from);
    extents.addPoint(toWorld * to);
    const auto arc = odGeBulgeArc(from, to, bulge);
    if (!arc)
        return;
    const double angle = std::atan2(arc->zero.y, arc->zero.x);
    const double start = bulge > 0 ? angle : angle - arc->sweep;
    odDbAddArcExtents(extents, toWorld, arc->center, arc->zero.length(), start, start + arc->sweep);
}
