// How a host may want the dialogs of the module to behave where their settled behaviour leaves people stuck.
// Reached from theOnlyIApp like every service; without it every dialog behaves as settled.
#pragma once

#include "host/app.h"

enum class DialogHabit {
    // Options: the focus starts in the tree and stays where it is when the current row changes. Keys walk the
    // tree and go into the editors of its rows and back.
    FocusStaysInOptions,
    // Options: the search box takes wildcards as typed, searches after a pause in typing, opens branches that
    // match, and finds keys and search words too. Wants FocusStaysInOptions beside it.
    SearchWhileTyping,
    // Attaching: angles in the dialog are in the unit of the drawing, as the prompts read them.
    AnglesAsAtPrompts,
    // Attaching: a file that can't be attached is told of before the dialog, and left out; each failure is
    // told in a box with the file and the reason.
    BadFilesRefusedAtOnce,
    // Attaching: the unit of a single file is shown.
    UnitOfFileShown,
    // Attaching: several files are placed one after the other on screen, or beside each other at one point.
    FilesPlacedApart,
    // Every dialog: buttons, labels and tabs have letters with Alt, unique within the window.
    Mnemonics,
    // Object groups: five rows and whole names in sight, tables in reach of the keys, a chosen row after
    // every new fill, the reason of a refused name, and a filter for many groups.
    GuidedGroups,
    // Options: the tool tips of rows have the colours of the theme, and can be read in each.
    ToolTipsInThemeColours,
    // Drawing properties: all tabs and columns in sight, keys for tabs and for the rows of the tables.
    PropertiesByKeyboard,
};

class IDialogHabits : public IKWUnknown {
public:
    virtual bool has(DialogHabit habit) = 0;
};

inline bool hasHabit(DialogHabit habit) {
    const Ref<IDialogHabits> habits = appService<IDialogHabits>();
    return habits && habits->has(habit);
}
