// Keeps the order of adding, and each object once.
#include "standin/selection/selection_set.h"

#include <algorithm>

ODRX_DEFINE_CLASS(hostSelectionSet, OdRxObject)

OdSmartPtr<hostSelectionSet> hostSelectionSet::createObject(OdDbDatabase*) {
    return hostSelectionSetPtr(new standin::SelectionSet);
}

void standin::SelectionSet::append(const OdDbObjectId& id) {
    if (!id.isNull() && std::find(members.begin(), members.end(), id) == members.end())
        members.push_back(id);
}
