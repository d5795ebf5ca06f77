#include "sdk/db/stub.h"

#include <algorithm>

std::size_t OdDbHandleMap::slotOf(std::uint64_t handle) const {
    std::uint64_t mixed = handle * 0x9E3779B97F4A7C15ull;
    mixed ^= mixed >> 29;
    std::size_t slot = static_cast<std::size_t>(mixed) & (slots.size() - 1);
    while (slots[slot] && slots[slot]->handle != handle)
        slot = (slot + 1) & (slots.size() - 1);
    return slot;
}

bool OdDbHandleMap::insert(OdDbStub* stub) {
    if (used * 3 >= slots.size() * 2)
        grow();
    const std::size_t slot = slotOf(stub->handle);
    if (slots[slot])
        return false;
    slots[slot] = stub;
    ++used;
    top = std::max(top, stub->handle);
    return true;
}

OdDbStub* OdDbHandleMap::find(std::uint64_t handle) const {
    return slots.empty() || handle == 0 ? nullptr : slots[slotOf(handle)];
}

void OdDbHandleMap::grow() {
    std::vector<OdDbStub*> old(std::max<std::size_t>(1024, slots.size() * 2));
    old.swap(slots);
    for (OdDbStub* stub : old)
        if (stub)
            slots[slotOf(stub->handle)] = stub;
}
