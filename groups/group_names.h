// Names of groups: the rule that they follow, and the names that are made for groups that have none.
#pragma once

#include "sdk/db/database.h"
#include "sdk/db/dictionary.h"

// Blanks around the name do not count: 1 to 31 letters, digits, '$', '-' or '_'. Letters are those of the
// process's locale.
bool isValidGroupName(const OdString& name);

// The lowest number from 1 whose automatic name is not in the dictionary.
int nextGroupNumber(const OdDbDictionaryPtr& dictionary);
OdString nextGroupName(const OdDbDatabasePtr& database);
