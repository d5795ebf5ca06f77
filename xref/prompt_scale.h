// The prompt for the scale of a reference: factors, or the opposite corner of a rectangle.
#pragma once

#include "sdk/db/block_reference.h"

// The factors are divided by `unitFactor`. The reference keeps its scale when the prompt is cancelled.
int promptScale(const OdDbBlockReferencePtr& reference, const bool& uniform, double unitFactor);
