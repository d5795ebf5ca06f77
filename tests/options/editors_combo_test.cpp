// The combo boxes: choices of the option tree and the host's save formats.
#include "tests/options/options_fixture.h"

#include <QComboBox>
#include <QTextEdit>
#include <QToolButton>
#include <QWheelEvent>

namespace {

class ComboEditor : public OptionsFixture {
protected:
    OptionTreeWriter addCombo() {
        const OptionTreeWriter combo = node("Combo");
        combo.type(L"Combo").profile("S", "Combo").set("Description", L"All of it");
        const OptionTreeWriter choices = combo.node("Choices").set("Hidden", 1);
        choices.node("first").set("Name", L"First one").set("Description", L"About the first");
        choices.node("second").set("Name", L"Second one");
        choices.node("third").set("Description", L"About the third");
        return combo;
    }
    QComboBox* box() { return editor<QComboBox>("Combo"); }
    QString tip(int index) { return box()->itemData(index, Qt::ToolTipRole).toString(); }

    // Save formats by number; an empty description makes one that is passed over.
    void addFormat(int number, const char* name, const wchar_t* description) {
        const OptionTreeWriter io(Ref<IParam>::share(&host.ioParams()));
        io.node("SaveProjects").set(("Format" + std::to_string(number)).c_str(), CXString(name));
        if (description)
            io.node("Formats").node(name).set("Description", description);
    }
    OptionTreeWriter addSaveFormats() {
        const OptionTreeWriter combo = node("Combo");
        combo.type(L"Combo").set("ID", 0x1000000).profile("S", "Combo");
        return combo;
    }
};

TEST_F(ComboEditor, ListsItsChoicesInOrderWithNameAndDescription) {
    addCombo();
    open();
    ASSERT_EQ(box()->count(), 3);
    EXPECT_EQ(box()->itemText(0), "First one");
    EXPECT_EQ(box()->itemData(0, Qt::UserRole).toString(), "first");
    EXPECT_EQ(tip(0), "About the first");
    EXPECT_EQ(tip(1), "All of it"); // the row's own, where the choice has none
    EXPECT_EQ(box()->itemText(2), "");
    EXPECT_EQ(box()->minimumWidth(), 200);
    EXPECT_EQ(box()->maximumWidth(), 200);
    EXPECT_EQ(item("Combo")->buttonMask, unsigned(kMaskModify));
}

// The node of a combo that names a choice "locked" and doesn't open it.
struct ComboWithLockedChoice : standin::MemParam {
    ComboWithLockedChoice() {
        for (const char* name : {"locked", "open"})
            OptionTreeWriter(Ref<IParam>::take(standin::MemParam::openSection(name, 1))).set("Name", L"Open");
    }
    IParam* openSection(const char* name, int create) override {
        if (CXString("Choices").Compare(name) == 0)
            return Ref<IParam>::share(this).detach();
        return CXString("locked").Compare(name) == 0 ? nullptr : standin::MemParam::openSection(name, create);
    }
};

TEST_F(ComboEditor, AChoiceThatDoesNotOpenIsPassedOverWithoutCounting) {
    node("Row");
    open();
    const auto combo = Ref<ComboWithLockedChoice>::share(new ComboWithLockedChoice);
    OptionTreeWriter(Ref<IParam>::share(combo.get())).set("Default", L"open");
    dialog->buildCombo(item("Row"), combo.get(), -1);
    auto* box = row("Row")->findChild<QComboBox*>("Row");
    ASSERT_EQ(box->count(), 1);
    EXPECT_EQ(box->itemText(0), "Open");
    EXPECT_EQ(box->itemData(0, Qt::UserRole).toString(), "open");
    EXPECT_EQ(box->currentIndex(), 0);
}

TEST_F(ComboEditor, TheStoredChoiceIsShownInAnyCaseWithItsDescription) {
    store("S", "Combo", CXStringW(L"FIRST"));
    addCombo();
    open();
    EXPECT_EQ(box()->currentIndex(), 0);
    EXPECT_EQ(item("Combo")->description, "About the first");
}

TEST_F(ComboEditor, TheDefaultServesWithoutAStoredChoice) {
    addCombo().set("Default", L"third");
    open();
    EXPECT_EQ(box()->currentIndex(), 2);
    EXPECT_EQ(item("Combo")->description, "About the third");
}

TEST_F(ComboEditor, AStoredTextThatIsNoChoiceShowsTheFirstAndApplyStoresIt) {
    store("S", "Combo", CXStringW(L"unheard of"));
    addCombo();
    open();
    EXPECT_EQ(box()->currentIndex(), 0);
    EXPECT_EQ(item("Combo")->description, "All of it");
    apply();
    EXPECT_EQ(storedText("S", "Combo"), "first");
}

TEST_F(ComboEditor, NamesAndDescriptionsAreTranslated) {
    host.translations[L"First one"] = L"Erstes";
    host.translations[L"About the first"] = L"Zum ersten";
    addCombo();
    open();
    EXPECT_EQ(box()->itemText(0), "Erstes");
    EXPECT_EQ(tip(0), "Zum ersten");
    EXPECT_EQ(box()->itemData(0, Qt::UserRole).toString(), "first");
}

TEST_F(ComboEditor, AChangeShowsTheDescriptionOfTheChoiceAndItsToolButtons) {
    addCombo().set("Default", L"first");
    show();
    dialog->addButton->setEnabled(true);
    box()->setFocus();
    QTest::keyClick(box(), Qt::Key_End);
    EXPECT_EQ(box()->currentIndex(), 2);
    EXPECT_EQ(item("Combo")->numberValue, 3);
    EXPECT_EQ(item("Combo")->description, "About the third");
    EXPECT_EQ(dialog->description->toPlainText(), "About the third");
    EXPECT_FALSE(dialog->addButton->isEnabled());
}

TEST_F(ComboEditor, TheWheelDoesNotChangeIt) {
    addCombo();
    show();
    box()->setFocus();
    QWheelEvent turn(QPointF(5, 5), box()->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(box(), &turn);
    EXPECT_EQ(box()->currentIndex(), 0);
    QComboBox plain;
    plain.addItems({"first", "second"});
    QApplication::sendEvent(&plain, &turn);
    EXPECT_EQ(plain.currentIndex(), 1) << "another combo box would follow it";
}

TEST_F(ComboEditor, ChoicesThatAreNotHiddenAppearAsRowsToo) {
    addCombo().node("Choices").set("Hidden", 0);
    open();
    EXPECT_EQ(labelOf("first"), "First one");
    EXPECT_EQ(box()->count(), 3);
}

TEST_F(ComboEditor, WithoutChoicesItIsEmptyAndStoresTheEmptyText) {
    node("Combo").type(L"Combo").profile("S", "Combo");
    open();
    EXPECT_EQ(box()->count(), 0);
    apply();
    EXPECT_EQ(stored("S", "Combo").vt, kVtWideString);
    EXPECT_EQ(storedText("S", "Combo"), "");
}

TEST_F(ComboEditor, SaveFormatsShowTheStoredNumber) {
    addFormat(1, "DXF", L"Drawing exchange");
    addFormat(2, "DWG", L"Drawing");
    store("S", "Combo", 2);
    addSaveFormats();
    open();
    ASSERT_EQ(box()->count(), 2);
    EXPECT_EQ(box()->itemText(0), "Drawing exchange");
    EXPECT_EQ(tip(0), "Drawing exchange");
    EXPECT_EQ(box()->currentIndex(), 1);
    EXPECT_EQ(item("Combo")->numberValue, 2);
    EXPECT_EQ(item("Combo")->description, "Drawing");
    EXPECT_EQ(item("Combo")->optionId, 0x1000000);
}

TEST_F(ComboEditor, ASaveFormatIsStoredAsItsNumber) {
    addFormat(1, "DXF", L"Drawing exchange");
    addFormat(2, "DWG", L"Drawing");
    addSaveFormats().set("Default", 1);
    open();
    EXPECT_EQ(item("Combo")->numberValue, 1);
    box()->setCurrentIndex(1);
    apply();
    EXPECT_EQ(stored("S", "Combo").vt, kVtInt);
    EXPECT_EQ(storedInt("S", "Combo"), 2);
}

TEST_F(ComboEditor, AFormatThatIsPassedOverPutsTheTipsOneOutOfStep) {
    addFormat(1, "DXF", L"Drawing exchange");
    addFormat(2, "BAD", nullptr); // has no section
    addFormat(3, "DWG", L"Drawing");
    addFormat(4, "DWT", L"Template");
    addSaveFormats();
    open();
    ASSERT_EQ(box()->count(), 3);
    EXPECT_EQ(box()->itemText(1), "Drawing");
    EXPECT_EQ(tip(1), ""); // its tip went to place 2, before there was an entry
    EXPECT_EQ(tip(2), "");
}

TEST_F(ComboEditor, ATipLandsOnTheEntryOfItsNumberNotOnItsOwn) {
    addFormat(1, "BAD", L""); // has no description
    addFormat(2, "DXF", L"Drawing exchange");
    addFormat(3, "DWG", L"Drawing");
    store("S", "Combo", 2);
    addSaveFormats();
    open();
    ASSERT_EQ(box()->count(), 2);
    EXPECT_EQ(tip(0), "");
    EXPECT_EQ(tip(1), "");
    EXPECT_EQ(item("Combo")->numberValue, 2); // the number is found, but its place isn't there yet
    EXPECT_EQ(box()->currentIndex(), -1);
    EXPECT_EQ(item("Combo")->description, "Drawing exchange");
}

TEST_F(ComboEditor, AnEntryBehindAFormatThatIsPassedOverIsStoredByItsPlace) {
    addFormat(1, "DXF", L"Drawing exchange");
    addFormat(2, "BAD", nullptr);
    addFormat(3, "DWG", L"Drawing");
    addSaveFormats();
    open();
    box()->setCurrentIndex(1); // "Drawing", whose own number is 3
    apply();
    EXPECT_EQ(storedInt("S", "Combo"), 2);
}

TEST_F(ComboEditor, ASaveFormatThatNothingNamesIsStoredAsZero) {
    addFormat(1, "DXF", L"Drawing exchange");
    addSaveFormats();
    open();
    EXPECT_EQ(box()->currentIndex(), 0);
    apply();
    EXPECT_EQ(stored("S", "Combo").vt, kVtInt);
    EXPECT_EQ(storedInt("S", "Combo"), 0);
}

TEST_F(ComboEditor, SaveFormatsAreTranslated) {
    host.translations[L"Drawing exchange"] = L"Austausch";
    addFormat(1, "DXF", L"Drawing exchange");
    addSaveFormats().set("Default", 1);
    open();
    EXPECT_EQ(box()->itemText(0), "Austausch");
    EXPECT_EQ(tip(0), "Austausch");
    EXPECT_EQ(item("Combo")->description, "Austausch");
}

TEST_F(ComboEditor, TheListEndsAtTheFirstMissingNumber) {
    addFormat(1, "DXF", L"Drawing exchange");
    addFormat(3, "DWG", L"Drawing");
    addSaveFormats();
    open();
    EXPECT_EQ(box()->count(), 1);
}

TEST_F(ComboEditor, AVariableLeavesTheSaveFormatUnknown) {
    addFormat(1, "DXF", L"Drawing exchange");
    addFormat(2, "DWG", L"Drawing");
    host.vars.set("FMT", 2);
    node("Combo").type(L"Combo").set("ID", 0x1000000).set("Default", 2).variable("FMT");
    open();
    EXPECT_EQ(box()->currentIndex(), 0);
    EXPECT_EQ(item("Combo")->numberValue, 0);
    apply();
    ASSERT_EQ(host.vars.writes.size(), 1u);
    EXPECT_EQ(host.vars.writes[0].value->getInt32(), 2);
}

TEST_F(ComboEditor, ChoicesComeBeforeSaveFormats) {
    addFormat(1, "DXF", L"Drawing exchange");
    addCombo().set("ID", 0x1000000);
    open();
    EXPECT_EQ(box()->count(), 3);
    EXPECT_EQ(item("Combo")->optionId, -1);
}

TEST_F(ComboEditor, WithoutIoParamsTheListOfSaveFormatsIsEmpty) {
    addFormat(1, "DXF", L"Drawing exchange");
    addSaveFormats();
    host.withhold(typeid(IIOParams));
    open();
    EXPECT_EQ(box()->count(), 0);
    EXPECT_EQ(item("Combo")->optionId, -1);
}

} // namespace
