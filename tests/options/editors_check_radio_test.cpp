// Check boxes and radio buttons of the option tree.
#include "tests/options/options_fixture.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>

namespace {

class CheckEditor : public OptionsFixture {};
class RadioEditor : public OptionsFixture {
protected:
    // Three radio rows below "Group", over one stored integer.
    OptionTreeWriter addGroup(const char* name = "Group", const char* prefix = "R") {
        const OptionTreeWriter group = node(name);
        group.profile("S", name);
        for (const int value : {0, 1, 2}) {
            const std::string row = prefix + std::to_string(value);
            group.node(row.c_str()).type(L"Radio").set("Value", value);
        }
        return group;
    }
};

TEST_F(CheckEditor, ShowsTheStoredValueElseTheDefaultElseOff) {
    store("S", "A", 0);
    node("A").type(L"Check").profile("S", "A").set("Default", 1);
    node("B").type(L"Check").profile("S", "B").set("Default", 5);
    node("C").type(L"Check").profile("S", "C");
    open();
    EXPECT_FALSE(editor<QCheckBox>("A")->isChecked());
    EXPECT_TRUE(editor<QCheckBox>("B")->isChecked());
    EXPECT_FALSE(editor<QCheckBox>("C")->isChecked());
    EXPECT_EQ(item("A")->state, 0);
    EXPECT_EQ(item("B")->state, 1);
}

TEST_F(CheckEditor, TheLowerCaseTypeIsACheckToo) {
    node("A").type(L"check").profile("S", "A").set("Default", 1);
    open();
    EXPECT_TRUE(editor<QCheckBox>("A")->isChecked());
}

TEST_F(CheckEditor, AMaskShowsOneBit) {
    store("S", "Bits", 6);
    node("One").type(L"Check").profile("S", "Bits").set("mask", 1);
    node("Two").type(L"Check").profile("S", "Bits").set("mask", 2);
    node("Mixed").type(L"Check").profile("S", "Bits").set("mask", 5);
    open();
    EXPECT_FALSE(editor<QCheckBox>("One")->isChecked());
    EXPECT_TRUE(editor<QCheckBox>("Two")->isChecked());
    EXPECT_TRUE(editor<QCheckBox>("Mixed")->isChecked()); // any bit of the mask will do
}

TEST_F(CheckEditor, HasNoTextAndNoModify) {
    node("A").type(L"Check").set("Name", L"Grid");
    open();
    EXPECT_EQ(editor<QCheckBox>("A")->text(), "");
    EXPECT_EQ(labelOf("A"), "Grid");
    EXPECT_EQ(item("A")->buttonMask, kMaskNone);
}

TEST_F(CheckEditor, ClickingItTurnsTheRowsBelowOnAndOffAndMakesItCurrent) {
    const OptionTreeWriter parent = node("Parent");
    parent.type(L"Check").profile("S", "P");
    parent.node("Child").type(L"Check").profile("S", "C").node("Grandchild").type(L"Edit");
    show();
    EXPECT_FALSE(row("Child")->isEnabled());
    QTest::mouseClick(editor<QCheckBox>("Parent"), Qt::LeftButton);
    EXPECT_EQ(item("Parent")->state, 1);
    EXPECT_TRUE(item("Child")->isEnabled());
    EXPECT_TRUE(row("Child")->isEnabled());
    EXPECT_EQ(dialog->tree->currentItem(), item("Parent"));
    QTest::mouseClick(editor<QCheckBox>("Parent"), Qt::LeftButton);
    EXPECT_EQ(item("Parent")->state, 0);
    EXPECT_FALSE(item("Child")->isEnabled());
    EXPECT_FALSE(item("Grandchild")->isEnabled());
    EXPECT_FALSE(row("Grandchild")->isEnabled());
}

TEST_F(CheckEditor, AChangeInEitherDirectionMakesItsRowCurrent) {
    node("A").type(L"Check").profile("S", "A");
    node("B").type(L"Edit");
    open();
    for (const bool on : {true, false}) {
        dialog->tree->setCurrentItem(item("B"));
        editor<QCheckBox>("A")->setChecked(on);
        EXPECT_EQ(dialog->tree->currentItem(), item("A")) << on;
    }
}

TEST_F(CheckEditor, CheckingAParentAgainEnablesTheChildrenOfAnUncheckedChildToo) {
    const OptionTreeWriter parent = node("Parent");
    parent.type(L"Check").profile("S", "P").set("Default", 1);
    parent.node("Child").type(L"Check").profile("S", "C").node("Grandchild").type(L"Edit");
    open();
    ASSERT_FALSE(item("Grandchild")->isEnabled()); // its own parent is off
    editor<QCheckBox>("Parent")->click();
    editor<QCheckBox>("Parent")->click();
    EXPECT_FALSE(editor<QCheckBox>("Child")->isChecked());
    EXPECT_TRUE(item("Grandchild")->isEnabled());
    EXPECT_TRUE(row("Grandchild")->isEnabled());
}

TEST_F(RadioEditor, TheStoredValueIsSelectedAndNamedBehindTheGroup) {
    store("S", "Group", 2);
    addGroup().set("Name", L"Units").node("R2").set("Name", L"Metres");
    open();
    EXPECT_TRUE(editor<QRadioButton>("R2")->isChecked());
    EXPECT_FALSE(editor<QRadioButton>("R0")->isChecked());
    EXPECT_EQ(item("R2")->state, 1);
    EXPECT_EQ(item("R1")->state, 0);
    EXPECT_EQ(item("R1")->numberValue, 1);
    EXPECT_EQ(labelOf("Group"), "Units [Metres]");
    EXPECT_EQ(row("Group")->label()->toolTip(), "Units [Metres]");
}

TEST_F(RadioEditor, ARadioWhoseValueEqualsTheMaskedStoredValueIsSelected) {
    store("S", "Group", 0x12);
    const OptionTreeWriter group = node("Group");
    group.profile("S", "Group").set("Name", L"Mode");
    group.node("R1").type(L"Radio").set("Value", 1).set("mask", 3).set("Name", L"One");
    group.node("R2").type(L"Radio").set("Value", 2).set("mask", 3).set("Name", L"Two");
    open();
    EXPECT_TRUE(editor<QRadioButton>("R2")->isChecked());
    EXPECT_EQ(labelOf("Group"), "Mode [Two]");
}

TEST_F(RadioEditor, TheDefaultIsNotAsked) {
    addGroup().node("R2").set("Default", 2);
    open();
    EXPECT_FALSE(editor<QRadioButton>("R2")->isChecked());
    EXPECT_TRUE(editor<QRadioButton>("R0")->isChecked()); // nothing stored counts as 0
}

TEST_F(RadioEditor, AValueThatNoneStandsForSelectsNone) {
    store("S", "Group", 9);
    addGroup().set("Name", L"Units");
    open();
    for (const char* name : {"R0", "R1", "R2"})
        EXPECT_FALSE(editor<QRadioButton>(name)->isChecked()) << name;
    EXPECT_EQ(labelOf("Group"), "Units");
}

TEST_F(RadioEditor, AClickSelectsItAloneAndRenamesTheGroup) {
    addGroup().set("Name", L"Units");
    show();
    QTest::mouseClick(editor<QRadioButton>("R1"), Qt::LeftButton);
    EXPECT_TRUE(editor<QRadioButton>("R1")->isChecked());
    EXPECT_FALSE(editor<QRadioButton>("R0")->isChecked());
    EXPECT_EQ(item("R0")->state, 0);
    EXPECT_EQ(item("R1")->state, 1);
    EXPECT_EQ(labelOf("Group"), "Units [R1]");
    EXPECT_EQ(dialog->tree->currentItem(), item("R1"));
    QTest::mouseClick(editor<QRadioButton>("R2"), Qt::LeftButton);
    EXPECT_EQ(labelOf("Group"), "Units [R2]");
    EXPECT_EQ(row("Group")->label()->toolTip(), "Units [R2]");
}

TEST_F(RadioEditor, AClickEnablesWhatLiesBelowTheChosenRowOnly) {
    const OptionTreeWriter group = addGroup();
    group.node("R0").node("Below0").type(L"Edit");
    group.node("R1").node("Below1").type(L"Edit");
    open();
    EXPECT_FALSE(item("Below1")->isEnabled());
    editor<QRadioButton>("R1")->click();
    EXPECT_TRUE(item("Below1")->isEnabled());
    EXPECT_TRUE(row("Below1")->isEnabled());
    EXPECT_FALSE(item("Below0")->isEnabled());
    EXPECT_FALSE(row("Below0")->isEnabled());
}

TEST_F(RadioEditor, GroupsOfDifferentParentsAreIndependent) {
    addGroup("Group", "R");
    addGroup("Other", "Q");
    open();
    editor<QRadioButton>("R1")->click();
    editor<QRadioButton>("Q2")->click();
    EXPECT_TRUE(editor<QRadioButton>("R1")->isChecked());
    EXPECT_EQ(item("R1")->state, 1);
    EXPECT_EQ(item("Q2")->state, 1);
}

TEST_F(RadioEditor, TheGroupNameIsCutAtItsFirstBracket) {
    addGroup().set("Name", L"Size [mm] of [all] grips");
    open();
    editor<QRadioButton>("R1")->click();
    EXPECT_EQ(labelOf("Group"), "Size [R1]");
}

TEST_F(RadioEditor, AKeyIsFoundInTheParentButNotInTheGrandparent) {
    store("S", "Far", 1);
    const OptionTreeWriter far = node("Far");
    far.profile("S", "Far");
    far.node("Near").node("R1").type(L"Radio").set("Value", 1);
    open();
    EXPECT_FALSE(editor<QRadioButton>("R1")->isChecked());
}

TEST_F(RadioEditor, MarksOfASearchDoNotReachTheGroupName) {
    addGroup().set("Name", L"Units").node("R1").set("Name", L"Metres");
    show();
    auto* search = dialog->findChild<QLineEdit*>("searchEdit");
    search->setText("Metres");
    QTest::keyClick(search, Qt::Key_Return);
    ASSERT_TRUE(labelOf("R1").contains("<span"));
    editor<QRadioButton>("R1")->click();
    EXPECT_EQ(labelOf("Group"), "Units [Metres]");
    EXPECT_EQ(row("Group")->label()->toolTip(), "Units [Metres]");
}

TEST_F(RadioEditor, MarksOfASearchInTheGroupNameGoWithTheNextChoice) {
    addGroup().set("Name", L"Units");
    show();
    auto* search = dialog->findChild<QLineEdit*>("searchEdit");
    search->setText("Units");
    QTest::keyClick(search, Qt::Key_Return);
    ASSERT_TRUE(labelOf("Group").contains("<span"));
    editor<QRadioButton>("R1")->click();
    EXPECT_EQ(labelOf("Group"), "Units [R1]");
}

TEST_F(RadioEditor, TheChosenRowIsCurrentInTheEndWhateverHappensMeanwhile) {
    addGroup();
    open();
    bool movedAway = false;
    QObject::connect(dialog->tree, &QTreeWidget::currentItemChanged, dialog->tree, [&] {
        if (!std::exchange(movedAway, true))
            dialog->tree->setCurrentItem(item("Group"));
    });
    editor<QRadioButton>("R1")->click();
    EXPECT_TRUE(movedAway);
    EXPECT_EQ(dialog->tree->currentItem(), item("R1"));
}

TEST_F(RadioEditor, TheChosenRowIsCurrentBeforeWhatLiesBelowItIsOnAndTheGroupHasItsName) {
    const OptionTreeWriter group = addGroup();
    group.node("R0").node("Below0").type(L"Edit");
    group.node("R1").node("Below1").type(L"Edit");
    open();
    QStringList seen;
    QObject::connect(dialog->tree, &QTreeWidget::currentItemChanged, dialog->tree,
                     [&](QTreeWidgetItem* current) {
                         EXPECT_EQ(current, item("R1"));
                         EXPECT_EQ(item("R0")->state, 0) << "the former choice is off";
                         EXPECT_FALSE(item("Below0")->isEnabled());
                         EXPECT_EQ(item("R1")->state, 1) << "the new one is on";
                         EXPECT_FALSE(item("Below1")->isEnabled()) << "but not yet what lies below it";
                         seen << labelOf("Group");
                     });
    editor<QRadioButton>("R1")->click();
    EXPECT_EQ(seen, QStringList("Group [R0]")) << "once, with the former name";
    EXPECT_TRUE(item("Below1")->isEnabled());
    EXPECT_EQ(labelOf("Group"), "Group [R1]");
}

} // namespace
