// What the buttons and check boxes of the dialog "Object Grouping" do with a group.
#include "tests/groups/group_dialog_fixture.h"

#include <QCheckBox>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(GroupDialog, ExplodeIsDisabledForAnEmptyGroup) {
    addGroup(L"EMPTY", {});
    user.then([](QDialog& dialog) {
        choose(dialog, "EMPTY");
        EXPECT_FALSE(isEnabled(dialog, "explodeButton"));
        EXPECT_TRUE(isEnabled(dialog, "addButton"));
        DialogUser::clickIn(dialog, "okButton");
    });
    runDialog();
}

TEST_F(GroupDialog, RenameStoresUpperCaseAndTellsIt) {
    user.then([](QDialog& dialog) {
        choose(dialog, "TABLE");
        type(dialog, "nameEdit", "desk");
        DialogUser::clickIn(dialog, "renameButton");
        EXPECT_EQ(message(dialog), QStringLiteral("Group name has been updated."));
        EXPECT_EQ(names(dialog), (QStringList{"CHAIR", "DESK"}));
        DialogUser::clickIn(dialog, "okButton");
    });
    runDialog();
    EXPECT_THAT(members(L"DESK"), ElementsAre(0, 1, 2));
    EXPECT_FALSE(hasGroup(L"TABLE"));
}

TEST_F(GroupDialog, RenameToTheGroupsOwnNameCountsAsADuplicate) {
    user.then([](QDialog& dialog) {
        choose(dialog, "TABLE");
        DialogUser::clickIn(dialog, "descriptionButton");
        in<QPushButton>(dialog, "renameButton").setFocus();
        DialogUser::clickIn(dialog, "renameButton");
        EXPECT_EQ(message(dialog), QStringLiteral("Group description has been updated."));
        EXPECT_EQ(dialog.focusWidget(), &in<QLineEdit>(dialog, "nameEdit"));
        EXPECT_EQ(in<QLineEdit>(dialog, "nameEdit").selectedText(), QStringLiteral("TABLE"));
        DialogUser::clickIn(dialog, "okButton");
    });
    runDialog();
    EXPECT_TRUE(hasGroup(L"TABLE"));
}

TEST_F(GroupDialog, RenameWithoutARowOrWithUnnamedOnlyClearsTheMessage) {
    user.then([](QDialog& dialog) {
        const QString updated = QStringLiteral("Group description has been updated.");
        choose(dialog, "TABLE");
        DialogUser::clickIn(dialog, "descriptionButton");
        in<QCheckBox>(dialog, "includeUnnamedCheck").click(); // no row is chosen from here on
        type(dialog, "nameEdit", "desk");
        EXPECT_EQ(message(dialog), updated);
        DialogUser::clickIn(dialog, "renameButton");
        EXPECT_EQ(message(dialog), QString());
        choose(dialog, "TABLE");
        type(dialog, "nameEdit", "desk");
        DialogUser::clickIn(dialog, "descriptionButton");
        in<QCheckBox>(dialog, "unnamedCheck").click();
        EXPECT_EQ(message(dialog), updated);
        DialogUser::clickIn(dialog, "renameButton");
        EXPECT_EQ(message(dialog), QString());
        DialogUser::clickIn(dialog, "okButton");
    });
    runDialog();
    EXPECT_TRUE(hasGroup(L"TABLE"));
}

TEST_F(GroupDialog, DescriptionAndSelectableWorkAtOnce) {
    user.then([](QDialog& dialog) {
        choose(dialog, "CHAIR");
        type(dialog, "descriptionEdit", "To sit on, <b>100%1</b>");
        DialogUser::clickIn(dialog, "descriptionButton");
        EXPECT_EQ(message(dialog), QStringLiteral("Group description has been updated."));
        DialogUser::clickIn(dialog, "selectableButton");
        EXPECT_EQ(table(dialog).item(0, 1)->text(), QStringLiteral("No"));
        DialogUser::clickIn(dialog, "okButton");
    });
    runDialog();
    EXPECT_EQ(group(L"CHAIR")->description(), OdString(L"To sit on, <b>100%1</b>"));
    EXPECT_FALSE(group(L"CHAIR")->isSelectable());
}

TEST_F(GroupDialog, HighlightFollowsTheSelectionAndGoesWithTheDialog) {
    user.then([&](QDialog& dialog) {
            choose(dialog, "TABLE");
            in<QCheckBox>(dialog, "highlightCheck").click();
            EXPECT_THAT(highlightedLines(), ElementsAre(0, 1, 2));
            EXPECT_EQ(dialog.focusWidget(), &table(dialog));
            choose(dialog, "CHAIR");
            EXPECT_THAT(highlightedLines(), ElementsAre(3));
            DialogUser::clickIn(dialog, "findNameButton");
        })
        .then([&](QDialog& dialog) {
            EXPECT_THAT(highlightedLines(), IsEmpty());
            EXPECT_TRUE(in<QCheckBox>(dialog, "highlightCheck").isChecked());
            choose(dialog, "TABLE");
            EXPECT_THAT(highlightedLines(), ElementsAre(0, 1, 2));
            in<QCheckBox>(dialog, "highlightCheck").click();
            EXPECT_THAT(highlightedLines(), IsEmpty());
            DialogUser::clickIn(dialog, "okButton");
        });
    runDialog();
    EXPECT_EQ(pickStyle(), 0);
}

TEST_F(GroupDialog, AddAndRemoveRunTheirPromptsAndComeBack) {
    user.then([](QDialog& dialog) {
            choose(dialog, "TABLE");
            DialogUser::clickIn(dialog, "addButton");
        })
        .then([&](QDialog& dialog) {
            EXPECT_THAT(highlightedLines(), ElementsAre(0, 1, 2));
            choose(dialog, "CHAIR");
            DialogUser::clickIn(dialog, "removeButton");
        })
        .then([&](QDialog& dialog) {
            EXPECT_THAT(highlightedLines(), ElementsAre(0, 1, 2, 3));
            EXPECT_EQ(pickStyle(), 0);
            DialogUser::clickIn(dialog, "okButton");
        });
    runDialog();
    EXPECT_THAT(members(L"TABLE"), ElementsAre(0, 1, 2));
}

TEST_F(GroupDialog, ExplodeRemovesTheRowAndTakesTheGroupAway) {
    user.then([](QDialog& dialog) {
        choose(dialog, "CHAIR");
        DialogUser::clickIn(dialog, "explodeButton");
        EXPECT_EQ(names(dialog), QStringList{"TABLE"});
        EXPECT_TRUE(isEnabled(dialog, "reorderButton"));
        DialogUser::clickIn(dialog, "okButton");
    });
    runDialog();
    EXPECT_FALSE(hasGroup(L"CHAIR"));
    EXPECT_FALSE(lines[3].isErased());
}

TEST_F(GroupDialog, ExplodingTheLastRowDisablesReorder) {
    dictionary(OdDb::kForWrite)->remove(L"CHAIR");
    user.then([](QDialog& dialog) {
        choose(dialog, "TABLE");
        DialogUser::clickIn(dialog, "explodeButton");
        EXPECT_EQ(table(dialog).rowCount(), 0);
        EXPECT_FALSE(isEnabled(dialog, "reorderButton"));
        EXPECT_THAT(enabledButtons(dialog), IsEmpty());
        DialogUser::clickIn(dialog, "okButton");
    });
    runDialog();
}

// After an Explode the rows below keep the ids of the rows that were there: a row-based action works on the
// exploded group, and its exception ends the run with everything kept.
TEST_F(GroupDialog, ActionRightAfterAnExplodeWorksOnTheIdThatTheRowHadBefore) {
    user.then([](QDialog& dialog) {
        choose(dialog, "CHAIR");
        DialogUser::clickIn(dialog, "explodeButton");
        EXPECT_EQ(names(dialog), QStringList{"TABLE"});
        DialogUser::clickIn(dialog, "descriptionButton");
    });
    EXPECT_EQ(codeOf([&] { run<CGroupCmd>(); }), eWasErased);
    EXPECT_FALSE(hasGroup(L"CHAIR"));
    EXPECT_FALSE(database->isUndoBlockStarted());
}

TEST_F(GroupDialog, RowWhoseGroupWasErasedMeanwhileCountsAsNone) {
    user.then([&](QDialog& dialog) {
        choose(dialog, "TABLE");
        group(L"CHAIR", OdDb::kForWrite)->erase(true);
        choose(dialog, "CHAIR");
        EXPECT_EQ(in<QLineEdit>(dialog, "descriptionEdit").text(), QStringLiteral("Four legs"));
        EXPECT_EQ(in<QLineEdit>(dialog, "nameEdit").text(), QStringLiteral("CHAIR"));
        DialogUser::clickIn(dialog, "okButton");
    });
    EXPECT_EQ(runDialog(), 0);
}

TEST_F(GroupDialog, ForeignObjectStopsTheFirstFillAndIsPassedOverLater) {
    selection.select(pick({5}));
    user.then([&](QDialog& dialog) {
            addForeignObject(L"ODD");
            type(dialog, "nameEdit", "lamp");
            DialogUser::clickIn(dialog, "newButton");
        })
        .then([](QDialog& dialog) {
            EXPECT_EQ(names(dialog), (QStringList{"CHAIR", "LAMP", "TABLE"}));
            DialogUser::clickIn(dialog, "okButton");
        });
    EXPECT_EQ(runDialog(), 0);
    EXPECT_THROW(run<CGroupCmd>(), OdError_NotThatKindOfClass);
    EXPECT_FALSE(database->isUndoBlockStarted());
}

TEST_F(GroupDialog, HelpDoesNothing) {
    user.click("helpButton").click("okButton");
    EXPECT_EQ(runDialog(), 0);
    EXPECT_TRUE(host.helpTopics().isEmpty());
}
