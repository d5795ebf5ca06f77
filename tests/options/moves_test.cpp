// Moving rows with the two arrow buttons, and what moves along with them.
#include "tests/options/open_dialog.h"

#include "options/pages/search/searching_line_edit.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QToolButton>
#include <gtest/gtest.h>

namespace {

class RowMoves : public testing::Test {
protected:
    RowMoves() : tree(optionTree(host)) {}
    // The first is in use, the others are not.
    void addPapers(const std::vector<const wchar_t*>& names) {
        for (std::size_t i = 0; i < names.size(); ++i) {
            const std::string section = "Paper" + std::to_string(i + 1);
            OptionTreeWriter(openChild(&host.papers(), section.c_str(), 1))
                .set("Name", names[i])
                .set("Used", i == 0 ? 1 : 0);
        }
        tree.node("papers").set("ID", int(kIdPapers));
    }
    QStringList storedPapers() {
        QStringList names;
        for (const std::string& child : childNames(&host.papers())) {
            CXStringW name;
            readValue(openChild(&host.papers(), child.c_str()).get(), "Name", &name);
            names << QString::fromWCharArray(name.c_str());
        }
        return names;
    }
    void addMovableGroups(OpenDialog& dialog) {
        for (const char* name : {"one", "two", "three"})
            itemOf(dialog, name)->buttonMask = 31;
    }
    FixtureHost host;
    OptionTreeWriter tree;
};

QStringList shownBelow(const OpenDialog& dialog, TreeItem* parent) {
    QStringList texts;
    for (int i = 0; i < parent->childCount(); ++i)
        texts << shownText(dialog, parent->childItem(i)).section(" (", 0, 0);
    return texts;
}

QCheckBox* checkOf(const OpenDialog& dialog, TreeItem* item) {
    return dialog.rowWidgets.value(item)->findChild<QCheckBox*>();
}

} // namespace

TEST_F(RowMoves, MovesAPlainRowUpAndDown) {
    for (const char* name : {"one", "two", "three"})
        tree.node(name);
    OpenDialog dialog;
    addMovableGroups(dialog);
    dialog.clickRow(itemOf(dialog, "two"));
    dialog.click("upButton");
    EXPECT_EQ(namesBelow(rootItem(dialog)), QStringList({"two", "one", "three"}));
    EXPECT_EQ(shownBelow(dialog, rootItem(dialog)), QStringList({"two", "one", "three"}));
    EXPECT_EQ(dialog.tree->currentItem(), itemOf(dialog, "two"));
    EXPECT_EQ(dialog.focusWidget(), dialog.tree);
    dialog.click("downButton");
    dialog.click("downButton");
    EXPECT_EQ(namesBelow(rootItem(dialog)), QStringList({"one", "three", "two"}));
}

TEST_F(RowMoves, DisablesTheArrowAtTheEndThatTheRowHasReached) {
    for (const char* name : {"one", "two", "three"})
        tree.node(name);
    OpenDialog dialog;
    addMovableGroups(dialog);
    dialog.clickRow(itemOf(dialog, "two"));
    dialog.click("upButton");
    EXPECT_FALSE(dialog.upButton->isEnabled());
    EXPECT_TRUE(dialog.downButton->isEnabled());
}

TEST_F(RowMoves, DoesNothingPastTheEnds) {
    for (const char* name : {"one", "two", "three"})
        tree.node(name);
    OpenDialog dialog;
    dialog.clickRow(itemOf(dialog, "one"));
    dialog.moveCurrent(-1);
    dialog.clickRow(itemOf(dialog, "three"));
    dialog.moveCurrent(1);
    EXPECT_EQ(namesBelow(rootItem(dialog)), QStringList({"one", "two", "three"}));
    dialog.moveCurrent(-1);
    EXPECT_EQ(namesBelow(rootItem(dialog)), QStringList({"one", "three", "two"})) << "there is room upwards";
}

TEST_F(RowMoves, DoesNothingWithoutACurrentRowAndOnTheRoot) {
    tree.node("one");
    OpenDialog dialog;
    dialog.clickRow(rootItem(dialog));
    dialog.moveCurrent(-1);
    dialog.moveCurrent(1);
    dialog.tree->setCurrentItem(nullptr);
    dialog.moveCurrent(1);
    EXPECT_EQ(namesBelow(rootItem(dialog)), QStringList({"one"}));
}

TEST_F(RowMoves, GivesAPlainRowANewRowWithoutItsEditor) {
    tree.node("name").type(L"Edit");
    tree.node("other");
    OpenDialog dialog;
    itemOf(dialog, "name")->buttonMask = 31;
    dialog.clickRow(itemOf(dialog, "name"));
    dialog.click("downButton");
    EXPECT_EQ(dialog.rowWidgets.value(itemOf(dialog, "name"))->findChild<QLineEdit*>(), nullptr);
    EXPECT_EQ(shownText(dialog, "name"), "name");
}

TEST_F(RowMoves, KeepsTheWholeTextOfAMovedRow) {
    tree.node("lines").set("Name", L"Grid <lines>");
    tree.node("other");
    OpenDialog dialog;
    dialog.clickRow(itemOf(dialog, "lines"));
    dialog.moveCurrent(1);
    EXPECT_EQ(shownText(dialog, "lines"), "Grid <lines>");
    EXPECT_EQ(dialog.labelOf(itemOf(dialog, "lines"))->toolTip(), "Grid <lines>");
    EXPECT_EQ(itemOf(dialog, "lines")->text(0), "") << "the row alone paints it";
    const auto* const grid =
        qobject_cast<QGridLayout*>(dialog.rowWidgets.value(itemOf(dialog, "lines"))->layout());
    EXPECT_TRUE(grid->itemAtPosition(0, 1)) << "the label stands where it does behind a button";
    EXPECT_FALSE(grid->itemAtPosition(0, 0));
}

TEST_F(RowMoves, ForgetsTheButtonOfAMovedRadio) {
    OptionTreeWriter group = tree.node("group");
    group.node("a").type(L"Radio").set("Value", 1);
    group.node("b").type(L"Radio").set("Value", 2);
    OpenDialog dialog;
    dialog.tree->expandAll();
    dialog.clickRow(itemOf(dialog, "a"));
    dialog.moveCurrent(1);
    EXPECT_FALSE(dialog.radioButtons.contains(itemOf(dialog, "a")));
    EXPECT_EQ(dialog.radioLists.value(itemOf(dialog, "group")).size(), 1);
    dialog.rowWidgets.value(itemOf(dialog, "b"))->findChild<QAbstractButton*>()->click();
    EXPECT_EQ(itemOf(dialog, "b")->state, 1);
}

TEST_F(RowMoves, ForgetsTheRowsBelowAMovedRow) {
    tree.node("one").node("inner").type(L"Radio");
    tree.node("two");
    OpenDialog dialog;
    dialog.clickRow(itemOf(dialog, "one"));
    dialog.moveCurrent(1);
    EXPECT_TRUE(dialog.rowWidgets.contains(itemOf(dialog, "one"))) << "its own row is made anew";
    EXPECT_FALSE(dialog.rowWidgets.contains(itemOf(dialog, "inner"))) << "that one went with the move";
    EXPECT_FALSE(dialog.radioButtons.contains(itemOf(dialog, "inner")));
}

TEST_F(RowMoves, MovesAPaperWithItsRecord) {
    addPapers({L"A4", L"A3", L"A2"});
    OpenDialog dialog;
    dialog.tree->expandAll();
    dialog.clickRow(dialog.paperRootItem->childItem(2));
    dialog.click("upButton");
    EXPECT_EQ(shownBelow(dialog, dialog.paperRootItem), QStringList({"A4", "A2", "A3"}));
    EXPECT_EQ(storedPapers(), QStringList({"A4", "A3", "A2"})) << "nothing is written yet";
    dialog.click("applyButton");
    EXPECT_EQ(storedPapers(), QStringList({"A4", "A2", "A3"}));
    dialog.click("downButton");
    dialog.click("applyButton");
    EXPECT_EQ(storedPapers(), QStringList({"A4", "A3", "A2"}));
}

TEST_F(RowMoves, TakesTheCheckBoxOfAPaperAlong) {
    addPapers({L"A4", L"A3"});
    OpenDialog dialog;
    dialog.tree->expandAll();
    TreeItem* const paper = dialog.paperRootItem->childItem(0);
    QCheckBox* const check = checkOf(dialog, paper);
    ASSERT_TRUE(check->isChecked());
    dialog.clickRow(paper);
    dialog.click("downButton");
    QCoreApplication::processEvents(); // the old row goes
    EXPECT_EQ(checkOf(dialog, paper), check);
    EXPECT_TRUE(check->isVisible());
    EXPECT_EQ(dialog.paperRootItem->indexOfChild(paper), 1);
    QTest::mouseClick(check, Qt::LeftButton);
    EXPECT_FALSE(check->isChecked());
    dialog.click("applyButton");
    int used = -1;
    readValue(openChild(&host.papers(), "Paper00000002").get(), "Used", &used);
    EXPECT_EQ(used, 0) << "the box still belongs to its paper";
}

TEST_F(RowMoves, OpensAMovedPaperOnADoubleClick) {
    addPapers({L"A4", L"A3"});
    QStringList modified;
    host.papers().onModify = [&modified](const QString& text, QWidget*) {
        modified << text.section(" (", 0, 0);
        return false;
    };
    OpenDialog dialog;
    dialog.tree->expandAll();
    TreeItem* const paper = dialog.paperRootItem->childItem(0);
    dialog.clickRow(paper);
    dialog.click("downButton");
    dialog.doubleClickRow(paper);
    EXPECT_EQ(modified, QStringList({"A4"}));
}

TEST_F(RowMoves, TakesSearchMarksOutOfTheMovedText) {
    addPapers({L"Alpha", L"Beta"});
    OpenDialog dialog;
    dialog.tree->expandAll();
    dialog.searchEdit->setText("alpha");
    QTest::keyClick(dialog.searchEdit, Qt::Key_Return);
    TreeItem* const paper = dialog.paperRootItem->childItem(0);
    ASSERT_TRUE(shownText(dialog, paper).contains("<span")) << "the search has marked the row";
    dialog.tree->setCurrentItem(paper);
    dialog.moveCurrent(1);
    EXPECT_FALSE(shownText(dialog, paper).contains("<span"));
    EXPECT_TRUE(shownText(dialog, paper).startsWith("Alpha ("));
}
