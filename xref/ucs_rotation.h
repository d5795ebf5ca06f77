// Angles of references against the X axis of the user's coordinate system.
#pragma once

#include "sdk/db/block_reference.h"

// The rotation in the reference's plane for an angle that counts from the X axis of the current coordinate
// system, or of the world without a current drawing; radians.
double ucsRotation(const OdDbBlockReferencePtr& reference, double angle);
