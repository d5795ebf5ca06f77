// "Find Name": from an object to the names of the groups that hold it.
#pragma once

#include "host/selection.h"
#include "sdk/db/object_id.h"

// Asks for a member of a group and tells the names of its groups. 0.
int pickGroupMember(HostEditorSelection* editor, OdDbObjectId dictionaryId);
