// The walk of the option data: which nodes become rows, which pages they load, and what is kept about them.
#include "tests/options/walk_fixture.h"

#include "module/icons/icons.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QLineEdit>
#include <QPointer>
#include <QRadioButton>
#include <gtest/gtest.h>

namespace {

class OptionWalk : public WalkFixture {
protected:
    // Marks a node as expanded in the profile, under any value.
    template <class Value> void rememberExpanded(const char* name, const Value& value) {
        OptionTreeWriter(openChild(&host.profile(), "Dialogs\\QPref\\ExpandedSections", 1)).set(name, value);
    }
};

// Notes what the walk tells and asks, in order, and the trees that it tells of.
class WalkWatcher : public FixtureVars {
public:
    void openOptionTree(IParam* tree) override {
        calls << "open";
        trees.push_back(tree);
    }
    void closeOptionTree(IParam* tree) override {
        calls << "close";
        trees.push_back(tree);
    }
    QStringList calls;
    std::vector<IParam*> trees;
};

QImage picture(const QIcon& icon) { return icon.pixmap(16).toImage(); }

QImage rowPicture(const Preferences& dialog, const char* name) {
    return picture(itemOf(dialog, name)->data(0, Qt::DecorationRole).value<QIcon>());
}

} // namespace

TEST_F(OptionWalk, MakesARootThatIsOpenAndCurrent) {
    OpenDialog dialog;
    ASSERT_EQ(dialog.tree->topLevelItemCount(), 1);
    TreeItem* const root = rootItem(dialog);
    EXPECT_EQ(shownText(dialog, root), "Application preferences");
    EXPECT_TRUE(root->isExpanded());
    EXPECT_EQ(dialog.tree->currentItem(), root);
    EXPECT_EQ(root->imageId, 0);
    EXPECT_EQ(picture(root->icon(0)), picture(treeIcon(33)));
    EXPECT_EQ(root->nodeType, int(kNodeNone));
    EXPECT_EQ(root->buttonMask, kMaskNone);
}

TEST_F(OptionWalk, TellsTheHostOfTheTreeBeforeAndAfter) {
    WalkWatcher watcher;
    watcher.beforeRead = [&watcher](const std::string& name) { watcher.calls << name.c_str(); };
    host.documents.vars = &watcher;
    tree.node("size").type(L"EditInt").variable("GRIPSIZE");
    OpenDialog dialog;
    EXPECT_EQ(watcher.calls, QStringList({"open", "GRIPSIZE", "close"}));
    EXPECT_EQ(watcher.trees, std::vector<IParam*>({tree.get(), tree.get()}));
}

TEST_F(OptionWalk, KeepsTheOrderOfTheStore) {
    for (const char* name : {"zebra", "ant", "mole"})
        tree.node(name);
    OpenDialog dialog;
    EXPECT_EQ(namesBelow(rootItem(dialog)), QStringList({"zebra", "ant", "mole"}));
}

TEST_F(OptionWalk, PassesOverAHiddenNodeWithAllBelowIt) {
    tree.node("hidden").set("Hidden", 1).node("inside").node("deeper");
    tree.node("shown").set("Hidden", 0);
    OpenDialog dialog;
    EXPECT_EQ(namesBelow(rootItem(dialog)), QStringList({"shown"}));
    EXPECT_EQ(itemOf(dialog, "inside"), nullptr);
    EXPECT_EQ(itemOf(dialog, "deeper"), nullptr);
}

TEST_F(OptionWalk, ShowsANodeWhoseHiddenIsNoInteger) {
    tree.node("shown").set("Hidden", 1.0);
    OpenDialog dialog;
    EXPECT_EQ(namesBelow(rootItem(dialog)), QStringList({"shown"}));
}

TEST_F(OptionWalk, ShowsTheNodesNameWhereNoneIsGiven) {
    tree.node("Undo steps");
    OpenDialog dialog;
    EXPECT_EQ(shownText(dialog, "Undo steps"), "Undo steps");
}

TEST_F(OptionWalk, TranslatesNameAndDescription) {
    host.translations = {{L"Grid", L"Raster"}, {L"Shows the grid", L"Zeigt das Raster"}};
    tree.node("grid").set("Name", L"Grid").set("Description", L"Shows the grid");
    OpenDialog dialog;
    EXPECT_EQ(shownText(dialog, "grid"), "Raster");
    EXPECT_EQ(itemOf(dialog, "grid")->description, "Zeigt das Raster");
}

TEST_F(OptionWalk, ReadsNameDescriptionAndTypeFrom8BitTextToo) {
    tree.node("grid").set("Name", "Grid").set("Description", "Shows it").set("Type", "Check");
    OpenDialog dialog;
    EXPECT_EQ(shownText(dialog, "grid"), "Grid");
    EXPECT_EQ(itemOf(dialog, "grid")->description, "Shows it");
    EXPECT_EQ(itemOf(dialog, "grid")->nodeType, int(kNodeCheck));
}

TEST_F(OptionWalk, DropsANodeWhoseTranslationIsMissingAsTransparent) {
    standin::registry().translate = [](const wchar_t*) -> const wchar_t* { return nullptr; };
    tree.node("group").node("inside");
    OpenDialog dialog;
    EXPECT_EQ(rootItem(dialog)->childCount(), 0);
}

TEST_F(OptionWalk, PutsTheChildrenOfATransparentNodeUnderItsParent) {
    OptionTreeWriter group = tree.node("group");
    group.node("first");
    group.node("glass").set("Name", L"").node("inner");
    group.node("last");
    OpenDialog dialog;
    EXPECT_EQ(namesBelow(itemOf(dialog, "group")), QStringList({"first", "inner", "last"}));
    EXPECT_EQ(itemOf(dialog, "glass"), nullptr);
}

TEST_F(OptionWalk, TakesANameOfAnotherTypeAsGivenAndEmpty) {
    tree.node("glass").set("Name", 5).node("inner");
    OpenDialog dialog;
    EXPECT_EQ(namesBelow(rootItem(dialog)), QStringList({"inner"}));
}

TEST_F(OptionWalk, LetsTheLastTransparentChildTakeThePlaceOfItsParentsNode) {
    OptionTreeWriter group = tree.node("group");
    OptionTreeWriter glassA = group.node("glassA").set("Name", L"");
    OptionTreeWriter glassB = group.node("glassB").set("Name", L"");
    OpenDialog dialog;
    EXPECT_EQ(dialog.optionItems.value(itemOf(dialog, "group")), glassB.get());
    EXPECT_NE(dialog.optionItems.value(itemOf(dialog, "group")), glassA.get());
}

TEST_F(OptionWalk, ReadsAValueWithTheTransparentNodeOfThatMoment) {
    OptionTreeWriter(openChild(&host.profile(), "SectionA", 1)).set("Grid", 1);
    OptionTreeWriter group = tree.node("group");
    OptionTreeWriter glassA = group.node("glassA").set("Name", L"");
    glassA.set("Section", "SectionA").set("IFace", "IProfile");
    glassA.node("grid").type(L"Check").set("Key", "Grid");
    group.node("glassB").set("Name", L"").set("Section", "SectionB").set("IFace", "IProfile");
    OpenDialog dialog;
    EXPECT_EQ(itemOf(dialog, "grid")->state, 1) << "read by way of the first transparent node";
    dialog.click("applyButton");
    int written = -1;
    readValue(openChild(&host.profile(), "SectionB").get(), "Grid", &written);
    EXPECT_EQ(written, 1) << "written by way of the last one";
}

TEST_F(OptionWalk, LoadsNothingForATransparentNodeWithAPage) {
    OptionTreeWriter(openChild(&host.papers(), "Paper00000001", 1)).set("Name", L"A4");
    tree.node("papers").set("Name", L"").set("ID", int(kIdPapers)).node("inner");
    OpenDialog dialog;
    EXPECT_EQ(dialog.paperRootItem, nullptr);
    EXPECT_NE(rootItem(dialog)->nodeType, int(kNodePaperRoot));
    EXPECT_EQ(namesBelow(rootItem(dialog)), QStringList({"inner"}));
}

TEST_F(OptionWalk, InheritsTheIconThroughATransparentNode) {
    OptionTreeWriter group = tree.node("group").set("Image", 5);
    group.node("glass").set("Name", L"").set("Image", 8).node("inner");
    OpenDialog dialog;
    EXPECT_EQ(itemOf(dialog, "inner")->imageId, 5);
    EXPECT_EQ(rowPicture(dialog, "inner"), picture(treeIcon(5)));
}

TEST_F(OptionWalk, ShowsTheFallbackIconWhereNoNodeAboveNamesOne) {
    tree.node("group").node("option");
    OpenDialog dialog;
    EXPECT_EQ(itemOf(dialog, "option")->imageId, 0);
    EXPECT_EQ(rowPicture(dialog, "option"), picture(treeIcon(33)));
}

TEST_F(OptionWalk, KeepsANameThatOutlivesItsEnumerator) {
    tree.node("a name of more than the few letters that a short text holds in place");
    OpenDialog dialog;
    EXPECT_EQ(rootItem(dialog)->childItem(0)->nodeName,
              "a name of more than the few letters that a short text holds in place");
}

TEST_F(OptionWalk, BorrowsTheNodesOfTheConfiguration) {
    OptionTreeWriter grid = tree.node("group").node("grid").type(L"Check");
    OpenDialog dialog;
    EXPECT_EQ(dialog.optionItems.value(itemOf(dialog, "grid")), grid.get());
    EXPECT_EQ(dialog.optionItems.value(rootItem(dialog)), tree.get())
        << "the nameless tree is the root's node";
    EXPECT_EQ(dialog.parentNode(itemOf(dialog, "group")), tree.get());
}

TEST_F(OptionWalk, RestoresTheExpansionSavedUnderTheNodesName) {
    tree.node("open").node("inside");
    tree.node("shut").node("inside2");
    rememberExpanded("open", 1);
    OpenDialog dialog;
    EXPECT_TRUE(itemOf(dialog, "open")->isExpanded());
    EXPECT_FALSE(itemOf(dialog, "shut")->isExpanded());
    EXPECT_EQ(dialog.expandedItems, QList<TreeItem*>({itemOf(dialog, "open")}));
}

TEST_F(OptionWalk, TakesAnySavedIntegerForExpanded) {
    tree.node("zero").node("inside");
    tree.node("real").node("inside2");
    rememberExpanded("zero", 0);
    rememberExpanded("real", 1.0);
    OpenDialog dialog;
    EXPECT_TRUE(itemOf(dialog, "zero")->isExpanded());
    EXPECT_FALSE(itemOf(dialog, "real")->isExpanded());
}

TEST_F(OptionWalk, SharesOneExpansionEntryAmongNodesOfTheSameName) {
    tree.node("left").node("colours").node("a");
    tree.node("right").node("colours").node("b");
    rememberExpanded("colours", 1);
    OpenDialog dialog;
    EXPECT_TRUE(itemOf(dialog, "left")->childItem(0)->isExpanded());
    EXPECT_TRUE(itemOf(dialog, "right")->childItem(0)->isExpanded());
}

TEST_F(OptionWalk, DoesNotScrollWhileItRestoresTheExpansion) {
    for (int i = 0; i < 60; ++i) {
        const QByteArray name = QStringLiteral("group%1").arg(i).toLocal8Bit();
        tree.node(name).node("inside");
        rememberExpanded(name, 1);
    }
    OpenDialog dialog;
    ASSERT_TRUE(itemOf(dialog, "group59")->isExpanded());
    ASSERT_GT(dialog.tree->verticalScrollBar()->maximum(), 0) << "there is something to scroll";
    EXPECT_EQ(dialog.tree->currentItem(), rootItem(dialog));
    EXPECT_EQ(dialog.tree->verticalScrollBar()->value(), 0);
}

TEST_F(OptionWalk, RemembersTheColourOfTheCursor) {
    tree.node("cursor").type(L"Color").set("ID", int(kIdCursorColor));
    OpenDialog dialog;
    EXPECT_EQ(dialog.cursorColorItem, itemOf(dialog, "cursor"));
    EXPECT_EQ(itemOf(dialog, "cursor")->optionId, int(kIdCursorColor));
    EXPECT_STREQ(dialog.cursorColorKey.c_str(), "Color3D");
    EXPECT_STREQ(dialog.cursorSection.c_str(), "Cursor");
}

TEST_F(OptionWalk, LeavesTheOptionIdOfEveryOtherIdAsItStarts) {
    for (const int id : {0, 7, int(kIdPapers), int(kIdTemplateFiles), int(kIdSaveFormats)})
        tree.node(QStringLiteral("id%1").arg(id).toLocal8Bit()).set("ID", id);
    OpenDialog dialog;
    for (int i = 0; i < rootItem(dialog)->childCount(); ++i)
        EXPECT_EQ(rootItem(dialog)->childItem(i)->optionId, int(kIdNone));
    EXPECT_EQ(dialog.cursorColorItem, nullptr);
}

TEST_F(OptionWalk, FillsThePaperRootAndChoosesItsRowByType) {
    OptionTreeWriter(openChild(&host.papers(), "Paper00000001", 1)).set("Name", L"A4");
    tree.node("papers").type(L"Check").set("ID", int(kIdPapers)).set("Default", 1);
    OpenDialog dialog;
    TreeItem* const papers = itemOf(dialog, "papers");
    EXPECT_EQ(dialog.paperRootItem, papers);
    EXPECT_EQ(papers->nodeType, int(kNodePaperRoot));
    EXPECT_EQ(papers->childCount(), 1);
    EXPECT_NE(editorOf<QCheckBox>(dialog, "papers"), nullptr) << "the editor of the told Type";
}

TEST_F(OptionWalk, LoadsAPageBeforeItsOwnRowIsOff) {
    OptionTreeWriter(openChild(&host.papers(), "Paper00000001", 1)).set("Name", L"A4");
    tree.node("papers").type(L"Check").set("ID", int(kIdPapers)).set("State", 8).node("below");
    OpenDialog dialog;
    TreeItem* const papers = itemOf(dialog, "papers");
    EXPECT_FALSE(isOn(dialog, "papers"));
    EXPECT_EQ(papers->state, 0);
    EXPECT_TRUE(dialog.rowWidgets.value(papers->childItem(0))->isEnabled()) << "it was there first";
    EXPECT_FALSE(isOn(dialog, "below")) << "the data's own rows come after";
}

TEST_F(OptionWalk, FillsTheRasterFormats) {
    OptionTreeWriter(openChild(&host.ioParams(), "Raster", 1)).set("Format1", "PNG");
    OptionTreeWriter(openChild(&host.ioParams(), "Formats\\PNG", 1)).set("Description", L"PNG pictures");
    tree.node("raster").set("ID", int(kIdRasterFormats));
    OpenDialog dialog;
    ASSERT_EQ(itemOf(dialog, "raster")->childCount(), 1);
    EXPECT_EQ(shownText(dialog, itemOf(dialog, "raster")->childItem(0)), "PNG pictures");
}

TEST_F(OptionWalk, BuildsAFreshTreeWhenItRunsAgain) {
    tree.node("group").node("a").type(L"Radio");
    tree.node("papers").set("ID", int(kIdPapers));
    tree.node("cursor").type(L"Color").set("ID", int(kIdCursorColor));
    rememberExpanded("group", 1);
    OpenDialog dialog;
    const QPointer<QWidget> row = rowOf(dialog, "group");
    const QPointer<QRadioButton> button = editorOf<QRadioButton>(dialog, "a");
    tree.node("later");
    dialog.rebuildTree(true);
    EXPECT_FALSE(row) << "the former rows are gone";
    EXPECT_FALSE(button);
    EXPECT_EQ(namesBelow(rootItem(dialog)), QStringList({"group", "papers", "cursor", "later"}));
    EXPECT_EQ(dialog.rowWidgets.size(), 6);
    EXPECT_EQ(dialog.optionItems.size(), 6);
    EXPECT_EQ(dialog.radioButtons.size(), 1);
    EXPECT_EQ(dialog.radioLists.size(), 1);
    EXPECT_EQ(dialog.buttonGroups.size(), 1);
    EXPECT_EQ(dialog.findChildren<QButtonGroup*>().size(), 1);
    EXPECT_EQ(dialog.expandedItems, QList<TreeItem*>({itemOf(dialog, "group")}));
    EXPECT_EQ(dialog.paperRootItem, itemOf(dialog, "papers"));
    EXPECT_EQ(dialog.cursorColorItem, itemOf(dialog, "cursor"));
}

TEST_F(OptionWalk, ForgetsThePagesThatTheDataNoLongerHas) {
    OptionTreeWriter(openChild(&host.papers(), "Paper00000001", 1)).set("Name", L"A4");
    OptionTreeWriter(openChild(&host.ioParams(), "Raster", 1)).set("Format1", "PNG");
    openChild(&host.ioParams(), "Formats\\PNG", 1);
    OptionTreeWriter(Ref<IParam>::share(&host.plain())).node("StdDirsDescriptions").node("Support");
    tree.node("papers").set("ID", int(kIdPapers));
    tree.node("raster").set("ID", int(kIdRasterFormats));
    tree.node("dirs").set("ID", int(kIdStdDirs));
    tree.node("cursor").type(L"Color").set("ID", int(kIdCursorColor));
    OpenDialog dialog;
    ASSERT_EQ(dialog.paperFormats.size() + dialog.stdDirs.size() + std::size_t(dialog.rasterFormats.size()),
              3u);
    tree.get()->clear();
    dialog.rebuildTree(true);
    EXPECT_EQ(dialog.paperRootItem, nullptr);
    EXPECT_EQ(dialog.cursorColorItem, nullptr);
    EXPECT_TRUE(dialog.paperFormats.empty());
    EXPECT_TRUE(dialog.stdDirs.empty());
    EXPECT_TRUE(dialog.rasterFormats.empty());
}

TEST_F(OptionWalk, ForgetsARowThatGoesAwayWithAllBelowIt) {
    tree.node("group").node("a").type(L"Radio");
    tree.node("group").node("papers").set("ID", int(kIdPapers));
    tree.node("group").node("cursor").type(L"Color").set("ID", int(kIdCursorColor));
    tree.node("stays");
    rememberExpanded("group", 1);
    OpenDialog dialog;
    TreeItem* const group = itemOf(dialog, "group");
    ASSERT_EQ(dialog.expandedItems, QList<TreeItem*>({group}));
    dialog.forgetItem(group);
    delete group;
    EXPECT_EQ(dialog.rowWidgets.size(), 2);
    EXPECT_TRUE(dialog.rowWidgets.contains(rootItem(dialog)));
    EXPECT_TRUE(dialog.rowWidgets.contains(itemOf(dialog, "stays")));
    EXPECT_EQ(dialog.optionItems.size(), 2);
    EXPECT_TRUE(dialog.radioButtons.isEmpty());
    EXPECT_TRUE(dialog.radioLists.isEmpty());
    EXPECT_TRUE(dialog.buttonGroups.isEmpty());
    EXPECT_TRUE(dialog.findChildren<QButtonGroup*>().isEmpty());
    EXPECT_TRUE(dialog.expandedItems.isEmpty());
    EXPECT_EQ(dialog.paperRootItem, nullptr);
    EXPECT_EQ(dialog.cursorColorItem, nullptr);
}

TEST_F(OptionWalk, WalksATreeOfGreatDepth) {
    OptionTreeWriter deepest = tree;
    for (int depth = 0; depth < 2000; ++depth)
        deepest = deepest.node("down");
    deepest.node("bottom").type(L"Check");
    OpenDialog dialog;
    EXPECT_NE(itemOf(dialog, "bottom"), nullptr);
}

TEST_F(OptionWalk, ShowsATextOfAMebibyte) {
    const std::wstring text(1 << 20, L'x');
    tree.node("long").set("Description", text.c_str());
    OpenDialog dialog;
    EXPECT_EQ(itemOf(dialog, "long")->description.size(), 1 << 20);
}

TEST_F(OptionWalk, BearsAHostWithoutAProfile) {
    tree.node("name").type(L"Edit").set("Key", "Name").set("Section", "S").set("IFace", "IProfile");
    host.withhold(typeid(IProfile));
    OpenDialog dialog;
    EXPECT_NE(editorOf<QLineEdit>(dialog, "name"), nullptr);
}
