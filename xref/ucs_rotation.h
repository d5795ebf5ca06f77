// Angles of references against the X axis of the user's coordinate system.
#pragma once

#include "sdk/db/block_reference.h"

// The rotation in the reference's plane for an angle that counts from the X axis of the current coordinate
// system; radians.
double ucsRotation(const OdDbBlockReferencePtr& reference, double angle);
