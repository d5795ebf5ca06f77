// Splines, hatches, leaders and wide polylines: their shapes, how they are painted and where they are picked.
#include "standin/display/marks_image.h"
#include "standin/display/picking.h"
#include "tests/standin/shown_drawing.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace standin;
using namespace shown;

std::string square(double from, double to) {
    return "92\n2\n72\n0\n73\n1\n93\n4\n" + point(10, from, from) + point(10, to, from) + point(10, to, to) +
           point(10, from, to) + "97\n0\n";
}
std::string hatch(const std::string& loops, bool solid, const std::string& pattern = {},
                  const std::string& common = "8\n0\n") {
    return head("HATCH", "AcDbHatch", common) + "10\n0.0\n20\n0.0\n30\n0.0\n2\nP\n70\n" +
           (solid ? "1" : "0") + "\n71\n0\n91\n1\n" + loops + "75\n0\n76\n1\n" + pattern + "98\n0\n";
}
std::string family(double angle, double baseY, double offsetX, double offsetY,
                   const std::string& dashes = {}) {
    return "53\n" + std::to_string(angle) + "\n43\n0.0\n44\n" + std::to_string(baseY) + "\n45\n" +
           std::to_string(offsetX) + "\n46\n" + std::to_string(offsetY) + "\n79\n0\n" + dashes;
}
const std::string kRows = "52\n0.0\n41\n1.0\n77\n0\n78\n1\n" + family(0, 1, 0, 2);

std::string leader(const std::string& vertices, const std::string& more = {}) {
    return head("LEADER", "AcDbLeader") + "3\nStandard\n71\n1\n72\n0\n" + vertices + more;
}
const std::string kArrowOf3 = "1001\nACAD\n1000\nDSTYLE\n1002\n{\n1070\n41\n1040\n3.0\n1002\n}\n";

std::string polyline(const std::string& rest) { return head("LWPOLYLINE", "AcDbPolyline") + rest; }

TEST(SplineDisplay, IsAPathAlongTheCurve) {
    const Drawing drawing(head("SPLINE", "AcDbSpline") +
                          "70\n0\n71\n3\n40\n0\n40\n0\n40\n0\n40\n0\n40\n1\n40\n1\n"
                          "40\n1\n40\n1\n" +
                          point(10, 0, 0) + point(10, 0, 8) + point(10, 8, 8) + point(10, 8, 0));
    ASSERT_EQ(drawing.items.size(), 1u);
    EXPECT_EQ(drawing.shape().kind, Shape::Path);
    EXPECT_NEAR(drawing.items[0]->box.top, 6, 1e-9);
    EXPECT_EQ(itemAt(drawing.list, {4, 6.3}, 0.5, 1), drawing.items[0]->id);
    EXPECT_TRUE(itemAt(drawing.list, {4, 3}, 0.5, 1).isNull()); // within its box, away from the curve
    EXPECT_EQ(itemsIn(drawing.list, {3, 5, 5, 7}, true, 1).size(), 1u);
    EXPECT_TRUE(itemsIn(drawing.list, {3, 1, 5, 3}, true, 1).empty());
    EXPECT_TRUE(itemsIn(drawing.list, {3, 5, 5, 7}, false, 1).empty());
    EXPECT_EQ(itemsIn(drawing.list, {-1, -1, 9, 9}, false, 1).size(), 1u);
}

TEST(HatchDisplay, ASolidOneIsFilledBetweenItsBorders) {
    const Drawing drawing(hatch(square(0, 10) + square(3, 7), true, {}, "8\nRed\n"));
    ASSERT_EQ(drawing.items.size(), 1u);
    EXPECT_EQ(drawing.shape().ink, 0xffff0000u); // of its layer
    const Screen screen(drawing, {0, 0, 10, 10});
    EXPECT_EQ(screen.at(1.5, 5), QColor(Qt::red));
    EXPECT_EQ(screen.at(8.5, 5), QColor(Qt::red));
    EXPECT_EQ(screen.at(5, 5), QColor(Qt::black));
}

TEST(HatchDisplay, IsStillFilledWhenItsBordersAreFarOutOfSight) {
    const Drawing drawing(hatch(square(-1e9, 1e9) + square(3, 7), true));
    const Screen screen(drawing, {0, 0, 10, 10});
    EXPECT_EQ(screen.at(1, 5), QColor(Qt::white));
    EXPECT_EQ(screen.at(9, 9), QColor(Qt::white));
    EXPECT_EQ(screen.at(5, 5), QColor(Qt::black));
}

TEST(HatchDisplay, IsPickedInsideButNotInItsHoles) {
    const Drawing drawing(hatch(square(0, 100) + square(30, 70), true));
    const OdDbObjectId id = drawing.items.at(0)->id;
    EXPECT_EQ(itemAt(drawing.list, {15, 50}, 2, 1), id);
    EXPECT_EQ(itemAt(drawing.list, {31, 50}, 2, 1), id); // in the hole, within reach of its border
    EXPECT_TRUE(itemAt(drawing.list, {50, 50}, 2, 1).isNull());
    EXPECT_EQ(itemsIn(drawing.list, {10, 10, 20, 20}, true, 1), OdDbObjectIdArray{id}); // wholly within it
    EXPECT_TRUE(itemsIn(drawing.list, {40, 40, 60, 60}, true, 1).empty());
    EXPECT_EQ(itemsIn(drawing.list, {-1, -1, 101, 101}, false, 1), OdDbObjectIdArray{id});
}

TEST(HatchDisplay, IsMarkedByItsBordersSoThatWhatLiesUponItIsStillSeen) {
    const Drawing drawing(hatch(square(0, 10) + square(3, 7), true));
    PictureOrder scene;
    scene.list = &drawing.list;
    View& view = scene.view;
    view.resize({100, 100});
    view.fit({0, 0, 10, 10});
    MarksImage marks;
    marks.setPen(QPen(Qt::blue, 3));
    const QImage image = marks.finished(marks.orderOf({drawing.items.at(0)->id}, scene));
    const auto alphaAt = [&](double x, double y) {
        return image.pixelColor(view.toPixel({x, y}).toPoint()).alpha();
    };
    EXPECT_GT(alphaAt(0, 5), 200);
    EXPECT_GT(alphaAt(3, 5), 200);
    EXPECT_EQ(alphaAt(1.5, 5), 0);
    EXPECT_EQ(alphaAt(3, 1.5), 0); // no line joins the two borders
}

TEST(HatchDisplay, WhatLiesUponItIsPickedFirstWhicheverCameFirst) {
    const std::string line = head("LINE", "AcDbLine") + point(10, 10, 50) + point(11, 90, 50);
    for (const bool lineFirst : {true, false}) {
        const std::string area = hatch(square(0, 100), true);
        const Drawing drawing(lineFirst ? line + area : area + line);
        ASSERT_EQ(drawing.items.size(), 2u);
        EXPECT_EQ(itemAt(drawing.list, {50, 51}, 2, 1), drawing.items[lineFirst ? 0 : 1]->id);
        EXPECT_EQ(itemAt(drawing.list, {50, 60}, 2, 1), drawing.items[lineFirst ? 1 : 0]->id);
    }
}

TEST(HatchDisplay, APatternIsItsLinesCutByTheBorders) {
    const Drawing drawing(hatch(square(0, 10) + square(4, 6), false, kRows));
    const std::vector<QLineF>& lines = drawing.shape().area->hatching;
    ASSERT_EQ(lines.size(), 6u); // at 1, 3, 5 in two parts, 7 and 9
    EXPECT_EQ(lines[0], QLineF(0, 1, 10, 1));
    EXPECT_EQ(lines[2], QLineF(0, 5, 4, 5));
    EXPECT_EQ(lines[3], QLineF(6, 5, 10, 5));
    EXPECT_EQ(drawing.shape().area->finest, 2);
    const Screen screen(drawing, {0, 0, 10, 10});
    EXPECT_GT(screen.grey(5, 7), 100);
    EXPECT_EQ(screen.grey(5, 8), 0);
    EXPECT_EQ(screen.grey(5, 5), 0);
}

TEST(HatchDisplay, DashesBeginAtTheBaseOfTheirRow) {
    const std::string bricks = "78\n1\n" + family(0, 0, 2, 4, "49\n3.0\n49\n-1.0\n");
    const Drawing drawing(hatch(square(-1, 9), false, bricks));
    const std::vector<QLineF>& lines = drawing.shape().area->hatching;
    std::vector<QLineF> first, second;
    for (const QLineF& line : lines)
        (line.y1() == 0 ? first : second).push_back(line);
    ASSERT_EQ(first.size(), 3u); // the first border begins within a gap
    EXPECT_EQ(first[0], QLineF(0, 0, 3, 0));
    EXPECT_EQ(first[2], QLineF(8, 0, 9, 0));
    ASSERT_GE(second.size(), 3u);
    EXPECT_EQ(second[0], QLineF(-1, 4, 1, 4));
    EXPECT_EQ(second[1], QLineF(2, 4, 5, 4));
}

TEST(HatchDisplay, APatternTooFineOrWithoutLinesIsAShade) {
    for (const std::string& pattern :
         {std::string(), "78\n1\n" + family(0, 0, 0, 0.01), "78\n1\n" + family(0, 0, 0, 1e-12),
          "78\n1\n" + family(0, 0, 0, 0), "78\n1\n" + family(0, 0, 0, 1, "49\n1e-13\n49\n-1e-13\n")}) {
        const Drawing drawing(hatch(square(0, 10), false, pattern));
        ASSERT_EQ(drawing.items.size(), 1u) << pattern;
        const Screen screen(drawing, {0, 0, 10, 10});
        const int grey = screen.grey(5.05, 5.05);
        EXPECT_GT(grey, 20) << pattern;
        EXPECT_LT(grey, 128) << pattern;
        EXPECT_EQ(screen.grey(4.3, 6.2), grey) << pattern;
    }
}

TEST(HatchDisplay, HatchesInBlocksFollowTheirReference) {
    const std::string block = "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nB\n70\n0\n10\n0\n20\n0\n30\n0\n" +
                              hatch(square(0, 10), false, kRows, "8\n0\n62\n0\n") +
                              "0\nENDBLK\n8\n0\n0\nENDSEC\n";
    const Drawing drawing(head("INSERT", "AcDbBlockReference", "8\n0\n62\n5\n") +
                              "2\nB\n10\n100.0\n20\n0.0\n30\n0.0\n41\n2.0\n42\n2.0\n43\n2.0\n",
                          block);
    ASSERT_EQ(drawing.items.size(), 1u);
    EXPECT_EQ(drawing.shape().ink, 0xff0000ffu);
    EXPECT_EQ(drawing.shape().area->hatching.at(0), QLineF(100, 2, 120, 2));
    EXPECT_EQ(drawing.shape().area->finest, 4);
    EXPECT_EQ(drawing.items[0]->box.right, 120);
    EXPECT_EQ(itemAt(drawing.list, {110, 11}, 0.5, 1), drawing.items[0]->id);
}

TEST(LeaderDisplay, IsALineWithAFilledHead) {
    const Drawing drawing(leader(point(10, 0, 0) + point(10, 20, 0) + point(10, 30, 5), kArrowOf3));
    ASSERT_EQ(drawing.items.size(), 1u);
    ASSERT_EQ(drawing.items[0]->shapes.size(), 2u);
    EXPECT_EQ(drawing.shape(0).points, (std::vector<QPointF>{{0, 0}, {20, 0}, {30, 5}}));
    EXPECT_EQ(drawing.shape(1).kind, Shape::Fill);
    EXPECT_EQ(drawing.shape(1).points, (std::vector<QPointF>{{0, 0}, {3, 0.5}, {3, -0.5}}));
    EXPECT_EQ(itemAt(drawing.list, {25, 2.6}, 0.5, 1), drawing.items[0]->id);
}

TEST(LeaderDisplay, AShortFirstLineHasASmallHead) {
    const Drawing drawing(leader(point(10, 0, 0) + point(10, 2, 0), kArrowOf3));
    EXPECT_EQ(drawing.shape(1).points.at(1).x(), 1);
}

TEST(LeaderDisplay, OneWithoutHeadIsALine) {
    const Drawing drawing(head("LEADER", "AcDbLeader") + "71\n0\n" + point(10, 0, 0) + point(10, 20, 0));
    EXPECT_EQ(drawing.items.at(0)->shapes.size(), 1u);
}

TEST(WidePolylineDisplay, IsFilledToItsWidthWithMitredCorners) {
    const Drawing drawing(
        polyline("70\n0\n43\n2.0\n" + point(10, 0, 0) + point(10, 10, 0) + point(10, 10, 10)));
    ASSERT_EQ(drawing.items.size(), 1u);
    const Box& box = drawing.items[0]->box;
    EXPECT_NEAR(box.left, 0, 1e-9);
    EXPECT_NEAR(box.bottom, -1, 1e-9);
    EXPECT_NEAR(box.right, 11, 1e-9);
    EXPECT_NEAR(box.top, 10, 1e-9);
    const Screen screen(drawing, {-2, -2, 12, 12});
    EXPECT_EQ(screen.at(5, 0.6), QColor(Qt::white));
    EXPECT_EQ(screen.at(10.7, -0.7), QColor(Qt::white)); // the corner
    EXPECT_EQ(screen.at(8, 2), QColor(Qt::black));
    EXPECT_EQ(itemAt(drawing.list, {5, 0.6}, 0.1, 1), drawing.items[0]->id);
}

TEST(WidePolylineDisplay, AClosedOneIsARingAndItsArcsBend) {
    const Drawing drawing(
        polyline("70\n1\n43\n2.0\n" + point(10, -5, 0) + "42\n1.0\n" + point(10, 5, 0) + "42\n1.0\n"));
    const Box& box = drawing.items.at(0)->box;
    EXPECT_NEAR(box.top, 6, 0.02);
    EXPECT_NEAR(box.right, 6, 0.02);
    const Screen screen(drawing, {-6, -6, 6, 6});
    for (int step = 0; step < 16; ++step) {
        const double angle = step * M_PI / 8;
        EXPECT_EQ(screen.at(5 * std::cos(angle), 5 * std::sin(angle)), QColor(Qt::white)) << step;
        EXPECT_EQ(screen.at(3 * std::cos(angle), 3 * std::sin(angle)), QColor(Qt::black)) << step;
    }
}

// Each of them is nothing to see.
class BadShapes : public testing::TestWithParam<std::string> {};

TEST_P(BadShapes, AreNotShown) {
    const Drawing drawing(GetParam());
    EXPECT_TRUE(drawing.items.empty());
    EXPECT_TRUE(drawing.list.extents().isEmpty());
}

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    return text.replace(text.find(from), from.size(), to);
}

INSTANTIATE_TEST_SUITE_P(
    Display, BadShapes,
    testing::Values(head("SPLINE", "AcDbSpline") + "71\n3\n",
                    head("SPLINE", "AcDbSpline") + "71\n3\n" + point(10, 1, 1),
                    head("SPLINE", "AcDbSpline") + "71\n3\n" + point(10, 1, 1) + "10\nnan\n20\n1.0\n",
                    head("SPLINE", "AcDbSpline") + "71\n1\n40\n0\n40\n0\n40\n1\n40\n1\n41\n0.0\n41\n0.0\n" +
                        point(10, 0, 0) + point(10, 1, 1),
                    hatch({}, true),
                    hatch("92\n2\n72\n0\n73\n1\n93\n2\n" + point(10, 0, 0) + point(10, 5, 5), true),
                    hatch(replaced(square(0, 10), "10.000000", "nan"), true),
                    hatch(replaced(square(0, 10), "10.000000", "1e300"), true),
                    hatch(replaced(square(0, 10), "10.000000", "-inf"), false, kRows),
                    leader(point(10, 5, 5)), leader({}), leader(point(10, 5, 5) + "10\ninf\n20\n0.0\n"),
                    leader(point(10, 5, 5) + "10\n1e200\n20\n0.0\n"), polyline("70\n0\n43\n2.0\n"),
                    polyline("70\n0\n43\n2.0\n" + point(10, 0, 0) + "10\nnan\n20\n0.0\n")));

TEST(AreaDisplay, WidthsOfWhichNothingCanBeMadeLeaveTheLine) {
    for (const char* width : {"nan", "inf", "-3.0", "1e-300", "1e300"}) {
        const Drawing drawing(
            polyline(std::string("70\n0\n43\n") + width + "\n" + point(10, 0, 0) + point(10, 10, 0)));
        ASSERT_EQ(drawing.items.size(), 1u) << width;
        EXPECT_EQ(drawing.shape().kind, Shape::Path) << width;
    }
}

// A square whose left side goes up and down through the whole picture so many times.
std::string tangle(int sides) {
    std::string corners;
    for (int i = 0; i < sides; ++i)
        corners += point(10, 10.0 * i / sides, i % 2 == 0 ? 0 : 1000);
    return hatch("92\n2\n72\n0\n73\n1\n93\n1\n" + corners + point(10, 1000, 1000) + point(10, 1000, 0) +
                     "97\n0\n",
                 true);
}

TEST(AreaDisplay, ATangleThatWouldTakeTooLongToFillIsItsOutline) {
    const Box all{0, 0, 1000, 1000};
    EXPECT_EQ(Screen(Drawing(tangle(400)), all).at(500, 500), QColor(Qt::white));
    const Screen outline(Drawing(tangle(40000)), all);
    EXPECT_EQ(outline.at(500, 500), QColor(Qt::black));
    EXPECT_GT(outline.grey(5, 500), 100);
}

TEST(AreaDisplay, AnEndlessSplineHasNoMorePointsThanCanBeHandled) {
    const int controls = 100000;
    std::string text = head("SPLINE", "AcDbSpline") + "70\n0\n71\n15\n";
    for (int i = 0; i < controls + 16; ++i)
        text += "40\n" + std::to_string(i) + "\n";
    for (int i = 0; i < controls; ++i)
        text += point(10, i, i % 100);
    const Drawing drawing(text);
    ASSERT_EQ(drawing.items.size(), 1u);
    EXPECT_GT(drawing.shape().points.size(), 100000u);
    EXPECT_LT(drawing.shape().points.size(), 300000u);
}

TEST(AreaDisplay, PatternsOfManyLinesAreBoundedForTheDrawingAsAWhole) {
    const std::string fine = hatch(square(0, 10), false, "78\n1\n" + family(0, 0, 0, 0.001));
    std::string all;
    for (int i = 0; i < 150; ++i)
        all += fine;
    const Drawing drawing(all);
    std::size_t lines = 0;
    for (const Item* item : drawing.items)
        lines += item->shapes.at(0).area->hatching.size();
    EXPECT_EQ(drawing.items.size(), 150u);
    EXPECT_GT(lines, 900000u);
    EXPECT_LE(lines, ItemBuilder::kMostHatchLines);
}

} // namespace
