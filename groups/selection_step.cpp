#include "groups/selection_step.h"

#include "groups/current_drawing.h"
#include "groups/group_messages.h"
#include "groups/highlight.h"
#include "groups/pick_style.h"
#include "groups/selected_objects.h"
#include "host/app.h"
#include "host/text.h"

#include <algorithm>

namespace {

bool canAsk(HostEditorSelection* editor, const GroupData& data) {
    return editor && !data.group->isNotAccessible();
}

OdDbObjectIdArray membersAmong(const OdDbObjectIdArray& ids, OdDbObjectIdArray members) {
    std::sort(members.begin(), members.end());
    OdDbObjectIdArray found;
    for (const OdDbObjectId id : ids)
        if (std::binary_search(members.begin(), members.end(), id))
            found.push_back(id);
    return found;
}

} // namespace

bool hasSelectionStep() { return bool(appService<IGroupSelectionStep>()); }

GroupSelectionRequest selectionRequest(const OdDbDatabasePtr& database, const QString& prompt,
                                       const QString& keywords) {
    GroupSelectionRequest request;
    request.database = database.get();
    request.prompt = hostqt::odString(prompt);
    request.keywords = hostqt::odString(keywords);
    return request;
}

int askForObjects(HostEditorSelection* editor, const GroupSelectionRequest& request, OdDbObjectIdArray& ids) {
    const hostSelectionSetPtr set = hostSelectionSet::createObject(request.database);
    set->clear();
    const Ref<IGroupSelectionStep> step = appService<IGroupSelectionStep>();
    if (!step || !editor)
        return kNoSelectionStep;
    const int result = step->selectObjects(*editor, request, *set);
    ids = idsOf(set);
    return result;
}

int askForObjectsUntilEnd(HostEditorSelection* editor, GroupSelectionRequest request,
                          OdDbObjectIdArray& ids) {
    request.keywords = hostqt::odString(group_messages::endKeywords());
    const int result = askForObjects(editor, request, ids);
    if (result != kInputKeyword)
        return result;
    return ids.empty() ? kInputNone : kInputPicked;
}

void selectIds(HostEditorSelection& editor, const OdDbDatabasePtr& database, const OdDbObjectIdArray& ids) {
    const hostSelectionSetPtr set = hostSelectionSet::createObject(database.get());
    for (const OdDbObjectId id : ids)
        set->append(id);
    editor.setSelection(set);
}

int askForAdditions(HostEditorSelection* editor, const OdDbGroupPtr& group, const OdDbObjectIdArray& members,
                    OdDbObjectIdArray& ids) {
    const QString prompt = group_messages::selectObjectsIn().arg(group->numEntities());
    GroupSelectionRequest request = selectionRequest(currentDatabase(), prompt);
    request.highlightedIds = members;
    return askForObjectsUntilEnd(editor, request, ids);
}

int addObjectsPrompt(HostEditorSelection* editor, GroupData& data) {
    if (!canAsk(editor, data))
        return kCannotAsk;
    currentDatabase()->getGroupDictionaryId(true);
    OdDbObjectIdArray added;
    if (askForAdditions(editor, data.group, highlightMembers(data.group), added) == kInputPicked) {
        data.group->upgradeOpen();
        data.group->append(added);
    }
    return 0;
}

int removeObjectsPrompt(HostEditorSelection* editor, GroupData& data, bool alreadyHighlighted) {
    if (!canAsk(editor, data))
        return kCannotAsk;
    const OdDbDatabasePtr database = currentDatabase();
    const ClearedPickStyle pickStyle(database);
    if (!pickStyle.isReadable())
        return 0;
    OdDbObjectIdArray members;
    data.group->allEntityIds(members);
    if (!alreadyHighlighted)
        setObjectsHighlight(members, true);
    database->getGroupDictionaryId(true);
    GroupSelectionRequest request = selectionRequest(database, group_messages::selectObjects());
    request.highlightedIds = members;
    pickStyle.noteIn(request);
    OdDbObjectIdArray chosen;
    if (askForObjectsUntilEnd(editor, request, chosen) == kInputPicked) {
        data.group->upgradeOpen();
        data.group->remove(membersAmong(chosen, members));
    }
    return 0;
}
