// The options of the command that edits the group of a member.
#include "groups/command_line_edit.h"

#include "groups/group_listing.h"
#include "groups/group_messages.h"
#include "groups/highlight.h"
#include "groups/keyword_list.h"
#include "groups/prompt_flags.h"
#include "groups/removal.h"
#include "groups/selected_objects.h"
#include "groups/system_variables.h"

#include <QObject>

namespace {

enum Option { kAddObjects = kInputKeyword, kRemoveObjects, kRename };

QString optionKeywords() { return QObject::tr("\"Add objects\" \"Remove objects\" REName"); }

// The quoted keywords fall apart here: that is meant.
QString optionPrompt(const QString& keywords) {
    QStringList words = keywordWords(keywords);
    words.replaceInStrings(QStringLiteral("\""), QString());
    words.removeDuplicates();
    return group_messages::enterGroupOption().arg(keywordBracket(words));
}

} // namespace

// Any reply that is no option ends the run well, with the members still highlighted: that is meant.
int CCommandLineGroupEdit::runOption(const Scene& scene, Found& found) {
    const hostSelectionSetPtr prepared = hostSelectionSet::createObject(scene.database.get());
    scene.editor->setSelection(prepared);
    const OdDbObjectIdArray members = highlightMembers(found.group);
    const QString keywords = optionKeywords();
    switch (askInput(scene.io, optionPrompt(keywords), keywords, kKeywordPrompt, nullptr)) {
    case kInputCancelled:
    case kInputPicked:
    case kInputNone:
        setObjectsHighlight(members, false);
        return end(1);
    case kAddObjects:
        return addToGroup(scene, found.group, members, prepared);
    case kRemoveObjects:
        return removeObjects(scene, found, members);
    case kRename:
        return renameGroup(scene, found, members);
    default:
        return end(0);
    }
}

// On the way through the prompt the members stay highlighted: that is meant.
int CCommandLineGroupEdit::removeObjects(const Scene& scene, const Found& found,
                                         const OdDbObjectIdArray& members) {
    GroupData data;
    data.group = found.group;
    std::int8_t pickStyle = 0;
    readSysVarInt8(kPickStyle, pickStyle, scene.database);
    const OdDbObjectIdArray leaving = selectedMembers(scene.editor, found.group);
    if (leaving.empty() || pickStyle != 0) {
        removeByPrompt(scene.database, scene.editor, data, true);
        return end(0);
    }
    if (mayRemove(found.group, leaving.size(), found.name, QObject::tr("Confirm"))) {
        removeInTransaction(scene.database, found.group, leaving);
        printFormatted(scene.io, group_messages::removed(static_cast<int>(leaving.size()), found.name));
    }
    setObjectsHighlight(members, false);
    return end(0);
}

// A taken name ends the run well, without a word and with the members highlighted: that is meant.
int CCommandLineGroupEdit::renameGroup(const Scene& scene, const Found& found,
                                       const OdDbObjectIdArray& members) {
    while (status == 2) {
        OdString name;
        const int reply =
            askInput(scene.io, group_messages::enterNewName(), QStringLiteral("?"), kNewNamePrompt, &name);
        if (reply == kInputTyped) {
            if (found.dictionary->has(name))
                return end(0);
            found.group->setName(name);
            status = 0;
        } else if (reply == kInputCancelled) {
            status = 1;
        } else if (reply == kInputKeyword) {
            HelpGroupName(scene.io, scene.database);
        }
    }
    setObjectsHighlight(members, false);
    return status;
}
