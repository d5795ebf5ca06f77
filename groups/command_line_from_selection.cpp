#include "groups/command_line_from_selection.h"

#include "groups/create_group.h"
#include "groups/current_drawing.h"
#include "groups/group_names.h"

// With nothing selected the message names a group that does not exist: that is meant.
int CCommandLineGroupFromSelection::Run(IParam*) {
    const OdDbDatabasePtr database = currentDatabase();
    GroupData data;
    data.name = nextGroupName(database);
    return createInTransaction(database, *currentIO(), currentEditor(), data);
}
