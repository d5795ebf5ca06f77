// What comes into view when a branch is opened, to the pixel.
#include "tests/options/open_dialog.h"

#include <QScrollBar>
#include <gtest/gtest.h>

namespace {

class OpenedBranch : public testing::Test {
protected:
    OpenedBranch() {
        const OptionTreeWriter tree = optionTree(host);
        for (const char* name : {"first", "second", "last"})
            tree.node("group").node(name);
        for (int i = 0; i < 100; ++i)
            tree.node(QStringLiteral("below%1").arg(i).toLocal8Bit());
    }
    static void setViewportHeight(OpenDialog& dialog, int height) {
        QTreeWidget* const tree = dialog.tree;
        tree->setFixedHeight(height + tree->height() - tree->viewport()->height());
        ASSERT_TRUE(waitUntil([&] { return tree->viewport()->height() == height; }));
    }
    // Opens the group in a tree that is `height` pixels high and gives the place of the scroll bar then.
    static int scrolledByOpening(OpenDialog& dialog, int height) {
        itemOf(dialog, "group")->setExpanded(false);
        setViewportHeight(dialog, height);
        dialog.tree->setCurrentItem(rootItem(dialog));
        dialog.tree->verticalScrollBar()->setValue(0);
        itemOf(dialog, "group")->setExpanded(true);
        EXPECT_EQ(dialog.tree->currentItem(), itemOf(dialog, "group"));
        return dialog.tree->verticalScrollBar()->value();
    }
    FixtureHost host;
};

} // namespace

TEST_F(OpenedBranch, IsNotScrolledWhenItsLastRowJustFits) {
    OpenDialog dialog;
    itemOf(dialog, "group")->setExpanded(true);
    const int needed = dialog.tree->visualItemRect(itemOf(dialog, "last")).bottom() + 1;
    EXPECT_EQ(scrolledByOpening(dialog, needed), 0);
    EXPECT_GT(scrolledByOpening(dialog, needed - 1), 0) << "a pixel less is too little";
}

TEST_F(OpenedBranch, IsNotScrolledWhenItsLastRowIsTheTopmostInView) {
    OpenDialog dialog;
    QScrollBar* const bar = dialog.tree->verticalScrollBar();
    TreeItem* const group = itemOf(dialog, "group");
    group->setExpanded(true);
    for (const auto& [hiddenRows, expected] : {std::pair(4, 4), std::pair(5, 0)}) {
        group->setExpanded(false);
        dialog.tree->setCurrentItem(group);
        bar->setValue(hiddenRows); // the root, the group and so many rows of the branch are above the view
        group->setExpanded(true);
        EXPECT_EQ(bar->value(), expected) << hiddenRows;
    }
}
