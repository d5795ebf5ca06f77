// The shapes of many kinds of objects, number by number: the cases have the sections of a drawing.
#include "tests/standin/shapes_in_words.h"
#include "tests/standin/shown_drawing.h"
#include "tests/support/case_file.h"

#include <gtest/gtest.h>

namespace {

const char* const kFolder = TEST_DATA_DIR "/shapes";

std::string section(const char* name, const std::string& tags) {
    return tags.empty() ? "" : "0\nSECTION\n2\n" + std::string(name) + "\n" + tags + "0\nENDSEC\n";
}

std::string shownOf(const Case& given) {
    const shown::Drawing drawing(given.tags("entities"),
                                 section("TABLES", given.tags("tables")) +
                                     section("BLOCKS", given.tags("blocks")),
                                 given.tags("variables"), section("OBJECTS", given.tags("objects")));
    std::string words;
    for (const standin::Item* item : drawing.items)
        words += shown::inWords(*item);
    return words;
}

class Shapes : public testing::TestWithParam<std::string> {};

TEST_P(Shapes, AreThoseOfTheReference) { checkCases(kFolder, GetParam(), shownOf); }

INSTANTIATE_TEST_SUITE_P(Files, Shapes, testing::ValuesIn(caseFilesIn(kFolder)),
                         [](const auto& file) { return file.param; });

} // namespace
