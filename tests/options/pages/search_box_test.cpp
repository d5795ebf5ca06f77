// The search box itself: its states, its clear button, and the marks in the description pane.
#include "tests/options/pages/option_window.h"
#include "tests/support/fixture_host.h"

#include <QAction>
#include <QSignalSpy>
#include <QTextCursor>
#include <QToolButton>
#include <gtest/gtest.h>

namespace {

class SearchBox : public testing::Test {
protected:
    void SetUp() override {
        window.root->description = "All options";
        grid = window.add(window.root, "Grid", "The grid has grid lines");
        window.open();
        window.tree->setCurrentItem(window.root);
        box = window.searchEdit;
    }

    QAction* clearAction() const { return box->findChild<QAction*>("clearAction"); }
    void enter() {
        box->setFocus();
        ASSERT_TRUE(box->hasFocus());
        ASSERT_TRUE(waitUntil([this] { return box->cursorPosition() == 0; }));
    }
    void leave() {
        window.okButton->setFocus();
        ASSERT_FALSE(box->hasFocus());
    }
    void clickClear() {
        for (QToolButton* button : box->findChildren<QToolButton*>())
            if (button->defaultAction() == clearAction())
                QTest::mouseClick(button, Qt::LeftButton);
    }
    QTextCharFormat formatAt(int position) const {
        QTextCursor cursor(window.description->document());
        cursor.setPosition(position + 1); // the format of a cursor is that of the character before it
        return cursor.charFormat();
    }
    bool isMarked(int position) const {
        return formatAt(position).background() == QBrush(Qt::darkGreen) &&
               formatAt(position).foreground() == QBrush(Qt::white);
    }
    QString marks() const { // one sign for each character of the pane
        QString signs;
        for (int i = 0; i < window.description->toPlainText().size(); ++i)
            signs += isMarked(i) ? '#' : '.';
        return signs;
    }
    void showDescription(TreeItem* item) { // as the dialog does when the item becomes current
        window.description->setPlainText(item->description);
        box->refreshDescription(item);
    }

    FixtureHost host;
    OptionWindow window;
    TreeItem* grid = nullptr;
    SearchingLineEdit* box = nullptr;
};

TEST_F(SearchBox, IsIdleAtTheStart) {
    EXPECT_EQ(box->text(), "");
    EXPECT_EQ(box->placeholderText(), "Search...");
    EXPECT_FALSE(clearAction()->isVisible());
    EXPECT_EQ(clearAction()->toolTip(), "Clear");
    EXPECT_EQ(box->statusLabel->text(), "");
    EXPECT_EQ(box->statusLabel->objectName(), "statusLabel");
}

TEST_F(SearchBox, FocusPrimesItWithAStarBehindTheCursor) {
    QSignalSpy gained(box, &SearchingLineEdit::focusGained);
    QSignalSpy changed(box, &QLineEdit::textChanged);
    enter();
    EXPECT_EQ(changed.count(), 0);
    EXPECT_EQ(box->text(), "*");
    EXPECT_EQ(box->cursorPosition(), 0);
    EXPECT_EQ(box->placeholderText(), "");
    EXPECT_EQ(gained.count(), 1);
    EXPECT_FALSE(clearAction()->isVisible());
}

TEST_F(SearchBox, TypedWordLandsBeforeTheStarAndIsAPrefix) {
    enter();
    QTest::keyClicks(box, "gri");
    EXPECT_EQ(box->text(), "gri*");
    EXPECT_TRUE(clearAction()->isVisible());
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(box->statusLabel->text(), "");
    EXPECT_FALSE(grid->isHidden());
}

TEST_F(SearchBox, FocusOnATypedTextChangesNothing) {
    box->setText("grid");
    QSignalSpy gained(box, &SearchingLineEdit::focusGained);
    box->setFocus();
    ASSERT_TRUE(box->hasFocus());
    EXPECT_EQ(box->text(), "grid");
    EXPECT_EQ(gained.count(), 0);
}

TEST_F(SearchBox, TabIntoATypedTextSelectsItAsInAnyField) {
    box->setText("grid");
    box->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(box->selectedText(), "grid");
}

TEST_F(SearchBox, LossOfFocusEndsTheEditAsInAnyFieldBeforeItIsTold) {
    box->setText("grid");
    box->setFocus();
    QStringList order;
    QObject::connect(box, &QLineEdit::editingFinished, &window, [&] { order << "edited"; });
    QObject::connect(box, &SearchingLineEdit::focusOut, &window, [&] { order << "told"; });
    leave();
    EXPECT_EQ(order, (QStringList{"edited", "told"}));
}

TEST_F(SearchBox, BareStarIsIdleAgainWhenTheFocusLeaves) {
    enter();
    QSignalSpy finished(box, &SearchingLineEdit::searchFinished);
    QSignalSpy changed(box, &QLineEdit::textChanged);
    leave();
    EXPECT_EQ(box->text(), "");
    EXPECT_EQ(box->placeholderText(), "Search...");
    EXPECT_EQ(changed.count(), 0);
    EXPECT_EQ(finished.count(), 2); // of the loss of focus and of the reset that it brings
}

TEST_F(SearchBox, EmptyBoxIsIdleAgainWhenTheFocusLeaves) {
    enter();
    QTest::keyClick(box, Qt::Key_Delete);
    ASSERT_EQ(box->text(), "");
    QSignalSpy finished(box, &SearchingLineEdit::searchFinished);
    leave();
    EXPECT_EQ(box->placeholderText(), "Search...");
    EXPECT_EQ(finished.count(), 2);
}

TEST_F(SearchBox, TypedTextStaysWithItsResultWhenTheFocusLeaves) {
    enter();
    window.search("nothing");
    QSignalSpy finished(box, &SearchingLineEdit::searchFinished);
    QSignalSpy out(box, &SearchingLineEdit::focusOut);
    leave();
    EXPECT_EQ(box->text(), "nothing");
    EXPECT_TRUE(grid->isHidden());
    EXPECT_EQ(finished.count(), 0);
    EXPECT_EQ(out.count(), 1);
}

TEST_F(SearchBox, EveryLossOfFocusOfAnEmptyBoxMakesRootCurrent) {
    enter();
    window.tree->setCurrentItem(grid);
    leave();
    EXPECT_EQ(window.tree->currentItem(), window.root);
}

TEST_F(SearchBox, LaterLossOfFocusOfAnEmptyBoxRestoresTheSavedExpansionAgain) {
    TreeItem* line = window.add(grid, "Lines");
    window.search("Lines");
    box->clear();
    ASSERT_FALSE(grid->isExpanded());
    grid->setExpanded(true);
    box->setFocus();
    leave();
    EXPECT_FALSE(grid->isExpanded());
    EXPECT_FALSE(line->isHidden());
}

TEST_F(SearchBox, ClearButtonEmptiesAndResetsWhileTheFocusStays) {
    enter();
    window.search("nothing");
    ASSERT_TRUE(grid->isHidden());
    QSignalSpy finished(box, &SearchingLineEdit::searchFinished);
    clickClear();
    EXPECT_EQ(box->text(), "");
    EXPECT_FALSE(grid->isHidden());
    EXPECT_FALSE(clearAction()->isVisible());
    EXPECT_EQ(finished.count(), 1);
    EXPECT_TRUE(box->hasFocus());
}

TEST_F(SearchBox, ClearButtonIsVisibleForAnythingButNothingAndTheBareStar) {
    for (const char* text : {"a", "**", "a*", " "}) {
        box->setText(text);
        EXPECT_TRUE(clearAction()->isVisible()) << text;
    }
    for (const char* text : {"", "*"}) {
        box->setText("a");
        box->setText(text);
        EXPECT_FALSE(clearAction()->isVisible()) << text;
    }
}

TEST_F(SearchBox, ClearIconIsTheGivenOne) {
    QPixmap red(16, 16);
    red.fill(Qt::red);
    box->setClearIcon(QIcon(red));
    EXPECT_EQ(clearAction()->icon().pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::red));
}

TEST_F(SearchBox, DescriptionShowsItsMatchesInFixedColours) {
    box->setText("grid");
    showDescription(grid);
    EXPECT_EQ(marks(), "....####.....####......");
    EXPECT_EQ(window.description->toPlainText(), "The grid has grid lines");
}

TEST_F(SearchBox, NewMarksOfTheDescriptionReplaceTheOldOnes) {
    box->setText("grid");
    showDescription(grid);
    box->setText("lines");
    box->refreshDescription(grid);
    EXPECT_EQ(marks(), "..................#####");
}

TEST_F(SearchBox, PaneIsLeftAloneWhenTheDescriptionDoesNotMatch) {
    box->setText("grid");
    showDescription(grid);
    box->setText("nothing");
    box->refreshDescription(grid);
    EXPECT_EQ(marks(), "....####.....####......");
}

TEST_F(SearchBox, BareStarIsNothingSpecialForTheDescription) {
    box->setText("*");
    showDescription(grid);
    EXPECT_EQ(marks(), "###.####.###.####.#####");
}

TEST_F(SearchBox, EmptyBoxTakesTheMarksOutOfTheDescription) {
    box->setText("grid");
    showDescription(grid);
    ASSERT_EQ(marks(), "....####.....####......");
    box->clear();
    EXPECT_EQ(marks(), ".......................");
    EXPECT_EQ(window.description->toPlainText(), "The grid has grid lines");
}

TEST_F(SearchBox, EmptyBoxTakesTheMarksOutAlsoWhereTheRootHasNoDescription) {
    window.root->description.clear(); // so that nothing of the root can match
    box->setText("grid");
    showDescription(grid);
    ASSERT_EQ(marks(), "....####.....####......");
    box->clear();
    EXPECT_EQ(marks(), ".......................");
}

TEST_F(SearchBox, SearchMarksTheDescriptionOfRoot) {
    window.description->setPlainText(window.root->description);
    window.search("options");
    EXPECT_EQ(marks(), "....#######");
}

} // namespace
