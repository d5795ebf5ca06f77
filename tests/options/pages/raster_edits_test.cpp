// What a user does to the rows of the raster formats: adding, modifying and deleting.
#include "options/pages/rows/clickable_label.h"
#include "tests/options/pages/raster_fixture.h"

namespace {

class RasterEdits : public RasterFixture {
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

TEST_F(RasterEdits, AnAddedFormatComesUpEnabledAndDeletableWhateverItsModelWas) {
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

TEST_F(RasterEdits, ACancelledAddLeavesNothingBehind) {
    addFormat(1, "tif");
    open();
    select(row("tif"));
    whenDialogOpens([](QDialog& dialog) { clickOn(dialog, "cancelButton"); });
    click(preferences->addButton);
    EXPECT_EQ(dialogsOpened, 1);
    EXPECT_EQ(preferences->rasterFormats.size(), 1);
    EXPECT_EQ(page()->childCount(), 1);
}

TEST_F(RasterEdits, AddIsDroppedWhenTheStoreIsGone) {
    addFormat(1, "tif");
    open();
    select(row("tif"));
    host.withhold(typeid(IIOParams));
    whenDialogOpens([](QDialog& dialog) { clickOn(dialog, "okButton"); });
    click(preferences->addButton);
    EXPECT_EQ(dialogsOpened, 0);
    EXPECT_EQ(page()->childCount(), 1);
}

TEST_F(RasterEdits, ADoubleClickModifiesTheDescriptionOfARow) {
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

TEST_F(RasterEdits, AModifiedExtensionReachesTheStoreOnApply) {
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

TEST_F(RasterEdits, ACancelledModifyChangesNothing) {
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

TEST_F(RasterEdits, DeletingAsksAndWaitsForApply) {
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

TEST_F(RasterEdits, ADeletedRowIsForgottenByTheDialog) {
    addFreeFormat(1, "tif");
    addFormat(2, "bmp");
    open();
    const int before = preferences->rowWidgets.size();
    deleteRow("tif");
    EXPECT_EQ(preferences->rowWidgets.size(), before - 1);
    EXPECT_EQ(page()->childCount(), 1);
}

TEST_F(RasterEdits, DeletingIsDroppedOnNo) {
    addFreeFormat(1, "tif");
    open();
    deleteRow("tif", EV_MB_NO);
    EXPECT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(rowsBelow(page()), QStringList{"tif"});
    EXPECT_EQ(preferences->rasterFormats.first()->deleted, 0);
}

TEST_F(RasterEdits, ADeletedFormatComesBackWhenTheDialogIsCancelled) {
    addFreeFormat(1, "tif");
    open();
    deleteRow("tif");
    click(preferences->cancelButton);
    open();
    EXPECT_EQ(rowsBelow(page()), QStringList{"tif"});
}

TEST_F(RasterEdits, AFormatAddedAndDeletedBeforeApplyLeavesNoTrace) {
    addFormat(1, "tif");
    open();
    select(row("tif"));
    addAs("mine", "My format");
    deleteRow("My format");
    apply();
    EXPECT_EQ(storedFormats(), QStringList{"tif"});
    EXPECT_EQ(numbered(2), "");
}

TEST_F(RasterEdits, ADeletedFormatTakesTheSectionOfALiveOneOfTheSameNameWithIt) {
    addFormat(1, "tif");
    open();
    select(row("tif"));
    addAs("tif", "Second");
    deleteRow("Second");
    apply();
    EXPECT_EQ(numbered(1), "tif");
    EXPECT_TRUE(storedFormats().isEmpty());
}

TEST_F(RasterEdits, AFormatWithAnEmptyNameIsTaken) {
    addFormat(1, "tif");
    open();
    select(row("tif"));
    addAs("", "Nameless");
    EXPECT_TRUE(host.messages.empty());
    apply();
    EXPECT_EQ(valueOf(host.ioParams(), "Raster", "Format2").vt, kVtString);
    EXPECT_EQ(numbered(2), "");
}
