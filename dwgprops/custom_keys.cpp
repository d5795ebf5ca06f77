#include "dwgprops/custom_keys.h"

#include "dwgprops/custom_tab.h"
#include "dwgprops/custom_table.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

CustomKeys::CustomKeys(CustomTab& watched) : QObject(&watched), tab(watched), table(watched.table) {
    table->setFocusPolicy(Qt::StrongFocus);
    table->setTabKeyNavigation(false);
    table->installEventFilter(this);
    for (QPushButton* const button : {tab.addButton, tab.deleteButton})
        button->setFocusPolicy(Qt::StrongFocus);
}

bool CustomKeys::eventFilter(QObject* watched, QEvent* event) {
    if (watched == table && event->type() == QEvent::FocusIn && table->selectedItems().isEmpty())
        walkTo(qMax(0, table->currentRow()));
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (watched == table)
        return onTableKey(key);
    return onEditorKey(*static_cast<QLineEdit*>(watched), key);
}

bool CustomKeys::onTableKey(int key) {
    switch (key) {
    case Qt::Key_Up:
        walkTo(table->currentRow() - 1);
        return true;
    case Qt::Key_Down:
        walkTo(table->currentRow() + 1);
        return true;
    case Qt::Key_Delete:
        tab.onDelete();
        return true;
    case Qt::Key_F2:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        edit();
        return true;
    default:
        return false;
    }
}

void CustomKeys::walkTo(int row) {
    QTableWidgetItem* const item = table->item(row, 0);
    if (!item)
        return;
    table->setCurrentItem(item);
    table->scrollToItem(item);
}

void CustomKeys::edit() {
    QTableWidgetItem* const item = table->item(table->currentRow(), 0);
    if (!item)
        return;
    walkTo(item->row()); // a change of the selection would close the editor at once
    tab.startEdit(item);
    auto* const editor = qobject_cast<QLineEdit*>(table->cellWidget(item->row(), 1));
    if (!editor)
        return;
    before = editor->text();
    editor->installEventFilter(this);
    editor->setFocus(Qt::OtherFocusReason);
    editor->selectAll();
}

// The text goes into the cell when the editor loses the focus.
bool CustomKeys::onEditorKey(QLineEdit& editor, int key) {
    const bool isEnd = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape;
    if (!isEnd)
        return false;
    if (key == Qt::Key_Escape)
        editor.setText(before);
    table->setFocus(Qt::OtherFocusReason);
    tab.closeEditor();
    return true;
}
