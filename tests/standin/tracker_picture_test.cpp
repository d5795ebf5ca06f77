// What a prompt with a tracker shows at the cursor.
#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "standin/console/console.h"
#include "standin/display/tracker_picture.h"
#include "tests/support/shown_reference.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace {

using namespace standin;

// A block with a line from its base point 20 to the right, in a view of one pixel for a unit around (0,0).
struct TrackerPictureTest : testing::Test {
    TrackerPictureTest() : tracker(makeReference()) {
        view.resize({200, 200});
        prompt.kind = OpenPrompt::Point;
        prompt.tracker = &tracker;
    }
    OdDbBlockReferencePtr makeReference() {
        const OdDbBlockTableRecordPtr block(new OdDbBlockTableRecord);
        block->setName(L"B");
        odrxCast<OdDbBlockTable>(drawing->getBlockTableId().safeOpenObject(OdDb::kForWrite))
            ->add(block.get());
        const OdDbLinePtr line(new OdDbLine);
        line->setEndPoint({20, 0, 0});
        block->upgradeOpen();
        block->appendOdDbEntity(line.get());
        const OdDbBlockReferencePtr reference(new OdDbBlockReference);
        reference->setBlockTableRecord(block->objectId());
        return reference;
    }
    // Whether the picture reaches a point of the drawing.
    bool isShownAt(TrackerPicture& picture, double x, double y) {
        QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::black);
        QPainter painter(&image);
        picture.paint(painter, view, Qt::white);
        painter.end();
        const QPoint at = view.toPixel({x, y}).toPoint();
        for (int dx = -2; dx <= 2; ++dx)
            for (int dy = -2; dy <= 2; ++dy)
                if (image.pixelColor(at + QPoint(dx, dy)) != QColor(Qt::black))
                    return true;
        return false;
    }
    OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
    ShownReference tracker;
    OpenPrompt prompt;
    View view;
};

TEST_F(TrackerPictureTest, ItFollowsTheCursorByItsAnchor) {
    TrackerPicture picture(prompt, drawing);
    picture.setCursor({-50, 30});
    EXPECT_EQ(tracker.cursor, QPointF(-50, 30));
    EXPECT_TRUE(isShownAt(picture, -40, 30));
    picture.setCursor({40, -60});
    EXPECT_FALSE(isShownAt(picture, -40, 30));
    EXPECT_TRUE(isShownAt(picture, 50, -60));
    EXPECT_EQ(tracker.reference->position().x, 0); // the object itself stays where it is
}

TEST_F(TrackerPictureTest, AnAngleTurnsItAndADistanceStretchesItAboutTheBase) {
    prompt.base = OdGePoint3d(0, 0, 0);
    prompt.kind = OpenPrompt::Angle;
    {
        TrackerPicture picture(prompt, drawing);
        picture.setCursor({0, 50});
        EXPECT_TRUE(isShownAt(picture, 0, 15));
        EXPECT_FALSE(isShownAt(picture, 15, 0));
    }
    prompt.kind = OpenPrompt::Distance;
    TrackerPicture picture(prompt, drawing);
    picture.setCursor({0, 3});
    EXPECT_TRUE(isShownAt(picture, 50, 0));
}

TEST_F(TrackerPictureTest, ItStaysSharpHoweverFarItIsStretched) {
    prompt.base = OdGePoint3d(0, 0, 0);
    prompt.kind = OpenPrompt::Distance;
    TrackerPicture picture(prompt, drawing);
    picture.setCursor({0, 40});
    QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    picture.paint(painter, view, Qt::white);
    painter.end();
    int across = 0;
    for (int y = 0; y < image.height(); ++y)
        across += image.pixelColor(150, y) != QColor(Qt::black);
    EXPECT_EQ(across, 1) << "a line is one pixel wide";
}

TEST_F(TrackerPictureTest, TheTrackerHasItsSinkAsLongAsThePromptLasts) {
    {
        const TrackerPicture picture(prompt, drawing);
        EXPECT_NE(tracker.heldSink, nullptr);
        EXPECT_EQ(tracker.removals, 0);
    }
    EXPECT_EQ(tracker.heldSink, nullptr);
    EXPECT_EQ(tracker.removals, 1);
}

} // namespace
