// The variables of a drawing that change what it looks like.
#pragma once

#include "sdk/db/database.h"

namespace standin {

struct DrawingVariables {
    bool showsWeights = false;
    double linetypeScale = 1;
    int pointMode = 0;
    double pointSize = 0;

    static DrawingVariables of(const OdDbDatabase& drawing); // what the drawing lacks is as above
    friend bool operator==(const DrawingVariables& a, const DrawingVariables& b) {
        return a.showsWeights == b.showsWeights && a.linetypeScale == b.linetypeScale &&
               a.pointMode == b.pointMode && a.pointSize == b.pointSize;
    }
};

} // namespace standin
