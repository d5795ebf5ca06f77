// The menu of a right click on the drawing, and what tells selected objects from others.
#include "tests/e2e/drawing_fixture.h"

#include "standin/selection/editor_selection.h"

#include <QMenu>

namespace {

struct CanvasMenuTest : DrawingFixture {
    // Chooses an entry of the menu that a right click brings up.
    void choose(const char* action) {
        QTest::mouseClick(&canvas(), Qt::RightButton, {}, QPoint(5, 5));
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        auto* entry = menu->findChild<QAction*>(action);
        ASSERT_NE(entry, nullptr) << action;
        EXPECT_TRUE(entry->isEnabled()) << action;
        entry->trigger();
        menu->close();
    }
    // Pixels in the colour of marks.
    int markedPixels() {
        canvas().finishPicture();
        const QImage image = canvas().grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == QColor(0x4d, 0xa3, 0xff);
        return count;
    }
};

TEST_F(CanvasMenuTest, ComesUpOnlyWhenNoSelectionWindowIsHalfDrawn) {
    click(50, 10); // where nothing is
    QTest::mouseClick(&canvas(), Qt::RightButton, {}, QPoint(5, 5));
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "the window is dropped";
    click(210, 50);
    EXPECT_EQ(selected(), std::vector<int>()) << "a click begins another one";
}

TEST_F(CanvasMenuTest, RepeatsTheLastCommand) {
    enter({"DRAWINGS"});
    const int before = transcript().size();
    play({[this] { choose("repeatMenuAction"); }});
    EXPECT_TRUE(waitUntil([&] { return transcript().mid(before).contains("Command: DRAWINGS"); }));
}

TEST_F(CanvasMenuTest, ZoomsAndSelectsAndTellsProperties) {
    const double scale = canvas().view()->scale();
    enter({"ZOOM", "10x"});
    play({[this] { choose("zoomPreviousMenuAction"); }});
    EXPECT_TRUE(waitUntil([&] { return canvas().view()->scale() == scale; }));
    play({[this] { choose("selectAllMenuAction"); }});
    EXPECT_TRUE(waitUntil([this] { return selected().size() == entities().size(); }));
    const int before = transcript().size();
    play({[this] { choose("listMenuAction"); }});
    EXPECT_TRUE(waitUntil([&] { return transcript().mid(before).join('\n').contains("LINE"); }));
}

TEST_F(CanvasMenuTest, SelectedObjectsHaveDashesThatShowTheirColourBetween) {
    EXPECT_EQ(markedPixels(), 0);
    document().editor().add({entities().at(1)});
    canvas().refresh();
    const int dashed = markedPixels();
    EXPECT_GT(dashed, 0);
    const double length = canvas().view()->scale() * 100; // the line is 100 long
    EXPECT_GT(dashed, length) << "wider than the line itself";
    EXPECT_LT(dashed, 3 * length * 0.9) << "with gaps";
}

TEST_F(CanvasMenuTest, ThePickBoxIsDrawnWhereAClickWouldPick) {
    const auto inkAround = [this](int reach) {
        const QImage image = canvas().grab().toImage();
        const QPoint at = pixel(140, 30);
        int count = 0;
        for (int i = -reach; i <= reach; ++i)
            for (int side : {-reach, reach})
                count += image.pixelColor(at + QPoint(i, side)) != image.pixelColor(2, 2);
        return count;
    };
    enter({"PICKBOX", "9"});
    QTest::mouseMove(&canvas(), pixel(140, 30));
    EXPECT_GE(inkAround(9), 2 * 19);
    enter({"PICKBOX", "5"});
    QTest::mouseMove(&canvas(), pixel(140, 30));
    EXPECT_LT(inkAround(9), 19);
    EXPECT_GE(inkAround(5), 2 * 11);
}

} // namespace
