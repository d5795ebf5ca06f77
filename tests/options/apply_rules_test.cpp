// Apply at the edges of its rules: what counts as enabled, which rows are reached, and what is saved of the
// expansion.
#include "options/pages/search/searching_line_edit.h"
#include "tests/options/options_fixture.h"
#include "tests/support/local_code_page.h"

#include <QLineEdit>
#include <QRadioButton>

namespace {

const char expansion[] = "Dialogs\\QPref\\ExpandedSections";

class ApplyRules : public OptionsFixture {
protected:
    // A row with the number 1 in the profile section "S", under its own name.
    OptionTreeWriter addNumber(const char* name) {
        node(name).type(L"EditInt").profile("S", name).set("Default", 1);
        return node(name);
    }
};

} // namespace

TEST_F(ApplyRules, TheCursorsColourIsWrittenFromTheRowEachTimeAndNeverChangesIt) {
    store("Display", "CursorColor", 0x0000FFu);
    node("CursorColor").type(L"Color").set("ID", 0x200000).profile("Display", "CursorColor");
    const OptionTreeWriter group = node("Mode");
    group.profile("Display", "CursorMode");
    for (const auto& [name, value] : {std::pair("Mode0", 0), std::pair("Mode2", 2)})
        group.node(name).type(L"RadioCursor").set("Value", value);
    const auto storedColor = [this] { return static_cast<unsigned>(stored("Display", "CursorColor")); };
    open();
    apply();
    EXPECT_EQ(storedColor(), 0xFF0000FFu);
    EXPECT_EQ(item("CursorColor")->colorValue, 0x0000FFu);
    editor<QRadioButton>("Mode2")->click();
    apply();
    EXPECT_EQ(storedColor(), 0x0000FFu) << "the high byte of the Apply before is not kept";
}

TEST_F(ApplyRules, TheFlagOfTheItemDecidesAndNotTheRowWidget) {
    addNumber("WidgetOff");
    addNumber("ItemOff");
    open();
    row("WidgetOff")->setEnabled(false);
    item("ItemOff")->setEnabledFlag(false);
    apply();
    EXPECT_TRUE(isStored("S", "WidgetOff"));
    EXPECT_FALSE(isStored("S", "ItemOff"));
}

TEST_F(ApplyRules, RowsThatASearchHasHiddenAreWritten) {
    addNumber("Hidden");
    addNumber("Found");
    show();
    dialog->searchEdit->setText("found");
    QTest::keyClick(dialog->searchEdit, Qt::Key_Return);
    ASSERT_TRUE(item("Hidden")->isHidden());
    apply();
    EXPECT_TRUE(isStored("S", "Hidden"));
    EXPECT_TRUE(isStored("S", "Found"));
}

TEST_F(ApplyRules, EveryTopLevelItemIsWrittenWithWhatLiesBelowIt) {
    addNumber("Second").set("Hidden", 1); // data without rows of the walk
    addNumber("Below").set("Hidden", 1);
    open();
    const auto addItem = [this](auto* parent, const char* name) {
        auto* added = new TreeItem(parent);
        added->nodeType = kNodeEditInt;
        added->numberValue = 5;
        dialog->optionItems[added] = node(name).get();
        return added;
    };
    addItem(addItem(dialog->tree, "Second"), "Below");
    ASSERT_EQ(dialog->tree->topLevelItemCount(), 2);
    apply();
    EXPECT_EQ(storedInt("S", "Second"), 5);
    EXPECT_EQ(storedInt("S", "Below"), 5);
}

TEST_F(ApplyRules, OnlyAColorIsPassedOverUnderTheIdOfTheCursor) {
    for (const wchar_t* type : {L"Color", L"AcColor"}) {
        const QByteArray name = QString::fromWCharArray(type).toLatin1();
        node(name).type(type).profile("S", name).set("ID", int(kIdCursorColor)).set("Default", 3);
    }
    open();
    apply();
    EXPECT_FALSE(isStored("S", "Color"));
    EXPECT_EQ(storedInt("S", "AcColor"), 3);
}

TEST_F(ApplyRules, WhatARowWritesIntoTheSavedExpansionDoesNotStay) {
    node("Row").type(L"EditInt").profile(expansion, "Of a row").set("Default", 1);
    int written = 0;
    open();
    host.rules(host.profile()).changed = [&] { written += isStored(expansion, "Of a row"); };
    apply();
    EXPECT_GT(written, 0) << "the row has written it";
    EXPECT_FALSE(isStored(expansion, "Of a row"));
    EXPECT_TRUE(isStored(expansion, "")) << "the root is saved";
}

TEST_F(ApplyRules, AnExpandedRowWithNothingBelowItIsSavedToo) {
    node("Leaf");
    node("Shut");
    open();
    item("Leaf")->setExpanded(true);
    ASSERT_TRUE(item("Leaf")->isExpanded());
    apply();
    EXPECT_EQ(storedInt(expansion, "Leaf"), 1);
    EXPECT_FALSE(isStored(expansion, "Shut"));
    open();
    EXPECT_TRUE(item("Leaf")->isExpanded());
    EXPECT_FALSE(item("Shut")->isExpanded());
}

TEST_F(ApplyRules, AnExpandedRowIsSavedUnderTheBytesOfItsName) {
    const char name[] = "Gr\xF6\xDF"
                        "e"; // no UTF-8
    node(name).node("Inner");
    open();
    item(name)->setExpanded(true);
    apply();
    EXPECT_EQ(storedInt(expansion, name), 1);
    open();
    EXPECT_TRUE(item(name)->isExpanded());
}

TEST_F(ApplyRules, AnEditorIsNamedInTheLocalCodePageAsItsRowIs) {
    const LocalCodePage western("ISO-8859-1");
    node("Gr\xF6\xDF"
         "e")
        .type(L"Edit");
    open();
    EXPECT_EQ(labelOf("Gr\xF6\xDF"
                      "e"),
              QStringLiteral("Gr\u00F6\u00DFe"));
    EXPECT_TRUE(dialog->tree->findChild<QLineEdit*>(QStringLiteral("Gr\u00F6\u00DFe")));
}
