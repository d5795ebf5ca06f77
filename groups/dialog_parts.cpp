#include "groups/dialog_parts.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QPushButton>
#include <QTableWidget>

namespace group_dialogs {

void setUpWindow(QDialog& dialog, const char* objectName, const QString& title, int width, int height) {
    dialog.setObjectName(QLatin1String(objectName));
    dialog.setWindowTitle(title);
    dialog.setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint |
                          Qt::WindowCloseButtonHint);
    dialog.setWindowIcon(QIcon());
    dialog.setFixedSize(width, height);
}

void setUpTable(QTableWidget& table, const QStringList& headers) {
    constexpr int sectionSize = 15;
    table.setColumnCount(headers.size());
    table.setHorizontalHeaderLabels(headers);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setShowGrid(false);
    table.horizontalHeader()->setStretchLastSection(true);
    table.verticalHeader()->hide();
    table.verticalHeader()->setMinimumSectionSize(sectionSize);
    table.verticalHeader()->setDefaultSectionSize(sectionSize);
}

int firstSelectedRow(const QTableWidget& table) {
    const QModelIndexList rows = table.selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.front().row();
}

void scrollToRow(QTableWidget& table, int row) {
    table.doItemsLayout(); // the range of the scroll bar follows new rows only later
    table.scrollTo(table.model()->index(row, 0));
}

QString yesOrNo(bool yes) { return yes ? QDialog::tr("Yes") : QDialog::tr("No"); }

void tighten(QLayout& layout) {
    constexpr int margin = 6, spacing = 4;
    layout.setContentsMargins(margin, margin, margin, margin);
    layout.setSpacing(spacing);
}

QHBoxLayout* centredRow(std::initializer_list<QPushButton*> buttons) {
    auto* const row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* const button : buttons)
        row->addWidget(button);
    row->addStretch();
    return row;
}

QVariant dataOfId(OdDbObjectId id) { return QVariant(quint64(reinterpret_cast<quintptr>(id.getStub()))); }

OdDbObjectId idOfData(const QVariant& data) {
    bool ok = false;
    const quint64 number = data.toULongLong(&ok);
    return ok ? OdDbObjectId(reinterpret_cast<OdDbStub*>(static_cast<quintptr>(number))) : OdDbObjectId();
}

} // namespace group_dialogs
