// Writers that put some of an object's data before the marker of its class: it is shown as if all stood
// behind.
#include "tests/standin/shapes_in_words.h"
#include "tests/standin/shown_drawing.h"

#include <gtest/gtest.h>

namespace {

using namespace shown;

struct Record {
    const char* title;
    const char* name;
    const char* marker;
    std::vector<std::string> data; // groups that stay together
    std::string behind = {};       // parts of other classes, and other objects
    std::string inFront = {};      // objects
};

std::string joined(const std::vector<std::string>& data, std::size_t from, std::size_t to) {
    std::string tags;
    for (std::size_t i = from; i < to; ++i)
        tags += data[i];
    return tags;
}

// The first groups of the data stand before the marker.
std::string shownWith(const Record& record, std::size_t before) {
    const std::string common = "8\n0\n" + joined(record.data, 0, before);
    const Drawing drawing(record.inFront + head(record.name, record.marker, common) +
                          joined(record.data, before, record.data.size()) + record.behind);
    std::string words;
    for (const standin::Item* item : drawing.items)
        words += inWords(*item);
    return words;
}

const std::string kTriangle = "91\n3\n" + point(14, -0.5, -0.5) + point(14, 9.5, 9.5) + point(14, -0.5, 9.5);

std::vector<std::string> imageWith(const std::vector<std::string>& more) {
    std::vector<std::string> data{point(10, 100, 100), point(11, 2, 0), point(12, 0, 2), point(13, 20, 10)};
    data.insert(data.end(), more.begin(), more.end());
    return data;
}

std::vector<std::string> paragraphWith(const char* color) {
    return {point(10, 1, 2), "40\n2.0\n", "41\n30.0\n", "44\n1.5\n",           "71\n5\n",
            "73\n2\n",       "90\n17\n",  color,        "1\n\\H4;one\\Ptwo\n", "45\n2.0\n"};
}

const std::string kReference = head("INSERT", "AcDbBlockReference") + "66\n1\n2\nB\n" + point(10, 0, 0);
const std::string kAttributePart = "100\nAcDbAttribute\n2\nTAG\n70\n0\n";
const std::string kEndOfAttributes = "0\nSEQEND\n8\n0\n";

const std::vector<Record> kRecords{
    {"Text",
     "TEXT",
     "AcDbText",
     {point(10, 1, 2), "40\n2.5\n", "1\nWORD\n", "50\n30\n", "41\n1.5\n", "51\n15\n", "71\n2\n"}},
    {"TextWithItsSecondPart",
     "TEXT",
     "AcDbText",
     {point(10, 1, 2), "40\n2.5\n", "1\nWORD\n", "51\n15\n", "71\n4\n", "72\n1\n" + point(11, 8, 2)},
     "100\nAcDbText\n73\n2\n"},
    {"Attribute",
     "ATTRIB",
     "AcDbText",
     {point(10, 1, 2), "40\n2.5\n", "1\nWORD\n", "51\n15\n", "71\n2\n"},
     kAttributePart + kEndOfAttributes,
     kReference},
    {"ParagraphInAColour", "MTEXT", "AcDbMText", paragraphWith("421\n1193046\n")},
    {"ParagraphInAColourOfThePalette", "MTEXT", "AcDbMText", paragraphWith("63\n3\n")},
    {"Shape",
     "SHAPE",
     "AcDbShape",
     {point(10, 5, 6), "40\n4.0\n", "2\nARROW\n", "50\n90.0\n", "41\n2.0\n", "51\n20\n"}},
    {"Tolerance", "TOLERANCE", "AcDbFcf", {point(10, 10, 20), "1\n0.1%%vA\n", point(11, 0, 1)}},
    {"ImageWithinABorder", "IMAGE", "AcDbRasterImage",
     imageWith({"70\n3\n", "280\n1\n", "71\n2\n", kTriangle})},
    {"ImageClippedByItsFlags", "IMAGE", "AcDbRasterImage",
     imageWith({kTriangle, "71\n2\n", "280\n0\n", "70\n7\n"})},
    {"ImageUnclipped", "IMAGE", "AcDbRasterImage", imageWith({"280\n0\n", "70\n3\n", "71\n2\n", kTriangle})},
    {"Wipeout", "WIPEOUT", "AcDbWipeout", imageWith({"71\n2\n", kTriangle, "70\n7\n"})},
    {"Underlay",
     "PDFUNDERLAY",
     "AcDbUnderlayReference",
     {point(10, 10, 20), "41\n2.0\n", "42\n3.0\n", "43\n2.0\n", "50\n90.0\n",
      point(11, 0, 0) + point(11, 5, 3), "280\n3\n"}},
    {"ObjectOfAnotherProgram",
     "OLE2FRAME",
     "AcDbOle2Frame",
     {"3\nA sheet\n", point(10, 0, 30), point(11, 50, 0), "71\n2\n"}},
};

class DataBeforeTheMarker : public testing::TestWithParam<Record> {};

TEST_P(DataBeforeTheMarker, IsShownLikeDataBehindIt) {
    const std::string expected = shownWith(GetParam(), 0);
    ASSERT_FALSE(expected.empty());
    for (std::size_t before = 1; before <= GetParam().data.size(); ++before)
        EXPECT_EQ(shownWith(GetParam(), before), expected) << before << " groups stand before the marker";
}

INSTANTIATE_TEST_SUITE_P(Kinds, DataBeforeTheMarker, testing::ValuesIn(kRecords),
                         [](const auto& record) { return std::string(record.param.title); });

// Group 71 of an attribute's own part says whether it has several lines, and that of the text's how it runs.
TEST(DataOfAttributes, IsNotTakenForThatOfTheirText) {
    const std::vector<std::string> data{point(10, 1, 2), "40\n2.5\n", "1\nWORD\n"};
    const auto shownBefore = [&](const std::string& more) {
        return shownWith(
            {"", "ATTRIB", "AcDbText", data, kAttributePart + more + kEndOfAttributes, kReference}, 0);
    };
    EXPECT_NE(shownBefore({}).find("text 'WORD'"), std::string::npos);
    EXPECT_EQ(shownBefore("71\n2\n"), shownBefore({}));
}

} // namespace
