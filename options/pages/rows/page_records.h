// The owner of the records behind the rows of the pages: the dialog's lists and the payloads of its rows
// borrow from here, so that every record goes with the dialog, by whatever way that goes.
#pragma once

#include "host/ref.h"

#include <memory>
#include <unordered_map>

class IStdDirInfo;

class PageRecords {
public:
    // Takes the record over, until it is dropped.
    template <class Record> Record* keep(std::unique_ptr<Record> record) {
        Record* const kept = record.get();
        records.emplace(kept, std::shared_ptr<void>(std::move(record)));
        return kept;
    }
    // Holds a reference on the object for one row; several rows may keep the same object.
    IStdDirInfo* keep(const Ref<IStdDirInfo>& info);
    // Ends one keeping of the record; null and what isn't kept here are passed over.
    void drop(const void* record);
    void clear() { records.clear(); }

private:
    std::unordered_multimap<const void*, std::shared_ptr<void>> records;
};
