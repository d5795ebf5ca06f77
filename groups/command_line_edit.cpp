#include "groups/command_line_edit.h"

#include "groups/current_drawing.h"
#include "groups/existing_group_prompt.h"
#include "groups/group_messages.h"
#include "groups/prompt_flags.h"
#include "groups/selected_objects.h"
#include "host/text.h"

int CCommandLineGroupEdit::enableQuery() { return selectionIsOneGroup(); }

int CCommandLineGroupEdit::Run(IParam*) {
    if (!currentDocument())
        return end(1);
    status = 2;
    const Scene scene{currentDatabase(), *currentIO(), currentEditor()};
    Found found;
    if (!scene.editor || !findGroup(scene, found))
        return end(1);
    return runOption(scene, found);
}

bool CCommandLineGroupEdit::findGroup(const Scene& scene, Found& found) {
    for (;;) {
        if (!selectMember(scene, found))
            return false;
        found.dictionary = openGroupDictionary(scene.database);
        const OdDbObjectIdArray ids = idsOf(found.selection);
        if (ids.empty())
            found.group = groupByName(found.dictionary, found.name, OdDb::kForWrite);
        else if (!ids.front().isValid())
            return false;
        else
            found.group = groupOfMember(found.dictionary, ids.front(), found.name);
        if (!found.group.isNull())
            return !found.group->isNotAccessible();
        if (ids.empty())
            return false;
        printLine(scene.io, group_messages::notAMember());
        scene.editor->clearSelection();
    }
}

// "?" asks for a name, which counts when the next selection stays empty. The reply of that keyword is kept
// while the prompt comes again: that is meant. The keyword Name ends the run like a cancel, and that is meant
// too.
bool CCommandLineGroupEdit::selectMember(const Scene& scene, Found& found) {
    const OdString keywords = hostqt::odString(group_messages::selectGroupKeywords());
    const OdString prompt = hostqt::odString(group_messages::selectGroup());
    int reply = kInputNone;
    for (;;) {
        const hostSelectionSetPtr current = scene.editor->getSelection();
        if (!current.isNull() && current->count() != 0)
            found.selection = current;
        else
            reply = scene.editor->selectObjects(&found.selection, 0, prompt.c_str(), keywords.c_str(),
                                                kSelectGroupPrompt, 0, 0, 0, 0);
        if (reply != kInputKeyword)
            return reply == kInputPicked || reply == kInputNone;
        askExistingGroupName(scene.io, scene.database, found.name);
    }
}
