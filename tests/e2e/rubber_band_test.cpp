// The line that follows the cursor from the base point of a prompt.
#include "standin/console/command_loop.h"
#include "tests/e2e/drawing_fixture.h"

namespace {

struct RubberBandTest : DrawingFixture {
    RubberBandTest() {
        bench->commands().add({"TOPOINT", "Asks for a point.", [this] {
                                   const OdGePoint3d base(0, 10, 0);
                                   OdGePoint3d point;
                                   bench->console().getPoint(&base, &point, L"To point:", nullptr, flags,
                                                             nullptr, nullptr);
                               }});
    }
    // Pixels of this colour on the way from the base to the cursor, which lies clear of all objects.
    int bandPixels(const QColor& color) {
        int count = 0;
        play({[this] { submit("TOPOINT"); },
              [&, this] {
                  QTest::mouseMove(&canvas(), pixel(150, 10));
                  const QImage image = canvas().grab().toImage();
                  for (int x = pixel(10, 10).x(); x < pixel(140, 10).x(); ++x)
                      for (int beside : {-1, 0, 1}) // where the line falls between two rows
                          count += image.pixelColor(x, pixel(0, 10).y() + beside) == color;
              }});
        return count;
    }
    int flags = standin::kRubberBand;
};

TEST_F(RubberBandTest, ItIsDrawnInItsColour) {
    EXPECT_GT(bandPixels(QColor(0xff, 0xc8, 0)), 20);
    const CKWVariant red(0x0000ff, kVtInt);
    openChild(appService<IProfile>().get(), "Workbench", 1)->setValue("RubberBandColor", &red);
    enter({"DRAWINGS"}); // what was set takes effect when a command ends
    EXPECT_EQ(bandPixels(QColor(0xff, 0xc8, 0)), 0);
    EXPECT_GT(bandPixels(Qt::red), 20);
}

TEST_F(RubberBandTest, ItIsNotDrawnWhereThePromptDoesNotWantIt) {
    flags = 0;
    EXPECT_EQ(bandPixels(QColor(0xff, 0xc8, 0)), 0);
}

} // namespace
