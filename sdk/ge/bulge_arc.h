// The arcs of polylines, which tell them by a bulge.
#pragma once

#include "sdk/ge/point3d.h"

#include <optional>

// center + zero * cos(a) + quarter * sin(a), for a from 0 to sweep.
struct OdGeBulgeArc {
    OdGePoint3d center;
    OdGeVector3d zero, quarter; // of the same length, in the XY plane
    double sweep = 0;           // radians, above 0
};

// The arc between two points at the height of the first: `bulge` is the tangent of a quarter of its angle,
// positive when it turns left. None where the segment is straight or no arc can be made.
std::optional<OdGeBulgeArc> odGeBulgeArc(const OdGePoint3d& from, const OdGePoint3d& to, double bulge);
