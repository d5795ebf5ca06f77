// The record that the group commands fill and the dialogs edit; one is made for each operation.
#pragma once

#include "sdk/db/group.h"

enum GroupDialogError { kGroupNameInvalid = 3018, kGroupNameDuplicate = 3019, kGroupEmpty = 3047 };

struct GroupData {
    OdDbGroupPtr group; // that the operation works on
    OdString name;
    OdString description;
    bool selectable = true;      // of a new group
    bool unnamed = false;        // a new group is to be anonymous
    bool includeUnnamed = false; // list anonymous groups
    bool createOk = true;        // tested after a creation; only a host's selection step clears it
    int currentRow = -1;         // of `group` in the dialog's table
    int errorCode = 0;           // the last GroupDialogError
    bool highlight = false;      // the dialog's Highlight check box
    bool highlighted = false;    // `memberIds` are highlighted right now
    OdDbObjectIdArray memberIds; // that were highlighted
};
