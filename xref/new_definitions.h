// The definitions that the running attach command has made itself. They are not "already there" when the
// same command comes to attach them, and a cancelled placing erases them.
#pragma once

#include "sdk/db/object_id.h"

void noteNewDefinition(OdDbObjectId id);
bool isNewDefinition(OdDbObjectId id);
// Erases those that nothing in the drawing refers to: another name was chosen, or the placing given up.
void eraseUnusedDefinitions();

// The list is empty at both ends of its life: ids must not outlive their drawing.
class NewDefinitionsScope {
public:
    NewDefinitionsScope();
    ~NewDefinitionsScope();
    NewDefinitionsScope(const NewDefinitionsScope&) = delete;
    NewDefinitionsScope& operator=(const NewDefinitionsScope&) = delete;
};
