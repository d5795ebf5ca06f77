// Small drawings that claim to be endless: what a file of some kilobytes can ask of the program.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace hostile {

struct Parts {
    std::string entities, sections; // as shown::Drawing takes them
};

// Hatches of squares within squares, so many that all take about as many bytes; each has a fine pattern.
Parts nestedHatches(std::size_t bytes);
// The same within blocks that hold each other, ten to a block.
Parts nestedHatchBlocks(std::size_t bytes);
// Each of degree 11 with so many control points.
Parts steepSplines(int count, int controls);
// Blocks of ten references to the next block each, down to a line: 10 to the power of `depth` lines.
Parts nestedInserts(int depth);
// References in rows and columns, 32,767 each way.
Parts hugeArrays(int count);
// The same of a block with one polyline of so many corners.
Parts hugeArrayOfLongLines(int corners);
// Each covers the one before.
Parts stackedAreas();
Parts stackedLines();
Parts longTexts(int count, std::size_t letters);
Parts longParagraphs(int count, std::size_t words);

struct Named {
    const char* name;
    Parts parts;
    bool isCut;     // there is more than can be shown
    bool isTooFull; // more than a small budget paints, seen as a whole
};
inline std::ostream& operator<<(std::ostream& stream, const Named& drawing) { return stream << drawing.name; }
std::vector<Named> all();

} // namespace hostile
