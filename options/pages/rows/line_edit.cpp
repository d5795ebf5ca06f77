// The editor of a text.
#include "options/pages/rows/line_edit.h"

#include "options/pages/rows/small_editor.h"

LineEdit::LineEdit(QTreeWidgetItem* rowItem, QTreeWidget* rowTree, const QString& text, QWidget* parent)
    : QLineEdit(text, parent), item(rowItem), tree(rowTree) {
    small_editor::selectAllByTimer<QLineEdit>(this, selectionTimer);
}

void LineEdit::keyPressEvent(QKeyEvent* event) {
    if (small_editor::isReturn(event))
        small_editor::finishEditing(this);
    else
        QLineEdit::keyPressEvent(event);
}

void LineEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    selectionTimer.start();
    small_editor::makeCurrent(item, tree);
}

void LineEdit::focusOutEvent(QFocusEvent* event) {
    setCursorPosition(0);
    setText(text().trimmed());
    setCursorPosition(0); // setting the text took it to the end; the text is to be shown from its start
    QLineEdit::focusOutEvent(event);
}
