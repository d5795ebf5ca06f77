// The prompt for the rotation of a reference.
#pragma once

#include "sdk/db/block_reference.h"

// Sets the rotation in every case, a cancel included, and returns the console's own code.
int promptRotation(const OdDbBlockReferencePtr& reference);
