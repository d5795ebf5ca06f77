// The dialog "Object Grouping" in the run of its command.
#include "groups/group_dlg.h"
#include "tests/groups/dialog_user.h"
#include "tests/groups/group_fixture.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class GroupDialog : public GroupTest {
protected:
    GroupDialog() {
        addGroup(L"TABLE", pick({0, 1, 2}), L"Four legs");
        addGroup(L"CHAIR", pick({3}));
    }
    int runDialog() {
        const int result = run<CGroupCmd>();
        EXPECT_TRUE(user.finished());
        EXPECT_FALSE(database->isUndoBlockStarted());
        EXPECT_EQ(database->numActiveTransactions(), 0);
        return result;
    }
    static QTableWidget& table(const QDialog& dialog) { return in<QTableWidget>(dialog, "groupTable"); }
    static QStringList names(const QDialog& dialog) {
        QStringList list;
        for (int row = 0; row < table(dialog).rowCount(); ++row)
            list << table(dialog).item(row, 0)->text();
        return list;
    }
    static void choose(const QDialog& dialog, const char* name) {
        const auto found = table(dialog).findItems(QLatin1String(name), Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1);
        table(dialog).setCurrentItem(found.front());
    }
    static QString message(const QDialog& dialog) { return in<QLabel>(dialog, "messageLabel").text(); }
    static void type(const QDialog& dialog, const char* edit, const QString& text) {
        in<QLineEdit>(dialog, edit).setText(text);
    }
    // Which of the five buttons that need a group are enabled.
    static QStringList enabledButtons(const QDialog& dialog) {
        QStringList list;
        for (const char* name :
             {"explodeButton", "addButton", "descriptionButton", "selectableButton", "removeButton"})
            if (in<QPushButton>(dialog, name).isEnabled())
                list << QLatin1String(name);
        return list;
    }
    static bool isEnabled(const QDialog& dialog, const char* name) {
        return in<QWidget>(dialog, name).isEnabled();
    }
    const QStringList all{"explodeButton", "addButton", "descriptionButton", "selectableButton",
                          "removeButton"};
    DialogUser user;
};

TEST_F(GroupDialog, ShowsTheNamedGroupsSortedWithTheirSettings) {
    addUnnamed(pick({4}));
    group(L"CHAIR", OdDb::kForWrite)->setSelectable(false);
    user.then([&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Object Grouping"));
        EXPECT_EQ(dialog.size(), QSize(380, 420));
        EXPECT_EQ(dialog.minimumSize(), dialog.maximumSize());
        EXPECT_EQ(dialog.parentWidget(), &window);
        EXPECT_EQ(names(dialog), (QStringList{"CHAIR", "TABLE"}));
        EXPECT_EQ(table(dialog).item(0, 1)->text(), QStringLiteral("No"));
        EXPECT_EQ(table(dialog).item(1, 1)->text(), QStringLiteral("Yes"));
        EXPECT_EQ(table(dialog).rowHeight(0), 22);
        EXPECT_EQ(table(dialog).verticalHeader()->defaultSectionSize(), 15);
        EXPECT_EQ(table(dialog).verticalHeader()->minimumSectionSize(), 15);
        EXPECT_THAT(enabledButtons(dialog), IsEmpty());
        EXPECT_TRUE(isEnabled(dialog, "reorderButton"));
        EXPECT_TRUE(isEnabled(dialog, "findNameButton"));
        EXPECT_TRUE(in<QCheckBox>(dialog, "selectableCheck").isChecked());
        EXPECT_FALSE(in<QCheckBox>(dialog, "highlightCheck").isChecked());
        EXPECT_EQ(dialog.focusWidget(), &in<QLineEdit>(dialog, "nameEdit"));
        DialogUser::clickIn(dialog, "okButton");
    });
    EXPECT_EQ(runDialog(), 0);
    EXPECT_EQ(status, 0);
}

TEST_F(GroupDialog, WithOneNamedGroupReorderIsDisabledAndFindNameEnabled) {
    dictionary(OdDb::kForWrite)->remove(L"CHAIR");
    user.then([](QDialog& dialog) {
        EXPECT_FALSE(isEnabled(dialog, "reorderButton"));
        EXPECT_TRUE(isEnabled(dialog, "findNameButton"));
        DialogUser::clickIn(dialog, "okButton");
    });
    runDialog();
}

TEST_F(GroupDialog, WithoutAParentTheRunEndsBeforeAnyUndoRecord) {
    standin::registry().dialogParent = nullptr;
    EXPECT_EQ(run<CGroupCmd>(), 1);
    EXPECT_EQ(status, 1);
    EXPECT_FALSE(database->isUndoBlockStarted());
}

TEST_F(GroupDialog, EscapeBringsTheDialogBack) {
    user.then([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }).click("okButton");
    EXPECT_EQ(runDialog(), 0);
    EXPECT_EQ(status, 0);
}

TEST_F(GroupDialog, CancelTakesBackEverythingDoneSinceTheDialogFirstOpened) {
    user.then([](QDialog& dialog) {
            choose(dialog, "TABLE");
            DialogUser::clickIn(dialog, "explodeButton");
        })
        .then([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); })
        .then([](QDialog& dialog) {
            choose(dialog, "CHAIR");
            DialogUser::clickIn(dialog, "selectableButton");
        })
        .click("cancelButton");
    const std::wstring before = summary();
    EXPECT_EQ(runDialog(), 1);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(summary(), before);
}

TEST_F(GroupDialog, ClosingTheWindowCountsAsCancel) {
    user.then([](QDialog& dialog) {
        choose(dialog, "TABLE");
        DialogUser::clickIn(dialog, "explodeButton");
        dialog.close();
    });
    EXPECT_EQ(runDialog(), 1);
    EXPECT_EQ(status, 1);
    EXPECT_TRUE(hasGroup(L"TABLE"));
}

TEST_F(GroupDialog, OneUndoTakesTheWholeRunBack) {
    user.then([](QDialog& dialog) {
            choose(dialog, "TABLE");
            DialogUser::clickIn(dialog, "selectableButton");
            DialogUser::clickIn(dialog, "explodeButton");
            DialogUser::clickIn(dialog, "reorderButton");
        })
        .click("reverseButton")
        .click("okButton")
        .click("okButton");
    addLine(); // a change of its own before the run
    const std::string before = drawingText();
    EXPECT_EQ(runDialog(), 0);
    EXPECT_FALSE(hasGroup(L"TABLE"));
    EXPECT_TRUE(database->undo());
    EXPECT_TRUE(drawingText() == before);
}

TEST_F(GroupDialog, NewWithoutASelectionMakesNoGroupAndTheDialogComesBack) {
    user.then([](QDialog& dialog) {
            type(dialog, "nameEdit", "lamp");
            DialogUser::clickIn(dialog, "newButton");
        })
        .then([](QDialog& dialog) {
            EXPECT_EQ(names(dialog), (QStringList{"CHAIR", "TABLE"}));
            DialogUser::clickIn(dialog, "okButton");
        });
    EXPECT_EQ(runDialog(), 0);
    EXPECT_FALSE(hasGroup(L"LAMP"));
}

TEST_F(GroupDialog, NewStoresTheNameInUpperCaseWithDescriptionAndSelectable) {
    selection.select(pick({4, 5}));
    user.then([](QDialog& dialog) {
            type(dialog, "nameEdit", "lamp");
            type(dialog, "descriptionEdit", "Gives light");
            in<QCheckBox>(dialog, "selectableCheck").click();
            DialogUser::clickIn(dialog, "newButton");
        })
        .then([&](QDialog& dialog) {
            EXPECT_EQ(names(dialog), (QStringList{"CHAIR", "LAMP", "TABLE"}));
            EXPECT_EQ(QStringList(enabledButtons(dialog)), all);
            DialogUser::clickIn(dialog, "okButton");
        });
    EXPECT_EQ(runDialog(), 0);
    EXPECT_THAT(members(L"LAMP"), ElementsAre(4, 5));
    EXPECT_FALSE(group(L"LAMP")->isSelectable());
    EXPECT_EQ(group(L"LAMP")->description(), OdString(L"Gives light"));
    OdString key;
    for (const auto entry = dictionary()->newIterator(); !entry->done(); entry->next())
        if (entry->name().iCompare(L"LAMP") == 0)
            key = entry->name();
    EXPECT_EQ(key, OdString(L"LAMP"));
}

TEST_F(GroupDialog, RejectedNameShowsOnlyThroughTheFocus) {
    for (const char* name : {"A B", "", "table", "  chair  ", "A%1"}) {
        user.then([name](QDialog& dialog) {
            type(dialog, "nameEdit", name);
            in<QPushButton>(dialog, "newButton").setFocus();
            DialogUser::clickIn(dialog, "newButton");
            EXPECT_TRUE(dialog.isVisible());
            EXPECT_EQ(dialog.focusWidget(), &in<QLineEdit>(dialog, "nameEdit"));
            EXPECT_EQ(in<QLineEdit>(dialog, "nameEdit").selectedText(), QLatin1String(name));
            EXPECT_EQ(message(dialog), QString());
        });
    }
    user.click("okButton");
    selection.select(pick({5}));
    EXPECT_EQ(runDialog(), 0);
    EXPECT_EQ(dictionary()->numEntries(), 2u);
}

TEST_F(GroupDialog, BlanksAroundANewNameAreStored) {
    selection.select(pick({5}));
    user.then([](QDialog& dialog) {
            type(dialog, "nameEdit", "  lamp ");
            DialogUser::clickIn(dialog, "newButton");
        })
        .click("okButton");
    runDialog();
    EXPECT_TRUE(hasGroup(L"  LAMP "));
}

TEST_F(GroupDialog, UnnamedGroupIsListedOnlyWhereUnnamedGroupsAreIncluded) {
    selection.select(pick({5}));
    user.then([](QDialog& dialog) {
            in<QCheckBox>(dialog, "unnamedCheck").click();
            EXPECT_FALSE(isEnabled(dialog, "nameEdit"));
            DialogUser::clickIn(dialog, "newButton");
        })
        .then([](QDialog& dialog) {
            EXPECT_EQ(names(dialog), (QStringList{"CHAIR", "TABLE"}));
            in<QCheckBox>(dialog, "includeUnnamedCheck").click();
            ASSERT_EQ(names(dialog).size(), 3);
            EXPECT_EQ(names(dialog).mid(0, 2), (QStringList{"TABLE", "CHAIR"})); // in the dictionary's order
            EXPECT_TRUE(names(dialog).at(2).startsWith(QStringLiteral("*A")));
            in<QCheckBox>(dialog, "includeUnnamedCheck").click();
            EXPECT_EQ(names(dialog).size(), 2);
            DialogUser::clickIn(dialog, "okButton");
        });
    runDialog();
    EXPECT_EQ(dictionary()->numEntries(), 3u);
}

TEST_F(GroupDialog, AnonymousGroupDisablesItsNameAndRename) {
    addUnnamed(pick({5}));
    user.then([](QDialog& dialog) {
        in<QCheckBox>(dialog, "includeUnnamedCheck").click();
        table(dialog).setCurrentCell(2, 0);
        EXPECT_FALSE(isEnabled(dialog, "renameButton"));
        EXPECT_FALSE(isEnabled(dialog, "nameEdit"));
        choose(dialog, "TABLE");
        EXPECT_TRUE(isEnabled(dialog, "renameButton"));
        EXPECT_TRUE(isEnabled(dialog, "nameEdit"));
        DialogUser::clickIn(dialog, "okButton");
    });
    runDialog();
}

TEST_F(GroupDialog, ChoosingANamedGroupUnchecksUnnamed) {
    user.then([&](QDialog& dialog) {
        in<QCheckBox>(dialog, "unnamedCheck").click();
        choose(dialog, "TABLE");
        EXPECT_FALSE(in<QCheckBox>(dialog, "unnamedCheck").isChecked());
        EXPECT_EQ(message(dialog), QStringLiteral("New groups are named."));
        EXPECT_EQ(in<QLineEdit>(dialog, "nameEdit").text(), QStringLiteral("TABLE"));
        EXPECT_EQ(in<QLineEdit>(dialog, "descriptionEdit").text(), QStringLiteral("Four legs"));
        EXPECT_EQ(QStringList(enabledButtons(dialog)), all);
        choose(dialog, "CHAIR");
        EXPECT_EQ(message(dialog), QString());
        DialogUser::clickIn(dialog, "okButton");
    });
    runDialog();
}

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
        DialogUser::clickIn(dialog, "renameButton");
        EXPECT_EQ(message(dialog), QString());
        EXPECT_EQ(dialog.focusWidget(), &in<QLineEdit>(dialog, "nameEdit"));
        DialogUser::clickIn(dialog, "okButton");
    });
    runDialog();
    EXPECT_TRUE(hasGroup(L"TABLE"));
}

TEST_F(GroupDialog, RenameWithoutARowOrWithUnnamedOnlyClearsTheMessage) {
    user.then([](QDialog& dialog) {
        type(dialog, "nameEdit", "desk");
        DialogUser::clickIn(dialog, "renameButton");
        EXPECT_EQ(message(dialog), QString());
        choose(dialog, "TABLE");
        DialogUser::clickIn(dialog, "descriptionButton");
        in<QCheckBox>(dialog, "unnamedCheck").click();
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

TEST_F(GroupDialog, PromptThatCannotAskEndsTheRunAndKeepsTheChanges) {
    host.document.editorSelection = nullptr;
    user.then([](QDialog& dialog) {
        choose(dialog, "TABLE");
        DialogUser::clickIn(dialog, "selectableButton");
        DialogUser::clickIn(dialog, "addButton");
    });
    EXPECT_EQ(runDialog(), 0);
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(group(L"TABLE")->isSelectable());
}

TEST_F(GroupDialog, FailedCreationEndsTheRunAndKeepsEarlierChanges) {
    selection.select({dictionary()->objectId()});
    user.then([](QDialog& dialog) {
        choose(dialog, "TABLE");
        DialogUser::clickIn(dialog, "selectableButton");
        type(dialog, "nameEdit", "lamp");
        DialogUser::clickIn(dialog, "newButton");
    });
    EXPECT_EQ(runDialog(), 0);
    EXPECT_FALSE(group(L"TABLE")->isSelectable());
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

TEST_F(GroupDialog, RunningUndoBlockIsLeftOpen) {
    database->blockUndoRecording(true);
    user.click("okButton");
    EXPECT_EQ(run<CGroupCmd>(), 0);
    EXPECT_TRUE(database->isUndoBlockStarted());
    database->blockUndoRecording(false);
}

TEST_F(GroupDialog, EachCodeOfAnErrorHasItsMessage) {
    EXPECT_EQ(CGroupDlg::errorMessage(3018), QStringLiteral("Group name is invalid."));
    EXPECT_EQ(CGroupDlg::errorMessage(3019), QStringLiteral("Group name is a duplicate."));
    EXPECT_EQ(CGroupDlg::errorMessage(3047), QStringLiteral("Group is empty."));
    EXPECT_EQ(CGroupDlg::errorMessage(0), QString());
}

// The record of the dialog, seen from outside of a run.
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

TEST_F(GroupDialogRecord, CapturedNameIsTheTypedOneAndTheEditThenShowsTheRow) {
    choose(dialog, "TABLE");
    type(dialog, "nameEdit", "typed");
    DialogUser::clickIn(dialog, "addButton");
    EXPECT_EQ(data.name, OdString(L"typed"));
    EXPECT_EQ(in<QLineEdit>(dialog, "nameEdit").text(), QStringLiteral("TABLE"));
}
