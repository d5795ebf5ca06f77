// What the three small editors of the option rows share: Return ends the edit, focus makes the row current.
#pragma once

#include <QKeyEvent>
#include <QTimer>
#include <QTreeWidget>

namespace small_editor {

inline bool isReturn(const QKeyEvent* event) {
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

// The timer makes the selection after the mouse press that gave the focus has ended.
template <class Editor> void selectAllByTimer(Editor* editor, QTimer& timer) {
    timer.setSingleShot(true);
    timer.setInterval(0);
    QObject::connect(&timer, &QTimer::timeout, editor, &Editor::selectAll);
}

// Not passed on to the base class, so that the dialog's default button does not fire.
template <class Editor> void finishEditing(Editor* editor) {
    editor->clearFocus();
    emit editor->editingFinished();
}

inline void makeCurrent(QTreeWidgetItem* item, QTreeWidget* tree) {
    if (item && tree)
        tree->setCurrentItem(item);
}

} // namespace small_editor
