// Attaches one drawing to the current one: definition, units, placing, and the entry into its space.
#pragma once

#include "sdk/ge/point3d.h"
#include "sdk/rx/od_string.h"

// True when the reference is in the drawing; also when the placing of a definition that was there before was
// cancelled. `insertionPoint` is in the user's coordinate system, `rotation` in radians. Tells the user what
// went wrong and throws nothing.
bool attachReference(const OdString& path, const OdGePoint3d& insertionPoint, const OdGeScale3d& scale,
                     bool overlay, bool scaleOnScreen, bool insertionOnScreen, bool rotationOnScreen,
                     bool uniform, int pathType, bool autoZoom, double rotation);
