// Looking around in a drawing and picking objects with the mouse.
#include "tests/e2e/drawing_fixture.h"

#include <QLabel>

namespace {

using Numbers = std::vector<int>;

struct CanvasTest : DrawingFixture {
    // Whether something stands out from the background around a point of the drawing.
    bool isDrawnAt(double x, double y) {
        const QImage image = canvas().grab().toImage();
        const QColor back = image.pixelColor(1, 1);
        const QPoint at = pixel(x, y);
        for (int dx = -1; dx <= 1; ++dx)
            for (int dy = -1; dy <= 1; ++dy)
                if (image.pixelColor(at + QPoint(dx, dy)) != back)
                    return true;
        return false;
    }
    void pickStyle(const char* value) { enter({"PICKSTYLE", value}); }
    void turnWheel(QPoint at, int notches) {
        QWheelEvent wheel(at, canvas().mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&canvas(), &wheel);
    }
};

TEST_F(CanvasTest, AnOpenedDrawingIsShownWhole) {
    for (const QPoint& corner : {pixel(0, 0), pixel(210, 40)})
        EXPECT_TRUE(canvas().rect().contains(corner));
    EXPECT_GT(pixel(210, 0).x() - pixel(0, 0).x(), canvas().width() * 3 / 4);
    EXPECT_TRUE(isDrawnAt(50, 20));
    EXPECT_TRUE(isDrawnAt(200, 30));
    EXPECT_FALSE(isDrawnAt(50, 30));
}

TEST_F(CanvasTest, TheWheelZoomsToTheCursor) {
    const QPoint at = pixel(30, 20);
    const QPointF under = canvas().view()->toDrawing(at);
    const double before = canvas().view()->scale();
    turnWheel(at, 3);
    EXPECT_GT(canvas().view()->scale(), before * 1.5);
    EXPECT_NEAR(canvas().view()->toDrawing(at).x(), under.x(), 1e-9);
    EXPECT_NEAR(canvas().view()->toDrawing(at).y(), under.y(), 1e-9);
    turnWheel(at, -3);
    EXPECT_NEAR(canvas().view()->scale(), before, before * 1e-9);
}

TEST_F(CanvasTest, TheMiddleButtonMovesTheView) {
    const QPoint before = pixel(0, 0);
    drag({100, 100}, {140, 130}, Qt::MiddleButton);
    EXPECT_EQ(pixel(0, 0), before + QPoint(40, 30));
    EXPECT_TRUE(isDrawnAt(50, 20));
}

TEST_F(CanvasTest, ZoomPreviousGoesBackAndInAndOutDouble) {
    const double before = canvas().view()->scale();
    enter({"ZOOM", "In"});
    EXPECT_DOUBLE_EQ(canvas().view()->scale(), before * 2);
    enter({"ZOOM", "P"});
    EXPECT_DOUBLE_EQ(canvas().view()->scale(), before);
    enter({"ZOOM", "Out"});
    EXPECT_DOUBLE_EQ(canvas().view()->scale(), before / 2);
    enter({"ZOOM", ""});
    EXPECT_DOUBLE_EQ(canvas().view()->scale(), before);
}

TEST_F(CanvasTest, ZoomWindowFillsTheAreaByTypedOrClickedCorners) {
    enter({"ZOOM", "0,0", "50,40"});
    EXPECT_TRUE(canvas().rect().contains(pixel(50, 40)));
    EXPECT_FALSE(canvas().rect().contains(pixel(200, 20)));
    enter({"ZOOM", "Extents"});
    play({[this] { submit("ZOOM"); }, [this] { submit("Window"); }, [this] { click(190, 10); },
          [this] { click(210, 30); }});
    EXPECT_NEAR(canvas().view()->visible().center().x(), 200, 0.5);
}

TEST_F(CanvasTest, AScaleThatIsNoNumberIsRefused) {
    enter({"ZOOM", "abc"});
    EXPECT_EQ(lastLine(), "A positive number is needed, or one with an x behind it.");
}

TEST_F(CanvasTest, AClickTakesAnObjectAndShiftGivesItBack) {
    click(50, 20);
    EXPECT_EQ(selected(), Numbers{1});
    click(50, 40);
    EXPECT_EQ(selected(), (Numbers{1, 2}));
    click(50, 20, Qt::ShiftModifier);
    EXPECT_EQ(selected(), Numbers{2});
    press(Qt::Key_Escape);
    EXPECT_EQ(selected(), Numbers{});
}

TEST_F(CanvasTest, SelectedObjectsLookDifferent) {
    const QImage before = canvas().grab().toImage();
    click(50, 20);
    EXPECT_NE(canvas().grab().toImage().pixelColor(pixel(60, 20)), before.pixelColor(pixel(60, 20)));
    press(Qt::Key_Escape);
    EXPECT_EQ(canvas().grab().toImage().pixelColor(pixel(60, 20)), before.pixelColor(pixel(60, 20)));
}

TEST_F(CanvasTest, HighlightedObjectsLookDifferent) {
    const QImage before = canvas().grab().toImage();
    odrxCast<OdDbEntity>(entities()[1].safeOpenObject())->highlight(true);
    EXPECT_NE(canvas().grab().toImage().pixelColor(pixel(60, 20)), before.pixelColor(pixel(60, 20)));
}

TEST_F(CanvasTest, PickStyleOneTakesTheGroup) {
    pickStyle("1");
    click(50, 0);
    EXPECT_EQ(selected(), (Numbers{0, 3}));
    click(50, 0, Qt::ShiftModifier);
    EXPECT_EQ(selected(), Numbers{});
    pickStyle("0");
    click(50, 0);
    EXPECT_EQ(selected(), Numbers{0});
}

TEST_F(CanvasTest, AWindowTakesWhatIsInsideAndACrossingOneWhatItTouches) {
    drag(pixel(-5, 45), pixel(50, 15));
    EXPECT_EQ(selected(), Numbers{});
    drag(pixel(-5, 45), pixel(105, 15));
    EXPECT_EQ(selected(), (Numbers{1, 2}));
    press(Qt::Key_Escape);
    drag(pixel(50, 45), pixel(-5, 15));
    EXPECT_EQ(selected(), (Numbers{1, 2}));
}

TEST_F(CanvasTest, AWindowIsDrawnByTwoClicksTooAndEscapeGivesItUp) {
    click(-5, 45);
    click(105, 15);
    EXPECT_EQ(selected(), (Numbers{1, 2}));
    click(-5, 5);
    press(Qt::Key_Escape);
    EXPECT_EQ(selected(), (Numbers{1, 2}));
    drag(pixel(105, 45), pixel(-5, 35), Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(selected(), Numbers{1});
}

TEST_F(CanvasTest, ASelectionPromptTakesClicksWindowsAndShift) {
    play({[this] { submit("SELECT"); }, [this] { click(50, 20); },
          [this] { QTest::mousePress(&canvas(), Qt::LeftButton, Qt::NoModifier, pixel(50, 45)); },
          [this] { QTest::mouseRelease(&canvas(), Qt::LeftButton, Qt::NoModifier, pixel(-5, 35)); },
          [this] { click(50, 20, Qt::ShiftModifier); }, [this] { press(Qt::Key_Return); }});
    EXPECT_EQ(selected(), Numbers{2});
    EXPECT_TRUE(transcript().contains("1 found, 1 in all."));
    EXPECT_TRUE(transcript().contains("1 found, 2 in all."));
}

TEST_F(CanvasTest, TheStatusBarTellsWhereTheCursorIs) {
    QTest::mouseMove(&canvas(), pixel(50, 20));
    const QStringList place = part<QLabel>("cursorLabel")->text().split(',');
    ASSERT_GE(place.size(), 2);
    EXPECT_NEAR(place[0].toDouble(), 50, 1);
    EXPECT_NEAR(place[1].toDouble(), 20, 1);
}

TEST_F(CanvasTest, UndoAndRedoRedraw) {
    EXPECT_TRUE(isDrawnAt(50, 0));
    eraseFirstLine();
    EXPECT_FALSE(isDrawnAt(50, 0));
    enter({"UNDO"});
    EXPECT_TRUE(isDrawnAt(50, 0));
    enter({"REDO"});
    EXPECT_FALSE(isDrawnAt(50, 0));
    enter({"REDO"});
    EXPECT_EQ(lastLine(), "There is nothing to redo.");
}

TEST_F(CanvasTest, ControlZUndoesOnAnEmptyLine) {
    eraseFirstLine();
    enter({"DRAWINGS"}); // the window looks when a command ends
    QTest::keyClick(&line(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(waitUntil([this] { return entities().size() == 4; }));
}

TEST_F(CanvasTest, ZoomObjectShowsIt) {
    ZoomObject(entities()[3]);
    EXPECT_FALSE(canvas().rect().contains(pixel(50, 20)));
    EXPECT_TRUE(canvas().rect().contains(pixel(210, 20)));
}

TEST_F(CanvasTest, ListTellsAboutWhatIsSelected) {
    pickStyle("0");
    click(200, 30);
    enter({"LIST"});
    EXPECT_TRUE(transcript().contains("    centre 200,20, radius 10"))
        << transcript().join('\n').toStdString();
    EXPECT_EQ(lastLine(), "    in group PAIR");
}

} // namespace
