// Texts that more than one group command shows, and the two ways in which they print them.
#pragma once

#include "host/command_io.h"

#include <QString>

namespace group_messages {

QString enterGroupName();      // "Enter a group name"
QString enterNewName();        // "Enter a new name for group"
QString enterDescription();    // "Enter a group description:"
QString enterGroupOption();    // "Enter a group option [%1]"
QString selectGroup();         // "Select group or [?/Name]"
QString selectGroupKeywords(); // "? Name _ ? Name"
QString selectObjects();       // "Select objects"
QString selectObjectsIn();     // "Select objects [%1]"
QString selectObjectsToAdd();  // "Select objects to add to group..."
QString endKeywords();         // "End *E _ End *E"
QString groupExists(const OdString& name);
QString invalidName(); // "Group name is invalid."
QString groupCreated(const OdString& name);
QString notAMember(); // "Object is not a member of a group."
QString warning();    // "Warning"
QString removingAll(const OdString& name);
QString removed(int count, const OdString& name);

} // namespace group_messages

void printLine(HostCommandIO& io, const QString& text);
// The finished text stands as it is, percent signs included.
void printFormatted(HostCommandIO& io, const QString& text);
// getInput with the texts of Qt; a null `keywords` offers none.
int askInput(HostCommandIO& io, const QString& prompt, const QString& keywords, int flags, OdString* result);
