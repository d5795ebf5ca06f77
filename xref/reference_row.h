// References that were given one point for all of them, and go beside each other instead of on top.
#pragma once

#include "sdk/db/block_reference.h"

class ReferenceRow {
public:
    // The first reference stays where it is; each further one is moved along the X axis of the coordinate
    // system until it begins a little behind the end of the one before it. One without objects stays too.
    void add(const OdDbBlockReferencePtr& reference);

private:
    bool hasAny = false;
    double end = 0; // along that axis
};
