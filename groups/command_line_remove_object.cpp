#include "groups/command_line_remove_object.h"

#include "groups/current_drawing.h"
#include "groups/group_messages.h"
#include "groups/prompt_flags.h"
#include "groups/removal.h"
#include "groups/run_parameters.h"
#include "groups/selected_objects.h"
#include "groups/system_variables.h"
#include "host/text.h"
#include "host/transaction_guard.h"

#include <QObject>

namespace {

// False when the user cancels.
bool askForName(HostCommandIO& io, const OdDbDatabasePtr& database, OdString& name) {
    for (;;) {
        const int reply = askInput(io, QObject::tr("Enter group name"), {}, kNewNamePrompt, &name);
        if (reply == kInputCancelled)
            return false;
        if (reply != kInputTyped)
            continue;
        if (openGroupDictionary(database)->has(name))
            return true;
        printFormatted(io, QObject::tr("Not found"));
        printFormatted(io, QStringLiteral("\n"));
    }
}

int removeOneByOne(const OdDbDatabasePtr& database, const OdDbGroupPtr& group, const OdDbObjectIdArray& ids) {
    DbTransactionGuard guard(database);
    guard.begin();
    int count = 0;
    for (const OdDbObjectId id : ids) {
        group->remove(id);
        ++count;
    }
    guard.commit();
    return count;
}

} // namespace

// A name that comes with the parameters is not looked up first: a wrong one gives a null group, whose first
// use throws. That is meant.
int CCommandLineGroupRemoveObject::Run(IParam* params) {
    const OdDbDatabasePtr database = currentDatabase();
    GroupData data;
    CXStringW givenName;
    OdString name;
    if (readStringParam(params, kGroupNameParam, givenName))
        name = hostqt::odString(givenName);
    else if (!askForName(*currentIO(), database, name))
        return 1;
    data.group = groupByName(openGroupDictionary(database), name, OdDb::kForWrite);
    return removeFrom(database, data, name);
}

int CCommandLineGroupRemoveObject::removeFrom(const OdDbDatabasePtr& database, GroupData& data,
                                              const OdString& name) {
    HostEditorSelection* const editor = currentEditor();
    std::int8_t pickStyle = 0;
    readSysVarInt8(kPickStyle, pickStyle, database);
    const OdDbObjectIdArray leaving = selectedMembers(editor, data.group);
    if (leaving.empty() || pickStyle != 0)
        return removeByPrompt(database, editor, data, false) == 0 ? 0 : 1;
    if (!mayRemove(data.group, leaving.size(), name, group_messages::warning(), QMessageBox::Cancel))
        return 1;
    const int count = removeOneByOne(database, data.group, leaving);
    printFormatted(*currentIO(), group_messages::removed(count, name));
    return 0;
}
