// What is placed stays in sight: an empty drawing shows it whole, every prompt shows it, sharp at every size.
#include "tests/e2e/workbench_fixture.h"

#include "host/documents.h"
#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "standin/console/command_loop.h"
#include "standin/documents/document_manager.h"
#include "tests/support/shown_reference.h"
#include "workbench/canvas/canvas.h"
#include "workbench/window/main_window.h"

namespace {

// A command that places a square of the given size.
struct PlacingTest : WorkbenchFixture {
    PlacingTest() {
        static_cast<standin::DocumentManager*>(HostDocManager())->openEmpty();
        bench->commands().add({"PLACE", "Places a square.", [this] { place(); }});
    }
    // The next prompt, of a keyword for example, shows nothing of its own.
    void placeAndAsk() {
        place();
        double number = 0;
        bench->console().getReal(&number, L"Factor:", nullptr, 0, 0, 0);
    }
    void place() {
        const OdDbDatabasePtr database = HostDocManager()->currentDocument()->database();
        ShownReference tracker(squareOf(*database));
        OdGePoint3d point;
        bench->console().getPoint(base ? &*base : nullptr, &point, L"To point:", nullptr, 0, nullptr,
                                  &tracker);
    }
    OdDbBlockReferencePtr squareOf(OdDbDatabase& database) const {
        const OdDbBlockTableRecordPtr block(new OdDbBlockTableRecord);
        block->setName(OdString((L"SQUARE" + std::to_wstring(size)).c_str()));
        odrxCast<OdDbBlockTable>(database.getBlockTableId().safeOpenObject(OdDb::kForWrite))
            ->add(block.get());
        block->upgradeOpen();
        const OdGePoint3d corners[] = {{0, 0, 0}, {size, 0, 0}, {size, size, 0}, {0, size, 0}, {0, 0, 0}};
        for (int i = 0; i < 4; ++i) {
            const OdDbLinePtr line(new OdDbLine);
            line->setStartPoint(corners[i]);
            line->setEndPoint(corners[i + 1]);
            block->appendOdDbEntity(line.get());
        }
        const OdDbBlockReferencePtr reference(new OdDbBlockReference);
        reference->setBlockTableRecord(block->objectId());
        return reference;
    }
    workbench::Canvas& canvas() { return bench->window()->drawingArea(); }
    // Pixels that are not the background.
    int inkOf(const QImage& image) const {
        int count = 0;
        const QRgb back = image.pixel(2, 2);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixel(x, y) != back;
        return count;
    }
    double size = 1;
    std::optional<OdGePoint3d> base;
};

TEST_F(PlacingTest, AnEmptyDrawingShowsItWholeWithRoomAround) {
    for (const double length : {1e-3, 1.0, 25000.0}) {
        size = length;
        play({[this] { submit("PLACE"); },
              [&, this] {
                  const double pixels = size * canvas().view()->scale();
                  EXPECT_GT(pixels, canvas().height() / 4) << length;
                  EXPECT_LT(pixels, canvas().height() / 1.5) << length;
              }});
    }
}

TEST_F(PlacingTest, WhatIsPlacedStaysInSightAtThePromptsThatFollow) {
    bench->commands().add({"PLACEANDASK", "Places a square.", [this] { placeAndAsk(); }});
    int atPrompt = 0, after = 0, much = 0;
    const auto ink = [this] {
        return inkOf(canvas().grab().toImage().convertToFormat(QImage::Format_RGB32));
    };
    play({[this] { submit("PLACEANDASK"); },
          [&] {
              much = ink();
              submit("3,4");
          },
          [&] {
              QTest::mouseMove(&canvas(), canvas().rect().center() + QPoint(30, 10));
              atPrompt = ink();
              submit("2");
          },
          [&] { after = ink(); }});
    EXPECT_GT(much, 100);
    EXPECT_GT(atPrompt, 100);
    EXPECT_LT(after, atPrompt) << "it goes with the command";
}

TEST_F(PlacingTest, AViewOfADrawingWithObjectsStays) {
    const OdDbDatabasePtr database = HostDocManager()->currentDocument()->database();
    const OdDbLinePtr line(new OdDbLine);
    line->setEndPoint({7, 3, 0});
    odrxCast<OdDbBlockTableRecord>(database->getModelSpaceId().safeOpenObject(OdDb::kForWrite))
        ->appendOdDbEntity(line.get());
    enter({"ZOOM", "2"});
    const double scale = canvas().view()->scale();
    size = 25000;
    play({[this] { submit("PLACE"); }, [&, this] { EXPECT_EQ(canvas().view()->scale(), scale); }});
}

TEST_F(PlacingTest, ItIsSeenBeforeTheMouseHasMoved) {
    play({[this] { submit("PLACE"); },
          [this] {
              EXPECT_GT(inkOf(canvas().grab().toImage()), canvas().height()) << "four sides of the square";
          }});
}

} // namespace
