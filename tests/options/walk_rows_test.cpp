// The rows that the walk makes: their kinds and editors, and what they start with.
#include "tests/options/walk_fixture.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QToolButton>
#include <gtest/gtest.h>

namespace {

class WalkedRows : public WalkFixture {};

} // namespace

TEST_F(WalkedRows, MakesEachKindOfRowWithItsEditor) {
    const std::tuple<const wchar_t*, int, const char*> kinds[] = {
        {L"Check", kNodeCheck, "QCheckBox"},
        {L"check", kNodeCheck, "QCheckBox"},
        {L"Radio", kNodeRadio, "QRadioButton"},
        {L"RadioCursor", kNodeRadioCursor, "QRadioButton"},
        {L"Color", kNodeColor, "QToolButton"},
        {L"AcColor", kNodeAcColor, "QToolButton"},
        {L"EditInt", kNodeEditInt, "QSpinBox"},
        {L"EditReal", kNodeEditReal, "QDoubleSpinBox"},
        {L"EditFile", kNodeEditFile, "QLineEdit"},
        {L"Edit", kNodeEdit, "QLineEdit"},
        {L"EditMultiFile", kNodeEditMultiFile, "QLineEdit"},
        {L"EditDir", kNodeEditDir, "QLineEdit"},
        {L"Combo", kNodeCombo, "QComboBox"}};
    int count = 0;
    for (const auto& kind : kinds)
        tree.node(QStringLiteral("row%1").arg(count++).toLocal8Bit()).type(std::get<0>(kind)).set("Key", "K");
    OpenDialog dialog;
    for (int i = 0; i < count; ++i) {
        const QByteArray name = QStringLiteral("row%1").arg(i).toLocal8Bit();
        const auto& [type, number, editorClass] = kinds[i];
        SCOPED_TRACE(testing::Message() << "Type " << QString::fromWCharArray(type).toStdString());
        EXPECT_EQ(itemOf(dialog, name)->nodeType, number);
        int editors = 0;
        for (const QWidget* child :
             rowOf(dialog, name)->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            editors += child->inherits(editorClass);
        EXPECT_EQ(editors, 1);
    }
}

TEST_F(WalkedRows, PutsButtonsBeforeTheLabelAndOtherEditorsBehindIt) {
    const std::pair<const wchar_t*, bool> kinds[] = {
        {L"Check", true},   {L"Radio", true},          {L"RadioCursor", true}, {L"Color", true},
        {L"AcColor", true}, {L"EditInt", false},       {L"EditReal", false},   {L"EditFile", false},
        {L"Edit", false},   {L"EditMultiFile", false}, {L"EditDir", false},    {L"Combo", false}};
    for (const auto& kind : kinds)
        tree.node(QString::fromWCharArray(kind.first).toLatin1()).type(kind.first);
    OpenDialog dialog;
    for (const auto& [type, isBefore] : kinds) {
        const QByteArray name = QString::fromWCharArray(type).toLatin1();
        const QWidget* const label = dialog.labelOf(itemOf(dialog, name));
        const auto* const editor = rowOf(dialog, name)->findChild<QWidget*>(name);
        ASSERT_NE(editor, nullptr) << name.constData();
        EXPECT_EQ(editor->x() < label->x(), isBefore) << name.constData();
    }
}

TEST_F(WalkedRows, TakesATypeInAnotherCaseAsASection) {
    tree.node("radio").type(L"radio");
    tree.node("upper").type(L"CHECK");
    tree.node("plain");
    OpenDialog dialog;
    for (const char* name : {"radio", "upper", "plain"}) {
        EXPECT_EQ(itemOf(dialog, name)->nodeType, int(kNodeSection)) << name;
        EXPECT_EQ(editorOf<QAbstractButton>(dialog, name), nullptr) << name;
    }
}

TEST_F(WalkedRows, TakesTheTypeUntranslated) {
    host.translations = {{L"Check", L"Radio"}, {L"Schalter", L"Check"}};
    tree.node("check").type(L"Check");
    tree.node("foreign").type(L"Schalter");
    OpenDialog dialog;
    EXPECT_EQ(itemOf(dialog, "check")->nodeType, int(kNodeCheck));
    EXPECT_EQ(itemOf(dialog, "foreign")->nodeType, int(kNodeSection));
}

TEST_F(WalkedRows, CutsOnlyColourRowsAtTheAngleBracket) {
    const wchar_t* const types[] = {
        L"Check",    L"Radio",         L"RadioCursor", L"Color", L"AcColor", L"EditInt", L"EditReal",
        L"EditFile", L"EditMultiFile", L"EditDir",     L"Edit",  L"Combo",   L""};
    int count = 0;
    for (const wchar_t* type : types)
        tree.node(QByteArray::number(count++)).type(type).set("Name", L"Grid <lines>");
    OpenDialog dialog;
    count = 0;
    for (const wchar_t* type : types) {
        const QString name = QString::fromWCharArray(type);
        EXPECT_EQ(shownText(dialog, QByteArray::number(count++)),
                  name.endsWith("Color") ? "Grid" : "Grid <lines>")
            << name.toStdString();
    }
}

TEST_F(WalkedRows, PaintsOnlyTheRow) {
    tree.node("section");
    OpenDialog dialog;
    EXPECT_EQ(itemOf(dialog, "section")->text(0), "");
    EXPECT_EQ(dialog.tree->itemWidget(itemOf(dialog, "section"), 0), rowOf(dialog, "section"));
}

TEST_F(WalkedRows, ShowsChoicesThatAreNotHiddenAsRowsBelowTheirCombo) {
    OptionTreeWriter combo = tree.node("units").type(L"Combo");
    combo.node("Choices").node("mm").set("Name", L"Millimetres");
    combo.node("Choices").set("Hidden", 0).node("inch").set("Name", L"Inches");
    OpenDialog dialog;
    EXPECT_EQ(namesBelow(itemOf(dialog, "units")), QStringList({"Choices"}));
    EXPECT_EQ(namesBelow(itemOf(dialog, "Choices")), QStringList({"mm", "inch"}));
    EXPECT_EQ(itemOf(dialog, "mm")->nodeType, int(kNodeSection));
    EXPECT_EQ(editorOf<QComboBox>(dialog, "units")->count(), 2);
}

TEST_F(WalkedRows, ShowsHiddenChoicesInTheComboAlone) {
    OptionTreeWriter choices = tree.node("units").type(L"Combo").node("Choices").set("Hidden", 1);
    choices.node("mm").set("Name", L"Millimetres");
    OpenDialog dialog;
    EXPECT_EQ(itemOf(dialog, "units")->childCount(), 0);
    EXPECT_EQ(editorOf<QComboBox>(dialog, "units")->itemText(0), "Millimetres");
}

TEST_F(WalkedRows, FindsTheKeyOfARadioInItsParentButNotInItsGrandparent) {
    OptionTreeWriter(openChild(&host.profile(), "Drawing", 1)).set("Style", 2);
    OptionTreeWriter group = tree.node("group");
    group.set("Key", "Style").set("Section", "Drawing").set("IFace", "IProfile");
    group.node("near").type(L"Radio").set("Value", 2);
    group.node("between").node("far").type(L"Radio").set("Value", 2);
    OpenDialog dialog;
    EXPECT_TRUE(editorOf<QRadioButton>(dialog, "near")->isChecked());
    EXPECT_FALSE(editorOf<QRadioButton>(dialog, "far")->isChecked());
}

TEST_F(WalkedRows, IgnoresTheSectionOfASystemVariable) {
    OptionTreeWriter(openChild(&host.profile(), "Drawing", 1)).set("GRIPSIZE", 9);
    host.vars.set("GRIPSIZE", 4);
    tree.node("size")
        .type(L"EditInt")
        .set("Key", "GRIPSIZE")
        .set("sysvar", 1)
        .set("Section", "Drawing")
        .set("IFace", "IProfile");
    OpenDialog dialog;
    EXPECT_EQ(editorOf<QSpinBox>(dialog, "size")->value(), 4);
}

TEST_F(WalkedRows, StartsTheRowsBelowAnUncheckedRowDisabled) {
    tree.node("off").type(L"Check").node("below").type(L"Edit").node("deeper").type(L"Edit");
    tree.node("on").type(L"Check").set("Default", 1).node("belowOn").type(L"Edit");
    OpenDialog dialog;
    EXPECT_TRUE(isOn(dialog, "off"));
    EXPECT_FALSE(isOn(dialog, "below"));
    EXPECT_FALSE(isOn(dialog, "deeper")) << "its parent is disabled";
    EXPECT_TRUE(isOn(dialog, "belowOn"));
}

TEST_F(WalkedRows, CountsARowWithoutAStateAsOn) {
    tree.node("section").node("below").type(L"Edit");
    OpenDialog dialog;
    EXPECT_EQ(itemOf(dialog, "section")->state, 2);
    EXPECT_TRUE(isOn(dialog, "below"));
}

TEST_F(WalkedRows, DisablesARowByTheValueEightOfItsState) {
    tree.node("off").type(L"Edit").set("State", 8);
    tree.node("alsoOff").type(L"Edit").set("State", 12);
    tree.node("on").type(L"Edit").set("State", 7);
    tree.node("bitNumberEight").type(L"Edit").set("State", 256);
    OpenDialog dialog;
    EXPECT_FALSE(isOn(dialog, "off"));
    EXPECT_FALSE(isOn(dialog, "alsoOff"));
    EXPECT_TRUE(isOn(dialog, "on"));
    EXPECT_TRUE(isOn(dialog, "bitNumberEight"));
}

TEST_F(WalkedRows, GroupsTheRadiosOfOneParentExclusively) {
    OptionTreeWriter group = tree.node("group");
    group.node("a").type(L"Radio").set("Value", 1);
    group.node("b").type(L"Radio").set("Value", 2);
    tree.node("other").node("c").type(L"Radio").set("Value", 1);
    OpenDialog dialog;
    QButtonGroup* const buttons = dialog.buttonGroups.value(itemOf(dialog, "group"));
    ASSERT_NE(buttons, nullptr);
    EXPECT_TRUE(buttons->exclusive());
    EXPECT_EQ(buttons->parent(), &dialog);
    EXPECT_NE(buttons->id(buttons->buttons()[0]), buttons->id(buttons->buttons()[1])) << "no number is given";
    EXPECT_EQ(buttons->buttons().size(), 2);
    EXPECT_EQ(dialog.buttonGroups.value(itemOf(dialog, "other"))->buttons().size(), 1);
    EXPECT_EQ(dialog.buttonGroups.size(), 2);
    EXPECT_EQ(dialog.radioLists.value(itemOf(dialog, "group")).size(), 2);
    editorOf<QRadioButton>(dialog, "a")->click();
    editorOf<QRadioButton>(dialog, "b")->click();
    editorOf<QRadioButton>(dialog, "c")->click();
    EXPECT_FALSE(editorOf<QRadioButton>(dialog, "a")->isChecked());
    EXPECT_TRUE(editorOf<QRadioButton>(dialog, "b")->isChecked());
    EXPECT_TRUE(editorOf<QRadioButton>(dialog, "c")->isChecked());
}
