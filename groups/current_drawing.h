// The way from a group command to the current document and its drawing.
#pragma once

#include "host/documents.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"

#include "sdk/db/database.h"

// The console of the current document, or the document manager's own one.
HostCommandIO* currentIO();
HostEditorSelection* currentEditor(); // null without a document
OdDbDatabasePtr currentDatabase();    // null without a document
// The database that the Qt application's console names; null when it names none.
OdDbDatabasePtr consoleDatabase();

// The group dictionary, made when it is missing; null for a null database.
OdDbDictionaryPtr openGroupDictionary(const OdDbDatabasePtr& database, OdDb::OpenMode mode = OdDb::kForRead);
// A group by its name; null when the dictionary has no such entry.
OdDbGroupPtr groupByName(const OdDbDictionaryPtr& dictionary, const OdString& name, OdDb::OpenMode mode);
