// The flows of the group commands prompt by prompt: what is asked, what is printed before it, the answer, and
// what a cancel there leads to.
#pragma once

#include "groups/group_cmd.h"
#include "tests/support/scripted_io.h"

#include <QMessageBox>
#include <ostream>

struct Verdict {
    int result;
    int status;
};

using Texts = std::vector<const wchar_t*>;

struct ExitStep {
    enum Cancel { kEnds, kGoesOn, kGoesOnWithAMessage }; // what a cancel here does to the run
    const wchar_t* prompt;                               // null for the text input of the list of groups
    ScriptedAnswer answer;
    Texts printedBefore; // since the prompt before
    std::vector<int> picks;
    Verdict afterCancel{1, 1};
    Cancel cancel = kEnds;
};

struct Flow {
    const char* name;
    Ref<CGroupCmd> (*make)();
    std::vector<ExitStep> steps;
    Verdict atEnd;
    Texts printedAtEnd = {};
    const wchar_t* groupsAtEnd = nullptr; // null: as they were
    std::vector<int> highlightedAtEnd = {};
    std::vector<int> selected = {};
    bool keepsSelection = false;    // the host takes no new selection
    bool hasStep = false;           // the host has a selection step
    const char* boxTitle = nullptr; // of the question at the end
    QMessageBox::StandardButton boxButton = QMessageBox::NoButton;
};

inline void PrintTo(const Flow& flow, std::ostream* out) { *out << flow.name; }

// For a drawing with the lines 0 to 6 and the groups FIVE, of the lines 0 to 4, and ONE, of line 5.
std::vector<Flow> flowsOfGroupCommands();
