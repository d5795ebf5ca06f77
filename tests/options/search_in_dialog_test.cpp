// The search inside the whole dialog, where the dialog's own rules run along with it.
#include "options/pages/search/searching_line_edit.h"
#include "tests/options/options_fixture.h"

#include <QComboBox>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTextCursor>
#include <QTextEdit>

namespace {

class SearchInDialog : public OptionsFixture {
protected:
    void SetUp() override {
        node("Display").node("Grid").set("Description", L"Lines of the grid");
        node("Files").node("Autosave").set("Description", L"Minutes between two savings");
        show();
        box = dialog->searchEdit;
    }
    // Types into the box as a user does, in front of the star.
    void type(const char* text) {
        box->setFocus();
        ASSERT_TRUE(waitUntil([this] { return box->hasFocus() && box->cursorPosition() == 0; }));
        QTest::keyClicks(box, text);
    }
    void search(const char* text) {
        type(text);
        QTest::keyClick(box, Qt::Key_Return);
    }
    bool isMarkedAtTheEnd() const {
        QTextCursor cursor(dialog->description->document());
        cursor.movePosition(QTextCursor::End);
        return cursor.charFormat().background() == QBrush(Qt::darkGreen);
    }

    SearchingLineEdit* box = nullptr;
};

TEST_F(SearchInDialog, TheFocusGoesToOkWithTheCurrentItemAndTheTextStays) {
    dialog->tree->setCurrentItem(item("Grid"));
    search("auto");
    EXPECT_EQ(dialog->tree->currentItem(), dialog->tree->topLevelItem(0));
    EXPECT_TRUE(dialog->okButton->hasFocus());
    EXPECT_EQ(box->text(), "auto*");
    EXPECT_TRUE(item("Display")->isHidden());
    EXPECT_FALSE(item("Autosave")->isHidden());
    EXPECT_TRUE(dialog->isVisible()); // Return has not pressed OK
}

TEST_F(SearchInDialog, AResetWhoseFocusRuleStartsAnotherEndsWithEverythingBack) {
    item("Files")->setExpanded(false);
    search("auto");
    ASSERT_TRUE(item("Files")->isExpanded());
    dialog->tree->setCurrentItem(item("Autosave"));
    box->setFocus();
    ASSERT_TRUE(waitUntil([this] { return box->hasFocus(); }));
    QSignalSpy finished(box, &SearchingLineEdit::searchFinished);
    box->clear();
    EXPECT_GE(finished.count(), 2); // the reset and the one inside it
    EXPECT_TRUE(dialog->okButton->hasFocus());
    EXPECT_EQ(box->text(), "");
    EXPECT_EQ(box->placeholderText(), "Search...");
    EXPECT_FALSE(item("Display")->isHidden());
    EXPECT_FALSE(item("Grid")->isHidden());
    EXPECT_FALSE(item("Files")->isExpanded());
    EXPECT_EQ(labelOf("Autosave"), "Autosave");
}

TEST_F(SearchInDialog, TheRulesForOpenedAndClosedItemsRunDuringAReset) {
    item("Files")->setExpanded(false);
    search("auto");
    box->clear();
    EXPECT_EQ(dialog->tree->currentItem(),
              item("Files")); // the reset has closed it, after the root was current
}

TEST_F(SearchInDialog, TheMatchIsMarkedInTheDescriptionOfTheRowThatBecomesCurrent) {
    search("savings");
    dialog->tree->setCurrentItem(item("Autosave"));
    EXPECT_EQ(dialog->description->toPlainText(), "Minutes between two savings");
    EXPECT_TRUE(isMarkedAtTheEnd());
    dialog->tree->setCurrentItem(item("Grid"));
    EXPECT_FALSE(isMarkedAtTheEnd());
}

TEST_F(SearchInDialog, ACollapseAllDuringASearchIsUndoneByExpand) {
    search("auto");
    dialog->tree->setCurrentItem(item("Autosave"));
    QTest::mouseClick(dialog->findChild<QPushButton*>("collapseButton"), Qt::LeftButton);
    EXPECT_FALSE(item("Files")->isExpanded());
    EXPECT_EQ(dialog->tree->currentItem(), item("Files"));
    QTest::mouseClick(dialog->findChild<QPushButton*>("expandButton"), Qt::LeftButton);
    EXPECT_TRUE(item("Files")->isExpanded());
    EXPECT_EQ(dialog->tree->currentItem(), item("Autosave"));
}

class SearchedGroup : public OptionsFixture {
protected:
    QString mark(const QString& text) const {
        return "<span style=\"background-color: green\"><font color=\"white\">" + text + "</font></span>";
    }
};

TEST_F(SearchedGroup, TheMarksOfASearchAreNoPartOfWhatTheGroupShowsAsItsChoice) {
    const OptionTreeWriter group = node("Group");
    group.profile("S", "Group").set("Name", L"Cursor");
    group.node("Cross").type(L"Radio").set("Value", 0);
    group.node("Box").type(L"Radio").set("Value", 1);
    show();
    dialog->searchEdit->setText("Cursor");
    QTest::keyClick(dialog->searchEdit, Qt::Key_Return);
    ASSERT_EQ(labelOf("Group"), mark("Cursor") + " [Cross]");
    dialog->searchEdit->setText("Box");
    QTest::keyClick(dialog->searchEdit, Qt::Key_Return);
    ASSERT_EQ(labelOf("Box"), mark("Box"));
    editor<QRadioButton>("Box")->click();
    EXPECT_EQ(labelOf("Group"), "Cursor [Box]");
    EXPECT_EQ(row("Group")->label()->toolTip(), "Cursor [Box]");
    dialog->searchEdit->setText("Cursor");
    QTest::keyClick(dialog->searchEdit, Qt::Key_Return);
    ASSERT_EQ(labelOf("Group"), mark("Cursor") + " [Box]");
    editor<QRadioButton>("Cross")->click();
    EXPECT_EQ(labelOf("Group"), "Cursor [Cross]");
}

class SearchedCombo : public OptionsFixture {};

TEST_F(SearchedCombo, AChangeOfTheChoiceMarksTheMatchInItsDescription) {
    const OptionTreeWriter combo = node("Combo");
    combo.type(L"Combo");
    const OptionTreeWriter choices = combo.node("Choices").set("Hidden", 1);
    choices.node("first").set("Description", L"About the first");
    choices.node("second").set("Description", L"About the second");
    open();
    dialog->searchEdit->setText("second");
    editor<QComboBox>("Combo")->setCurrentIndex(1);
    QTextCursor cursor(dialog->description->document());
    cursor.movePosition(QTextCursor::End);
    EXPECT_EQ(dialog->description->toPlainText(), "About the second");
    EXPECT_EQ(cursor.charFormat().background(), QBrush(Qt::darkGreen));
}

} // namespace
