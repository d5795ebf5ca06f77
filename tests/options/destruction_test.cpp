// The dialog destroyed while it is open: whatever has the focus then loses it without reaching what is gone.
#include "options/pages/search/searching_line_edit.h"
#include "tests/options/options_fixture.h"
#include "tests/support/test_habits.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QtTest>
#include <optional>

namespace {

const std::pair<const char*, const wchar_t*> editorKinds[] = {
    {"Check", L"Check"},         {"Radio", L"Radio"},     {"CursorRadio", L"RadioCursor"},
    {"Color", L"Color"},         {"AcColor", L"AcColor"}, {"Int", L"EditInt"},
    {"Real", L"EditReal"},       {"File", L"EditFile"},   {"Text", L"Edit"},
    {"Files", L"EditMultiFile"}, {"Dir", L"EditDir"},     {"Combo", L"Combo"}};

const char* const controlsInOrder[] = {"tree",       "okButton",       "cancelButton",  "applyButton",
                                       "helpButton", "profileCombo",   "profileButton", "description",
                                       "searchEdit", "addButton",      "deleteButton",  "upButton",
                                       "downButton", "collapseButton", "expandButton"};

// A dialog with a row of every kind below an open group, and an edit that is far from valid.
class DestroyedOpen : public OptionsFixture, public testing::WithParamInterface<std::string> {
protected:
    void SetUp() override {
        before = QApplication::topLevelWidgets();
        const OptionTreeWriter group = node("Group");
        for (const auto& [name, type] : editorKinds)
            group.node(name).type(type).profile("S", name);
        group.node("Papers").set("ID", int(kIdPapers));
        node("Elsewhere");
        OptionTreeWriter(openChild(&host.papers(), "Paper00000001", 1)).set("Name", L"A4");
        show();
    }
    QWidget* control(const std::string& name) { return dialog->findChild<QWidget*>(name.c_str()); }
    // As a user gets there: the row is current first, or the focus would go on to OK.
    void focus(const std::string& name) {
        for (const auto& kind : editorKinds)
            if (name == kind.first)
                dialog->tree->setCurrentItem(item(kind.first));
        ASSERT_TRUE(control(name)) << "no control " << name;
        control(name)->setEnabled(true);
        control(name)->setVisible(true);
        control(name)->setFocus();
        ASSERT_TRUE(waitUntil([&] { return control(name)->hasFocus(); })) << name << " takes no focus";
    }
    void destroy() {
        dialog.reset();
        QCoreApplication::processEvents();
        EXPECT_EQ(QApplication::focusWidget(), nullptr);
        for (QWidget* left : QApplication::topLevelWidgets())
            EXPECT_TRUE(before.contains(left)) << left->metaObject()->className() << " is left of the dialog";
        EXPECT_TRUE(host.messages.empty()) << "nobody is asked any more";
        EXPECT_TRUE(childNames(&host.profile()).empty()) << "nothing is written";
    }

    QWidgetList before;
};

std::vector<std::string> allNames() {
    std::vector<std::string> names(std::begin(controlsInOrder), std::end(controlsInOrder));
    for (const auto& kind : editorKinds)
        names.emplace_back(kind.first);
    return names;
}

TEST_P(DestroyedOpen, WithTheFocusOnAControlItGoesQuietly) {
    focus(GetParam());
    destroy();
}

// As the workbench shows it.
class DestroyedWithHabits : public DestroyedOpen {
protected:
    void SetUp() override {
        habits.emplace(
            std::set<DialogHabit>{DialogHabit::FocusStaysInOptions, DialogHabit::SearchWhileTyping});
        DestroyedOpen::SetUp();
    }
    std::optional<TestHabits> habits;
};

TEST_P(DestroyedWithHabits, WithTheFocusOnAControlItGoesQuietly) {
    focus(GetParam());
    destroy();
}

TEST_P(DestroyedWithHabits, BeforeTheSearchForATypedTextBegins) {
    focus("searchEdit");
    QTest::keyClicks(control("searchEdit"), "paper");
    focus(GetParam());
    destroy();
}

INSTANTIATE_TEST_SUITE_P(EveryControl, DestroyedWithHabits, testing::ValuesIn(allNames()),
                         [](const auto& parameter) { return parameter.param; });

INSTANTIATE_TEST_SUITE_P(EveryControl, DestroyedOpen, testing::ValuesIn(allNames()),
                         [](const auto& parameter) { return parameter.param; });

using DestroyedDialog = DestroyedOpen;

TEST_F(DestroyedDialog, TheControlsThatAreTriedAreAllThatTakeTheFocus) {
    const std::vector<std::string> tried = allNames();
    for (const QWidget* widget : dialog->findChildren<QWidget*>()) {
        const bool isPart = widget->objectName().startsWith("qt_") || widget->focusProxy();
        if (widget->focusPolicy() == Qt::NoFocus || isPart)
            continue;
        // The check box of a paper stands for itself as the check row does, and so do unnamed parts of
        // editors.
        if (widget->objectName().isEmpty() && qobject_cast<const QAbstractButton*>(widget))
            continue;
        EXPECT_NE(std::find(tried.begin(), tried.end(), widget->objectName().toStdString()), tried.end())
            << widget->metaObject()->className() << " " << widget->objectName().toStdString();
    }
}

TEST_F(DestroyedDialog, WithTheSearchBoxPrimedItGoesQuietly) {
    focus("searchEdit");
    ASSERT_EQ(dialog->searchEdit->text(), "*");
    destroy();
}

TEST_F(DestroyedDialog, WithTheSearchBoxEmptiedItGoesQuietly) {
    dialog->tree->setCurrentItem(dialog->tree->topLevelItem(0)); // so that the focus stays in the box
    focus("searchEdit");
    dialog->searchEdit->clear();
    ASSERT_EQ(dialog->searchEdit->text(), "");
    ASSERT_TRUE(dialog->searchEdit->hasFocus());
    destroy();
}

TEST_F(DestroyedDialog, AfterASearchWithTheFocusInTheBoxItGoesQuietly) {
    focus("searchEdit");
    dialog->searchEdit->setText("int");
    QTest::keyClick(dialog->searchEdit, Qt::Key_Return);
    ASSERT_TRUE(item("Elsewhere")->isHidden());
    focus("searchEdit");
    destroy();
}

TEST_F(DestroyedDialog, WithAHalfTypedDirectoryNobodyIsAskedAboutIt) {
    focus("Dir");
    QTest::keyClicks(editor<QLineEdit>("Dir"), "/missing/dir");
    destroy();
}

} // namespace
