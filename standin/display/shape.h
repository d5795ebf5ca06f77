// What the objects of a drawing look like: the few kinds of shapes that the canvas draws and picks.
#pragma once

#include "sdk/db/object_id.h"
#include "standin/display/box.h"
#include "standin/display/linetypes.h"

#include <QRgb>
#include <QString>
#include <vector>

namespace standin {

// An opaque colour, or the one that stands out from the background.
using Ink = QRgb;
constexpr Ink kForeground = 0;

struct Shape {
    enum Kind {
        Path,   // points joined by lines
        Fill,   // the corners of a filled area
        Arc,    // centre, the vectors to the angles 0 and 90 degrees, then start and sweep in radians
        Text,   // origin, the vectors of one letter height along and up, then how much of the width and the
                // height lies before the origin
        Dot,    // one point
        Missing // one point: a reference without contents
    };
    Kind kind = Path;
    Ink ink = kForeground;
    std::vector<QPointF> points;
    QString text;
    Dashes dashes{}; // of a path or an arc
};

struct Item {
    OdDbObjectId id;
    Box box;
    std::vector<Shape> shapes;
};

// The points of an arc, so many that it is smooth at this number of pixels for a unit.
std::vector<QPointF> arcPoints(const Shape& arc, double scale);
// The corners of a text, in order around it.
std::vector<QPointF> textCorners(const Shape& text);
Box boxOf(const Shape& shape);

// Half the size of the mark of a missing reference, in pixels.
constexpr double kMissingMark = 12;

} // namespace standin
