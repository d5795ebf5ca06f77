// Records of a damaged file that have the handle of another record there. One of them keeps the number, the
// others have new ones in memory, and in the file as soon as something that is written refers to the number.
#pragma once

#include "sdk/db/stub.h"
#include "sdk/dxf/tag_list.h"

#include <unordered_map>
#include <vector>

class OdDbSharedHandles {
public:
    bool empty() const { return losers.empty(); }
    void add(std::uint64_t number, OdDbStub* loser) { losers[number].push_back(loser); }
    const std::vector<OdDbStub*>& losersOf(std::uint64_t number) const;
    // Members of groups are entities: where another kind of object keeps the number, that of the entity is
    // put in its place.
    void correctMembers(DxfTagList& groupTags, const OdDbHandleMap& handles) const;

private:
    std::unordered_map<std::uint64_t, std::vector<OdDbStub*>> losers;
};
