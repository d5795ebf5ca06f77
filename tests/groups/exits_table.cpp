#include "tests/groups/exits_table.h"

#include "groups/command_line_create.h"
#include "groups/command_line_edit.h"
#include "groups/command_line_from_selection.h"
#include "groups/command_line_remove_object.h"
#include "groups/command_line_ungroup.h"
#include "groups/command_line_unified.h"

namespace {

template <class Command> Ref<CGroupCmd> maker() {
    return Ref<CGroupCmd>::share(static_cast<CGroupCmd*>(new Command));
}
constexpr auto unified = maker<CCommandLineGroupUnified>;
constexpr auto edit = maker<CCommandLineGroupEdit>;
constexpr auto removeObject = maker<CCommandLineGroupRemoveObject>;
constexpr auto create = maker<CCommandLineGroupCreate>;
constexpr auto ungroup = maker<CCommandLineGroupUngroup>;

const wchar_t* const kOption =
    L"Enter a group option [?/Order/Add/Remove/Explode/REName/Selectable/Create] <Create>:";
const wchar_t* const kName = L"Enter a group name";
const wchar_t* const kListed = L"Enter group name(s) to list <*>:";
const wchar_t* const kNoMatch = L"No matching group names found.";
const wchar_t* const kFrom = L"Enter position number of the object to reorder (0 - 4):";
const wchar_t* const kTo = L"Enter new position number for the object (0 - 4):";
const wchar_t* const kToRename = L"Enter a group name to rename";
const wchar_t* const kNewName = L"Enter a new name for group";
const wchar_t* const kIsSelectable = L"This group is selectable, do you want to change it [Yes/No]?";
const wchar_t* const kDescription = L"Enter a group description:";
const wchar_t* const kRedefine = L"Redefine it?";
const wchar_t* const kExists = L"Group 'ONE' already exists.";
const wchar_t* const kSelectGroup = L"Select group or [?/Name]";
const wchar_t* const kEditOption = L"Enter a group option [Add/objects/Remove/REName]";
const wchar_t* const kAdding = L"Select objects to add to group...";
const wchar_t* const kRemovedAll = L"\n5 entities from current selection removed from group 'FIVE'";
const wchar_t* const kOnlyOne = L"group ONE: 5\n";
const wchar_t* const kRenamed = L"group NEW: 0 1 2 3 4\ngroup ONE: 5\n";
const wchar_t* const kEmptied = L"group FIVE:\ngroup ONE: 5\n";
const std::vector<int> kFive{0, 1, 2, 3, 4};

ExitStep ask(const wchar_t* prompt, const ScriptedAnswer& answer, const Texts& printedBefore = {}) {
    return {prompt, answer, printedBefore, {}};
}

ExitStep pickOne(const wchar_t* prompt, int line, const Texts& printedBefore = {}) {
    return {prompt, picked({}), printedBefore, {line}};
}

ExitStep goingOn(ExitStep step) {
    step.cancel = ExitStep::kGoesOn;
    return step;
}

ExitStep endingWith(const Verdict& verdict, ExitStep step) {
    step.afterCancel = verdict;
    return step;
}

// The text input of "?", for names that no group has.
ExitStep list() { return {nullptr, typed(L"Z*"), {kListed}, {}, {1, 1}, ExitStep::kGoesOnWithAMessage}; }

std::vector<ExitStep> option(int number, std::vector<ExitStep> rest = {}) {
    rest.insert(rest.begin(), ask(kOption, keyword(number)));
    return rest;
}

std::vector<Flow> orderFlows() {
    return {
        {"OrderToTheEnd",
         unified,
         option(1, {ask(kName, typed(L"FIVE")), ask(kFrom, typed(L"3")), ask(kTo, typed(L"1")),
                    ask(L"Enter number of objects to reorder (1 - 2):", typed(L"2"))}),
         {0, 0},
         {},
         L"group FIVE: 0 3 4 1 2\ngroup ONE: 5\n"},
        {"OrderWithWrongNumbers",
         unified,
         option(1, {ask(kName, typed(L"none")), ask(kName, typed(L"FIVE"), {L"Group 'none' is not defined."}),
                    ask(kFrom, typed(L"9")), ask(kFrom, typed(L"0"), {L"Requires a value of 0 to 4."}),
                    ask(kTo, typed(L"9")), ask(kTo, typed(L"4"), {L"Requires a value of 0 to 4."}),
                    ask(L"Enter number of objects to reorder (1 - 1):", typed(L"9")),
                    ask(L"Enter number of objects to reorder (1 - 1):", typed(L"1"),
                        {L"Requires a value of 0 to 1."})}),
         {0, 0},
         {},
         L"group FIVE: 1 2 3 4 0\ngroup ONE: 5\n"},
        {"OrderReverse",
         unified,
         option(1, {ask(kName, typed(L"FIVE")), ask(kFrom, keyword(0))}),
         {0, 0},
         {L"Object order has been reversed."},
         L"group FIVE: 4 3 2 1 0\ngroup ONE: 5\n"},
        {"OrderOfOne",
         unified,
         option(1, {ask(kName, typed(L"ONE"))}),
         {0, 0},
         {L"Less than 2 members, nothing to order."}},
    };
}

std::vector<Flow> memberFlows() {
    const auto named = [](int number) { return option(number, {ask(kName, typed(L"FIVE"))}); };
    const Texts two{L"\n2 entities from current selection removed from group 'FIVE'"};
    return {
        {"UnifiedList", unified, option(0, {list(), ask(kOption, typed(L"x"), {kNoMatch})}), {1, 1}},
        {"Add",
         unified,
         option(2, {ask(kName, keyword(0)), list(), ask(kName, typed(L"FIVE"), {kNoMatch})}),
         {0, 2},
         {kAdding},
         nullptr,
         kFive},
        {"Remove", unified, named(3), {0, 0}, {}, nullptr, kFive},
        {"RemoveSelected", unified, named(3), {0, 0}, two, L"group FIVE: 0 3 4\ngroup ONE: 5\n", {}, {1, 2}},
        {"RemoveAll",
         unified,
         named(3),
         {0, 0},
         {kRemovedAll},
         kEmptied,
         {},
         kFive,
         false,
         false,
         "Warning",
         QMessageBox::Ok},
        {"RemoveAllCancelled",
         unified,
         named(3),
         {1, 1},
         {},
         nullptr,
         {},
         kFive,
         false,
         false,
         "Warning",
         QMessageBox::Cancel},
        {"Explode", unified, named(4), {0, 0}, {}, kOnlyOne},
    };
}

std::vector<Flow> settingFlows() {
    const auto selectable = [](const ScriptedAnswer& answer) {
        return option(6, {ask(kName, typed(L"FIVE")), ask(kIsSelectable, answer)});
    };
    const wchar_t* const toggled = L"group FIVE: 0 1 2 3 4, not selectable\ngroup ONE: 5\n";
    return {
        {"Rename",
         unified,
         option(5, {ask(kToRename, typed(L"FIVE")), ask(kNewName, keyword(0)), list(),
                    ask(kNewName, enter(), {kNoMatch}), ask(kNewName, typed(L"NEW"))}),
         {0, 0},
         {},
         kRenamed},
        {"RenameToATakenName",
         unified,
         option(5, {ask(kToRename, typed(L"FIVE")), ask(kNewName, typed(L"ONE"))}),
         {2, 2},
         {L"Group 'ONE' already exists. Operation canceled"}},
        {"SelectableYes", unified, selectable(keyword(0)), {0, 0}, {}, toggled},
        {"SelectableByEnter", unified, selectable(enter()), {0, 0}, {}, toggled},
        {"SelectableNo", unified, selectable(keyword(1)), {0, 0}},
    };
}

std::vector<Flow> createFlows() {
    return {
        {"CreateNew",
         unified,
         option(7, {ask(kName, keyword(0)), list(), ask(kName, typed(L"A B"), {kNoMatch}),
                    ask(kName, typed(L"NEW"), {L"Group name is invalid.", L"\n"}),
                    ask(kDescription, typed(L"text"))}),
         {0, 2}},
        {"CreateWithAKeywordForTheDescription",
         unified,
         option(7, {ask(kName, typed(L"NEW")), ask(kDescription, keyword(0))}),
         {1, 1}},
        {"CreateByEnter", unified, {ask(kOption, enter()), ask(kName, enter())}, {0, 0}},
        {"CreateKnownNo",
         unified,
         option(7, {ask(kName, typed(L"ONE")), ask(kRedefine, keyword(0), {kExists}),
                    ask(kRedefine, typed(L"?")), ask(kRedefine, keyword(1), {L"Yes or No, please."})}),
         {0, 0}},
        {"CreateKnownByEnter",
         unified,
         option(7, {ask(kName, typed(L"ONE")), ask(kRedefine, enter(), {kExists})}),
         {0, 0}},
        {"Create", create, {}, {0, 2}, {}, nullptr, {}, {1}},
        {"Ungroup", ungroup, {}, {0, 2}, {}, nullptr, {}, {1}},
        {"FromSelection",
         maker<CCommandLineGroupFromSelection>,
         {},
         {0, 0},
         {L"\nA group 'Group1' was created"},
         L"group FIVE: 0 1 2 3 4\ngroup ONE: 5\ngroup Group1: 1\n",
         {},
         {1}},
        {"FromSelectionOfNothing",
         maker<CCommandLineGroupFromSelection>,
         {},
         {0, 0},
         {L"\nA group 'Group1' was created"}},
    };
}

std::vector<Flow> editFlows() {
    const auto editing = [](int number) {
        return std::vector<ExitStep>{pickOne(kSelectGroup, 0), ask(kEditOption, keyword(number))};
    };
    const auto renaming = [&](std::vector<ExitStep> names) {
        const auto first = editing(2);
        names.insert(names.begin(), first.begin(), first.end());
        return names;
    };
    return {
        {"EditAdd", edit, editing(0), {0, 2}, {kAdding}, nullptr, kFive},
        {"EditRemove", edit, editing(1), {0, 0}, {}, nullptr, kFive},
        {"EditOtherReply", edit, editing(7), {0, 0}, {}, nullptr, kFive},
        {"EditKeywordName", edit, {ask(kSelectGroup, keyword(1))}, {1, 1}},
        {"EditNothing", edit, {ask(kSelectGroup, enter())}, {1, 1}},
        {"EditOptionByEnter", edit, {pickOne(kSelectGroup, 0), ask(kEditOption, enter())}, {1, 1}},
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
    const std::vector<ExitStep> named{
        endingWith({1, 0}, ask(L"Enter group name", typed(L"none"))),
        endingWith({1, 0}, ask(L"Enter group name", enter(), {L"Not found", L"\n"})),
        endingWith({1, 0}, ask(L"Enter group name", typed(L"FIVE")))};
    const std::vector<ExitStep> removing{ask(kEditOption, keyword(1))};
    const Texts one{L"\n1 entities from current selection removed from group 'FIVE'"};
    const wchar_t* const without1 = L"group FIVE: 0 2 3 4\ngroup ONE: 5\n";
    return {
        {"RemoveObject", removeObject, named, {0, 0}, {}, nullptr, kFive},
        {"RemoveObjectSelected", removeObject, named, {0, 0}, one, without1, {}, {1}},
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
        {"EditRemoveSelected", edit, removing, {0, 0}, one, without1, {}, {1}, true},
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

// Flows of a host that has a selection step.
std::vector<Flow> stepFlows() {
    const wchar_t* const kToAdd = L"Select objects [5]";
    const wchar_t* const kObjects = L"Select objects";
    const wchar_t* const kObjectsOr = L"Select objects or [Name/Description]";
    const wchar_t* const added = L"group FIVE: 0 1 2 3 4 6\ngroup ONE: 5\n";
    const wchar_t* const removed = L"group FIVE: 1 2 3 4\ngroup ONE: 5\n";
    const wchar_t* const made = L"group FIVE: 0 1 2 3 4\ngroup ONE: 5\ngroup NEW: 6, \"text\"\n";
    const Texts created{L"\nA group 'NEW' was created"};
    std::vector<Flow> flows{
        {"AddWithStep",
         unified,
         option(2, {ask(kName, typed(L"FIVE")), pickOne(kToAdd, 6, {kAdding})}),
         {0, 0},
         {},
         added},
        {"RemoveWithStep",
         unified,
         option(3, {ask(kName, typed(L"FIVE")), endingWith({0, 0}, pickOne(kObjects, 0))}),
         {0, 0},
         {},
         removed},
        {"CreateOptionWithStep",
         unified,
         option(7, {ask(kName, typed(L"NEW")), ask(kDescription, typed(L"text")), pickOne(kObjects, 6)}),
         {0, 0},
         created,
         made},
        {"EditAddWithStep",
         edit,
         {pickOne(kSelectGroup, 0), ask(kEditOption, keyword(0)), pickOne(kToAdd, 6, {kAdding})},
         {0, 0},
         {},
         added},
        {"EditRemoveWithStep",
         edit,
         {pickOne(kSelectGroup, 0), ask(kEditOption, keyword(1)), endingWith({0, 0}, pickOne(kObjects, 0))},
         {0, 0},
         {},
         removed},
        {"RemoveObjectWithStep",
         removeObject,
         {endingWith({1, 0}, ask(L"Enter group name", typed(L"FIVE"))),
          endingWith({0, 0}, pickOne(kObjects, 0))},
         {0, 0},
         {},
         removed},
        {"CreateWithStep",
         create,
         {ask(kObjectsOr, keyword(0)), ask(kName, keyword(0)), list(), ask(kName, typed(L"NEW"), {kNoMatch}),
          ask(kObjectsOr, keyword(1)), ask(kDescription, typed(L"text")), pickOne(kObjectsOr, 6)},
         {0, 0},
         created,
         made},
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
    for (Flow& flow : flows)
        flow.hasStep = true;
    return flows;
}

} // namespace

std::vector<Flow> flowsOfGroupCommands() {
    std::vector<Flow> all;
    for (const auto& flows : {orderFlows(), memberFlows(), settingFlows(), createFlows(), editFlows(),
                              removalFlows(), stepFlows()})
        all.insert(all.end(), flows.begin(), flows.end());
    return all;
}
