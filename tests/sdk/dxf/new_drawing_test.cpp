// A new drawing as a whole: its text is kept beside the tests.
#include "sdk/db/empty_drawing.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

namespace {

std::vector<std::string> linesOf(std::istream& text) {
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

std::string contextOf(const std::vector<std::string>& lines, std::size_t line) {
    std::string text;
    for (std::size_t i = line < 6 ? 0 : line - 6; i < std::min(line + 3, lines.size()); ++i)
        text += std::to_string(i + 1) + ": " + lines[i] + "\n";
    return text;
}

} // namespace

TEST(NewDrawing, IsTheFileThatItHasAlwaysBeen) {
    std::ifstream kept(TEST_DATA_DIR "/drawings/new_drawing.dxf");
    ASSERT_TRUE(kept) << "tests/data/drawings/new_drawing.dxf is missing";
    std::istringstream written(odDbEmptyDrawingText());
    const std::vector<std::string> expected = linesOf(kept), actual = linesOf(written);
    for (std::size_t i = 0; i < std::min(expected.size(), actual.size()); ++i)
        ASSERT_EQ(actual[i], expected[i]) << "line " << i + 1 << " of\n" << contextOf(expected, i);
    EXPECT_EQ(actual.size(), expected.size());
}
