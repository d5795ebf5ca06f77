// A search over the tree: what stays visible, what is expanded and marked. How it ends is in
// search_end_test.cpp.
#include "tests/options/pages/search_fixture.h"

#include <QSignalSpy>

namespace {

TEST_F(Search, TypingAloneChangesNothing) {
    window.search("nothing");
    QTest::keyClicks(window.searchEdit, " Autosave");
    ASSERT_EQ(window.searchEdit->text(), "nothing Autosave");
    EXPECT_FALSE(shown(files));
    EXPECT_EQ(status(), "No matches!!!");
    window.searchEdit->clear();
    QTest::keyClicks(window.searchEdit, "Autosave");
    EXPECT_TRUE(shown(display));
    EXPECT_EQ(label(autosave), "Autosave interval");
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
    ASSERT_FALSE(shown(display));
    EXPECT_TRUE(shown(folder)); // beside the hit, below the kept "Files"
    window.search("Display");
    ASSERT_FALSE(shown(files));
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
    EXPECT_TRUE(shown(display));
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
    ASSERT_EQ(label(autosave), "Autosave " + marked("interval"));
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
    const int growth = opening.size() + closing.size();
    const QString tail = QString(2 * growth, 'z');
    setLabel(folder, "a b a c a " + tail);
    window.search("a");
    QString expected = marked("a") + " b " + marked("a") + " c a " + tail;
    expected.replace(8 + 3 * growth, 1, marked("a"));
    EXPECT_EQ(label(folder), expected);
}

TEST_F(Search, NextSearchRemovesEveryMarkEvenOneOutOfPlace) {
    const int growth = opening.size() + closing.size();
    const QString tail = QString(2 * growth, 'z');
    setLabel(folder, "a b a c a " + tail);
    window.search("a");
    window.search("nothing");
    EXPECT_FALSE(label(folder).contains(opening));
    EXPECT_FALSE(label(folder).contains(closing));
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
    ASSERT_EQ(status(), "No matches!!!");
    window.search("nothing");
    QSignalSpy none(window.searchEdit, &SearchingLineEdit::noFound);
    QSignalSpy some(window.searchEdit, &SearchingLineEdit::smthFound);
    window.search("Grid");
    EXPECT_EQ(status(), "");
    EXPECT_EQ(none.count(), 0);
    EXPECT_EQ(some.count(), 1);
}

TEST_F(Search, WithoutAMatchTellsSoAlsoAfterASearchThatHadOne) {
    window.search("Grid");
    QSignalSpy none(window.searchEdit, &SearchingLineEdit::noFound);
    window.search("nothing");
    EXPECT_EQ(status(), "No matches!!!");
    EXPECT_EQ(none.count(), 1);
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
    ASSERT_EQ(label(grid), marked(marked("Grid")));
    EXPECT_EQ(label(below), "Grid of the second");
    window.search("nothing");
    EXPECT_FALSE(second->isHidden());
    EXPECT_FALSE(below->isHidden());
}

TEST_F(Search, RootWithoutChildrenKeepsTheStatus) {
    window.search("Grid");
    qDeleteAll(window.root->takeChildren());
    window.search("nothing");
    EXPECT_EQ(status(), "") << "of the search that found the grid";
}

TEST_F(Search, RootWithoutChildrenLosesTheStatusByAReset) {
    window.search("nothing");
    qDeleteAll(window.root->takeChildren());
    window.search("Grid");
    ASSERT_EQ(status(), "No matches!!!");
    window.searchEdit->clear();
    EXPECT_EQ(status(), "");
}

TEST_F(Search, BlanksAroundTheTextAreSearchedToo) {
    window.search(" interval");
    EXPECT_EQ(label(autosave), "Autosave" + marked(" interval"));
    window.search(" Autosave");
    EXPECT_EQ(status(), "No matches!!!");
    window.search("Autosave ");
    EXPECT_EQ(label(autosave), marked("Autosave ") + "interval");
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
    EXPECT_FALSE(shown(files)) << "it has searched";
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
        opening.left(5) + closing + opening.mid(5); // only a removed closing text would join it
    window.searchEdit->removeHighlight(hiddenOpening);
    EXPECT_EQ(hiddenOpening, opening);
    QString upper = marked("x").toUpper();
    window.searchEdit->removeHighlight(upper);
    EXPECT_EQ(upper, marked("x").toUpper());
}

TEST_F(Search, ClearingForTheNextSearchTakesClosingTextsFirst) {
    setLabel(folder, opening.left(5) + closing + opening.mid(5) + "x");
    window.search("nothing");
    EXPECT_EQ(label(folder), "x");
}

} // namespace
