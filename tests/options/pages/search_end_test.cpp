// The end of a search: what a reset shows, expands and makes current again.
#include "tests/options/pages/search_fixture.h"

namespace {

TEST_F(Search, ResetShowsEverythingAndTakesTheMarksAway) {
    window.search("colour");
    ASSERT_FALSE(shown(folder));
    ASSERT_NE(label(background), "Background colour");
    window.searchEdit->clear();
    for (TreeItem* item : {display, colours, background, grid, files, autosave, folder})
        EXPECT_TRUE(shown(item)) << label(item).toStdString();
    EXPECT_EQ(label(background), "Background colour");
}

TEST_F(Search, ResetAfterASearchThatFailedShowsEverythingAndEmptiesTheStatus) {
    window.search("nothing");
    ASSERT_EQ(status(), "No matches!!!");
    window.searchEdit->clear();
    for (TreeItem* item : {display, colours, background, grid, files, autosave, folder})
        EXPECT_TRUE(shown(item)) << label(item).toStdString();
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

} // namespace
