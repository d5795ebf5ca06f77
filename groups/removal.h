// Removing the selected members from a group, as three commands do it.
#pragma once

#include "groups/group_data.h"
#include "sdk/db/database.h"

#include <QMessageBox>

class HostEditorSelection;

// Asks before a group of more than one member loses all of them, and only Ok is consent; otherwise true
// without a question.
bool mayRemove(const OdDbGroupPtr& group, std::size_t count, const OdString& name, const QString& title,
               QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);

// One transaction around the removal of `ids`, all at once.
void removeInTransaction(const OdDbDatabasePtr& database, const OdDbGroupPtr& group,
                         const OdDbObjectIdArray& ids);
// One transaction around removeObjectsPrompt, taken back when that fails; gives its result.
int removeByPrompt(const OdDbDatabasePtr& database, HostEditorSelection* editor, GroupData& data,
                   bool alreadyHighlighted);
