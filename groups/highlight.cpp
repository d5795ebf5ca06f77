#include "groups/highlight.h"

void setObjectsHighlight(const OdDbObjectIdArray& ids, bool on) {
    for (const OdDbObjectId id : ids)
        odrxCast<OdDbEntity>(id.safeOpenObject())->highlight(on, nullptr, false);
}

OdDbObjectIdArray highlightMembers(const OdDbGroupPtr& group) {
    OdDbObjectIdArray members;
    group->allEntityIds(members);
    setObjectsHighlight(members, true);
    return members;
}

bool dropHighlight(GroupData& data) {
    if (!data.highlighted)
        return false;
    data.highlighted = false;
    setObjectsHighlight(data.memberIds, false);
    return true;
}

bool raiseHighlight(GroupData& data) {
    if (!data.highlight || data.group.isNull() || data.group->isNotAccessible())
        return false;
    data.group->allEntityIds(data.memberIds);
    if (data.memberIds.empty()) {
        data.errorCode = kGroupEmpty;
        return false;
    }
    setObjectsHighlight(data.memberIds, true);
    data.highlighted = true;
    return true;
}
