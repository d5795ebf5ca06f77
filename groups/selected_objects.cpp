#include "groups/selected_objects.h"

#include "groups/current_drawing.h"

#include <QApplication>
#include <algorithm>
#include <unordered_set>

namespace {

bool consistsOf(const OdDbGroupPtr& group, const OdDbObjectIdArray& ids) {
    if (group->numEntities() != ids.size())
        return false;
    OdDbObjectIdArray members;
    group->allEntityIds(members);
    const std::unordered_set<OdDbObjectId> wanted(members.begin(), members.end());
    return std::all_of(ids.begin(), ids.end(), [&](OdDbObjectId id) { return wanted.count(id) != 0; });
}

bool isExactlyOneGroup(const OdDbObjectIdArray& ids, const OdDbDictionaryPtr& dictionary) {
    bool found = false;
    for (const auto entry = dictionary->newIterator(); !entry->done(); entry->next()) {
        const OdDbGroupPtr group = odrxQuery<OdDbGroup>(entry->getObject().get());
        if (group.isNull() || !consistsOf(group, ids))
            continue;
        if (found)
            return false;
        found = true;
    }
    return found;
}

} // namespace

bool isMember(const OdDbGroupPtr& group, OdDbObjectId id) {
    try {
        unsigned index = 0;
        group->getIndex(id, index);
        return true;
    } catch (const OdError&) {
        return false;
    }
}

OdDbObjectIdArray idsOf(const hostSelectionSetPtr& set) {
    OdDbObjectIdArray ids;
    if (!set.isNull())
        set->objectIds(ids);
    return ids;
}

OdDbObjectIdArray selectedIds(HostEditorSelection* editor) {
    return editor ? idsOf(editor->getSelection()) : OdDbObjectIdArray();
}

OdDbObjectIdArray selectedMembers(HostEditorSelection* editor, const OdDbGroupPtr& group) {
    OdDbObjectIdArray members;
    for (const OdDbObjectId id : selectedIds(editor)) {
        const OdDbEntityPtr entity = odrxCast<OdDbEntity>(id.openObject());
        if (!entity.isNull() && group->has(entity.get()))
            members.push_back(id);
    }
    return members;
}

OdDbGroupPtr groupOfMember(const OdDbDictionaryPtr& dictionary, OdDbObjectId member, OdString& name) {
    OdDbGroupPtr found;
    for (const auto entry = dictionary->newIterator(); !entry->done(); entry->next()) {
        const OdDbGroupPtr group = odrxCast<OdDbGroup>(entry->getObject());
        if (!isMember(group, member))
            continue;
        found = group;
        found->upgradeOpen();
        name = entry->name();
    }
    return found;
}

bool selectionIsOneGroup() {
    if (!QApplication::activePopupWidget())
        return true;
    const OdDbObjectIdArray ids = selectedIds(currentEditor());
    return !ids.empty() && isExactlyOneGroup(ids, openGroupDictionary(currentDatabase()));
}
