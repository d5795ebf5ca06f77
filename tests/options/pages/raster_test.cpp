// The page of raster formats as it is read, shown and written. What the user does to the rows is in
// raster_edits_test.cpp.
#include "host/typed_reads.h"
#include "options/pages/raster/raster_page.h"
#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/page_rows.h"
#include "options/window/page_calls.h"
#include "tests/options/pages/raster_fixture.h"

#include <QIcon>

namespace {

using RasterFormats = RasterFixture;

} // namespace

TEST_F(RasterFormats, StandInTheOrderOfTheirNumbers) {
    addFormat(1, "tif");
    addFormat(2, "bmp");
    addFormat(3, "png");
    open();
    EXPECT_EQ(rowsBelow(page()), (QStringList{"tif", "bmp", "png"}));
}

TEST_F(RasterFormats, AfterAGapNothingIsLoadedAndApplyLeavesWhatLiesBeyond) {
    addFormat(1, "tif");
    addFormat(3, "png");
    open();
    EXPECT_EQ(rowsBelow(page()), QStringList{"tif"});
    apply();
    EXPECT_EQ(numbered(1), "tif");
    EXPECT_EQ(numbered(2), "");
    EXPECT_EQ(numbered(3), "png");
}

TEST_F(RasterFormats, ANumberWhoseValueIsNoPlainTextEndsTheList) {
    addFormat(1, "tif");
    setValue(numbers(), "Format2", 7);
    addFormat(3, "png");
    open();
    EXPECT_EQ(rowsBelow(page()), QStringList{"tif"});
    apply();
    EXPECT_EQ(static_cast<int>(valueOf(host.ioParams(), "Raster", "Format2")), 7);
    EXPECT_EQ(numbered(3), "png");
}

TEST_F(RasterFormats, AListedNameWithoutASectionIsPassedOverAndLeavesTheNumberingOnApply) {
    addFormat(1, "tif");
    setValue(numbers(), "Format2", "ghost");
    addFormat(3, "png");
    open();
    EXPECT_EQ(rowsBelow(page()), (QStringList{"tif", "png"}));
    EXPECT_FALSE(storedFormats().contains("ghost"));
    apply();
    EXPECT_EQ(numbered(1), "tif");
    EXPECT_EQ(numbered(2), "png");
    EXPECT_EQ(numbered(3), "");
}

TEST_F(RasterFormats, MissingValuesTakeTheirDefaults) {
    setValue(numbers(), "Format1", "bare");
    section("bare");
    open();
    const RasterFormat* format = preferences->rasterFormats.first();
    EXPECT_EQ(format->enabled, 1);
    EXPECT_EQ(format->generic, 1);
    EXPECT_EQ(format->canSetup, 1);
    EXPECT_EQ(format->canDelete, 0);
    EXPECT_EQ(format->deleted, 0);
    EXPECT_TRUE(format->defExt.isEmpty());
    EXPECT_EQ(rowsBelow(page()), QStringList{""});
}

TEST_F(RasterFormats, AnExtensionThatIsNoPlainTextCountsAsMissing) {
    setValue(addFormat(1, "tif"), "DefExt", L"tif");
    open();
    EXPECT_TRUE(preferences->rasterFormats.first()->defExt.isEmpty());
}

TEST_F(RasterFormats, ARowCarriesIconRecordAndTranslatedDescription) {
    host.translations[L"Long words"] = L"Lange Worte";
    setValue(addFormat(1, "tif"), "LongDescription", L"Long words");
    open();
    const TreeItem* item = page()->childItem(0);
    EXPECT_EQ(item->description, "Lange Worte");
    EXPECT_EQ(item->nodeType, kNodeRasterFormat);
    EXPECT_EQ(item->payload, preferences->rasterFormats.first());
    EXPECT_EQ(iconOf(item).cacheKey(), iconOf(page()).cacheKey());
    EXPECT_TRUE(checkBoxOf(page()->childItem(0))->isChecked());
    EXPECT_TRUE(checkBoxStandsBeforeLabel(page()->childItem(0)));
}

TEST_F(RasterFormats, WhatARowOffersFollowsFromDeletableAndAdjustable) {
    const struct {
        int canDelete, canSetup;
        unsigned mask;
    } cases[] = {{1, 1, 7}, {1, 0, 3}, {0, 1, 6}, {0, 0, 2}};
    for (int i = 0; i < 4; ++i) {
        const Ref<IParam> format = addFormat(i + 1, QByteArray("f").append(char('a' + i)));
        setValue(format, "CanDelete", cases[i].canDelete);
        setValue(format, "CanSetup", cases[i].canSetup);
    }
    open();
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(page()->childItem(i)->buttonMask, cases[i].mask);
    select(page()->childItem(2));
    EXPECT_FALSE(preferences->deleteButton->isEnabled()) << "not deletable";
    EXPECT_TRUE(preferences->addButton->isEnabled());
    select(page()->childItem(1));
    EXPECT_TRUE(preferences->deleteButton->isEnabled());
    EXPECT_FALSE(preferences->addButton->isEnabled()) << "not adjustable";
    EXPECT_FALSE(chooseInMenu(page()->childItem(2), "Delete"));
    EXPECT_FALSE(chooseInMenu(page()->childItem(1), "Add"));
    EXPECT_EQ(dialogsOpened, 0);
    EXPECT_EQ(page()->childCount(), 4);
}

TEST_F(RasterFormats, UncheckingChangesTheRecordAtOnceAndTheStoreOnApply) {
    addFormat(1, "tif");
    open();
    click(checkBoxOf(row("tif")));
    EXPECT_EQ(preferences->rasterFormats.first()->enabled, 0);
    EXPECT_EQ(stored("tif", "Enabled").vt, kVtEmpty);
    apply();
    EXPECT_EQ(stored("tif", "Enabled").vt, kVtInt);
    EXPECT_EQ(static_cast<int>(stored("tif", "Enabled")), 0);
    click(checkBoxOf(row("tif")));
    EXPECT_EQ(preferences->rasterFormats.first()->enabled, 1) << "not the 2 of a checked box";
    apply();
    EXPECT_EQ(static_cast<int>(stored("tif", "Enabled")), 1);
}

TEST_F(RasterFormats, ADisabledFormatStartsUnchecked) {
    setValue(addFormat(1, "tif"), "Enabled", 0);
    open();
    EXPECT_FALSE(checkBoxOf(row("tif"))->isChecked());
}

TEST_F(RasterFormats, ApplyKeepsValuesAndSectionsThatItDoesNotKnow) {
    const Ref<IParam> format = addFormat(1, "tif");
    setValue(format, "CanSetup", 0);
    setValue(format, "Vendor", "somebody");
    setValue(sectionOf(*format, "Options"), "Format", "tif");
    open();
    apply();
    EXPECT_EQ(static_cast<int>(stored("tif", "CanSetup")), 0);
    EXPECT_EQ(textOf(stored("tif", "Vendor")), "somebody");
    EXPECT_EQ(textOf(stored("tif\\Options", "Format")), "tif");
    EXPECT_EQ(static_cast<int>(stored("tif", "CanDelete")), 0);
}

TEST_F(RasterFormats, WithoutAStoreThePageIsEmptyAndSilent) {
    addFormat(1, "tif");
    host.withhold(typeid(IIOParams));
    open();
    EXPECT_EQ(page()->childCount(), 0);
    apply();
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(RasterFormats, WithoutTheListOfNumbersThePageIsEmptyAndApplyMakesNone) {
    open();
    EXPECT_EQ(page()->childCount(), 0);
    apply();
    EXPECT_FALSE(openChild(&host.ioParams(), "Raster"));
}

TEST_F(RasterFormats, StoringRunsWithoutAnApplication) {
    addFormat(1, "tif");
    open();
    click(checkBoxOf(row("tif")));
    storeRasterFormats(*preferences, nullptr);
    EXPECT_EQ(stored("tif", "Enabled").vt, kVtEmpty);
}

TEST_F(RasterFormats, TheValuesOfAFormatAreWrittenInTheirOrder) {
    setValue(numbers(), "Format1", "bare");
    section("bare");
    open();
    QStringList order;
    host.rules(host.ioParams()).changed = [&] {
        for (const char* name : {"CanDelete", "DefExt", "Description", "Enabled"})
            if (!order.contains(name) && stored("bare", name).vt != kVtEmpty)
                order << name;
    };
    apply();
    host.rules(host.ioParams()).changed = nullptr;
    EXPECT_EQ(order, (QStringList{"Description", "DefExt", "Enabled", "CanDelete"}));
}

TEST_F(RasterFormats, DescriptionsOfEveryFormAreShownWholeAndSurviveApply) {
    const wchar_t* const words = L"A \"b\" %1 <i>c</i>\nd";
    const Ref<IParam> format = addFormat(1, "odd name");
    setValue(format, "Description", words);
    setValue(format, "LongDescription", words);
    open();
    EXPECT_EQ(rowsBelow(page()), QStringList{QString::fromWCharArray(words)});
    EXPECT_EQ(page()->childItem(0)->description, QString::fromWCharArray(words));
    apply();
    EXPECT_EQ(textOf(stored("odd name", "Description")), QString::fromWCharArray(words));
    EXPECT_EQ(textOf(stored("odd name", "LongDescription")), QString::fromWCharArray(words));
    EXPECT_EQ(numbered(1), "odd name");
}

TEST_F(RasterFormats, AStoreThatRefusesInTheMiddleOfApplyLosesNothingInTheDialog) {
    addFormat(1, "tif");
    addFormat(2, "bmp");
    open();
    int changes = 0;
    host.rules(host.ioParams()).mayChange = [&changes] { return ++changes < 4; };
    apply();
    host.rules(host.ioParams()).mayChange = nullptr;
    apply();
    EXPECT_EQ(numbered(1), "tif");
    EXPECT_EQ(numbered(2), "bmp");
    EXPECT_EQ(storedFormats(), (QStringList{"tif", "bmp"}));
}
