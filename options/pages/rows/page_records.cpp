// Keeps records of different classes in one map, each with its own way to go.
#include "options/pages/rows/page_records.h"

#include "host/std_dirs.h"

IStdDirInfo* PageRecords::keep(const Ref<IStdDirInfo>& info) {
    records.emplace(info.get(), std::make_shared<Ref<IStdDirInfo>>(info));
    return info.get();
}

void PageRecords::drop(const void* record) {
    const auto found = records.find(record);
    if (found != records.end())
        records.erase(found);
}
