// Keeps the order of adding, and each object once.
#include "standin/selection/selection_set.h"

ODRX_DEFINE_CLASS(hostSelectionSet, OdRxObject)

OdSmartPtr<hostSelectionSet> hostSelectionSet::createObject(OdDbDatabase*) {
    return hostSelectionSetPtr(new standin::SelectionSet);
}

void standin::SelectionSet::append(const OdDbObjectId& id) {
    if (!id.isNull() && taken.insert(id).second)
        members.push_back(id);
}

void standin::SelectionSet::clear() {
    members.clear();
    taken.clear();
}
