// The exact box around an arc, in whatever plane it lies.
#pragma once

#include "sdk/ge/point3d.h"

// An arc of the XY plane, counter-clockwise from `start` to `end`, moved by `toWorld`.
void odDbAddArcExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld, const OdGePoint3d& center,
                       double radius, double start, double end);
// A polyline segment.
void odDbAddBulgeExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld, const OdGePoint3d& from,
                         const OdGePoint3d& to, double bulge);
