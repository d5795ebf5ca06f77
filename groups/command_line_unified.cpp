#include "groups/command_line_unified.h"

#include "groups/current_drawing.h"
#include "groups/existing_group_prompt.h"
#include "groups/explode_group.h"
#include "groups/group_listing.h"
#include "groups/group_messages.h"
#include "groups/highlight.h"
#include "groups/keyword_list.h"
#include "groups/prompt_flags.h"
#include "groups/selection_step.h"
#include "host/text.h"
#include "host/transaction_guard.h"

#include <QObject>

namespace {

enum Option { kList = kInputKeyword, kOrder, kAdd, kRemove, kExplode, kRename, kSelectable, kCreate };

QString optionKeywords() {
    return localKeywordsWithoutMark(QObject::tr("? Order Add Remove Explode REName Selectable Create _ "
                                                "? Order Add Remove Explode REName Selectable Create"));
}

QString optionPrompt(const QString& keywords) {
    return group_messages::enterGroupOption().arg(keywordBracket(keywordWords(keywords))) +
           QLatin1String(" <") + QObject::tr("Create") + QLatin1String(">:");
}

} // namespace

int CCommandLineGroupUnified::Run(IParam* params) {
    status = 2;
    const QString keywords = optionKeywords();
    const Scene scene{currentDatabase(), *currentIO(), currentEditor()};
    for (;;) {
        const int reply = askInput(scene.io, optionPrompt(keywords), keywords, kKeywordPrompt, nullptr);
        if (reply != kList)
            return runOption(reply, scene, params);
        HelpGroupName(scene.io, scene.database);
    }
}

int CCommandLineGroupUnified::runOption(int reply, const Scene& scene, IParam* params) {
    switch (reply) {
    case kOrder:
        return runOrder(scene);
    case kAdd:
        return runAdd(scene);
    case kRemove:
        return runRemove(scene, params);
    case kExplode:
        return runExplode(scene);
    case kRename:
        return runRename(scene);
    case kSelectable:
        return runSelectable(scene);
    case kCreate:
    case kInputNone:
        return runCreate(scene);
    default:
        return end(1);
    }
}

int CCommandLineGroupUnified::runAdd(const Scene& scene) {
    OdString name;
    if (askExistingGroupName(scene.io, scene.database, name) != kInputPicked)
        return end(1);
    const OdDbDictionaryPtr dictionary = openGroupDictionary(scene.database);
    if (!dictionary->has(name))
        return status;
    const OdDbGroupPtr group = groupByName(dictionary, name, OdDb::kForWrite);
    if (!scene.editor || group->isNotAccessible())
        return 1;
    const OdDbObjectIdArray members = highlightMembers(group);
    return addToGroup(scene, group, members, hostSelectionSet::createObject(scene.database.get()));
}

int CCommandLineGroupUnified::addToGroup(const Scene& scene, const OdDbGroupPtr& group,
                                         const OdDbObjectIdArray& members, const hostSelectionSetPtr& set) {
    printLine(scene.io, group_messages::selectObjectsToAdd());
    set->clear();
    OdDbObjectIdArray added;
    const int picked = askForAdditions(scene.editor, group, members, added);
    if (picked == kNoSelectionStep)
        return 0;
    if (picked != kInputPicked)
        return end(picked == kInputCancelled ? 1 : 0);
    DbTransactionGuard guard(scene.database);
    guard.begin();
    group->append(added);
    guard.commit();
    return end(0);
}

int CCommandLineGroupUnified::runExplode(const Scene& scene) {
    OdString name;
    if (askExistingGroupName(scene.io, scene.database, name) != kInputPicked)
        return end(1);
    explodeGroup(scene.database, name);
    return end(0);
}

// The new name does not pass the rule for names: that is meant.
int CCommandLineGroupUnified::runRename(const Scene& scene) {
    OdString oldName, newName;
    if (askExistingGroupName(scene.io, scene.database, oldName,
                             QObject::tr("Enter a group name to rename")) != kInputPicked)
        return end(1);
    for (;;) {
        const int reply =
            askInput(scene.io, group_messages::enterNewName(), QStringLiteral("?"), kNewNamePrompt, &newName);
        if (reply == kInputCancelled)
            return end(1);
        if (reply == kInputKeyword)
            HelpGroupName(scene.io, scene.database);
        if (reply != kInputTyped)
            continue;
        const OdDbDictionaryPtr dictionary = openGroupDictionary(scene.database);
        if (dictionary->has(newName)) {
            printFormatted(scene.io, QObject::tr("Group '%1' already exists. %2")
                                         .arg(hostqt::qString(newName), QObject::tr("Operation canceled")));
            return status; // still 2: that is meant
        }
        groupByName(dictionary, oldName, OdDb::kForWrite)->setName(newName);
        return end(0);
    }
}

// An empty reply means Yes, and the hidden abbreviations change nothing: both are meant.
int CCommandLineGroupUnified::runSelectable(const Scene& scene) {
    OdString name;
    if (askExistingGroupName(scene.io, scene.database, name) != kInputPicked)
        return end(1);
    const OdDbDictionaryPtr dictionary = openGroupDictionary(scene.database);
    const auto group = odrxCast<OdDbGroup>(dictionary->getAt(name, nullptr).safeOpenObject());
    const bool current = group->isSelectable();
    const QString question =
        current ? QObject::tr("This group is selectable, do you want to change it [%1]?")
                : QObject::tr("This group is not selectable, do you want to change it [%1]?");
    const QString choices = QObject::tr("Yes") + QLatin1Char('/') + QObject::tr("No");
    const int reply = askInput(scene.io, question.arg(choices), QObject::tr("Yes No *Y *N _ Yes No *Y *N"),
                               kKeywordPrompt, nullptr);
    if (reply == kInputCancelled)
        return end(1);
    if (reply == kInputNone || reply == kInputKeyword) {
        group->upgradeOpen();
        group->setSelectable(!current);
    }
    return end(0);
}
