// The option Create of the group command. Without a selection step of the host it ends where it would ask for
// objects, and no group is made: that is meant.
#include "groups/command_line_unified.h"

#include "groups/create_group.h"
#include "groups/current_drawing.h"
#include "groups/group_listing.h"
#include "groups/group_messages.h"
#include "groups/group_names.h"
#include "groups/prompt_flags.h"
#include "groups/selection_step.h"

#include <QObject>

int CCommandLineGroupUnified::runCreate(const Scene& scene) {
    const OdDbDictionaryPtr dictionary = openGroupDictionary(scene.database);
    for (;;) {
        OdString name;
        const int reply = askInput(scene.io, group_messages::enterGroupName(), QStringLiteral("?"),
                                   kNameOrNumberPrompt, &name);
        if (reply == kInputNone)
            return end(0);
        if (reply == kInputCancelled)
            return end(1);
        if (reply == kInputKeyword) {
            HelpGroupName(scene.io, scene.database);
            continue;
        }
        if (dictionary->has(name))
            return askToRedefine(scene, name);
        if (isValidGroupName(name))
            return createNamed(scene, name);
        printLine(scene.io, group_messages::invalidName());
        printLine(scene.io, QStringLiteral("\n"));
    }
}

int CCommandLineGroupUnified::createNamed(const Scene& scene, const OdString& name) {
    GroupData data;
    data.name = name;
    const int reply =
        askInput(scene.io, group_messages::enterDescription(), {}, kDescriptionPrompt, &data.description);
    if (reply == kInputCancelled || reply == kInputKeyword)
        return end(1);
    if (scene.editor)
        scene.editor->clearSelection();
    OdDbObjectIdArray ids;
    const int picked =
        askForObjects(scene.editor, selectionRequest(scene.database, group_messages::selectObjects()), ids);
    if (picked == kNoSelectionStep)
        return 0;
    if (picked != kInputPicked)
        return end(picked == kInputNone ? 0 : 1);
    selectIds(*scene.editor, scene.database, ids);
    return end(createInTransaction(scene.database, scene.io, scene.editor, data));
}

// Yes redefines nothing, the question comes again: that is meant.
int CCommandLineGroupUnified::askToRedefine(const Scene& scene, const OdString& name) {
    printFormatted(scene.io, group_messages::groupExists(name));
    for (;;) {
        switch (askInput(scene.io, QObject::tr("Redefine it?"), QObject::tr("Yes No"), kNameOrNumberPrompt,
                         nullptr)) {
        case kInputNone:
        case kInputKeyword + 1:
            return end(0);
        case kInputCancelled:
            return end(1);
        case kInputKeyword:
            break;
        default:
            printLine(scene.io, QObject::tr("Yes or No, please."));
        }
    }
}
