// What the dialog "Object Grouping" does beyond its settled behaviour for hosts that want it to lead its
// user.
#include "groups/dialog_parts.h"
#include "groups/group_dlg.h"

#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QTableWidget>

namespace {

constexpr int kManyGroups = 30; // from the next one on there is a filter
constexpr int kRowsInSight = 5;

} // namespace

void CGroupDlg::buildFilter() {
    filterEdit = group_dialogs::named(new QLineEdit(this), "filterEdit");
    filterEdit->setPlaceholderText(QDialog::tr("Filter by name"));
    filterEdit->setAccessibleName(filterEdit->placeholderText());
    filterEdit->setClearButtonEnabled(true);
    filterEdit->hide();
    connect(filterEdit, &QLineEdit::textChanged, this, &CGroupDlg::filter);
    groupTable->setTabKeyNavigation(false);
    QHeaderView& header = *groupTable->horizontalHeader();
    header.setStretchLastSection(false);
    header.setSectionResizeMode(0, QHeaderView::Stretch); // names get all the room that there is
    header.setSectionResizeMode(1, QHeaderView::ResizeToContents);
    groupTable->setMinimumHeight(header.sizeHint().height() + kRowsInSight * kRowHeight +
                                 2 * groupTable->frameWidth());
}

// Two lines, the reason of a refusal and what to do.
void CGroupDlg::makeRoomForReasons() {
    messageLabel->setWordWrap(true);
    messageLabel->setMinimumHeight(2 * messageLabel->fontMetrics().lineSpacing());
}

// Hides the rows whose names don't hold the text; one that was chosen is chosen no more.
void CGroupDlg::filter() {
    const QString text = filterEdit->text().trimmed();
    for (int row = 0; row < groupTable->rowCount(); ++row) {
        const bool shown = groupTable->item(row, 0)->text().contains(text, Qt::CaseInsensitive);
        groupTable->setRowHidden(row, !shown);
        if (!shown && group_dialogs::firstSelectedRow(*groupTable) == row)
            chooseRow(-1);
    }
}

// After each fill of the table. The window's size is fixed: it grows where its contents need more.
void CGroupDlg::fitWindow() {
    const bool many = groupTable->rowCount() > kManyGroups;
    if (!many)
        filterEdit->clear();
    filterEdit->setVisible(many);
    layout()->activate();
    const QSize needed = layout()->minimumSize();
    setFixedSize(qMax(width(), needed.width()), qMax(height(), needed.height()));
    filter();
}

void CGroupDlg::showFill(int chosenRow) {
    fitWindow();
    chooseRow(chosenRow);
}

void CGroupDlg::chooseRow(int row) {
    if (row >= 0 && !groupTable->isRowHidden(row)) {
        groupTable->setCurrentCell(row, 0);
        selectionChanged(); // also when the row's number is that of the one before the fill
        return;
    }
    data->group = {};
    groupTable->setCurrentItem(nullptr);
    groupTable->clearSelection();
    enableGroupButtons(false);
}
