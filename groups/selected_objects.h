// What the user has selected, as the group commands ask for it.
#pragma once

#include "host/selection.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"

OdDbObjectIdArray idsOf(const hostSelectionSetPtr& set);    // none for a null set
OdDbObjectIdArray selectedIds(HostEditorSelection* editor); // of the current selection; none for null
bool isMember(const OdDbGroupPtr& group, OdDbObjectId id);
// The selected entities that are members, in the order of the selection.
OdDbObjectIdArray selectedMembers(HostEditorSelection* editor, const OdDbGroupPtr& group);
// The group that holds the object: the last one in the dictionary's order when there are several. It is open
// for write, `name` becomes its key. Null, with `name` untouched, when there is none.
OdDbGroupPtr groupOfMember(const OdDbDictionaryPtr& dictionary, OdDbObjectId member, OdString& name);
// True when the current selection is exactly the members of exactly one group. Outside of a popup menu it is
// not looked at, and the answer is true.
bool selectionIsOneGroup();
