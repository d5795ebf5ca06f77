// What the user has set for the former versions of drawing files.
#pragma once

#include "host/param.h"

namespace workbench {

struct HistorySettings {
    bool on = true;
    bool asksReason = false;
    int maximum = 5; // of versions of one drawing
};

// Section "FileHistory": "FILEHISTORY" (0 is off), "FILEHISTORYREASON" (1 asks), "FILEHISTORYMAX". What is
// missing has its default; a null profile is empty.
HistorySettings readHistorySettings(IParam* profile);

} // namespace workbench
