// Browse of the attach dialog, and the settings that it keeps or forgets.
#include "host/typed_reads.h"
#include "tests/support/local_code_page.h"
#include "tests/xref/attach_dialog_fixture.h"

namespace {

class BrowseDialog : public AttachDialog {
protected:
    void browse(const QString& answer) {
        FileDialogDriver driver(answer);
        click("browseButton");
        EXPECT_TRUE(driver.shown);
        mode = driver.mode;
    }
    QFileDialog::FileMode mode = QFileDialog::AnyFile;
};

} // namespace

TEST_F(BrowseDialog, CancelledFileDialogChangesNothing) {
    open(write("part.dxf"));
    browse(QString());
    EXPECT_EQ(dialog->path, inFolder("part.dxf"));
    EXPECT_EQ(referenceNames(), QStringList("part"));
    EXPECT_EQ(mode, QFileDialog::ExistingFile);
}

TEST_F(BrowseDialog, AnotherFileTakesThePlaceOfTheFirst) {
    open(write("part.dxf"));
    browse(write("other.dxf"));
    EXPECT_EQ(dialog->name, "other");
    EXPECT_EQ(dialog->path, inFolder("other.dxf"));
    EXPECT_EQ(dialog->fileName, "other.dxf");
    EXPECT_EQ(text("foundInEdit"), inFolder("other.dxf"));
    EXPECT_EQ(items("nameCombo"), QStringList("other"));
    EXPECT_EQ(referenceNames(), QStringList("other"));
    EXPECT_TRUE(isNewDefinition(block("other")->objectId()));
}

TEST_F(BrowseDialog, FileThatIsThereAlreadyIsTakenOver) {
    define("other", write("other.dxf"));
    open(write("part.dxf"));
    browse(inFolder("other.dxf"));
    EXPECT_EQ(dialog->name, "other");
    EXPECT_FALSE(isNewDefinition(block("other")->objectId()));
    EXPECT_EQ(referenceNames(), QStringList({"other", "part"}));
}

TEST_F(BrowseDialog, StoredPathIsComparedIgnoringCase) {
    define("other", inFolder("OTHER.DXF"));
    open(write("part.dxf"));
    browse(write("other.dxf"));
    EXPECT_EQ(dialog->name, "other");
    EXPECT_EQ(referenceNames(), QStringList({"other", "part"}));
}

TEST_F(BrowseDialog, ReferenceOfThatNameToAnotherFileMakesANumberedName) {
    define("other", "/elsewhere/other.dxf");
    open(write("part.dxf"));
    browse(write("other.dxf"));
    EXPECT_EQ(dialog->name, "other_1");
    EXPECT_EQ(referenceNames(), QStringList({"other", "other_1"}));
}

TEST_F(BrowseDialog, PlainBlockOfThatNameIsTakenAndNoDefinitionIsMade) {
    addPlainBlock(L"other");
    open(write("part.dxf"));
    browse(write("other.dxf"));
    EXPECT_EQ(dialog->name, "other");
    EXPECT_EQ(control<QComboBox>("nameCombo")->currentText(), "other");
    EXPECT_EQ(dialog->path, "") << "that of the plain block, which has none";
    EXPECT_TRUE(referenceNames().isEmpty());
    EXPECT_FALSE(block("other")->isFromExternalReference());
}

TEST_F(BrowseDialog, PlainBlockOfThatNameMakesANumberedNameIfTheHostWantsIt) {
    provideServices();
    addPlainBlock(L"other");
    open(write("part.dxf"));
    browse(write("other.dxf"));
    EXPECT_EQ(dialog->name, "other_1");
    EXPECT_EQ(dialog->path, inFolder("other.dxf"));
    EXPECT_EQ(referenceNames(), QStringList("other_1"));
}

TEST_F(BrowseDialog, DefinitionThatTheDrawingUsesStaysWithItsReferences) {
    const OdDbBlockReferencePtr used(new OdDbBlockReference);
    used->setBlockTableRecord(define("part", write("part.dxf")));
    odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject(OdDb::kForWrite))
        ->appendOdDbEntity(used.get());
    open(inFolder("part.dxf"));
    browse(write("other.dxf"));
    EXPECT_EQ(dialog->name, "other");
    EXPECT_EQ(referenceNames(), QStringList({"part", "other"}));
    EXPECT_EQ(inserted().at(0)->blockTableRecord(), block("part")->objectId());
}

TEST_F(BrowseDialog, TwoFilesThatDifferInCaseAreOneAsTheTextHasItAndTwoIfTheHostWantsIt) {
    define("other", write("OTHER.dxf"));
    write("other.dxf");
    open(write("part.dxf"));
    browse(inFolder("other.dxf"));
    EXPECT_EQ(dialog->name, "other");
    provideServices();
    open(write("part.dxf"));
    browse(inFolder("other.dxf"));
    EXPECT_EQ(dialog->name, "other_1");
    EXPECT_EQ(dialog->path, inFolder("other.dxf"));
}

TEST_F(BrowseDialog, NameThatTheLocaleCannotExpressIsNotFoundAndItsDefinitionStays) {
    const QString former = QString::fromUtf8("\xD0\x96");
    open(write(former + ".dxf"));
    ASSERT_EQ(referenceNames(), QStringList(former));
    const LocalCodePage western("ISO-8859-1");
    browse(write("other.dxf"));
    EXPECT_EQ(dialog->name, "other");
    EXPECT_EQ(referenceNames(), QStringList({former, "other"}));
}

TEST_F(BrowseDialog, OverlayIsPassedOnToTheNewDefinition) {
    open(write("part.dxf"));
    click("overlayRadio");
    browse(write("other.dxf"));
    EXPECT_TRUE(block("other")->isFromOverlayReference());
}

TEST_F(BrowseDialog, FileWithoutABaseNameHasNoEffect) {
    open(write("part.dxf"));
    browse(writeBytes(".dxf", "x"));
    EXPECT_EQ(dialog->name, "part");
    EXPECT_EQ(referenceNames(), QStringList("part"));
}

TEST_F(AttachDialog, WithoutAStoreNoSettingOutlivesTheDialog) {
    open(write("part.dxf"));
    click("autoZoomCheck");
    click("overlayRadio");
    choose("pathTypeCombo", 2);
    click("insertionOnScreenCheck");
    ASSERT_TRUE(checked("autoZoomCheck"));
    ASSERT_TRUE(checked("overlayRadio"));
    ASSERT_FALSE(checked("insertionOnScreenCheck"));
    click("okButton");
    ASSERT_EQ(ended, QDialog::Accepted);
    open(write("other.dxf"));
    EXPECT_FALSE(checked("autoZoomCheck"));
    EXPECT_TRUE(checked("attachmentRadio"));
    EXPECT_TRUE(checked("insertionOnScreenCheck"));
    EXPECT_EQ(control<QComboBox>("pathTypeCombo")->currentIndex(), 1);
}

TEST_F(AttachDialog, SettingsAreKeptInTheStoreOfTheHost) {
    provideServices();
    open(write("part.dxf"));
    for (const char* name : {"autoZoomCheck", "overlayRadio", "insertionOnScreenCheck", "uniformScaleCheck"})
        click(name);
    choose("pathTypeCombo", 2);
    click("okButton");
    const std::pair<const char*, int> expected[] = {{"xAttachRefGrabScale", 0},    {"xAttachRefGrabAngle", 0},
                                                    {"xAttachRefGrabInsPoint", 0}, {"xAttachRefAutoZoom", 1},
                                                    {"xAttachRefUniformScale", 1}, {"xAttachRefType", 0},
                                                    {"xAttachRefPathType", 2}};
    for (const auto& [key, number] : expected) {
        int got = -1;
        EXPECT_EQ(readValue(services->store.get(), key, &got), 1) << key;
        EXPECT_EQ(got, number) << key;
    }
    open(write("other.dxf"));
    EXPECT_TRUE(checked("autoZoomCheck"));
    EXPECT_TRUE(checked("overlayRadio"));
    EXPECT_TRUE(checked("uniformScaleCheck"));
    EXPECT_FALSE(checked("insertionOnScreenCheck"));
    EXPECT_TRUE(enabled("insertXEdit"));
    EXPECT_FALSE(enabled("scaleYEdit"));
    EXPECT_EQ(control<QComboBox>("pathTypeCombo")->currentIndex(), 2);
    EXPECT_EQ(text("savedPathEdit"), "other.dxf");
}

TEST_F(AttachDialog, SeveralFilesLeaveTheThreeOnScreenSettingsAlone) {
    provideServices();
    const char* const onScreen[] = {"xAttachRefGrabScale", "xAttachRefGrabAngle", "xAttachRefGrabInsPoint"};
    for (const char* key : onScreen)
        store(key, 1);
    open(write("a.dxf") + ";" + write("b.dxf"));
    click("autoZoomCheck");
    click("okButton");
    ASSERT_EQ(ended, QDialog::Accepted);
    for (const char* key : onScreen) {
        int kept = -1;
        readValue(services->store.get(), key, &kept);
        EXPECT_EQ(kept, 1) << key;
    }
    int zoom = -1;
    readValue(services->store.get(), "xAttachRefAutoZoom", &zoom);
    EXPECT_EQ(zoom, 1);
}

TEST_F(AttachDialog, CancelKeepsTheSettingsAsTheyWere) {
    provideServices();
    store("xAttachRefAutoZoom", 1);
    open(write("part.dxf"));
    click("autoZoomCheck");
    ASSERT_FALSE(checked("autoZoomCheck"));
    click("cancelButton");
    open(write("part.dxf"));
    EXPECT_TRUE(checked("autoZoomCheck"));
}

TEST_F(AttachDialog, MapGoesBeforeTheSettings) {
    provideServices();
    store("xAttachRefAutoZoom", 1);
    open(write("part.dxf"));
    ASSERT_TRUE(checked("autoZoomCheck"));
    give("AUTO_ZOOM", 0);
    open(write("part.dxf"));
    EXPECT_FALSE(checked("autoZoomCheck"));
}

TEST_F(AttachDialog, SettingThatIsNoRowOfTheListLeavesTheDefault) {
    provideServices();
    const std::pair<int, int> shown[] = {{2, 2}, {17, 1}, {0, 0}, {-1, 1}, {3, 1}};
    for (const auto& [stored, row] : shown) {
        store("xAttachRefPathType", stored);
        open(write("part.dxf"));
        EXPECT_EQ(control<QComboBox>("pathTypeCombo")->currentIndex(), row) << stored;
    }
}
