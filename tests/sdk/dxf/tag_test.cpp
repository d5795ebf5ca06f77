// Tags: numbers, lists, edits that leave the rest alone.
#include "sdk/dxf/scanner.h"
#include "sdk/dxf/tag_list.h"

#include <gtest/gtest.h>

namespace {
DxfTagList parse(const std::string& text) {
    auto source = std::make_shared<const std::string>(text);
    return DxfTagList::parse(*source, source, text.find('\r') != std::string::npos);
}
} // namespace

TEST(Tags, NumbersAreReadLeniently) {
    EXPECT_EQ(dxfReal("  1.5e3 "), 1500);
    EXPECT_EQ(dxfReal("+2.5"), 2.5);
    EXPECT_EQ(dxfReal("abc"), 0);
    EXPECT_EQ(dxfReal("1e999"), 0);
    EXPECT_EQ(dxfInteger("     7"), 7);
    EXPECT_EQ(dxfInteger("-3.9"), -3);
    EXPECT_EQ(dxfHandle("1aF"), 0x1AFu);
    EXPECT_EQ(dxfHandle("xyz"), 0u);
}

TEST(Tags, RealsReadBackAsTheSameNumberAndCarryAPoint) {
    for (const double value : {0.1, 1.0 / 3, 1e300, -12345678.9, 5e-324, 0.0})
        EXPECT_EQ(dxfReal(dxfText(value)), value);
    EXPECT_EQ(dxfText(2.0), "2.0");
    EXPECT_EQ(dxfText(0.0 / 0.0 * 0), "0.0");
    EXPECT_EQ(dxfHandleText(0x1AF), "1AF");
}

TEST(Tags, UntouchedTagsKeepTheirBytes) {
    const std::string text = "  0\nLINE\n    8\n Layer \n 10\n1.50000\n";
    DxfTagList tags = parse(text);
    EXPECT_EQ(tags.bytes(), text);
    tags.replace(2, "2.0");
    EXPECT_EQ(tags.bytes(), "  0\nLINE\n    8\n Layer \n 10\n2.0\n");
}

TEST(Tags, ACopyIsIndependent) {
    DxfTagList tags = parse("  0\nLINE\n  8\n0\n");
    const DxfTagList copy = tags;
    tags.replace(1, "other");
    EXPECT_EQ(copy[1].value(), "0");
    EXPECT_EQ(tags[1].value(), "other");
}

TEST(Tags, NewTagsTakeTheLineEndsOfTheFile) {
    DxfTagList tags = parse("  0\r\nLINE\r\n");
    tags.append(62, "1");
    EXPECT_EQ(tags.bytes(), "  0\r\nLINE\r\n 62\r\n1\r\n");
}

TEST(Tags, SubclassEndsAtTheNextMarkerAndAtExtendedData) {
    DxfTagList tags = parse("  0\nX\n100\nA\n 70\n1\n100\nB\n 70\n2\n1001\nAPP\n1070\n3\n");
    EXPECT_EQ(tags.integer(tags.subclass("A"), 70), 1);
    EXPECT_EQ(tags.integer(tags.subclass("B"), 70), 2);
    EXPECT_EQ(tags.integer("B", 1070, 9), 9) << "extended data are none of the record's own";
    tags.set("B", 71, "5");
    EXPECT_EQ(tags[5].code, 71);
    tags.set("A", 72, "6");
    EXPECT_EQ(tags.integer(tags.subclass("A"), 72), 6);
}

TEST(Tags, WhatASubclassLacksIsLookedForInTheWholeRecord) {
    DxfTagList tags = parse("  0\nX\n 40\n1.5\n100\nA\n100\nB\n 70\n2\n101\nEmbedded Object\n 71\n3\n");
    EXPECT_EQ(tags.real("B", 40), 1.5);
    EXPECT_EQ(tags.integer("A", 70), 2) << "nothing stands behind the marker";
    EXPECT_EQ(tags.integer("C", 70), 2) << "no such marker";
    EXPECT_EQ(tags.integer("B", 71, 9), 9) << "an embedded object is another one";
    EXPECT_EQ(tags.subclass("B").begin, 4u);
    EXPECT_EQ(tags.subclass("A").begin, 0u);
    tags.set("A", 8, "0");
    EXPECT_EQ(tags[3].code, 8) << "what is new goes behind the marker";
    tags.set("B", 40, "2.5");
    EXPECT_EQ(tags[1].value(), "2.5");
    EXPECT_EQ(tags.integer(tags.embedded(), 71), 3);
}

TEST(Tags, AFreeValueOfTheEmbeddedCodeEndsNothing) {
    const DxfTagList tags = parse("  0\nX\n101\nother\n 70\n2\n");
    EXPECT_EQ(tags.integer("A", 70), 2);
    EXPECT_EQ(tags.embedded().begin, tags.embedded().end);
}

TEST(Tags, ExtendedDataBeginWithTheCode1000) {
    const DxfTagList tags = parse("  0\nX\n 70\n1\n999\nnote\n1000\ntext\n 70\n2\n");
    EXPECT_EQ(tags.own().end, 3u);
    EXPECT_EQ(tags.endOf("A"), 3u);
    EXPECT_EQ(tags.subclass("A").end, 3u);
    const DxfTagList embedded =
        parse("  0\nX\n100\nA\n 70\n1\n101\nEmbedded Object\n 71\n3\n1000\ntext\n 71\n4\n");
    EXPECT_EQ(embedded.own().end, 3u);
    EXPECT_EQ(embedded.embedded().begin, 4u);
    EXPECT_EQ(embedded.embedded().end, 5u);
    EXPECT_EQ(embedded.subclass("A").end, 3u);
}

TEST(Tags, PointsAreReadAsFarAsTheyAreThere) {
    const DxfTagList tags = parse("  0\nX\n 20\n9\n 30\n9\n 10\n1\n 10\n2\n 20\n3\n 10\n4\n 20\n5\n 30\n6\n");
    const std::vector<OdGePoint3d> points = tags.points(tags.own(), 10);
    EXPECT_EQ(points, (std::vector<OdGePoint3d>{{1, 0, 0}, {2, 3, 0}, {4, 5, 6}}));
    EXPECT_EQ(tags.points({4, 6}, 10), (std::vector<OdGePoint3d>{{2, 3, 0}})) << "a part of the tags";
    EXPECT_TRUE(tags.points(tags.own(), 11).empty());
}

TEST(Tags, BracesEndWhereTheyAreClosed) {
    const DxfTagList tags = parse(
        "  0\nX\n100\nA\n102\n{ONE\n 70\n1\n102\n}\n 70\n2\n102\n{TWO\n 71\n1\n102\n}\n100\nB\n 71\n3\n");
    EXPECT_EQ(tags.integer("A", 70), 2);
    EXPECT_EQ(tags.integer("A", 71), 3) << "of another part, since the own one has it in braces alone";
    EXPECT_EQ(tags.find(102), 2u);
    EXPECT_EQ(tags.find("A", 102), 4u) << "the opening ones are within their own braces";
}

TEST(Tags, ChangesOfAPartLeaveTheOthers) {
    DxfTagList tags = parse("  0\nX\n100\nA\n 70\n1\n100\nB\n 70\n2\n");
    tags.remove("B", 70);
    EXPECT_EQ(tags.bytes(), "  0\nX\n100\nA\n 70\n1\n100\nB\n");
    tags.remove("B", 99);
    EXPECT_EQ(tags.size(), 4u);
    tags.restyle(true);
    EXPECT_EQ(tags.bytes(), "  0\r\nX\r\n100\r\nA\r\n 70\r\n1\r\n100\r\nB\r\n");
    DxfTagList other = tags.part({0, 0});
    other.append(8, "new");
    other.append(9, "newer");
    tags.exchange(1, 1, other);
    ASSERT_EQ(tags.size(), 5u);
    EXPECT_EQ(tags[1].value(), "new");
    EXPECT_EQ(tags[2].value(), "newer");
    EXPECT_EQ(tags[3].value(), "1");
    ASSERT_EQ(other.size(), 1u);
    EXPECT_EQ(other[0].value(), "A");
    tags.exchange(1, 2, other);
    ASSERT_EQ(tags.size(), 4u);
    EXPECT_EQ(tags[1].value(), "A");
    EXPECT_EQ(tags[2].value(), "1");
}

TEST(Tags, GroupsInBracesAreNotLookedInto) {
    const DxfTagList tags = parse("  0\nX\n102\n{REACTORS\n330\nAA\n102\n}\n330\nBB\n");
    EXPECT_EQ(tags[tags.find(330)].value(), "BB");
}

TEST(Tags, PointsAreSetWhereTheyAre) {
    DxfTagList tags = parse("  0\nX\n 10\n1.0\n 20\n2.0\n 40\n9.0\n");
    tags.setPoint("", 10, {5, 6, 7});
    EXPECT_EQ(tags.bytes(), "  0\nX\n 10\n5.0\n 20\n6.0\n 30\n7.0\n 40\n9.0\n");
}

TEST(Tags, ScannerTellsWhatIsWrong) {
    const auto faultOf = [](std::string_view text) -> std::string {
        DxfScanner scanner(text);
        DxfTag tag;
        try {
            while (scanner.next(tag)) {
            }
        } catch (const DxfFault& fault) {
            return fault.reason;
        }
        return {};
    };
    EXPECT_EQ(faultOf("  0\nEOF\n"), "");
    EXPECT_EQ(faultOf("  0\nEOF"), "");
    EXPECT_EQ(faultOf("  0\n"), "a group code without a value");
    EXPECT_EQ(faultOf("  0"), "a group code without a value");
    EXPECT_EQ(faultOf("x\ny\n"), "a group code was expected");
    EXPECT_EQ(faultOf("1072\ny\n"), "a group code out of range");
    EXPECT_EQ(faultOf("-6\ny\n"), "a group code out of range");
    EXPECT_EQ(faultOf("99999999999\ny\n"), "a group code was expected");
    EXPECT_EQ(faultOf("\n\n"), "a group code was expected");
    EXPECT_EQ(faultOf(std::string_view("\0\n\n", 3)), "a group code was expected");
}
