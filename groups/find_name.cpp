#include "groups/find_name.h"

#include "groups/current_drawing.h"
#include "groups/group_member_dlg.h"
#include "groups/group_messages.h"
#include "groups/pick_style.h"
#include "groups/selected_objects.h"
#include "groups/selection_step.h"
#include "host/modal_runner.h"
#include "host/qt_ui_core.h"
#include "host/text.h"

namespace {

QStringList groupNamesOf(const OdDbDictionaryPtr& dictionary, OdDbObjectId member) {
    QStringList names;
    for (const auto entry = dictionary->newIterator(); !entry->done(); entry->next())
        if (isMember(odrxCast<OdDbGroup>(entry->getObject()), member))
            names << hostqt::qString(entry->name());
    return names;
}

void tellGroupNames(const QStringList& names) {
    if (names.isEmpty()) {
        printLine(*currentIO(), group_messages::notAMember());
        return;
    }
    const host_qt_ui_core::ParentWrapper parent = host_qt_ui_core::parentForDialog();
    CGroupMemberDlg dialog(parent, names);
    runModal(dialog);
}

} // namespace

int pickGroupMember(HostEditorSelection* editor, OdDbObjectId dictionaryId) {
    const OdDbDatabasePtr document = currentDatabase();
    const OdDbDatabasePtr database = document.isNull() ? consoleDatabase() : document;
    const ClearedPickStyle pickStyle(database);
    if (!pickStyle.isReadable())
        return 0;
    GroupSelectionRequest request = selectionRequest(database, QObject::tr("Pick a member of a group."));
    request.single = true;
    pickStyle.noteIn(request);
    OdDbObjectIdArray picked;
    if (askForObjects(editor, request, picked) == kInputPicked)
        tellGroupNames(groupNamesOf(odrxCast<OdDbDictionary>(dictionaryId.openObject()), picked.front()));
    return 0;
}
