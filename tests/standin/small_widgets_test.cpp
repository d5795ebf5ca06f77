// The grid of colours, combo boxes and icons of the host, as a user meets them.
#include "host/qt_ui_core.h"
#include "standin/dialogs/color_dialog.h"

#include <QApplication>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolTip>
#include <QWheelEvent>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

using standin::PaletteGrid;

struct PaletteGridTest : testing::Test {
    PaletteGridTest() { grid.resize(grid.sizeHint()); }
    int clicked(int x, int y) {
        grid.setCurrent(0);
        QTest::mouseClick(&grid, Qt::LeftButton, Qt::NoModifier, QPoint(x, y));
        return grid.current();
    }
    PaletteGrid grid{nullptr};
};

// Cells are 18 pixels wide; there are 6 between the basic colours, the shades and the greys.
TEST_F(PaletteGridTest, CellsStandInThreeParts) {
    EXPECT_EQ(grid.sizeHint(), QSize(24 * 18 + 1, 12 * 18 + 12 + 1));
    struct Cell {
        int x, y, index;
    };
    for (const Cell& each : {Cell{1, 0, 1},
                             {0, 1, 1},
                             {17, 17, 1},
                             {18, 0, 2},
                             {8 * 18, 17, 9},
                             {9 * 18, 0, 0},
                             {0, 18, 0},
                             {0, 23, 0},
                             {0, 24, 10},
                             {0, 41, 10},
                             {0, 42, 11},
                             {0, 24 + 180 - 1, 19},
                             {18, 24, 20},
                             {24 * 18 - 1, 24 + 180 - 1, 249},
                             {0, 24 + 180, 0},
                             {0, 24 + 180 + 5, 0},
                             {0, 24 + 180 + 6, 250},
                             {5 * 18 + 17, 24 + 180 + 6 + 17, 255},
                             {6 * 18, 24 + 180 + 6, 0}})
        EXPECT_EQ(clicked(each.x, each.y), each.index) << each.x << "," << each.y;
}

TEST_F(PaletteGridTest, KeysGoFromCellToCell) {
    const auto pressed = [this](int from, Qt::Key key) {
        grid.setCurrent(from);
        QTest::keyClick(&grid, key);
        return grid.current();
    };
    EXPECT_EQ(pressed(0, Qt::Key_Right), 1);
    EXPECT_EQ(pressed(20, Qt::Key_Right), 30);
    EXPECT_EQ(pressed(20, Qt::Key_Left), 10);
    EXPECT_EQ(pressed(20, Qt::Key_Down), 21);
    EXPECT_EQ(pressed(20, Qt::Key_Up), 19);
    EXPECT_EQ(pressed(1, Qt::Key_Up), 1) << "there is none before the first";
    EXPECT_EQ(pressed(2, Qt::Key_Up), 1);
    EXPECT_EQ(pressed(255, Qt::Key_Down), 255);
    EXPECT_EQ(pressed(254, Qt::Key_Down), 255);
    EXPECT_EQ(pressed(5, Qt::Key_Left), 5);
    EXPECT_EQ(pressed(20, Qt::Key_A), 20);
}

TEST_F(PaletteGridTest, TellsWhatWasPicked) {
    const QSignalSpy picked(&grid, &PaletteGrid::picked);
    EXPECT_EQ(clicked(9 * 18, 0), 0);
    EXPECT_EQ(picked.count(), 0);
    clicked(20, 3);
    ASSERT_EQ(picked.count(), 1);
    EXPECT_EQ(picked[0][0].toInt(), 2);
}

TEST_F(PaletteGridTest, PaintsEachColourAndAFrameAroundThePresentOne) {
    QImage image = grid.grab().toImage();
    EXPECT_EQ(image.pixelColor(9, 9), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(18 + 9, 9), QColor(Qt::yellow));
    EXPECT_EQ(image.pixelColor(9, 24 + 180 + 6 + 9), QColor(51, 51, 51));
    EXPECT_EQ(image.pixelColor(5 * 18 + 9, 24 + 180 + 6 + 9), QColor(Qt::white));
    const QColor mark = grid.palette().color(QPalette::Highlight);
    EXPECT_NE(image.pixelColor(1, 9), mark);
    grid.setCurrent(1);
    image = grid.grab().toImage();
    EXPECT_EQ(image.pixelColor(1, 9), mark);
    EXPECT_EQ(image.pixelColor(9, 9), QColor(Qt::red));
}

TEST_F(PaletteGridTest, NamesTheColourUnderThePointer) {
    grid.show();
    const auto tipAt = [this](const QPoint& place) {
        QHelpEvent help(QEvent::ToolTip, place, grid.mapToGlobal(place));
        QApplication::sendEvent(&grid, &help);
        return QToolTip::text();
    };
    EXPECT_EQ(tipAt({9, 9}), "Colour 1, #ff0000");
    EXPECT_EQ(tipAt({9, 24 + 180 + 6 + 9}), "Colour 250, #333333");
}

// Whether the widget took the turn for itself; otherwise its window has it.
bool takesWheel(QWidget& widget) {
    QWheelEvent event(QPointF(2, 2), widget.mapToGlobal(QPoint(2, 2)), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

TEST(HostComboBoxes, LeaveTheWheelToTheirWindowWhereAsked) {
    host_qt_ui_core::QHostComboBox combo(nullptr);
    combo.addItems({"a", "b", "c"});
    EXPECT_TRUE(takesWheel(combo));
    EXPECT_EQ(combo.currentIndex(), 1);
    combo.disableMouseWheel(true);
    EXPECT_FALSE(takesWheel(combo));
    EXPECT_EQ(combo.currentIndex(), 1);
    combo.disableMouseWheel(false);
    EXPECT_TRUE(takesWheel(combo));
    EXPECT_EQ(combo.currentIndex(), 2);
}

TEST(HostIcons, OfDisabledActionsAreFaded) {
    const QTemporaryDir dir;
    const QString path = dir.filePath("icon.png");
    QImage picture(16, 16, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(path));
    const QIcon icon = host_qt_ui_core::createHostDisableIcon(path);
    EXPECT_EQ(icon.pixmap(16, QIcon::Normal).toImage().pixelColor(8, 8), QColor(Qt::red));
    const QColor faded = icon.pixmap(16, QIcon::Disabled).toImage().pixelColor(8, 8);
    EXPECT_NEAR(faded.alphaF(), 0.35, 0.01);
    EXPECT_GT(faded.red(), 250);
    EXPECT_TRUE(host_qt_ui_core::createHostDisableIcon(dir.filePath("none.png")).isNull());
}

} // namespace
