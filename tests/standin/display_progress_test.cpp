// Building what is shown of a drawing takes as long as its blocks ask for: it tells how far it is, and can be
// cancelled.
#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/progress.h"
#include "standin/display/display_list.h"

#include <gtest/gtest.h>

namespace {

using namespace standin;

// Counts what it is told, and cancels after so much of it.
struct CountingMeter : OdDbProgressMeter {
    explicit CountingMeter(int allowed) : most(allowed) { odDbSetProgressMeter(this); }
    ~CountingMeter() override { odDbSetProgressMeter(nullptr); }
    bool proceed(Work work, double part) override {
        EXPECT_EQ(work, kShowing);
        EXPECT_GE(part, last);
        last = part;
        return ++reports < most;
    }
    const int most;
    int reports = 0;
    double last = 0;
};

struct DisplayProgress : testing::Test {
    OdDbBlockTableRecordPtr record(const OdDbObjectId& id) {
        return odrxCast<OdDbBlockTableRecord>(id.safeOpenObject(OdDb::kForWrite));
    }
    void addLine(const OdDbObjectId& block, double y) {
        const OdDbLinePtr line(new OdDbLine);
        line->setStartPoint({0, y, 0});
        line->setEndPoint({10, y, 0});
        record(block)->appendOdDbEntity(line.get());
    }
    void insert(const OdDbObjectId& block, const OdDbObjectId& into) {
        const OdDbBlockReferencePtr reference(new OdDbBlockReference);
        reference->setBlockTableRecord(block);
        record(into)->appendOdDbEntity(reference.get());
    }
    // Blocks of ten references each, so deep one in the other.
    OdDbObjectId nestedBlock(int levels) {
        OdDbObjectId inner;
        for (int level = 0; level <= levels; ++level) {
            const OdDbBlockTableRecordPtr block(new OdDbBlockTableRecord);
            block->setName((L"B" + std::to_wstring(level)).c_str());
            const OdDbObjectId id =
                odrxCast<OdDbBlockTable>(drawing->getBlockTableId().safeOpenObject(OdDb::kForWrite))
                    ->add(block.get());
            for (int i = 0; i < 10; ++i)
                if (level == 0)
                    addLine(id, i);
                else
                    insert(inner, id);
            inner = id;
        }
        return inner;
    }
    OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
    DisplayList list{drawing};
};

TEST_F(DisplayProgress, IsToldWhileTheBlocksOfOneObjectAreBuilt) {
    insert(nestedBlock(3), drawing->getModelSpaceId());
    CountingMeter meter(1000000);
    list.refresh();
    EXPECT_GT(meter.reports, 100); // for some 13,000 parts
    EXPECT_LT(meter.reports, 400) << "each report takes time";
    EXPECT_EQ(meter.last, 1);
    EXPECT_FALSE(list.isCancelled());
}

TEST_F(DisplayProgress, CancellingKeepsWhatWasBuiltBefore) {
    const OdDbObjectId space = drawing->getModelSpaceId();
    addLine(space, 100);
    insert(nestedBlock(8), space); // a thousand million lines
    addLine(space, 200);
    {
        CountingMeter meter(50);
        list.refresh();
        EXPECT_EQ(meter.reports, 50) << "the meter is asked again after it has cancelled";
    }
    EXPECT_TRUE(list.isCancelled());
    EXPECT_EQ(list.within({-1e9, -1e9, 1e9, 1e9}).size(), 1u);
    EXPECT_EQ(list.extents().top, 100);
    EXPECT_FALSE(list.isBehind()) << "it would be built again at once";
}

TEST_F(DisplayProgress, WhatWasShownStaysUntilTheNewListIsThere) {
    addLine(drawing->getModelSpaceId(), 100);
    list.refresh();
    struct Looking : CountingMeter {
        explicit Looking(DisplayList& shownList) : CountingMeter(1000), shown(shownList) {}
        bool proceed(Work work, double part) override {
            shown.refresh(); // as a window that is painted meanwhile does
            found.push_back(shown.within({-1e9, -1e9, 1e9, 1e9}).size());
            return CountingMeter::proceed(work, part);
        }
        DisplayList& shown;
        std::vector<std::size_t> found;
    } meter(list);
    addLine(drawing->getModelSpaceId(), 200);
    list.forgetAll();
    list.refresh();
    EXPECT_EQ(meter.found, std::vector<std::size_t>(3, 1u));
    EXPECT_EQ(list.within({-1e9, -1e9, 1e9, 1e9}).size(), 2u);
}

} // namespace
