// The drawing properties by keyboard, in a host that wants that. What the dialog does without is in the tests
// of its tabs.
#include "tests/dwgprops/dialog_driver.h"
#include "tests/support/test_habits.h"

#include <QTabBar>
#include <QToolButton>

namespace {

struct PropertyKeys : DrawingProperties {
    TestHabits habits{{DialogHabit::PropertiesByKeyboard, DialogHabit::Mnemonics}};
};

void press(const QWidget& dialog, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(dialog.focusWidget(), Qt::Key(key), modifiers);
}

TEST_F(PropertyKeys, AllFiveTabsAreInSightInALargeFontToo) {
    const QFont before = QApplication::font();
    for (const int size : {before.pointSize(), 2 * before.pointSize()}) {
        QFont font = before;
        font.setPointSize(size);
        QApplication::setFont(font);
        const OpenProperties dialog;
        QTabBar& bar = *dialog.tabs()->tabBar();
        for (const auto* arrow : bar.findChildren<QToolButton*>())
            EXPECT_FALSE(arrow->isVisible()) << "arrows stand for tabs that don't fit, size " << size;
        EXPECT_LE(bar.tabRect(4).right(), bar.width()) << size;
    }
    QApplication::setFont(before);
}

TEST_F(PropertyKeys, CtrlTabGoesRoundTheTabsFromWhereverTheFocusIs) {
    OpenProperties dialog;
    ASSERT_EQ(dialog.focusWidget(), dialog.control<QWidget>("okButton"));
    press(dialog, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(dialog.tabs()->currentIndex(), kSummary);
    dialog.control<QWidget>("commentsEdit")->setFocus();
    press(dialog, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(dialog.tabs()->currentIndex(), kStatistics);
    press(dialog, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    press(dialog, Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier); // as some platforms name it
    EXPECT_EQ(dialog.tabs()->currentIndex(), 0);
    press(dialog, Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(dialog.tabs()->currentIndex(), kHistory);
}

TEST_F(PropertyKeys, ArrowsWalkDeleteDeletesAndF2EditsARow) {
    setProperties({{"a", "1"}, {"b", "2"}, {"c", "3"}});
    OpenProperties dialog(kCustom);
    QTableWidget& table = *dialog.customTable();
    table.setFocus();
    EXPECT_EQ(table.currentRow(), 0);
    press(dialog, Qt::Key_Down);
    press(dialog, Qt::Key_F2);
    QTest::keyClicks(dialog.focusWidget(), "new");
    press(dialog, Qt::Key_Return);
    EXPECT_TRUE(table.hasFocus());
    EXPECT_TRUE(dialog.isVisible()) << "Enter in a cell has pressed OK";
    press(dialog, Qt::Key_Return);
    QTest::keyClicks(dialog.focusWidget(), "dropped");
    press(dialog, Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible()) << "Escape in a cell has closed the dialog";
    EXPECT_EQ(shownProperties(table), (Properties{{"a", "1"}, {"b", "new"}, {"c", "3"}}));
    press(dialog, Qt::Key_Up);
    press(dialog, Qt::Key_Delete);
    EXPECT_EQ(shownProperties(table), (Properties{{"b", "new"}, {"c", "3"}}));
    press(dialog, Qt::Key_Tab);
    EXPECT_EQ(dialog.focusWidget()->objectName(), "addButton") << "Tab leaves the table";
}

TEST_F(PropertyKeys, TheFirstRowIsEditedAtOnceAlsoInATableThatWasEmpty) {
    OpenProperties dialog(kCustom);
    QTableWidget& table = *dialog.customTable();
    table.setFocus();
    dialog.control<QWidget>("okButton")->setFocus();
    table.setItem(0, 0, new QTableWidgetItem("a"));
    table.setItem(0, 1, new QTableWidgetItem("1"));
    table.setFocus();
    press(dialog, Qt::Key_F2);
    QTest::keyClicks(dialog.focusWidget(), "new");
    press(dialog, Qt::Key_Return);
    EXPECT_EQ(shownProperties(table), (Properties{{"a", "new"}}));
}

TEST_F(PropertyKeys, TheColumnOfNamesIsAsWideAsTheNamesWithinReason) {
    setProperties({{"a name of some length, for a part", "1"}});
    OpenProperties dialog(kCustom);
    const QTableWidget& table = *dialog.customTable();
    EXPECT_GT(table.columnWidth(0), 130);
    EXPECT_LE(table.columnWidth(0), 220);
    EXPECT_GT(table.columnWidth(1), 0);
}

} // namespace
