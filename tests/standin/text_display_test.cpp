// Texts: what their codes do to the letters, and where the letters stand.
#include "standin/display/letters.h"
#include "standin/display/text_layout.h"
#include "tests/standin/shown_drawing.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace standin;
using namespace shown;

// Letters 10 high, that hang at the origin by their top left corner.
std::string mtext(const std::string& contents, const std::string& more = {},
                  const std::string& attachment = "1") {
    return head("MTEXT", "AcDbMText") + point(10, 0, 0) + "40\n10.0\n" + more + "71\n" + attachment +
           "\n1\n" + contents + "\n";
}

double widthOf(const QString& text, bool isBold = false) { return 10 * lettersOf(text, isBold).width; }

struct Texts : Drawing {
    using Drawing::Drawing;
    std::vector<const Shape*> all(Shape::Kind kind) const {
        std::vector<const Shape*> found;
        for (const Item* item : items)
            for (const Shape& shape : item->shapes)
                if (shape.kind == kind)
                    found.push_back(&shape);
        return found;
    }
    const Shape& text(const char* letters) const {
        for (const Shape* shape : all(Shape::Text))
            if (shape->text == QString::fromUtf8(letters))
                return *shape;
        static const Shape none{Shape::Text, {}, {{-999, -999}, {}, {}, {}}, "not shown"};
        ADD_FAILURE() << "there is no text " << letters;
        return none;
    }
    QStringList strings() const {
        QStringList found;
        for (const Shape* shape : all(Shape::Text))
            found << shape->text;
        return found;
    }
};

double heightOf(const Shape& text) { return text.points[2].y(); }

struct ContentCase {
    const char* contents;
    QStringList shown;
};

TEST(ParagraphTexts, AreShownWithoutTheirCodes) {
    for (const ContentCase& each : std::vector<ContentCase>{
             {"%%c50 %%d %%p1 %%065", {QString::fromUtf8("\u230050 \u00b0 \u00b11 A")}},
             {"One\\PTwo\\~x\\NThree", {"One", QString::fromUtf8("Two\u00a0x"), "Three"}},
             {"\\\\ \\{x\\}", {"\\ {x}"}},
             {"{\\fArial|b0|i0|c0|p34;plain}", {"plain"}},
             {"a\\Zb", {"a\\Zb"}}, // a code that nobody knows
             {"\\C1;", {}},
             {"", {}},
             {"   ", {}}})
        EXPECT_EQ(Texts(mtext(each.contents)).strings(), each.shown) << each.contents;
}

TEST(ParagraphTexts, ChangeTheirColourWithinBraces) {
    const Texts drawing(mtext("a{\\C1;b\\c65280;c}d\\C256;e"));
    EXPECT_EQ(drawing.text("b").ink, 0xffff0000u);
    EXPECT_EQ(drawing.text("c").ink, 0xff00ff00u);
    EXPECT_EQ(drawing.text("d").ink, kForeground);
    const Texts blue(mtext("\\c16711680;x")); // blue comes first
    EXPECT_EQ(blue.text("x").ink, 0xff0000ffu);
}

TEST(ParagraphTexts, ChangeTheHeightByAValueOrAFactor) {
    const Texts drawing(mtext("a{\\H5;b\\H0.5x;c}d"));
    EXPECT_EQ(heightOf(drawing.text("b")), 5);
    EXPECT_EQ(heightOf(drawing.text("c")), 2.5);
    EXPECT_EQ(heightOf(drawing.text("d")), 10);
    EXPECT_EQ(drawing.text("b").points[0].y(), drawing.text("a").points[0].y()); // on one base line
    EXPECT_NEAR(drawing.text("b").points[0].x(), widthOf("a"), 1e-9);
    EXPECT_NEAR(drawing.text("c").points[0].x(), widthOf("a") + widthOf("b") / 2, 1e-9);
}

TEST(ParagraphTexts, MayBeBoldItalicWideSlantedAndApart) {
    const Texts drawing(mtext("{\\fArial|b1|i0;B}{\\fArial|b0|i1;I}{\\W2;W}{\\Q45;Q}{\\T3;xyz}z"));
    EXPECT_TRUE(drawing.text("B").isBold);
    EXPECT_EQ(drawing.text("B").points[2].x(), 0);
    EXPECT_FALSE(drawing.text("I").isBold);
    EXPECT_NEAR(drawing.text("I").points[2].x(), 10 * std::tan(M_PI / 12), 1e-9);
    EXPECT_EQ(drawing.text("W").points[1].x(), 20);
    EXPECT_NEAR(drawing.text("Q").points[2].x(), 10, 1e-9);
    EXPECT_NEAR(drawing.text("y").points[0].x() - drawing.text("x").points[0].x(), 3 * widthOf("x"), 1e-9);
    EXPECT_NE(lettersOf("B", true).width, lettersOf("B").width);
}

TEST(ParagraphTexts, HaveLinesBelowAboveAndThroughThem) {
    const double base = -10;
    for (const auto& [code, height] : {std::pair("\\L", -2.0), {"\\O", 12.0}, {"\\K", 4.0}}) {
        const Texts drawing(mtext("a{" + std::string(code) + "bc}d"));
        const auto lines = drawing.all(Shape::Path);
        ASSERT_EQ(lines.size(), 1u) << code;
        EXPECT_EQ(lines[0]->points[0], QPointF(widthOf("a"), base + height)) << code;
        EXPECT_NEAR(lines[0]->points[1].x(), widthOf("a") + widthOf("bc"), 1e-9) << code;
    }
    EXPECT_TRUE(Texts(mtext("\\L\\labc")).all(Shape::Path).empty()); // switched off before anything came
}

TEST(ParagraphTexts, StackFractions) {
    const Texts drawing(mtext("\\S1/22;"));
    const Shape &upper = drawing.text("1"), &lower = drawing.text("22");
    EXPECT_EQ(heightOf(upper), 7);
    EXPECT_NEAR(lower.points[0].y(), -17, 1e-9); // 17 high in all
    EXPECT_NEAR(upper.points[0].y(), -17 + 7 + 3, 1e-9);
    EXPECT_NEAR(upper.points[0].x(), 0.7 * (widthOf("22") - widthOf("1")) / 2, 1e-9); // in the middle
    const auto bars = drawing.all(Shape::Path);
    ASSERT_EQ(bars.size(), 1u);
    EXPECT_EQ(bars[0]->points[0].y(), bars[0]->points[1].y());
    EXPECT_NEAR(bars[0]->points[1].x(), 0.7 * widthOf("22"), 1e-9);
}

TEST(ParagraphTexts, StackTolerancesWithoutABarAndSlashesWithASlantedOne) {
    const Texts tolerance(mtext("\\S+0.1^ -0.20;"));
    EXPECT_EQ(tolerance.text("+0.1").points[0].x(), tolerance.text("-0.20").points[0].x());
    EXPECT_TRUE(tolerance.all(Shape::Path).empty());
    const Texts slash(mtext("\\S1#2;"));
    ASSERT_EQ(slash.all(Shape::Path).size(), 1u);
    const QPointF way = slash.all(Shape::Path)[0]->points[1] - slash.all(Shape::Path)[0]->points[0];
    EXPECT_GT(way.x(), 0);
    EXPECT_GT(way.y(), 0);
    EXPECT_GT(slash.text("2").points[0].x(), slash.text("1").points[0].x());
    EXPECT_EQ(Texts(mtext("\\S1\\/2/3;")).strings(), (QStringList{"1/2", "3"}));
}

TEST(ParagraphTexts, PlaceStacksBesideTheLettersAround) {
    const auto lowest = [](const char* code) { return Texts(mtext(code)).text("2").points[0].y(); };
    EXPECT_NEAR(lowest("\\A0;\\S1/2;"), -17,
                1e-9); // a stack hangs as high as its letters reach: 17 high in all
    EXPECT_NEAR(lowest("\\A1;\\S1/2;"), -17, 1e-9);
    EXPECT_NEAR(lowest("\\A2;\\S1/2;"), -17, 1e-9);
    const auto baseOf = [](const char* code) { return Texts(mtext(code)).text("x").points[0].y(); };
    EXPECT_NEAR(baseOf("x\\A0;\\S1/2;"), -17,
                1e-9); // on its lower edge, about its middle, below its upper one
    EXPECT_NEAR(baseOf("x\\A1;\\S1/2;"), -13.5, 1e-9);
    EXPECT_NEAR(baseOf("x\\A2;\\S1/2;"), -10, 1e-9);
}

struct AlignmentCase {
    const char* code;
    const char* attachment;
    double part; // of the free room, before the text
};

TEST(ParagraphTexts, AlignParagraphsByTheirCodeOrElseByWhereTheyHang) {
    const double free = 200 - widthOf("abc");
    for (const AlignmentCase& each : {AlignmentCase{"", "1", 0},
                                      {"", "2", 0.5},
                                      {"", "3", 1},
                                      {"\\pxqc;", "1", 0.5},
                                      {"\\pxqr;", "1", 1},
                                      {"\\pxql;", "3", 0},
                                      {"\\pxqj;", "1", 0}}) {
        const Texts drawing(mtext(std::string(each.code) + "abc", "41\n200.0\n", each.attachment));
        const double left = each.attachment[0] == '1' ? 0 : each.attachment[0] == '2' ? -100 : -200;
        EXPECT_NEAR(drawing.text("abc").points[0].x(), left + free * each.part, 1e-9)
            << each.code << each.attachment;
    }
}

TEST(ParagraphTexts, HangAtTheirTopMiddleOrBottom) {
    const double step = 10 * 5 / 3.0, all = 10 + step;
    const auto first = [](const char* attachment) {
        return Texts(mtext("a\\Pb", {}, attachment)).text("a").points[0].y();
    };
    EXPECT_NEAR(first("1"), -10, 1e-9);
    EXPECT_NEAR(first("4"), -10 + all / 2, 1e-9);
    EXPECT_NEAR(first("7"), -10 + all, 1e-9);
}

TEST(ParagraphTexts, BreakLinesAtBlanksAndJustifyAllButTheLast) {
    const double width = widthOf("aaa bbb") + 5;
    const Texts drawing(mtext("\\pxqj;aaa bbb ccc", "41\n" + std::to_string(width) + "\n"));
    EXPECT_NEAR(drawing.text("bbb").points[0].x() + widthOf("bbb"), width, 1e-4); // up to the right side
    EXPECT_EQ(drawing.text("ccc").points[0].x(), 0);
    EXPECT_LT(drawing.text("ccc").points[0].y(), drawing.text("aaa").points[0].y());
    EXPECT_EQ(Texts(mtext("unbreakable", "41\n1.0\n")).strings(), QStringList("unbreakable"));
    EXPECT_EQ(Texts(mtext("a{\\C1;b} c", "41\n" + std::to_string(widthOf("ab") + 1) + "\n"))
                  .text("b")
                  .points[0]
                  .y(),
              -10);
}

TEST(ParagraphTexts, IndentFirstLinesAndTheOthers) {
    const Texts drawing(mtext("\\pxi-1,l2;aaa bbb", "41\n" + std::to_string(widthOf("aaa") + 30) + "\n"));
    EXPECT_NEAR(drawing.text("aaa").points[0].x(), 10, 1e-9);
    EXPECT_NEAR(drawing.text("bbb").points[0].x(), 20, 1e-9);
}

TEST(ParagraphTexts, EndAtTheRightWhateverTheirIndentAlsoWithoutALimit) {
    const LaidText laid = layOut(odDbTextPieces(L"\\pi2,qr;ab\\P\\pi0,qr;a longer line", {}), {});
    ASSERT_EQ(laid.runs.size(), 2u);
    for (const TextRun& run : laid.runs)
        EXPECT_NEAR(run.at.x() + run.width, laid.box.right, 1e-9) << run.text.toStdString();
}

TEST(ParagraphTexts, GoOnAtTabs) {
    EXPECT_EQ(Texts(mtext("a^Ib")).text("b").points[0].x(), 40); // every four letter heights
    const Texts drawing(mtext("\\pxt7,c12,r20;^Ia^Ibb^Icc"));
    EXPECT_EQ(drawing.text("a").points[0].x(), 70);
    EXPECT_NEAR(drawing.text("bb").points[0].x(), 120 - widthOf("bb") / 2, 1e-9);
    EXPECT_NEAR(drawing.text("cc").points[0].x(), 200 - widthOf("cc"), 1e-9);
}

TEST(ParagraphTexts, HaveTheirLinesAsFarApartAsTheySay) {
    const auto step = [](const std::string& more, const char* second = "b") {
        const Texts drawing(mtext(std::string("a\\P") + second, more));
        return drawing.text("a").points[0].y() - drawing.text("b").points[0].y();
    };
    EXPECT_NEAR(step({}), 10 * 5 / 3.0, 1e-9);
    EXPECT_NEAR(step("44\n2.0\n"), 20 * 5 / 3.0, 1e-9);
    EXPECT_NEAR(step({}, "\\H20;b"), 20 * 5 / 3.0, 1e-9);        // larger letters need more
    EXPECT_NEAR(step("73\n2\n", "\\H20;b"), 10 * 5 / 3.0, 1e-9); // unless the step is exact
    EXPECT_NEAR(step("44\n-3.0\n"), 10 * 5 / 3.0, 1e-9);         // nonsense is left out
}

TEST(ParagraphTexts, MayHaveABackgroundAndAFrame) {
    const Texts filled(mtext("abc", "90\n1\n63\n5\n45\n1.5\n"));
    ASSERT_EQ(filled.all(Shape::Fill).size(), 1u);
    EXPECT_EQ(&filled.shape(0), filled.all(Shape::Fill)[0]); // below the letters
    EXPECT_EQ(filled.shape(0).ink, 0xff0000ffu);
    EXPECT_EQ(filled.shape(0).points[0], QPointF(-5, -15));
    EXPECT_NEAR(filled.shape(0).points[2].x(), widthOf("abc") + 5, 1e-9);
    EXPECT_EQ(filled.shape(0).points[2].y(), 5);
    EXPECT_EQ(Texts(mtext("abc", "90\n1\n63\n5\n421\n65280\n")).shape(0).ink, 0xff00ff00u);
    const Texts framed(mtext("abc", "90\n16\n45\n1.5\n"));
    ASSERT_EQ(framed.all(Shape::Path).size(), 1u);
    EXPECT_EQ(framed.all(Shape::Path)[0]->points.size(), 5u);
    EXPECT_TRUE(Texts(mtext("abc", "90\n2\n")).all(Shape::Fill).empty()); // the colour of the window
}

TEST(ParagraphTexts, FollowTheWidthAndTheSlantOfTheirStyle) {
    const std::string styles =
        "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nSTYLE\n70\n1\n0\nSTYLE\n100\n"
        "AcDbSymbolTableRecord\n100\nAcDbTextStyleTableRecord\n2\nS\n70\n0\n40\n0.0\n41\n"
        "0.5\n50\n45.0\n71\n0\n3\ntxt\n0\nENDTAB\n0\nENDSEC\n";
    const auto drawing = OdDbDatabase::readBytes(styles + "0\nSECTION\n2\nENTITIES\n" + mtext("a", "7\ns\n") +
                                                 "0\nENDSEC\n0\nEOF\n");
    DisplayList list(drawing);
    list.refresh();
    const Shape& text = list.within({-1, -20, 1, 1}).at(0)->shapes.at(0);
    EXPECT_EQ(text.points[1].x(), 5);
    EXPECT_NEAR(text.points[2].x(), 10, 1e-9);
}

// Room of two columns, 100 wide and 20 apart; the first one takes two lines.
TEST(ParagraphTexts, FlowFromColumnToColumn) {
    OdDbTextFormat format;
    format.height = 10;
    TextRoom room;
    room.letterHeight = 10;
    room.width = 100;
    room.columnCount = 2;
    room.gutter = 20;
    room.columnHeights = {30};
    const LaidText flowing = layOut(odDbTextPieces(L"a\\Pb\\Pc\\Pd", format), room);
    ASSERT_EQ(flowing.runs.size(), 4u);
    EXPECT_EQ(flowing.runs[2].at, QPointF(120, -10));
    EXPECT_EQ(flowing.runs[3].at.x(), 120);
    EXPECT_EQ(flowing.box.right, 220);
    room.columnHeights.clear();
    const LaidText broken = layOut(odDbTextPieces(L"a\\Nb\\Nc", format), room);
    ASSERT_EQ(broken.runs.size(), 3u);
    EXPECT_EQ(broken.runs[1].at, QPointF(120, -10));
    EXPECT_EQ(broken.runs[2].at.x(), 120); // there is no third one
}

TEST(ParagraphTexts, HaveTheColumnsOfTheObjectWithinThem) {
    const Texts drawing(mtext("a\\Nb") + "101\nEmbedded Object\n70\n1\n" + point(10, 1, 0) + point(11, 0, 0) +
                        "40\n220.0\n41\n50.0\n42\n220.0\n43\n50.0\n71\n1\n72\n2\n44\n100.0\n45\n20.0\n");
    EXPECT_EQ(drawing.text("a").points[0], QPointF(0, -10));
    EXPECT_EQ(drawing.text("b").points[0], QPointF(120, -10));
}

std::string text(const std::string& contents, const std::string& more = {}, const std::string& behind = {}) {
    return head("TEXT", "AcDbText") + point(10, 1, 2) + "40\n10.0\n1\n" + contents + "\n" + more +
           "100\nAcDbText\n" + behind;
}

TEST(LineTexts, ShowSignsForTheirCodes) {
    EXPECT_EQ(Texts(text("%%C5%%%%%D%%p%%066")).strings(),
              QStringList(QString::fromUtf8("\u23005%\u00b0\u00b1B")));
    EXPECT_EQ(Texts(text("50%% %%x")).strings(), QStringList("50%% %%x")); // no codes
}

TEST(LineTexts, SwitchLinesOnAndOff) {
    const Texts drawing(text("a%%ubc%%ud%%oe"));
    EXPECT_EQ(drawing.strings(), (QStringList{"a", "bc", "d", "e"}));
    const auto lines = drawing.all(Shape::Path);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0]->points[0], QPointF(1 + widthOf("a"), 0));
    EXPECT_NEAR(lines[0]->points[1].x(), 1 + widthOf("a") + widthOf("bc"), 1e-9);
    EXPECT_EQ(lines[1]->points[0].y(), 14);
    const Texts right(text("a%%ubc", "72\n2\n" + point(11, 50, 2)));
    EXPECT_NEAR(right.text("bc").points[0].x(), 50 - widthOf("bc"), 1e-9);
}

TEST(LineTexts, MayBeBackwardsUpsideDownAndSlanted) {
    EXPECT_EQ(Texts(text("a", "71\n2\n")).shape().points[1], QPointF(-10, 0));
    EXPECT_EQ(Texts(text("a", "71\n2\n")).shape().points[2], QPointF(0, 10));
    EXPECT_EQ(Texts(text("a", "71\n4\n")).shape().points[2], QPointF(0, -10));
    EXPECT_NEAR(Texts(text("a", "51\n45.0\n")).shape().points[2].x(), 10, 1e-9);
}

// A text of a style that turns it, slants it and goes downwards says otherwise for itself.
TEST(LineTexts, FollowTheirStyleInWhatTheyDoNotSay) {
    const auto shapesOf = [](const std::string& flags, const std::string& entity) {
        const auto drawing = OdDbDatabase::readBytes(
            "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nSTYLE\n70\n1\n0\nSTYLE\n100\nAcDbSymbolTableRecord\n100\n"
            "AcDbTextStyleTableRecord\n2\nS\n70\n" +
            flags +
            "\n40\n0.0\n41\n1.0\n50\n45.0\n71\n6\n3\ntxt\n0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" +
            entity + "0\nENDSEC\n0\nEOF\n");
        DisplayList list(drawing);
        list.refresh();
        return list.within({-1e3, -1e3, 1e3, 1e3}).at(0)->shapes;
    };
    const Shape turned = shapesOf("0", text("a", "7\nS\n")).at(0);
    EXPECT_EQ(turned.points[1].x(), -10);
    EXPECT_NEAR(turned.points[2].x(), -10, 1e-9);
    EXPECT_EQ(turned.points[2].y(), -10);
    const Shape plain = shapesOf("0", text("a", "7\nS\n71\n0\n51\n0.0\n")).at(0);
    EXPECT_EQ(plain.points[1].x(), 10);
    EXPECT_EQ(plain.points[2], QPointF(0, 10));
    const std::vector<Shape> downwards = shapesOf("4", text("ab", "7\nS\n71\n0\n51\n0.0\n"));
    ASSERT_EQ(downwards.size(), 2u);
    EXPECT_EQ(downwards[0].text, "a");
    EXPECT_EQ(downwards[0].points[0], QPointF(1, -8));
    EXPECT_EQ(downwards[0].points[3].x(), 0.5);
    EXPECT_EQ(downwards[1].points[0], QPointF(1, -23));
}

TEST(LineTexts, FillTheWayBetweenTwoPoints) {
    for (const bool isFit : {true, false}) {
        const Texts drawing(
            text("abc", std::string("72\n") + (isFit ? "5" : "3") + "\n" + point(11, 1, 102)));
        const std::vector<QPointF> corners = textCorners(drawing.shape());
        EXPECT_NEAR(corners[0].x(), 1, 1e-9);
        EXPECT_NEAR(corners[0].y(), 2, 1e-9); // upwards: from one point to the other
        EXPECT_NEAR(corners[1].x(), 1, 1e-9);
        EXPECT_NEAR(corners[1].y(), 102, 1e-9);
        const double height = std::hypot(drawing.shape().points[2].x(), drawing.shape().points[2].y());
        EXPECT_NEAR(height, isFit ? 10 : 10 * 100 / widthOf("abc"), 1e-9);
    }
    EXPECT_EQ(Texts(text("abc", "72\n5\n" + point(11, 1, 2))).shape().points[0], QPointF(1, 2)); // no way
}

} // namespace
