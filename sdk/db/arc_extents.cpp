// Arcs are measured exactly, not by points along them: boxes of whole drawings are made of these.
#include "sdk/db/arc_extents.h"

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
    const bool whole = std::fabs(end - start) >= kTurn - 1e-12;
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
    const OdGeVector3d chord = to - from;
    if (bulge == 0 || !std::isfinite(bulge) || chord.isZeroLength())
        return;
    const double angle = 4 * std::atan(bulge);
    const double toCenter = 0.5 / std::tan(angle / 2); // in chords, along the chord turned left
    const OdGePoint3d center(from.x + chord.x / 2 - chord.y * toCenter,
                             from.y + chord.y / 2 + chord.x * toCenter, from.z);
    const double radius = std::hypot(from.x - center.x, from.y - center.y);
    const double first = std::atan2(from.y - center.y, from.x - center.x);
    const double last = std::atan2(to.y - center.y, to.x - center.x);
    odDbAddArcExtents(extents, toWorld, center, radius, bulge > 0 ? first : last, bulge > 0 ? last : first);
}
