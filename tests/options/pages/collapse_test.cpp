// "Collapse all" and "Expand", with and without a search.
#include "tests/options/pages/option_window.h"
#include "tests/support/fixture_host.h"

#include <gtest/gtest.h>

namespace {

class Collapse : public testing::Test {
protected:
    void SetUp() override {
        display = window.add(window.root, "Display");
        colours = window.add(display, "Colours");
        background = window.add(colours, "Background");
        files = window.add(window.root, "Files");
        autosave = window.add(files, "Autosave");
        window.open();
        window.tree->setCurrentItem(window.root);
    }

    void expandEverything() {
        for (TreeItem* item : {display, colours, files})
            item->setExpanded(true);
    }

    // As a user does: with the key that folds the current item of the tree.
    void fold(TreeItem* item, Qt::Key key) {
        window.tree->setCurrentItem(item);
        QTest::keyClick(window.tree, key);
    }

    bool collapseVisible() const { return window.collapse->collapseButton->isVisible(); }
    bool expandVisible() const { return window.collapse->expandButton->isVisible(); }
    bool collapseEnabled() const { return window.collapse->collapseButton->isEnabled(); }
    void clickCollapse() { QTest::mouseClick(window.collapse->collapseButton, Qt::LeftButton); }
    void clickExpand() { QTest::mouseClick(window.collapse->expandButton, Qt::LeftButton); }

    FixtureHost host;
    OptionWindow window;
    TreeItem *display = nullptr, *colours = nullptr, *background = nullptr, *files = nullptr,
             *autosave = nullptr;
};

TEST_F(Collapse, ButtonsBearTheirTextsAndNames) {
    EXPECT_EQ(window.collapse->collapseButton->text(), "Collapse all");
    EXPECT_EQ(window.collapse->expandButton->text(), "Expand");
    EXPECT_EQ(window.findChild<QPushButton*>("collapseButton"), window.collapse->collapseButton);
    EXPECT_EQ(window.findChild<QPushButton*>("expandButton"), window.collapse->expandButton);
}

TEST_F(Collapse, ControllerItselfIsNeverSeen) { EXPECT_FALSE(window.collapse->isVisible()); }

TEST_F(Collapse, IsDisabledWhenNothingBelowRootIsExpandedAtTheStart) {
    EXPECT_TRUE(collapseVisible());
    EXPECT_FALSE(collapseEnabled());
    EXPECT_FALSE(expandVisible());
}

TEST_F(Collapse, IsEnabledByExpandingADirectChildOfRoot) {
    display->setExpanded(true);
    EXPECT_TRUE(collapseEnabled());
    display->setExpanded(false);
    EXPECT_FALSE(collapseEnabled());
}

TEST_F(Collapse, OnlyDirectChildrenOfRootCount) {
    display->setExpanded(true);
    colours->setExpanded(true);
    ASSERT_TRUE(collapseEnabled());
    display->setExpanded(false);
    ASSERT_TRUE(colours->isExpanded());
    EXPECT_FALSE(collapseEnabled());
}

TEST_F(Collapse, AHiddenExpandedChildDoesNotCount) {
    display->setExpanded(true);
    display->setHidden(true);
    files->setExpanded(true);
    files->setExpanded(false);
    EXPECT_FALSE(collapseEnabled());
}

TEST_F(Collapse, WithoutASearchCollapsesEverythingBelowRootAndOffersNoExpand) {
    expandEverything();
    clickCollapse();
    for (TreeItem* item : {display, colours, files})
        EXPECT_FALSE(item->isExpanded()) << window.labelText(item).toStdString();
    EXPECT_TRUE(window.root->isExpanded());
    EXPECT_TRUE(collapseVisible());
    EXPECT_FALSE(collapseEnabled());
    EXPECT_FALSE(expandVisible());
}

TEST_F(Collapse, CurrentItemClimbsToTheDirectChildOfRootThatHeldIt) {
    expandEverything();
    window.tree->setCurrentItem(background);
    clickCollapse();
    EXPECT_EQ(window.tree->currentItem(), display);
}

TEST_F(Collapse, CurrentItemClimbsStepByStep) {
    expandEverything();
    window.tree->setCurrentItem(background);
    QList<QTreeWidgetItem*> path;
    QObject::connect(window.tree, &QTreeWidget::currentItemChanged, &window,
                     [&](QTreeWidgetItem* current) { path << current; });
    clickCollapse();
    EXPECT_EQ(path, (QList<QTreeWidgetItem*>{colours, display}));
}

TEST_F(Collapse, CurrentRootStaysCurrent) {
    expandEverything();
    window.tree->setCurrentItem(window.root);
    clickCollapse();
    ASSERT_FALSE(display->isExpanded());
    EXPECT_EQ(window.tree->currentItem(), window.root);
}

TEST_F(Collapse, CollapsingAnItemByHandMakesItCurrent) {
    expandEverything();
    window.tree->setCurrentItem(autosave);
    const QRect row = window.tree->visualItemRect(display);
    QTest::mouseClick(window.tree->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(row.left() - window.tree->indentation() / 2, row.center().y()));
    ASSERT_FALSE(display->isExpanded());
    EXPECT_EQ(window.tree->currentItem(), display);
}

TEST_F(Collapse, InASearchWithAResultExpandTakesItsPlaceAndUndoesIt) {
    window.search("Background");
    ASSERT_TRUE(display->isExpanded());
    ASSERT_TRUE(colours->isExpanded());
    window.tree->setCurrentItem(background);
    clickCollapse();
    EXPECT_FALSE(collapseVisible());
    EXPECT_FALSE(collapseEnabled());
    EXPECT_TRUE(expandVisible());
    EXPECT_EQ(window.tree->currentItem(), display);
    clickExpand();
    EXPECT_TRUE(display->isExpanded());
    EXPECT_TRUE(colours->isExpanded());
    EXPECT_EQ(window.tree->currentItem(), background);
    EXPECT_TRUE(collapseVisible());
    EXPECT_TRUE(collapseEnabled());
    EXPECT_FALSE(expandVisible());
}

TEST_F(Collapse, ExpandingADirectChildByHandBringsCollapseBack) {
    window.search("Background");
    clickCollapse();
    ASSERT_TRUE(expandVisible());
    fold(display, Qt::Key_Right);
    EXPECT_TRUE(display->isExpanded());
    EXPECT_TRUE(collapseVisible());
    EXPECT_TRUE(collapseEnabled());
    EXPECT_FALSE(expandVisible());
}

TEST_F(Collapse, ExpandAfterCollapsingByHandHasNothingStored) {
    window.search("Autosave");
    fold(files, Qt::Key_Left);
    ASSERT_FALSE(files->isExpanded());
    ASSERT_TRUE(expandVisible());
    clickExpand();
    EXPECT_EQ(window.tree->currentItem(), files);
    EXPECT_FALSE(files->isExpanded());
    EXPECT_TRUE(expandVisible());
}

TEST_F(Collapse, ExpandKnowsNothingOfAnEarlierCollapse) {
    window.search("Background");
    clickCollapse();
    clickExpand();
    ASSERT_TRUE(display->isExpanded());
    window.search("Autosave");
    ASSERT_TRUE(display->isHidden());
    clickCollapse();
    clickExpand();
    EXPECT_TRUE(files->isExpanded());
    EXPECT_FALSE(display->isExpanded()) << "it was hidden at the click";
}

TEST_F(Collapse, ExpandBearsACurrentItemThatIsGone) {
    window.search("Background");
    window.tree->setCurrentItem(background);
    clickCollapse();
    ASSERT_TRUE(expandVisible());
    delete background;
    clickExpand();
    EXPECT_EQ(window.tree->currentItem(), display);
    EXPECT_TRUE(display->isExpanded());
}

TEST_F(Collapse, InASearchWithoutAResultExpandIsNeverShown) {
    expandEverything();
    window.search("nothing");
    EXPECT_FALSE(collapseEnabled()); // every direct child of root is hidden
    EXPECT_TRUE(collapseVisible());
    EXPECT_FALSE(expandVisible());
}

TEST_F(Collapse, EndOfTheSearchTakesExpandAway) {
    window.search("Background");
    clickCollapse();
    ASSERT_TRUE(expandVisible());
    window.searchEdit->clear();
    EXPECT_FALSE(expandVisible());
    EXPECT_TRUE(collapseVisible());
}

// A search box that tells how many listen to the end of its searches.
struct ListenedBox : SearchingLineEdit {
    using SearchingLineEdit::SearchingLineEdit;
    int listeners() const { return receivers(SIGNAL(searchFinished())); }
};

TEST_F(Collapse, ListensTwiceToTheEndOfASearch) {
    ListenedBox box(window.tree, window.description, &window, "green", "white");
    box.statusLabel->setParent(&box); // no layout takes it here
    const int before = box.listeners();
    const CollapseWidget collapse(window.tree, &box, &window);
    EXPECT_EQ(box.listeners() - before, 2);
}

TEST(CollapseOfAnEmptyTree, DisablesNothingAndBearsAClick) {
    FixtureHost host;
    OptionWindow window(OptionWindow::WithoutRoot);
    window.open();
    EXPECT_TRUE(window.collapse->collapseButton->isVisible());
    EXPECT_TRUE(window.collapse->collapseButton->isEnabled());
    EXPECT_FALSE(window.collapse->expandButton->isVisible());
    QTest::mouseClick(window.collapse->collapseButton, Qt::LeftButton);
    EXPECT_TRUE(window.collapse->collapseButton->isEnabled());
}

} // namespace
