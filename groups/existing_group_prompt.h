// The prompt for the name of a group that exists.
#pragma once

#include "host/command_io.h"
#include "sdk/db/database.h"

#include <QString>

// kInputPicked with the name of an existing group, or kInputCancelled for Escape and for an empty reply. "?"
// lists the groups. An empty `prompt` stands for the usual one.
int askExistingGroupName(HostCommandIO& io, const OdDbDatabasePtr& database, OdString& name,
                         const QString& prompt = {});
