// Reads the borders of a hatch from its tags.
#pragma once

#include "sdk/db/hatch.h"

// `range` is the subclass of the hatch. Counts in the file are not believed: only tags that are there are
// read.
std::vector<OdDbHatch::Loop> odDbHatchLoops(const DxfTagList& tags, DxfTagList::Range range);
