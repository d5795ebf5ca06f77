#include "tests/standin/hostile_drawings.h"

#include "tests/standin/shown_drawing.h"

namespace hostile {

namespace {

using namespace shown;

const int bordersOfHatch = 100;

std::string line() { return head("LINE", "AcDbLine") + point(10, 0, 0) + point(11, 100, 70); }

std::string square(double from, double to) {
    return "92\n2\n72\n0\n73\n1\n93\n4\n" + point(10, from, from) + point(10, to, from) + point(10, to, to) +
           point(10, from, to) + "97\n0\n";
}

// Style 1: of borders within borders every second one is a hole, down to the second.
std::string hatch(double at, int borders) {
    std::string loops;
    for (int i = 0; i < borders; ++i)
        loops += square(at + i, at + 2.0 * borders - i);
    return head("HATCH", "AcDbHatch") + "10\n0\n20\n0\n30\n0\n2\nP\n70\n0\n71\n0\n91\n" +
           std::to_string(borders) + "\n" + loops +
           "75\n0\n76\n1\n52\n0\n41\n1\n77\n0\n78\n1\n53\n45\n43\n0\n44\n0\n45\n0\n46\n0.07\n79\n0\n98\n0\n";
}

std::string hatches(std::size_t bytes) {
    std::string all;
    for (double at = 0; all.size() < bytes; at += 3)
        all += hatch(at, bordersOfHatch);
    return all;
}

std::string insert(const std::string& block, double x, double y, const std::string& more = {}) {
    return head("INSERT", "AcDbBlockReference") + "2\n" + block + "\n" + point(10, x, y) + more;
}

// Blocks "B0", "B1" and so on, each with ten references to the next; the last one holds `contents`.
std::string tower(int depth, const std::string& contents) {
    std::string all = blockOf(("B" + std::to_string(depth)).c_str(), contents);
    double step = 100;
    for (int level = depth; level-- > 0; step *= 10) {
        std::string parts;
        for (int i = 0; i < 10; ++i)
            parts += insert("B" + std::to_string(level + 1), step * i, level % 2 == 0 ? step * i : 0);
        all += blockOf(("B" + std::to_string(level)).c_str(), parts);
    }
    return blocks(all);
}

} // namespace

Parts nestedHatches(std::size_t bytes) { return {hatches(bytes), {}}; }

Parts nestedHatchBlocks(std::size_t bytes) { return {insert("B0", 0, 0), tower(4, hatches(bytes))}; }

Parts steepSplines(int count, int controls) {
    std::string all;
    const int degree = 11;
    for (int spline = 0; spline < count; ++spline) {
        all += head("SPLINE", "AcDbSpline") + "70\n0\n71\n" + std::to_string(degree) + "\n";
        for (int i = 0; i <= controls + degree; ++i)
            all += "40\n" + std::to_string(i) + "\n";
        for (int i = 0; i < controls; ++i)
            all += point(10, i * 10, (i % 2) * 1000 + spline);
    }
    return {all, {}};
}

Parts nestedInserts(int depth) { return {insert("B0", 0, 0), tower(depth, line())}; }

Parts hugeArrays(int count) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += insert("B", i, i, "70\n32767\n71\n32767\n44\n5.0\n45\n5.0\n");
    return {all, blocks(blockOf("B", line()))};
}

// A block of one polyline with so many corners, 32,767 times in each direction.
Parts hugeArrayOfLongLines(int corners) {
    std::string line = head("LWPOLYLINE", "AcDbPolyline") + "90\n" + std::to_string(corners) + "\n70\n0\n";
    for (int i = 0; i < corners; ++i)
        line += point(10, i, i % 7);
    return {insert("B", 0, 0, "70\n32767\n71\n32767\n44\n9.0\n45\n9.0\n"), blocks(blockOf("B", line))};
}

Parts stackedAreas() {
    const std::string corners = point(10, 0, 0) + point(11, 100, 0) + point(12, 0, 100) + point(13, 100, 100);
    const std::string areas =
        head("SOLID", "AcDbTrace") + corners + head("SOLID", "AcDbTrace", "8\n0\n440\n33554559\n") + corners;
    return {insert("B", 0, 0, "70\n700\n71\n700\n44\n0.001\n45\n0.001\n"), blocks(blockOf("B", areas))};
}

Parts stackedLines() {
    return {insert("B", 0, 0, "70\n900\n71\n900\n44\n0.001\n45\n0.001\n"), blocks(blockOf("B", line()))};
}

Parts longTexts(int count, std::size_t letters) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += head("TEXT", "AcDbText") + point(10, 0, 3 * i) + "40\n1\n1\n" +
               std::string(letters, static_cast<char>('a' + i % 26)) + "\n";
    return {all, {}};
}

Parts longParagraphs(int count, std::size_t words) {
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += head("MTEXT", "AcDbMText") + point(10, 0, 300 * i) + "40\n1\n41\n50\n71\n1\n72\n1\n";
        for (std::size_t word = 0; word < words; ++word)
            all += "3\nword" + std::to_string(word * 7919 % 100003) + " {\\C" + std::to_string(word % 7) +
                   ";x}\n";
        all += "1\nend\n";
    }
    return {all, {}};
}

std::vector<Named> all() {
    return {{"NestedHatches", nestedHatches(100000), false, false},
            {"NestedHatchesInNestedBlocks", nestedHatchBlocks(30000), true, false},
            {"SteepSplines", steepSplines(2000, 100), false, false},
            {"NestedInserts", nestedInserts(9), true, false},
            {"HugeArrays", hugeArrays(300), true, false},
            {"HugeArrayOfLongLines", hugeArrayOfLongLines(5000), true, true},
            {"AreasUponEachOther", stackedAreas(), false, true},
            {"LinesUponEachOther", stackedLines(), false, true},
            {"LongTexts", longTexts(20, 1000000), true, false},
            {"LongParagraphs", longParagraphs(5, 100000), true, false}};
}

} // namespace hostile
