// Highlighting of the members of a group.
#pragma once

#include "groups/group_data.h"

// Throws for an id that can't be opened or is no entity. The views are not redrawn.
void setObjectsHighlight(const OdDbObjectIdArray& ids, bool on);
// All members, shown as chosen; gives their ids.
OdDbObjectIdArray highlightMembers(const OdDbGroupPtr& group);

// Takes the highlight off `data.memberIds` when it is on. True when something changed.
bool dropHighlight(GroupData& data);
// Highlights the members of `data.group` when `data.highlight` asks for it and the group is accessible; an
// empty group is an error. True when something changed.
bool raiseHighlight(GroupData& data);
