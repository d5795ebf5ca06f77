// The three small editors inside rows of a tree: Return, focus, wheel.
#include "options/pages/rows/double_spin_box.h"
#include "options/pages/rows/int_spin_box.h"
#include "options/pages/rows/line_edit.h"
#include "tests/options/pages/option_window.h"
#include "tests/support/fixture_host.h"

#include <QLocale>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace {

template <class Editor> Editor* makeEditor(QTreeWidgetItem* item, QTreeWidget* tree, QWidget* parent) {
    auto* editor = new Editor(item, tree, parent);
    editor->setRange(0, 100);
    editor->setValue(42);
    return editor;
}

template <> LineEdit* makeEditor<LineEdit>(QTreeWidgetItem* item, QTreeWidget* tree, QWidget* parent) {
    return new LineEdit(item, tree, "forty two", parent);
}

QLineEdit* inner(LineEdit* editor) { return editor; }
QLineEdit* inner(QAbstractSpinBox* editor) { return editor->findChild<QLineEdit*>(); }

template <class Editor> class SmallEditor : public testing::Test {
protected:
    void SetUp() override {
        item = new TreeItem(window.root, QStringList("Size"));
        editor = makeEditor<Editor>(item, window.tree, &window);
        window.setRow(item, editor);
        window.open();
    }

    void takeFocus() {
        editor->setFocus();
        ASSERT_TRUE(editor->hasFocus());
    }

    FixtureHost host;
    OptionWindow window;
    TreeItem* item = nullptr;
    Editor* editor = nullptr;
};

using Editors = testing::Types<IntSpinBox, DoubleSpinBox, LineEdit>;
TYPED_TEST_SUITE(SmallEditor, Editors);

TYPED_TEST(SmallEditor, ReturnAndEnterTakeTheFocusAway) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        this->takeFocus();
        QTest::keyClick(this->editor, key);
        EXPECT_FALSE(this->editor->hasFocus());
    }
}

TYPED_TEST(SmallEditor, ReturnEmitsEditingFinishedOnceByItself) {
    QSignalSpy spy(this->editor, SIGNAL(editingFinished()));
    QTest::keyClick(this->editor, Qt::Key_Return); // without the focus nothing else can emit it
    EXPECT_EQ(spy.count(), 1);
}

TYPED_TEST(SmallEditor, ReturnEmitsEditingFinishedOnceMoreThanTheLossOfFocusDoes) {
    QSignalSpy spy(this->editor, SIGNAL(editingFinished()));
    this->takeFocus();
    this->editor->clearFocus();
    const int byFocusAlone = spy.count();
    spy.clear();
    this->takeFocus();
    QTest::keyClick(this->editor, Qt::Key_Return);
    EXPECT_EQ(byFocusAlone, 1);
    EXPECT_EQ(spy.count(), byFocusAlone + 1);
}

TYPED_TEST(SmallEditor, ReturnDoesNotFireTheDefaultButton) {
    QSignalSpy spy(this->window.okButton, &QPushButton::clicked);
    this->takeFocus();
    QTest::keyClick(this->editor, Qt::Key_Return);
    this->takeFocus();
    QTest::keyClick(this->editor, Qt::Key_Enter);
    EXPECT_EQ(spy.count(), 0);
    EXPECT_TRUE(this->window.isVisible());
}

TYPED_TEST(SmallEditor, OtherKeysReachTheEditor) {
    this->takeFocus();
    this->editor->selectAll();
    QTest::keyClick(this->editor, Qt::Key_7);
    EXPECT_EQ(inner(this->editor)->text().left(1), "7");
    EXPECT_TRUE(this->editor->hasFocus());
}

TYPED_TEST(SmallEditor, ClickingMakesTheItemCurrentAndSelectsTheWholeText) {
    this->window.tree->setCurrentItem(this->window.root);
    QLineEdit* const line = inner(this->editor);
    QTest::mouseClick(line, Qt::LeftButton);
    EXPECT_EQ(this->window.tree->currentItem(), this->item);
    EXPECT_TRUE(
        waitUntil([line] { return !line->text().isEmpty() && line->selectedText() == line->text(); }));
}

TYPED_TEST(SmallEditor, SelectsOnlyAfterTheFocusEventHasEnded) {
    QLineEdit* const line = inner(this->editor);
    line->deselect();
    QFocusEvent focusIn(QEvent::FocusIn, Qt::OtherFocusReason);
    QCoreApplication::sendEvent(this->editor, &focusIn);
    EXPECT_NE(line->selectedText(), line->text());
    EXPECT_TRUE(waitUntil([line] { return line->selectedText() == line->text(); }));
}

TYPED_TEST(SmallEditor, TabIntoItSelectsAtOnceAsInAnyField) {
    QLineEdit* const line = inner(this->editor);
    line->deselect();
    QFocusEvent focusIn(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(this->editor, &focusIn);
    EXPECT_EQ(line->selectedText(), line->text());
}

TYPED_TEST(SmallEditor, WithoutItemOrTreeFocusChangesNoCurrentItem) {
    this->window.tree->setCurrentItem(this->window.root);
    TypeParam* const withoutTree = makeEditor<TypeParam>(this->item, nullptr, &this->window);
    TypeParam* const withoutItem = makeEditor<TypeParam>(nullptr, this->window.tree, &this->window);
    for (TypeParam* free : {withoutTree, withoutItem}) {
        free->show();
        free->setFocus();
        EXPECT_TRUE(free->hasFocus());
        EXPECT_EQ(this->window.tree->currentItem(), this->window.root);
    }
}

template <class Editor> class SpinBox : public SmallEditor<Editor> {
protected:
    void wheelDown() {
        const QPointF centre = this->editor->rect().center();
        QWheelEvent event(centre, this->editor->mapToGlobal(centre.toPoint()), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event); // only a user's wheel goes on to the parents
        qApp->notify(this->editor, &event);
    }
};

using SpinBoxes = testing::Types<IntSpinBox, DoubleSpinBox>;
TYPED_TEST_SUITE(SpinBox, SpinBoxes);

TYPED_TEST(SpinBox, WheelWithoutFocusLeavesTheValueAndScrollsTheTree) {
    for (int i = 0; i < 60; ++i)
        this->window.add(this->window.root, QString("Row %1").arg(i));
    QScrollBar* const bar = this->window.tree->verticalScrollBar();
    ASSERT_TRUE(waitUntil([bar] { return bar->maximum() > 0; }));
    this->wheelDown();
    EXPECT_EQ(this->editor->value(), 42);
    EXPECT_GT(bar->value(), 0);
}

TYPED_TEST(SpinBox, WheelWithFocusChangesTheValue) {
    this->takeFocus();
    this->wheelDown();
    EXPECT_EQ(this->editor->value(), 41);
}

TYPED_TEST(SpinBox, SpeaksTheNeutralLocaleAndTakesNoFocusFromTheWheel) {
    EXPECT_EQ(this->editor->locale(), QLocale(QLocale::C));
    EXPECT_EQ(this->editor->focusPolicy(), Qt::StrongFocus);
}

using TextEditor = SmallEditor<LineEdit>;

TEST_F(TextEditor, LosesSurroundingSpacesWithTheFocus) {
    takeFocus();
    editor->setText("  drawings and blocks ");
    window.okButton->setFocus();
    EXPECT_EQ(editor->text(), "drawings and blocks");
}

TEST_F(TextEditor, IsShownFromTheStartAfterTheFocusLeft) {
    takeFocus();
    editor->setText(QString(500, 'x') + ' ');
    ASSERT_GT(editor->cursorPosition(), 0);
    window.okButton->setFocus();
    EXPECT_EQ(editor->cursorPosition(), 0);
}

TEST_F(TextEditor, IsTrimmedWhenReturnTakesTheFocusAway) {
    takeFocus();
    editor->setText(" a ");
    QStringList seen;
    QObject::connect(editor, &QLineEdit::editingFinished, editor, [&] { seen << editor->text(); });
    QTest::keyClick(editor, Qt::Key_Return);
    ASSERT_FALSE(seen.isEmpty());
    EXPECT_EQ(seen.count("a"), seen.size());
}

TEST_F(TextEditor, KeepsInnerSpaces) {
    takeFocus();
    editor->setText(" a  b ");
    window.okButton->setFocus();
    EXPECT_EQ(editor->text(), "a  b");
}

} // namespace
