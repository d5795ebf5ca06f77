// Apply of the rows that share a stored integer: checks and radios, with and without a mask.
#include "tests/options/options_fixture.h"

#include <QCheckBox>
#include <QRadioButton>

namespace {

class ApplyBits : public OptionsFixture {
protected:
    // Two radio rows over one stored integer, the first with the value 1, the second with 2.
    void addRadios() {
        const OptionTreeWriter group = node("Group");
        group.profile("S", "Choice");
        group.node("First").type(L"Radio").set("Value", 1);
        group.node("Second").type(L"Radio").set("Value", 2);
    }
};

TEST_F(ApplyBits, ACheckWithAMaskSetsAndClearsItsOwnBitsOnly) {
    store("S", "Bits", 3);
    node("Four").type(L"Check").profile("S", "Bits").set("mask", 4);
    open();
    apply();
    EXPECT_EQ(storedInt("S", "Bits"), 3);
    editor<QCheckBox>("Four")->click();
    apply();
    EXPECT_EQ(storedInt("S", "Bits"), 7);
    editor<QCheckBox>("Four")->click();
    apply();
    EXPECT_EQ(storedInt("S", "Bits"), 3);
}

TEST_F(ApplyBits, ChecksThatShareAnIntegerSeeWhatTheRowBeforeHasWritten) {
    node("One").type(L"Check").profile("S", "Bits").set("mask", 1);
    node("Two").type(L"Check").profile("S", "Bits").set("mask", 2);
    node("Four").type(L"Check").profile("S", "Bits").set("mask", 4);
    open();
    editor<QCheckBox>("One")->click();
    editor<QCheckBox>("Four")->click();
    apply();
    EXPECT_EQ(storedInt("S", "Bits"), 5);
}

TEST_F(ApplyBits, AMaskWithoutAStoredIntegerStartsFromTheDefault) {
    node("Four").type(L"Check").profile("S", "Bits").set("mask", 4).set("Default", 10);
    open();
    editor<QCheckBox>("Four")->click();
    apply();
    EXPECT_EQ(storedInt("S", "Bits"), 14);
}

TEST_F(ApplyBits, OnlyTheSelectedRadioWritesItsValue) {
    store("S", "Choice", 1);
    addRadios();
    open();
    editor<QRadioButton>("Second")->click();
    apply();
    EXPECT_EQ(storedInt("S", "Choice"), 2);
}

TEST_F(ApplyBits, AnUnselectedRadioBelowTheSelectedOneWritesNothing) {
    store("S", "Choice", 2);
    addRadios();
    open();
    editor<QRadioButton>("First")->click();
    apply();
    EXPECT_EQ(storedInt("S", "Choice"), 1);
}

TEST_F(ApplyBits, AMaskedRadioWithoutAStoredIntegerStartsFromTheDefault) {
    const OptionTreeWriter group = node("Group");
    group.profile("S", "Bits");
    group.node("One").type(L"Radio").set("Value", 1).set("mask", 3).set("Default", 8);
    open();
    editor<QRadioButton>("One")->click();
    apply();
    EXPECT_EQ(storedInt("S", "Bits"), 9);
}

TEST_F(ApplyBits, ASelectedMaskedRadioLosesTheBitsOfALaterUnselectedOne) {
    store("S", "Bits", 16);
    const OptionTreeWriter group = node("Group");
    group.profile("S", "Bits");
    group.node("Three").type(L"Radio").set("Value", 3).set("mask", 3);
    group.node("One").type(L"Radio").set("Value", 1).set("mask", 3);
    open();
    editor<QRadioButton>("Three")->click();
    apply();
    EXPECT_EQ(storedInt("S", "Bits"), 16 | 2); // bit 1 went with the row below
}

TEST_F(ApplyBits, AnEarlierUnselectedRadioLeavesTheBitsOfTheSelectedOne) {
    const OptionTreeWriter group = node("Group");
    group.profile("S", "Bits");
    group.node("One").type(L"Radio").set("Value", 1).set("mask", 3);
    group.node("Three").type(L"Radio").set("Value", 3).set("mask", 3);
    open();
    editor<QRadioButton>("Three")->click();
    apply();
    EXPECT_EQ(storedInt("S", "Bits"), 3);
}

TEST_F(ApplyBits, TheMaskOfARadioOnlyChoosesTheWay) {
    const OptionTreeWriter group = node("Group");
    group.profile("S", "Bits");
    group.node("Eight").type(L"Radio").set("Value", 8).set("mask", 3); // bits outside of the mask
    open();
    editor<QRadioButton>("Eight")->click();
    apply();
    EXPECT_EQ(storedInt("S", "Bits"), 8);
}

} // namespace
