// What the objects of a drawing look like: the few kinds of shapes that the canvas draws and picks.
#pragma once

#include "sdk/db/object_id.h"
#include "standin/display/box.h"
#include "standin/display/linetypes.h"

#include <QLineF>
#include <QRgb>
#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

namespace standin {

// An opaque colour, or the one that stands out from the background.
using Ink = QRgb;
constexpr Ink kForeground = 0;

// What a filled area may have beside one border.
struct Area {
    std::vector<std::size_t> starts{}; // of the further borders among the points
    Qt::FillRule rule = Qt::OddEvenFill;
    bool isSolid = true;
    std::vector<QLineF> hatching{}; // the lines of a pattern
    double finest = 0;              // the distance between them
};

struct Shape {
    enum Kind {
        Path, // points joined by lines
        Fill, // the borders of a filled area, one after the other
        Arc,  // centre, the vectors to the angles 0 and 90 degrees, then start and sweep in radians
        Text, // origin, the vectors of one letter height along and up, then how much of the width and the
              // height lies before the origin
        Dot,  // one point; with a second one a mark: PDMODE, then its size in percent of the window's height
        Missing // one point: a reference without contents
    };
    Kind kind = Path;
    Ink ink = kForeground;
    std::vector<QPointF> points;
    QString text;
    Dashes dashes{};                    // of a path or an arc
    std::shared_ptr<const Area> area{}; // of a fill; null for a solid one with one border
    std::int16_t weight = 0;            // of the lines, in hundredths of a millimetre; 0 is one pixel
    std::uint8_t opacity = 255;         // 0 is not to be seen
    bool isBold = false;                // of a text
    bool isEndless = false;             // a path: it counts for the size of the drawing by its start alone
    Box box{};                          // around it, once it belongs to an item
};

// Pixels across a line of this weight, on a screen of 96 dots to the inch.
double weightInPixels(int weight);

// How far above and below its box something may be painted.
struct Reach {
    float units = 0;    // of the drawing
    float pixels = 0;   // whatever the view
    float ofWindow = 0; // parts of the window's height

    void add(const Reach& other) {
        units = std::max(units, other.units);
        pixels = std::max(pixels, other.pixels);
        ofWindow = std::max(ofWindow, other.ofWindow);
    }
};

// What painting takes, whatever the view: it grows with the points, and with the pixels that lines and areas
// have there.
struct Weight {
    float points = 0; // of all lines
    float length = 0; // of all lines, in units of the drawing
    float area = 0;   // of the boxes around what is filled, in square units
    float fills = 0;  // their number

    void add(const Weight& other) {
        points += other.points;
        length += other.length;
        area += other.area;
        fills += other.fills;
    }
};

struct Item {
    OdDbObjectId id;
    Box box;
    std::vector<Shape> shapes;
    Reach reach;
    Weight weight;
    bool isEndless = false;  // there are shapes without end
    bool isCut = false;      // there would be more shapes than can be shown
    bool isTooLarge = false; // and these alone would be too many, whatever else is in the drawing
};

// What the item adds to the size of its drawing.
Box extentsOf(const Item& item);

// The points of an arc, so many that it is smooth at this number of pixels for a unit.
std::vector<QPointF> arcPoints(const Shape& arc, double scale);
// The corners of a text, in order around it.
std::vector<QPointF> textCorners(const Shape& text);
// The borders of a filled area, each by its first point and the one behind its last.
template <class Visitor> void visitBorders(const Shape& fill, Visitor visitor) {
    std::size_t from = 0;
    if (fill.area)
        for (const std::size_t start : fill.area->starts) {
            visitor(from, start);
            from = start;
        }
    visitor(from, fill.points.size());
}
// Each back to its start.
std::vector<std::vector<QPointF>> bordersOf(const Shape& fill);
// Whether all places are numbers, and not too far away.
bool isDrawable(const Shape& shape);
bool isInside(const Shape& fill, const QPointF& point);
Box boxOf(const Shape& shape);
Reach reachOf(const Shape& shape);
Weight weightOf(const Shape& shape); // by its box

// Half the size of the mark of a missing reference, in pixels.
constexpr double kMissingMark = 12;

} // namespace standin
