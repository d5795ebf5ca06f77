// What a database keeps for each record of its file and for each new object, open or not: its place in the
// file, its handle and its state. Objects themselves are made when they are first opened.
#pragma once

#include "sdk/db/object_id.h"

#include <memory>
#include <string_view>

struct OdDbStub {
    enum Flag : std::uint8_t {
        kErased = 1,
        kChanged = 2, // the object's tags replace those of the file; the database holds the object
        kEntity = 4,
        kStructure = 8, // SECTION, ENDSEC, TABLE without a handle and the like: written, never opened
        kHighlighted = 16,
        kUnwritten = 32, // known to the database, has no record of its own in this version of the file
        kNoHandle = 64   // its record in the file has no handle, or one that it can't have
    };

    std::uint64_t handle = 0;
    OdDbDatabase* database = nullptr;
    OdDbObject* object = nullptr; // null while nobody has it open and it is unchanged
    const char* source = nullptr; // its record in the file; null for a new object
    OdDbStub* owner = nullptr;    // null where only the object itself knows its owner
    std::uint32_t sourceSize = 0;
    std::uint32_t index = 0; // position in the file, new objects behind
    std::uint32_t imageEpoch = 0;
    std::uint16_t type = 0;
    std::uint8_t flags = 0;

    bool has(Flag flag) const { return (flags & flag) != 0; }
    void set(Flag flag, bool on) { flags = static_cast<std::uint8_t>(on ? flags | flag : flags & ~flag); }
    std::string_view bytes() const { return {source, sourceSize}; }
};

// Stubs at addresses that never change, in file order.
class OdDbStubStore {
public:
    OdDbStub& add() {
        if (count % kChunk == 0)
            chunks.push_back(std::make_unique<OdDbStub[]>(kChunk));
        OdDbStub& stub = chunks.back()[count % kChunk];
        stub.index = static_cast<std::uint32_t>(count++);
        return stub;
    }
    std::size_t size() const { return count; }
    OdDbStub& operator[](std::size_t index) const { return chunks[index / kChunk][index % kChunk]; }

private:
    static constexpr std::size_t kChunk = 1024;
    std::vector<std::unique_ptr<OdDbStub[]>> chunks;
    std::size_t count = 0;
};

// From handle to stub. Handles of real files stand close together: those below the number that the size of
// the file lets expect are positions in a plain list, the others are hashed.
class OdDbHandleMap {
public:
    void expectHandlesBelow(std::uint64_t number) { plainEnd = number; }
    // False, and nothing changed, when the handle is taken.
    bool insert(OdDbStub* stub);
    // In the place of the one that has the handle of this one.
    void replace(OdDbStub* stub);
    OdDbStub* find(std::uint64_t handle) const;
    // Of those that leave room for as many again; the few that a damaged file has above them are not counted.
    std::uint64_t highest() const { return top; }
    static constexpr std::uint64_t kCounted = std::uint64_t{1} << 59;

private:
    bool insertPlain(OdDbStub* stub);
    void count(std::uint64_t handle) { top = handle < kCounted && handle > top ? handle : top; }
    std::size_t slotOf(std::uint64_t handle) const;
    void grow();
    std::vector<OdDbStub*> plain;
    std::uint64_t plainEnd = 0;
    std::vector<OdDbStub*> cells;
    std::size_t used = 0;
    std::uint64_t top = 0;
};
