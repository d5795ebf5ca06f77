// The undo records of the dialog's run and the transactions of the commands, call by call.
#include "groups/command_line_edit.h"
#include "groups/command_line_remove_object.h"
#include "groups/command_line_ungroup.h"
#include "groups/command_line_unified.h"
#include "groups/local_undo.h"
#include "standin/params/service_hub.h"
#include "tests/groups/group_dialog_fixture.h"
#include "tests/groups/scripted_step.h"
#include "tests/groups/undo_watch.h"

#include <QPointer>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class UndoOfTheDialog : public GroupDialog {
protected:
    UndoWatch watch;
};

TEST_F(UndoOfTheDialog, OkMarksTheStartInABlockOfItsOwn) {
    user.click("okButton");
    EXPECT_EQ(runDialog(), 0);
    EXPECT_THAT(watch.calls, ElementsAre("open", "record", "mark", "record", "close"));
}

TEST_F(UndoOfTheDialog, CancelGoesBackToTheMarkAndStartsARecord) {
    user.click("cancelButton");
    EXPECT_EQ(runDialog(), 1);
    EXPECT_THAT(watch.calls, ElementsAre("open", "record", "mark", "record", "back", "record", "close"));
}

TEST_F(UndoOfTheDialog, RunningBlockOfTheHostIsNeitherOpenedNorClosed) {
    database->blockUndoRecording(true);
    watch.calls.clear();
    user.click("cancelButton");
    EXPECT_EQ(run<CGroupCmd>(), 1);
    EXPECT_THAT(watch.calls, ElementsAre("record", "mark", "record", "back", "record"));
}

TEST_F(UndoOfTheDialog, WithoutAParentThereIsNoRecord) {
    standin::registry().dialogParent = nullptr;
    EXPECT_EQ(run<CGroupCmd>(), 1);
    EXPECT_EQ(status, 1);
    EXPECT_THAT(watch.calls, IsEmpty());
}

// The record goes before anything is taken back, the dialog after the block was closed.
TEST_F(UndoOfTheDialog, EndsInItsOrder) {
    const OdDbGroupPtr chosen = group(L"TABLE");
    QPointer<QDialog> shown;
    long holdersAtBack = 0;
    bool isDialogThereAtClose = false;
    watch.onCall = [&](const std::string& call) {
        if (call == "back")
            holdersAtBack = chosen->numRefs();
        if (call == "close")
            isDialogThereAtClose = !shown.isNull();
    };
    user.then([&](QDialog& dialog) {
        shown = &dialog;
        choose(dialog, "TABLE");
        EXPECT_EQ(chosen->numRefs(), 2); // that of the test and that of the record
        DialogUser::clickIn(dialog, "cancelButton");
    });
    EXPECT_EQ(runDialog(), 1);
    EXPECT_EQ(holdersAtBack, 1);
    EXPECT_TRUE(isDialogThereAtClose);
    EXPECT_TRUE(shown.isNull());
}

class LocalUndo : public GroupTest {
protected:
    UndoWatch watch;
};

TEST_F(LocalUndo, FailureAtItsStartClosesTheBlock) {
    for (const std::size_t call : {1u, 2u, 3u}) {
        watch.calls.clear();
        watch.failsAt = call;
        EXPECT_THROW(HostLocalUndo undo(database), std::bad_alloc);
        EXPECT_EQ(watch.calls.size(), call + 2);
        EXPECT_EQ(watch.calls.back(), "close");
        EXPECT_FALSE(database->isUndoBlockStarted());
    }
}

TEST_F(LocalUndo, FailureAtItsStartLeavesABlockOfTheHostOpen) {
    database->blockUndoRecording(true);
    watch.calls.clear();
    watch.failsAt = 0;
    EXPECT_THROW(HostLocalUndo undo(database), std::bad_alloc);
    EXPECT_THAT(watch.calls, ElementsAre("record"));
    EXPECT_TRUE(database->isUndoBlockStarted());
}

// A removal, by each of the commands that can.
struct Removal {
    const char* name;
    int (*run)(std::vector<ScriptedAnswer> answers, ScriptedIO& io);
    std::vector<ScriptedAnswer> answers; // up to the selection of objects
};

template <class Command> int runAnswered(std::vector<ScriptedAnswer> answers, ScriptedIO& io) {
    for (const ScriptedAnswer& one : answers)
        io.answer(one);
    return Ref<Command>::share(new Command)->Run(nullptr);
}

class Removals : public GroupTest, public testing::WithParamInterface<Removal> {
protected:
    Removals() {
        addGroup(L"G", pick({0, 1, 2}));
        setPickStyle(0);
        selection.ignoresNewSets = true;
        watch.onCall = [this](const std::string&) { membersAtCalls.push_back(members(L"G").size()); };
    }
    int remove() { return GetParam().run(GetParam().answers, io); }
    UndoWatch watch;
    std::vector<std::size_t> membersAtCalls;
};

TEST_P(Removals, OfSelectedMembersStandInATransactionOfTheirOwn) {
    selection.select(pick({1}));
    EXPECT_EQ(remove(), 0);
    EXPECT_THAT(watch.calls, ElementsAre("begin", "commit"));
    EXPECT_THAT(membersAtCalls, ElementsAre(3u, 2u));
}

TEST_P(Removals, InATransactionOfTheHostGoWithItsAbort) {
    database->startTransaction();
    selection.select(pick({1}));
    EXPECT_EQ(remove(), 0);
    EXPECT_EQ(database->numActiveTransactions(), 1);
    EXPECT_THAT(members(L"G"), ElementsAre(0, 2));
    database->abortTransaction();
    EXPECT_THAT(members(L"G"), ElementsAre(0, 1, 2));
}

INSTANTIATE_TEST_SUITE_P(
    Commands, Removals,
    testing::Values(Removal{"Unified", runAnswered<CCommandLineGroupUnified>, {keyword(3), typed(L"G")}},
                    Removal{"Edit", runAnswered<CCommandLineGroupEdit>, {keyword(1)}},
                    Removal{"RemoveObject", runAnswered<CCommandLineGroupRemoveObject>, {typed(L"G")}}),
    [](const auto& removal) { return removal.param.name; });

class TransactionsOfCommands : public GroupTest {
protected:
    TransactionsOfCommands() { addGroup(L"G", pick({0, 1, 2})); }
    void addStep() {
        static_cast<standin::ServiceHub*>(host.application())
            ->add(Ref<ScriptedStep>::share(new ScriptedStep(io, host.vars)));
    }
    UndoWatch watch;
};

TEST_F(TransactionsOfCommands, PromptForARemovalIsCommitted) {
    answer({keyword(3), typed(L"G")});
    EXPECT_EQ(run<CCommandLineGroupUnified>(), 0);
    EXPECT_THAT(watch.calls, ElementsAre("begin", "commit"));
}

TEST_F(TransactionsOfCommands, PromptForARemovalThatCannotAskIsAborted) {
    addGroup(L"plan|X", pick({4}));
    answer({typed(L"plan|X")});
    EXPECT_EQ(run<CCommandLineGroupRemoveObject>(), 1);
    EXPECT_THAT(watch.calls, ElementsAre("begin", "abort"));
}

TEST_F(TransactionsOfCommands, AddAndUngroupOfAHostWithAStepStandInOne) {
    addStep();
    answer({keyword(2), typed(L"G"), picked(pick({5}))});
    EXPECT_EQ(run<CCommandLineGroupUnified>(), 0);
    EXPECT_THAT(watch.calls, ElementsAre("begin", "commit"));
    watch.calls.clear();
    answer({picked(pick({1}))});
    EXPECT_EQ(run<CCommandLineGroupUngroup>(), 0);
    EXPECT_THAT(watch.calls, ElementsAre("begin", "commit"));
}
