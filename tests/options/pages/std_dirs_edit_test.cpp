// What a user does to the paths of the standard directories: adding, changing and deleting.
#include "host/app.h"
#include "options/pages/directories/std_dirs_page.h"
#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/page_rows.h"
#include "options/window/page_calls.h"
#include "tests/options/pages/std_dirs_fixture.h"
#include "tests/support/tool_tip_text.h"

#include <QDir>
#include <QIcon>
#include <QSignalSpy>

namespace {

class StdDirEdits : public StdDirsFixture {
protected:
    void openWithTwoSections() {
        addSection("A", L"Section A", {L"/a", L"/b"});
        addSection("B", L"Section B", {L"/c"});
        open();
    }
    const FixtureHost::Message& lastMessage() { return host.messages.back(); }
};

} // namespace

TEST_F(StdDirEdits, AddAsksUnderTheSectionsTitleAndAppends) {
    openWithTwoSections();
    QString title, offered = "nothing";
    QWidget* parent = nullptr;
    host.answer(EV_MB_YES);
    whenDialogOpens([&](QDialog& dialog) {
        parent = dialog.parentWidget();
        title = dialog.windowTitle();
        offered = named<QLineEdit>(dialog, "lineEdit")->text();
        typeInto(dialog, "lineEdit", "/new");
        clickOn(dialog, "okButton");
    });
    section(1)->setExpanded(false);
    select(section(1));
    click(preferences->addButton);
    EXPECT_EQ(title, "Section B");
    EXPECT_EQ(offered, "");
    EXPECT_EQ(parent, preferences.get());
    EXPECT_EQ(rows(1), (QStringList{"/c", "/new"}));
    EXPECT_EQ(held(1), (QStringList{"/c", "/new"}));
    EXPECT_TRUE(section(1)->isExpanded());
    EXPECT_EQ(current(), row("/new"));
    EXPECT_EQ(stored("B"), QStringList{"/c"}) << "the store waits for Apply";
    apply();
    EXPECT_EQ(stored("B"), (QStringList{"/c", "/new"}));
}

TEST_F(StdDirEdits, AnAddedPathIsAnEditableOneOfTheUser) {
    openWithTwoSections();
    select(row("/a"));
    add("/new");
    const TreeItem* added = row("/new");
    const Ref<IStdDirInfo> info = elementsOf(preferences->stdDirs[0].list).back();
    EXPECT_STREQ(info->GetKey(), ".Local");
    EXPECT_EQ(info->GetEditable(), 1);
    EXPECT_EQ(added->payload, info.get());
    EXPECT_EQ(added->parent(), section(0)) << "a path stands for its section";
    EXPECT_EQ(added->buttonMask, 31u);
    EXPECT_EQ(added->numberValue, 0.0);
    EXPECT_EQ(added->description, "About Section A");
    EXPECT_EQ(iconOf(added).cacheKey(), iconOf(section(0)).cacheKey());
}

TEST_F(StdDirEdits, LoadedRowsOpenOnDoubleClickAndAddedOnesAndSectionsDoNot) {
    openWithTwoSections();
    select(section(0));
    add("/new");
    whenDialogOpens([](QDialog& dialog) { clickOn(dialog, "cancelButton"); });
    dialogsOpened = 0;
    doubleClick(row("/new"));
    QSignalSpy sectionClicks(labelOf(section(0)), &ClickableLabel::doubleClicked);
    doubleClick(section(0));
    EXPECT_EQ(sectionClicks.count(), 0);
    EXPECT_EQ(dialogsOpened, 0);
    doubleClick(row("/a"));
    EXPECT_EQ(dialogsOpened, 1);
}

TEST_F(StdDirEdits, ACancelledAddChangesNothing) {
    openWithTwoSections();
    select(section(0));
    whenDialogOpens([](QDialog& dialog) {
        typeInto(dialog, "lineEdit", "/new");
        clickOn(dialog, "cancelButton");
    });
    click(preferences->addButton);
    EXPECT_EQ(dialogsOpened, 1);
    EXPECT_EQ(rows(), (QStringList{"/a", "/b"}));
    EXPECT_EQ(held(), (QStringList{"/a", "/b"}));
}

TEST_F(StdDirEdits, AnAcceptedAddWithAnEmptyPathChangesNothing) {
    openWithTwoSections();
    select(section(0));
    add("");
    EXPECT_EQ(dialogsOpened, 1);
    EXPECT_EQ(held(), (QStringList{"/a", "/b"}));
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(StdDirEdits, APathWithASemicolonIsRefused) {
    openWithTwoSections();
    select(section(0));
    add("/x;/y");
    EXPECT_EQ(lastMessage().kind, standin::MessageKind::Critical);
    EXPECT_EQ(lastMessage().title, "Section A");
    EXPECT_EQ(lastMessage().text, "Path \"/x;/y\" is not valid. You can`t use ';' character.");
    EXPECT_EQ(int(lastMessage().buttons), EV_MB_OK);
    EXPECT_EQ(rows(), (QStringList{"/a", "/b"}));
}

TEST_F(StdDirEdits, APathOfTheSameSectionIsRefusedInAnyLetterCase) {
    openWithTwoSections();
    select(section(0));
    add("/B");
    EXPECT_EQ(lastMessage().title, "Section A");
    EXPECT_EQ(lastMessage().text, "Path \"/B\" already exists in \"Section A\" section.");
    EXPECT_EQ(int(lastMessage().buttons), EV_MB_OK);
    EXPECT_EQ(rows(), (QStringList{"/a", "/b"}));
}

TEST_F(StdDirEdits, APathOfAnotherSectionIsTaken) {
    openWithTwoSections();
    select(section(1));
    add("/a");
    EXPECT_EQ(held(1), (QStringList{"/c", "/a"}));
}

TEST_F(StdDirEdits, OnlyStoredPathsHaveTheirBackslashesTurned) {
    addSection("A", L"A", {L"C:\\a"});
    addSection("B", L"B", {L"c:/A"});
    open();
    select(section(0));
    add("c:/A");
    EXPECT_EQ(held(0), QStringList{"C:\\a"}) << "refused";
    EXPECT_FALSE(validatePath(*preferences, "c:/A", "A", 0));
    EXPECT_TRUE(validatePath(*preferences, "C:\\a", "B", 1));
}

TEST_F(StdDirEdits, APlaceholderInAPathDoesNotSpoilTheMessage) {
    addSection("A", L"Title %1", {L"/%2"});
    open();
    select(section());
    add("/%2");
    EXPECT_EQ(lastMessage().text, "Path \"/%2\" already exists in \"Title %1\" section.");
}

TEST_F(StdDirEdits, AClosedListTakesNothingAndForbidsNothing) {
    openWithTwoSections();
    preferences->stdDirs[0].list->close();
    EXPECT_TRUE(validatePath(*preferences, "/a", "Section A", 0));
    EXPECT_FALSE(validatePath(*preferences, "/a;", "Section A", 0));
    select(section(0));
    add("/a");
    EXPECT_EQ(rows(), (QStringList{"/a", "/b", "/a"}));
    click(preferences->deleteButton);
    EXPECT_EQ(rows(), (QStringList{"/a", "/b"}));
}

TEST_F(StdDirEdits, AMissingListTakesNothingAndSurvives) {
    describe("A", L"A");
    host.stdDirs().setNoList("A");
    open();
    select(section());
    add("/new");
    EXPECT_EQ(rows(), QStringList{"/new"});
    modify(row("/new"), "/other");
    click(preferences->deleteButton);
    EXPECT_EQ(rows(), QStringList());
}

TEST_F(StdDirEdits, ModifyChangesTheRowAndItsElement) {
    openWithTwoSections();
    QString title, offered;
    QWidget* parent = nullptr;
    host.answer(EV_MB_YES);
    whenDialogOpens([&](QDialog& dialog) {
        parent = dialog.parentWidget();
        title = dialog.windowTitle();
        offered = named<QLineEdit>(dialog, "lineEdit")->text();
        typeInto(dialog, "lineEdit", "/else");
        clickOn(dialog, "okButton");
    });
    doubleClick(row("/b"));
    EXPECT_EQ(title, "Section A");
    EXPECT_EQ(offered, "/b");
    EXPECT_EQ(parent, preferences.get());
    EXPECT_EQ(rows(), (QStringList{"/a", "/else"}));
    EXPECT_EQ(toolTipOf(*labelOf(row("/else"))), "/else");
    EXPECT_EQ(held(), (QStringList{"/a", "/else"}));
    EXPECT_EQ(stored("A"), (QStringList{"/a", "/b"}));
}

TEST_F(StdDirEdits, TheToolTipOfAPathShowsItsVeryCharacters) {
    addSection("A", L"Section A", {L"/a&lt;b", L"/c"});
    open();
    EXPECT_EQ(toolTipOf(*labelOf(section()->childItem(0))), "/a&lt;b");
    modify(row("/c"), "/<b>c</b>");
    EXPECT_EQ(toolTipOf(*labelOf(section()->childItem(1))), "/<b>c</b>");
    select(section()->childItem(0));
    click(preferences->downButton);
    ASSERT_EQ(rows(), (QStringList{"/<b>c</b>", "/a&lt;b"}));
    EXPECT_EQ(toolTipOf(*labelOf(section()->childItem(1))), "/a&lt;b") << "in the row that a move makes";
}

TEST_F(StdDirEdits, AModifyThatChangesOnlyTheLetterCaseIsDropped) {
    openWithTwoSections();
    modify(row("/b"), "/B");
    EXPECT_EQ(dialogsOpened, 1);
    EXPECT_EQ(rows(), (QStringList{"/a", "/b"}));
    EXPECT_EQ(held(), (QStringList{"/a", "/b"}));
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(StdDirEdits, AModifyToAnExistingDirectoryThatDiffersInLetterCaseOnlyIsDroppedToo) {
    const QTemporaryDir folder;
    const QString lower = folder.filePath("x"), upper = folder.filePath("X");
    ASSERT_TRUE(QDir().mkdir(lower) && QDir().mkdir(upper));
    addSection("A", L"A", {lower.toStdWString()});
    open();
    modify(row(lower), upper);
    EXPECT_EQ(dialogsOpened, 1);
    EXPECT_EQ(rows(), QStringList{lower});
    EXPECT_EQ(held(), QStringList{lower});
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(StdDirEdits, AModifyToAnEmptyPathOrACancelledOneChangesNothing) {
    openWithTwoSections();
    modify(row("/b"), "");
    whenDialogOpens([](QDialog& dialog) {
        typeInto(dialog, "lineEdit", "/else");
        clickOn(dialog, "cancelButton");
    });
    EXPECT_TRUE(chooseInMenu(row("/b"), "Modify"));
    EXPECT_EQ(dialogsOpened, 2);
    EXPECT_EQ(rows(), (QStringList{"/a", "/b"}));
    EXPECT_EQ(held(), (QStringList{"/a", "/b"}));
}

TEST_F(StdDirEdits, AModifyToAPathOfTheSectionIsRefused) {
    openWithTwoSections();
    modify(row("/b"), "/a");
    EXPECT_EQ(lastMessage().text, "Path \"/a\" already exists in \"Section A\" section.");
    EXPECT_EQ(held(), (QStringList{"/a", "/b"}));
}

TEST_F(StdDirEdits, TheMarksOfASearchAreNoPartOfPathOrTitle) {
    openWithTwoSections();
    searchFor("a");
    ASSERT_TRUE(shown(row("/a")).contains("<span"));
    ASSERT_TRUE(shown(section(0)).contains("<span"));
    QString title, offered;
    whenDialogOpens([&](QDialog& dialog) {
        title = dialog.windowTitle();
        offered = named<QLineEdit>(dialog, "lineEdit")->text();
        clickOn(dialog, "cancelButton");
    });
    EXPECT_TRUE(chooseInMenu(row("/a"), "Modify"));
    EXPECT_EQ(offered, "/a");
    EXPECT_EQ(title, "Section A");
}

TEST_F(StdDirEdits, TheMarksOfASearchAreNoPartOfTheTitleUnderWhichAPathIsAdded) {
    openWithTwoSections();
    searchFor("Section");
    ASSERT_TRUE(shown(section(0)).contains("<span"));
    select(section(0));
    add("/a");
    EXPECT_EQ(dialogsOpened, 1);
    EXPECT_EQ(lastMessage().title, "Section A");
    EXPECT_EQ(lastMessage().text, "Path \"/a\" already exists in \"Section A\" section.");
}

TEST_F(StdDirEdits, DeleteAsksNothingAndMakesTheSectionCurrent) {
    openWithTwoSections();
    select(row("/a"));
    click(preferences->deleteButton);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(rows(), QStringList{"/b"});
    EXPECT_EQ(held(), QStringList{"/b"});
    EXPECT_EQ(current(), section(0));
    EXPECT_TRUE(preferences->tree->hasFocus());
    EXPECT_EQ(stored("A"), (QStringList{"/a", "/b"}));
    apply();
    EXPECT_EQ(stored("A"), QStringList{"/b"});
}

TEST_F(StdDirEdits, ADeletedRowIsOffTheTreeWhenTheSectionBecomesCurrent) {
    openWithTwoSections();
    TreeItem* item = row("/a");
    select(item);
    QList<QWidget*> rowsThen;
    QObject::connect(preferences->tree, &QTreeWidget::currentItemChanged, preferences.get(),
                     [&] { rowsThen << preferences->tree->itemWidget(item, 0); });
    click(preferences->deleteButton);
    ASSERT_FALSE(rowsThen.isEmpty());
    EXPECT_EQ(rowsThen.first(), nullptr);
}

TEST_F(StdDirEdits, ADeletedRowIsForgottenByTheDialog) {
    openWithTwoSections();
    const int before = preferences->rowWidgets.size();
    select(row("/a"));
    click(preferences->deleteButton);
    EXPECT_EQ(preferences->rowWidgets.size(), before - 1);
    select(section(0));
    add("/new");
    EXPECT_EQ(preferences->rowWidgets.size(), before);
}

TEST_F(StdDirEdits, TheLastPathOfTheFirstSectionCanBeDeletedAndThatOfAnotherCannot) {
    openWithTwoSections();
    select(row("/c"));
    EXPECT_FALSE(preferences->deleteButton->isEnabled());
    EXPECT_FALSE(chooseInMenu(row("/c"), "Delete"));
    EXPECT_EQ(rows(1), QStringList{"/c"});
    select(row("/a"));
    click(preferences->deleteButton);
    select(row("/b"));
    EXPECT_TRUE(preferences->deleteButton->isEnabled());
    EXPECT_TRUE(chooseInMenu(row("/b"), "Delete"));
    EXPECT_EQ(rows(0), QStringList());
    apply();
    EXPECT_EQ(stored("A"), QStringList());
}

TEST_F(StdDirEdits, CancellingTheDialogDiscardsEverything) {
    openWithTwoSections();
    select(section(0));
    add("/new");
    modify(row("/b"), "/else");
    select(row("/a"));
    click(preferences->deleteButton);
    ASSERT_EQ(held(), (QStringList{"/else", "/new"}));
    click(preferences->cancelButton);
    EXPECT_EQ(stored("A"), (QStringList{"/a", "/b"}));
}

TEST_F(StdDirEdits, DeletingAFoundRowLeavesTheSearchIntact) {
    openWithTwoSections();
    select(row("/a"));
    searchFor("a");
    select(row("/a"));
    click(preferences->deleteButton);
    searchFor("b");
    EXPECT_FALSE(row("/b")->isHidden());
    typeInto(*preferences, "searchEdit", "");
    EXPECT_EQ(rows(), QStringList{"/b"});
    EXPECT_FALSE(row("/b")->isHidden());
}
