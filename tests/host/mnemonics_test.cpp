// Letters with Alt for the controls of a window.
#include "host/mnemonics.h"
#include "host/modal_runner.h"
#include "tests/support/test_habits.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace {

struct Window : QDialog {
    QPushButton* button(const QString& text, QWidget* parent = nullptr) {
        return new QPushButton(text, parent ? parent : this);
    }
    QLabel* label(const QString& text) {
        auto* const made = new QLabel(text, this);
        made->setBuddy(new QLineEdit(this));
        return made;
    }
};

struct MnemonicsTest : testing::Test {
    TestHabits habits{{DialogHabit::Mnemonics}};
    Window window;
};

TEST_F(MnemonicsTest, EachTextGetsALetterOfItsOwnAndThoseThatStandStay) {
    const QPushButton* const first = window.button("Open");
    const QPushButton* const second = window.button("OK");
    const QPushButton* const third = window.button("Find &Object");
    const QLabel* const name = window.label("Found in:");
    const auto* const plain = new QLabel("Only a text", &window);
    giveMnemonics(window);
    EXPECT_EQ(third->text(), "Find &Object");
    EXPECT_EQ(first->text(), "O&pen");
    EXPECT_EQ(second->text(), "O&K");
    EXPECT_EQ(name->text(), "&Found in:");
    EXPECT_EQ(plain->text(), "Only a text");
    giveMnemonics(window);
    EXPECT_EQ(first->text(), "O&pen") << "a second run changes nothing";
}

TEST_F(MnemonicsTest, ALetterThatStandsTwiceIsGivenOnceAndALooseSignGoes) {
    const QPushButton* const first = window.button("&Add");
    const QPushButton* const second = window.button("&Apply");
    const QPushButton* const loose = window.button("Custom&");
    const QPushButton* const none = window.button("a A:");
    giveMnemonics(window);
    EXPECT_EQ(first->text(), "&Add");
    EXPECT_EQ(second->text(), "A&pply");
    EXPECT_EQ(loose->text(), "&Custom");
    EXPECT_EQ(none->text(), "a A (&1):") << "no letter is left";
}

TEST_F(MnemonicsTest, PagesShareTheLettersOfTheWindowButNotThoseOfEachOther) {
    auto* const tabs = new QTabWidget(&window);
    QWidget page, other;
    const QPushButton* const here = window.button("Add", &page);
    const QPushButton* const there = window.button("Add", &other);
    tabs->addTab(&page, "Data");
    tabs->addTab(&other, "Dates");
    giveMnemonics(window);
    EXPECT_EQ(tabs->tabText(0), "&Data");
    EXPECT_EQ(tabs->tabText(1), "D&ates");
    EXPECT_EQ(here->text(), there->text());
    EXPECT_EQ(here->text(), "Add (&1)") << "A and D are those of the tabs";
}

TEST_F(MnemonicsTest, TheRowsOfAViewHaveNone) {
    auto* const tree = new QTreeWidget(&window);
    tree->addTopLevelItem(new QTreeWidgetItem);
    auto* const row = new QCheckBox("Option");
    tree->setItemWidget(tree->topLevelItem(0), 0, row);
    const QPushButton* const ok = window.button("OK");
    giveMnemonics(window);
    EXPECT_EQ(row->text(), "Option");
    EXPECT_EQ(ok->text(), "&OK");
}

TEST_F(MnemonicsTest, ADialogHasThemWhenItIsRun) {
    const QPushButton* const ok = window.button("OK");
    QTimer::singleShot(0, &window, &QDialog::accept);
    runModal(window);
    EXPECT_EQ(ok->text(), "&OK");
}

TEST(MnemonicsWithoutTheHabit, TextsStayAsTheyAre) {
    Window window;
    const QPushButton* const ok = window.button("OK");
    giveMnemonics(window);
    QTimer::singleShot(0, &window, &QDialog::accept);
    runModal(window);
    EXPECT_EQ(ok->text(), "OK");
}

} // namespace
