// The prompts for the Y and the Z factor that follow a free X factor.
#pragma once

#include "sdk/ge/point3d.h"

int promptYScale(double& out, double xScale);
// Typed, or as the distance from `base` to a picked `corner`.
int promptZScale(double& out, OdGePoint3d& corner, const OdGePoint3d& base, double xScale);
