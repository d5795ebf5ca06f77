#include "groups/command_line_create.h"

#include "groups/create_group.h"
#include "groups/current_drawing.h"
#include "groups/group_listing.h"
#include "groups/group_messages.h"
#include "groups/group_names.h"
#include "groups/keyword_list.h"
#include "groups/prompt_flags.h"
#include "groups/selected_objects.h"
#include "groups/selection_step.h"

#include <QObject>

namespace {
enum Keyword { kName = kInputKeyword, kDescription };
}

int CCommandLineGroupCreate::Run(IParam*) {
    if (!currentDocument())
        return end(1);
    status = 2;
    const Scene scene{currentDatabase(), *currentIO(), currentEditor()};
    const QString keywords = QObject::tr("Name Description");
    const QString prompt = QObject::tr("Select objects or [%1]").arg(keywordBracket(keywordWords(keywords)));
    openGroupDictionary(scene.database);
    GroupData data;
    for (;;) {
        OdDbObjectIdArray ids;
        int reply = askForObjects(scene.editor, selectionRequest(scene.database, prompt, keywords), ids);
        if (reply == kNoSelectionStep)
            return 0;
        if (reply == kInputPicked)
            selectIds(*scene.editor, scene.database, ids);
        if (reply == kInputPicked || reply == kInputNone)
            return create(scene, data);
        if (reply == kName)
            reply = askForNewName(scene, data.name);
        else if (reply == kDescription)
            reply = askForDescription(scene, data.description);
        if (reply == kInputCancelled)
            return end(1);
    }
}

int CCommandLineGroupCreate::askForDescription(const Scene& scene, OdString& description) {
    return askInput(scene.io, group_messages::enterDescription(), {}, kDescriptionPrompt, &description);
}

int CCommandLineGroupCreate::askForNewName(const Scene& scene, OdString& name) {
    for (;;) {
        OdString typed;
        const int reply = askInput(scene.io, group_messages::enterGroupName(), QStringLiteral("?"),
                                   kNameOrNumberPrompt, &typed);
        if (reply == kInputKeyword) {
            HelpGroupName(scene.io, scene.database);
            continue;
        }
        if (reply != kInputTyped)
            return reply;
        if (openGroupDictionary(scene.database)->has(typed)) {
            printLine(scene.io, group_messages::groupExists(typed));
        } else if (!isValidGroupName(typed)) {
            printLine(scene.io, group_messages::invalidName());
        } else {
            name = typed;
            return reply;
        }
    }
}

// An empty answer takes what was selected before; a group without a name gets the next automatic one.
int CCommandLineGroupCreate::create(const Scene& scene, GroupData& data) {
    if (selectedIds(scene.editor).empty())
        return end(0);
    if (data.name.isEmpty())
        data.name = nextGroupName(scene.database);
    return end(createInTransaction(scene.database, scene.io, scene.editor, data));
}
