// The flows of the group commands of a host that has a selection step.
#include "groups/command_line_create.h"
#include "groups/command_line_edit.h"
#include "groups/command_line_remove_object.h"
#include "groups/command_line_ungroup.h"
#include "groups/command_line_unified.h"
#include "tests/groups/exit_flows.h"

namespace exits {

namespace {

constexpr auto unified = maker<CCommandLineGroupUnified>;
constexpr auto edit = maker<CCommandLineGroupEdit>;
constexpr auto removeObject = maker<CCommandLineGroupRemoveObject>;
constexpr auto create = maker<CCommandLineGroupCreate>;
constexpr auto ungroup = maker<CCommandLineGroupUngroup>;

const wchar_t* const kToAdd = L"Select objects [5]";
const wchar_t* const kObjects = L"Select objects";
const wchar_t* const kObjectsOr = L"Select objects or [Name/Description]";
const wchar_t* const kAdded = L"group FIVE: 0 1 2 3 4 6\ngroup ONE: 5\n";
const wchar_t* const kRemoved = L"group FIVE: 1 2 3 4\ngroup ONE: 5\n";
const wchar_t* const kMade = L"group FIVE: 0 1 2 3 4\ngroup ONE: 5\ngroup NEW: 6, \"text\"\n";
const wchar_t* const kCreated = L"\nA group 'NEW' was created";

std::vector<Flow> optionFlows() {
    return {
        {"AddWithStep",
         unified,
         option(2, {ask(kName, typed(L"FIVE")), pickOne(kToAdd, 6, {kAdding})}),
         {0, 0},
         {},
         kAdded},
        {"RemoveWithStep",
         unified,
         option(3, {ask(kName, typed(L"FIVE")), endingWith({0, 0}, pickOne(kObjects, 0))}),
         {0, 0},
         {},
         kRemoved},
        {"CreateOptionWithStep",
         unified,
         option(7, {ask(kName, typed(L"NEW")), ask(kDescription, typed(L"text")), pickOne(kObjects, 6)}),
         {0, 0},
         {kCreated},
         kMade},
    };
}

std::vector<Flow> memberFlows() {
    return {
        {"EditAddWithStep",
         edit,
         {pickOne(kSelectGroup, 0), ask(kEditOption, keyword(0)), pickOne(kToAdd, 6, {kAdding})},
         {0, 0},
         {},
         kAdded},
        {"EditRemoveWithStep",
         edit,
         {pickOne(kSelectGroup, 0), ask(kEditOption, keyword(1)), endingWith({0, 0}, pickOne(kObjects, 0))},
         {0, 0},
         {},
         kRemoved},
        {"RemoveObjectWithStep",
         removeObject,
         {endingWith({1, 0}, ask(L"Enter group name", typed(L"FIVE"))),
          endingWith({0, 0}, pickOne(kObjects, 0))},
         {0, 0},
         {},
         kRemoved},
    };
}

std::vector<Flow> createFlows() {
    return {
        {"CreateWithStep",
         create,
         {ask(kObjectsOr, keyword(0)), ask(kName, keyword(0)), list(), ask(kName, typed(L"NEW"), {kNoMatch}),
          ask(kObjectsOr, keyword(1)), ask(kDescription, typed(L"text")), pickOne(kObjectsOr, 6)},
         {0, 0},
         {kCreated},
         kMade},
    };
}

std::vector<Flow> ungroupFlows() {
    return {
        {"UngroupWithStep",
         ungroup,
         {ask(kSelectGroup, keyword(0)), list(), pickOne(kSelectGroup, 0, {kNoMatch})},
         {0, 0},
         {},
         kOnlyOne},
        {"UngroupByNameWithStep",
         ungroup,
         {ask(kSelectGroup, keyword(1)), ask(kName, typed(L"FIVE"))},
         {0, 0},
         {},
         kOnlyOne},
    };
}

} // namespace

std::vector<Flow> stepFlows() {
    std::vector<Flow> flows = joined({optionFlows(), memberFlows(), createFlows(), ungroupFlows()});
    for (Flow& flow : flows)
        flow.hasStep = true;
    return flows;
}

} // namespace exits
