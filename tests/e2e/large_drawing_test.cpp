// A drawing that takes more than a moment to paint: something is shown at once, and the finished picture
// later.
#include "tests/e2e/drawing_fixture.h"
#include "tests/support/mixed_drawing.h"
#include "tests/support/plain_picture.h"
#include "workbench/script/window_actions.h"

namespace {

struct LargeDrawingTest : DrawingFixture {
    LargeDrawingTest() {
        const QString file = root.filePath("large.dxf");
        mixedDrawing(15000)->writeFile(hostqt::odString(file));
        enter({"OPEN", qPrintable(file)});
    }
    void turnWheel(int notches) {
        const QPoint at = canvas().rect().center();
        QWheelEvent wheel(at, canvas().mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&canvas(), &wheel);
    }
    QImage shown() { return canvas().grab().toImage().convertToFormat(QImage::Format_RGB32); }
    QImage expected() {
        standin::PictureOrder order;
        order.list = canvas().listOf(*document().database());
        order.view = *canvas().view();
        order.background = workbench::readSettings(appService<IProfile>().get()).canvasBack;
        return plainPicture(order);
    }
};

TEST_F(LargeDrawingTest, AfterTheViewHasMovedTheFinishedPictureFollows) {
    for (const int notches : {2, -1, 3}) {
        turnWheel(notches);
        EXPECT_FALSE(canvas().isPictureFinished());
        const QImage rough = shown();
        EXPECT_GT(rough.convertToFormat(QImage::Format_Indexed8).colorCount(), 1)
            << "nothing is shown at once";
    }
    ASSERT_TRUE(waitUntil([this] { return canvas().isPictureFinished(); }, 20000));
    EXPECT_TRUE(shown() == expected()) << "it is not the picture that one painter makes";
}

TEST_F(LargeDrawingTest, AScreenshotOfAScriptShowsTheFinishedPicture) {
    turnWheel(2);
    const QString file = root.filePath("shot");
    workbench::windowAction("@screenshot " + file)();
    const QImage shot = QImage(file + ".png").convertToFormat(QImage::Format_RGB32);
    const QRect place(canvas().mapTo(bench->window(), QPoint()), canvas().size());
    EXPECT_TRUE(shot.copy(place) == expected());
}

TEST_F(LargeDrawingTest, AnObjectThatIsErasedWhileItIsPaintedGoes) {
    turnWheel(1);
    shown(); // the painters begin
    eraseFirstLine();
    ASSERT_TRUE(waitUntil(
        [this] {
            shown();
            return canvas().isPictureFinished();
        },
        20000));
    EXPECT_TRUE(shown() == expected());
}

} // namespace
