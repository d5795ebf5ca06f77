// The spin boxes of the option tree.
#include "tests/options/options_fixture.h"

#include <QSpinBox>

namespace {

class NumberEditor : public OptionsFixture {};

TEST_F(NumberEditor, ShowsTheStoredNumberElseTheDefaultElseZero) {
    store("S", "A", 4);
    node("A").type(L"EditInt").profile("S", "A").set("Default", 1);
    node("B").type(L"EditInt").profile("S", "B").set("Default", 12);
    node("C").type(L"EditInt").profile("S", "C");
    open();
    EXPECT_EQ(editor<QSpinBox>("A")->value(), 4);
    EXPECT_EQ(editor<QSpinBox>("B")->value(), 12);
    EXPECT_EQ(editor<QSpinBox>("C")->value(), 0);
    EXPECT_EQ(item("B")->numberValue, 12);
    EXPECT_EQ(item("A")->buttonMask, unsigned(kMaskModify));
}

TEST_F(NumberEditor, AnIntWithoutLimitsRunsFromZeroToTheGreatestInt) {
    node("A").type(L"EditInt");
    open();
    EXPECT_EQ(editor<QSpinBox>("A")->minimum(), 0);
    EXPECT_EQ(editor<QSpinBox>("A")->maximum(), 0x7FFFFFFF);
    EXPECT_EQ(editor<QSpinBox>("A")->singleStep(), 1);
}

TEST_F(NumberEditor, LimitsAndStepOfAnInt) {
    node("A").type(L"EditInt").set("Limits", tagSIZE{-5, 50}).set("Step", 5);
    open();
    EXPECT_EQ(editor<QSpinBox>("A")->minimum(), -5);
    EXPECT_EQ(editor<QSpinBox>("A")->maximum(), 50);
    EXPECT_EQ(editor<QSpinBox>("A")->singleStep(), 5);
}

TEST_F(NumberEditor, ARealWithoutLimitsRunsFromZeroToTheGreatestInt) {
    node("A").type(L"EditReal").profile("S", "A").set("Default", 1.5);
    open();
    EXPECT_EQ(editor<QDoubleSpinBox>("A")->minimum(), 0.0);
    EXPECT_EQ(editor<QDoubleSpinBox>("A")->maximum(), 2147483647.0);
    EXPECT_EQ(editor<QDoubleSpinBox>("A")->singleStep(), 1.0);
    EXPECT_EQ(editor<QDoubleSpinBox>("A")->value(), 1.5);
    EXPECT_EQ(item("A")->buttonMask, unsigned(kMaskModify));
}

TEST_F(NumberEditor, LimitsAndStepOfAReal) {
    node("A").type(L"EditReal").set("Limits", tagRSIZE{-0.5, 2.5}).set("Step", 0.25);
    open();
    EXPECT_EQ(editor<QDoubleSpinBox>("A")->minimum(), -0.5);
    EXPECT_EQ(editor<QDoubleSpinBox>("A")->maximum(), 2.5);
    EXPECT_EQ(editor<QDoubleSpinBox>("A")->singleStep(), 0.25);
}

TEST_F(NumberEditor, OfReversedLimitsAnIntTakesTheLatterAndARealTheFormerForBoth) {
    node("Int").type(L"EditInt").set("Limits", tagSIZE{50, 10});
    node("Real").type(L"EditReal").set("Limits", tagRSIZE{2.5, 0.5});
    open();
    EXPECT_EQ(editor<QSpinBox>("Int")->minimum(), 10);
    EXPECT_EQ(editor<QSpinBox>("Int")->maximum(), 10);
    EXPECT_EQ(editor<QDoubleSpinBox>("Real")->minimum(), 2.5);
    EXPECT_EQ(editor<QDoubleSpinBox>("Real")->maximum(), 2.5);
}

TEST_F(NumberEditor, LimitsAndStepOfTheOtherKindAreNotRead) {
    node("Int").type(L"EditInt").set("Limits", tagRSIZE{-1, 2}).set("Step", 2.0);
    node("Real").type(L"EditReal").set("Limits", tagSIZE{-1, 2}).set("Step", 2).set("Default", 3);
    open();
    EXPECT_EQ(editor<QSpinBox>("Int")->minimum(), 0);
    EXPECT_EQ(editor<QSpinBox>("Int")->singleStep(), 1);
    EXPECT_EQ(editor<QDoubleSpinBox>("Real")->minimum(), 0.0);
    EXPECT_EQ(editor<QDoubleSpinBox>("Real")->singleStep(), 1.0);
    EXPECT_EQ(editor<QDoubleSpinBox>("Real")->value(), 0.0);
}

TEST_F(NumberEditor, TheTextBehindTheAngleBracketIsTheUnitWithDoubledPercentSignsMadeSingle) {
    node("Percent").type(L"EditInt").set("Name", L"Fading>%%");
    node("Unit").type(L"EditReal").set("Name", L"Size> mm>2");
    node("None").type(L"EditInt").set("Name", L"Count");
    open();
    EXPECT_EQ(editor<QSpinBox>("Percent")->suffix(), "%");
    EXPECT_EQ(editor<QDoubleSpinBox>("Unit")->suffix(), " mm>2");
    EXPECT_EQ(editor<QSpinBox>("None")->suffix(), "");
    EXPECT_EQ(labelOf("Percent"), "Fading>%%"); // the row's own text isn't cut
}

TEST_F(NumberEditor, TheItemFollowsTheBox) {
    node("Int").type(L"EditInt");
    node("Real").type(L"EditReal");
    show();
    editor<QSpinBox>("Int")->stepUp();
    EXPECT_EQ(item("Int")->numberValue, 1);
    editor<QDoubleSpinBox>("Real")->setValue(2.5);
    EXPECT_EQ(item("Real")->numberValue, 2.5);
}

TEST_F(NumberEditor, TypingChangesTheItem) {
    node("Int").type(L"EditInt");
    show();
    auto* box = editor<QSpinBox>("Int");
    box->selectAll();
    QTest::keyClicks(box, "37");
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(item("Int")->numberValue, 37);
}

TEST_F(NumberEditor, AValueOutsideOfItsLimitsIsKeptUntilTheUserEdits) {
    store("S", "A", 500);
    store("S", "B", 1.23456);
    node("A").type(L"EditInt").profile("S", "A").set("Limits", tagSIZE{0, 100});
    node("B").type(L"EditReal").profile("S", "B");
    open();
    EXPECT_EQ(editor<QSpinBox>("A")->value(), 100);
    apply();
    EXPECT_EQ(storedInt("S", "A"), 500);
    EXPECT_EQ(double(stored("S", "B")), 1.23456);
    editor<QSpinBox>("A")->stepDown();
    apply();
    EXPECT_EQ(storedInt("S", "A"), 99);
}

} // namespace
