// Moving a path up and down: the texts of two elements change places, the elements don't.
#include "options/pages/directories/std_dirs_page.h"
#include "options/pages/rows/clickable_label.h"
#include "options/window/page_calls.h"
#include "tests/options/pages/std_dirs_fixture.h"

namespace {

class StdDirMoves : public StdDirsFixture {
protected:
    void openWithThree() {
        addSection("A", L"Section A", {L"/1", L"/2", L"/3"});
        open();
    }
};

} // namespace

TEST_F(StdDirMoves, DownExchangesTheRowWithTheNextOne) {
    openWithThree();
    select(row("/1"));
    click(preferences->downButton);
    EXPECT_EQ(rows(), (QStringList{"/2", "/1", "/3"}));
    EXPECT_EQ(held(), (QStringList{"/2", "/1", "/3"}));
    EXPECT_EQ(current(), row("/1"));
    EXPECT_TRUE(preferences->tree->hasFocus());
    apply();
    EXPECT_EQ(stored("A"), (QStringList{"/2", "/1", "/3"}));
}

TEST_F(StdDirMoves, UpExchangesTheRowWithTheOneBefore) {
    openWithThree();
    select(row("/3"));
    click(preferences->upButton);
    EXPECT_EQ(rows(), (QStringList{"/1", "/3", "/2"}));
    EXPECT_EQ(held(), (QStringList{"/1", "/3", "/2"}));
    click(preferences->upButton);
    EXPECT_EQ(rows(), (QStringList{"/3", "/1", "/2"}));
}

TEST_F(StdDirMoves, TheEndsStay) {
    openWithThree();
    select(row("/1"));
    EXPECT_FALSE(preferences->upButton->isEnabled());
    movePath(*preferences, row("/1"), -1);
    select(row("/3"));
    EXPECT_FALSE(preferences->downButton->isEnabled());
    movePath(*preferences, row("/3"), 1);
    EXPECT_EQ(rows(), (QStringList{"/1", "/2", "/3"}));
    EXPECT_EQ(held(), (QStringList{"/1", "/2", "/3"}));
}

TEST_F(StdDirMoves, TheElementsKeepTheirPlacesAndTheirRows) {
    openWithThree();
    TreeItem* moved = row("/1");
    void* own = moved->payload;
    select(moved);
    click(preferences->downButton);
    EXPECT_EQ(row("/1"), moved);
    EXPECT_EQ(moved->payload, own);
    EXPECT_EQ(elementsOf(preferences->stdDirs[0].list)[0].get(), own);
}

TEST_F(StdDirMoves, AModifyAfterAMoveActsOnTheElementThatHoldsTheOthersText) {
    openWithThree();
    select(row("/1"));
    click(preferences->downButton);
    modify(row("/1"), "/new");
    EXPECT_EQ(rows(), (QStringList{"/2", "/new", "/3"}));
    EXPECT_EQ(held(), (QStringList{"/new", "/1", "/3"})) << "meant: the row points at the other's element";
}

TEST_F(StdDirMoves, ADeleteAfterAMoveRemovesTheElementThatHoldsTheOthersText) {
    openWithThree();
    select(row("/1"));
    click(preferences->downButton);
    click(preferences->deleteButton);
    EXPECT_EQ(rows(), (QStringList{"/2", "/3"}));
    EXPECT_EQ(held(), (QStringList{"/1", "/3"})) << "meant: the row points at the other's element";
}

TEST_F(StdDirMoves, ASecondMoveOfARowCarriesTheTextOfItsElementAndNotItsOwn) {
    openWithThree();
    select(row("/1"));
    click(preferences->downButton);
    click(preferences->downButton);
    EXPECT_EQ(rows(), (QStringList{"/2", "/3", "/1"}));
    EXPECT_EQ(held(), (QStringList{"/3", "/1", "/2"})) << "meant: rows and elements stay crossed";
    apply();
    EXPECT_EQ(stored("A"), (QStringList{"/3", "/1", "/2"}));
}

TEST_F(StdDirMoves, ReTypingAStoredPathMayBeRefusedAsADuplicateOfItself) {
    openWithThree();
    select(row("/1"));
    click(preferences->downButton);
    modify(row("/1"), "/2");
    EXPECT_EQ(host.messages.back().text, "Path \"/2\" already exists in \"Section A\" section.");
}

TEST_F(StdDirMoves, AMovedRowNoLongerOpensOnDoubleClickAndItsNeighbourStillDoes) {
    openWithThree();
    select(row("/1"));
    click(preferences->downButton);
    whenDialogOpens([](QDialog& dialog) { clickOn(dialog, "cancelButton"); });
    doubleClick(row("/1"));
    EXPECT_EQ(dialogsOpened, 0);
    doubleClick(row("/2"));
    EXPECT_EQ(dialogsOpened, 1);
}

TEST_F(StdDirMoves, TheMarksOfASearchDoNotBecomePartOfTheText) {
    openWithThree();
    searchFor("1");
    ASSERT_TRUE(shown(row("/1")).contains("<span"));
    select(row("/1"));
    click(preferences->downButton);
    EXPECT_EQ(shown(section()->childItem(1)), "/1");
    EXPECT_EQ(held(), (QStringList{"/2", "/1", "/3"}));
}

TEST_F(StdDirMoves, AMovedRowEndsAtTheFirstAngleBracketAsALoadedOneDoes) {
    openWithThree();
    modify(row("/1"), "/x<y");
    select(row("/x<y"));
    click(preferences->downButton);
    EXPECT_EQ(rows(), (QStringList{"/2", "/x", "/3"}));
    EXPECT_EQ(held(), (QStringList{"/2", "/x<y", "/3"}));
}

TEST_F(StdDirMoves, ThereAndBackRestoresTheOrder) {
    openWithThree();
    select(row("/2"));
    click(preferences->downButton);
    click(preferences->upButton);
    EXPECT_EQ(rows(), (QStringList{"/1", "/2", "/3"}));
    EXPECT_EQ(held(), (QStringList{"/1", "/2", "/3"}));
}
