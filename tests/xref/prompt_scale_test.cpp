// The scale prompt, driven cell by cell over its tables.
#include "tests/xref/xref_fixture.h"
#include "xref/prompt_axis_scale.h"
#include "xref/prompt_scale.h"

namespace {

const OdGeScale3d kUntouched{7, 8, 9};

struct Cell {
    const char* name;
    bool uniform;
    std::vector<Answer> answers;
    int result;
    OdGeScale3d factors;    // before the division by the unit factor
    QStringList operations; // what was asked, in order
};

void PrintTo(const Cell& cell, std::ostream* out) { *out << cell.name; }

const QString P = QStringLiteral("getPoint"), D = QStringLiteral("getDistance"),
              R = QStringLiteral("getReal");
const Answer corner = keyword(0), xyz = keyword(1);

class ScaleCells : public XRefTest, public testing::WithParamInterface<Cell> {};

} // namespace

TEST_P(ScaleCells, GivesTheResultOfItsRow) {
    const Cell& cell = GetParam();
    OdDbBlockReferencePtr reference(new OdDbBlockReference);
    reference->setPosition({1, 2, 3});
    reference->setScaleFactors(kUntouched);
    io.answers.assign(cell.answers.begin(), cell.answers.end());
    io.heldPoint = {5, 8, 3};
    EXPECT_EQ(promptScale(reference, cell.uniform, 2), cell.result);
    const OdGeScale3d got = reference->scaleFactors();
    if (cell.result == kInputCancelled) {
        EXPECT_EQ(got, kUntouched);
    } else {
        EXPECT_DOUBLE_EQ(got.sx * 2, cell.factors.sx);
        EXPECT_DOUBLE_EQ(got.sy * 2, cell.factors.sy);
        EXPECT_DOUBLE_EQ(got.sz * 2, cell.factors.sz);
    }
    EXPECT_EQ(io.operations(), cell.operations);
    EXPECT_TRUE(io.answers.empty());
    EXPECT_FALSE(io.ranOut);
}

// An answer that asks for nothing known, and leaves a distance of 0 behind.
const Answer flatDistance{kInputKeyword + 2, {}, 0, L"", true};

const Cell firstState[] = {
    {"FirstTypedIsHeldBackByADistanceOfZero", true, {flatDistance, typed(L"3"), cancel()}, -2, {}, {D, D, D}},
    {"FirstUniformPick", true, {value(4)}, -1, {4, 4, 4}, {D}},
    {"FirstUniformPickOfZeroIsTaken", true, {value(0)}, -1, {0, 0, 0}, {D}},
    {"FirstCorner", false, {pick(4, 6)}, -1, {3, 4, 3}, {P}},
    {"FirstCornerToTheLeft", false, {pick(-1, -2)}, -1, {-2, -4, -2}, {P}},
    {"FirstCornerOfZeroWidthCancels", false, {pick(1, 6)}, -2, {}, {P}},
    {"FirstCornerOfZeroHeightCancels", false, {pick(4, 2)}, -2, {}, {P}},
    {"FirstTypedUniform", true, {typed(L"3")}, -1, {3, 3, 3}, {D}},
    {"FirstTypedThenY", false, {typed(L"3"), value(5)}, -1, {3, 5, 3}, {P, R}},
    {"FirstTypedThenYIsX", false, {typed(L"3"), enter()}, -1, {3, 3, 3}, {P, R}},
    {"FirstTypedThenYCancelled", false, {typed(L"3"), cancel()}, -2, {}, {P, R}},
    {"FirstTypedThenYElse", false, {typed(L"3"), keyword(4)}, -1, {3, 1, 3}, {P, R}},
    {"FirstTypedZeroIsAccepted", true, {typed(L"0")}, -1, {0, 0, 0}, {D}},
    {"FirstTypedZeroAsksForY", false, {typed(L"0"), value(2)}, -1, {0, 2, 0}, {P, R}},
    {"FirstTypedNonsenseAsksAgain", false, {typed(L"abc"), pick(4, 6)}, -1, {3, 4, 3}, {P, P}},
    {"FirstEnterUniformIsOne", true, {enter()}, -1, {1, 1, 1}, {D}},
    {"FirstEnterIsOneAndAsksForY", false, {enter(), value(6)}, -1, {1, 6, 1}, {P, R}},
    {"FirstCornerKeyword", false, {corner, pick(4, 6)}, -1, {3, 4, 3}, {P, P}},
    {"FirstXyzKeyword", false, {xyz, cancel()}, -2, {}, {P, P}},
    {"FirstCancel", false, {cancel()}, -2, {}, {P}},
    {"FirstElseAsksAgain", false, {keyword(2), cancel()}, -2, {}, {P, P}},
};
INSTANTIATE_TEST_SUITE_P(First, ScaleCells, testing::ValuesIn(firstState),
                         [](const auto& row) { return row.param.name; });

const Cell factorState[] = {
    {"FactorsTypedIsHeldBackByADistanceOfZero",
     true,
     {flatDistance, xyz, typed(L"3"), cancel()},
     -2,
     {},
     {D, D, D, D}},
    {"FactorsEnter", false, {xyz, enter(), value(2), typed(L"5")}, -1, {1, 2, 5}, {P, P, R, P}},
    {"FactorsEnterYCancelled", false, {xyz, enter(), cancel()}, -2, {}, {P, P, R}},
    {"FactorsEnterZCancelled", false, {xyz, enter(), value(2), cancel()}, -2, {}, {P, P, R, P}},
    {"FactorsCornerKeywordWantsZ", false, {xyz, corner, pick(4, 6), enter()}, -1, {3, 4, 3}, {P, P, P, P}},
    {"FactorsHiddenKeywordGoesToFirst", false, {xyz, keyword(1), cancel()}, -2, {}, {P, P, P}},
    {"FactorsUniformPick", true, {xyz, value(4)}, -1, {4, 4, 4}, {D, D}},
    {"FactorsCornerAsksForZ", false, {xyz, pick(4, 6), typed(L"7")}, -1, {3, 4, 7}, {P, P, P}},
    {"FactorsCornerZCancelled", false, {xyz, pick(4, 6), cancel()}, -2, {}, {P, P, P}},
    {"FactorsFlatCornerAsksAgain",
     false,
     {xyz, pick(1, 6), pick(4, 6), enter()},
     -1,
     {3, 4, 3},
     {P, P, P, P}},
    {"FactorsTypedUniform", true, {xyz, typed(L"3")}, -1, {3, 3, 3}, {D, D}},
    {"FactorsTyped", false, {xyz, typed(L"3"), value(4), typed(L"5")}, -1, {3, 4, 5}, {P, P, R, P}},
    {"FactorsTypedYCancelled", false, {xyz, typed(L"3"), cancel()}, -2, {}, {P, P, R}},
    {"FactorsTypedNonsenseAsksAgain", true, {xyz, typed(L"x"), typed(L"3")}, -1, {3, 3, 3}, {D, D, D}},
    {"FactorsTypedZeroIsAccepted", true, {xyz, typed(L"0")}, -1, {0, 0, 0}, {D, D}},
    {"FactorsCancel", false, {xyz, cancel()}, -2, {}, {P, P}},
    {"FactorsElseGoesToFirst", false, {xyz, {-7, {}, 0, L"", false}, cancel()}, -2, {}, {P, P, P}},
};
INSTANTIATE_TEST_SUITE_P(Factors, ScaleCells, testing::ValuesIn(factorState),
                         [](const auto& row) { return row.param.name; });

const Cell cornerState[] = {
    {"CornerTypedIsNotHeldBackByADistanceOfZero",
     true,
     {flatDistance, corner, typed(L"3")},
     -1,
     {3, 3, 3},
     {D, D, P}},
    {"CornerPick", false, {corner, pick(4, 6)}, -1, {3, 4, 3}, {P, P}},
    {"CornerFlatAsksAgain", false, {corner, pick(4, 2), pick(4, 6)}, -1, {3, 4, 3}, {P, P, P}},
    {"CornerWithZ", false, {xyz, corner, pick(4, 6), typed(L"9")}, -1, {3, 4, 9}, {P, P, P, P}},
    {"CornerWithZCancelled", false, {xyz, corner, pick(4, 6), cancel()}, -2, {}, {P, P, P, P}},
    {"CornerEnterTakesTheHeldPoint", false, {corner, enter()}, -1, {4, 6, 4}, {P, P}},
    {"CornerTypedUniform", true, {corner, typed(L"3")}, -1, {3, 3, 3}, {D, P}},
    {"CornerTypedZeroIsAccepted", true, {corner, typed(L"0")}, -1, {0, 0, 0}, {D, P}},
    {"CornerTypedThenY", false, {corner, typed(L"3"), value(4)}, -1, {3, 4, 3}, {P, P, R}},
    {"CornerTypedYCancelled", false, {corner, typed(L"3"), cancel()}, -2, {}, {P, P, R}},
    {"CornerTypedWithZ",
     false,
     {xyz, corner, typed(L"3"), value(4), typed(L"5")},
     -1,
     {3, 4, 5},
     {P, P, P, R, P}},
    {"CornerTypedNonsenseAsksAgain", true, {corner, typed(L"x"), typed(L"3")}, -1, {3, 3, 3}, {D, P, P}},
    {"CornerCancel", false, {corner, cancel()}, -2, {}, {P, P}},
    {"CornerElseGoesToFirst", false, {corner, keyword(0), cancel()}, -2, {}, {P, P, P}},
};
INSTANTIATE_TEST_SUITE_P(Corner, ScaleCells, testing::ValuesIn(cornerState),
                         [](const auto& row) { return row.param.name; });

namespace {

struct ZCell {
    const char* name;
    std::vector<Answer> answers;
    int result;
    double z;
};
void PrintTo(const ZCell& cell, std::ostream* out) { *out << cell.name; }

class ZScaleCells : public XRefTest, public testing::WithParamInterface<ZCell> {};

} // namespace

TEST_P(ZScaleCells, GivesTheResultOfItsRow) {
    io.answers.assign(GetParam().answers.begin(), GetParam().answers.end());
    double z = 1;
    OdGePoint3d corner3d;
    EXPECT_EQ(promptZScale(z, corner3d, {1, 1, 1}, 6), GetParam().result);
    EXPECT_DOUBLE_EQ(z, GetParam().z);
    EXPECT_TRUE(io.answers.empty());
    EXPECT_FALSE(io.ranOut);
}

const ZCell zCells[] = {
    {"Typed", {typed(L"2.5")}, -1, 2.5},
    {"NonsenseAsksAgain", {typed(L"?"), typed(L"2")}, -1, 2},
    {"ZeroAsksAgain", {typed(L"0"), typed(L"2")}, -1, 2},
    {"EnterIsX", {enter()}, -1, 6},
    {"PickIsTheDistanceInSpace", {pick(3, 4, 7)}, -1, 7},
    {"PickOfTheBaseAsksAgain", {pick(1, 1, 1), pick(1, 1, 3)}, -1, 2},
    {"Cancel", {cancel()}, -2, 1},
    {"ElseIsAccepted", {keyword(0)}, -1, 1},
};
INSTANTIATE_TEST_SUITE_P(Z, ZScaleCells, testing::ValuesIn(zCells),
                         [](const auto& row) { return row.param.name; });

class YScale : public XRefTest {
protected:
    int ask(const Answer& answer) {
        io.script({answer});
        return promptYScale(y, 6);
    }
    double y = 5;
};

TEST_F(YScale, IsThePickedValue) {
    EXPECT_EQ(ask(value(3)), -1);
    EXPECT_EQ(y, 3);
}

TEST_F(YScale, IsThatOfXWhenNothingIsEntered) {
    EXPECT_EQ(ask(enter()), -1);
    EXPECT_EQ(y, 6);
}

TEST_F(YScale, IsOneAfterACancelAndAfterAnyOtherAnswer) {
    EXPECT_EQ(ask(cancel()), -2);
    EXPECT_EQ(y, 1);
    y = 5;
    EXPECT_EQ(ask(keyword(0)), -1);
    EXPECT_EQ(y, 1);
}

class ScalePromptTexts : public XRefTest {
protected:
    OdDbBlockReferencePtr reference{new OdDbBlockReference};
};

TEST_F(ScalePromptTexts, AsksWithItsPromptsKeywordsAndFlags) {
    io.script({keyword(1), keyword(0), typed(L"3"), value(4), typed(L"5")});
    promptScale(reference, false, 1);
    EXPECT_EQ(io.prompts(), QStringList({"Enter X scale factor, specify opposite corner, or [%s] <1>",
                                         "Specify X scale factor", "Specify opposite corner",
                                         "Specify Y scale factor or <use X scale factor>:",
                                         "Specify Z scale factor or <use X scale factor>:"}));
    EXPECT_EQ(io.questions[0].keywords, "Corner XYZ *C *XYZ _ Corner XYZ *C *XYZ");
    EXPECT_EQ(io.questions[1].keywords, "Kwrd:Corner *C _ Corner *C");
    for (int i : {2, 3, 4})
        EXPECT_TRUE(io.questions[i].keywords.isNull());
    const int flags[] = {14, 14, 6, 4, 14};
    const bool trackers[] = {true, true, true, false, false};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(io.questions[i].flags, flags[i]);
        EXPECT_EQ(io.questions[i].withTracker, trackers[i]);
    }
    EXPECT_EQ(io.questions[3].reserved, (std::vector<int>{0, 0}));
}

TEST_F(ScalePromptTexts, MessagesOfRefusedAnswersAreSilentWithoutServices) {
    io.script({typed(L"abc"), cancel()});
    promptScale(reference, false, 1);
    EXPECT_EQ(io.questions.size(), 2u) << "the answer was refused";
    EXPECT_TRUE(io.lines.isEmpty());
    EXPECT_TRUE(io.formatted.isEmpty());
}

TEST_F(ScalePromptTexts, MessagesOfRefusedAnswersReachTheServices) {
    provideServices();
    io.script({typed(L"abc"), keyword(0), pick(0, 0), cancel()});
    promptScale(reference, false, 1);
    EXPECT_EQ(services->reported,
              QStringList({"X scale factor or 2D corner point required.", "Value must be nonzero."}));
}
