// What decides how a picture is painted: its order, its effort, its list and who reads that.
#include "sdk/db/curves.h"
#include "standin/console/console.h"
#include "standin/display/live_picture.h"
#include "standin/display/preview_picture.h"
#include "standin/display/tracker_picture.h"
#include "tests/standin/shown_drawing.h"
#include "tests/support/mixed_drawing.h"
#include "tests/support/plain_picture.h"
#include "tests/support/poll.h"
#include "tests/support/shown_reference.h"

#include <QImage>
#include <gtest/gtest.h>

namespace {

using namespace standin;
using namespace shown;

std::string line(double x1, double y1, double x2, double y2) {
    return head("LINE", "AcDbLine") + point(10, x1, y1) + point(11, x2, y2);
}

OdDbObjectId appendLine(OdDbDatabase& drawing, const OdGePoint3d& end) {
    const OdDbLinePtr added(new OdDbLine);
    added->setEndPoint(end);
    return odrxCast<OdDbBlockTableRecord>(drawing.getModelSpaceId().safeOpenObject(OdDb::kForWrite))
        ->appendOdDbEntity(added.get());
}

TEST(DisplayLists, AreOnlyRefreshedWhenSomethingIsDifferent) {
    Drawing drawing(line(0, 0, 10, 0));
    DisplayList& list = drawing.list;
    const std::uint64_t first = list.revision();
    EXPECT_FALSE(list.isBehind());
    list.refresh();
    EXPECT_EQ(list.revision(), first) << "nothing has changed";
    const OdDbObjectId added = appendLine(list.database(), {0, 20, 0});
    EXPECT_TRUE(list.isBehind());
    list.refresh();
    EXPECT_EQ(list.revision(), first + 1);
    EXPECT_EQ(list.extents().top, 20);
    ASSERT_TRUE(list.find(added));
    added.safeOpenObject(OdDb::kForWrite)->erase();
    list.refresh();
    EXPECT_EQ(list.revision(), first + 2);
    EXPECT_EQ(list.find(added), nullptr);
    EXPECT_EQ(list.extents().top, 0);
    EXPECT_EQ(list.within({-1, -1, 1, 30}).size(), 1u) << "the one that is gone is met no more";
    list.forgetAll();
    EXPECT_TRUE(list.isBehind());
    list.refresh();
    EXPECT_EQ(list.revision(), first + 3);
}

TEST(DisplayLists, KeepTheOrderOfTheDrawing) {
    Drawing drawing(line(0, 0, 10, 0) + line(0, 1, 10, 1) + line(0, 2, 10, 2));
    const OdDbObjectId first = drawing.items[0]->id, last = drawing.items[2]->id;
    odrxCast<OdDbLine>(first.safeOpenObject(OdDb::kForWrite))->setEndPoint({10, 5, 0});
    drawing.list.refresh();
    const auto items = drawing.list.within({-1, -1, 11, 11});
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0]->id, first) << "it stays below the others";
    EXPECT_EQ(items[0]->box.top, 5);
    EXPECT_EQ(items[2]->id, last);
}

TEST(DisplayLists, TellTheirMarks) {
    Drawing drawing(line(0, 0, 10, 0));
    int changes = 0;
    drawing.list.changed = [&changes] { ++changes; };
    const OdDbObjectId id = drawing.items[0]->id;
    const auto entity = odrxCast<OdDbEntity>(id.safeOpenObject(OdDb::kForWrite));
    entity->highlight(true);
    EXPECT_EQ(drawing.list.highlighted().count(id), 1u);
    EXPECT_EQ(changes, 1);
    entity->highlight(false);
    EXPECT_TRUE(drawing.list.highlighted().empty());
    EXPECT_EQ(changes, 2);
}

PictureOrder orderOf(const DisplayList& list, const QSize& size) {
    PictureOrder order;
    order.list = &list;
    order.view.resize(size);
    order.view.fit(list.extents());
    return order;
}

TEST(PictureOrders, CountTheirEffort) {
    const Drawing drawing(line(0, 0, 10, 0) + line(0, 1, 10, 1) + line(0, 90, 10, 90));
    PictureOrder order = orderOf(drawing.list, {100, 100});
    EXPECT_EQ(effortOf(*drawing.items[0]), 3u) << "a shape and its two points";
    EXPECT_EQ(effortOf(order, 1000), 9u);
    EXPECT_GE(effortOf(order, 4), 4u);
    EXPECT_LT(effortOf(order, 4), 9u) << "counting ends";
    EXPECT_EQ(itemsOf(order, 10).size(), 3u);
    EXPECT_EQ(itemsOf(order, 2).size(), 2u);
    order.only = std::make_shared<const std::vector<const Item*>>(1, drawing.items[1]);
    EXPECT_EQ(effortOf(order, 1000), 3u);
    EXPECT_EQ(itemsOf(order, 10), std::vector<const Item*>{drawing.items[1]});
    order.view.panBy({1000, 0});
    EXPECT_TRUE(itemsOf(order, 10).empty()) << "out of sight";
}

TEST(PictureOrders, StandOutFromTheirBackground) {
    EXPECT_EQ(contrastOf(QColor(127, 127, 127)), QColor(Qt::white));
    EXPECT_EQ(contrastOf(QColor(128, 128, 128)), QColor(Qt::black));
    PictureOrder order;
    order.background = Qt::red;
    EXPECT_EQ(order.ground(), QColor(Qt::red));
    EXPECT_EQ(order.format(), QImage::Format_RGB32);
    EXPECT_EQ(order.mostSmooth(), 20000u);
    order.pen = QPen(Qt::green);
    EXPECT_EQ(order.foreground(), QColor(Qt::green));
    EXPECT_EQ(order.ground(), QColor(Qt::transparent));
    EXPECT_EQ(order.format(), QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(order.mostSmooth(), 2000u);
}

TEST(PictureOrders, ShowABoxWithRoomForThickLinesAndMarks) {
    PictureOrder order;
    order.view.resize({100, 50});
    order.view.setScale(2);
    const Box rows = order.boxOfRows(10, 20, 4);
    EXPECT_EQ(rows.left, -27);
    EXPECT_EQ(rows.right, 27);
    EXPECT_EQ(rows.top, 9.5);
    EXPECT_EQ(rows.bottom, 0.5);
    const Box all = order.box();
    EXPECT_EQ(all.left, -25 - 2.5 - 6);
    EXPECT_EQ(all.right, 25 + 2.5 + 6);
    EXPECT_EQ(all.top, 12.5 + 2.5 + 6);
    EXPECT_EQ(all.bottom, -12.5 - 2.5 - 6);
}

// What is shown at once.
void show(LivePicture& picture, const PictureOrder& order) {
    QImage screen(order.view.size(), order.format());
    QPainter painter(&screen);
    picture.paintAtOnce(painter, order);
}

TEST(LivePictures, ForgetTheListThatTheyReadBefore) {
    DisplayList first(mixedDrawing(6000)), second(mixedDrawing(6000));
    first.refresh();
    second.refresh();
    LivePicture picture;
    show(picture, orderOf(first, {400, 300}));
    const PictureOrder order = orderOf(second, {400, 300});
    show(picture, order);
    appendLine(first.database(), {1, 1, 0});
    first.refresh();
    EXPECT_TRUE(waitUntil([&] { return picture.isFinished(order); }, 20000))
        << "a change of the former drawing ends the picture of the present one";
}

TEST(LivePictures, AreMadeAnewAfterAChange) {
    Drawing drawing(line(0, 0, 10, 0) + line(0, 0, 0, 10));
    LivePicture picture;
    const PictureOrder order = orderOf(drawing.list, {60, 60});
    const QImage before = picture.finished(order).copy();
    EXPECT_TRUE(picture.isFinished(order));
    appendLine(drawing.list.database(), {10, 10, 0});
    drawing.list.refresh();
    EXPECT_FALSE(picture.isFinished(order));
    EXPECT_NE(picture.finished(order), before);
    EXPECT_EQ(picture.finished(order), plainPicture(order));
    picture.forget();
    EXPECT_FALSE(picture.isFinished(order));
}

QImage previewOf(const Drawing& drawing) {
    const OdThumbnailImage image = previewPicture(drawing.list, Qt::black);
    // A bitmap file begins with 14 bytes more.
    std::string file = "BM" + std::string(12, '\0') + image.bmp;
    for (std::size_t byte = 0; byte < 4; ++byte)
        file[2 + byte] = static_cast<char>(file.size() >> (8 * byte));
    const auto colors =
        static_cast<unsigned char>(image.bmp.at(32)) + 256 * static_cast<unsigned char>(image.bmp.at(33));
    const int pixels = 54 + 4 * colors;
    file[10] = static_cast<char>(pixels);
    file[11] = static_cast<char>(pixels >> 8);
    return QImage::fromData(reinterpret_cast<const uchar*>(file.data()), static_cast<int>(file.size()),
                            "BMP");
}

TEST(PreviewPictures, HaveALongerSideOf200Pixels) {
    EXPECT_EQ(previewOf(Drawing(line(0, 0, 100, 50))).size(), QSize(200, 100));
    EXPECT_EQ(previewOf(Drawing(line(0, 0, 25, 100))).size(), QSize(50, 200));
    EXPECT_EQ(previewOf(Drawing(line(0, 0, 100, 0))).size(), QSize(200, 1));
    EXPECT_EQ(previewOf(Drawing(line(3, 3, 3, 3))).size(), QSize(200, 200));
    EXPECT_TRUE(previewPicture(Drawing("").list, Qt::black).bmp.empty());
    const QImage picture = previewOf(Drawing(line(0, 50, 100, 50) + line(0, 0, 0, 100)));
    EXPECT_GT(qGray(picture.pixel(100, 100)), 100);
    EXPECT_EQ(qGray(picture.pixel(100, 50)), 0);
}

struct TrackedPicture : testing::Test {
    TrackedPicture() {
        view.resize({200, 200});
        prompt.kind = OpenPrompt::Point;
        prompt.tracker = &tracker;
    }
    // Of two lines: 20 to the right, 10 up.
    static OdDbBlockReferencePtr madeIn(OdDbDatabase& drawing) {
        const OdDbBlockTableRecordPtr block(new OdDbBlockTableRecord);
        block->setName(L"B");
        odrxCast<OdDbBlockTable>(drawing.getBlockTableId().safeOpenObject(OdDb::kForWrite))->add(block.get());
        block->upgradeOpen();
        for (const OdGePoint3d& end : {OdGePoint3d(20, 0, 0), OdGePoint3d(0, 10, 0)}) {
            const OdDbLinePtr part(new OdDbLine);
            part->setEndPoint(end);
            block->appendOdDbEntity(part.get());
        }
        const OdDbBlockReferencePtr reference(new OdDbBlockReference);
        reference->setBlockTableRecord(block->objectId());
        return reference;
    }
    // The pixels that are painted, as a rectangle.
    QRect painted(TrackerPicture& picture) const {
        QImage image(200, 200, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        picture.paint(painter, view, Qt::white);
        painter.end();
        QRect found;
        for (int y = 0; y < 200; ++y)
            for (int x = 0; x < 200; ++x)
                if (qGray(image.pixel(x, y)) > 60)
                    found |= QRect(x, y, 1, 1);
        return found;
    }
    OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
    ShownReference tracker{madeIn(*drawing)};
    OpenPrompt prompt;
    View view;
};

void expectNear(const QRect& actual, const QRect& expected, int blur = 2) {
    EXPECT_NEAR(actual.left(), expected.left(), blur);
    EXPECT_NEAR(actual.right(), expected.right(), blur);
    EXPECT_NEAR(actual.top(), expected.top(), blur);
    EXPECT_NEAR(actual.bottom(), expected.bottom(), blur);
}

TEST_F(TrackedPicture, StandsAtTheCursor) {
    TrackerPicture picture(prompt, drawing);
    picture.setCursor({0, 0});
    expectNear(painted(picture), {100, 90, 20, 10});
    picture.setCursor({-50, 30});
    expectNear(painted(picture), {50, 60, 20, 10});
    view.setScale(3);
    picture.setCursor({0, 0});
    expectNear(painted(picture), {100, 70, 60, 30});
}

TEST_F(TrackedPicture, FollowsWhatTheTrackerShows) {
    TrackerPicture picture(prompt, drawing);
    picture.setCursor({0, 0});
    EXPECT_FALSE(painted(picture).isNull());
    picture.removeDrawable(tracker.reference.get(), 0, 0, 0, 0);
    EXPECT_TRUE(painted(picture).isNull());
    picture.addDrawable(tracker.reference.get(), 0, 0, 0, 0);
    expectNear(painted(picture), {100, 90, 20, 10});
    picture.addDrawable(nullptr, 0, 0, 0, 0);
    expectNear(painted(picture), {100, 90, 20, 10});
}

TEST_F(TrackedPicture, FillsTheFrameFromItsBase) {
    prompt.base = OdGePoint3d(10, 10, 0);
    tracker.reference->setPosition({10, 10, 0});
    TrackerPicture picture(prompt, drawing);
    picture.setCursor({13, 12});
    expectNear(painted(picture), {110, 70, 60, 20});
    picture.setCursor({10, 10});
    EXPECT_TRUE(painted(picture).isNull()) << "a frame without a size";
}

TEST_F(TrackedPicture, TurnsAndStretchesAboutItsBase) {
    prompt.base = OdGePoint3d(10, 10, 0);
    tracker.reference->setPosition({10, 10, 0});
    prompt.kind = OpenPrompt::Angle;
    {
        TrackerPicture picture(prompt, drawing);
        picture.setCursor({10, 50});
        expectNear(painted(picture), {100, 70, 10, 20});
    }
    prompt.kind = OpenPrompt::Distance;
    TrackerPicture picture(prompt, drawing);
    picture.setCursor({13, 14});
    expectNear(painted(picture), {110, 40, 90, 50}, 5);
}

} // namespace
