// The rotation prompt, and the tracker that shows the reference during all prompts.
#include "tests/xref/xref_fixture.h"
#include "xref/prompt_rotation.h"
#include "xref/ucs_rotation.h"
#include "xref/xref_tracker.h"

#include <cmath>

namespace {

constexpr double kDegree = 3.14159265358979323846 / 180;

struct Cell {
    const char* name;
    std::vector<Answer> answers;
    int result;
    double angle;
};
void PrintTo(const Cell& cell, std::ostream* out) { *out << cell.name; }

class RotationCells : public XRefTest, public testing::WithParamInterface<Cell> {};

} // namespace

TEST_P(RotationCells, GivesTheResultOfItsRow) {
    OdDbBlockReferencePtr reference(new OdDbBlockReference);
    reference->setRotation(2);
    io.answers.assign(GetParam().answers.begin(), GetParam().answers.end());
    EXPECT_EQ(promptRotation(reference), GetParam().result);
    EXPECT_NEAR(reference->rotation(), GetParam().angle, 1e-12);
    EXPECT_TRUE(io.answers.empty());
    EXPECT_FALSE(io.ranOut);
}

const Cell cells[] = {
    {"Pick", {value(0.5)}, -1, 0.5},
    {"Typed", {typed(L"30")}, 0, 30 * kDegree},
    {"NonsenseAsksAgain", {typed(L"x"), typed(L"30")}, 0, 30 * kDegree},
    {"EnterIsZero", {enter()}, 1, 0},
    {"CancelTurnsToZeroToo", {cancel()}, -2, 0},
    {"ElseReturnsItsCode", {keyword(3)}, 5, 0},
};
INSTANTIATE_TEST_SUITE_P(All, RotationCells, testing::ValuesIn(cells),
                         [](const auto& row) { return row.param.name; });

class RotationPrompt : public XRefTest {
protected:
    OdDbBlockReferencePtr reference{new OdDbBlockReference};
};

TEST_F(RotationPrompt, CancelTurnsTheReferenceToTheZeroOfTheUsersCoordinates) {
    setCurrentUCS(drawing.get(), OdGePoint3d(), OdGeVector3d::kYAxis, -OdGeVector3d::kXAxis);
    io.script({cancel()});
    promptRotation(reference);
    EXPECT_NEAR(reference->rotation(), 90 * kDegree, 1e-12);
    EXPECT_NEAR(ucsRotation(reference, 0), 90 * kDegree, 1e-12);
}

TEST_F(RotationPrompt, WithoutACurrentDrawingAnglesCountFromTheWorldsXAxis) {
    host.closeDocument();
    EXPECT_NEAR(ucsRotation(reference, 0.5), 0.5, 1e-12);
}

TEST_F(RotationPrompt, AsksFromThePositionWithATracker) {
    reference->setPosition({4, 5, 6});
    io.script({value(0)});
    promptRotation(reference);
    EXPECT_EQ(io.questions[0].operation, "getAngle");
    EXPECT_EQ(io.questions[0].prompt, "Specify rotation angle <0>");
    EXPECT_EQ(io.questions[0].base, OdGePoint3d(4, 5, 6));
    EXPECT_EQ(io.questions[0].flags, 14);
    EXPECT_TRUE(io.questions[0].keywords.isNull());
    EXPECT_TRUE(io.questions[0].withTracker);
}

TEST_F(RotationPrompt, MessageOfARefusedAnswerReachesTheServices) {
    provideServices();
    io.script({typed(L"x"), value(0)});
    promptRotation(reference);
    EXPECT_EQ(services->reported, QStringList("Requires valid numeric angle or second point."));
}

namespace {

struct NotingSink : HostDrawableSink {
    void addDrawable(OdRxObject* drawable, int a, int b, int c, int d) override {
        added = {a, b, c, d};
        shown = drawable;
    }
    void removeDrawable(OdRxObject* drawable, int a, int b, int c, int d) override {
        removed = {a, b, c, d};
        gone = drawable;
    }
    std::vector<int> added, removed;
    OdRxObject *shown = nullptr, *gone = nullptr;
};

} // namespace

class Tracker : public RotationPrompt {};

TEST_F(Tracker, ShowsTheReferenceWithItsConstants) {
    XRefTracker tracker(reference, kTrackFreeScale, nullptr, nullptr, {});
    NotingSink sink;
    EXPECT_EQ(tracker.addDrawables(&sink), 1);
    EXPECT_EQ(sink.shown, reference.get());
    EXPECT_EQ(sink.added, (std::vector<int>{1, 512, 0, 0}));
}

TEST_F(Tracker, RemovesTheReferenceWithTheArgumentsReceived) {
    XRefTracker tracker(reference, kTrackFreeScale, nullptr, nullptr, {});
    NotingSink sink;
    tracker.removeDrawables(&sink, 4, 3, 2, 1);
    EXPECT_EQ(sink.gone, reference.get());
    EXPECT_EQ(sink.removed, (std::vector<int>{4, 3, 2, 1}));
}

TEST_F(Tracker, AnswersWithItsConstants) {
    XRefTracker tracker(reference, kTrackRotation, nullptr, nullptr, {});
    EXPECT_EQ(tracker.cursorType(), 0);
    EXPECT_EQ(tracker.defaultValueSource(), 3);
    EXPECT_EQ(tracker.snapSource(), 3);
    EXPECT_EQ(tracker.acceptsReal() + tracker.acceptsString() + tracker.acceptsKeyword(), 0);
}

TEST_F(Tracker, OnlyThePositionModeMovesTheReference) {
    for (const int mode : {kTrackRotation, kTrackUniformScale, kTrackFreeScale, kTrackPosition}) {
        reference->setPosition({9, 9, 9});
        XRefTracker tracker(reference, mode, nullptr, nullptr, {1, 2, 3});
        tracker.setCursor(50, 60, 70);
        EXPECT_EQ(reference->position(),
                  mode == kTrackPosition ? OdGePoint3d(1, 2, 3) : OdGePoint3d(9, 9, 9));
    }
}

TEST_F(Tracker, WhatTheHostTellsItChangesNothing) {
    reference->setPosition({9, 8, 7});
    reference->setRotation(0.5);
    reference->setScaleFactors({2, 3, 4});
    double value = 11, scale = 12;
    XRefTracker tracker(reference, kTrackFreeScale, &value, &scale, {1, 2, 3});
    tracker.setValue(5);
    tracker.setText(L"6");
    tracker.setBasePoint(10, 20, 30);
    tracker.setCursor(50, 60, 70);
    NotingSink sink;
    tracker.setSink(&sink);
    EXPECT_EQ(reference->position(), OdGePoint3d(9, 8, 7));
    EXPECT_EQ(reference->rotation(), 0.5);
    EXPECT_EQ(reference->scaleFactors(), OdGeScale3d(2, 3, 4));
    EXPECT_EQ(value, 11);
    EXPECT_EQ(scale, 12);
    EXPECT_EQ(sink.shown, nullptr);
    tracker.addDrawables(&sink);
    EXPECT_EQ(sink.shown, reference.get());
    EXPECT_EQ(tracker.removeDrawables(&sink, 0, 0, 0, 0), 1);
}

TEST_F(Tracker, HoldsTheReferenceForItsLife) {
    const long before = reference->numRefs();
    {
        XRefTracker tracker(reference, kTrackRotation, nullptr, nullptr, {});
        EXPECT_EQ(reference->numRefs(), before + 1);
    }
    EXPECT_EQ(reference->numRefs(), before);
}
