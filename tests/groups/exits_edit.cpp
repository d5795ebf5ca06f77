// The flows of the group edit command.
#include "groups/command_line_edit.h"
#include "tests/groups/exit_flows.h"

namespace exits {

namespace {

constexpr auto edit = maker<CCommandLineGroupEdit>;

std::vector<ExitStep> editing(int number) {
    return {pickOne(kSelectGroup, 0), ask(kEditOption, keyword(number))};
}

std::vector<ExitStep> renaming(const std::vector<ExitStep>& names) {
    std::vector<ExitStep> steps = editing(2);
    steps.insert(steps.end(), names.begin(), names.end());
    return steps;
}

ExitStep goingOn(ExitStep step) {
    step.cancel = ExitStep::kGoesOn;
    return step;
}

std::vector<Flow> replyFlows() {
    return {
        {"EditAdd", edit, editing(0), {0, 2}, {kAdding}, nullptr, kFive},
        {"EditRemove", edit, editing(1), {0, 0}, {}, nullptr, kFive},
        {"EditOtherReply", edit, editing(7), {0, 0}, {}, nullptr, kFive},
        {"EditKeywordName", edit, {ask(kSelectGroup, keyword(1))}, {1, 1}},
        {"EditNothing", edit, {ask(kSelectGroup, enter())}, {1, 1}},
        {"EditOptionByEnter", edit, {pickOne(kSelectGroup, 0), ask(kEditOption, enter())}, {1, 1}},
    };
}

std::vector<Flow> renameFlows() {
    return {
        {"EditRename",
         edit,
         renaming({ask(kNewName, keyword(0)), list(), ask(kNewName, enter(), {kNoMatch}),
                   ask(kNewName, typed(L"NEW"))}),
         {0, 0},
         {},
         kRenamed},
        {"EditRenameToATakenName",
         edit,
         renaming({ask(kNewName, typed(L"ONE"))}),
         {0, 0},
         {},
         nullptr,
         kFive},
    };
}

std::vector<Flow> findingFlows() {
    return {
        {"EditByNameAfterAMiss",
         edit,
         {pickOne(kSelectGroup, 6), ask(kSelectGroup, keyword(0), {L"Object is not a member of a group."}),
          goingOn(ask(kName, typed(L"ONE"))), pickOne(kSelectGroup, 0), ask(kEditOption, keyword(2)),
          ask(kNewName, typed(L"NEW"))},
         {0, 0},
         {},
         kRenamed},
        {"EditByName",
         edit,
         {ask(kSelectGroup, keyword(0)), goingOn(ask(kName, typed(L"FIVE"))), ask(kSelectGroup, enter()),
          ask(kEditOption, keyword(2)), ask(kNewName, typed(L"NEW"))},
         {0, 0},
         {},
         kRenamed},
    };
}

std::vector<Flow> removalFlows() {
    const std::vector<ExitStep> removing{ask(kEditOption, keyword(1))};
    return {
        {"EditRemoveSelected", edit, removing, {0, 0}, {kRemovedOne}, kWithout1, {}, {1}, true},
        {"EditRemoveAll",
         edit,
         removing,
         {0, 0},
         {kRemovedAll},
         kEmptied,
         {},
         kFive,
         true,
         false,
         "Confirm",
         QMessageBox::Ok},
        {"EditRemoveAllCancelled",
         edit,
         removing,
         {0, 0},
         {},
         nullptr,
         {},
         kFive,
         true,
         false,
         "Confirm",
         QMessageBox::Cancel},
    };
}

} // namespace

std::vector<Flow> editFlows() {
    return joined({replyFlows(), renameFlows(), findingFlows(), removalFlows()});
}

} // namespace exits
