// Finding an object by its handle is what opening a large drawing spends its time with.
#include "sdk/db/stub.h"

#include <algorithm>

std::size_t OdDbHandleMap::slotOf(std::uint64_t handle) const {
    std::uint64_t mixed = handle * 0x9E3779B97F4A7C15ull;
    mixed ^= mixed >> 29;
    std::size_t slot = static_cast<std::size_t>(mixed) & (cells.size() - 1);
    while (cells[slot] && cells[slot]->handle != handle)
        slot = (slot + 1) & (cells.size() - 1);
    return slot;
}

bool OdDbHandleMap::insertPlain(OdDbStub* stub) {
    const auto place = static_cast<std::size_t>(stub->handle);
    if (place >= plain.size())
        plain.resize(std::min(static_cast<std::size_t>(plainEnd), std::max(place + 1, plain.size() * 2)));
    if (plain[place])
        return false;
    plain[place] = stub;
    count(stub->handle);
    return true;
}

bool OdDbHandleMap::insert(OdDbStub* stub) {
    if (stub->handle < plainEnd)
        return insertPlain(stub);
    if (used * 3 >= cells.size() * 2)
        grow();
    const std::size_t slot = slotOf(stub->handle);
    if (cells[slot])
        return false;
    cells[slot] = stub;
    ++used;
    count(stub->handle);
    return true;
}

void OdDbHandleMap::replace(OdDbStub* stub) {
    if (stub->handle < plainEnd)
        plain[static_cast<std::size_t>(stub->handle)] = stub;
    else
        cells[slotOf(stub->handle)] = stub;
}

OdDbStub* OdDbHandleMap::find(std::uint64_t handle) const {
    if (handle < plainEnd)
        return handle < plain.size() ? plain[static_cast<std::size_t>(handle)] : nullptr;
    return cells.empty() || handle == 0 ? nullptr : cells[slotOf(handle)];
}

void OdDbHandleMap::grow() {
    std::vector<OdDbStub*> old(std::max<std::size_t>(1024, cells.size() * 2));
    old.swap(cells);
    for (OdDbStub* stub : old)
        if (stub)
            cells[slotOf(stub->handle)] = stub;
}
