// The prompt for the insertion point of a reference, with keywords that settle scale and rotation.
#pragma once

#include "sdk/db/block_reference.h"

// Clears a flag when a keyword has settled the value. Scale factors are divided by `unitFactor`.
int promptInsertion(bool& scaleOnScreen, bool& rotationOnScreen, const OdDbBlockReferencePtr& reference,
                    double unitFactor);
