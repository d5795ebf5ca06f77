// Where the letters of a paragraph text stand: lines are broken and aligned, stacks and tabs placed.
#pragma once

#include "sdk/db/mtext_codes.h"
#include "standin/display/box.h"

#include <QString>
#include <vector>

namespace standin {

// The room that a text has. Lengths are in drawing units.
struct TextRoom {
    double letterHeight = 1;     // of letters that no code changes
    double width = 0;            // of a line, 0 without a limit
    double spacing = 1;          // of lines, in usual ones
    bool isSpacingExact = false; // also where letters are larger than usual
    int column = 0, row = 0;     // what hangs at the origin: 0 left or top, 1 the middle, 2 right or bottom
    int columnCount = 1;
    double gutter = 0;
    std::vector<double> columnHeights{}; // of each column; the last one goes for further ones, 0 has no end
};

// Letters of one format, from `at` on to the right.
struct TextRun {
    QString text;
    QPointF at;
    double width = 0;
    OdDbTextFormat format{};
};

// A line below, above or through letters, or of a fraction.
struct TextMark {
    QPointF from, to;
    OdDbTextFormat format{};
};

// Y goes up, and the origin is the point at which the text hangs.
struct LaidText {
    std::vector<TextRun> runs;
    std::vector<TextMark> marks;
    Box box; // of all lines, as wide as the room where that has a limit
};

LaidText layOut(const std::vector<OdDbTextPiece>& pieces, const TextRoom& room);

} // namespace standin
