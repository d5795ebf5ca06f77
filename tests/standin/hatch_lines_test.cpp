// How many lines a hatch pattern may have, and where its dashes begin and end.
#include "standin/display/hatch_lines.h"

#include <gtest/gtest.h>

namespace {

using namespace standin;

OdDbHatch::PatternLines rows(double first, double distance, const std::vector<double>& dashes = {}) {
    return {0, {0, first, 0}, {0, distance, 0}, dashes};
}

const std::vector<OdDbHatch::Loop> kSquare{{{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}}};

std::size_t countOf(const std::optional<HatchLines>& lines) { return lines ? lines->lines.size() : 0; }

// Five rows, then five more between them.
TEST(HatchLimits, OfSolidLinesAreReachedAndNotExceeded) {
    const std::vector<OdDbHatch::PatternLines> pattern{rows(1, 2), rows(2, 2)};
    EXPECT_EQ(countOf(hatchLines(kSquare, pattern, 11)), 10u);
    EXPECT_EQ(countOf(hatchLines(kSquare, pattern, 10)), 10u);
    EXPECT_FALSE(hatchLines(kSquare, pattern, 9));
}

TEST(HatchLimits, OfRowsHoldForAllBordersTogether) {
    EXPECT_EQ(countOf(hatchLines(kSquare, {rows(0.5, 1)}, 10)), 10u);
    const OdDbHatch::Loop upAndDown{{5, 0, 0}, {5, 10, 0}}; // crosses ten rows twice, for no line
    EXPECT_TRUE(hatchLines({upAndDown, upAndDown, upAndDown}, {rows(0.5, 1)}, 30));
    EXPECT_FALSE(hatchLines({upAndDown, upAndDown, upAndDown}, {rows(0.5, 1)}, 29));
}

// One row of two dashes and two gaps; another row needs as many.
TEST(HatchLimits, OfDashesCountTheGapsAndKeepRoomForOneMore) {
    const auto row = [](double height) { return rows(height, 100, {3, -2}); };
    EXPECT_EQ(countOf(hatchLines(kSquare, {row(5)}, 5)), 2u);
    EXPECT_FALSE(hatchLines(kSquare, {row(5)}, 4));
    EXPECT_EQ(countOf(hatchLines(kSquare, {row(5), row(6)}, 7)), 4u) << "two lines are there already";
    EXPECT_FALSE(hatchLines(kSquare, {row(5), row(6)}, 6));
}

TEST(HatchLimits, OfRowsAreToldBeforeTheyAreMade) {
    EXPECT_FALSE(hatchLines(kSquare, {rows(0.5, 1e-7)}, 1000));
    EXPECT_FALSE(hatchLines(kSquare, {rows(0.5, 0)}, 1000));
    EXPECT_FALSE(hatchLines(kSquare, {rows(2e10, 1)}, 1000)) << "so far away rows can't be told apart";
    EXPECT_FALSE(hatchLines(kSquare, {rows(-2e10, 1)}, 1000));
    EXPECT_FALSE(hatchLines(kSquare, {}, 1000));
}

TEST(HatchLines, OfDashesGoOnBehindTheBorderWhereThePatternIs) {
    struct Case {
        std::vector<double> dashes;
        double base;
        std::vector<std::pair<double, double>> expected;
    };
    for (const Case& each : {Case{{3, -2}, 0, {{0, 3}, {5, 8}}},
                             {{3, -2}, 3, {{3, 6}, {8, 10}, {0, 1}}},
                             {{3, -2}, -3, {{2, 5}, {7, 10}}},
                             {{-2, 3}, 0, {{2, 5}, {7, 10}}},
                             {{0, -4}, 0, {{0, 0}, {4, 4}, {8, 8}}},
                             {{0, -4}, 1, {{1, 1}, {5, 5}, {9, 9}}},
                             {{20, -1}, -15, {{0, 5}, {6, 10}}}}) {
        const auto lines = hatchLines(kSquare, {{0, {each.base, 5, 0}, {0, 100, 0}, each.dashes}}, 1000);
        ASSERT_TRUE(lines);
        std::vector<std::pair<double, double>> found;
        for (const QLineF& line : lines->lines)
            found.emplace_back(line.x1(), line.x2());
        auto expected = each.expected;
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(found, expected) << each.dashes[0] << " from " << each.base;
    }
}

// An end of a side that lies on a row belongs to one of the two rows' sides alone.
TEST(HatchLines, InACornerOfTheBorderAreNotCountedTwice) {
    const std::vector<OdDbHatch::Loop> diamond{{{0, 5, 0}, {5, 0, 0}, {10, 5, 0}, {5, 10, 0}}};
    const auto lines = hatchLines(diamond, {rows(0, 5)}, 100);
    ASSERT_TRUE(lines);
    ASSERT_EQ(lines->lines.size(), 1u);
    EXPECT_EQ(lines->lines[0], QLineF(0, 5, 10, 5));
    EXPECT_EQ(lines->finest, 5);
    EXPECT_EQ(hatchLines(diamond, {rows(0, -5), rows(0, 3)}, 100)->finest, 3);
}

} // namespace
