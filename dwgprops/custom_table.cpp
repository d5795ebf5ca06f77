// The keys of the table of custom properties, and what the tables of the dialog share.
#include "dwgprops/custom_table.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>

void CustomTableWidget::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Tab:
        event->ignore();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        finishEdit();
        break;
    default:
        QWidget::keyPressEvent(event); // past the table on purpose: no key moves in it
    }
}

void CustomTableWidget::finishEdit() {
    QTableWidgetItem* const item = currentItem();
    if (!item)
        return;
    if (const auto* editor = qobject_cast<QLineEdit*>(cellWidget(item->row(), item->column())))
        item->setData(Qt::DisplayRole, editor->text());
    closePersistentEditor(item);
}

QString cellText(const QTableWidget& table, int row, int column) {
    const QTableWidgetItem* const item = table.item(row, column);
    return item ? item->text() : QString();
}

int countNamedRows(const QTableWidget& table) {
    int named = 0;
    for (int row = 0; row < table.rowCount(); ++row)
        named += !cellText(table, row, 0).isEmpty();
    return named;
}

void setUpPropertyTable(QTableWidget& table, const QStringList& headers) {
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setColumnCount(2);
    table.setHorizontalHeaderLabels(headers);
    table.setFocusPolicy(Qt::NoFocus);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft);
    table.verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    table.horizontalHeader()->setStretchLastSection(true);
    table.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table.horizontalHeader()->setStyleSheet(QStringLiteral("QHeaderView::section { padding: 5px;}"));
    table.horizontalHeader()->setSectionsClickable(false);
    table.verticalHeader()->setSectionsClickable(false);
}

#include "moc_custom_table.cpp"
