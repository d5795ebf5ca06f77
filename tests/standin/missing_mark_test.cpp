// Marks whose size does not depend on the scale: the name of a reference whose file is missing, in a box, and
// points of a part of the window.
#include "standin/display/item_painter.h"

#include <QImage>
#include <gtest/gtest.h>

namespace {

using namespace standin;

// What is painted of the mark in a view of one pixel for a unit around (0,0).
QRect inkOf(const Shape& mark) {
    View view;
    view.resize({300, 200});
    Item item;
    item.shapes = {mark};
    item.box = boxOf(mark.points[0], mark.points[0]);
    QImage image(300, 200, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    ItemPainter(painter, view, Qt::white).draw(item);
    painter.end();
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) != QColor(Qt::black))
                ink |= QRect(x, y, 1, 1);
    return ink;
}

QRect inkOf(const QPointF& place, const QString& name) {
    Shape mark;
    mark.kind = Shape::Missing;
    mark.points = {place};
    mark.text = name;
    return inkOf(mark);
}

} // namespace

TEST(MissingMark, StandsAboutThePlaceOfTheReference) {
    for (const QPointF& place : {QPointF(0, 0), QPointF(60, -40), QPointF(-70, 50)}) {
        const QRect ink = inkOf(place, "part.dxf");
        EXPECT_NEAR(ink.center().x(), 150 + place.x(), 1);
        EXPECT_NEAR(ink.center().y(), 100 - place.y(), 1);
        EXPECT_GE(ink.width(), QFontMetrics(QFont()).horizontalAdvance("part.dxf"));
    }
}

TEST(MissingMark, IsAsWideAsTheName) {
    EXPECT_GT(inkOf({0, 0}, "a rather long name.dxf").width(), inkOf({0, 0}, "part.dxf").width() + 20);
    EXPECT_FALSE(inkOf({0, 0}, "").isEmpty()) << "a reference without a name is still seen";
}

TEST(MissingMark, IsLeftOutBeyondTheWindow) {
    EXPECT_TRUE(inkOf({500, 0}, "part.dxf").isEmpty());
    EXPECT_FALSE(inkOf({140, 0}, "part.dxf").isEmpty());
}

// A plus reaches as far to each side as its size; the window is 200 pixels high.
TEST(PointMark, OfAPartOfTheWindowIsExactlyAsLarge) {
    const int plus = 2;
    for (const int percent : {5, 20, 49}) {
        Shape mark;
        mark.kind = Shape::Dot;
        mark.points = {{0, 0}, QPointF(plus, percent)};
        const QRect ink = inkOf(mark);
        EXPECT_EQ(ink.top(), 100 - 2 * percent);
        EXPECT_EQ(ink.bottom(), 100 + 2 * percent);
        EXPECT_EQ(ink.left(), 150 - 2 * percent);
        EXPECT_EQ(ink.right(), 150 + 2 * percent);
    }
}
