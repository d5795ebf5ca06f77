// The one routine that makes a group.
#pragma once

#include "groups/group_data.h"
#include "host/command_io.h"
#include "host/selection.h"
#include "sdk/db/database.h"

// Makes the group that `data` describes from the current selection and puts its name into `data`. 0 when it
// is made and when nothing is selected; otherwise the code of the OdError that stopped it, which is written
// to the debug log. A host's selection step is asked when nothing is selected; when that gives nothing
// either, `createOk` is cleared.
int createGroupFromData(HostEditorSelection* editor, OdDbObjectId dictionaryId, GroupData& data);

// One transaction around createGroupFromData. 0 with a message that names the group, also when nothing was
// selected and no group exists; 1 after a failure and without `createOk`, and everything is taken back.
int createInTransaction(const OdDbDatabasePtr& database, HostCommandIO& io, HostEditorSelection* editor,
                        GroupData& data);
