// The flows of the unified group command, option by option.
#include "groups/command_line_unified.h"
#include "tests/groups/exit_flows.h"

namespace exits {

namespace {

constexpr auto unified = maker<CCommandLineGroupUnified>;

const wchar_t* const kFrom = L"Enter position number of the object to reorder (0 - 4):";
const wchar_t* const kTo = L"Enter new position number for the object (0 - 4):";
const wchar_t* const kToRename = L"Enter a group name to rename";
const wchar_t* const kIsSelectable = L"This group is selectable, do you want to change it [Yes/No]?";
const wchar_t* const kRedefine = L"Redefine it?";
const wchar_t* const kExists = L"Group 'ONE' already exists.";

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

std::vector<ExitStep> namedGroup(int number) { return option(number, {ask(kName, typed(L"FIVE"))}); }

std::vector<Flow> memberFlows() {
    return {
        {"UnifiedList", unified, option(0, {list(), ask(kOption, typed(L"x"), {kNoMatch})}), {1, 1}},
        {"Add",
         unified,
         option(2, {ask(kName, keyword(0)), list(), ask(kName, typed(L"FIVE"), {kNoMatch})}),
         {0, 2},
         {kAdding},
         nullptr,
         kFive},
        {"Explode", unified, namedGroup(4), {0, 0}, {}, kOnlyOne},
    };
}

std::vector<Flow> removeFlows() {
    const std::vector<ExitStep> named = namedGroup(3);
    const Texts two{L"\n2 entities from current selection removed from group 'FIVE'"};
    return {
        {"Remove", unified, named, {0, 0}, {}, nullptr, kFive},
        {"RemoveSelected", unified, named, {0, 0}, two, L"group FIVE: 0 3 4\ngroup ONE: 5\n", {}, {1, 2}},
        {"RemoveAll",
         unified,
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
        {"RemoveAllCancelled",
         unified,
         named,
         {1, 1},
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
    };
}

} // namespace

std::vector<Flow> unifiedFlows() {
    return joined({orderFlows(), memberFlows(), removeFlows(), settingFlows(), createFlows()});
}

} // namespace exits
