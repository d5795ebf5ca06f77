// The group commands in a host that supplies a selection step: they do what their names say.
#include "groups/command_line_create.h"
#include "groups/command_line_edit.h"
#include "groups/command_line_ungroup.h"
#include "groups/command_line_unified.h"
#include "tests/groups/dialog_user.h"
#include "tests/groups/group_fixture.h"
#include "tests/groups/scripted_step.h"

#include <QLineEdit>
#include <QListWidget>
#include <QTableWidget>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class WithStep : public GroupTest {
protected:
    WithStep() {
        addGroup(L"G", pick({0, 1, 2}));
        static_cast<standin::ServiceHub*>(host.application())->add(step);
    }
    template <class Command> int runWith(std::initializer_list<ScriptedAnswer> answers) {
        answer(answers);
        const int result = run<Command>();
        EXPECT_TRUE(io.allTaken());
        EXPECT_EQ(io.unanswered, 0);
        EXPECT_EQ(database->numActiveTransactions(), 0);
        EXPECT_THAT(highlightedLines(), IsEmpty());
        EXPECT_EQ(pickStyle(), 1);
        return result;
    }
    Ref<ScriptedStep> step = Ref<ScriptedStep>::share(new ScriptedStep(io, host.vars));
};

TEST_F(WithStep, AddOptionAddsWhatIsSelected) {
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(2), typed(L"G"), picked(pick({4, 1}))}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_THAT(members(L"G"), ElementsAre(0, 1, 2, 4));
    EXPECT_EQ(step->requests[0].prompt, OdString(L"Select objects [3]"));
    EXPECT_EQ(step->requests[0].keywords, OdString(L"End *E _ End *E"));
}

TEST_F(WithStep, CancelAndNothingChosenAddNothing) {
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(2), typed(L"G"), cancel()}), 1);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(2), typed(L"G"), enter()}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_THAT(members(L"G"), ElementsAre(0, 1, 2));
}

TEST_F(WithStep, EndKeywordEndsTheSelectionWithWhatWasChosen) {
    ScriptedAnswer ended = keyword(0);
    ended.objects = pick({5});
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(2), typed(L"G"), ended}), 0);
    EXPECT_THAT(members(L"G"), ElementsAre(0, 1, 2, 5));
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(2), typed(L"G"), keyword(0)}), 0);
    EXPECT_THAT(members(L"G"), ElementsAre(0, 1, 2, 5));
}

TEST_F(WithStep, RemoveOptionRemovesTheMembersAmongWhatIsSelected) {
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(3), typed(L"G"), picked(pick({2, 5}))}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_THAT(members(L"G"), ElementsAre(0, 1));
    EXPECT_EQ(step->requests[0].prompt, OdString(L"Select objects"));
}

TEST_F(WithStep, CreateOptionMakesTheGroup) {
    EXPECT_EQ(runWith<CCommandLineGroupUnified>(
                  {keyword(7), typed(L"NEW"), typed(L"Of chairs"), picked(pick({3, 4}))}),
              0);
    EXPECT_EQ(status, 0);
    EXPECT_THAT(members(L"NEW"), ElementsAre(3, 4));
    EXPECT_EQ(group(L"NEW")->description(), OdString(L"Of chairs"));
    EXPECT_EQ(io.printed.back(), OdString(L"\nA group 'NEW' was created"));
}

TEST_F(WithStep, CancelledCreateOptionMakesNothing) {
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(7), typed(L"NEW"), enter(), cancel()}), 1);
    EXPECT_EQ(status, 1);
    EXPECT_FALSE(hasGroup(L"NEW"));
}

TEST_F(WithStep, EditAddsAndRemoves) {
    selection.select(pick({0}));
    EXPECT_EQ(runWith<CCommandLineGroupEdit>({keyword(0), picked(pick({5}))}), 0);
    EXPECT_THAT(members(L"G"), ElementsAre(0, 1, 2, 5));
    selection.select(pick({0}));
    EXPECT_EQ(runWith<CCommandLineGroupEdit>({keyword(1), picked(pick({5, 0}))}), 0);
    EXPECT_THAT(members(L"G"), ElementsAre(1, 2));
    EXPECT_EQ(step->requests[1].highlightedIds.size(), 4u);
}

TEST_F(WithStep, CreateCommandAsksForNameDescriptionAndObjects) {
    EXPECT_EQ(runWith<CCommandLineGroupCreate>({keyword(0), typed(L"A B"), typed(L"G"), typed(L"NEW"),
                                                keyword(1), typed(L"text"), picked(pick({3}))}),
              0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(step->requests[0].prompt, OdString(L"Select objects or [Name/Description]"));
    EXPECT_EQ(step->requests[0].keywords, OdString(L"Name Description"));
    EXPECT_THAT(io.printed,
                ElementsAre(OdString(L"Group name is invalid."), OdString(L"Group 'G' already exists."),
                            OdString(L"\nA group 'NEW' was created")));
    EXPECT_THAT(members(L"NEW"), ElementsAre(3));
    EXPECT_EQ(group(L"NEW")->description(), OdString(L"text"));
}

TEST_F(WithStep, CreateCommandTakesTheSelectionOnEnterAndFindsAName) {
    selection.select(pick({4, 5}));
    EXPECT_EQ(runWith<CCommandLineGroupCreate>({enter()}), 0);
    EXPECT_THAT(members(L"Group1"), ElementsAre(4, 5));
}

TEST_F(WithStep, CreateCommandIsCancelledAtEachPrompt) {
    EXPECT_EQ(runWith<CCommandLineGroupCreate>({cancel()}), 1);
    EXPECT_EQ(runWith<CCommandLineGroupCreate>({keyword(0), cancel()}), 1);
    EXPECT_EQ(runWith<CCommandLineGroupCreate>({keyword(1), cancel()}), 1);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(runWith<CCommandLineGroupCreate>({enter()}), 0);
    EXPECT_EQ(dictionary()->numEntries(), 1u);
}

TEST_F(WithStep, UngroupTakesTheGroupOfTheObjectApart) {
    EXPECT_EQ(runWith<CCommandLineGroupUngroup>({keyword(0), enter(), picked(pick({1}))}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(hasGroup(L"G"));
    EXPECT_EQ(step->requests[0].prompt, OdString(L"Select group or [?/Name]"));
    EXPECT_TRUE(step->requests[0].single);
}

TEST_F(WithStep, UngroupTakesWhatIsSelectedOrANamedGroup) {
    selection.select(pick({1}));
    EXPECT_EQ(runWith<CCommandLineGroupUngroup>({}), 0);
    EXPECT_FALSE(hasGroup(L"G"));
    addGroup(L"H", pick({3}));
    EXPECT_EQ(runWith<CCommandLineGroupUngroup>({keyword(1), typed(L"H")}), 0);
    EXPECT_FALSE(hasGroup(L"H"));
}

TEST_F(WithStep, UngroupOfSeveralGroupsTakesTheLastOneThatHoldsTheFirstObject) {
    addGroup(L"A", pick({0, 3}));
    addGroup(L"Z", pick({4}));
    selection.select(pick({3, 4, 1}));
    EXPECT_EQ(runWith<CCommandLineGroupUngroup>({}), 0);
    EXPECT_FALSE(hasGroup(L"A"));
    EXPECT_TRUE(hasGroup(L"G"));
    EXPECT_TRUE(hasGroup(L"Z"));
    addGroup(L"B", pick({0, 5}));
    selection.select(pick({0, 4}));
    EXPECT_EQ(runWith<CCommandLineGroupUngroup>({}), 0);
    EXPECT_FALSE(hasGroup(L"B"));
    EXPECT_TRUE(hasGroup(L"G"));
    EXPECT_TRUE(hasGroup(L"Z"));
}

TEST_F(WithStep, UngroupOfWhatIsInNoGroupAndItsCancelChangeNothing) {
    EXPECT_EQ(runWith<CCommandLineGroupUngroup>({picked(pick({5}))}), 1);
    EXPECT_EQ(io.printed.back(), OdString(L"Object is not a member of a group."));
    EXPECT_EQ(runWith<CCommandLineGroupUngroup>({cancel()}), 1);
    EXPECT_EQ(runWith<CCommandLineGroupUngroup>({keyword(1), cancel()}), 1);
    EXPECT_TRUE(hasGroup(L"G"));
}

class DialogWithStep : public WithStep {
protected:
    static void chooseFirst(const QDialog& dialog) {
        in<QTableWidget>(dialog, "groupTable").setCurrentCell(0, 0);
    }
    DialogUser user;
};

TEST_F(DialogWithStep, AddRemoveAndNewWorkAndCancelTakesThemBack) {
    const std::wstring before = summary();
    for (const char* end : {"cancelButton", "okButton"}) {
        user.then([](QDialog& dialog) {
                chooseFirst(dialog);
                DialogUser::clickIn(dialog, "addButton");
            })
            .then([](QDialog& dialog) {
                chooseFirst(dialog);
                DialogUser::clickIn(dialog, "removeButton");
            })
            .then([](QDialog& dialog) {
                in<QLineEdit>(dialog, "nameEdit").setText(QStringLiteral("new"));
                DialogUser::clickIn(dialog, "newButton");
            })
            .click(end);
        runWith<CGroupCmd>({picked(pick({5})), picked(pick({0})), picked(pick({3}))});
        EXPECT_TRUE(user.finished());
        EXPECT_EQ(step->requests.back().prompt, OdString(L"Select objects [End]"));
        if (qstrcmp(end, "cancelButton") == 0) {
            EXPECT_EQ(summary(), before);
        }
    }
    EXPECT_THAT(members(L"G"), ElementsAre(1, 2, 5));
    EXPECT_THAT(members(L"NEW"), ElementsAre(3));
    EXPECT_TRUE(database->undo());
    EXPECT_EQ(summary(), before);
}

TEST_F(DialogWithStep, FindNameListsTheGroupsOfAMember) {
    addGroup(L"H", pick({1, 5}));
    user.click("findNameButton")
        .then([](QDialog& dialog) {
            EXPECT_EQ(dialog.objectName(), QStringLiteral("CGroupMemberDlg"));
            const auto& list = in<QListWidget>(dialog, "memberList");
            ASSERT_EQ(list.count(), 2);
            EXPECT_EQ(list.item(0)->text(), QStringLiteral("G"));
            EXPECT_EQ(list.item(1)->text(), QStringLiteral("H"));
            DialogUser::clickIn(dialog, "okButton");
        })
        .click("findNameButton")
        .click("okButton");
    EXPECT_EQ(runWith<CGroupCmd>({picked(pick({1})), picked(pick({3}))}), 0);
    EXPECT_TRUE(user.finished());
    EXPECT_EQ(io.printed.back(), OdString(L"Object is not a member of a group."));
    EXPECT_EQ(step->requests[0].prompt, OdString(L"Pick a member of a group."));
}
