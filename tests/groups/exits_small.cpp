// The flows of the group commands that ask for one thing at most.
#include "groups/command_line_create.h"
#include "groups/command_line_from_selection.h"
#include "groups/command_line_remove_object.h"
#include "groups/command_line_ungroup.h"
#include "tests/groups/exit_flows.h"

namespace exits {

namespace {

constexpr auto removeObject = maker<CCommandLineGroupRemoveObject>;
constexpr auto fromSelection = maker<CCommandLineGroupFromSelection>;

std::vector<Flow> makingFlows() {
    return {
        {"Create", maker<CCommandLineGroupCreate>, {}, {0, 2}, {}, nullptr, {}, {1}},
        {"Ungroup", maker<CCommandLineGroupUngroup>, {}, {0, 2}, {}, nullptr, {}, {1}},
        {"FromSelection",
         fromSelection,
         {},
         {0, 0},
         {L"\nA group 'Group1' was created"},
         L"group FIVE: 0 1 2 3 4\ngroup ONE: 5\ngroup Group1: 1\n",
         {},
         {1}},
        {"FromSelectionOfNothing", fromSelection, {}, {0, 0}, {L"\nA group 'Group1' was created"}},
    };
}

std::vector<Flow> removeObjectFlows() {
    const std::vector<ExitStep> named{
        endingWith({1, 0}, ask(L"Enter group name", typed(L"none"))),
        endingWith({1, 0}, ask(L"Enter group name", enter(), {L"Not found", L"\n"})),
        endingWith({1, 0}, ask(L"Enter group name", typed(L"FIVE")))};
    return {
        {"RemoveObject", removeObject, named, {0, 0}, {}, nullptr, kFive},
        {"RemoveObjectSelected", removeObject, named, {0, 0}, {kRemovedOne}, kWithout1, {}, {1}},
        {"RemoveObjectAll",
         removeObject,
         named,
         {0, 0},
         {kRemovedAll},
         kEmptied,
         {},
         kFive,
         false,
         false,
         "Warning",
         QMessageBox::Ok},
        {"RemoveObjectAllCancelled",
         removeObject,
         named,
         {1, 0},
         {},
         nullptr,
         {},
         kFive,
         false,
         false,
         "Warning",
         QMessageBox::Cancel},
    };
}

} // namespace

std::vector<Flow> smallFlows() { return joined({makingFlows(), removeObjectFlows()}); }

} // namespace exits
