// Who lost a number to another record, and what groups have to say instead of it.
#include "sdk/db/shared_handles.h"

#include "sdk/db/handle_text.h"

namespace {

constexpr int kMember = 340; // of a group

} // namespace

const std::vector<OdDbStub*>& OdDbSharedHandles::losersOf(std::uint64_t number) const {
    static const std::vector<OdDbStub*> none;
    const auto found = losers.find(number);
    return found == losers.end() ? none : found->second;
}

void OdDbSharedHandles::correctMembers(DxfTagList& groupTags, const OdDbHandleMap& handles) const {
    for (std::size_t i = 0; i < groupTags.size(); ++i) {
        const std::uint64_t number = groupTags[i].code == kMember ? dxfHandle(groupTags[i].value()) : 0;
        const OdDbStub* const keeper = handles.find(number);
        if (!keeper || keeper->has(OdDbStub::kEntity))
            continue;
        for (const OdDbStub* loser : losersOf(number))
            if (loser->has(OdDbStub::kEntity))
                groupTags.replace(i, odDbHandleText(*loser));
    }
}
