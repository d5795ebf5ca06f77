// Saving and restoring the expansion of a tree.
#include "options/pages/search/tree_expansion_state.h"

#include <QStringList>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace {

class TreeExpansion : public testing::Test {
protected:
    QTreeWidgetItem* add(QTreeWidgetItem* parent, const char* name, bool expanded) {
        auto* item = new QTreeWidgetItem(parent, QStringList(name));
        item->setExpanded(expanded);
        return item;
    }

    QTreeWidget tree;
    QTreeWidgetItem* top = add(tree.invisibleRootItem(), "top", true);
    QTreeWidgetItem* branch = add(top, "branch", true);
    QTreeWidgetItem* twig = add(branch, "twig", true);
    QTreeWidgetItem* leaf = add(twig, "leaf", false);
    TreeExpansionState state;
};

TEST_F(TreeExpansion, SavesEveryItemBelowTheGivenOneButNotThatOne) {
    state.save(top);
    EXPECT_EQ(state.expanded.size(), 3);
    EXPECT_FALSE(state.expanded.contains(top));
    EXPECT_TRUE(state.expanded.value(branch));
    EXPECT_TRUE(state.expanded.contains(leaf));
    EXPECT_FALSE(state.expanded.value(leaf, true));
}

TEST_F(TreeExpansion, LeavesAHiddenItemOutButNotWhatLiesBelowIt) {
    branch->setHidden(true);
    state.save(top);
    EXPECT_FALSE(state.expanded.contains(branch));
    EXPECT_TRUE(state.expanded.value(twig));
}

TEST_F(TreeExpansion, PutsBackWhatIsRecordedAndLeavesTheRest) {
    twig->setExpanded(false);
    branch->setHidden(true);
    state.save(top);
    branch->setHidden(false);
    for (QTreeWidgetItem* item : {branch, twig})
        item->setExpanded(item == twig);
    state.restore(top);
    EXPECT_FALSE(twig->isExpanded());
    EXPECT_FALSE(branch->isExpanded()); // was hidden, so nothing is known of it
}

TEST_F(TreeExpansion, RestoresTheChildrenFirstAndTheItemLast) {
    state.save(tree.invisibleRootItem());
    for (QTreeWidgetItem* item : {top, branch, twig})
        item->setExpanded(false);
    QStringList order;
    QObject::connect(&tree, &QTreeWidget::itemExpanded, &tree,
                     [&order](QTreeWidgetItem* item) { order << item->text(0); });
    state.restore(tree.invisibleRootItem());
    EXPECT_EQ(order, QStringList({"twig", "branch", "top"}));
}

TEST_F(TreeExpansion, SavesNoCurrentItem) {
    tree.setCurrentItem(leaf);
    state.save(top);
    EXPECT_TRUE(state.expanded.contains(leaf));
    EXPECT_EQ(state.currentItem, nullptr);
}

} // namespace
