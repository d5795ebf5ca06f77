// The dialog "Object Grouping" in the run of its command: how it opens, how it ends, and new groups.
#include "tests/groups/group_dialog_fixture.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QtTest>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

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

TEST_F(GroupDialog, EscapeBringsTheDialogBack) {
    user.then([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }).click("okButton");
    EXPECT_EQ(runDialog(), 0);
    EXPECT_EQ(status, 0);
}

TEST_F(GroupDialog, ResultTenEndsTheRunAndAnUnknownOneShowsTheDialogAgain) {
    user.then([](QDialog& dialog) { dialog.done(6); }).then([](QDialog& dialog) { dialog.done(10); });
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

TEST_F(GroupDialog, OneUndoTakesTheWholeRunBackAndOneRedoBringsItAgain) {
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
    const std::string after = drawingText();
    EXPECT_TRUE(database->undo());
    EXPECT_TRUE(drawingText() == before);
    EXPECT_TRUE(database->redo());
    EXPECT_TRUE(drawingText() == after);
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

TEST_F(GroupDialog, NewEnablesReorderForASingleRow) {
    dictionary(OdDb::kForWrite)->remove(L"CHAIR");
    user.then([](QDialog& dialog) {
            type(dialog, "nameEdit", "lamp");
            DialogUser::clickIn(dialog, "newButton");
        })
        .then([](QDialog& dialog) {
            EXPECT_EQ(names(dialog), QStringList{"TABLE"});
            EXPECT_TRUE(isEnabled(dialog, "reorderButton"));
            DialogUser::clickIn(dialog, "okButton");
        });
    runDialog();
}

TEST_F(GroupDialog, FirstGroupOfADrawingEnablesFindName) {
    for (const wchar_t* name : {L"TABLE", L"CHAIR"})
        group(name, OdDb::kForWrite)->erase(true);
    selection.select(pick({5}));
    user.then([](QDialog& dialog) {
            EXPECT_FALSE(isEnabled(dialog, "findNameButton"));
            type(dialog, "nameEdit", "lamp");
            DialogUser::clickIn(dialog, "newButton");
        })
        .then([](QDialog& dialog) {
            EXPECT_TRUE(isEnabled(dialog, "findNameButton"));
            EXPECT_FALSE(isEnabled(dialog, "reorderButton"));
            DialogUser::clickIn(dialog, "okButton");
        });
    runDialog();
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
        EXPECT_FALSE(table(dialog).horizontalHeader()->highlightSections());
        choose(dialog, "CHAIR");
        EXPECT_EQ(message(dialog), QString());
        DialogUser::clickIn(dialog, "okButton");
    });
    runDialog();
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

TEST_F(GroupDialog, SelectionOfTheStartIsUsedToTheEnd) {
    user.then([this](QDialog& dialog) {
            host.document.editorSelection = nullptr;
            choose(dialog, "TABLE");
            DialogUser::clickIn(dialog, "addButton");
        })
        .click("cancelButton");
    EXPECT_EQ(runDialog(), 1);
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
