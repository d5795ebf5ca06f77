// The words in which the flows of the group commands are written down, and the prompts that several of them
// ask.
#pragma once

#include "tests/groups/exits_table.h"

namespace exits {

template <class Command> Ref<CGroupCmd> maker() {
    return Ref<CGroupCmd>::share(static_cast<CGroupCmd*>(new Command));
}

const wchar_t* const kOption =
    L"Enter a group option [?/Order/Add/Remove/Explode/REName/Selectable/Create] <Create>:";
const wchar_t* const kName = L"Enter a group name";
const wchar_t* const kListed = L"Enter group name(s) to list <*>:";
const wchar_t* const kNoMatch = L"No matching group names found.";
const wchar_t* const kNewName = L"Enter a new name for group";
const wchar_t* const kDescription = L"Enter a group description:";
const wchar_t* const kSelectGroup = L"Select group or [?/Name]";
const wchar_t* const kEditOption = L"Enter a group option [Add/objects/Remove/REName]";
const wchar_t* const kAdding = L"Select objects to add to group...";
const wchar_t* const kRemovedAll = L"\n5 entities from current selection removed from group 'FIVE'";
const wchar_t* const kRemovedOne = L"\n1 entities from current selection removed from group 'FIVE'";
const wchar_t* const kWithout1 = L"group FIVE: 0 2 3 4\ngroup ONE: 5\n";
const wchar_t* const kOnlyOne = L"group ONE: 5\n";
const wchar_t* const kRenamed = L"group NEW: 0 1 2 3 4\ngroup ONE: 5\n";
const wchar_t* const kEmptied = L"group FIVE:\ngroup ONE: 5\n";
const std::vector<int> kFive{0, 1, 2, 3, 4};

inline ExitStep ask(const wchar_t* prompt, const ScriptedAnswer& answer, const Texts& printedBefore = {}) {
    return {prompt, answer, printedBefore, {}};
}

inline ExitStep pickOne(const wchar_t* prompt, int line, const Texts& printedBefore = {}) {
    return {prompt, picked({}), printedBefore, {line}};
}

inline ExitStep endingWith(const Verdict& verdict, ExitStep step) {
    step.afterCancel = verdict;
    return step;
}

// The text input of "?", for names that no group has.
inline ExitStep list() {
    return {nullptr, typed(L"Z*"), {kListed}, {}, {1, 1}, ExitStep::kGoesOnWithAMessage};
}

// Option `number` of the unified command.
inline std::vector<ExitStep> option(int number, std::vector<ExitStep> rest = {}) {
    rest.insert(rest.begin(), ask(kOption, keyword(number)));
    return rest;
}

inline std::vector<Flow> joined(const std::vector<std::vector<Flow>>& parts) {
    std::vector<Flow> all;
    for (const auto& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

std::vector<Flow> unifiedFlows(); // every option of the unified command
std::vector<Flow> smallFlows();   // create, ungroup, from selection and remove object
std::vector<Flow> editFlows();
std::vector<Flow> stepFlows(); // of all of them, where the host has a selection step

} // namespace exits
