// The list of groups that "?" prints.
#pragma once

#include "host/command_io.h"
#include "sdk/db/database.h"

// Asks for a pattern of names and lists the groups that match it. kInputPicked, or kInputCancelled when the
// pattern could not be read.
int HelpGroupName(HostCommandIO& io, const OdDbDatabasePtr& database);
