// The window of the Options dialog: its controls, what they do, and the ways out.
#include "tests/options/open_dialog.h"
#include "tests/support/test_application.h"

#include "options/pages/search/collapse_widget.h"
#include "options/pages/search/searching_line_edit.h"
#include "sdk/db/application_variables.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QSignalSpy>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>
#include <gtest/gtest.h>

namespace {

class OptionsDialog : public testing::Test {
protected:
    void TearDown() override { TestApplication::self()->console.database = nullptr; }
    // A check row "grid" in the profile section "Drawing".
    void addCheck() {
        optionTree(host)
            .node("grid")
            .type(L"Check")
            .set("Key", "Grid")
            .set("Section", "Drawing")
            .set("IFace", "IProfile");
    }
    int storedGrid() {
        int value = -1;
        readValue(openChild(&host.profile(), "Drawing").get(), "Grid", &value);
        return value;
    }
    FixtureHost host;
};

// An object in the place of the database whose reading fails.
class BrokenDatabase : public OdRxObject {
public:
    OdRxObject* queryX(const OdRxClass*) const override { throw OdError(eNotInDatabase); }
};

// The application's variable `cconfiguration`, for as long as this lives.
class Configuration : public OdDbApplicationVariables {
public:
    explicit Configuration(const wchar_t* text) : value(OdResBuf::newRb(OdResBuf::kRtString)) {
        value->setString(text);
        odDbSetApplicationVariables(this);
    }
    ~Configuration() override { odDbSetApplicationVariables(nullptr); }
    OdResBufPtr getVariable(const OdString& name) override {
        if (beforeRead)
            beforeRead();
        return name.iCompare(L"cconfiguration") == 0 ? value : OdResBufPtr();
    }
    bool setVariable(const OdString&, const OdResBuf*) override { return false; }
    std::function<void()> beforeRead; // may throw

private:
    OdResBufPtr value;
};

QStringList entries(const QComboBox& box) {
    QStringList texts;
    for (int i = 0; i < box.count(); ++i)
        texts << box.itemText(i);
    return texts;
}

// The controls of a layout in order, layouts inside it opened up; a gap is "-".
QStringList controlsOf(const QLayout* layout) {
    QStringList names;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem* const item = layout->itemAt(i);
        if (item->layout())
            names << controlsOf(item->layout());
        else if (item->widget())
            names << item->widget()->objectName();
        else
            names << QStringLiteral("-");
    }
    return names;
}

} // namespace

TEST_F(OptionsDialog, HasAMinimumSizeAndATreeOfOneHeadlessColumn) {
    OpenDialog dialog;
    EXPECT_EQ(dialog.minimumSize(), QSize(700, 650));
    EXPECT_EQ(dialog.tree->columnCount(), 1);
    EXPECT_TRUE(dialog.tree->isHeaderHidden());
    EXPECT_TRUE(dialog.tree->header()->stretchLastSection());
    EXPECT_TRUE(dialog.control<QTextEdit>("description")->isReadOnly());
}

TEST_F(OptionsDialog, NamesItsButtons) {
    OpenDialog dialog;
    EXPECT_EQ(dialog.button("okButton")->text(), "OK");
    EXPECT_EQ(dialog.button("cancelButton")->text(), "Cancel");
    EXPECT_EQ(dialog.button("applyButton")->text(), "Apply");
    EXPECT_EQ(dialog.button("helpButton")->text(), "Help");
    EXPECT_EQ(dialog.button("addButton")->toolTip(), "Add");
    EXPECT_EQ(dialog.button("deleteButton")->toolTip(), "Delete");
    EXPECT_EQ(dialog.button("upButton")->toolTip(), "Up");
    EXPECT_EQ(dialog.button("downButton")->toolTip(), "Down");
    EXPECT_EQ(dialog.button("profileButton")->toolTip(), "Profiles");
}

TEST_F(OptionsDialog, GivesEveryToolAnIcon) {
    OpenDialog dialog;
    for (const char* name : {"addButton", "deleteButton", "upButton", "downButton", "profileButton"})
        EXPECT_FALSE(dialog.button(name)->icon().isNull()) << name;
    EXPECT_FALSE(dialog.control<QAction>("clearAction")->icon().isNull());
}

TEST_F(OptionsDialog, StandsInItsToldOrder) {
    OpenDialog dialog;
    const QLayout* const outer = dialog.layout();
    ASSERT_EQ(outer->count(), 2);
    const QLayout* const columns = outer->itemAt(0)->layout();
    ASSERT_NE(columns, nullptr);
    EXPECT_EQ(controlsOf(columns->itemAt(0)->widget()->layout()), QStringList({"tree"}));
    const QWidget* const right = columns->itemAt(1)->widget();
    EXPECT_EQ(right->minimumWidth(), 180);
    EXPECT_EQ(right->maximumWidth(), 180);
    EXPECT_EQ(controlsOf(right->layout()),
              QStringList({"configurationLabel", "configurationValue", "profileLabel", "profileCombo",
                           "profileButton", "-", "toolBar", "description"}));
    const QLayout* const rows = outer->itemAt(1)->widget()->layout();
    ASSERT_EQ(rows->count(), 2);
    EXPECT_EQ(rows->itemAt(1)->layout()->itemAt(4)->sizeHint(), QSize(30, 0)) << "the gap before OK";
    for (const QLayout* inner :
         std::initializer_list<const QLayout*>{columns->itemAt(0)->widget()->layout(), right->layout(), rows})
        EXPECT_EQ(inner->contentsMargins(), QMargins())
            << "the columns and rows have no margins of their own";
    EXPECT_EQ(controlsOf(rows), QStringList({dialog.searchEdit->statusLabel->objectName(), "searchEdit",
                                             dialog.collapseWidget->collapseButton->objectName(),
                                             dialog.collapseWidget->expandButton->objectName(), "applyButton",
                                             "-", "okButton", "cancelButton", "helpButton"}));
}

TEST_F(OptionsDialog, PutsTheToolsIntoTheBarInOrder) {
    OpenDialog dialog;
    QStringList names;
    for (QAction* action : dialog.control<QToolBar>("toolBar")->actions())
        names << dialog.control<QToolBar>("toolBar")->widgetForAction(action)->objectName();
    EXPECT_EQ(names, QStringList({"addButton", "deleteButton", "upButton", "downButton"}));
}

TEST_F(OptionsDialog, OpensWithAnEmptyDescriptionAndNoToolEnabled) {
    optionTree(host).node("group").set("Description", L"About the group");
    OpenDialog dialog;
    EXPECT_EQ(dialog.description->toPlainText(), "");
    for (const char* name : {"addButton", "deleteButton", "upButton", "downButton"})
        EXPECT_FALSE(dialog.button(name)->isEnabled()) << name;
}

TEST_F(OptionsDialog, GivesOkTheFocusAndTheDefaultWhenItOpens) {
    optionTree(host);
    EXPECT_EQ(Preferences(nullptr).focusWidget()->objectName(), "okButton") << "even before it is shown";
    EXPECT_TRUE(Preferences(nullptr).okButton->isDefault());
    OpenDialog dialog;
    EXPECT_TRUE(dialog.okButton->isDefault());
    EXPECT_EQ(dialog.focusWidget(), dialog.okButton);
    dialog.hide();
    dialog.profileButton->setFocus();
    dialog.show();
    EXPECT_EQ(dialog.focusWidget(), dialog.okButton);
}

TEST_F(OptionsDialog, IsNotMovedOverItsParentWhenItOpensAsOtherDialogsAre) {
    optionTree(host);
    QWidget parent;
    parent.setGeometry(350, 300, 400, 300);
    parent.show();
    QDialog usual(&parent);
    usual.setMinimumSize(700, 650);
    Preferences dialog(&parent);
    const QPoint before = dialog.pos();
    for (QDialog* shown : {&usual, static_cast<QDialog*>(&dialog)}) {
        shown->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(shown));
    }
    EXPECT_NE(usual.pos(), before);
    EXPECT_EQ(dialog.pos(), before);
}

TEST_F(OptionsDialog, ShowsDefaultForAMissingConfiguration) {
    OpenDialog dialog;
    EXPECT_EQ(dialog.control<QLabel>("configurationLabel")->text(), "Current configuration:");
    EXPECT_EQ(dialog.control<QLabel>("configurationValue")->text(), "Default");
    EXPECT_EQ(dialog.control<QLabel>("configurationValue")->styleSheet(), "font-weight: bold;");
    for (const char* name : {"configurationLabel", "configurationValue"})
        EXPECT_TRUE(dialog.control<QLabel>(name)->wordWrap()) << name << ": the column is narrow";
}

TEST_F(OptionsDialog, ShowsTheConfigurationOfTheCurrentDrawing) {
    const Configuration configuration(L"Site office");
    host.openDocument(OdDbDatabase::createEmpty());
    OpenDialog dialog;
    EXPECT_EQ(dialog.control<QLabel>("configurationValue")->text(), "Site office");
}

TEST_F(OptionsDialog, ShowsTheConfigurationThatWasSetInTheDrawing) {
    const OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
    const OdResBufPtr text = OdResBuf::newRb(OdResBuf::kRtString);
    text->setString(L"Ground floor");
    drawing->setSysVar(L"CCONFIGURATION", text.get());
    host.openDocument(drawing);
    EXPECT_EQ(OpenDialog().control<QLabel>("configurationValue")->text(), "Ground floor");
}

TEST_F(OptionsDialog, ShowsDefaultForAnEmptyOrUnknownConfiguration) {
    host.openDocument(OdDbDatabase::createEmpty());
    EXPECT_EQ(OpenDialog().control<QLabel>("configurationValue")->text(), "Default") << "no such variable";
    const Configuration configuration(L"");
    EXPECT_EQ(OpenDialog().control<QLabel>("configurationValue")->text(), "Default");
}

TEST_F(OptionsDialog, ShowsDefaultForAConfigurationThatCannotBeRead) {
    const OdRxObjectPtr broken(new BrokenDatabase);
    TestApplication::self()->console.database = broken.get();
    OpenDialog dialog;
    EXPECT_EQ(dialog.control<QLabel>("configurationValue")->text(), "Default");
}

TEST_F(OptionsDialog, ShowsDefaultWhateverTheReadingOfTheConfigurationThrows) {
    host.openDocument(OdDbDatabase::createEmpty());
    Configuration configuration(L"Ground floor");
    const std::function<void()> causes[] = {[] { throw OdError(eNotInDatabase); },
                                            [] { throw std::runtime_error("no"); }, [] { throw 5; }};
    for (const auto& cause : causes) {
        configuration.beforeRead = cause;
        EXPECT_EQ(OpenDialog().control<QLabel>("configurationValue")->text(), "Default");
    }
    configuration.beforeRead = nullptr;
    EXPECT_EQ(OpenDialog().control<QLabel>("configurationValue")->text(), "Ground floor");
}

TEST_F(OptionsDialog, ShowsTheDescriptionOfTheCurrentItem) {
    optionTree(host).node("group").set("Description", L"About the group");
    OpenDialog dialog;
    dialog.clickRow(itemOf(dialog, "group"));
    EXPECT_EQ(dialog.description->toPlainText(), "About the group");
    dialog.clickRow(rootItem(dialog));
    EXPECT_EQ(dialog.description->toPlainText(), "");
}

TEST_F(OptionsDialog, MovesTheFocusBackToOkWhenAnyItemIsClicked) {
    addCheck();
    OpenDialog dialog;
    dialog.tree->setFocus();
    dialog.clickRow(itemOf(dialog, "grid"));
    EXPECT_EQ(dialog.focusWidget(), dialog.okButton);
    dialog.tree->setFocus();
    dialog.tree->setCurrentItem(nullptr);
    EXPECT_EQ(dialog.focusWidget(), dialog.okButton) << "also when no item is current any more";
}

TEST_F(OptionsDialog, SpendsTheFirstClickIntoAnEditorOfAnotherRowOnTheRow) {
    optionTree(host).node("name").type(L"Edit").set("Key", "Name");
    OpenDialog dialog;
    auto* const edit = dialog.rowWidgets.value(itemOf(dialog, "name"))->findChild<QLineEdit*>();
    ASSERT_NE(edit, nullptr);
    QTest::mouseClick(edit, Qt::LeftButton);
    EXPECT_EQ(dialog.tree->currentItem(), itemOf(dialog, "name"));
    EXPECT_EQ(dialog.focusWidget(), dialog.okButton);
    QTest::mouseClick(edit, Qt::LeftButton);
    EXPECT_EQ(dialog.focusWidget(), edit);
}

TEST_F(OptionsDialog, WritesAndClosesOnOk) {
    addCheck();
    OpenDialog dialog;
    dialog.rowWidgets.value(itemOf(dialog, "grid"))->findChild<QCheckBox*>()->click();
    EXPECT_EQ(storedGrid(), -1) << "written before OK";
    dialog.click("okButton");
    EXPECT_EQ(dialog.result(), int(QDialog::Accepted));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(storedGrid(), 1);
}

TEST_F(OptionsDialog, WritesAndStaysOpenOnApply) {
    addCheck();
    OpenDialog dialog;
    dialog.rowWidgets.value(itemOf(dialog, "grid"))->findChild<QCheckBox*>()->click();
    dialog.click("applyButton");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(storedGrid(), 1);
}

TEST_F(OptionsDialog, WritesNothingOnCancel) {
    addCheck();
    OpenDialog dialog;
    rootItem(dialog)->setExpanded(false);
    dialog.rowWidgets.value(itemOf(dialog, "grid"))->findChild<QCheckBox*>()->click();
    dialog.click("cancelButton");
    EXPECT_EQ(dialog.result(), int(QDialog::Rejected));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(childNames(&host.profile()).empty());
}

TEST_F(OptionsDialog, LeavesOnCancelWhatApplyHasWritten) {
    addCheck();
    OpenDialog dialog;
    auto* const check = dialog.rowWidgets.value(itemOf(dialog, "grid"))->findChild<QCheckBox*>();
    check->click();
    dialog.click("applyButton");
    check->click();
    dialog.click("cancelButton");
    EXPECT_EQ(storedGrid(), 1);
}

TEST_F(OptionsDialog, WritesNothingWhenItIsDestroyedOpen) {
    addCheck();
    {
        OpenDialog dialog;
        dialog.rowWidgets.value(itemOf(dialog, "grid"))->findChild<QCheckBox*>()->click();
        ASSERT_EQ(itemOf(dialog, "grid")->state, 1);
    }
    EXPECT_TRUE(childNames(&host.profile()).empty());
}

TEST_F(OptionsDialog, ShowsItsHelpTopic) {
    OpenDialog dialog;
    dialog.click("helpButton");
    EXPECT_EQ(host.helpTopics(), QStringList({"IDH_PreferencesCMD"}));
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(OptionsDialog, BearsAHostWithoutHelp) {
    standin::registry().help = nullptr;
    OpenDialog dialog;
    dialog.click("helpButton");
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(OptionsDialog, ListsTheProfilesWithTheCurrentOneFirst) {
    const auto store =
        Ref<IProfile>::take(new_IProfileByRootDir(CXStringW(host.rootDir().toStdWString().c_str())));
    ASSERT_TRUE(store);
    const Ref<IParam> profiles = openChild(store.get(), "Profiles", 1);
    for (const char* name : {"Survey", "DEFAULT", "Piping"})
        openChild(profiles.get(), name, 1);
    OpenDialog dialog;
    EXPECT_EQ(dialog.currentProfile, "default");
    EXPECT_EQ(entries(*dialog.profileCombo), QStringList({"default", "Survey", "Piping"}));
    EXPECT_FALSE(dialog.profileCombo->itemData(1).isValid());
}

TEST_F(OptionsDialog, ListsOnlyTheCurrentProfileWhenThereIsNoStore) {
    OpenDialog dialog;
    EXPECT_EQ(entries(*dialog.profileCombo), QStringList({"default"}));
}

TEST_F(OptionsDialog, DoesNothingOnTheProfileListAndItsButton) {
    addCheck();
    OpenDialog dialog;
    dialog.profileCombo->addItem("other");
    const QSignalSpy chosen(dialog.profileCombo, QOverload<int>::of(&QComboBox::currentIndexChanged));
    const QSignalSpy clicked(dialog.profileButton, &QAbstractButton::clicked);
    dialog.profileCombo->setCurrentIndex(1);
    dialog.click("profileButton");
    EXPECT_EQ(chosen.count(), 1);
    EXPECT_EQ(clicked.count(), 1);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.currentProfile, "default");
    EXPECT_TRUE(childNames(&host.profile()).empty());
}

TEST_F(OptionsDialog, RefillsOnlyTheProfilesOnARebuildWithoutTheConfiguration) {
    addCheck();
    OpenDialog dialog;
    TreeItem* const before = itemOf(dialog, "grid");
    dialog.profileCombo->clear();
    dialog.rebuildTree(false);
    EXPECT_EQ(itemOf(dialog, "grid"), before);
    EXPECT_EQ(entries(*dialog.profileCombo), QStringList({"default"}));
}
