// The attach dialog in use: its controls, path types, the checks of the numbers, and OK.
#include "tests/xref/attach_dialog_fixture.h"

#include <QValidator>

TEST_F(AttachDialog, OnScreenBoxesDisableTheirEdits) {
    open(write("part.dxf"));
    click("rotationOnScreenCheck");
    click("scaleOnScreenCheck");
    click("insertionOnScreenCheck");
    EXPECT_FALSE(enabled("angleEdit"));
    for (const char* name : {"scaleXEdit", "scaleYEdit", "scaleZEdit"})
        EXPECT_FALSE(enabled(name));
    for (const char* name : {"insertXEdit", "insertYEdit", "insertZEdit"})
        EXPECT_TRUE(enabled(name));
    click("rotationOnScreenCheck");
    EXPECT_TRUE(enabled("angleEdit"));
}

TEST_F(AttachDialog, UniformScaleFollowsX) {
    open(write("part.dxf"));
    type("scaleXEdit", "2");
    EXPECT_EQ(text("scaleYEdit"), "1");
    click("uniformScaleCheck");
    EXPECT_EQ(text("scaleYEdit"), "2");
    EXPECT_EQ(text("scaleZEdit"), "2");
    EXPECT_FALSE(enabled("scaleYEdit"));
    type("scaleXEdit", "3.25");
    EXPECT_EQ(text("scaleYEdit"), "3.25");
    EXPECT_EQ(text("scaleZEdit"), "3.25");
    click("uniformScaleCheck");
    EXPECT_TRUE(enabled("scaleYEdit"));
    EXPECT_TRUE(enabled("scaleZEdit"));
}

TEST_F(AttachDialog, LeavingUniformScaleReformatsYAndZOnly) {
    open(write("part.dxf"));
    click("uniformScaleCheck");
    type("scaleXEdit", "01.50");
    click("uniformScaleCheck");
    EXPECT_EQ(text("scaleYEdit"), "1.5");
    EXPECT_EQ(text("scaleZEdit"), "1.5");
    EXPECT_EQ(text("scaleXEdit"), "01.50");
}

TEST_F(AttachDialog, UntickingScaleOnScreenFreesAllThreeFactorsThoughTheScaleIsUniform) {
    open(write("part.dxf"));
    click("uniformScaleCheck");
    click("scaleOnScreenCheck");
    for (const char* name : {"scaleXEdit", "scaleYEdit", "scaleZEdit"})
        EXPECT_FALSE(enabled(name)) << name;
    click("scaleOnScreenCheck");
    for (const char* name : {"scaleXEdit", "scaleYEdit", "scaleZEdit"})
        EXPECT_TRUE(enabled(name)) << name;
}

TEST_F(AttachDialog, InsertionOnScreenTakesItsEditsAwayAgain) {
    open(write("part.dxf"));
    click("insertionOnScreenCheck");
    click("insertionOnScreenCheck");
    for (const char* name : {"insertXEdit", "insertYEdit", "insertZEdit"})
        EXPECT_FALSE(enabled(name)) << name;
}

TEST_F(AttachDialog, UniformScaleChangesNothingWhileTheScaleIsSpecifiedOnScreen) {
    open(write("part.dxf"));
    type("scaleXEdit", "2");
    click("scaleOnScreenCheck");
    click("uniformScaleCheck");
    EXPECT_TRUE(checked("uniformScaleCheck"));
    EXPECT_EQ(text("scaleYEdit"), "1");
}

TEST_F(AttachDialog, HelpOpensItsTopic) {
    open(write("part.dxf"));
    click("helpButton");
    EXPECT_EQ(host.helpTopics(), QStringList("IDH_xattach"));
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(AttachDialog, CancelRejects) {
    open(write("part.dxf"));
    click("cancelButton");
    EXPECT_EQ(ended, QDialog::Rejected);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(inserted().empty());
}

TEST_F(AttachDialog, NoPathShowsTheFileNameWithItsExtension) {
    open(write("part.dxf"));
    choose("pathTypeCombo", 2);
    EXPECT_EQ(text("savedPathEdit"), "part.dxf");
    EXPECT_EQ(text("foundInEdit"), inFolder("part.dxf"));
    choose("pathTypeCombo", 1);
    EXPECT_EQ(text("savedPathEdit"), inFolder("part.dxf"));
}

TEST_F(AttachDialog, RelativePathFallsBackToFullWithoutABase) {
    open(write("part.dxf"));
    choose("pathTypeCombo", 0);
    EXPECT_EQ(noticeTexts(), QStringList(notOnOneDisk));
    EXPECT_EQ(control<QComboBox>("pathTypeCombo")->currentIndex(), 1);
    EXPECT_EQ(text("savedPathEdit"), inFolder("part.dxf"));
}

TEST_F(AttachDialog, RelativePathInAnUnsavedDrawingFallsBackToFull) {
    name(QString());
    provideServices();
    open(write("part.dxf"));
    choose("pathTypeCombo", 0);
    EXPECT_EQ(noticeTexts(), QStringList(notSaved));
    EXPECT_EQ(control<QComboBox>("pathTypeCombo")->currentIndex(), 1);
}

TEST_F(AttachDialog, RelativePathCountsFromTheBaseOfTheHost) {
    provideServices();
    QDir(folder.path()).mkdir("parts");
    open(write("parts/part.dxf"));
    choose("pathTypeCombo", 0);
    EXPECT_TRUE(host.notices().empty());
    EXPECT_EQ(control<QComboBox>("pathTypeCombo")->currentIndex(), 0);
    EXPECT_EQ(text("savedPathEdit"), "parts/part.dxf");
}

TEST_F(AttachDialog, ChangingTheRowByProgramRecomputesNothing) {
    open(write("part.dxf"));
    control<QComboBox>("pathTypeCombo")->setCurrentIndex(2);
    EXPECT_EQ(text("savedPathEdit"), inFolder("part.dxf"));
}

TEST_F(AttachDialog, SeveralFilesWithoutAPathKeepTheirBaseNames) {
    open(write("a.b.dxf") + ";" + write("c.dxf"));
    choose("pathTypeCombo", 2);
    EXPECT_EQ(dialog->entries[0].savedPath, "a");
    EXPECT_EQ(dialog->entries[1].savedPath, "c");
    choose("pathTypeCombo", 1);
    EXPECT_EQ(dialog->entries[0].savedPath, inFolder("a.b.dxf"));
}

TEST_F(AttachDialog, SeveralFilesWithARelativePathShowOneMessageAndKeepFullPaths) {
    provideServices();
    open(write("a.dxf") + ";" + inFolder("gone.dxf") + ";" + inFolder("gone too.dxf"));
    choose("pathTypeCombo", 0);
    EXPECT_EQ(noticeTexts(), QStringList(notOnOneDisk));
    EXPECT_EQ(control<QComboBox>("pathTypeCombo")->currentIndex(), 1);
    for (const XRefEntry& entry : dialog->entries)
        EXPECT_EQ(entry.savedPath, entry.path);
}

TEST_F(AttachDialog, SeveralFilesInAnUnsavedDrawingShowOneMessage) {
    name(QString());
    open(write("a.dxf") + ";" + write("b.dxf"));
    choose("pathTypeCombo", 0);
    EXPECT_EQ(noticeTexts(), QStringList(notSaved));
}

TEST_F(AttachDialog, SeveralFilesAreRelativeWithABase) {
    provideServices();
    open(write("a.dxf") + ";" + write("b.dxf"));
    choose("pathTypeCombo", 0);
    EXPECT_TRUE(host.notices().empty());
    EXPECT_EQ(dialog->entries[1].savedPath, "b.dxf");
}

TEST_F(AttachDialog, ChoosingANameShowsThatReference) {
    define("other", write("other.dxf", OdDb::kUnitsMeters));
    drawing->setINSUNITS(OdDb::kUnitsMillimeters);
    open(write("part.dxf"));
    EXPECT_EQ(items("nameCombo"), QStringList({"other", "part"}));
    choose("nameCombo", 0);
    EXPECT_EQ(dialog->name, "other");
    EXPECT_EQ(dialog->path, inFolder("other.dxf"));
    EXPECT_EQ(dialog->fileName, "other.dxf");
    EXPECT_EQ(text("foundInEdit"), inFolder("other.dxf"));
    EXPECT_EQ(text("factorEdit"), "1000");
}

TEST_F(AttachDialog, TypedLettersAreStoppedByTheValidator) {
    open(write("part.dxf"));
    type("angleEdit", "a1b2c");
    EXPECT_EQ(text("angleEdit"), "12");
    for (const char* name : {"scaleXEdit", "insertYEdit"})
        EXPECT_NE(edit(name)->validator(), nullptr);
    EXPECT_EQ(edit("angleEdit")->validator(), edit("scaleXEdit")->validator());
}

TEST_F(AttachDialog, NumbersAreTypedInEnglishAndWithoutAnExponent) {
    open(write("part.dxf"));
    type("angleEdit", "-1.5");
    EXPECT_EQ(text("angleEdit"), "-1.5");
    type("angleEdit", "2e3");
    EXPECT_EQ(text("angleEdit"), "23");
    EXPECT_EQ(edit("angleEdit")->validator()->locale().language(), QLocale::English);
}

namespace {

struct Refusal {
    const char* name;
    const char* edit;
    const char* text;
    const char* message; // empty: the number passes
    bool scaleOnScreen, uniform;
};
void PrintTo(const Refusal& refusal, std::ostream* out) { *out << refusal.name; }
class NumberChecks : public AttachDialog, public testing::WithParamInterface<Refusal> {};

} // namespace

TEST_P(NumberChecks, HoldForTheirCell) {
    open(write("part.dxf"));
    if (GetParam().scaleOnScreen)
        click("scaleOnScreenCheck");
    if (GetParam().uniform)
        click("uniformScaleCheck");
    edit(GetParam().edit)->setEnabled(true);
    edit(GetParam().edit)->setText(GetParam().text);
    click("insertionOnScreenCheck");
    io.script({typed(L"2"), value(1), value(1)});
    click("okButton");
    const bool refused = *GetParam().message != '\0';
    EXPECT_EQ(noticeTexts(), refused ? QStringList(GetParam().message) : QStringList());
    EXPECT_EQ(dialog->isVisible(), refused);
    if (refused) {
        EXPECT_EQ(host.notices()[0].kind, 12);
        EXPECT_TRUE(edit(GetParam().edit)->hasFocus());
    }
}

const char* const kPoint = "Invalid insertion point.";
const char* const kAngle = "Invalid rotation setting.";
const char* const kFactor = "Invalid scale factor. Please enter non-zero numbers.";
const Refusal refusals[] = {
    {"InsertX", "insertXEdit", "", kPoint, false, false},
    {"InsertY", "insertYEdit", "-", kPoint, false, false},
    {"InsertZ", "insertZEdit", "", kPoint, false, false},
    {"Angle", "angleEdit", "", kAngle, false, false},
    {"AngleWithADegreeMarkIsNoDistance", "angleEdit", "45d", kAngle, false, false},
    {"ScaleX", "scaleXEdit", "0", kFactor, false, false},
    {"ScaleXWithinTheBound", "scaleXEdit", "0.0000000000001", kFactor, false, false},
    {"ScaleXJustOutsideTheBound", "scaleXEdit", "0.0000000000002", "", false, false},
    {"ScaleXOnScreen", "scaleXEdit", "0", "", true, false},
    {"ScaleXUniform", "scaleXEdit", "0", kFactor, false, true},
    {"ScaleY", "scaleYEdit", "0", kFactor, false, false},
    {"ScaleYUniform", "scaleYEdit", "0", "", false, true},
    {"ScaleYOnScreen", "scaleYEdit", "0", "", true, false},
    {"ScaleZ", "scaleZEdit", "0", kFactor, false, false},
    {"ScaleZUniform", "scaleZEdit", "0", "", false, true},
    {"ScaleZOnScreen", "scaleZEdit", "0", "", true, false},
    {"ScaleZBelowZero", "scaleZEdit", "-2", "", false, false},
};
INSTANTIATE_TEST_SUITE_P(All, NumberChecks, testing::ValuesIn(refusals),
                         [](const auto& row) { return row.param.name; });

TEST_F(AttachDialog, ChecksStopAtTheFirstFailure) {
    open(write("part.dxf"));
    edit("insertXEdit")->clear();
    edit("scaleXEdit")->setText("0");
    click("okButton");
    EXPECT_EQ(noticeTexts(), QStringList(kPoint));
}

TEST_F(AttachDialog, OkAttachesWithTheNumbersShown) {
    open(write("part.dxf"));
    click("insertionOnScreenCheck");
    type("insertXEdit", "1.5");
    type("insertYEdit", "-2");
    type("scaleXEdit", "2");
    type("scaleYEdit", "3");
    type("angleEdit", "0.5");
    click("overlayRadio");
    choose("pathTypeCombo", 2);
    click("okButton");
    EXPECT_EQ(ended, QDialog::Accepted);
    ASSERT_EQ(inserted().size(), 1u);
    EXPECT_EQ(inserted()[0]->position(), OdGePoint3d(1.5, -2, 0));
    EXPECT_EQ(inserted()[0]->scaleFactors(), OdGeScale3d(2, 3, 1));
    EXPECT_DOUBLE_EQ(inserted()[0]->rotation(), 0.5);
    EXPECT_TRUE(block("part")->isFromOverlayReference());
    EXPECT_EQ(block("part")->pathName(), OdString(L"part.dxf"));
    EXPECT_EQ(referenceNames(), QStringList("part"));
}

TEST_F(AttachDialog, OkSavesThePathInTheFormThatIsChosen) {
    provideServices();
    give("INSERTION_POINT_SPECIFY_ON_SCREEN", 0);
    for (const char* file : {"relative.dxf", "full.dxf"}) {
        open(write(file));
        choose("pathTypeCombo", QString(file) == "relative.dxf" ? 0 : 1);
        click("okButton");
        EXPECT_EQ(ended, QDialog::Accepted);
        drawing->endTransaction(); // as the command does
    }
    EXPECT_EQ(block("relative")->pathName(), OdString(L"relative.dxf"));
    EXPECT_EQ(block("full")->pathName(), odPath("full.dxf"));
}

TEST_F(AttachDialog, ScaleOnScreenStartsFromOne) {
    open(write("part.dxf"));
    type("scaleXEdit", "5");
    click("scaleOnScreenCheck");
    click("insertionOnScreenCheck");
    OdGeScale3d start(9);
    io.onQuestion = [&](const XRefIO::Question&, HostEdPointTracker* tracker) {
        struct Sink : HostDrawableSink {
            void addDrawable(OdRxObject* drawable, int, int, int, int) override {
                shown = static_cast<OdDbBlockReference*>(drawable);
            }
            void removeDrawable(OdRxObject*, int, int, int, int) override {}
            OdDbBlockReference* shown = nullptr;
        } sink;
        tracker->addDrawables(&sink);
        start = sink.shown->scaleFactors();
    };
    io.script({cancel()});
    click("okButton");
    EXPECT_EQ(start, OdGeScale3d(1));
    EXPECT_EQ(ended, QDialog::Rejected);
}

TEST_F(AttachDialog, DialogIsHiddenWhileThePromptsAsk) {
    open(write("part.dxf"));
    bool visible = true;
    io.onQuestion = [&](const XRefIO::Question&, HostEdPointTracker*) { visible = dialog->isVisible(); };
    io.script({pick(1, 2)});
    click("okButton");
    EXPECT_FALSE(visible);
    EXPECT_EQ(ended, QDialog::Accepted);
}

TEST_F(AttachDialog, FilesAreAttachedInTheirOrderAndAllMustSucceed) {
    open(write("b.dxf") + ";" + write("a.dxf") + ";" + write("c.dxf"));
    click("okButton");
    EXPECT_EQ(ended, QDialog::Accepted);
    ASSERT_EQ(inserted().size(), 3u);
    EXPECT_EQ(inserted()[0]->blockName(), OdString(L"b"));
    EXPECT_EQ(inserted()[1]->blockName(), OdString(L"a"));
    EXPECT_EQ(inserted()[2]->blockName(), OdString(L"c"));
}

TEST_F(AttachDialog, FailureOfOneFileRejectsAfterTryingAll) {
    open(write("a.dxf") + ";" + inFolder("gone.dxf") + ";" + write("c.dxf"));
    click("okButton");
    EXPECT_EQ(ended, QDialog::Rejected);
    EXPECT_EQ(inserted().size(), 2u);
    EXPECT_EQ(noticeTexts().size(), 1);
}

TEST_F(AttachDialog, DelimiterAtTheEndMakesTwoPartsOfWhichTheLastFails) {
    open(write("a.dxf") + ";");
    EXPECT_TRUE(dialog->multipleFiles);
    EXPECT_EQ(dialog->entries.size(), 1u);
    click("okButton");
    EXPECT_EQ(ended, QDialog::Rejected);
    EXPECT_EQ(inserted().size(), 1u);
}

TEST_F(AttachDialog, EmptyPartsAreTriedToo) {
    open(write("a.dxf") + ";;" + write("c.dxf"));
    click("okButton");
    EXPECT_EQ(ended, QDialog::Rejected);
    EXPECT_EQ(inserted().size(), 2u);
}
