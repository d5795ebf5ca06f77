// The editor of a real number.
#include "options/pages/rows/double_spin_box.h"

#include "options/pages/rows/small_editor.h"

#include <QLocale>
#include <QWheelEvent>

DoubleSpinBox::DoubleSpinBox(QTreeWidgetItem* rowItem, QTreeWidget* rowTree, QWidget* parent)
    : QDoubleSpinBox(parent), item(rowItem), tree(rowTree) {
    small_editor::selectAllByTimer<QAbstractSpinBox>(this, selectionTimer);
    setLocale(QLocale(QLocale::C));
    setFocusPolicy(Qt::StrongFocus);
}

void DoubleSpinBox::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QDoubleSpinBox::wheelEvent(event);
    else
        event->ignore();
}

void DoubleSpinBox::keyPressEvent(QKeyEvent* event) {
    if (small_editor::isReturn(event))
        small_editor::finishEditing(this);
    else
        QDoubleSpinBox::keyPressEvent(event);
}

void DoubleSpinBox::focusInEvent(QFocusEvent* event) {
    QDoubleSpinBox::focusInEvent(event);
    selectionTimer.start();
    small_editor::makeCurrent(item, tree);
}
