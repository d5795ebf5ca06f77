#include "groups/command_line_ungroup.h"

#include "groups/current_drawing.h"
#include "groups/existing_group_prompt.h"
#include "groups/explode_group.h"
#include "groups/group_listing.h"
#include "groups/group_messages.h"
#include "groups/selected_objects.h"
#include "groups/selection_step.h"
#include "host/transaction_guard.h"

namespace {

enum Keyword { kList = kInputKeyword, kName };

void explodeInTransaction(const OdDbDatabasePtr& database, const OdString& name) {
    DbTransactionGuard guard(database);
    guard.begin();
    explodeGroup(database, name);
    guard.commit();
}

// What the user has selected before the command counts as the answer to its prompt.
int askForGroup(HostEditorSelection* editor, const GroupSelectionRequest& request, OdDbObjectIdArray& ids) {
    const OdDbObjectIdArray selected = selectedIds(editor);
    if (selected.empty() || !hasSelectionStep())
        return askForObjects(editor, request, ids);
    ids = selected;
    return kInputPicked;
}

} // namespace

int CCommandLineGroupUngroup::enableQuery() { return selectionIsOneGroup(); }

int CCommandLineGroupUngroup::Run(IParam*) {
    if (!currentDocument())
        return end(1);
    status = 2;
    const Scene scene{currentDatabase(), *currentIO(), currentEditor()};
    GroupSelectionRequest request = selectionRequest(scene.database, group_messages::selectGroup(),
                                                     group_messages::selectGroupKeywords());
    request.single = true;
    for (;;) {
        OdDbObjectIdArray ids;
        switch (askForGroup(scene.editor, request, ids)) {
        case kNoSelectionStep:
            return 0;
        case kInputPicked:
            return ungroupMember(scene, ids.front());
        case kList:
            HelpGroupName(scene.io, scene.database);
            break;
        case kName:
            return ungroupByName(scene);
        default:
            return end(1);
        }
    }
}

int CCommandLineGroupUngroup::ungroupMember(const Scene& scene, OdDbObjectId member) {
    OdString name;
    if (groupOfMember(openGroupDictionary(scene.database), member, name).isNull()) {
        printLine(scene.io, group_messages::notAMember());
        return end(1);
    }
    explodeInTransaction(scene.database, name);
    scene.editor->clearSelection();
    return end(0);
}

int CCommandLineGroupUngroup::ungroupByName(const Scene& scene) {
    OdString name;
    if (askExistingGroupName(scene.io, scene.database, name) != kInputPicked)
        return end(1);
    explodeInTransaction(scene.database, name);
    return end(0);
}
