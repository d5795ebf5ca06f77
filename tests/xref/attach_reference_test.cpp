// Attaching one drawing: spaces, units, placing, and the rules of a cancelled prompt.
#include "sdk/db/layer_table.h"
#include "tests/xref/xref_fixture.h"
#include "xref/attach_reference.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// The arguments of attachReference, with those of a plain attach at the origin.
struct Attach {
    OdGePoint3d point{};
    OdGeScale3d scale{};
    bool overlay = false, scaleOnScreen = false, insertionOnScreen = false, rotationOnScreen = false;
    bool uniform = false;
    int pathType = 0;
    bool autoZoom = false;
    double rotation = 0;

    bool of(const QString& path) const {
        return attachReference(hostqt::odString(path), point, scale, overlay, scaleOnScreen,
                               insertionOnScreen, rotationOnScreen, uniform, pathType, autoZoom, rotation);
    }
};

class AttachReference : public XRefTest {
protected:
    Attach attach;
};

} // namespace

TEST_F(AttachReference, PutsTheReferenceIntoModelSpace) {
    attach.point = {1, 2, 3};
    attach.scale = {2, 3, 4};
    attach.rotation = 0.5;
    EXPECT_TRUE(attach.of(write("part.dxf")));
    ASSERT_EQ(inserted().size(), 1u);
    const OdDbBlockReferencePtr reference = inserted()[0];
    EXPECT_EQ(reference->blockName(), OdString(L"part"));
    EXPECT_EQ(reference->position(), OdGePoint3d(1, 2, 3));
    EXPECT_EQ(reference->scaleFactors(), OdGeScale3d(2, 3, 4));
    EXPECT_DOUBLE_EQ(reference->rotation(), 0.5);
    EXPECT_EQ(block("part")->pathName(), odPath("part.dxf"));
    EXPECT_FALSE(block("part")->isFromOverlayReference());
    EXPECT_FALSE(block("part")->xrefDatabase().isNull());
    EXPECT_TRUE(io.questions.empty());
}

TEST_F(AttachReference, OverlayIsNotedInTheDefinition) {
    attach.overlay = true;
    EXPECT_TRUE(attach.of(write("part.dxf")));
    EXPECT_TRUE(block("part")->isFromOverlayReference());
}

TEST_F(AttachReference, PointAndRotationCountInTheUsersCoordinates) {
    setCurrentUCS(drawing.get(), {100, 0, 0}, OdGeVector3d::kYAxis, -OdGeVector3d::kXAxis);
    attach.point = {1, 2, 0};
    attach.of(write("part.dxf"));
    EXPECT_NEAR(inserted().at(0)->position().x, 98, 1e-9);
    EXPECT_NEAR(inserted().at(0)->position().y, 1, 1e-9);
    EXPECT_NEAR(inserted().at(0)->rotation(), 3.14159265358979 / 2, 1e-9);
}

TEST_F(AttachReference, FileWithTheBaseNameOfTheDrawingPrintsTheErrorAndAttachesNothing) {
    write("site.part.dxf");
    EXPECT_FALSE(attach.of(inFolder("site.part.dxf")));
    EXPECT_EQ(io.formatted, QStringList("Error: Possible circular reference to current drawing."));
    EXPECT_THAT(referenceNames(), IsEmpty());
    EXPECT_THAT(inserted(), IsEmpty());
}

TEST_F(AttachReference, BaseNamesAreComparedWithCase) {
    EXPECT_TRUE(attach.of(write("Site.dxf")));
    EXPECT_TRUE(io.formatted.isEmpty());
}

namespace {

class InLayout : public AttachReference {
protected:
    InLayout() {
        OdResBufPtr off = OdResBuf::newRb(OdResBuf::kRtInt16);
        off->setInt16(0);
        drawing->setSysVar(L"TILEMODE", off.get());
        viewport(1);
        write("part.dxf");
    }
    void viewport(int number) {
        OdDbViewportPtr window(new OdDbViewport);
        const OdDbObjectId id =
            odrxCast<OdDbBlockTableRecord>(drawing->getPaperSpaceId().safeOpenObject(OdDb::kForWrite))
                ->appendOdDbEntity(window.get());
        window->setNumber(number);
        drawing->setActiveViewportId(id);
    }
};

} // namespace

TEST_F(InLayout, ViewportNumberOneKeepsTheTargetInPaperSpace) {
    EXPECT_TRUE(attach.of(inFolder("part.dxf")));
    EXPECT_EQ(inserted(drawing->getPaperSpaceId()).size(), 1u);
    EXPECT_THAT(inserted(), IsEmpty());
}

TEST_F(InLayout, ViewportNumberTwoMakesModelSpaceTheTarget) {
    viewport(2);
    EXPECT_TRUE(attach.of(inFolder("part.dxf")));
    EXPECT_THAT(inserted(drawing->getPaperSpaceId()), IsEmpty());
    EXPECT_EQ(inserted().size(), 1u);
}

TEST_F(InLayout, ActiveViewportThatIsNoneFailsAndAttachesNothing) {
    drawing->setActiveViewportId(drawing->getModelSpaceId());
    provideServices();
    EXPECT_FALSE(attach.of(inFolder("part.dxf")));
    EXPECT_EQ(services->reported.value(0), "XattachCmd Exception ");
    EXPECT_THAT(referenceNames(), IsEmpty());
}

namespace {

struct UnitCase {
    const char* name;
    OdDb::UnitsValue drawing, block;
    double factor; // of a given scale of 1
};
void PrintTo(const UnitCase& units, std::ostream* out) { *out << units.name; }
class Units : public AttachReference, public testing::WithParamInterface<UnitCase> {};

} // namespace

TEST_P(Units, ScaleIsDividedByTheFactorOfTheDrawingsAndTheBlocksUnits) {
    drawing->setINSUNITS(GetParam().drawing);
    EXPECT_TRUE(attach.of(write("part.dxf", GetParam().block)));
    EXPECT_NEAR(inserted().at(0)->scaleFactors().sx, GetParam().factor, GetParam().factor * 1e-12);
    EXPECT_EQ(block("part")->blockInsertUnits(), GetParam().block);
}

const UnitCase unitCases[] = {
    {"MillimetresIntoMetres", OdDb::kUnitsMeters, OdDb::kUnitsMillimeters, 0.001},
    {"InchesIntoMillimetres", OdDb::kUnitsMillimeters, OdDb::kUnitsInches, 25.4},
    {"UnitlessIntoMetres", OdDb::kUnitsMeters, OdDb::kUnitsUndefined, 1},
    {"MetresIntoUnitless", OdDb::kUnitsUndefined, OdDb::kUnitsMeters, 1},
};
INSTANTIATE_TEST_SUITE_P(All, Units, testing::ValuesIn(unitCases),
                         [](const auto& row) { return row.param.name; });

TEST_F(AttachReference, UnitsOfAnExistingDefinitionCount) {
    drawing->setINSUNITS(OdDb::kUnitsMeters);
    define("part", write("part.dxf", OdDb::kUnitsMillimeters));
    EXPECT_TRUE(attach.of(inFolder("part.dxf")));
    EXPECT_NEAR(inserted().at(0)->scaleFactors().sx, 0.001, 1e-12);
}

TEST_F(AttachReference, ExistingDefinitionKeepsItsPathAndItsKind) {
    define("part", write("part.dxf"), true);
    attach.pathType = 2;
    EXPECT_TRUE(attach.of(inFolder("part.dxf")));
    EXPECT_TRUE(block("part")->isFromOverlayReference());
    EXPECT_EQ(block("part")->pathName(), odPath("part.dxf"));
    EXPECT_THAT(referenceNames(), ElementsAre("part"));
    EXPECT_EQ(inserted().size(), 1u);
}

TEST_F(AttachReference, SecondAttachOfOneFileSharesTheDefinition) {
    write("part.dxf");
    EXPECT_TRUE(attach.of(inFolder("part.dxf")));
    EXPECT_TRUE(attach.of(inFolder("PART.dxf").replace("PART", "part")));
    EXPECT_THAT(referenceNames(), ElementsAre("part"));
    EXPECT_EQ(inserted().size(), 2u);
}

TEST_F(AttachReference, PathTypeNoneKeepsTheFileNameAlone) {
    attach.pathType = 2;
    EXPECT_TRUE(attach.of(write("part.dxf")));
    EXPECT_EQ(block("part")->pathName(), OdString(L"part.dxf"));
}

TEST_F(AttachReference, RelativePathIsFullWithoutABase) {
    attach.pathType = 1;
    EXPECT_TRUE(attach.of(write("part.dxf")));
    EXPECT_EQ(block("part")->pathName(), odPath("part.dxf"));
}

TEST_F(AttachReference, RelativePathCountsFromTheBaseThatTheHostGives) {
    provideServices();
    QDir(folder.path()).mkdir("parts");
    attach.pathType = 1;
    EXPECT_TRUE(attach.of(write("parts/part.dxf")));
    EXPECT_EQ(block("part")->pathName(), OdString(L"parts/part.dxf"));
}

TEST_F(AttachReference, AutoZoomShowsTheNewEntity) {
    OdDbObjectId shown;
    standin::registry().zoomObject = [&](const OdDbObjectId& id) { shown = id; };
    attach.of(write("a.dxf"));
    EXPECT_TRUE(shown.isNull());
    attach.autoZoom = true;
    attach.of(write("b.dxf"));
    EXPECT_EQ(shown, inserted().back()->objectId());
}

TEST_F(AttachReference, ScaleSettledAtTheInsertionPromptIsNotAskedForAgain) {
    attach.insertionOnScreen = attach.scaleOnScreen = true;
    io.script({keyword(0), typed(L"4"), pick(5, 6)});
    EXPECT_TRUE(attach.of(write("part.dxf")));
    EXPECT_FALSE(io.ranOut);
    EXPECT_EQ(inserted().at(0)->scaleFactors(), OdGeScale3d(4));
    EXPECT_EQ(inserted().at(0)->position(), OdGePoint3d(5, 6, 0));
}

TEST_F(AttachReference, PromptsComeInTheirOrderAndPlaceTheReference) {
    attach.insertionOnScreen = attach.scaleOnScreen = attach.rotationOnScreen = attach.uniform = true;
    io.script({pick(5, 6), typed(L"2"), value(0.25)});
    EXPECT_TRUE(attach.of(write("part.dxf")));
    EXPECT_EQ(io.operations(), QStringList({"getPoint", "getDistance", "getAngle"}));
    EXPECT_EQ(inserted().at(0)->position(), OdGePoint3d(5, 6, 0));
    EXPECT_EQ(inserted().at(0)->scaleFactors(), OdGeScale3d(2));
    EXPECT_DOUBLE_EQ(inserted().at(0)->rotation(), 0.25);
}

namespace {

// The reference that a tracker shows.
struct ShownReference : HostDrawableSink {
    explicit ShownReference(HostEdPointTracker* tracker) { tracker->addDrawables(this); }
    void addDrawable(OdRxObject* drawable, int, int, int, int) override {
        reference = static_cast<OdDbBlockReference*>(drawable);
    }
    void removeDrawable(OdRxObject*, int, int, int, int) override {}
    OdDbBlockReference* reference = nullptr;
};

} // namespace

TEST_F(AttachReference, GivenRotationDoesNotTurnAReferenceWhoseRotationIsAskedFor) {
    attach.insertionOnScreen = attach.rotationOnScreen = true;
    attach.rotation = 0.5;
    std::vector<double> turned;
    io.onQuestion = [&](const XRefIO::Question&, HostEdPointTracker* tracker) {
        turned.push_back(ShownReference(tracker).reference->rotation());
    };
    io.script({pick(5, 6), value(0.25)});
    attach.of(write("part.dxf"));
    EXPECT_THAT(turned, ElementsAre(0, 0));
}

TEST_F(AttachReference, ReferenceIsInNoSpaceDuringThePrompts) {
    attach.insertionOnScreen = true;
    std::size_t present = 99;
    io.onQuestion = [&](const XRefIO::Question&, HostEdPointTracker*) { present = inserted().size(); };
    io.script({pick(5, 6)});
    attach.of(write("part.dxf"));
    EXPECT_EQ(present, 0u);
    EXPECT_EQ(inserted().size(), 1u);
}

namespace {

// What becomes of an attach when prompts are cancelled, for a new definition and for one that was there.
struct CancelCell {
    const char* name;
    bool existing, insertion, scale, rotation; // the prompts that are wanted
    std::vector<Answer> answers;
    QStringList asked;
    bool result;
    std::size_t references; // in the drawing afterwards
    bool defined;           // afterwards
};
void PrintTo(const CancelCell& cell, std::ostream* out) { *out << cell.name; }
class CancelRules : public AttachReference, public testing::WithParamInterface<CancelCell> {};

const QString I = QStringLiteral("getPoint"), S = QStringLiteral("getDistance"),
              R = QStringLiteral("getAngle");
const Answer at = pick(5, 6), size = value(2), turn = value(0.25), no = cancel();

} // namespace

TEST_F(AttachReference, UndoRecordIsOpenedByAnEntryAndNotByACancel) {
    define("part", write("part.dxf"));
    attach.insertionOnScreen = true;
    io.script({cancel()});
    ASSERT_TRUE(attach.of(inFolder("part.dxf")));
    define("later", "/x/later.dxf");
    EXPECT_TRUE(drawing->undo());
    EXPECT_THAT(referenceNames(), IsEmpty()) << "all that came before a record is opened is one step";
    define("part", inFolder("part.dxf"));
    io.script({pick(5, 6)});
    ASSERT_TRUE(attach.of(inFolder("part.dxf")));
    EXPECT_TRUE(drawing->undo());
    EXPECT_THAT(inserted(), IsEmpty());
    EXPECT_THAT(referenceNames(), ElementsAre("part")) << "only what came since is taken back";
}

TEST_P(CancelRules, HoldForTheirCell) {
    const CancelCell& cell = GetParam();
    write("part.dxf");
    if (cell.existing)
        define("part", inFolder("part.dxf"));
    attach.uniform = true;
    attach.insertionOnScreen = cell.insertion;
    attach.scaleOnScreen = cell.scale;
    attach.rotationOnScreen = cell.rotation;
    io.answers.assign(cell.answers.begin(), cell.answers.end());
    EXPECT_EQ(attach.of(inFolder("part.dxf")), cell.result);
    EXPECT_EQ(io.operations(), cell.asked);
    EXPECT_EQ(inserted().size(), cell.references);
    EXPECT_EQ(!block("part").isNull(), cell.defined);
    EXPECT_TRUE(io.answers.empty());
    EXPECT_FALSE(io.ranOut);
}

const CancelCell cancelCells[] = {
    {"NewInsertion", false, true, true, true, {no}, {I}, false, 0, false},
    {"NewInsertionAlone", false, true, false, false, {no}, {I}, false, 0, false},
    {"NewScale", false, true, true, true, {at, no}, {I, S}, false, 0, false},
    {"NewScaleAlone", false, false, true, false, {no}, {S}, false, 0, false},
    {"NewRotation", false, true, true, true, {at, size, no}, {I, S, R}, false, 0, false},
    {"NewRotationAlone", false, false, false, true, {no}, {R}, false, 0, false},
    {"NewNoCancel", false, true, true, true, {at, size, turn}, {I, S, R}, true, 1, true},
    {"NewNoPrompt", false, false, false, false, {}, {}, true, 1, true},
    {"OldInsertionGoesOnWithScale", true, true, true, false, {no, size}, {I, S}, true, 1, true},
    {"OldInsertionGoesOnWithRotation", true, true, false, true, {no, turn}, {I, R}, true, 1, true},
    {"OldInsertionGoesOnWithBoth", true, true, true, true, {no, size, turn}, {I, S, R}, true, 1, true},
    {"OldInsertionAlone", true, true, false, false, {no}, {I}, true, 0, true},
    {"OldScaleGoesOnWithRotation", true, false, true, true, {no, turn}, {S, R}, true, 1, true},
    {"OldScaleAlone", true, false, true, false, {no}, {S}, true, 0, true},
    {"OldScaleIsTheLast", true, true, true, false, {at, no}, {I, S}, true, 0, true},
    {"OldRotation", true, true, true, true, {at, size, no}, {I, S, R}, true, 0, true},
    {"OldRotationAlone", true, false, false, true, {no}, {R}, true, 0, true},
    {"OldAll", true, true, true, true, {no, no, no}, {I, S, R}, true, 0, true},
    {"OldNoCancel", true, true, true, true, {at, size, turn}, {I, S, R}, true, 1, true},
};
INSTANTIATE_TEST_SUITE_P(All, CancelRules, testing::ValuesIn(cancelCells),
                         [](const auto& row) { return row.param.name; });

TEST_F(AttachReference, CancelErasesADefinitionThatTheDialogOfTheSameCommandHasMade) {
    noteNewDefinition(define("part", write("part.dxf")));
    attach.insertionOnScreen = true;
    io.script({no});
    EXPECT_FALSE(attach.of(inFolder("part.dxf")));
    EXPECT_TRUE(block("part").isNull());
}

TEST_F(AttachReference, KindAndPathTypeApplyToADefinitionThatTheDialogOfTheSameCommandHasMade) {
    noteNewDefinition(define("part", write("part.dxf")));
    attach.overlay = true;
    attach.pathType = 2;
    EXPECT_TRUE(attach.of(inFolder("part.dxf")));
    EXPECT_TRUE(block("part")->isFromOverlayReference());
    EXPECT_EQ(block("part")->pathName(), OdString(L"part.dxf"));
}
