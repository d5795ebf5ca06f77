// The arithmetic below the pictures: clipping, views, arcs, texts, areas, wide lines and places that are
// found.
#include "standin/display/clipping.h"
#include "standin/display/letters.h"
#include "standin/display/picking.h"
#include "standin/display/view.h"
#include "standin/display/wide_line.h"
#include "tests/standin/shown_drawing.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace standin;
using namespace shown;

using Points = std::vector<QPointF>;

std::string clipped(QPointF a, QPointF b) {
    if (!clipLine(QRectF(0, 0, 10, 20), a, b))
        return "out";
    std::string text;
    for (const double number : {a.x(), a.y(), b.x(), b.y()})
        text += QString::number(number).toStdString() + " ";
    return text;
}

TEST(Clipping, OfLinesKeepsWhatIsInTheArea) {
    EXPECT_EQ(clipped({1, 2}, {9, 18}), "1 2 9 18 ");
    EXPECT_EQ(clipped({-5, 5}, {15, 5}), "0 5 10 5 ");
    EXPECT_EQ(clipped({15, 5}, {-5, 5}), "10 5 0 5 ");
    EXPECT_EQ(clipped({5, -10}, {5, 30}), "5 0 5 20 ");
    EXPECT_EQ(clipped({5, 30}, {5, -10}), "5 20 5 0 ");
    EXPECT_EQ(clipped({-5, 0}, {5, 10}), "0 5 5 10 ");
    EXPECT_EQ(clipped({-5, -0.5}, {15, -0.5}), "out");
    EXPECT_EQ(clipped({-5, 20.5}, {15, 20.5}), "out");
    EXPECT_EQ(clipped({-0.5, 5}, {-0.5, 6}), "out");
    EXPECT_EQ(clipped({10.5, 5}, {10.5, 6}), "out");
    EXPECT_EQ(clipped({0, 5}, {0, 6}), "0 5 0 6 ") << "on the left side";
    EXPECT_EQ(clipped({10, 20}, {10, 30}), "10 20 10 20 ") << "a corner is touched";
    EXPECT_EQ(clipped({-5, 15}, {5, 25}), "0 20 0 20 ");
    EXPECT_EQ(clipped({-6, 15}, {5, 26}), "out") << "past the corner";
    EXPECT_EQ(clipped({3, 4}, {3, 4}), "3 4 3 4 ");
    EXPECT_EQ(clipped({-3, 4}, {-3, 4}), "out");
    EXPECT_EQ(clipped({0.25, 4}, {0.5, 4}), "0.25 4 0.5 4 ") << "steps shorter than a pixel";
}

TEST(Clipping, OfPolygonsKeepsWhatIsInTheArea) {
    const QRectF area(0, 0, 10, 10);
    EXPECT_EQ(clippedPolygon(area, {}), QPolygonF());
    EXPECT_EQ(clippedPolygon(area, QPolygonF({{2, 2}, {8, 2}, {8, 8}})), QPolygonF({{2, 2}, {8, 2}, {8, 8}}));
    EXPECT_EQ(clippedPolygon(area, QPolygonF({{-5, 5}, {5, 5}, {5, 8}, {-5, 8}})),
              QPolygonF({{0, 5}, {5, 5}, {5, 8}, {0, 8}}));
    EXPECT_EQ(clippedPolygon(area, QPolygonF({{5, 5}, {15, 5}, {15, 8}, {5, 8}})),
              QPolygonF({{5, 5}, {10, 5}, {10, 8}, {5, 8}}));
    EXPECT_EQ(clippedPolygon(area, QPolygonF({{2, -4}, {4, -4}, {4, 4}, {2, 4}})),
              QPolygonF({{2, 0}, {4, 0}, {4, 4}, {2, 4}}));
    EXPECT_EQ(clippedPolygon(area, QPolygonF({{2, 6}, {4, 6}, {4, 14}, {2, 14}})),
              QPolygonF({{2, 10}, {2, 6}, {4, 6}, {4, 10}}));
    EXPECT_TRUE(clippedPolygon(area, QPolygonF({{20, 2}, {30, 2}, {30, 8}})).isEmpty());
    EXPECT_EQ(clippedPolygon(area, QPolygonF({{0, 0}, {10, 0}, {10, 10}})).size(), 3) << "on the border";
}

TEST(Views, ShowAPartOfTheDrawing) {
    View view = View::of({10, 20, 30, 60}, 2, 5);
    EXPECT_EQ(view.size(), QSize(51, 91));
    EXPECT_EQ(view.scale(), 2);
    EXPECT_EQ(view.toPixel({20, 40}), QPointF(25.5, 45.5));
    EXPECT_EQ(view.toPixel({21, 42}), QPointF(27.5, 41.5));
    EXPECT_EQ(view.toDrawing({27.5, 41.5}), QPointF(21, 42));
    EXPECT_EQ(view.visible().left, 20 - 12.75);
    EXPECT_EQ(view.visible().right, 20 + 12.75);
    EXPECT_EQ(view.visible().bottom, 40 - 22.75);
    EXPECT_EQ(view.visible().top, 40 + 22.75);
    EXPECT_EQ(view.drawingToPixels().map(QPointF(21, 42)), QPointF(27.5, 41.5));
    EXPECT_EQ(view.pixelsToDrawing().map(QPointF(27.5, 41.5)), QPointF(21, 42));
    view.panBy({4, 6});
    EXPECT_EQ(view.toPixel({20, 40}), QPointF(29.5, 51.5));
    view.zoomAt({29.5, 51.5}, 3);
    EXPECT_EQ(view.scale(), 6);
    EXPECT_NEAR(view.toPixel({20, 40}).x(), 29.5, 1e-9);
    EXPECT_NEAR(view.toPixel({20, 40}).y(), 51.5, 1e-9);
}

TEST(Views, FitABoxWithAMargin) {
    View view;
    view.resize({100, 200});
    view.fit({0, 0, 10, 10});
    EXPECT_DOUBLE_EQ(view.scale(), 9.4);
    EXPECT_EQ(view.toPixel({5, 5}), QPointF(50, 100));
    view.fit({0, 0, 10, 47});
    EXPECT_DOUBLE_EQ(view.scale(), 4);
    view.fit({0, 7, 20, 7});
    EXPECT_DOUBLE_EQ(view.scale(), 4.7);
    view.fit({3, 0, 3, 18.8});
    EXPECT_DOUBLE_EQ(view.scale(), 10);
    view.fit({8, 9, 8, 9});
    EXPECT_DOUBLE_EQ(view.scale(), 10) << "a point is only put into the middle";
    EXPECT_EQ(view.toPixel({8, 9}), QPointF(50, 100));
    view.fit(Box());
    EXPECT_EQ(view.toPixel({8, 9}), QPointF(50, 100));
    view.setScale(1e30);
    EXPECT_EQ(view.scale(), 1e9);
    view.setScale(0);
    EXPECT_EQ(view.scale(), 1e-9);
}

Shape arc(double radius, double start, double sweep) {
    return {Shape::Arc, {}, {{0, 0}, {radius, 0}, {0, radius}, {start, sweep}}, {}};
}

TEST(Arcs, HaveAsManyPointsAsMakeThemSmooth) {
    EXPECT_EQ(arcPoints(arc(1, 0, 2 * M_PI), 1).size(), 5u) << "no fewer than four pieces";
    EXPECT_EQ(arcPoints(arc(0.5, 0, 0.01), 1).size(), 5u);
    EXPECT_EQ(arcPoints(arc(100, 0, 2 * M_PI), 1).size(), 46u);
    EXPECT_EQ(arcPoints(arc(100, 0, M_PI), 1).size(), 24u);
    EXPECT_EQ(arcPoints(arc(1, 0, 2 * M_PI), 100).size(), 46u);
    EXPECT_EQ(arcPoints(arc(1e9, 0, 2 * M_PI), 1e3).size(), 4001u) << "and no more than 4000";
    Shape flat = arc(100, 0, 2 * M_PI);
    flat.points[1] = {1, 0};
    EXPECT_EQ(arcPoints(flat, 1).size(), 46u) << "the longer half axis counts";
    flat = arc(100, 0, 2 * M_PI);
    flat.points[2] = {0, 1};
    EXPECT_EQ(arcPoints(flat, 1).size(), 46u);
    const Points quarter = arcPoints(arc(2, M_PI / 2, M_PI / 2), 1);
    EXPECT_NEAR(quarter.front().y(), 2, 1e-12);
    EXPECT_NEAR(quarter.back().x(), -2, 1e-12);
    EXPECT_NEAR(quarter[2].x(), -std::sqrt(2), 1e-12);
}

TEST(Shapes, AreDrawnWithinBoundsAlone) {
    const auto path = [](double x, double y) { return isDrawable({Shape::Path, {}, {{0, 0}, {x, y}}, {}}); };
    EXPECT_FALSE(isDrawable({Shape::Path, {}, {}, {}})) << "nothing to draw";
    EXPECT_TRUE(path(9e14, -9e14));
    for (const double bad : {1e15, -1e15, 2e15, double(NAN), double(INFINITY)}) {
        EXPECT_FALSE(path(bad, 0)) << bad;
        EXPECT_FALSE(path(0, bad)) << bad;
    }
}

TEST(Shapes, OfAnAreaHaveTheirInsideByTheirRule) {
    auto area = std::make_shared<Area>();
    area->starts = {4};
    // Both squares go round the same way.
    Shape fill{Shape::Fill, {}, {{0, 0}, {9, 0}, {9, 9}, {0, 9}, {3, 3}, {6, 3}, {6, 6}, {3, 6}}, {}};
    fill.area = area;
    EXPECT_TRUE(isInside(fill, {1, 1}));
    EXPECT_FALSE(isInside(fill, {4, 4})) << "twice around, and so out";
    EXPECT_FALSE(isInside(fill, {10, 4}));
    EXPECT_FALSE(isInside(fill, {-1, 4}));
    EXPECT_FALSE(isInside(fill, {4, 10}));
    area->rule = Qt::WindingFill;
    EXPECT_TRUE(isInside(fill, {4, 4}));
    EXPECT_FALSE(isInside(fill, {10, 4}));
    std::swap(fill.points[5], fill.points[7]);
    EXPECT_FALSE(isInside(fill, {4, 4})) << "back and forth";
    EXPECT_TRUE(isInside(fill, {1, 1}));
    EXPECT_EQ(bordersOf(fill)[0], (Points{{0, 0}, {9, 0}, {9, 9}, {0, 9}, {0, 0}}));
    EXPECT_EQ(bordersOf(fill)[1], (Points{{3, 3}, {3, 6}, {6, 6}, {6, 3}, {3, 3}}));
    EXPECT_EQ(bordersOf(fill).size(), 2u);
}

TEST(Shapes, OfATextHaveItsCorners) {
    const double width = lettersOf("ab").width;
    const Shape text{Shape::Text, {}, {{10, 20}, {2, 0}, {1, 3}, {0.5, 1}}, "ab"};
    const Points corners = textCorners(text);
    const QPointF corner(10 - width - 1, 20 - 3);
    EXPECT_NEAR(corners[0].x(), corner.x(), 1e-12);
    EXPECT_NEAR(corners[0].y(), corner.y(), 1e-12);
    EXPECT_NEAR(corners[1].x(), corner.x() + 2 * width, 1e-12);
    EXPECT_NEAR(corners[1].y(), corner.y(), 1e-12);
    EXPECT_NEAR(corners[2].x(), corner.x() + 2 * width + 1, 1e-12);
    EXPECT_NEAR(corners[2].y(), corner.y() + 3, 1e-12);
    EXPECT_NEAR(corners[3].x(), corner.x() + 1, 1e-12);
    EXPECT_NEAR(corners[3].y(), corner.y() + 3, 1e-12);
}

TEST(Letters, AreAsLargeAsTheirCapitals) {
    const Letters& letter = lettersOf("H");
    EXPECT_NEAR(letter.outline.boundingRect().height(), 1, 0.01);
    EXPECT_NEAR(letter.outline.boundingRect().top(), 0, 1e-3) << "it stands on its base line";
    EXPECT_GT(letter.width, 0.8);
    EXPECT_LT(letter.width, 1.2);
    EXPECT_GT(lettersOf("H", true).width, letter.width);
    EXPECT_EQ(lettersOf("").width, 0);
}

TEST(LineWeights, ArePixelsOfAScreenOf96DotsToTheInch) {
    EXPECT_EQ(weightInPixels(0), 1);
    EXPECT_EQ(weightInPixels(25), 1);
    EXPECT_DOUBLE_EQ(weightInPixels(254), 9.6);
}

TEST(WideLines, NeedAWidthAndTwoPlaces) {
    const Points path{{0, 0}, {10, 0}};
    EXPECT_EQ(wideBorders(path, false, 2).size(), 1u);
    EXPECT_TRUE(wideBorders({}, false, 2).empty());
    EXPECT_TRUE(wideBorders({{1, 1}}, false, 2).empty());
    EXPECT_TRUE(wideBorders({{1, 1}, {1, 1}, {1, 1}}, true, 2).empty());
    EXPECT_TRUE(wideBorders({{1, 1}, {1 + 1e-6, 1}}, true, 2).empty()) << "steps of less than 1e-6 widths";
    EXPECT_FALSE(wideBorders({{0, 0}, {1e-5, 0}}, false, 2).empty());
    EXPECT_TRUE(wideBorders(path, false, 0).empty());
    EXPECT_TRUE(wideBorders(path, false, -1).empty());
    EXPECT_TRUE(wideBorders(path, false, NAN).empty());
    EXPECT_FALSE(wideBorders({{0, 0}, {0.9e9, -0.9e9}}, false, 1).empty());
    EXPECT_TRUE(wideBorders({{0, 0}, {1.1e9, 0}}, false, 1).empty());
    EXPECT_TRUE(wideBorders({{0, 0}, {0, -1.1e9}}, false, 1).empty());
}

std::string line(double x1, double y1, double x2, double y2) {
    return head("LINE", "AcDbLine") + point(10, x1, y1) + point(11, x2, y2);
}

TEST(Picking, FindsWhatIsWithinReach) {
    const Drawing drawing(line(0, 0, 10, 0));
    const OdDbObjectId id = drawing.items.at(0)->id;
    for (const QPointF& place : {QPointF(5, 2), {5, -2}, {-2, 0}, {12, 0}, {0, 0}, {11.4, 1.4}, {-1.4, -1.4}})
        EXPECT_EQ(itemAt(drawing.list, place, 2, 1), id) << place.x() << "," << place.y();
    for (const QPointF& place : {QPointF(5, 2.1), {5, -2.1}, {-2.1, 0}, {12.1, 0}, {11.5, 1.5}, {-1.5, -1.5}})
        EXPECT_TRUE(itemAt(drawing.list, place, 2, 1).isNull()) << place.x() << "," << place.y();
}

TEST(Picking, TakesTheLaterOfTwoThatAreAsNear) {
    const Drawing drawing(line(0, 0, 10, 0) + line(0, 2, 10, 2));
    EXPECT_EQ(itemAt(drawing.list, {5, 1}, 3, 1), drawing.items[1]->id);
    EXPECT_EQ(itemAt(drawing.list, {5, 0.9}, 3, 1), drawing.items[0]->id);
}

TEST(Picking, TakesTextsAnywhereInTheirBox) {
    const Drawing drawing(head("TEXT", "AcDbText") + point(10, 0, 0) + "40\n10\n1\nHHHH\n");
    const double width = 10 * lettersOf("HHHH").width;
    const OdDbObjectId id = drawing.items.at(0)->id;
    EXPECT_EQ(itemAt(drawing.list, {width / 2, 5}, 0.5, 1), id);
    EXPECT_EQ(itemAt(drawing.list, {width + 0.4, 5}, 0.5, 1), id);
    EXPECT_TRUE(itemAt(drawing.list, {width + 0.6, 5}, 0.5, 1).isNull());
    EXPECT_EQ(itemsIn(drawing.list, {1, 1, 2, 2}, true, 1).size(), 0u) << "a window within the letters";
    EXPECT_EQ(itemsIn(drawing.list, {-1, 1, 2, 2}, true, 1).size(), 1u);
}

TEST(Picking, TakesMarksOfMissingReferencesByTheirPixels) {
    const Drawing drawing(head("INSERT", "AcDbBlockReference") + "2\nNOWHERE\n" + point(10, 100, 100));
    const OdDbObjectId id = drawing.items.at(0)->id;
    for (const double scale : {1.0, 4.0}) {
        EXPECT_EQ(itemAt(drawing.list, {100 + 11 / scale, 100}, 0, scale), id) << scale;
        EXPECT_EQ(itemAt(drawing.list, {100, 100 - 11 / scale}, 0, scale), id) << scale;
        EXPECT_TRUE(itemAt(drawing.list, {100 + 13 / scale, 100}, 0, scale).isNull()) << scale;
        EXPECT_EQ(itemAt(drawing.list, {100 + 13 / scale, 100}, 1.5 / scale, scale), id) << scale;
    }
}

TEST(Picking, ByWindowsTakesWhatTheyHoldOrTouch) {
    const Drawing drawing(line(0, 0, 10, 10));
    struct Window {
        Box box;
        bool inside, crossing;
    };
    for (const Window& each : {Window{{-1, -1, 11, 11}, true, true},
                               {{0, 0, 10, 10}, true, true},
                               {{1, 1, 11, 11}, false, true},
                               {{4, 4, 6, 6}, false, true},
                               {{4, 0, 6, 6}, false, true},
                               {{6, 0, 10, 4}, false, false},
                               {{0, 6, 4, 10}, false, false},
                               {{5, 5, 5, 5}, false, true},
                               {{10, 10, 20, 20}, false, true},
                               {{11, 0, 20, 20}, false, false},
                               {{4, 2, 6, 4}, false, true},
                               {{6, 2, 8, 5.5}, false, false}}) {
        const std::string name = QString("%1 %2 %3 %4")
                                     .arg(each.box.left)
                                     .arg(each.box.bottom)
                                     .arg(each.box.right)
                                     .arg(each.box.top)
                                     .toStdString();
        EXPECT_EQ(itemsIn(drawing.list, each.box, false, 1).size(), each.inside ? 1u : 0u) << name;
        EXPECT_EQ(itemsIn(drawing.list, each.box, true, 1).size(), each.crossing ? 1u : 0u) << name;
    }
}

TEST(Picking, OfAStretchOfNoLengthGoesByItsPlace) {
    const Drawing drawing(line(5, 5, 5, 5));
    EXPECT_FALSE(itemAt(drawing.list, {6, 5}, 1, 1).isNull());
    EXPECT_TRUE(itemAt(drawing.list, {6.1, 5}, 1, 1).isNull());
}

std::vector<int> foundIn(const SpatialIndex& index, const Box& box) {
    std::vector<int> found;
    index.visit(box, [&](int item) { found.push_back(item); });
    std::sort(found.begin(), found.end());
    return found;
}

TEST(SpatialIndexes, LookOnlyWhereSomethingMayBe) {
    SpatialIndex index(Box{0, 0, 64, 64});
    const Box corners[] = {{1, 1, 2, 2}, {62, 1, 63, 2}, {1, 62, 2, 63}, {62, 62, 63, 63}};
    for (int i = 0; i < 4; ++i)
        index.insert(i, corners[i]);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(foundIn(index, corners[i]), std::vector<int>{i});
    EXPECT_EQ(foundIn(index, {0, 0, 64, 64}), (std::vector<int>{0, 1, 2, 3}));
    EXPECT_TRUE(foundIn(index, {30, 30, 34, 34}).empty());
    index.insert(4, {-500, -500, -400, -400});
    index.insert(5, {0, 0, 64, 64});
    EXPECT_EQ(foundIn(index, {30, 30, 34, 34}), (std::vector<int>{4, 5}))
        << "what lies outside is always met";
    index.remove(4, {-500, -500, -400, -400});
    index.remove(5, {0, 0, 64, 64});
    index.remove(2, corners[2]);
    EXPECT_EQ(foundIn(index, {0, 0, 64, 64}), (std::vector<int>{0, 1, 3}));
}

TEST(SpatialIndexes, EndWhereTheVisitorSaysSo) {
    SpatialIndex index(Box{0, 0, 64, 64});
    for (int i = 0; i < 20; ++i)
        index.insert(i, {i * 3.0, 1, i * 3.0 + 1, 2});
    index.insert(20, {-500, -500, -400, -400});
    for (const int most : {1, 2, 7}) {
        int visited = 0;
        index.visitWhile({0, 0, 64, 64}, [&](int) { return ++visited < most; });
        EXPECT_EQ(visited, most);
    }
}

std::string dashed(const std::vector<double>& pattern, double scale, const QLineF& shown, double hidden = 0) {
    Dasher dasher(pattern, scale);
    if (dasher.isPlain())
        return "plain";
    QVector<QLineF> lines;
    dasher.add(shown, hidden, shown.length() + hidden, lines);
    std::string text;
    for (const QLineF& line : lines)
        text += QString("%1-%2 ").arg(line.x1()).arg(line.x2()).toStdString();
    return text;
}

TEST(Dashers, PartALine) {
    EXPECT_EQ(dashed({4, -2}, 1, {0, 0, 14, 0}), "0-4 6-10 12-14 ");
    EXPECT_EQ(dashed({4, -2}, 2, {0, 0, 14, 0}), "0-8 12-14 ");
    EXPECT_EQ(dashed({4, -2}, 1, {0, 0, 14, 0}, 3), "0-1 3-7 9-13 ");
    EXPECT_EQ(dashed({4, -2}, 1, {0, 0, 14, 0}, 4), "2-6 8-12 ");
    EXPECT_EQ(dashed({4, -2}, 1, {0, 0, 14, 0}, 605), "1-5 7-11 13-14 ");
    EXPECT_EQ(dashed({-2, 4}, 1, {0, 0, 14, 0}), "2-6 8-12 ") << "it may begin with a gap";
    EXPECT_EQ(dashed({4, -2, 0, -2}, 1, {0, 0, 14, 0}), "0-4 6-7 9-13 ") << "a dot is a pixel";
    EXPECT_EQ(dashed({2, 2, -1, -1}, 1, {0, 0, 14, 0}), "0-4 6-10 12-14 ") << "neighbours are one";
    EXPECT_EQ(dashed({1, -1}, 1, {0, 0, 14, 0}), "plain") << "less than 3 pixels in all";
    EXPECT_EQ(dashed({2, -1}, 1, {0, 0, 6, 0}), "0-2 3-5 ");
    EXPECT_EQ(dashed({9}, 1, {0, 0, 6, 0}), "plain");
    EXPECT_EQ(dashed({}, 1, {0, 0, 6, 0}), "plain");
    EXPECT_EQ(dashed({NAN, -1}, 1, {0, 0, 6, 0}), "plain");
}

} // namespace
