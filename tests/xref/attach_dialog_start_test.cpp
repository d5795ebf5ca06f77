// The attach dialog as it opens: defaults, the parameter map, one file and several.
#include "sdk/db/layer_table.h"
#include "tests/support/local_code_page.h"
#include "tests/xref/attach_dialog_fixture.h"

#include <QGroupBox>
#include <QLayout>

TEST_F(AttachDialog, ControlsHaveTheirDefaults) {
    open(write("part.dxf"));
    EXPECT_TRUE(dialog->initialized);
    EXPECT_TRUE(checked("attachmentRadio"));
    EXPECT_FALSE(checked("overlayRadio"));
    EXPECT_FALSE(checked("scaleOnScreenCheck"));
    EXPECT_FALSE(checked("uniformScaleCheck"));
    EXPECT_TRUE(checked("insertionOnScreenCheck"));
    EXPECT_FALSE(checked("rotationOnScreenCheck"));
    EXPECT_FALSE(checked("autoZoomCheck"));
    for (const char* name : {"scaleXEdit", "scaleYEdit", "scaleZEdit"}) {
        EXPECT_EQ(text(name), "1");
        EXPECT_TRUE(enabled(name));
    }
    for (const char* name : {"insertXEdit", "insertYEdit", "insertZEdit"}) {
        EXPECT_EQ(text(name), "0");
        EXPECT_FALSE(enabled(name));
    }
    EXPECT_EQ(text("angleEdit"), "0");
    EXPECT_TRUE(enabled("angleEdit"));
    EXPECT_EQ(items("pathTypeCombo"), QStringList({"Relative path", "Full path", "No path"}));
    EXPECT_EQ(control<QComboBox>("pathTypeCombo")->currentIndex(), 1);
    EXPECT_TRUE(dialog->testAttribute(Qt::WA_MouseTracking));
}

TEST_F(AttachDialog, ControlsHaveTheirLabelsAndSizes) {
    open(write("part.dxf"));
    EXPECT_EQ(control<QPushButton>("browseButton")->text(), "Browse...");
    for (const char* name : {"scaleOnScreenCheck", "rotationOnScreenCheck", "insertionOnScreenCheck"})
        EXPECT_EQ(control<QCheckBox>(name)->text(), "Specify On-screen");
    EXPECT_EQ(control<QCheckBox>("uniformScaleCheck")->text(), "&Uniform Scale");
    EXPECT_EQ(control<QCheckBox>("autoZoomCheck")->text(), "Auto zoom");
    EXPECT_EQ(control<QLabel>("previewLabel")->size(), QSize(200, 200));
    for (const char* name : {"foundInEdit", "savedPathEdit", "unitEdit", "factorEdit"})
        EXPECT_TRUE(edit(name)->isReadOnly());
    QStringList titles;
    for (const QGroupBox* group : dialog->findChildren<QGroupBox*>())
        titles << group->title();
    titles.sort();
    EXPECT_EQ(titles, QStringList({"Block Unit", "Insertion Point", "Path Type", "Preview", "Reference Type",
                                   "Rotation", "Scale"}));
}

TEST_F(AttachDialog, GroupsButtonsAndRowsHaveTheirSizes) {
    open(write("part.dxf"));
    for (const QGroupBox* group : dialog->findChildren<QGroupBox*>()) {
        const bool isPreview = group->title() == "Preview";
        EXPECT_EQ(group->minimumSize() == QSize(220, 250) && group->size() == QSize(220, 250), isPreview);
        const bool isFixed = isPreview || group->title() == "Reference Type";
        EXPECT_EQ(group->minimumWidth() == 220 && group->maximumWidth() == 220, isFixed);
    }
    for (const char* name : {"browseButton", "okButton", "cancelButton", "helpButton"}) {
        EXPECT_EQ(control<QWidget>(name)->minimumWidth(), 80) << name;
        EXPECT_EQ(control<QWidget>(name)->height(), 25) << name;
    }
    for (const char* name : {"nameCombo", "foundInEdit", "savedPathEdit"})
        EXPECT_EQ(control<QWidget>(name)->height(), 25) << name;
    EXPECT_EQ(control<QWidget>("nameCombo")->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    const QLayout* rows = dialog->layout();
    EXPECT_EQ(rows->itemAt(rows->count() - 1)->layout()->contentsMargins(), QMargins(0, 10, 0, 0));
}

TEST_F(AttachDialog, EmptyMapOpensWithoutAFile) {
    open();
    EXPECT_TRUE(dialog->initialized);
    EXPECT_EQ(items("nameCombo"), QStringList(""));
    EXPECT_EQ(text("unitEdit"), "");
    EXPECT_EQ(text("factorEdit"), "");
}

TEST_F(AttachDialog, OneFileShowsItsNameItsPathAndItsUnits) {
    drawing->setINSUNITS(OdDb::kUnitsMillimeters);
    const QString path = write("part.v2.dxf", OdDb::kUnitsInches);
    open(path);
    EXPECT_FALSE(dialog->multipleFiles);
    EXPECT_EQ(dialog->name, "part");
    EXPECT_EQ(dialog->path, path);
    EXPECT_EQ(dialog->fileName, "part.v2.dxf");
    EXPECT_EQ(items("nameCombo"), QStringList("part"));
    EXPECT_EQ(text("foundInEdit"), path);
    EXPECT_EQ(text("savedPathEdit"), path);
    EXPECT_EQ(text("unitEdit"), "");
    EXPECT_EQ(text("factorEdit"), "25.4");
    EXPECT_EQ(referenceNames(), QStringList("part"));
}

TEST_F(AttachDialog, MissingFileOpensWithoutUnits) {
    open(inFolder("gone.dxf"));
    EXPECT_TRUE(dialog->initialized);
    EXPECT_EQ(text("factorEdit"), "");
    EXPECT_EQ(text("foundInEdit"), inFolder("gone.dxf"));
}

TEST_F(AttachDialog, FileWithoutABaseNameIsNotShown) {
    open(writeBytes(".dxf", "nothing"));
    EXPECT_FALSE(dialog->initialized);
    EXPECT_TRUE(referenceNames().isEmpty());
}

TEST_F(AttachDialog, FileThatIsThereAlreadyShowsItsOwnName) {
    define("Known", write("part.dxf"));
    open(inFolder("part.dxf"));
    EXPECT_EQ(dialog->name, "Known");
    EXPECT_EQ(control<QComboBox>("nameCombo")->currentText(), "Known");
    EXPECT_EQ(referenceNames(), QStringList("Known"));
}

TEST_F(AttachDialog, PlainBlockOfThatNameIsLeftAlone) {
    addPlainBlock(L"part");
    open(write("part.dxf"));
    EXPECT_EQ(dialog->name, "part_1");
    EXPECT_EQ(dialog->path, inFolder("part.dxf"));
    EXPECT_FALSE(block("part")->isFromExternalReference());
}

TEST_F(AttachDialog, TwoFilesVary) {
    open(write("a.dxf") + ";" + write("b.dxf"));
    EXPECT_TRUE(dialog->initialized);
    EXPECT_TRUE(dialog->multipleFiles);
    EXPECT_EQ(items("nameCombo"), QStringList("Varies"));
    EXPECT_EQ(control<QComboBox>("nameCombo")->currentText(), "Varies");
    EXPECT_FALSE(enabled("nameCombo"));
    EXPECT_FALSE(enabled("browseButton"));
    for (const char* name : {"scaleOnScreenCheck", "rotationOnScreenCheck", "insertionOnScreenCheck"}) {
        EXPECT_FALSE(checked(name));
        EXPECT_FALSE(enabled(name));
    }
    for (const char* name :
         {"scaleXEdit", "scaleYEdit", "scaleZEdit", "insertXEdit", "insertYEdit", "insertZEdit", "angleEdit"})
        EXPECT_TRUE(enabled(name));
    EXPECT_EQ(text("foundInEdit"), "Varies");
    EXPECT_EQ(text("savedPathEdit"), "Varies");
    EXPECT_EQ(text("unitEdit"), "Unitless");
    EXPECT_EQ(text("factorEdit"), "1");
    EXPECT_TRUE(referenceNames().isEmpty());
}

TEST_F(AttachDialog, OnScreenBoxesOfTheMapAreOffForSeveralFiles) {
    give("SCALE_SPECIFY_ON_SCREEN", 1);
    give("ROTATION_SPECIFY_ON_SCREEN", 1);
    open(write("a.dxf"));
    ASSERT_TRUE(checked("scaleOnScreenCheck"));
    ASSERT_TRUE(checked("rotationOnScreenCheck"));
    ASSERT_FALSE(enabled("scaleXEdit"));
    open("a.dxf;b.dxf");
    EXPECT_FALSE(checked("scaleOnScreenCheck"));
    EXPECT_FALSE(checked("rotationOnScreenCheck"));
    EXPECT_TRUE(enabled("scaleXEdit"));
}

TEST_F(AttachDialog, EntriesStandForTheNonEmptyParts) {
    addPlainBlock(L"b");
    open("/x/a.dxf;;/x/b.c.dxf");
    ASSERT_EQ(dialog->entries.size(), 2u);
    EXPECT_EQ(dialog->entries[0].name, "a");
    EXPECT_EQ(dialog->entries[0].path, "/x/a.dxf");
    EXPECT_FALSE(dialog->entries[0].flag);
    EXPECT_EQ(dialog->entries[1].name, "b");
    EXPECT_TRUE(dialog->entries[1].flag);
    std::vector<XRefEntry> others(5);
    EXPECT_TRUE(fillEntries("/x/c.dxf", others));
    ASSERT_EQ(others.size(), 1u) << "in the place of what was there";
    EXPECT_EQ(others[0].savedPath, "/x/c.dxf");
}

TEST_F(AttachDialog, MapFillsTheControls) {
    give("INSERTION_POINT", 2.5);
    give("SCALE", 3.0);
    give("ROTATION", 1.5);
    give("PATH_TYPE", 2);
    give("REFERENCE_TYPE", 7);
    give("SCALE_SPECIFY_ON_SCREEN", 1);
    give("ROTATION_SPECIFY_ON_SCREEN", 1);
    give("INSERTION_POINT_SPECIFY_ON_SCREEN", 0);
    give("UNIFORM_SCALE", 1);
    give("AUTO_ZOOM", 1);
    open(write("part.dxf"));
    for (const char* name : {"insertXEdit", "insertYEdit", "insertZEdit"}) {
        EXPECT_EQ(text(name), "2.5");
        EXPECT_TRUE(enabled(name));
    }
    for (const char* name : {"scaleXEdit", "scaleYEdit", "scaleZEdit"}) {
        EXPECT_EQ(text(name), "3");
        EXPECT_FALSE(enabled(name));
    }
    EXPECT_EQ(text("angleEdit"), "1.5");
    EXPECT_FALSE(enabled("angleEdit"));
    EXPECT_EQ(text("savedPathEdit"), "part.dxf");
    EXPECT_TRUE(checked("overlayRadio"));
    EXPECT_TRUE(block("part")->isFromOverlayReference());
    for (const char* name :
         {"scaleOnScreenCheck", "rotationOnScreenCheck", "uniformScaleCheck", "autoZoomCheck"})
        EXPECT_TRUE(checked(name));
    EXPECT_FALSE(checked("insertionOnScreenCheck"));
}

TEST_F(AttachDialog, NumbersOfTheMapKeepTheirDigits) {
    give("INSERTION_POINT", 1234567.125);
    give("SCALE", 0.00001234567);
    give("ROTATION", 3.141592653589793);
    open(write("part.dxf"));
    EXPECT_EQ(text("insertZEdit"), "1234567.125");
    EXPECT_EQ(text("scaleZEdit"), "0.00001234567");
    EXPECT_EQ(text("angleEdit"), "3.141592653589793");
}

TEST_F(AttachDialog, PathTypeThatIsNoRowOfTheListCountsAsAbsent) {
    provideServices();
    store("xAttachRefPathType", 2);
    for (const int row : {-1, 3, 17}) {
        give("PATH_TYPE", row);
        open(write("part.dxf"));
        EXPECT_EQ(control<QComboBox>("pathTypeCombo")->currentIndex(), 2) << row;
    }
    give("PATH_TYPE", 0);
    open(write("part.dxf"));
    EXPECT_EQ(control<QComboBox>("pathTypeCombo")->currentIndex(), 0);
}

TEST_F(AttachDialog, ReferenceTypeZeroOfTheMapIsAnAttachmentThoughAnOverlayIsStored) {
    provideServices();
    store("xAttachRefType", 0); // of the radio button "Attachment"
    open(write("part.dxf"));
    EXPECT_TRUE(checked("overlayRadio"));
    give("REFERENCE_TYPE", 0);
    open(write("part.dxf"));
    EXPECT_TRUE(checked("attachmentRadio"));
    EXPECT_FALSE(checked("overlayRadio"));
    EXPECT_FALSE(block("part")->isFromOverlayReference());
}

TEST_F(AttachDialog, BlockRecordOfAnotherClassPassesToTheCaller) {
    open(write("part.dxf"));
    const OdSmartPtr<OdDbLayerTableRecord> stranger(new OdDbLayerTableRecord);
    stranger->setName(L"stranger");
    blocks()->OdDbSymbolTable::add(stranger.get());
    OdDbBlockTableRecordPtr record;
    EXPECT_THROW(dialog->updateUnit("stranger", record), OdError_NotThatKindOfClass);
}

TEST_F(AttachDialog, NameThatTheLocaleCannotExpressIsNotFound) {
    const QString name = QString::fromUtf8("\xD0\x96");
    define(name, write("part.dxf", OdDb::kUnitsMeters));
    drawing->setINSUNITS(OdDb::kUnitsMillimeters);
    open(inFolder("part.dxf"));
    OdDbBlockTableRecordPtr record;
    dialog->updateUnit(name, record);
    EXPECT_FALSE(record.isNull());
    const LocalCodePage western("ISO-8859-1");
    dialog->updateUnit(name, record);
    EXPECT_TRUE(record.isNull());
}

TEST_F(AttachDialog, IntegerForANumberLeavesTheDefault) {
    give("SCALE", 3.0);
    open(write("part.dxf"));
    ASSERT_EQ(text("scaleXEdit"), "3");
    give("SCALE", 3);
    open(write("part.dxf"));
    EXPECT_EQ(text("scaleXEdit"), "1");
}

TEST_F(AttachDialog, NameWithoutABaseShowsTheMessageAndGoesOn) {
    give("NAME", "part");
    open();
    EXPECT_EQ(noticeTexts(), QStringList(notOnOneDisk));
    EXPECT_TRUE(dialog->initialized);
    EXPECT_EQ(dialog->name, "part");
}

TEST_F(AttachDialog, NameIsFoundIgnoringCaseAndTakesTheSpellingOfTheReference) {
    define("other", write("other.dxf"));
    define("Part", write("part.dxf"));
    give("NAME", "PART");
    open();
    EXPECT_EQ(dialog->name, "Part");
    EXPECT_EQ(control<QComboBox>("nameCombo")->currentText(), "Part");
    EXPECT_EQ(dialog->path, inFolder("part.dxf"));
}

TEST_F(AttachDialog, NameInAnUnsavedDrawingShowsBothMessages) {
    name(QString());
    give("NAME", "part");
    open();
    EXPECT_EQ(noticeTexts(), QStringList({notSaved, notOnOneDisk}));
    EXPECT_EQ(host.notices()[0].kind, 0);
    EXPECT_EQ(host.notices()[0].buttons, 7);
}

TEST_F(AttachDialog, DrawingWhoseDocumentHasNoFileCountsAsUnsaved) {
    host.document.path = OdString();
    give("NAME", "part");
    open();
    EXPECT_EQ(noticeTexts(), QStringList({notSaved, notOnOneDisk}));
}

TEST_F(AttachDialog, NameBesideTheDrawingIsFoundWithABase) {
    provideServices();
    drawing->writeFile(odPath("site.dxf"));
    write("part.dxf");
    give("NAME", "part.dxf");
    open();
    EXPECT_TRUE(host.notices().empty());
    EXPECT_TRUE(dialog->initialized);
    EXPECT_EQ(text("foundInEdit"), inFolder("part.dxf"));
    EXPECT_EQ(control<QComboBox>("pathTypeCombo")->currentIndex(), 0);
    EXPECT_EQ(text("savedPathEdit"), "part.dxf");
    EXPECT_EQ(referenceNames(), QStringList("part.dxf"));
}

TEST_F(AttachDialog, BlockNameThatIsNoBlockRecordThrowsNothingWhenMissing) {
    drawing->setINSUNITS(OdDb::kUnitsMillimeters);
    open(write("part.dxf", OdDb::kUnitsInches));
    OdDbBlockTableRecordPtr record = block("part");
    dialog->updateUnit("no such block", record);
    EXPECT_TRUE(record.isNull());
    EXPECT_EQ(text("factorEdit"), "25.4");
    dialog->updateFromRecord(record);
    EXPECT_EQ(dialog->path, inFolder("part.dxf"));
}

TEST_F(AttachDialog, DestructorAbortsWhatItHasLeftOpen) {
    drawing->startTransaction();
    open(write("part.dxf"));
    EXPECT_EQ(drawing->numActiveTransactions(), 2);
    drawing->startTransaction();
    dialog.reset();
    EXPECT_EQ(drawing->numActiveTransactions(), 1);
    EXPECT_TRUE(referenceNames().isEmpty());
    drawing->abortTransaction();
}
