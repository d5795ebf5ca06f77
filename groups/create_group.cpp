#include "groups/create_group.h"

#include "groups/current_drawing.h"
#include "groups/group_messages.h"
#include "groups/highlight.h"
#include "groups/keyword_list.h"
#include "groups/selected_objects.h"
#include "groups/selection_step.h"
#include "host/app.h"
#include "host/group_services.h"
#include "host/text.h"
#include "host/transaction_guard.h"
#include "sdk/db/class_registry.h"
#include "sdk/db/dictionary.h"

#include <QDebug>
#include <QObject>

namespace {

OdDbGroupPtr newGroup() {
    const OdRxClass* const description = odDbRegisteredClass("GROUP");
    if (!description)
        throw OdError(L"OdDbOdDbGroupis not loaded"); // the text is meant to stand like this
    const OdDbGroupPtr group = odrxQuery<OdDbGroup>(description->create().get());
    if (group.isNull())
        throw OdError(hostqt::odString(QObject::tr("Unable to create new group!")));
    return group;
}

// The anonymous name is known only after setAnonymous, hence the two orders.
void enterGroup(const OdDbDictionaryPtr& dictionary, const OdDbGroupPtr& group, const GroupData& data) {
    if (data.unnamed) {
        group->setAnonymous();
        dictionary->setAt(group->name(), group.get());
    } else {
        dictionary->setAt(data.name, group.get());
        group->setName(data.name);
    }
}

void makeGroup(HostEditorSelection& editor, const hostSelectionSetPtr& selection, OdDbObjectId dictionaryId,
               GroupData& data) {
    const OdDbGroupPtr group = newGroup();
    enterGroup(odrxCast<OdDbDictionary>(dictionaryId.safeOpenObject(OdDb::kForWrite)), group, data);
    group->append(idsOf(selection));
    group->setSelectable(data.selectable);
    group->setDescription(data.description);
    setObjectsHighlight(idsOf(selection), false);
    editor.clearSelection();
    data.name = group->name();
}

// A host with a selection step lets the user select what the group is made of. False when nothing is
// selected afterwards.
bool askForMembers(HostEditorSelection* editor, GroupData& data) {
    const QString words = keywordBracket(shownKeywordWords(localKeywords(group_messages::endKeywords())));
    const OdDbDatabasePtr database = currentDatabase();
    const GroupSelectionRequest request =
        selectionRequest(database, group_messages::selectObjectsIn().arg(words));
    OdDbObjectIdArray ids;
    const int reply = askForObjectsUntilEnd(editor, request, ids);
    if (reply == kInputPicked)
        selectIds(*editor, database, ids);
    else if (reply != kNoSelectionStep)
        data.createOk = false;
    return reply == kInputPicked;
}

} // namespace

// A group that fails after it has entered the dictionary stays there: that is meant. So does an empty
// selection end well, with no group made.
int createGroupFromData(HostEditorSelection* editor, OdDbObjectId dictionaryId, GroupData& data) {
    if (selectedIds(editor).empty() && !askForMembers(editor, data))
        return 0;
    const hostSelectionSetPtr selection = editor->getSelection(); // anew: it may have gone meanwhile
    if (idsOf(selection).empty())
        return 0;
    try {
        makeGroup(*editor, selection, dictionaryId, data);
        return 0;
    } catch (const OdError& error) {
        qDebug("OdError: code %d, description %s", static_cast<int>(error.code()),
               error.description().toLocal8Bit().c_str());
        if (const Ref<IGroupServices> services = appService<IGroupServices>())
            services->creationFailed(error);
        return error.code();
    }
}

int createInTransaction(const OdDbDatabasePtr& database, HostCommandIO& io, HostEditorSelection* editor,
                        GroupData& data) {
    const OdDbObjectId dictionaryId = database->getGroupDictionaryId(true);
    DbTransactionGuard guard(database);
    guard.begin();
    if (createGroupFromData(editor, dictionaryId, data) != 0 || !data.createOk) {
        guard.abort();
        return 1;
    }
    printFormatted(io, group_messages::groupCreated(data.name));
    guard.commit();
    return 0;
}
