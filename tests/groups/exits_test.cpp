// Drives each command to each of its exits: every flow is cancelled at every one of its prompts and then run
// to its end.
#include "groups/command_line_create.h"
#include "groups/command_line_edit.h"
#include "groups/command_line_from_selection.h"
#include "groups/command_line_remove_object.h"
#include "groups/command_line_ungroup.h"
#include "groups/command_line_unified.h"
#include "tests/groups/group_fixture.h"

#include <algorithm>
#include <ostream>

namespace {

struct Verdict {
    int result;
    int status;
};

struct Flow {
    const char* name;
    Ref<CGroupCmd> (*make)();
    std::vector<ScriptedAnswer> answers; // one for each prompt
    Verdict atEnd;
    bool changesDrawing;
    std::vector<int> selected = {};
    // The answers whose prompt is the list's own text input: a cancel there goes on with the next prompt.
    std::vector<std::size_t> textInputs = {};
    bool cancelTouchesStatus = true;
};

void PrintTo(const Flow& flow, std::ostream* out) { *out << flow.name; }

template <class Command> Ref<CGroupCmd> maker() {
    return Ref<CGroupCmd>::share(static_cast<CGroupCmd*>(new Command));
}

constexpr auto unified = maker<CCommandLineGroupUnified>;
constexpr auto edit = maker<CCommandLineGroupEdit>;

std::vector<Flow> flows() {
    return {
        {"UnifiedList", unified, {keyword(0), enter(), typed(L"x")}, {1, 1}, false, {}, {1}},
        {"OrderToTheEnd",
         unified,
         {keyword(1), typed(L"FIVE"), typed(L"3"), typed(L"1"), typed(L"2")},
         {0, 0},
         true},
        {"OrderWithWrongNumbers",
         unified,
         {keyword(1), typed(L"none"), typed(L"FIVE"), typed(L"9"), typed(L"0"), typed(L"9"), typed(L"4"),
          typed(L"9"), typed(L"1")},
         {0, 0},
         true},
        {"OrderReverse", unified, {keyword(1), typed(L"FIVE"), keyword(0)}, {0, 0}, true},
        {"OrderOfOne", unified, {keyword(1), typed(L"ONE")}, {0, 0}, false},
        {"Add", unified, {keyword(2), keyword(0), enter(), typed(L"FIVE")}, {0, 2}, false, {}, {2}},
        {"Remove", unified, {keyword(3), typed(L"FIVE")}, {0, 0}, false},
        {"RemoveSelected", unified, {keyword(3), typed(L"FIVE")}, {0, 0}, true, {1, 2}},
        {"Explode", unified, {keyword(4), typed(L"FIVE")}, {0, 0}, true},
        {"Rename",
         unified,
         {keyword(5), typed(L"FIVE"), keyword(0), enter(), enter(), typed(L"NEW")},
         {0, 0},
         true,
         {},
         {3}},
        {"RenameToATakenName", unified, {keyword(5), typed(L"FIVE"), typed(L"ONE")}, {2, 2}, false},
        {"SelectableYes", unified, {keyword(6), typed(L"FIVE"), keyword(0)}, {0, 0}, true},
        {"SelectableNo", unified, {keyword(6), typed(L"FIVE"), keyword(1)}, {0, 0}, false},
        {"CreateNew",
         unified,
         {keyword(7), keyword(0), enter(), typed(L"A B"), typed(L"NEW"), typed(L"text")},
         {0, 2},
         false,
         {},
         {2}},
        {"CreateByEnter", unified, {enter(), enter()}, {0, 0}, false},
        {"CreateKnownNo",
         unified,
         {keyword(7), typed(L"ONE"), keyword(0), typed(L"?"), keyword(1)},
         {0, 0},
         false},
        {"EditAdd", edit, {picked({}), keyword(0)}, {0, 2}, false},
        {"EditRemove", edit, {picked({}), keyword(1)}, {0, 0}, false},
        {"EditRename",
         edit,
         {picked({}), keyword(2), keyword(0), enter(), typed(L"NEW")},
         {0, 0},
         true,
         {},
         {3}},
        {"EditOtherReply", edit, {picked({}), keyword(7)}, {0, 0}, false},
        {"RemoveObject",
         maker<CCommandLineGroupRemoveObject>,
         {typed(L"none"), enter(), typed(L"FIVE")},
         {0, 0},
         true,
         {1},
         {},
         false},
        {"Create", maker<CCommandLineGroupCreate>, {}, {0, 2}, false, {1}},
        {"Ungroup", maker<CCommandLineGroupUngroup>, {}, {0, 2}, false, {1}},
        {"FromSelection", maker<CCommandLineGroupFromSelection>, {}, {0, 0}, true, {1}},
    };
}

} // namespace

class CommandExits : public GroupTest, public testing::WithParamInterface<Flow> {
protected:
    CommandExits() {
        addGroup(L"FIVE", pick({0, 1, 2, 3, 4}));
        addGroup(L"ONE", pick({5}));
        setPickStyle(0);
        selection.select(pick(GetParam().selected));
    }
    Verdict runWith(std::size_t answerCount) {
        for (std::size_t i = 0; i < answerCount; ++i) {
            ScriptedAnswer next = GetParam().answers[i];
            if (next.code == kInputPicked)
                next.objects = pick({0});
            io.answer(next);
        }
        const Ref<CGroupCmd> command = GetParam().make();
        const int result = command->Run(nullptr);
        return {result, command->getStatus()};
    }
    bool isTextInput(std::size_t prompt) const {
        const auto& list = GetParam().textInputs;
        return std::find(list.begin(), list.end(), prompt) != list.end();
    }
};

TEST_P(CommandExits, CancelAtEveryPromptEndsTheRunAndChangesNothing) {
    const Flow& flow = GetParam();
    const std::wstring before = summary();
    for (std::size_t prompt = 0; prompt < flow.answers.size(); ++prompt) {
        io.unanswered = 0;
        selection.select(pick(flow.selected));
        const Verdict verdict = runWith(prompt);
        EXPECT_TRUE(io.allTaken()) << flow.name << " at prompt " << prompt;
        EXPECT_EQ(io.unanswered, isTextInput(prompt) ? 2 : 1) << flow.name << " at prompt " << prompt;
        EXPECT_EQ(verdict.result, 1) << flow.name << " at prompt " << prompt;
        EXPECT_EQ(verdict.status, flow.cancelTouchesStatus ? 1 : 0) << flow.name << " at prompt " << prompt;
        selection.select(pick(flow.selected));
        EXPECT_EQ(summary(), before) << flow.name << " at prompt " << prompt;
    }
}

TEST_P(CommandExits, RunToTheEndHasItsResultItsStatusAndNoOpenTransaction) {
    const Flow& flow = GetParam();
    const Verdict verdict = runWith(flow.answers.size());
    EXPECT_TRUE(io.allTaken());
    EXPECT_EQ(io.unanswered, 0);
    EXPECT_EQ(verdict.result, flow.atEnd.result);
    EXPECT_EQ(verdict.status, flow.atEnd.status);
    EXPECT_EQ(database->numActiveTransactions(), 0);
}

TEST_P(CommandExits, UndoAndRedoRestoreTheDrawingTagForTag) {
    database->startUndoRecord();
    const std::string before = drawingText();
    runWith(GetParam().answers.size());
    const std::string after = drawingText();
    EXPECT_EQ(before != after, GetParam().changesDrawing);
    if (!GetParam().changesDrawing)
        return;
    EXPECT_TRUE(database->undo());
    EXPECT_TRUE(drawingText() == before);
    EXPECT_TRUE(database->redo());
    EXPECT_TRUE(drawingText() == after);
}

INSTANTIATE_TEST_SUITE_P(Flows, CommandExits, testing::ValuesIn(flows()),
                         [](const auto& flowInfo) { return flowInfo.param.name; });
