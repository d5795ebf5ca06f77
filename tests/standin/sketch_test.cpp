// What a sketch draws of each kind of shape, pixel by pixel: enough to see where everything is.
#include "standin/display/sketch.h"

#include <gtest/gtest.h>

namespace {

using namespace standin;

const QRgb kRed = 0xffff0000u;

// A view of one pixel for a unit, 100 by 100, with (0,0) at pixel (50,50).
struct Sketched {
    explicit Sketched(const std::vector<Shape>& shapes, double ratio = 1, bool hasPen = false) {
        Item item;
        for (Shape shape : shapes) {
            shape.box = boxOf(shape);
            shape.ink = kRed;
            item.box.add(shape.box);
            item.reach.add(reachOf(shape));
            item.shapes.push_back(shape);
        }
        PictureOrder order;
        order.view.resize({100, 100});
        order.ratio = ratio;
        order.only = std::make_shared<const std::vector<const Item*>>(1, &item);
        if (hasPen)
            order.pen = QPen(Qt::cyan, 2);
        image = QImage((QSizeF(100, 100) * ratio).toSize(), QImage::Format_RGB32);
        image.fill(Qt::black);
        Sketch(image, order, {}).draw();
    }
    QRect ink() const {
        QRect rect;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (isInked(x, y))
                    rect |= QRect(x, y, 1, 1);
        return rect;
    }
    bool isInked(int x, int y) const { return image.pixel(x, y) != 0xff000000u; }
    QImage image;
};

QRect between(int left, int top, int right, int bottom) { return {QPoint(left, top), QPoint(right, bottom)}; }

Shape text(double height, const QPointF& before) {
    return {Shape::Text, {}, {{0, 0}, {height, 0}, {0, height}, before}, "four"};
}

struct SketchCase {
    const char* title;
    Shape shape;
    QRect ink;
    double ratio = 1;
    int tolerance = 0; // of each side, in pixels
};

class SketchedShapes : public testing::TestWithParam<SketchCase> {};

TEST_P(SketchedShapes, ReachAsFarAsWhatTheyStandFor) {
    const SketchCase& each = GetParam();
    const QRect ink = Sketched({each.shape}, each.ratio).ink();
    EXPECT_NEAR(ink.left(), each.ink.left(), each.tolerance);
    EXPECT_NEAR(ink.top(), each.ink.top(), each.tolerance);
    EXPECT_NEAR(ink.right(), each.ink.right(), each.tolerance);
    EXPECT_NEAR(ink.bottom(), each.ink.bottom(), each.tolerance);
}

// Letters are about 0.9 of their height wide. Circles have corners.
INSTANTIATE_TEST_SUITE_P(
    Kinds, SketchedShapes,
    testing::Values(
        SketchCase{"Path", {Shape::Path, {}, {{-40, -30}, {40, 30}}, {}}, between(10, 20, 90, 80)},
        SketchCase{"PathAtTwoPixelsToOne",
                   {Shape::Path, {}, {{-40, -30}, {40, 30}}, {}},
                   between(20, 40, 180, 160),
                   2},
        SketchCase{
            "PathBeyondTheWindow", {Shape::Path, {}, {{-400, 0}, {400, 0}}, {}}, between(0, 50, 99, 50)},
        SketchCase{"Circle",
                   {Shape::Arc, {}, {{0, 0}, {30, 0}, {0, 30}, {0, 2 * M_PI}}, {}},
                   between(20, 20, 80, 80),
                   1,
                   1},
        SketchCase{"QuarterOfACircle",
                   {Shape::Arc, {}, {{0, 0}, {30, 0}, {0, 30}, {0, M_PI / 2}}, {}},
                   between(50, 20, 80, 50)},
        SketchCase{"Text", text(10, {0, 0}), between(50, 40, 86, 50)},
        SketchCase{"TextHungInTheMiddle", text(10, {0.5, 0.5}), between(32, 45, 68, 55)},
        SketchCase{"SmallText", text(3, {0, 0}), between(50, 50, 60, 50)},
        SketchCase{"Dot", {Shape::Dot, {}, {{10, 0}}, {}}, between(59, 49, 61, 51)},
        SketchCase{
            "MarkOfAPartOfTheWindow", {Shape::Dot, {}, {{10, 0}, {2, 20}}, {}}, between(40, 30, 80, 70)},
        SketchCase{
            "MarkAtTwoPixelsToOne", {Shape::Dot, {}, {{10, 0}, {2, 20}}, {}}, between(80, 60, 160, 140), 2},
        SketchCase{"Missing", {Shape::Missing, {}, {{0, 0}}, "name"}, between(38, 38, 62, 62)},
        SketchCase{"AlmostAPoint", {Shape::Path, {}, {{5, 5}, {6, 6}}, {}}, between(55, 44, 55, 44)}),
    [](const auto& each) { return std::string(each.param.title); });

TEST(Sketches, OfFilledAreasAreAllTheirBordersClosed) {
    auto area = std::make_shared<Area>();
    area->starts = {4};
    Shape fill{Shape::Fill,
               {},
               {{-40, -40}, {40, -40}, {40, 40}, {-40, 40}, {-10, -10}, {10, -10}, {10, 10}, {-10, 10}},
               {}};
    fill.area = area;
    const Sketched sketched({fill});
    EXPECT_TRUE(sketched.isInked(90, 50)) << "the outer border";
    EXPECT_TRUE(sketched.isInked(60, 50)) << "the inner border";
    EXPECT_TRUE(sketched.isInked(40, 50)) << "its last side, which leads back to its first corner";
    EXPECT_FALSE(sketched.isInked(50, 50));
    EXPECT_FALSE(sketched.isInked(75, 50)) << "no line leads from the one to the other";
}

TEST(Sketches, InAPenOfTheirOwnAreTwoPixelsWide) {
    const Shape line{Shape::Path, {}, {{-40, 0}, {40, 0}}, {}};
    const Sketched plain({line}), marked({line}, 1, true);
    EXPECT_EQ(plain.ink(), between(10, 50, 90, 50));
    EXPECT_EQ(plain.image.pixelColor(50, 50), QColor(Qt::red));
    EXPECT_EQ(marked.ink(), between(10, 50, 91, 51));
    EXPECT_EQ(marked.image.pixelColor(50, 50), QColor(Qt::cyan));
    const Sketched atTheEdge({{Shape::Path, {}, {{-60, -49.5}, {60, -49.5}}, {}}}, 1, true);
    EXPECT_EQ(atTheEdge.ink(), between(0, 99, 99, 99));
}

// All but the last lie close together.
TEST(Sketches, OfVeryManyPointsKeepTheFirstAndTheLast) {
    Shape path{Shape::Path, {}, {}, {}};
    for (int i = 0; i < 100000; ++i)
        path.points.push_back({-40 + i / 10000.0, 0});
    path.points.push_back({39.5, 0});
    EXPECT_EQ(Sketched({path}).ink(), between(10, 50, 89, 50));
}

} // namespace
