// The dialog "Object Grouping" in a host that wants it to lead its user. What it does without is in
// group_dlg_test.cpp and beside it.
#include "tests/groups/group_dialog_fixture.h"
#include "tests/support/test_habits.h"

#include <QHeaderView>
#include <QTest>

namespace {

struct GuidedDialog : GroupDialog {
    static QString chosen(const QDialog& dialog) {
        const auto items = table(dialog).selectedItems();
        return items.isEmpty() ? QString() : items.first()->text();
    }
    TestHabits habits{{DialogHabit::GuidedGroups}};
};

TEST_F(GuidedDialog, FiveRowsAreInSightAndNamesGetTheRoom) {
    user.then([](QDialog& dialog) {
            const QTableWidget& groups = table(dialog);
            EXPECT_GE(groups.viewport()->height(), 5 * groups.rowHeight(0));
            EXPECT_GT(groups.columnWidth(0), 2 * groups.columnWidth(1));
        })
        .click("okButton");
    runDialog();
}

TEST_F(GuidedDialog, AfterNewTheNewGroupIsChosenAndTheFieldsAreIts) {
    user.then([](QDialog& dialog) {
            type(dialog, "nameEdit", "lamp");
            type(dialog, "descriptionEdit", "Bright");
        })
        .click("newButton")
        .then([this](QDialog& dialog) {
            EXPECT_EQ(chosen(dialog), "LAMP");
            EXPECT_EQ(in<QLineEdit>(dialog, "nameEdit").text(), "LAMP");
            EXPECT_EQ(in<QLineEdit>(dialog, "descriptionEdit").text(), "Bright");
            EXPECT_EQ(enabledButtons(dialog), all);
        })
        .click("descriptionButton")
        .click("okButton");
    selection.select(pick({4}));
    runDialog();
}

TEST_F(GuidedDialog, AfterIncludeUnnamedTheChosenGroupIsStillChosen) {
    user.then([](QDialog& dialog) { choose(dialog, "TABLE"); })
        .click("includeUnnamedCheck")
        .then([](QDialog& dialog) { EXPECT_EQ(chosen(dialog), "TABLE"); })
        .click("okButton");
    runDialog();
}

TEST_F(GuidedDialog, ARefusedNameSaysWhatIsAllowed) {
    user.then([](QDialog& dialog) { type(dialog, "nameEdit", "no blank"); })
        .click("newButton")
        .then([](QDialog& dialog) {
            EXPECT_EQ(message(dialog), "Group name is invalid. Up to 31 letters, digits, $, - and _.");
            const QLabel& label = in<QLabel>(dialog, "messageLabel");
            EXPECT_GE(label.height(), label.heightForWidth(label.width())) << "the message is cut";
            type(dialog, "nameEdit", "table");
        })
        .click("newButton")
        .then([](QDialog& dialog) { EXPECT_EQ(message(dialog), "Group name is a duplicate."); })
        .click("okButton");
    runDialog();
}

TEST_F(GuidedDialog, EnterInTheNamePressesNothing) {
    user.then([](QDialog& dialog) {
            QTest::keyClick(&in<QLineEdit>(dialog, "nameEdit"), Qt::Key_Return);
            EXPECT_TRUE(dialog.isVisible());
        })
        .click("okButton");
    runDialog();
}

TEST_F(GuidedDialog, ManyGroupsHaveAFilterAndFewHaveNone) {
    user.then([](QDialog& dialog) { EXPECT_FALSE(in<QLineEdit>(dialog, "filterEdit").isVisible()); })
        .click("okButton");
    runDialog();
    for (int i = 0; i < 30; ++i)
        addGroup(OdString().format(L"PART%02d", i).c_str(), pick({i % 5}));
    user.then([](QDialog& dialog) {
            ASSERT_TRUE(in<QLineEdit>(dialog, "filterEdit").isVisible());
            choose(dialog, "TABLE");
            type(dialog, "filterEdit", "rt0");
            QStringList shown;
            for (int row = 0; row < table(dialog).rowCount(); ++row)
                if (!table(dialog).isRowHidden(row))
                    shown << table(dialog).item(row, 0)->text();
            EXPECT_EQ(shown.size(), 10);
            EXPECT_EQ(shown.first(), "PART00");
            EXPECT_EQ(chosen(dialog), "") << "what is out of sight is chosen no more";
            EXPECT_EQ(enabledButtons(dialog), QStringList());
        })
        .click("okButton");
    runDialog();
}

} // namespace
