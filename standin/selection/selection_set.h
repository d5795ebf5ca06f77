// A set of selected objects: ids in the order in which they were added, each once.
#pragma once

#include "host/selection.h"
#include "sdk/db/object_id.h"

#include <unordered_set>

namespace standin {

class SelectionSet : public hostSelectionSet {
public:
    void objectIds(std::vector<OdDbObjectId>& ids) const override { ids = members; }
    int count() const override { return static_cast<int>(members.size()); }
    void clear() override;
    void append(const OdDbObjectId& id) override; // not the null id, nor one that is in
    const std::vector<OdDbObjectId>& ids() const { return members; }

private:
    std::vector<OdDbObjectId> members;
    std::unordered_set<OdDbObjectId> taken;
};

} // namespace standin
