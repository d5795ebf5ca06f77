// Apply: what each row writes, in which order, and what it leaves alone.
#include "tests/options/options_fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

namespace {

class Apply : public OptionsFixture {
protected:
    // A check box that is off, over the node that is returned: what lies below it is disabled.
    OptionTreeWriter belowDisabled() {
        node("Off").set("Type", L"Check").profile("S", "Off");
        return node("Off");
    }
    OptionTreeWriter addCursorColor(unsigned int color) {
        store("Display", "CursorColor", color);
        const OptionTreeWriter row = node("CursorColor");
        row.type(L"Color").set("ID", 0x200000).profile("Display", "CursorColor");
        return row;
    }
    void addCursorRadios(int chosen) {
        store("Display", "CursorMode", chosen);
        const OptionTreeWriter group = node("Mode");
        group.profile("Display", "CursorMode");
        for (const int value : {0, 1, 2, 3}) {
            const std::string name = "Mode" + std::to_string(value);
            group.node(name.c_str()).type(L"RadioCursor").set("Value", value);
        }
    }
    unsigned int storedColor(const char* section, const char* key) { return stored(section, key); }
};

TEST_F(Apply, WritesEachKindOfRowInItsOwnType) {
    node("Check").type(L"Check").profile("S", "Check").set("Default", 1);
    node("Color").type(L"Color").profile("S", "Color").set("Default", 0x112233u);
    node("AcColor").type(L"AcColor").profile("S", "AcColor").set("Default", 3);
    node("Int").type(L"EditInt").profile("S", "Int").set("Default", 7);
    node("Real").type(L"EditReal").profile("S", "Real").set("Default", 1.5);
    node("Edit").type(L"Edit").profile("S", "Edit").set("Default", L" text ");
    node("Dir").type(L"EditDir").profile("S", "Dir").set("Default", L"/dir");
    node("File").type(L"EditFile").profile("S", "File").set("Default", L"a.dwt");
    node("Files").type(L"EditMultiFile").profile("S", "Files").set("Default", L"a.dwt;b.dwt");
    open();
    apply();
    EXPECT_EQ(stored("S", "Check").vt, kVtInt);
    EXPECT_EQ(storedInt("S", "Check"), 1);
    EXPECT_EQ(stored("S", "Color").vt, kVtUInt);
    EXPECT_EQ(storedColor("S", "Color"), 0x112233u);
    EXPECT_EQ(stored("S", "AcColor").vt, kVtUInt16);
    EXPECT_EQ(storedInt("S", "AcColor"), 3);
    EXPECT_EQ(stored("S", "Int").vt, kVtInt);
    EXPECT_EQ(storedInt("S", "Int"), 7);
    EXPECT_EQ(stored("S", "Real").vt, kVtDouble);
    EXPECT_EQ(double(stored("S", "Real")), 1.5);
    EXPECT_EQ(stored("S", "Edit").vt, kVtString);
    EXPECT_EQ(storedText("S", "Edit"), "text");
    EXPECT_EQ(stored("S", "Dir").vt, kVtWideString);
    EXPECT_EQ(storedText("S", "Dir"), "/dir");
    EXPECT_EQ(stored("S", "File").vt, kVtWideString);
    EXPECT_EQ(storedText("S", "File"), "a.dwt");
    EXPECT_EQ(storedText("S", "Files"), "a.dwt;b.dwt");
}

TEST_F(Apply, ADisabledValueRowIsNotWritten) {
    const OptionTreeWriter off = belowDisabled();
    off.node("Check").type(L"Check").profile("S", "Check").set("Default", 1);
    off.node("Edit").type(L"Edit").profile("S", "Edit").set("Default", L"t");
    off.node("Int").type(L"EditInt").profile("S", "Int").set("Default", 1);
    off.node("Real").type(L"EditReal").profile("S", "Real").set("Default", 1.0);
    off.node("Dir").type(L"EditDir").profile("S", "Dir").set("Default", L"t");
    off.node("File").type(L"EditFile").profile("S", "File").set("Default", L"t");
    off.node("Files").type(L"EditMultiFile").profile("S", "Files").set("Default", L"t");
    store("S", "Radio", 2);
    off.node("Radio").type(L"Radio").profile("S", "Radio").set("Value", 2);
    open();
    store("S", "Radio", 5); // so that a write would show
    apply();
    EXPECT_EQ(storedInt("S", "Off"), 0);
    EXPECT_TRUE(isStored("S", "Off")) << "the row that is on above them is written";
    for (const char* key : {"Check", "Edit", "Int", "Real", "Dir", "File", "Files"})
        EXPECT_FALSE(isStored("S", key)) << key;
    EXPECT_EQ(storedInt("S", "Radio"), 5);
}

TEST_F(Apply, ADisabledColorComboOrSelectedCursorRadioIsWritten) {
    addCursorColor(0x0000FF);
    const OptionTreeWriter off = belowDisabled();
    off.node("Color").type(L"Color").profile("S", "Color").set("Default", 5u);
    off.node("AcColor").type(L"AcColor").profile("S", "AcColor").set("Default", 5);
    const OptionTreeWriter combo = off.node("Combo");
    combo.type(L"Combo").profile("S", "Combo");
    combo.node("Choices").set("Hidden", 1).node("one").set("Name", L"One");
    store("S", "Cursor", 3);
    off.node("Cursor").type(L"RadioCursor").profile("S", "Cursor").set("Value", 3);
    open();
    ASSERT_FALSE(item("Cursor")->isEnabled());
    store("S", "Cursor", 0);
    apply();
    EXPECT_TRUE(isStored("S", "Color"));
    EXPECT_TRUE(isStored("S", "AcColor"));
    EXPECT_EQ(storedText("S", "Combo"), "one");
    EXPECT_EQ(storedInt("S", "Cursor"), 3);
}

TEST_F(Apply, ARealStoredAsIntegerIsReplacedByARealOfItsDefault) {
    store("S", "Real", 8);
    node("Real").type(L"EditReal").profile("S", "Real").set("Default", 2.5);
    open();
    EXPECT_EQ(item("Real")->numberValue, 2.5);
    apply();
    EXPECT_EQ(stored("S", "Real").vt, kVtDouble);
    EXPECT_EQ(double(stored("S", "Real")), 2.5);
}

TEST_F(Apply, CursorChoiceZeroSetsTheHighByteAndClearsTheFlag) {
    addCursorColor(0x0000FF);
    addCursorRadios(0);
    open();
    apply();
    EXPECT_EQ(storedColor("Display", "CursorColor"), 0xFF0000FFu);
    EXPECT_EQ(stored("Cursor", "Color3D").vt, kVtInt);
    EXPECT_EQ(storedInt("Cursor", "Color3D"), 0);
}

TEST_F(Apply, CursorChoiceOneClearsTheHighByteAndTheFlag) {
    addCursorColor(0xFF0000FF);
    addCursorRadios(1);
    store("Cursor", "Color3D", 1);
    open();
    apply();
    EXPECT_EQ(storedColor("Display", "CursorColor"), 0xFFu);
    EXPECT_EQ(storedInt("Cursor", "Color3D"), 0);
}

TEST_F(Apply, CursorChoiceTwoSetsTheFlagAndKeepsTheColor) {
    addCursorColor(0xFF0000FF);
    addCursorRadios(2);
    open();
    apply();
    EXPECT_EQ(storedColor("Display", "CursorColor"), 0xFF0000FFu);
    EXPECT_EQ(storedInt("Cursor", "Color3D"), 1);
}

TEST_F(Apply, AnyOtherCursorChoiceWritesNoFlagAndKeepsTheColor) {
    addCursorColor(0x0000FF);
    addCursorRadios(3);
    open();
    apply();
    EXPECT_EQ(storedInt("Display", "CursorMode"), 3);
    EXPECT_EQ(storedColor("Display", "CursorColor"), 0xFFu);
    EXPECT_FALSE(isStored("Cursor", "Color3D"));
}

TEST_F(Apply, TheCursorColorRowDoesNotWriteItself) {
    addCursorColor(0x0000FF);
    node("Other").type(L"Color").profile("Display", "Other").set("Default", 7u);
    open();
    store("Display", "CursorColor", 1u);
    apply();
    EXPECT_EQ(storedColor("Display", "CursorColor"), 1u);
    EXPECT_EQ(storedColor("Display", "Other"), 7u);
}

TEST_F(Apply, CursorRadiosWithoutTheColorRowWriteTheirNumberAlone) {
    addCursorRadios(2);
    open();
    store("Display", "CursorMode", 0);
    apply();
    EXPECT_EQ(storedInt("Display", "CursorMode"), 2);
    EXPECT_FALSE(openChild(&host.profile(), "Cursor"));
}

TEST_F(Apply, TheCursorFlagNeedsAProfile) {
    addCursorColor(0);
    open();
    dialog->writeCursorFlag(true);
    EXPECT_EQ(storedInt("Cursor", "Color3D"), 1);
    host.withhold(typeid(IProfile));
    dialog->writeCursorFlag(false);
    EXPECT_EQ(storedInt("Cursor", "Color3D"), 1) << "it stays as it was";
}

TEST_F(Apply, AcColorWritesThePaletteColorNearestToTheOneShown) {
    node("Color").type(L"AcColor").profile("S", "Color");
    open();
    item("Color")->colorValue = 0x0000FE; // nearly red, which is the low byte
    apply();
    EXPECT_EQ(storedInt("S", "Color"), 1);
    item("Color")->colorValue = 0xFE0000;
    apply();
    EXPECT_EQ(storedInt("S", "Color"), 5); // blue
}

TEST_F(Apply, AComboOnASystemVariableSetsItToItsOldValue) {
    host.vars.set("STYLE", L"b");
    const OptionTreeWriter combo = node("Combo");
    combo.type(L"Combo").variable("STYLE");
    const OptionTreeWriter choices = combo.node("Choices").set("Hidden", 1);
    choices.node("a").set("Name", L"A");
    choices.node("b").set("Name", L"B");
    open();
    EXPECT_EQ(editor<QComboBox>("Combo")->currentText(), "B");
    editor<QComboBox>("Combo")->setCurrentIndex(0);
    apply();
    ASSERT_EQ(host.vars.writes.size(), 1u);
    EXPECT_EQ(host.vars.writes[0].value->getString(), OdString(L"b"));
}

TEST_F(Apply, FileAndDirectoryRowsOnASystemVariableSetItToItsOldValue) {
    host.vars.set("PATH1", L"/old");
    host.vars.set("FILE1", L"old.dwt");
    node("Dir").type(L"EditDir").variable("PATH1");
    node("File").type(L"EditFile").variable("FILE1");
    open();
    item("Dir")->textValue = "/new";
    item("File")->textValue = "new.dwt";
    apply();
    ASSERT_EQ(host.vars.writes.size(), 2u);
    EXPECT_EQ(host.vars.value("PATH1")->getString(), OdString(L"/old"));
    EXPECT_EQ(host.vars.value("FILE1")->getString(), OdString(L"old.dwt"));
}

TEST_F(Apply, EditAndEditRealChangeASystemVariable) {
    host.vars.set("NAME", L"old");
    host.vars.set("SIZE", 1.0);
    node("Edit").type(L"Edit").variable("NAME");
    node("Real").type(L"EditReal").variable("SIZE");
    open();
    editor<QLineEdit>("Edit")->setText(" new ");
    editor<QDoubleSpinBox>("Real")->setValue(2.25);
    apply();
    EXPECT_EQ(host.vars.value("NAME")->getString(), OdString(L"new"));
    EXPECT_EQ(host.vars.value("SIZE")->getDouble(), 2.25);
}

TEST_F(Apply, TheTextOfAnEditIsTrimmedOnItsWayToTheStore) {
    node("Edit").type(L"Edit").profile("S", "Edit");
    open();
    item("Edit")->textValue = "  as it came ";
    apply();
    EXPECT_EQ(storedText("S", "Edit"), "as it came");
}

TEST_F(Apply, AnIntIsWrittenTruncated) {
    node("Up").type(L"EditInt").profile("S", "Up");
    node("Down").type(L"EditInt").profile("S", "Down");
    open();
    item("Up")->numberValue = 7.9;
    item("Down")->numberValue = -7.9;
    apply();
    EXPECT_EQ(storedInt("S", "Up"), 7);
    EXPECT_EQ(storedInt("S", "Down"), -7);
}

TEST_F(Apply, AnUnknownStoreShowsTheDefaultAndIsNotWritten) {
    node("Int").type(L"EditInt").profile("S", "Int").set("IFace", "INowhere").set("Default", 9);
    open();
    EXPECT_EQ(editor<QSpinBox>("Int")->value(), 9);
    node("Known").type(L"EditInt").profile("Elsewhere", "Known");
    open();
    editor<QSpinBox>("Int")->setValue(10);
    apply();
    EXPECT_FALSE(openChild(&host.profile(), "S"));
    EXPECT_TRUE(isStored("Elsewhere", "Known"));
}

TEST_F(Apply, EverythingUnchangedIsStillWritten) {
    host.vars.set("V", 4);
    node("Int").type(L"EditInt").variable("V");
    node("Edit").type(L"Edit").profile("S", "Edit").set("Default", L"d");
    open();
    apply();
    apply();
    EXPECT_EQ(host.vars.writes.size(), 2u);
    EXPECT_EQ(storedText("S", "Edit"), "d");
}

TEST_F(Apply, RowsOfEveryDepthAreWrittenAParentBeforeItsChildren) {
    OptionTreeWriter place = tree();
    for (int depth = 0; depth < 12; ++depth) {
        const std::string name = "Level" + std::to_string(depth);
        place = place.node(name.c_str());
        host.vars.set(name, depth);
        place.type(L"EditInt").variable(name.c_str());
    }
    open();
    apply();
    ASSERT_EQ(host.vars.writes.size(), 12u);
    for (int depth = 0; depth < 12; ++depth)
        EXPECT_EQ(host.vars.writes[std::size_t(depth)].name, "Level" + std::to_string(depth));
}

TEST_F(Apply, ARowThatCannotBeWrittenDoesNotStopTheOthers) {
    node("Gone").type(L"EditInt").variable("GONE");
    node("Int").type(L"EditInt").profile("S", "Int").set("Default", 3);
    open();
    apply();
    EXPECT_EQ(storedInt("S", "Int"), 3);
}

TEST_F(Apply, AnExceptionOfTheHostPassesAndLeavesNoReference) {
    node("Int").type(L"EditInt").profile("S", "Int").set("Default", 3);
    open();
    const auto count = [this] {
        const auto withOurs = host.profile().AddRef();
        host.profile().Release();
        return withOurs - 1;
    };
    const auto before = count();
    host.rules(host.profile()).mayChange = [](auto&&...) -> bool { throw std::runtime_error("disk"); };
    EXPECT_THROW(dialog->applyChanges(), std::runtime_error);
    EXPECT_EQ(count(), before);
}

TEST_F(Apply, TheNodeOfATransparentChildStandsForTheParentRow) {
    node("Int").type(L"EditInt").profile("S", "Own").set("Default", 3);
    node("Int").node("Clear").set("Name", L"").profile("S", "Other");
    open();
    apply();
    EXPECT_FALSE(isStored("S", "Own"));
    EXPECT_EQ(storedInt("S", "Other"), 3);
}

TEST_F(Apply, ExpandedRowsAreSavedByNameWithTheNamelessRoot) {
    node("Open").node("Inner");
    node("Closed").node("Within");
    store("Dialogs\\QPref\\ExpandedSections", "Stale", 1);
    open();
    item("Open")->setExpanded(true);
    apply();
    const char* const section = "Dialogs\\QPref\\ExpandedSections";
    EXPECT_EQ(storedInt(section, "Open"), 1);
    EXPECT_EQ(stored(section, "Open").vt, kVtInt);
    EXPECT_EQ(storedInt(section, ""), 1);
    EXPECT_FALSE(isStored(section, "Closed"));
    EXPECT_FALSE(isStored(section, "Stale"));
}

TEST_F(Apply, SavedExpansionComesBack) {
    node("Branch").node("Inner");
    open();
    item("Branch")->setExpanded(true);
    apply();
    open();
    EXPECT_TRUE(item("Branch")->isExpanded());
}

TEST_F(Apply, CancelSavesNoExpansionAndNoValue) {
    node("Int").type(L"EditInt").profile("S", "Int").node("Inner");
    open();
    item("Int")->setExpanded(true);
    editor<QSpinBox>("Int")->setValue(5);
    dialog->cancelButton->click();
    EXPECT_TRUE(childNames(&host.profile()).empty());
}

TEST_F(Apply, WithoutAnApplicationNothingBreaks) {
    node("Int").type(L"EditInt").profile("S", "Int");
    open();
    host.withholdApplication();
    apply();
    EXPECT_TRUE(childNames(&host.profile()).empty());
}

TEST_F(Apply, OkWritesAndCloses) {
    node("Int").type(L"EditInt").profile("S", "Int").set("Default", 6);
    show();
    dialog->okButton->click();
    EXPECT_EQ(storedInt("S", "Int"), 6);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_FALSE(dialog->isVisible());
}

} // namespace
