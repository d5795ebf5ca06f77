// What LIST tells about an object.
#pragma once

#include "sdk/db/object_id.h"

#include <QHash>
#include <QStringList>

class OdDbDatabase;

namespace workbench {

// The names of the groups that some objects of a drawing are in, gathered in one walk through the groups.
class GroupNames {
public:
    GroupNames(OdDbDatabase& drawing, const OdDbObjectIdArray& objects);
    QStringList of(OdDbObjectId id) const { return names.value(id.getStub()); }

private:
    QHash<const OdDbStub*, QStringList> names;
};

// Kind, handle, layer and colour; its geometry; the groups that it is in.
QStringList objectText(OdDbObjectId id, const GroupNames& groups);

} // namespace workbench
