// A search over the tree: what stays visible, what is expanded and marked, and how it ends.
#include "tests/options/pages/option_window.h"
#include "tests/support/fixture_host.h"

#include <QSignalSpy>
#include <QTextCursor>
#include <gtest/gtest.h>

namespace {

const QString kOpen = "<span style=\"background-color: green\"><font color=\"white\">";
const QString kClose = "</font></span>";

QString marked(const QString& text) { return kOpen + text + kClose; }

class Search : public testing::Test {
protected:
    void SetUp() override {
        window.root->description = "All options of this program";
        display = window.add(window.root, "Display", "How the drawing is shown");
        colours = window.add(display, "Colours", "Colours of the canvas");
        background = window.add(colours, "Background colour", "Colour behind the drawing");
        grid = window.add(display, "Grid", "Lines of the grid");
        files = window.add(window.root, "Files", "Folders and files");
        autosave = window.add(files, "Autosave interval", "Minutes between two savings");
        folder = window.add(files, "Folder", "Where the copies go");
        window.open();
        window.tree->setCurrentItem(window.root);
    }

    bool shown(TreeItem* item) const { return !item->isHidden(); }
    QString status() const { return window.searchEdit->statusLabel->text(); }
    QString label(TreeItem* item) const { return window.labelText(item); }
    void setLabel(TreeItem* item, const QString& text) {
        static_cast<QPrefWidget*>(window.tree->itemWidget(item, 0))->label()->setText(text);
    }

    FixtureHost host;
    OptionWindow window;
    TreeItem *display = nullptr, *colours = nullptr, *background = nullptr, *grid = nullptr, *files = nullptr,
             *autosave = nullptr, *folder = nullptr;
};

TEST_F(Search, TypingAloneChangesNothing) {
    window.searchEdit->setText("Autosave");
    EXPECT_TRUE(shown(display));
    EXPECT_EQ(label(autosave), "Autosave interval");
    EXPECT_EQ(status(), "");
}

TEST_F(Search, HidesTopBranchesWithoutAHit) {
    window.search("Autosave");
    EXPECT_FALSE(shown(display));
    EXPECT_TRUE(shown(files));
    EXPECT_TRUE(shown(autosave));
}

TEST_F(Search, EnterSearchesAsReturnDoes) {
    window.searchEdit->setText("Autosave");
    QTest::keyClick(window.searchEdit, Qt::Key_Enter);
    EXPECT_FALSE(shown(display));
}

TEST_F(Search, ShowsEverythingBelowAKeptBranchMatchingOrNot) {
    window.search("Autosave");
    EXPECT_TRUE(shown(folder)); // beside the hit, below the kept "Files"
    window.search("Display");
    for (TreeItem* item : {display, colours, background, grid})
        EXPECT_TRUE(shown(item)) << label(item).toStdString();
}

TEST_F(Search, HiddenBranchKeepsAFlagOfItsOwnOnEachItem) {
    window.search("Autosave");
    for (TreeItem* item : {display, colours, background, grid})
        EXPECT_TRUE(item->isHidden()) << label(item).toStdString();
}

TEST_F(Search, ExpandsTheParentsOfAHit) {
    window.search("Background");
    EXPECT_TRUE(display->isExpanded());
    EXPECT_TRUE(colours->isExpanded());
    EXPECT_FALSE(background->isExpanded());
    EXPECT_FALSE(files->isExpanded());
}

TEST_F(Search, MatchesDescriptionsToo) {
    window.search("copies");
    EXPECT_TRUE(shown(folder));
    EXPECT_FALSE(shown(display));
    EXPECT_TRUE(files->isExpanded());
}

TEST_F(Search, MarksTheMatchInTheLabelInTheGivenColours) {
    window.search("interval");
    EXPECT_EQ(label(autosave), "Autosave " + marked("interval"));
}

TEST_F(Search, MarksTheWholeLabelOfAnItemWhoseDescriptionMatches) {
    window.search("minutes");
    EXPECT_EQ(label(autosave), marked("Autosave interval"));
}

TEST_F(Search, NestsTheMarksOfAnItemThatMatchesInBoth) {
    window.search("colour");
    EXPECT_EQ(label(background), marked("Background " + marked("colour")));
}

TEST_F(Search, LeavesTheLabelOfAnAncestorOfAHitUnmarked) {
    window.search("interval");
    EXPECT_EQ(label(files), "Files");
}

TEST_F(Search, MarksTwoMatchesOfALabelExactly) {
    setLabel(folder, "a b a");
    window.search("a");
    EXPECT_EQ(label(folder), marked("a") + " b " + marked("a"));
}

TEST_F(Search, ThirdMarkOfAShortLabelIsMissing) {
    setLabel(folder, "a b a c a");
    window.search("a");
    EXPECT_EQ(label(folder), marked("a") + " b " + marked("a") + " c a");
}

TEST_F(Search, ThirdMarkOfALongLabelStandsOutOfPlaceAndOverwritesText) {
    const int growth = kOpen.size() + kClose.size();
    const QString tail = QString(2 * growth, 'z');
    setLabel(folder, "a b a c a " + tail);
    window.search("a");
    QString expected = marked("a") + " b " + marked("a") + " c a " + tail;
    expected.replace(8 + 3 * growth, 1, marked("a"));
    EXPECT_EQ(label(folder), expected);
}

TEST_F(Search, NextSearchRemovesEveryMarkEvenOneOutOfPlace) {
    const int growth = kOpen.size() + kClose.size();
    const QString tail = QString(2 * growth, 'z');
    setLabel(folder, "a b a c a " + tail);
    window.search("a");
    window.search("nothing");
    EXPECT_FALSE(label(folder).contains(kOpen));
    EXPECT_FALSE(label(folder).contains(kClose));
    EXPECT_EQ(label(folder).size(), 10 + tail.size()); // one letter of the tail is lost for good
    EXPECT_EQ(label(folder).count('z'), tail.size() - 1);
}

TEST_F(Search, MarkupInALabelIsNotEscaped) {
    setLabel(folder, "<b>Copies</b> <i>x</i>");
    window.search("Copies");
    EXPECT_TRUE(label(folder).contains("<b>" + marked("Copies") + "</b>"));
}

TEST_F(Search, WithoutAMatchHidesEveryItemBelowRoot) {
    QSignalSpy none(window.searchEdit, &SearchingLineEdit::noFound);
    QSignalSpy some(window.searchEdit, &SearchingLineEdit::smthFound);
    window.search("nothing");
    for (TreeItem* item : {display, colours, background, grid, files, autosave, folder})
        EXPECT_TRUE(item->isHidden()) << label(item).toStdString();
    EXPECT_TRUE(shown(window.root));
    EXPECT_EQ(status(), "No matches!!!");
    EXPECT_EQ(none.count(), 1);
    EXPECT_EQ(some.count(), 0);
}

TEST_F(Search, WithAMatchTellsSoAndEmptiesTheStatus) {
    window.search("nothing");
    QSignalSpy none(window.searchEdit, &SearchingLineEdit::noFound);
    QSignalSpy some(window.searchEdit, &SearchingLineEdit::smthFound);
    window.search("Grid");
    EXPECT_EQ(status(), "");
    EXPECT_EQ(none.count(), 0);
    EXPECT_EQ(some.count(), 1);
}

TEST_F(Search, TellsOfTheResultBeforeItTellsOfTheStart) {
    QStringList order;
    QObject::connect(window.searchEdit, &SearchingLineEdit::smthFound, &window, [&] { order << "found"; });
    QObject::connect(window.searchEdit, &SearchingLineEdit::searchStarted, &window,
                     [&] { order << "started"; });
    window.search("Grid");
    EXPECT_EQ(order, (QStringList{"found", "started"}));
}

TEST_F(Search, RootIsNotSearchedButBecomesCurrent) {
    window.tree->setCurrentItem(grid);
    window.search("program");
    EXPECT_EQ(status(), "No matches!!!");
    EXPECT_EQ(label(window.root), "Options");
    EXPECT_EQ(window.tree->currentItem(), window.root);
}

TEST_F(Search, OtherTopLevelItemsAreNeitherMarkedNorHidden) {
    auto* second = new TreeItem(window.tree, QStringList("Second"));
    window.setRow(second, nullptr);
    TreeItem* below = window.add(second, "Grid of the second");
    window.search("Grid");
    EXPECT_EQ(label(below), "Grid of the second");
    window.search("nothing");
    EXPECT_FALSE(second->isHidden());
    EXPECT_FALSE(below->isHidden());
}

TEST_F(Search, RootWithoutChildrenKeepsTheStatus) {
    window.search("nothing");
    qDeleteAll(window.root->takeChildren());
    window.search("Grid");
    EXPECT_EQ(status(), "No matches!!!");
}

TEST_F(Search, PassesOverItemsWithoutARowButSearchesBelowThem) {
    auto* bare = new TreeItem(window.root, QStringList("bare"));
    TreeItem* below = window.add(bare, "Crosshair");
    window.search("Crosshair");
    EXPECT_TRUE(shown(bare));
    EXPECT_TRUE(bare->isExpanded());
    EXPECT_EQ(label(below), marked("Crosshair"));
}

TEST_F(Search, EmptyTreeIsBorne) {
    OptionWindow empty(OptionWindow::WithoutRoot);
    QSignalSpy none(empty.searchEdit, &SearchingLineEdit::noFound);
    empty.open();
    empty.search("Grid");
    EXPECT_EQ(none.count(), 1);
    empty.searchEdit->clear();
    EXPECT_EQ(none.count(), 2);
}

TEST_F(Search, DeepTreeIsSearchedToTheBottom) {
    TreeItem* parent = window.root;
    for (int depth = 0; depth < 500; ++depth)
        parent = window.add(parent, QString("Level%1").arg(depth));
    window.search("Level499");
    EXPECT_TRUE(shown(parent));
    EXPECT_EQ(label(parent), marked("Level499"));
    EXPECT_FALSE(shown(display));
}

TEST_F(Search, ResetShowsEverythingAndTakesTheMarksAway) {
    window.search("colour");
    window.searchEdit->clear();
    for (TreeItem* item : {display, colours, background, grid, files, autosave, folder})
        EXPECT_TRUE(shown(item)) << label(item).toStdString();
    EXPECT_EQ(label(background), "Background colour");
    EXPECT_EQ(status(), "");
}

TEST_F(Search, ResetMakesRootCurrentWhereNoExpansionChanges) {
    window.search("nothing");
    window.tree->setCurrentItem(files);
    window.searchEdit->clear();
    EXPECT_EQ(window.tree->currentItem(), window.root);
}

TEST_F(Search, ResetThatCollapsesAnItemLeavesThatItemCurrent) {
    window.search("interval");
    window.searchEdit->clear();
    EXPECT_EQ(window.tree->currentItem(), files); // the rule for collapsed items runs during the reset too
}

TEST_F(Search, ResetPutsTheSavedExpansionBack) {
    files->setExpanded(true);
    window.search("Background");
    ASSERT_TRUE(colours->isExpanded());
    window.searchEdit->clear();
    EXPECT_FALSE(display->isExpanded());
    EXPECT_FALSE(colours->isExpanded());
    EXPECT_TRUE(files->isExpanded());
}

TEST_F(Search, ResetTellsThatNothingIsFoundAndThenThatItIsFinished) {
    window.search("Background");
    QStringList order;
    QObject::connect(window.searchEdit, &SearchingLineEdit::noFound, &window, [&] { order << "none"; });
    QObject::connect(window.searchEdit, &SearchingLineEdit::searchFinished, &window,
                     [&] { order << "finished"; });
    window.searchEdit->clear();
    EXPECT_EQ(order, (QStringList{"none", "finished"}));
}

TEST_F(Search, ResetHasPutTheExpansionBackWhenItTellsThatItIsFinished) {
    window.search("Background");
    ASSERT_TRUE(colours->isExpanded());
    bool expandedThen = true;
    QObject::connect(window.searchEdit, &SearchingLineEdit::searchFinished, &window,
                     [&] { expandedThen = display->isExpanded() || colours->isExpanded(); });
    window.searchEdit->clear();
    EXPECT_FALSE(expandedThen);
}

TEST_F(Search, SecondReturnOverwritesTheSavedExpansionWithThatOfTheFirstSearch) {
    window.search("Background");
    QTest::keyClick(window.searchEdit, Qt::Key_Return);
    window.searchEdit->clear();
    EXPECT_TRUE(display->isExpanded());
    EXPECT_TRUE(colours->isExpanded());
}

TEST_F(Search, ItemHiddenAtReturnKeepsTheExpansionThatTheSearchLeft) {
    window.search("Autosave"); // hides "Display", whose expansion the next Return cannot save
    window.search("Background");
    ASSERT_TRUE(display->isExpanded());
    window.searchEdit->clear();
    EXPECT_TRUE(display->isExpanded());
    EXPECT_TRUE(files->isExpanded()); // as the first search left it
}

TEST_F(Search, ReturnOnAnEmptyBoxSearchesNothingButSavesAndTells) {
    for (const char* text : {"", "*"}) {
        display->setExpanded(true);
        QSignalSpy started(window.searchEdit, &SearchingLineEdit::searchStarted);
        QSignalSpy none(window.searchEdit, &SearchingLineEdit::noFound);
        window.searchEdit->setText(text);
        none.clear(); // emptying the box is a reset
        window.tree->setCurrentItem(grid);
        QTest::keyClick(window.searchEdit, Qt::Key_Return);
        EXPECT_EQ(started.count(), 1) << text;
        EXPECT_EQ(none.count(), 0) << text;
        EXPECT_EQ(window.tree->currentItem(), grid) << text;
        display->setExpanded(false);
        window.searchEdit->setText("x");
        window.searchEdit->clear();
        EXPECT_TRUE(display->isExpanded()) << text; // the saved expansion came back
    }
}

TEST_F(Search, ReturnDoesNotFireTheDefaultButtonAndIsNoEndOfEditing) {
    QSignalSpy clicked(window.okButton, &QPushButton::clicked);
    QSignalSpy pressed(window.searchEdit, &QLineEdit::returnPressed);
    window.searchEdit->setFocus();
    window.search("Grid");
    EXPECT_EQ(clicked.count(), 0);
    EXPECT_EQ(pressed.count(), 0);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(Search, RemoveHighlightGivesTheTextOfTheLabelBack) {
    window.search("colour");
    QString text = label(background);
    ASSERT_NE(text, "Background colour");
    window.searchEdit->removeHighlight(text);
    EXPECT_EQ(text, "Background colour");
}

TEST_F(Search, RemoveHighlightTakesOpeningTextsFirstAndLooksAtTheCase) {
    QString hiddenOpening =
        kOpen.left(5) + kClose + kOpen.mid(5); // only a removed closing text would join it
    window.searchEdit->removeHighlight(hiddenOpening);
    EXPECT_EQ(hiddenOpening, kOpen);
    QString upper = marked("x").toUpper();
    window.searchEdit->removeHighlight(upper);
    EXPECT_EQ(upper, marked("x").toUpper());
}

TEST_F(Search, ClearingForTheNextSearchTakesClosingTextsFirst) {
    setLabel(folder, kOpen.left(5) + kClose + kOpen.mid(5) + "x");
    window.search("nothing");
    EXPECT_EQ(label(folder), "x");
}

} // namespace
