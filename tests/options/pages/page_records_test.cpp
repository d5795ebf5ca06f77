// The owner of the pages' records: what is kept, and when it goes.
#include "options/pages/rows/page_records.h"

#include "options/pages/directories/std_dir_info.h"

#include <gtest/gtest.h>

namespace {

struct Record {
    explicit Record(int& counter) : alive(counter) { ++alive; }
    ~Record() { --alive; }
    int& alive;
};

std::int64_t countOf(IStdDirInfo* info) { return (info->AddRef(), info->Release()); }

} // namespace

TEST(PageRecords, KeepsARecordUntilItIsDropped) {
    int alive = 0;
    PageRecords records;
    const Record* first = records.keep(std::make_unique<Record>(alive));
    records.keep(std::make_unique<Record>(alive));
    EXPECT_EQ(alive, 2);
    records.drop(first);
    EXPECT_EQ(alive, 1);
}

TEST(PageRecords, GivesEveryRecordBackAtItsEndAndWhenItIsCleared) {
    int alive = 0;
    {
        PageRecords records;
        records.keep(std::make_unique<Record>(alive));
        records.clear();
        EXPECT_EQ(alive, 0) << "cleared";
        records.keep(std::make_unique<Record>(alive));
        ASSERT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0) << "at the end";
}

TEST(PageRecords, PassesOverWhatItDoesNotKeep) {
    int alive = 0;
    PageRecords records;
    const Record* kept = records.keep(std::make_unique<Record>(alive));
    const int stranger = 0;
    records.drop(nullptr);
    records.drop(&stranger);
    EXPECT_EQ(alive, 1);
    records.drop(kept);
    records.drop(kept);
    EXPECT_EQ(alive, 0);
}

TEST(PageRecords, HoldsAReferenceForEachRowOfAnObject) {
    const auto info = Ref<IStdDirInfo>::take(new_StdDirInfo("k", L"/a", 1));
    PageRecords records;
    EXPECT_EQ(records.keep(info), info.get());
    records.keep(info);
    EXPECT_EQ(countOf(info.get()), 3);
    records.drop(info.get());
    EXPECT_EQ(countOf(info.get()), 2) << "the other row's is left";
    records.drop(info.get());
    EXPECT_EQ(countOf(info.get()), 1);
}
