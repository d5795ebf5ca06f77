// The option Remove of the group command: takes the selected members out of a group.
#include "groups/command_line_unified.h"

#include "groups/current_drawing.h"
#include "groups/existing_group_prompt.h"
#include "groups/group_messages.h"
#include "groups/removal.h"
#include "groups/run_parameters.h"
#include "groups/selected_objects.h"
#include "groups/system_variables.h"
#include "host/text.h"

#include <QObject>

int CCommandLineGroupUnified::runRemove(const Scene& scene, IParam* params) {
    CXStringW givenName;
    OdString name;
    if (readStringParam(params, kGroupNameParam, givenName))
        name = hostqt::odString(givenName);
    else if (askExistingGroupName(scene.io, scene.database, name) == kInputCancelled)
        return end(1);
    const OdDbDictionaryPtr dictionary = openGroupDictionary(scene.database);
    if (dictionary->has(name))
        return removeFrom(scene, dictionary, name);
    printFormatted(scene.io, QObject::tr("Group '%1' not found.").arg(hostqt::qString(name)));
    return end(1);
}

int CCommandLineGroupUnified::removeFrom(const Scene& scene, const OdDbDictionaryPtr& dictionary,
                                         const OdString& name) {
    GroupData data;
    data.group = groupByName(dictionary, name, OdDb::kForWrite);
    std::int8_t pickStyle = 0;
    readSysVarInt8(kPickStyle, pickStyle, scene.database);
    const OdDbObjectIdArray leaving = selectedMembers(scene.editor, data.group);
    if (leaving.empty() || pickStyle != 0) {
        removeByPrompt(scene.database, scene.editor, data, false);
        return end(0);
    }
    if (!mayRemove(data.group, leaving.size(), name, group_messages::warning()))
        return end(1);
    removeInTransaction(scene.database, data.group, leaving);
    printFormatted(scene.io, group_messages::removed(static_cast<int>(leaving.size()), name));
    return end(0);
}
