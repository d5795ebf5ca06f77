// The prompts of the group commands that only a host can turn into a selection.
#pragma once

#include "groups/group_data.h"
#include "host/command_io.h"
#include "host/group_selection_step.h"
#include "host/selection.h"
#include "sdk/db/database.h"

#include <QString>

// Without an editor, or when the host has no selection step, a request is dropped: kNoSelectionStep.
enum { kNoSelectionStep = -100 };
constexpr int kCannotAsk = 314; // without an editor or for a group that is not accessible
bool hasSelectionStep();

GroupSelectionRequest selectionRequest(const OdDbDatabasePtr& database, const QString& prompt,
                                       const QString& keywords = {});
// The host's result with the objects that it gave in `ids`, or kNoSelectionStep.
int askForObjects(HostEditorSelection* editor, const GroupSelectionRequest& request, OdDbObjectIdArray& ids);
// The same for a prompt whose one keyword, End, ends the selection like an empty answer does.
int askForObjectsUntilEnd(HostEditorSelection* editor, GroupSelectionRequest request, OdDbObjectIdArray& ids);
// Makes `ids` the current selection.
void selectIds(HostEditorSelection& editor, const OdDbDatabasePtr& database, const OdDbObjectIdArray& ids);
// Asks for objects to add to a group whose members are highlighted.
int askForAdditions(HostEditorSelection* editor, const OdDbGroupPtr& group, const OdDbObjectIdArray& members,
                    OdDbObjectIdArray& ids);

// Ask for objects that are to join or to leave the group of `data`: 0, or kCannotAsk. The
// members are highlighted; without a selection step they stay so.
int addObjectsPrompt(HostEditorSelection* editor, GroupData& data);
int removeObjectsPrompt(HostEditorSelection* editor, GroupData& data, bool alreadyHighlighted);
