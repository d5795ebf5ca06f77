// The habits that the workbench's host wants of the dialogs: all that there are.
#pragma once

#include "host/dialog_habits.h"

namespace standin {

class DialogHabits : public CKWUnknownImpl<IDialogHabits> {
public:
    bool has(DialogHabit) override { return true; }
};

} // namespace standin
