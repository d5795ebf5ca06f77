// Handles and ids of drawing objects. An id stays the same for the life of its database, whatever happens to
// the object, and must not outlive it.
#pragma once

#include "sdk/rx/rx_object.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace OdDb {
enum OpenMode { kForRead = 0, kForWrite = 1, kForNotify = 2 };
}

class OdDbDatabase;
class OdDbObject;
struct OdDbStub;
using OdDbObjectPtr = OdSmartPtr<OdDbObject>;

// The number under which an object is known in its file; 0 is none.
class OdDbHandle {
public:
    OdDbHandle(std::uint64_t number = 0) : value(number) {}
    explicit OdDbHandle(const OdString& hexadecimal); // 0 for text that is no hexadecimal number
    bool isNull() const { return value == 0; }
    std::uint64_t number() const { return value; }
    OdString ascii() const;
    friend bool operator==(OdDbHandle a, OdDbHandle b) { return a.value == b.value; }
    friend bool operator!=(OdDbHandle a, OdDbHandle b) { return a.value != b.value; }

private:
    std::uint64_t value;
};

class OdDbObjectId {
public:
    static const OdDbObjectId kNull;

    OdDbObjectId() = default;
    explicit OdDbObjectId(OdDbStub* objectStub) : stub(objectStub) {}

    bool isNull() const { return stub == nullptr; }
    bool isValid() const { return stub != nullptr; } // of erased objects too
    bool isErased() const;                           // true for the null id as well
    OdDbDatabase* database() const;                  // null for the null id
    OdDbHandle getHandle() const;
    OdRxClass* objectClass() const; // null for the null id
    void setNull() { stub = nullptr; }

    // Null for a null id, and for an erased object unless those are asked for.
    OdDbObjectPtr openObject(OdDb::OpenMode mode = OdDb::kForRead, bool openErased = false) const;
    // Throws OdError with eNullObjectId or eWasErased instead.
    OdDbObjectPtr safeOpenObject(OdDb::OpenMode mode = OdDb::kForRead, bool openErased = false) const;

    OdDbStub* getStub() const { return stub; }
    friend bool operator==(OdDbObjectId a, OdDbObjectId b) { return a.stub == b.stub; }
    friend bool operator!=(OdDbObjectId a, OdDbObjectId b) { return a.stub != b.stub; }
    friend bool operator<(OdDbObjectId a, OdDbObjectId b) { return std::less<OdDbStub*>()(a.stub, b.stub); }

private:
    OdDbStub* stub = nullptr;
};

using OdDbObjectIdArray = std::vector<OdDbObjectId>;

template <> struct std::hash<OdDbObjectId> {
    std::size_t operator()(const OdDbObjectId& id) const { return std::hash<void*>()(id.getStub()); }
};
