// The Options dialog by keyboard alone, in a host that wants the focus to stay where it is. What the dialog
// does without such a host is in dialog_test.cpp.
#include "options/pages/search/searching_line_edit.h"
#include "tests/options/options_fixture.h"
#include "tests/support/test_habits.h"

#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QRadioButton>
#include <QSpinBox>
#include <QTextEdit>
#include <QTimer>
#include <QToolButton>

namespace {

class OptionKeysTest : public OptionsFixture {
protected:
    void SetUp() override {
        const OptionTreeWriter display = node("Display");
        display.node("Grid").type(L"Check").profile("Drawing", "Grid").set("Default", 0);
        display.node("Size").type(L"EditInt").profile("Drawing", "Size").set("Default", 7);
        display.node("Title").type(L"Edit").profile("Drawing", "Title").set("Default", L"plan");
        const OptionTreeWriter choice = display.node("Unit");
        choice.type(L"Combo").profile("Drawing", "Unit").set("Default", L"mm");
        choice.node("Choices").set("Hidden", 1).node("mm").set("Name", L"Millimetres");
        choice.node("Choices").node("inch").set("Name", L"Inches");
        const OptionTreeWriter mode = display.node("Mode").profile("Drawing", "Mode");
        mode.node("Slow").type(L"Radio").set("Value", 0);
        mode.node("Fast").type(L"Radio").set("Value", 1);
        show();
        dialog->tree->setCurrentItem(dialog->tree->topLevelItem(0));
    }
    QWidget* focused() const { return dialog->focusWidget(); }
    std::string focusName() const { return focused() ? focused()->objectName().toStdString() : "nothing"; }
    void press(Qt::Key key) { QTest::keyClick(focused(), key); }
    // By arrows, from the top.
    void walkTo(const char* nodeName) {
        press(Qt::Key_Home);
        for (int steps = 0; dialog->tree->currentItem() != item(nodeName) && steps < 30; ++steps)
            press(Qt::Key_Down);
        ASSERT_EQ(dialog->tree->currentItem(), item(nodeName)) << "the arrows don't get there";
    }
    void enter(const char* nodeName, Qt::Key key = Qt::Key_F2) {
        walkTo(nodeName);
        press(key);
        ASSERT_EQ(focusName(), nodeName) << "the key does not go into the editor";
        QCoreApplication::processEvents(); // an editor marks its text once the key is dealt with
    }

    TestHabits habits{{DialogHabit::FocusStaysInOptions}};
};

TEST_F(OptionKeysTest, TheFocusStartsInTheTreeAndArrowsWalkThere) {
    EXPECT_EQ(focusName(), "tree");
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(dialog->tree->currentItem(), item("Grid"));
    EXPECT_EQ(focusName(), "tree") << "a change of the current row moves the focus";
}

TEST_F(OptionKeysTest, LeftAndRightCloseAndOpenABranch) {
    walkTo("Display");
    press(Qt::Key_Left);
    EXPECT_FALSE(item("Display")->isExpanded());
    press(Qt::Key_Right);
    EXPECT_TRUE(item("Display")->isExpanded());
    press(Qt::Key_Return);
    EXPECT_FALSE(item("Display")->isExpanded()) << "Enter on a branch closes it, and does not press OK";
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(focusName(), "tree");
}

TEST_F(OptionKeysTest, SpaceSwitchesABoxAndChoosesARadioButton) {
    walkTo("Grid");
    press(Qt::Key_Space);
    EXPECT_TRUE(editor<QCheckBox>("Grid")->isChecked());
    walkTo("Fast");
    press(Qt::Key_Space);
    EXPECT_TRUE(editor<QRadioButton>("Fast")->isChecked());
    EXPECT_EQ(focusName(), "tree");
    apply();
    EXPECT_EQ(storedInt("Drawing", "Grid"), 1);
    EXPECT_EQ(storedInt("Drawing", "Mode"), 1);
}

TEST_F(OptionKeysTest, EnterOrF2EditsAndEnterKeepsWhatWasTyped) {
    enter("Size", Qt::Key_Return);
    QTest::keyClicks(focused(), "12");
    press(Qt::Key_Return);
    EXPECT_EQ(focusName(), "tree");
    enter("Title");
    QTest::keyClicks(focused(), "site");
    press(Qt::Key_Enter);
    EXPECT_EQ(focusName(), "tree");
    enter("Unit");
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(focusName(), "tree");
    ASSERT_TRUE(dialog->isVisible()) << "Enter in an editor has pressed OK";
    apply();
    EXPECT_EQ(storedInt("Drawing", "Size"), 12);
    EXPECT_EQ(storedText("Drawing", "Title"), "site");
    EXPECT_EQ(storedText("Drawing", "Unit"), "inch");
}

TEST_F(OptionKeysTest, EscapeComesBackToTheTreeWithTheValueFromBefore) {
    enter("Size");
    QTest::keyClicks(focused(), "99");
    press(Qt::Key_Escape);
    EXPECT_EQ(focusName(), "tree");
    enter("Title");
    QTest::keyClicks(focused(), "other");
    press(Qt::Key_Escape);
    EXPECT_EQ(focusName(), "tree");
    enter("Unit");
    press(Qt::Key_Down);
    press(Qt::Key_Escape);
    ASSERT_TRUE(dialog->isVisible()) << "Escape in an editor has closed the dialog";
    apply();
    EXPECT_EQ(storedInt("Drawing", "Size"), 7);
    EXPECT_EQ(storedText("Drawing", "Title"), "plan");
    EXPECT_EQ(storedText("Drawing", "Unit"), "mm");
    press(Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible()) << "Escape in the tree closes the dialog";
}

TEST_F(OptionKeysTest, TabGoesFromTreeAndEditorToTheNextControlAndRoundTheDialog) {
    enter("Title");
    QTest::keyClicks(focused(), "kept");
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), "profileCombo");
    apply();
    EXPECT_EQ(storedText("Drawing", "Title"), "kept");
    QStringList round;
    dialog->tree->setFocus();
    do {
        press(Qt::Key_Tab);
        round << focused()->objectName();
    } while (focusName() != "tree" && round.size() < 50);
    EXPECT_EQ(round,
              QStringList({"profileCombo", "profileButton", "description", "searchEdit", "collapseButton",
                           "applyButton", "okButton", "cancelButton", "helpButton", "tree"}))
        << round.join(' ').toStdString();
    enter("Title");
    QTest::keyClick(focused(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focusName(), "tree");
}

TEST_F(OptionKeysTest, ClearingTheSearchBoxKeepsTheCaretThere) {
    dialog->searchEdit->setFocus();
    QTest::keyClicks(focused(), "Grid");
    press(Qt::Key_Return);
    EXPECT_EQ(focusName(), "searchEdit");
    QTest::keyClick(focused(), Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    EXPECT_EQ(focusName(), "searchEdit");
    EXPECT_EQ(dialog->searchEdit->text(), "");
}

TEST_F(OptionKeysTest, TheMenuKeyBringsUpTheMenuOfTheCurrentRow) {
    walkTo("Size");
    QStringList entries;
    QTimer::singleShot(0, dialog.get(), [&entries] {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu) << "no menu came up";
        for (const QAction* action : menu->actions())
            if (action->isEnabled())
                entries << action->text();
        menu->close();
    });
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint());
    QApplication::sendEvent(dialog->tree, &asked);
    EXPECT_EQ(entries, QStringList("Modify"));
}

} // namespace
