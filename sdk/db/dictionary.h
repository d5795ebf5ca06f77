// A dictionary of a drawing: names and the objects they stand for. Names ignore case and keep their spelling.
// Entries whose object is erased or missing count as absent.
#pragma once

#include "sdk/db/object.h"

#include <unordered_map>

// A list of the entries at the time it was made.
class OdDbDictionaryIterator : public OdRxObject {
    ODRX_DECLARE_CLASS(OdDbDictionaryIterator)
public:
    struct Entry {
        OdString name;
        OdDbObjectId id;
    };
    explicit OdDbDictionaryIterator(std::vector<Entry> list) : entries(std::move(list)) {}
    bool done() const { return position >= entries.size(); }
    bool next() {
        ++position;
        return !done();
    }
    OdString name() const { return entries.at(position).name; }
    OdDbObjectId objectId() const { return entries.at(position).id; }
    OdDbObjectPtr getObject(OdDb::OpenMode mode = OdDb::kForRead) const {
        return objectId().openObject(mode);
    }

private:
    std::vector<Entry> entries;
    std::size_t position = 0;
};
using OdDbDictionaryIteratorPtr = OdSmartPtr<OdDbDictionaryIterator>;

namespace OdRx {
enum DictIterType { kDictCollated = 0, kDictSorted = 1 }; // in order of insertion; by name, ignoring case
}

class OdDbDictionary : public OdDbObject {
    ODRX_DECLARE_CLASS(OdDbDictionary)
public:
    OdDbDictionary();
    bool has(const OdString& name) const { return getAt(name).isValid(); }
    bool has(OdDbObjectId id) const { return !nameAt(id).isEmpty(); }
    // The id, or null with eKeyNotFound in `status` where that is given.
    OdDbObjectId getAt(const OdString& name, OdResult* status = nullptr) const;
    OdDbObjectPtr getAt(const OdString& name, OdDb::OpenMode mode) const; // null when there is none
    OdString nameAt(OdDbObjectId id) const;                               // empty when it is no entry
    // Takes a new object into the database. Throws eDuplicateKey for a taken name, eInvalidInput for an empty
    // one.
    OdDbObjectId setAt(const OdString& name, OdDbObject* object);
    // Takes the entry out and gives its id, null when there is none; the object stays in the database.
    OdDbObjectId remove(const OdString& name);
    // Throws eKeyNotFound, and eDuplicateKey when another entry has the new name.
    void setName(const OdString& oldName, const OdString& newName);
    unsigned numEntries() const;
    OdDbDictionaryIteratorPtr newIterator(OdRx::DictIterType order = OdRx::kDictCollated) const;
    OdDbDictionaryIteratorPtr newIterator(int order) const {
        return newIterator(static_cast<OdRx::DictIterType>(order));
    }

    DxfTagList tagsForFile() const override;
    bool refersToErased() const override;

private:
    struct Entry {
        OdString name;
        OdDbStub* stub; // null for a handle that leads nowhere
        bool isAlive() const;
    };
    void contentReplaced() override { cached = false; }
    void fillCache() const;
    std::size_t tagOfEntry(std::size_t entry) const;
    std::size_t findEntry(const OdString& name) const;
    bool isHardOwner() const;

    mutable bool cached = false;
    mutable std::vector<Entry> entries;
    mutable std::unordered_map<std::wstring, std::size_t> byName;
    mutable std::unordered_map<const OdDbStub*, std::size_t> byObject; // the first entry of each
};
using OdDbDictionaryPtr = OdSmartPtr<OdDbDictionary>;
