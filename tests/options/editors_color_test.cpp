// The colour swatches and their double click.
#include "tests/options/options_fixture.h"

#include <QToolButton>

namespace {

class ColorEditor : public OptionsFixture {
protected:
    void SetUp() override {
        standin::registry().colorDialog = [this](OdCmColor& color, bool flag, const OdCmColor& before,
                                                 OdCm::DialogTabs shownTabs, QWidget* parentWidget) {
            ++dialogsShown;
            offered = bytesOf(color);
            flagged = flag;
            previous = bytesOf(before);
            tabs = shownTabs;
            parent = parentWidget;
            currentMeanwhile = dialog->tree->currentItem();
            color.setRGB(0x11, 0x22, 0x33);
            return accepts ? 1 : 0;
        };
    }
    void addColor(const char* name, unsigned int color) {
        store("S", name, color);
        node(name).type(L"Color").profile("S", name);
    }
    QToolButton* swatch(const char* name) { return editor<QToolButton>(name); }
    void clickTwice(const char* name) {
        swatch(name)->click();
        swatch(name)->click();
    }

    static std::uint32_t bytesOf(const OdCmColor& color) {
        return std::uint32_t(color.red() | color.green() << 8 | color.blue() << 16);
    }

    int dialogsShown = 0;
    // What the dialog was shown with, and the row that was current then.
    std::uint32_t offered = 0, previous = 0;
    bool flagged = true;
    int tabs = 0;
    QWidget* parent = nullptr;
    QTreeWidgetItem* currentMeanwhile = nullptr;
    bool accepts = true;
};

TEST_F(ColorEditor, ShowsTheLowThreeBytesWithRedLowest) {
    addColor("A", 0xFF0080FF);
    open();
    EXPECT_EQ(item("A")->colorValue, 0xFF0080FFu); // the high byte stays
    EXPECT_EQ(swatch("A")->styleSheet(),
              "background-color: #ff8000; border: 1px solid black; min-width: 12px; min-height: 12px; "
              "max-width: 12px; max-height: 12px;");
    EXPECT_EQ(item("A")->buttonMask, unsigned(kMaskModify));
}

TEST_F(ColorEditor, TheDefaultServesWithoutAStoredColor) {
    node("A").type(L"Color").profile("S", "A").set("Default", 0x010203u);
    open();
    EXPECT_EQ(item("A")->colorValue, 0x010203u);
}

TEST_F(ColorEditor, AVariableGivesItsNumber) {
    host.vars.set("VAR", 0x00FF00, OdResBuf::kRtInt32);
    node("A").type(L"Color").variable("VAR");
    open();
    EXPECT_EQ(item("A")->colorValue, 0x00FF00u);
}

TEST_F(ColorEditor, APaletteIndexIsShownInItsColor) {
    store("S", "Red", 1);
    store("S", "Blue", 256 + 5); // the low byte counts
    node("Red").type(L"AcColor").profile("S", "Red");
    node("Blue").type(L"AcColor").profile("S", "Blue");
    node("Green").type(L"AcColor").profile("S", "Green").set("Default", 3);
    open();
    EXPECT_EQ(item("Red")->colorValue, 0x0000FFu);
    EXPECT_EQ(item("Blue")->colorValue, 0xFF0000u);
    EXPECT_EQ(item("Green")->colorValue, 0x00FF00u);
}

TEST_F(ColorEditor, TheRowTextIsCutAtTheAngleBracket) {
    node("A").type(L"Color").set("Name", L"Background <model>");
    open();
    EXPECT_EQ(labelOf("A"), "Background");
}

TEST_F(ColorEditor, ASingleClickOnlyArms) {
    addColor("A", 0);
    open();
    swatch("A")->click();
    EXPECT_EQ(dialogsShown, 0);
    swatch("A")->click();
    EXPECT_EQ(dialogsShown, 1) << "it was armed";
}

TEST_F(ColorEditor, TheRowIsCurrentBeforeTheDialogComesUpAndTheDialogGetsItsArguments) {
    addColor("A", 0x0080FF);
    addColor("B", 0);
    open();
    dialog->tree->setCurrentItem(item("B"));
    clickTwice("A");
    ASSERT_EQ(dialogsShown, 1);
    EXPECT_EQ(currentMeanwhile, item("A"));
    EXPECT_EQ(offered, 0x0080FFu);
    EXPECT_FALSE(flagged);
    EXPECT_EQ(previous, bytesOf(OdCmColor()));
    EXPECT_EQ(tabs, 3);
    EXPECT_EQ(parent, dialog.get());
}

TEST_F(ColorEditor, TwoClicksOpenTheDialogOnTheColorAndTakeTheNewOne) {
    addColor("A", 0xFF0080FF);
    open();
    clickTwice("A");
    EXPECT_EQ(dialogsShown, 1);
    EXPECT_EQ(offered, 0x0080FFu);
    EXPECT_EQ(item("A")->colorValue, 0x332211u); // the high byte is gone
    EXPECT_TRUE(swatch("A")->styleSheet().startsWith("background-color: #112233;"));
    EXPECT_EQ(dialog->tree->currentItem(), item("A"));
}

TEST_F(ColorEditor, TwoClicksOnTwoSwatchesOpenNothingAndTheSecondIsArmed) {
    addColor("A", 0);
    addColor("B", 0);
    open();
    swatch("A")->click();
    swatch("B")->click();
    EXPECT_EQ(dialogsShown, 0);
    swatch("B")->click();
    EXPECT_EQ(dialogsShown, 1);
}

TEST_F(ColorEditor, ClicksFurtherApartThanADoubleClickOpenNothing) {
    addColor("A", 0);
    open();
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0); // now any two clicks are too far apart
    clickTwice("A");
    QApplication::setDoubleClickInterval(interval);
    EXPECT_EQ(dialogsShown, 0);
    swatch("A")->click();
    EXPECT_EQ(dialogsShown, 1) << "the second of them has armed it again";
}

TEST_F(ColorEditor, CancellingLeavesTheColorAndDisarms) {
    addColor("A", 0xFF0080FF);
    accepts = false;
    open();
    clickTwice("A");
    EXPECT_EQ(dialogsShown, 1);
    EXPECT_EQ(item("A")->colorValue, 0xFF0080FFu);
    swatch("A")->click(); // a third click at once only arms again
    EXPECT_EQ(dialogsShown, 1);
    swatch("A")->click();
    EXPECT_EQ(dialogsShown, 2);
}

TEST_F(ColorEditor, APickedColorIsWrittenAtApplyOnly) {
    addColor("A", 1);
    open();
    clickTwice("A");
    EXPECT_EQ(static_cast<unsigned>(stored("S", "A")), 1u);
    apply();
    EXPECT_EQ(static_cast<unsigned>(stored("S", "A")), 0x332211u);
}

} // namespace
