// A check of a candidate drawing against the current one, offered by the module for its other commands.
#pragma once

#include "sdk/db/database.h"

// False, after telling the user, when a reference of the candidate file is in the way. Throws what reading
// the file throws.
bool checkXRefConflicts(const OdString& path, const OdDbDatabasePtr& database);
