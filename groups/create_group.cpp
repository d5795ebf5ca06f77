#include "groups/create_group.h"

#include "groups/group_messages.h"
#include "groups/highlight.h"
#include "groups/selected_objects.h"
#include "host/text.h"
#include "host/transaction_guard.h"
#include "sdk/db/dictionary.h"

#include <QDebug>
#include <QObject>

namespace {

OdDbGroupPtr newGroup() {
    OdRxClass* const description = OdDbGroup::desc();
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

} // namespace

// A group that fails after it has entered the dictionary stays there: that is meant. So does an empty
// selection end without asking for one.
int createGroupFromData(HostEditorSelection* editor, OdDbObjectId dictionaryId, GroupData& data) {
    const hostSelectionSetPtr selection = editor ? editor->getSelection() : hostSelectionSetPtr();
    if (idsOf(selection).empty())
        return 0;
    try {
        makeGroup(*editor, selection, dictionaryId, data);
        return 0;
    } catch (const OdError& error) {
        qDebug("OdError: code %d, description %s", static_cast<int>(error.code()),
               error.description().toLocal8Bit().c_str());
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
