// The record of the dialog "Object Grouping", seen from outside of a run.
#include "tests/groups/group_dialog_fixture.h"

#include "host/text.h"

#include <QCheckBox>

TEST(GroupDialogMessages, EachCodeOfAnErrorHasItsMessage) {
    EXPECT_EQ(CGroupDlg::errorMessage(3018), QStringLiteral("Group name is invalid."));
    EXPECT_EQ(CGroupDlg::errorMessage(3019), QStringLiteral("Group name is a duplicate."));
    EXPECT_EQ(CGroupDlg::errorMessage(3047), QStringLiteral("Group is empty."));
    EXPECT_EQ(CGroupDlg::errorMessage(0), QString());
}

class GroupDialogRecord : public GroupDialog {
protected:
    GroupData data;
    CGroupDlg dialog{&window, dictionary()->objectId(), data};
};

TEST_F(GroupDialogRecord, RejectedNamesLeaveTheirCode) {
    type(dialog, "nameEdit", "A B");
    DialogUser::clickIn(dialog, "newButton");
    EXPECT_EQ(data.errorCode, 3018);
    type(dialog, "nameEdit", "chair");
    DialogUser::clickIn(dialog, "newButton");
    EXPECT_EQ(data.errorCode, 3019);
}

TEST_F(GroupDialogRecord, HighlightOfAnEmptyGroupLeavesItsCode) {
    group(L"CHAIR", OdDb::kForWrite)->clear();
    in<QCheckBox>(dialog, "highlightCheck").click();
    choose(dialog, "CHAIR");
    EXPECT_EQ(data.errorCode, 3047);
    EXPECT_FALSE(data.highlighted);
}

TEST_F(GroupDialogRecord, WorkButtonsEndWithTheirResultsAndClearSelectable) {
    choose(dialog, "TABLE");
    const std::pair<const char*, int> results[] = {
        {"addButton", 7}, {"removeButton", 5}, {"reorderButton", 8}, {"findNameButton", 9}};
    for (const auto& [button, result] : results) {
        data.selectable = true;
        DialogUser::clickIn(dialog, button);
        EXPECT_EQ(dialog.result(), result);
        EXPECT_FALSE(data.selectable); // the toggling button is never checked
        EXPECT_EQ(data.name, OdString(L"TABLE"));
        EXPECT_EQ(data.description, OdString(L"Four legs"));
        EXPECT_EQ(data.currentRow, 1);
        EXPECT_EQ(data.group->name(), OdString(L"TABLE"));
    }
}

TEST_F(GroupDialogRecord, RowOfTheRecordKeepsItsValueWhenNoNameMatchesAfterwards) {
    choose(dialog, "TABLE");
    data.name = L"NONE";
    dialog.refillTable();
    EXPECT_EQ(data.currentRow, 1);
    data.name = L"chair";
    dialog.refillTable();
    EXPECT_EQ(data.currentRow, 0);
}

TEST_F(GroupDialogRecord, RefillMatchesUnnamedGroupsToo) {
    const OdString unnamed = odrxCast<OdDbGroup>(addUnnamed(pick({5})).safeOpenObject())->name();
    data.includeUnnamed = true;
    data.name = unnamed;
    dialog.refillTable();
    ASSERT_GE(data.currentRow, 0);
    EXPECT_EQ(names(dialog).at(data.currentRow), hostqt::qString(unnamed));
    EXPECT_EQ(enabledButtons(dialog), all);
}

TEST_F(GroupDialogRecord, FillForIncludeUnnamedKeepsTheIdsInTheRowsAndLeavesTheRowOfTheRecord) {
    data.name = L"TABLE";
    data.currentRow = 7;
    in<QCheckBox>(dialog, "includeUnnamedCheck").click();
    EXPECT_EQ(data.currentRow, 7);
    EXPECT_TRUE(data.includeUnnamed);
    EXPECT_EQ(table(dialog).item(0, 0)->data(Qt::UserRole).toULongLong(),
              reinterpret_cast<quintptr>(group(L"TABLE")->objectId().getStub()));
    dialog.refillTable();
    EXPECT_FALSE(table(dialog).item(0, 0)->data(Qt::UserRole).isValid());
}

TEST_F(GroupDialogRecord, ChoosingAnUnnamedGroupKeepsUnnamedChecked) {
    addUnnamed(pick({5}));
    in<QCheckBox>(dialog, "includeUnnamedCheck").click();
    in<QCheckBox>(dialog, "unnamedCheck").click();
    table(dialog).setCurrentCell(2, 0);
    EXPECT_TRUE(in<QCheckBox>(dialog, "unnamedCheck").isChecked());
    EXPECT_EQ(message(dialog), QString());
}

TEST_F(GroupDialogRecord, NoButtonIsMadeTheDefault) {
    for (const auto* button : dialog.findChildren<QPushButton*>()) {
        EXPECT_FALSE(button->isDefault()) << button->objectName().toStdString();
        EXPECT_FALSE(button->autoDefault()) << button->objectName().toStdString();
    }
}

TEST_F(GroupDialogRecord, CapturedNameIsTheTypedOneAndTheEditThenShowsTheRow) {
    choose(dialog, "TABLE");
    type(dialog, "nameEdit", "typed");
    DialogUser::clickIn(dialog, "addButton");
    EXPECT_EQ(data.name, OdString(L"typed"));
    EXPECT_EQ(in<QLineEdit>(dialog, "nameEdit").text(), QStringLiteral("TABLE"));
}
