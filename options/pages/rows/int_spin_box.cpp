// The editor of a whole number.
#include "options/pages/rows/int_spin_box.h"

#include "options/pages/rows/small_editor.h"

#include <QLocale>
#include <QWheelEvent>

IntSpinBox::IntSpinBox(QTreeWidgetItem* rowItem, QTreeWidget* rowTree, QWidget* parent)
    : QSpinBox(parent), item(rowItem), tree(rowTree) {
    small_editor::selectAllByTimer<QAbstractSpinBox>(this, selectionTimer);
    setLocale(QLocale(QLocale::C));
    setFocusPolicy(Qt::StrongFocus);
}

void IntSpinBox::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QSpinBox::wheelEvent(event);
    else
        event->ignore();
}

void IntSpinBox::keyPressEvent(QKeyEvent* event) {
    if (small_editor::isReturn(event))
        small_editor::finishEditing(this);
    else
        QSpinBox::keyPressEvent(event);
}

void IntSpinBox::focusInEvent(QFocusEvent* event) {
    QSpinBox::focusInEvent(event);
    selectionTimer.start();
    small_editor::makeCurrent(item, tree);
}
