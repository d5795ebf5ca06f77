#include "standin/selection/group_members.h"

#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"

#include <algorithm>
#include <unordered_set>

namespace standin {

namespace {

bool groupsCount(const OdDbDatabase& drawing) {
    const OdResBufPtr style = drawing.getSysVar(L"PICKSTYLE");
    return (style->getInt8() & 1) != 0;
}

} // namespace

OdDbObjectIdArray withGroupMembers(OdDbDatabase& drawing, const OdDbObjectIdArray& picked) {
    const auto groups = odrxQuery<OdDbDictionary>(drawing.getGroupDictionaryId().openObject().get());
    if (picked.empty() || groups.isNull() || !groupsCount(drawing))
        return picked;
    const std::unordered_set<OdDbObjectId> wanted(picked.begin(), picked.end());
    std::unordered_set<OdDbObjectId> taken = wanted;
    OdDbObjectIdArray result = picked, members;
    for (auto it = groups->newIterator(); !it->done(); it->next()) {
        const auto group = odrxQuery<OdDbGroup>(it->getObject().get());
        if (group.isNull() || !group->isSelectable() || group->isNotAccessible())
            continue;
        group->allEntityIds(members);
        if (std::none_of(members.begin(), members.end(), [&](const auto& id) { return wanted.count(id); }))
            continue;
        for (const OdDbObjectId& id : members)
            if (taken.insert(id).second)
                result.push_back(id);
    }
    return result;
}

} // namespace standin
