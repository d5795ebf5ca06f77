// The picture of a large drawing: painted by several threads it is what one painter makes, and something is
// shown before that is done.
#include "standin/display/live_picture.h"

#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/text.h"
#include "standin/display/marks_image.h"
#include "standin/display/sketch.h"
#include "tests/standin/shown_drawing.h"
#include "tests/support/mixed_drawing.h"
#include "tests/support/plain_picture.h"
#include "tests/support/poll.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace standin;

OdDbBlockTableRecordPtr spaceOf(const OdDbDatabasePtr& drawing) {
    return odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject(OdDb::kForWrite));
}

// Letters below the base line, turned ones, marks with names wider than the window's bands are high, and
// circles across all of them.
void addWhatReachesFar(const OdDbDatabasePtr& drawing) {
    const OdDbBlockTableRecordPtr space = spaceOf(drawing);
    for (int i = 0; i < 12; ++i) {
        const OdDbTextPtr text(new OdDbText);
        text->setPosition({i * 300.0, i * 9.0, 0});
        text->setHeight(i % 3 == 0 ? 90 : 15);
        text->setRotation(i * 0.5);
        text->setTextString(L"jgpq\u00c4\u00c5y");
        space->appendOdDbEntity(text.get());
        const OdDbCirclePtr circle(new OdDbCircle);
        circle->setCenter({2500, 30, 0});
        circle->setRadius(40.0 * i + 5);
        space->appendOdDbEntity(circle.get());
    }
    const OdDbBlockTableRecordPtr block(new OdDbBlockTableRecord);
    block->setName(L"A reference that is missing");
    const OdDbObjectId id =
        odrxCast<OdDbBlockTable>(drawing->getBlockTableId().safeOpenObject(OdDb::kForWrite))
            ->add(block.get());
    for (int i = 0; i < 20; ++i) {
        const OdDbBlockReferencePtr reference(new OdDbBlockReference);
        reference->setBlockTableRecord(id);
        reference->setPosition({i * 250.0, i * 8.3, 0});
        space->appendOdDbEntity(reference.get());
    }
    block->erase();
}

struct Shown {
    explicit Shown(int count, bool farReaching = false, const QSize& size = {800, 500})
        : drawing(mixedDrawing(count)), list(drawing) {
        if (farReaching)
            addWhatReachesFar(drawing);
        list.refresh();
        order.list = &list;
        order.view.resize(size);
        order.view.fit(list.extents());
    }
    void erase(std::size_t number) {
        const OdDbObjectIdArray ids = spaceOf(drawing)->entityIds();
        ids[number].safeOpenObject(OdDb::kForWrite)->erase();
    }
    OdDbDatabasePtr drawing;
    DisplayList list;
    PictureOrder order;
};

int differentPixels(const QImage& a, const QImage& b) {
    if (a.size() != b.size() || a.format() != b.format())
        return -1;
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            count += a.pixel(x, y) != b.pixel(x, y);
    return count;
}

// What is shown at once.
QImage firstOf(LivePicture& picture, const PictureOrder& order) {
    QImage screen(order.view.size(), order.format());
    screen.fill(order.ground());
    QPainter painter(&screen);
    picture.paintAtOnce(painter, order);
    return screen;
}

int inkedPixels(const QImage& image, const QRect& part) {
    const QRgb back = qRgb(0, 0, 0);
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            count += (image.pixel(x, y) | 0xff000000u) != back;
    return count;
}

struct Case {
    int count;
    double zoom;
    Qt::GlobalColor background;
    double ratio;
};

class FinishedPicture : public testing::TestWithParam<Case> {};

TEST_P(FinishedPicture, IsThatOfOnePainterPixelForPixel) {
    Shown shown(GetParam().count, true);
    shown.order.view.zoomAt({410, 260}, GetParam().zoom);
    shown.order.background = GetParam().background;
    shown.order.ratio = GetParam().ratio;
    const QImage plain = plainPicture(shown.order);
    EXPECT_EQ(differentPixels(LivePicture().finished(shown.order), plain), 0);
}

INSTANTIATE_TEST_SUITE_P(CountsZoomsAndColours, FinishedPicture,
                         testing::Values(Case{5, 1, Qt::black, 1}, Case{3000, 1, Qt::black, 1},
                                         Case{3000, 7.3, Qt::white, 1}, Case{3000, 60, Qt::black, 1},
                                         Case{3000, 0.2, Qt::white, 1}, Case{3000, 2, Qt::black, 1.25},
                                         Case{3000, 2, Qt::white, 1.1}, Case{3000, 2, Qt::black, 2},
                                         Case{25000, 1, Qt::black, 1}, Case{25000, 1.2, Qt::white, 1.5},
                                         Case{25000, 9, Qt::black, 1}));

TEST(LivePictureTest, MarksAreThoseOfOnePainterPixelForPixel) {
    for (const int count : {1500, 6000}) {
        Shown shown(count, true);
        shown.order.pen = QPen(Qt::cyan, 2, Qt::SolidLine, Qt::RoundCap);
        shown.order.only =
            std::make_shared<const std::vector<const Item*>>(shown.list.within(shown.order.box()));
        EXPECT_EQ(differentPixels(LivePicture().finished(shown.order), plainPicture(shown.order)), 0)
            << count;
    }
}

// Thick and half transparent lines that cross each other, and points whose marks have a size in pixels.
std::string thickClearAndMarked() {
    std::string all;
    for (int i = 0; i < 60; ++i) {
        const std::string look = "8\n0\n370\n" + std::string(i % 2 ? "200" : "25") + "\n440\n" +
                                 (i % 3 ? "33554559" : "0") + "\n62\n" + std::to_string(i % 5 + 1) + "\n";
        all += shown::head("LINE", "AcDbLine", look) + shown::point(10, 0, i) +
               shown::point(11, 100, (i * 37) % 60) + shown::head("POINT", "AcDbPoint", look) +
               shown::point(10, i * 1.7, (i * 23) % 60);
    }
    return all;
}

TEST(LivePictureTest, ThickTransparentAndMarkedObjectsAreThoseOfOnePainter) {
    const shown::Drawing drawing(thickClearAndMarked(), {},
                                 shown::variable("LWDISPLAY", 290, "1") +
                                     shown::variable("PDMODE", 70, "35") +
                                     shown::variable("PDSIZE", 40, "-25"));
    PictureOrder order;
    order.list = &drawing.list;
    order.view.resize({300, 400});
    order.view.fit(drawing.list.extents());
    EXPECT_EQ(differentPixels(LivePicture().finished(order), plainPicture(order)), 0);
}

TEST(LivePictureTest, AFewObjectsAreFinishedAtOnce) {
    Shown shown(100);
    LivePicture picture;
    EXPECT_EQ(differentPixels(firstOf(picture, shown.order), plainPicture(shown.order)), 0);
}

TEST(LivePictureTest, ManyAreSketchedAtOnceAndTheFinishedPictureFollows) {
    Shown shown(6000);
    LivePicture picture;
    int improvements = 0;
    QObject::connect(&picture, &LivePicture::improved, &picture, [&] { ++improvements; });
    const QImage plain = plainPicture(shown.order);
    const QImage first = firstOf(picture, shown.order);
    EXPECT_GT(inkedPixels(first, shown.order.window()), inkedPixels(plain, shown.order.window()) / 4);
    EXPECT_FALSE(picture.isFinished(shown.order));
    ASSERT_TRUE(waitUntil([&] { return picture.isFinished(shown.order); }, 20000));
    EXPECT_EQ(improvements, 1);
    EXPECT_EQ(differentPixels(firstOf(picture, shown.order), plain), 0);
}

TEST(LivePictureTest, WhileTheViewMovesTheLastPictureMovesAlongAndTheRestIsSketched) {
    Shown shown(20000, false, {400, 300});
    shown.order.view.zoomAt({200, 150}, 3);
    LivePicture picture;
    const QImage before = picture.finished(shown.order).copy();
    shown.order.view.panBy({-60, 0});
    const QImage moved = firstOf(picture, shown.order);
    const QRect kept(0, 0, 340, 300), exposed(340, 0, 60, 300);
    EXPECT_EQ(differentPixels(moved.copy(kept), before.copy(kept.translated(60, 0))), 0);
    EXPECT_GT(inkedPixels(moved, exposed), 100);
    ASSERT_TRUE(waitUntil([&] { return picture.isFinished(shown.order); }, 20000));
    EXPECT_EQ(differentPixels(firstOf(picture, shown.order), plainPicture(shown.order)), 0);
}

TEST(LivePictureTest, APictureThatIsNoLongerWantedIsGivenUp) {
    Shown shown(6000);
    LivePicture picture;
    int improvements = 0;
    QObject::connect(&picture, &LivePicture::improved, &picture, [&] { ++improvements; });
    for (int i = 0; i < 10; ++i) {
        shown.order.view.zoomAt({400, 250}, i % 2 ? 1.25 : 0.8);
        firstOf(picture, shown.order);
    }
    ASSERT_TRUE(waitUntil([&] { return picture.isFinished(shown.order); }, 20000));
    EXPECT_EQ(improvements, 1);
    EXPECT_EQ(differentPixels(firstOf(picture, shown.order), plainPicture(shown.order)), 0);
}

TEST(LivePictureTest, AChangeOfTheDrawingSendsThePaintersAway) {
    Shown shown(6000);
    LivePicture picture;
    for (std::size_t i = 0; i < 5; ++i) {
        firstOf(picture, shown.order);
        shown.erase(i * 7);
        shown.list.refresh();
    }
    EXPECT_FALSE(picture.isFinished(shown.order));
    firstOf(picture, shown.order);
    ASSERT_TRUE(waitUntil([&] { return picture.isFinished(shown.order); }, 20000));
    EXPECT_EQ(differentPixels(firstOf(picture, shown.order), plainPicture(shown.order)), 0);
}

TEST(LivePictureTest, MayEndBeforeItsListAndAfterIt) {
    auto shown = std::make_unique<Shown>(6000);
    {
        LivePicture picture;
        firstOf(picture, shown->order);
    }
    LivePicture picture;
    firstOf(picture, shown->order);
    shown.reset();
    picture.forget();
}

TEST(LivePictureTest, AClickOnManyIsSeenInTheNextFrame) {
    Shown shown(20000);
    MarksImage marks;
    marks.setPen(QPen(Qt::cyan, 2, Qt::SolidLine, Qt::RoundCap));
    const OdDbObjectIdArray all = spaceOf(shown.drawing)->entityIds();
    const PictureOrder order = marks.orderOf(all, shown.order);
    const QImage first = firstOf(marks, order), whole = marks.finished(order);
    int seen = 0, wanted = 0;
    for (int y = 0; y < whole.height(); ++y)
        for (int x = 0; x < whole.width(); ++x) {
            wanted += qAlpha(whole.pixel(x, y)) == 255;
            seen += qAlpha(whole.pixel(x, y)) == 255 && qAlpha(first.pixel(x, y)) == 255;
        }
    ASSERT_GT(wanted, 1000);
    EXPECT_GT(seen, wanted / 2);
}

// A block of very many lines that lie one upon the other.
TEST(SketchTest, TakesNoMoreStepsThanItsBudget) {
    Shown shown(20000);
    QImage image(shown.order.view.size(), QImage::Format_RGB32);
    Item item;
    item.shapes.resize(3000000, Shape{Shape::Path, 0xffff0000u, {{0, 0}, {5000, 300}}, {}});
    item.box = boxOf({0, 0}, {5000, 300});
    auto items = std::make_shared<std::vector<const Item*>>(30, &item);
    shown.order.only = items;
    Sketch sketch(image, shown.order, {});
    sketch.draw();
    EXPECT_GT(sketch.spent(), Sketch::kBudget / 2);
    EXPECT_LE(sketch.spent(), Sketch::kBudget);
}

} // namespace
