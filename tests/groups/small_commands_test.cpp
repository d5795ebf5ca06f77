// The four short commands.
#include "groups/command_line_create.h"
#include "groups/command_line_from_selection.h"
#include "groups/command_line_remove_object.h"
#include "groups/command_line_ungroup.h"
#include "tests/groups/debug_lines.h"
#include "tests/groups/dialog_user.h"
#include "tests/groups/group_fixture.h"

#include <QMessageBox>
#include <QPushButton>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class QuietCommands : public GroupTest {};

TEST_F(QuietCommands, CreateAndUngroupPrintNothingChangeNothingAndLeaveTwo) {
    addGroup(L"G", pick({0, 1}));
    selection.select(pick({0, 1}));
    const std::wstring before = summary();
    EXPECT_EQ(run<CCommandLineGroupCreate>(), 0);
    EXPECT_EQ(status, 2);
    EXPECT_EQ(run<CCommandLineGroupUngroup>(), 0);
    EXPECT_EQ(status, 2);
    EXPECT_EQ(summary(), before);
    EXPECT_TRUE(io.transcript.empty());
}

TEST_F(QuietCommands, WithoutADocumentBothFail) {
    host.closeDocument();
    EXPECT_EQ(run<CCommandLineGroupCreate>(), 1);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(run<CCommandLineGroupUngroup>(), 1);
    EXPECT_EQ(status, 1);
}

class FromSelection : public GroupTest {};

TEST_F(FromSelection, NothingSelectedStillPrintsTheMessageAndMakesNoGroup) {
    EXPECT_EQ(run<CCommandLineGroupFromSelection>(), 0);
    EXPECT_THAT(io.printed, ElementsAre(OdString(L"\nA group 'Group1' was created")));
    EXPECT_EQ(dictionary()->numEntries(), 0u);
    EXPECT_EQ(database->numActiveTransactions(), 0);
}

TEST_F(FromSelection, SecondGroupGetsTheNextNumber) {
    selection.select(pick({0, 1}));
    EXPECT_EQ(run<CCommandLineGroupFromSelection>(), 0);
    selection.select(pick({2}));
    EXPECT_EQ(run<CCommandLineGroupFromSelection>(), 0);
    EXPECT_EQ(io.printed.back(), OdString(L"\nA group 'Group2' was created"));
    EXPECT_THAT(members(L"Group1"), ElementsAre(0, 1));
    EXPECT_THAT(members(L"Group2"), ElementsAre(2));
    EXPECT_TRUE(group(L"Group2")->isSelectable());
}

TEST_F(FromSelection, StatusIsNeverTouched) {
    EXPECT_EQ(run<CCommandLineGroupFromSelection>(), 0);
    EXPECT_EQ(status, 0);
}

TEST_F(FromSelection, FailureIsTakenBackAndGivesOne) {
    selection.select({dictionary()->objectId()});
    const DebugLines debug;
    EXPECT_EQ(run<CCommandLineGroupFromSelection>(), 1);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(dictionary()->numEntries(), 0u);
    EXPECT_EQ(database->numActiveTransactions(), 0);
    EXPECT_TRUE(io.printed.empty());
}

class RemoveObject : public GroupTest {
protected:
    RemoveObject() {
        addGroup(L"G", pick({0, 1, 2}));
        setPickStyle(0);
    }
    int remove(std::initializer_list<ScriptedAnswer> answers, IParam* params = nullptr) {
        answer(answers);
        const int result = run<CCommandLineGroupRemoveObject>(params);
        EXPECT_TRUE(io.allTaken());
        EXPECT_EQ(io.unanswered, 0);
        EXPECT_EQ(status, 0); // never touched
        EXPECT_EQ(database->numActiveTransactions(), 0);
        return result;
    }
};

TEST_F(RemoveObject, ParameterAsksNothingWhenMembersAreSelected) {
    selection.select(pick({1}));
    EXPECT_EQ(remove({}, groupNameParams(L"G").get()), 0);
    EXPECT_TRUE(io.prompts.empty());
    EXPECT_THAT(members(L"G"), ElementsAre(0, 2));
    EXPECT_THAT(io.printed,
                ElementsAre(OdString(L"\n1 entities from current selection removed from group 'G'")));
}

TEST_F(RemoveObject, PromptTakesNoKeywordAndAsksUntilTheNameIsKnown) {
    EXPECT_EQ(remove({typed(L"NONE"), enter(), keyword(0), typed(L"G")}), 0);
    EXPECT_EQ(io.prompts[0].text, OdString(L"Enter group name"));
    EXPECT_EQ(io.prompts[0].keywords, OdString(L"<none>"));
    EXPECT_EQ(io.prompts[0].flags, 2);
    EXPECT_THAT(io.printed, ElementsAre(OdString(L"Not found"), OdString(L"\n")));
}

TEST_F(RemoveObject, CancelGivesOne) { EXPECT_EQ(remove({cancel()}), 1); }

TEST_F(RemoveObject, WithoutASelectionThePromptIsComposed) {
    setPickStyle(2);
    EXPECT_EQ(remove({typed(L"G")}), 0);
    EXPECT_EQ(pickStyle(), 0);
    EXPECT_THAT(highlightedLines(), ElementsAre(0, 1, 2));
}

TEST_F(RemoveObject, InaccessibleGroupGivesOne) {
    addGroup(L"plan|X", pick({4}));
    EXPECT_EQ(remove({typed(L"plan|X")}), 1);
}

TEST_F(RemoveObject, QuestionHasCancelAsItsDefault) {
    selection.select(pick({0, 1, 2}));
    DialogUser user;
    user.then([](QDialog& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Warning"));
        EXPECT_EQ(box.standardButton(box.defaultButton()), QMessageBox::Cancel);
        box.button(QMessageBox::Cancel)->click();
    });
    EXPECT_EQ(remove({typed(L"G")}), 1);
    EXPECT_THAT(members(L"G"), ElementsAre(0, 1, 2));
}

TEST_F(RemoveObject, WrongNameOfTheParameterEndsInTheSmartPointersException) {
    EXPECT_EQ(codeOf([&] { run<CCommandLineGroupRemoveObject>(groupNameParams(L"NONE").get()); }),
              eNullObjectPointer);
}
