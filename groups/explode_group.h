// Taking a group apart.
#pragma once

#include "sdk/db/database.h"

// Takes the group out of the dictionary, empties it and erases it. Throws when there is no such group.
void explodeGroup(const OdDbDatabasePtr& database, const OdString& name);
