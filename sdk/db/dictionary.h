// A dictionary of a drawing: names and the objects they stand for. Names ignore case and keep their spelling.
// Entries whose object is erased or missing count as absent.
#pragma once

#include "sdk/db/object.h"

#include <memory>
#include <unordered_map>

struct OdDbDictionaryEntry {
    OdString name;
    OdDbStub* stub;  // null for a handle that leads nowhere
    std::size_t tag; // of the name; that of the object follows
    bool isAlive() const;
};
using OdDbDictionaryEntries = std::vector<OdDbDictionaryEntry>;

// A list of the entries at the time it was made.
class OdDbDictionaryIterator : public OdRxObject {
    ODRX_DECLARE_CLASS(OdDbDictionaryIterator)
public:
    using Order = std::vector<std::uint32_t>;
    OdDbDictionaryIterator(std::shared_ptr<const OdDbDictionaryEntries> list,
                           std::shared_ptr<const Order> entryOrder)
        : entries(std::move(list)), order(std::move(entryOrder)) {}
    bool done() const { return position >= order->size(); }
    bool next() {
        ++position;
        return !done();
    }
    const OdString& name() const { return entry().name; }
    OdDbObjectId objectId() const { return OdDbObjectId(entry().stub); }
    OdDbObjectPtr getObject(OdDb::OpenMode mode = OdDb::kForRead) const {
        return objectId().openObject(mode);
    }

private:
    const OdDbDictionaryEntry& entry() const { return (*entries)[order->at(position)]; }
    std::shared_ptr<const OdDbDictionaryEntries> entries;
    std::shared_ptr<const Order> order;
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
    using Order = OdDbDictionaryIterator::Order;
    void contentReplaced() override { cached = false; }
    bool staysInMemory() const override { return cached; }
    void contentSpliced(std::size_t position, std::size_t removed, std::size_t inserted) override;
    void fillCache() const;
    void noteEntryAt(std::size_t tag) const;
    void forgetLastEntry();
    void renameEntryAt(std::size_t tag);
    bool areAllAlive() const;
    OdDbDictionaryEntries& ownEntries() const;
    std::shared_ptr<const Order> order(OdRx::DictIterType type) const;
    std::size_t findEntry(const OdString& name) const;
    void removeEntry(std::size_t entry);
    DxfTagList nameTag(const OdString& name) const;

    mutable bool cached = false;
    mutable bool distinct = false; // no name and no object has two entries
    mutable bool hardOwner = false;
    mutable std::size_t dangling = 0;                       // entries without an object
    mutable std::shared_ptr<OdDbDictionaryEntries> entries; // with the iterators, until it changes
    mutable std::shared_ptr<const Order> orders[2];         // of all entries, by OdRx::DictIterType
    mutable std::unordered_map<std::wstring, std::size_t> byName;
    mutable std::unordered_map<const OdDbStub*, std::size_t> byObject; // the first entry of each
};
using OdDbDictionaryPtr = OdSmartPtr<OdDbDictionary>;
