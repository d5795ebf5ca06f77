// The page of raster formats: reading, rows, writing, adding and deleting.
#include "host/typed_reads.h"
#include "options/pages/clickable_label.h"
#include "options/pages/page_rows.h"
#include "options/pages/raster_page.h"
#include "tests/options/pages/raster_fixture.h"

#include <QIcon>

namespace {

class RasterFormats : public RasterFixture {
protected:
    void addAs(const QString& name, const QString& description) {
        whenDialogOpens([=](QDialog& dialog) {
            typeInto(dialog, "nameEdit", name);
            typeInto(dialog, "descriptionEdit", description);
            clickOn(dialog, "okButton");
        });
        click(preferences->addButton);
    }
    void deleteRow(const QString& text, EV_MB_RET button = EV_MB_YES) {
        host.answer(button);
        select(row(text));
        click(preferences->deleteButton);
    }
};

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

TEST_F(RasterFormats, AnAddedFormatComesUpEnabledAndDeletableWhateverItsModelWas) {
    const Ref<IParam> model = addFormat(1, "tif");
    setValue(model, "Enabled", 0);
    setValue(model, "Generic", 1);
    setValue(model, "Vendor", "somebody");
    open();
    select(row("tif"));
    addAs("mine", "My format");
    TreeItem* added = row("My format");
    EXPECT_TRUE(checkBoxOf(added)->isChecked());
    EXPECT_EQ(added->buttonMask, 7u);
    EXPECT_EQ(added->parentItem(), page());
    EXPECT_EQ(preferences->rasterFormats.last()->enabled, 1);
    EXPECT_EQ(preferences->rasterFormats.last()->canDelete, 1);
    EXPECT_FALSE(storedFormats().contains("mine")) << "the store waits for Apply";
    apply();
    EXPECT_EQ(numbered(2), "mine");
    EXPECT_EQ(textOf(stored("mine", "Description")), "My format");
    EXPECT_EQ(textOf(stored("mine", "DefExt")), "tif");
    EXPECT_EQ(static_cast<int>(stored("mine", "Enabled")), 1);
    EXPECT_EQ(static_cast<int>(stored("mine", "CanDelete")), 1);
    EXPECT_EQ(static_cast<int>(stored("mine", "Generic")), 0);
    EXPECT_EQ(textOf(stored("mine", "Vendor")), "somebody");
}

TEST_F(RasterFormats, ACancelledAddLeavesNothingBehind) {
    addFormat(1, "tif");
    open();
    select(row("tif"));
    whenDialogOpens([](QDialog& dialog) { clickOn(dialog, "cancelButton"); });
    click(preferences->addButton);
    EXPECT_EQ(dialogsOpened, 1);
    EXPECT_EQ(preferences->rasterFormats.size(), 1);
    EXPECT_EQ(page()->childCount(), 1);
}

TEST_F(RasterFormats, AddIsDroppedWhenTheStoreIsGone) {
    addFormat(1, "tif");
    open();
    select(row("tif"));
    host.withhold(typeid(IIOParams));
    whenDialogOpens([](QDialog& dialog) { clickOn(dialog, "okButton"); });
    click(preferences->addButton);
    EXPECT_EQ(dialogsOpened, 0);
    EXPECT_EQ(page()->childCount(), 1);
}

TEST_F(RasterFormats, ADoubleClickModifiesTheDescriptionOfARow) {
    addFormat(1, "tif");
    open();
    QString title;
    QWidget* parent = nullptr;
    whenDialogOpens([&](QDialog& dialog) {
        parent = dialog.parentWidget();
        title = dialog.windowTitle();
        EXPECT_EQ(editText(dialog, "nameEdit"), "tif");
        EXPECT_FALSE(named<QLineEdit>(dialog, "nameEdit")->isEnabled());
        typeInto(dialog, "descriptionEdit", "Tagged %1 <i>images</i>");
        clickOn(dialog, "okButton");
    });
    click(checkBoxOf(row("tif")));
    doubleClick(row("tif"));
    EXPECT_EQ(title, "Modify Raster Format");
    EXPECT_EQ(parent, preferences.get());
    EXPECT_EQ(rowsBelow(page()), QStringList{"Tagged %1 <i>images</i>"});
    EXPECT_EQ(labelOf(page()->childItem(0))->toolTip(), "Tagged %1 <i>images</i>");
    EXPECT_FALSE(checkBoxOf(page()->childItem(0))->isChecked());
    apply();
    EXPECT_EQ(textOf(stored("tif", "Description")), "Tagged %1 <i>images</i>");
}

TEST_F(RasterFormats, AModifiedExtensionReachesTheStoreOnApply) {
    setValue(addFormat(1, "tif"), "Generic", 0);
    open();
    whenDialogOpens([](QDialog& dialog) {
        typeInto(dialog, "extensionEdit", "tiff");
        clickOn(dialog, "okButton");
    });
    EXPECT_TRUE(chooseInMenu(row("tif"), "Modify"));
    EXPECT_EQ(textOf(stored("tif", "DefExt")), "tif");
    apply();
    EXPECT_EQ(stored("tif", "DefExt").vt, kVtString);
    EXPECT_EQ(textOf(stored("tif", "DefExt")), "tiff");
}

TEST_F(RasterFormats, ACancelledModifyChangesNothing) {
    addFormat(1, "tif");
    open();
    whenDialogOpens([](QDialog& dialog) {
        typeInto(dialog, "descriptionEdit", "Other");
        clickOn(dialog, "cancelButton");
    });
    EXPECT_TRUE(chooseInMenu(row("tif"), "Modify"));
    EXPECT_EQ(dialogsOpened, 1);
    EXPECT_EQ(rowsBelow(page()), QStringList{"tif"});
    EXPECT_EQ(hostqt::qString(preferences->rasterFormats.first()->description), "tif");
}

TEST_F(RasterFormats, DeletingAsksAndWaitsForApply) {
    addFreeFormat(1, "tif");
    addFreeFormat(2, "bmp");
    addFormat(3, "png");
    open();
    deleteRow("bmp");
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].title, "Raster format delete");
    EXPECT_EQ(host.messages[0].text, "Do you really want to delete raster format :\nbmp?");
    EXPECT_EQ(int(host.messages[0].buttons), EV_MB_YES | EV_MB_NO);
    EXPECT_EQ(rowsBelow(page()), (QStringList{"tif", "png"}));
    ASSERT_EQ(preferences->rasterFormats.size(), 3) << "the record waits for Apply";
    EXPECT_EQ(preferences->rasterFormats[1]->deleted, 1);
    EXPECT_TRUE(storedFormats().contains("bmp"));
    apply();
    EXPECT_EQ(storedFormats(), (QStringList{"tif", "png"}));
    EXPECT_EQ(numbered(1), "tif");
    EXPECT_EQ(numbered(2), "png") << "numbered again without a gap";
    EXPECT_EQ(numbered(3), "");
    apply();
    EXPECT_EQ(storedFormats(), (QStringList{"tif", "png"}));
}

TEST_F(RasterFormats, ADeletedRowIsForgottenByTheDialog) {
    addFreeFormat(1, "tif");
    addFormat(2, "bmp");
    open();
    const int before = preferences->rowWidgets.size();
    deleteRow("tif");
    EXPECT_EQ(preferences->rowWidgets.size(), before - 1);
    EXPECT_EQ(page()->childCount(), 1);
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

TEST_F(RasterFormats, DeletingIsDroppedOnNo) {
    addFreeFormat(1, "tif");
    open();
    deleteRow("tif", EV_MB_NO);
    EXPECT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(rowsBelow(page()), QStringList{"tif"});
    EXPECT_EQ(preferences->rasterFormats.first()->deleted, 0);
}

TEST_F(RasterFormats, ADeletedFormatComesBackWhenTheDialogIsCancelled) {
    addFreeFormat(1, "tif");
    open();
    deleteRow("tif");
    click(preferences->cancelButton);
    open();
    EXPECT_EQ(rowsBelow(page()), QStringList{"tif"});
}

TEST_F(RasterFormats, AFormatAddedAndDeletedBeforeApplyLeavesNoTrace) {
    addFormat(1, "tif");
    open();
    select(row("tif"));
    addAs("mine", "My format");
    deleteRow("My format");
    apply();
    EXPECT_EQ(storedFormats(), QStringList{"tif"});
    EXPECT_EQ(numbered(2), "");
}

TEST_F(RasterFormats, ADeletedFormatTakesTheSectionOfALiveOneOfTheSameNameWithIt) {
    addFormat(1, "tif");
    open();
    select(row("tif"));
    addAs("tif", "Second");
    deleteRow("Second");
    apply();
    EXPECT_EQ(numbered(1), "tif");
    EXPECT_TRUE(storedFormats().isEmpty());
}

TEST_F(RasterFormats, AFormatWithAnEmptyNameIsTaken) {
    addFormat(1, "tif");
    open();
    select(row("tif"));
    addAs("", "Nameless");
    EXPECT_TRUE(host.messages.empty());
    apply();
    EXPECT_EQ(valueOf(host.ioParams(), "Raster", "Format2").vt, kVtString);
    EXPECT_EQ(numbered(2), "");
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
