// One line of text with all that turns, bends and stretches it.
#pragma once

#include "sdk/ge/point3d.h"
#include "standin/display/pencil.h"

#include <QPointF>
#include <string>

namespace standin {

struct LineText {
    std::wstring content; // with its codes
    OdGePoint3d place;    // in the plane of the text, where it hangs
    QPointF before;       // how much of the width and the height lies before the place
    double height = 0, widthFactor = 1;
    double rotation = 0, oblique = 0; // radians
    bool isBackwards = false, isUpsideDown = false, isVertical = false;

    // As wide as the way between the points, its letters as high as before or, with `keepsShape`, as they
    // become by that.
    void fitBetween(const OdGePoint3d& from, const OdGePoint3d& to, bool keepsShape);
};

void drawLineText(const LineText& text, const OdGeMatrix3d& plane, const Pencil& pencil);

} // namespace standin
