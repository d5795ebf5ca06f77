// What the Options dialog does of itself: the tool bar, the context menu, scrolling and the change of theme.
#include "tests/options/open_dialog.h"

#include "module/icons/icons.h"
#include "options/pages/search/searching_line_edit.h"

#include <QAction>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolButton>
#include <gtest/gtest.h>

namespace {

class DialogRules : public testing::Test {
protected:
    // Groups named `names` below `parent`.
    static void addGroups(const OptionTreeWriter& parent, int count) {
        for (int i = 0; i < count; ++i)
            parent.node(QStringLiteral("row%1").arg(i).toLocal8Bit());
    }
    FixtureHost host;
};

struct Tools {
    bool add, remove, up, down;
};

void expectTools(const OpenDialog& dialog, Tools expected) {
    EXPECT_EQ(dialog.button("addButton")->isEnabled(), expected.add) << "Add";
    EXPECT_EQ(dialog.button("deleteButton")->isEnabled(), expected.remove) << "Delete";
    EXPECT_EQ(dialog.button("upButton")->isEnabled(), expected.up) << "Up";
    EXPECT_EQ(dialog.button("downButton")->isEnabled(), expected.down) << "Down";
}

QStringList enabledActions(const QMenu& menu) {
    QStringList texts;
    for (const QAction* action : menu.actions())
        if (action->isEnabled())
            texts << action->text();
    return texts;
}

QImage picture(const QIcon& icon) { return icon.pixmap(16).toImage(); }

QImage rowPicture(const QTreeWidgetItem* item) {
    return picture(item->data(0, Qt::DecorationRole).value<QIcon>());
}

} // namespace

TEST_F(DialogRules, DisablesAllToolsForARowWithoutOperations) {
    OptionTreeWriter tree = optionTree(host);
    addGroups(tree, 3);
    OpenDialog dialog;
    itemOf(dialog, "row1")->buttonMask = 31;
    dialog.clickRow(itemOf(dialog, "row1"));
    expectTools(dialog, {true, true, true, true});
    dialog.clickRow(itemOf(dialog, "row2"));
    ASSERT_EQ(itemOf(dialog, "row2")->buttonMask, kMaskNone);
    expectTools(dialog, {false, false, false, false});
}

TEST_F(DialogRules, EnablesEachToolByItsBit) {
    addGroups(optionTree(host), 3);
    OpenDialog dialog;
    TreeItem* const item = itemOf(dialog, "row1");
    const std::pair<std::uint32_t, Tools> cases[] = {
        {0, {false, false, false, false}}, {1, {false, true, false, false}},
        {2, {false, false, false, false}}, {4, {true, false, false, false}},
        {8, {false, false, true, false}},  {16, {false, false, false, true}}};
    for (const auto& [mask, tools] : cases) {
        SCOPED_TRACE(mask);
        item->buttonMask = mask;
        dialog.refreshButtons(item);
        expectTools(dialog, tools);
    }
}

TEST_F(DialogRules, OffersNoMovePastTheEnds) {
    addGroups(optionTree(host), 3);
    OpenDialog dialog;
    for (const char* name : {"row0", "row1", "row2"})
        itemOf(dialog, name)->buttonMask = 31;
    dialog.clickRow(itemOf(dialog, "row0"));
    expectTools(dialog, {true, true, false, true});
    dialog.clickRow(itemOf(dialog, "row2"));
    expectTools(dialog, {true, true, true, false});
    EXPECT_EQ(itemOf(dialog, "row2")->buttonMask, 31u) << "the row's own mask stays";
}

TEST_F(DialogRules, OffersNoMoveForAnOnlyChild) {
    addGroups(optionTree(host), 1);
    OpenDialog dialog;
    itemOf(dialog, "row0")->buttonMask = 31;
    dialog.clickRow(itemOf(dialog, "row0"));
    expectTools(dialog, {true, true, false, false});
}

TEST_F(DialogRules, KeepsTheBitsOfTheRootAsTheyAre) {
    OpenDialog dialog;
    rootItem(dialog)->buttonMask = 31;
    dialog.refreshButtons(rootItem(dialog));
    expectTools(dialog, {true, true, true, true});
}

TEST_F(DialogRules, KeepsTheLastPathOfEverySectionButTheFirst) {
    OptionTreeWriter page = optionTree(host).node("page");
    page.node("first").node("onlyOfFirst");
    page.node("second").node("onlyOfSecond");
    OpenDialog dialog;
    dialog.tree->expandAll();
    for (const char* section : {"first", "second"})
        itemOf(dialog, section)->nodeType = kNodeDirSection;
    for (const char* path : {"onlyOfFirst", "onlyOfSecond"})
        itemOf(dialog, path)->buttonMask = 31;

    dialog.clickRow(itemOf(dialog, "onlyOfFirst"));
    EXPECT_TRUE(dialog.deleteButton->isEnabled());
    dialog.withContextMenu(itemOf(dialog, "onlyOfFirst"), [](QMenu& menu) {
        EXPECT_EQ(enabledActions(menu), QStringList({"Add", "Modify", "Delete"}));
    });
    dialog.clickRow(itemOf(dialog, "onlyOfSecond"));
    EXPECT_FALSE(dialog.deleteButton->isEnabled());
    EXPECT_TRUE(dialog.addButton->isEnabled());
    dialog.withContextMenu(itemOf(dialog, "onlyOfSecond"), [](QMenu& menu) {
        EXPECT_EQ(enabledActions(menu), QStringList({"Add", "Modify"}));
    });
}

TEST_F(DialogRules, LetsOneOfTwoPathsOfALaterSectionBeDeleted) {
    OptionTreeWriter page = optionTree(host).node("page");
    page.node("first");
    page.node("second").node("pathA");
    page.node("second").node("pathB");
    OpenDialog dialog;
    dialog.tree->expandAll();
    itemOf(dialog, "second")->nodeType = kNodeDirSection;
    itemOf(dialog, "pathA")->buttonMask = 31;
    dialog.clickRow(itemOf(dialog, "pathA"));
    EXPECT_TRUE(dialog.deleteButton->isEnabled());
}

TEST_F(DialogRules, TitlesTheContextMenuAndOrdersItsActions) {
    addGroups(optionTree(host), 1);
    OpenDialog dialog;
    dialog.clickRow(itemOf(dialog, "row0"));
    const ClickableLabel* const label = dialog.labelOf(itemOf(dialog, "row0"));
    const QPoint asked = label->mapToGlobal(label->rect().center());
    dialog.withContextMenu(itemOf(dialog, "row0"), [asked](QMenu& menu) {
        EXPECT_EQ(menu.title(), "Context Menu");
        EXPECT_EQ(menu.objectName(), "contextMenu");
        EXPECT_EQ(menu.pos(), asked);
        ASSERT_EQ(menu.actions().size(), 3);
        EXPECT_EQ(menu.actions().at(0)->text(), "Add");
        EXPECT_EQ(menu.actions().at(1)->text(), "Modify");
        EXPECT_EQ(menu.actions().at(2)->text(), "Delete");
        EXPECT_TRUE(enabledActions(menu).isEmpty()) << "a row without operations";
    });
}

TEST_F(DialogRules, EnablesTheContextMenuByTheBitsOfTheMask) {
    addGroups(optionTree(host), 1);
    OpenDialog dialog;
    TreeItem* const item = itemOf(dialog, "row0");
    dialog.clickRow(item);
    const std::pair<std::uint32_t, QStringList> cases[] = {
        {1, {"Delete"}}, {2, {"Modify"}}, {4, {"Add"}}, {24, {}}, {7, {"Add", "Modify", "Delete"}}};
    for (const auto& [mask, texts] : cases) {
        item->buttonMask = mask;
        dialog.withContextMenu(item, [&](QMenu& menu) { EXPECT_EQ(enabledActions(menu), texts) << mask; });
    }
}

TEST_F(DialogRules, ActsFromTheContextMenuOnTheCurrentItem) {
    OptionTreeWriter tree = optionTree(host);
    tree.node("name").type(L"Edit");
    OpenDialog dialog;
    TreeItem* const item = itemOf(dialog, "name");
    dialog.clickRow(item);
    dialog.withContextMenu(item, [](QMenu& menu) {
        QTest::mouseClick(&menu, Qt::LeftButton, {},
                          menu.actionGeometry(menuAction(menu, "Modify")).center());
    });
    EXPECT_EQ(dialog.focusWidget(), dialog.rowWidgets.value(item)->findChild<QLineEdit*>());
}

TEST_F(DialogRules, ModifiesOnADoubleClickWhateverTheMask) {
    optionTree(host).node("name").type(L"Edit");
    OpenDialog dialog;
    TreeItem* const item = itemOf(dialog, "name");
    item->buttonMask = kMaskNone;
    dialog.clickRow(item);
    expectTools(dialog, {false, false, false, false});
    dialog.doubleClickRow(item);
    EXPECT_EQ(dialog.focusWidget(), dialog.rowWidgets.value(item)->findChild<QLineEdit*>());
}

TEST_F(DialogRules, DoesNothingOnAddAndDeleteOfAPlainSection) {
    addGroups(optionTree(host), 2);
    OpenDialog dialog;
    itemOf(dialog, "row0")->buttonMask = 31;
    dialog.clickRow(itemOf(dialog, "row0"));
    ASSERT_TRUE(dialog.addButton->isEnabled() && dialog.deleteButton->isEnabled());
    dialog.click("addButton");
    dialog.click("deleteButton");
    EXPECT_EQ(namesBelow(rootItem(dialog)), QStringList({"row0", "row1"}));
}

TEST_F(DialogRules, MakesAnExpandedItemCurrent) {
    addGroups(optionTree(host).node("group"), 2);
    OpenDialog dialog;
    itemOf(dialog, "group")->setExpanded(true);
    EXPECT_EQ(dialog.tree->currentItem(), itemOf(dialog, "group"));
}

TEST_F(DialogRules, DoesNotScrollForABranchThatIsInView) {
    OptionTreeWriter tree = optionTree(host);
    addGroups(tree.node("group"), 2);
    for (int i = 0; i < 100; ++i)
        tree.node(QStringLiteral("below%1").arg(i).toLocal8Bit());
    OpenDialog dialog;
    itemOf(dialog, "group")->setExpanded(true);
    ASSERT_GT(dialog.tree->verticalScrollBar()->maximum(), 0) << "there is something to scroll";
    EXPECT_EQ(dialog.tree->currentItem(), itemOf(dialog, "group"));
    EXPECT_EQ(dialog.tree->verticalScrollBar()->value(), 0);
}

TEST_F(DialogRules, ScrollsToTheEndOfABranchThatFits) {
    OptionTreeWriter tree = optionTree(host);
    for (int i = 0; i < 100; ++i)
        tree.node(QStringLiteral("above%1").arg(i).toLocal8Bit());
    addGroups(tree.node("group"), 4);
    OpenDialog dialog;
    dialog.tree->scrollToItem(itemOf(dialog, "group"), QAbstractItemView::PositionAtBottom);
    itemOf(dialog, "group")->setExpanded(true);
    const QRect viewport = dialog.tree->viewport()->rect();
    EXPECT_TRUE(viewport.contains(dialog.tree->visualItemRect(itemOf(dialog, "row3"))));
    EXPECT_TRUE(viewport.contains(dialog.tree->visualItemRect(itemOf(dialog, "group"))));
}

TEST_F(DialogRules, KeepsTheOpenedItemInViewWhenItsBranchDoesNotFit) {
    OptionTreeWriter tree = optionTree(host);
    for (int i = 0; i < 50; ++i)
        tree.node(QStringLiteral("above%1").arg(i).toLocal8Bit());
    addGroups(tree.node("group"), 200);
    OpenDialog dialog;
    dialog.tree->scrollToItem(itemOf(dialog, "group"), QAbstractItemView::PositionAtBottom);
    itemOf(dialog, "group")->setExpanded(true);
    EXPECT_EQ(dialog.tree->visualItemRect(itemOf(dialog, "group")).top(), 0);
}

TEST_F(DialogRules, ScrollsToTheLastItemOfTheLastOpenBranchBelow) {
    OptionTreeWriter tree = optionTree(host);
    for (int i = 0; i < 100; ++i)
        tree.node(QStringLiteral("above%1").arg(i).toLocal8Bit());
    OptionTreeWriter inner = tree.node("group").node("inner");
    addGroups(inner, 3);
    OpenDialog dialog;
    itemOf(dialog, "inner")->setExpanded(true);
    itemOf(dialog, "group")->setExpanded(false);
    dialog.tree->scrollToItem(itemOf(dialog, "group"), QAbstractItemView::PositionAtBottom);
    itemOf(dialog, "group")->setExpanded(true);
    EXPECT_TRUE(
        dialog.tree->viewport()->rect().contains(dialog.tree->visualItemRect(itemOf(dialog, "row2"))));
}

TEST_F(DialogRules, TakesTheIconsOfTheNewTheme) {
    optionTree(host).node("group").set("Image", 5);
    OpenDialog dialog;
    const QImage darkRow = rowPicture(itemOf(dialog, "group"));
    const QImage darkTool = picture(dialog.addButton->icon());
    host.setTheme(1);
    EXPECT_NE(rowPicture(itemOf(dialog, "group")), darkRow);
    EXPECT_EQ(rowPicture(itemOf(dialog, "group")), picture(treeIcon(5)));
    EXPECT_NE(picture(dialog.addButton->icon()), darkTool);
    EXPECT_EQ(picture(dialog.addButton->icon()), picture(toolIcon(32)));
    EXPECT_EQ(picture(dialog.deleteButton->icon()), picture(toolIcon(29)));
    EXPECT_EQ(picture(dialog.upButton->icon()), picture(toolIcon(31)));
    EXPECT_EQ(picture(dialog.downButton->icon()), picture(toolIcon(30)));
    EXPECT_EQ(picture(dialog.profileButton->icon()), picture(treeIcon(4)));
    EXPECT_EQ(picture(dialog.control<QAction>("clearAction")->icon()), picture(treeIcon(29)));
    host.setTheme(0);
    EXPECT_EQ(rowPicture(itemOf(dialog, "group")), darkRow);
}

TEST_F(DialogRules, UsesTheFallbackPictureForTheNumberZeroOnAChangeOfTheme) {
    optionTree(host).node("group").set("Image", 0);
    OpenDialog dialog;
    host.setTheme(1);
    EXPECT_EQ(rowPicture(rootItem(dialog)), picture(treeIcon(33)));
    EXPECT_EQ(rowPicture(itemOf(dialog, "group")), picture(treeIcon(33)));
}

TEST_F(DialogRules, TellsItsRowsOfANewTheme) {
    addGroups(optionTree(host), 1);
    OpenDialog dialog;
    QSignalSpy changes(&dialog, &Preferences::themeChanged);
    ClickableLabel* const label = dialog.labelOf(itemOf(dialog, "row0"));
    const QString dark = label->styleSheet();
    host.setTheme(1);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_NE(label->styleSheet(), dark);
    host.setTheme(7);
    EXPECT_EQ(label->styleSheet(), "");
}

TEST_F(DialogRules, HasTheNewIconsBeforeItTellsOfTheNewTheme) {
    optionTree(host).node("group").set("Image", 5);
    OpenDialog dialog;
    const QImage darkRow = rowPicture(itemOf(dialog, "group"));
    bool told = false;
    QObject::connect(&dialog, &Preferences::themeChanged, &dialog, [&] {
        told = true;
        EXPECT_NE(rowPicture(itemOf(dialog, "group")), darkRow);
        EXPECT_EQ(picture(dialog.addButton->icon()), picture(toolIcon(32)));
        EXPECT_EQ(picture(dialog.control<QAction>("clearAction")->icon()), picture(treeIcon(29)));
    });
    host.setTheme(1);
    EXPECT_TRUE(told);
}

TEST_F(DialogRules, PassesOverARowThatHasGoneOnAChangeOfTheme) {
    addGroups(optionTree(host), 2);
    OpenDialog dialog;
    TreeItem* const item = itemOf(dialog, "row0");
    dialog.forgetItem(item);
    delete item;
    host.setTheme(1);
    EXPECT_EQ(namesBelow(rootItem(dialog)), QStringList({"row1"}));
    waitUntil([] { return true; });
    host.setTheme(0);
    EXPECT_FALSE(rowPicture(itemOf(dialog, "row1")).isNull());
}
