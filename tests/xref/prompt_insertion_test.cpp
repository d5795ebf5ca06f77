// The insertion prompt, driven cell by cell, and the value prompts that its keywords lead to.
#include "tests/xref/xref_fixture.h"
#include "xref/prompt_insertion.h"
#include "xref/prompt_rotation.h"
#include "xref/prompt_scale.h"
#include "xref/prompt_value.h"

#include <cmath>

namespace {

constexpr double kDegree = 3.14159265358979323846 / 180;

struct Cell {
    const char* name;
    std::vector<Answer> answers;
    int result;
    OdGeScale3d factors; // after the division by the unit factor of 2
    double degrees;
    bool scaleStays, rotationStays; // the two flags afterwards
    QString secondPrompt;           // empty: none
};
void PrintTo(const Cell& cell, std::ostream* out) { *out << cell.name; }

const OdGeScale3d kStart{1, 2, 3};
class InsertionCells : public XRefTest, public testing::WithParamInterface<Cell> {};

} // namespace

TEST_P(InsertionCells, GivesTheResultOfItsRow) {
    const Cell& cell = GetParam();
    OdDbBlockReferencePtr reference(new OdDbBlockReference);
    reference->setScaleFactors(kStart);
    io.answers.assign(cell.answers.begin(), cell.answers.end());
    bool scaleOnScreen = true, rotationOnScreen = true;
    EXPECT_EQ(promptInsertion(scaleOnScreen, rotationOnScreen, reference, 2), cell.result);
    EXPECT_EQ(reference->scaleFactors(), cell.factors);
    EXPECT_NEAR(reference->rotation(), cell.degrees * kDegree, 1e-12);
    EXPECT_EQ(scaleOnScreen, cell.scaleStays);
    EXPECT_EQ(rotationOnScreen, cell.rotationStays);
    EXPECT_EQ(io.prompts().value(1), cell.secondPrompt);
    EXPECT_TRUE(io.answers.empty());
    EXPECT_FALSE(io.ranOut);
}

const Answer there = pick(5, 6, 7);
const char* const previewY = "Specify preview Y scale factor:";
const Cell cells[] = {
    {"Pick", {there}, -1, kStart, 0, true, true, {}},
    {"TypedTextTakesTheSamePath", {typed(L"somewhere")}, -1, kStart, 0, true, true, {}},
    {"NothingEnteredCancels", {enter()}, -2, kStart, 0, true, true, {}},
    {"Cancel", {cancel()}, -2, kStart, 0, true, true, {}},
    {"Scale",
     {keyword(0), typed(L"8"), there},
     -1,
     {4, 4, 4},
     0,
     false,
     true,
     "Specify scale factor for XYZ axes:"},
    {"ScaleOfZeroIsAskedForAgain",
     {keyword(0), typed(L"0"), typed(L"8"), there},
     -1,
     {4, 4, 4},
     0,
     false,
     true,
     "Specify scale factor for XYZ axes:"},
    {"ScaleCancelled",
     {keyword(0), cancel()},
     -2,
     kStart,
     0,
     true,
     true,
     "Specify scale factor for XYZ axes:"},
    {"PlainXCancels", {keyword(1)}, -2, kStart, 0, true, true, {}},
    {"PlainYCancels", {keyword(2)}, -2, kStart, 0, true, true, {}},
    {"PlainZCancels", {keyword(3)}, -2, kStart, 0, true, true, {}},
    {"Rotate", {keyword(4), typed(L"30"), there}, -1, kStart, 30, true, false, "Specify rotation angle <0>"},
    {"RotateCancelled", {keyword(4), cancel()}, -2, kStart, 0, true, true, "Specify rotation angle <0>"},
    {"PScale",
     {keyword(5), typed(L"8"), there},
     -1,
     kStart,
     0,
     true,
     true,
     "Specify preview scale factor for XYZ axes:"},
    {"PScaleCancelled",
     {keyword(5), cancel()},
     -2,
     kStart,
     0,
     true,
     true,
     "Specify preview scale factor for XYZ axes:"},
    {"PX", {keyword(6), typed(L"8"), there}, -1, kStart, 0, true, true, "Specify preview X scale factor:"},
    {"PY", {keyword(7), typed(L"8"), there}, -1, kStart, 0, true, true, previewY},
    {"PZAsksWithTheTextOfY", {keyword(8), typed(L"8"), there}, -1, kStart, 0, true, true, previewY},
    {"PRotate",
     {keyword(9), typed(L"30"), there},
     -1,
     kStart,
     0,
     true,
     true,
     "Specify preview rotation angle:"},
    {"HiddenSCancels", {keyword(10)}, -2, kStart, 0, true, true, {}},
    {"HiddenX",
     {keyword(11), typed(L"8"), there},
     -1,
     {4, 2, 3},
     0,
     false,
     true,
     "Specify X scale factor or [%s] <1>:"},
    {"HiddenXOfZeroIsAskedForAgain",
     {keyword(11), typed(L"0"), typed(L"8"), there},
     -1,
     {4, 2, 3},
     0,
     false,
     true,
     "Specify X scale factor or [%s] <1>:"},
    {"HiddenXCancelled",
     {keyword(11), cancel()},
     -2,
     kStart,
     0,
     true,
     true,
     "Specify X scale factor or [%s] <1>:"},
    {"HiddenY", {keyword(12), typed(L"8"), there}, -1, {1, 4, 3}, 0, false, true, "Specify Y scale factor"},
    {"HiddenZ", {keyword(13), typed(L"8"), there}, -1, {1, 2, 4}, 0, false, true, "Specify Z scale factor"},
    {"HiddenRCancels", {keyword(14)}, -2, kStart, 0, true, true, {}},
    {"HiddenPSCancels", {keyword(15)}, -2, kStart, 0, true, true, {}},
    {"HiddenPXCancels", {keyword(16)}, -2, kStart, 0, true, true, {}},
    {"HiddenPYCancels", {keyword(17)}, -2, kStart, 0, true, true, {}},
    {"HiddenPZCancels", {keyword(18)}, -2, kStart, 0, true, true, {}},
    {"HiddenPRCancels", {keyword(19)}, -2, kStart, 0, true, true, {}},
};
INSTANTIATE_TEST_SUITE_P(All, InsertionCells, testing::ValuesIn(cells),
                         [](const auto& row) { return row.param.name; });

class InsertionPrompt : public XRefTest {
protected:
    int ask() { return promptInsertion(scaleOnScreen, rotationOnScreen, reference, 1); }
    OdDbBlockReferencePtr reference{new OdDbBlockReference};
    bool scaleOnScreen = true, rotationOnScreen = true;
};

TEST_F(InsertionPrompt, PutsTheReferenceAtThePickedPoint) {
    io.script({there});
    ask();
    EXPECT_EQ(reference->position(), OdGePoint3d(5, 6, 7));
}

TEST_F(InsertionPrompt, PutsTheReferenceWhereTheConsoleLeftThePointWhenTextWasTyped) {
    Answer answer = typed(L"somewhere");
    answer.point = {7, 8, 9};
    answer.leavesValue = true;
    io.script({answer});
    EXPECT_EQ(ask(), kInputPicked);
    EXPECT_EQ(reference->position(), OdGePoint3d(7, 8, 9));
}

TEST_F(InsertionPrompt, StartsAtTheOriginWithOneTrackerForAllOfItsQuestions) {
    reference->setPosition({9, 9, 9});
    std::vector<HostEdPointTracker*> trackers;
    io.onQuestion = [&](const XRefIO::Question& question, HostEdPointTracker* tracker) {
        if (question.flags == 0)
            trackers.push_back(tracker);
        EXPECT_EQ(reference->position(), OdGePoint3d::kOrigin);
    };
    io.script({keyword(0), typed(L"2"), there});
    ask();
    ASSERT_EQ(trackers.size(), 2u);
    EXPECT_NE(trackers[0], nullptr);
    EXPECT_EQ(trackers[0], trackers[1]);
}

TEST_F(InsertionPrompt, AsksWithoutABaseAndWithItsKeywords) {
    io.script({there});
    ask();
    EXPECT_EQ(io.questions[0].prompt, "Specify insertion point or [%s]");
    EXPECT_EQ(io.questions[0].keywords,
              "Scale X Y Z Rotate PScale PX PY PZ PRotate *S *X *Y *Z *R *PS *PX *PY *PZ *PR _ "
              "Scale X Y Z Rotate PScale PX PY PZ PRotate *S *X *Y *Z *R *PS *PX *PY *PZ *PR");
    EXPECT_EQ(io.questions[0].flags, 0);
    EXPECT_FALSE(io.questions[0].withBase);
}

TEST_F(InsertionPrompt, RotateCountsFromTheXAxisOfTheUsersCoordinates) {
    setCurrentUCS(drawing.get(), OdGePoint3d(1, 2, 0), OdGeVector3d::kYAxis, -OdGeVector3d::kXAxis);
    io.script({keyword(4), typed(L"30"), there});
    ask();
    EXPECT_NEAR(reference->rotation(), 120 * kDegree, 1e-12);
}

namespace {

struct ValueCell {
    const char* name;
    bool nonZero;
    std::vector<Answer> answers;
    int result;
    double value; // of the distance; that of the angle counts typed text as degrees
    QStringList operations;
};
void PrintTo(const ValueCell& cell, std::ostream* out) { *out << cell.name; }

class DistanceCells : public XRefTest, public testing::WithParamInterface<ValueCell> {};
class AngleCells : public XRefTest, public testing::WithParamInterface<ValueCell> {};
const QString P = QStringLiteral("getPoint"), D = QStringLiteral("getDistance"),
              A = QStringLiteral("getAngle");

} // namespace

TEST_P(DistanceCells, GivesTheResultOfItsRow) {
    io.answers.assign(GetParam().answers.begin(), GetParam().answers.end());
    double got = -1;
    EXPECT_EQ(promptDistanceValue(L"How far:", L"", got, GetParam().nonZero), GetParam().result);
    EXPECT_DOUBLE_EQ(got, GetParam().value);
    EXPECT_EQ(io.operations(), GetParam().operations);
    EXPECT_FALSE(io.ranOut);
}

const ValueCell distanceCells[] = {
    {"Typed", true, {typed(L"2.5")}, -1, 2.5, {P}},
    {"NonsenseAsksAgain", true, {typed(L"x"), typed(L"2")}, -1, 2, {P, P}},
    {"ZeroAsksAgainWhenItMustNotBe", true, {typed(L"0"), typed(L"2")}, -1, 2, {P, P}},
    {"ZeroIsTakenWhenItMayBe", false, {typed(L"0")}, -1, 0, {P}},
    {"EnterAsksAgain", true, {enter(), typed(L"2")}, -1, 2, {P, P}},
    {"Cancel", true, {cancel()}, -2, -1, {P}},
    {"ElseCancels", true, {keyword(0)}, -2, -1, {P}},
    {"TwoPoints", true, {pick(1, 1), value(4)}, -1, 4, {P, D}},
    {"TwoEqualPointsGiveZero", true, {pick(1, 1), value(0)}, -1, 0, {P, D}},
    {"SecondTyped", true, {pick(1, 1), typed(L"6")}, -1, 6, {P, D}},
    {"SecondNonsenseAsksAgain", true, {pick(1, 1), typed(L"x"), typed(L"6")}, -1, 6, {P, D, D}},
    {"SecondZeroAsksAgain", true, {pick(1, 1), typed(L"0"), typed(L"6")}, -1, 6, {P, D, D}},
    {"SecondZeroIsTakenWhenItMayBe", false, {pick(1, 1), typed(L"0")}, -1, 0, {P, D}},
    {"SecondEnterAsksAgain", true, {pick(1, 1), enter(), value(3)}, -1, 3, {P, D, D}},
    {"SecondCancel", true, {pick(1, 1), cancel()}, -2, -1, {P, D}},
    {"SecondElseCancels", true, {pick(1, 1), keyword(0)}, -2, -1, {P, D}},
};
INSTANTIATE_TEST_SUITE_P(All, DistanceCells, testing::ValuesIn(distanceCells),
                         [](const auto& row) { return row.param.name; });

TEST_P(AngleCells, GivesTheResultOfItsRow) {
    io.answers.assign(GetParam().answers.begin(), GetParam().answers.end());
    double got = -1;
    EXPECT_EQ(promptAngleValue(L"How much:", L"", got), GetParam().result);
    EXPECT_DOUBLE_EQ(got, GetParam().value);
    EXPECT_EQ(io.operations(), GetParam().operations);
    EXPECT_FALSE(io.ranOut);
}

const ValueCell angleCells[] = {
    {"Typed", false, {typed(L"30")}, -1, 30 * kDegree, {P}},
    {"ZeroIsTaken", false, {typed(L"0")}, -1, 0, {P}},
    {"NonsenseAsksAgain", false, {typed(L"x"), typed(L"30")}, -1, 30 * kDegree, {P, P}},
    {"EnterAsksAgain", false, {enter(), typed(L"30")}, -1, 30 * kDegree, {P, P}},
    {"Cancel", false, {cancel()}, -2, -1, {P}},
    {"TwoPoints", false, {pick(1, 1), value(0.5)}, -1, 0.5, {P, A}},
    {"SecondTyped", false, {pick(1, 1), typed(L"90")}, -1, 90 * kDegree, {P, A}},
    {"SecondNonsenseAsksAgain", false, {pick(1, 1), typed(L"x"), value(0.5)}, -1, 0.5, {P, A, A}},
    {"SecondEnterAsksAgain", false, {pick(1, 1), enter(), value(0.5)}, -1, 0.5, {P, A, A}},
    {"SecondCancel", false, {pick(1, 1), cancel()}, -2, -1, {P, A}},
};
INSTANTIATE_TEST_SUITE_P(All, AngleCells, testing::ValuesIn(angleCells),
                         [](const auto& row) { return row.param.name; });

class ValuePrompt : public XRefTest {};

TEST_F(ValuePrompt, SecondPromptBeginsWithTwoBlanksAndTakesTheFirstPointAsBase) {
    io.script({pick(3, 4), value(1)});
    double got = 0;
    promptDistanceValue(L"How far:", L"", got, true);
    EXPECT_EQ(io.prompts(), QStringList({"How far:", "  Specify second point:"}));
    EXPECT_EQ(io.questions[0].base, OdGePoint3d::kOrigin);
    EXPECT_TRUE(io.questions[0].withBase);
    EXPECT_EQ(io.questions[1].base, OdGePoint3d(3, 4, 0));
    EXPECT_EQ(io.questions[0].flags, 6);
    EXPECT_EQ(io.questions[1].flags, 14);
    EXPECT_FALSE(io.questions[0].keywords.isNull());
    EXPECT_EQ(io.questions[0].keywords, "");
    EXPECT_TRUE(io.questions[1].keywords.isNull());
    for (const XRefIO::Question& question : io.questions)
        EXPECT_FALSE(question.withTracker);
}

TEST_F(ValuePrompt, MessagesOfRefusedAnswersReachOnlyTheServices) {
    io.script({typed(L"x"), typed(L"0"), typed(L"1"), typed(L"x"), typed(L"1")});
    provideServices();
    double got = 0;
    promptDistanceValue(L"How far:", L"", got, true);
    promptAngleValue(L"How much:", L"", got);
    EXPECT_EQ(services->reported,
              QStringList({"Requires numeric distance or two points.", "Value must be nonzero.",
                           "Requires valid numeric angle or two points."}));
    EXPECT_TRUE(io.lines.isEmpty());
}

namespace {

// In a drawing in feet and inches, and with angles in radians.
class UnitsOfTheDrawing : public XRefTest {
protected:
    UnitsOfTheDrawing() {
        host.vars.set("LUNITS", 4);
        host.vars.set("AUNITS", 3);
        reference->setScaleFactors(OdGeScale3d(1));
    }
    OdDbBlockReferencePtr reference{new OdDbBlockReference};
};

} // namespace

TEST_F(UnitsOfTheDrawing, CountForTypedDistances) {
    io.script({typed(L"2'"), pick(1, 1), typed(L"3'")});
    double got = 0;
    promptDistanceValue(L"How far:", L"", got, true);
    EXPECT_EQ(got, 24);
    promptDistanceValue(L"How far:", L"", got, true);
    EXPECT_EQ(got, 36);
}

TEST_F(UnitsOfTheDrawing, CountForTypedFactors) {
    io.script({typed(L"2'"), value(1), keyword(1), typed(L"2'"), value(1), typed(L"3'")});
    promptScale(reference, false, 1);
    EXPECT_EQ(reference->scaleFactors(), OdGeScale3d(24, 1, 24));
    promptScale(reference, false, 1);
    EXPECT_EQ(reference->scaleFactors(), OdGeScale3d(24, 1, 36));
}

TEST_F(UnitsOfTheDrawing, CountForTypedAngles) {
    io.script({typed(L"1.5"), typed(L"0.5")});
    double got = 0;
    promptAngleValue(L"How much:", L"", got);
    EXPECT_DOUBLE_EQ(got, 1.5);
    promptRotation(reference);
    EXPECT_DOUBLE_EQ(reference->rotation(), 0.5);
}
