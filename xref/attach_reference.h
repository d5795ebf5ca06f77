// Attaches one drawing to the current one: definition, units, placing, and the entry into its space.
#pragma once

#include "sdk/ge/point3d.h"
#include "sdk/rx/od_string.h"

#include <QString>

class ReferenceRow;

bool isCircular(const QString& path); // the file has the base name of the current drawing

// True when the reference is in the drawing; also when the placing of a definition that was there before was
// cancelled. `insertionPoint` is in the user's coordinate system, `rotation` in radians. A `row`
// moves what is not placed on screen beside the references that it has. Tells the user what went wrong and
// throws nothing.
bool attachReference(const OdString& path, const OdGePoint3d& insertionPoint, const OdGeScale3d& scale,
                     bool overlay, bool scaleOnScreen, bool insertionOnScreen, bool rotationOnScreen,
                     bool uniform, int pathType, bool autoZoom, double rotation, ReferenceRow* row = nullptr);
