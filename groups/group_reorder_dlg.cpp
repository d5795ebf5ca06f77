#include "groups/group_reorder_dlg.h"

#include "groups/dialog_parts.h"
#include "host/mnemonics.h"
#include "host/text.h"
#include "sdk/db/dictionary.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

CGroupReorderDlg::CGroupReorderDlg(QWidget* parent, OdDbObjectId groupDictionaryId, GroupData& groupData)
    : QDialog(parent), dictionaryId(groupDictionaryId), data(&groupData) {
    group_dialogs::setUpWindow(*this, "CGroupReorderDlg", QDialog::tr("Order Group"), 380, 365);
    build();
    layOut();
    fillTable();
    chooseFirstRow();
    if (data->currentRow < groupTable->rowCount()) {
        groupTable->selectRow(data->currentRow);
        group_dialogs::scrollToRow(*groupTable, data->currentRow);
    }
    refreshOrderFields(true);
    connectControls();
}

void CGroupReorderDlg::fillTable() {
    const auto dictionary = odrxCast<OdDbDictionary>(dictionaryId.safeOpenObject());
    for (const auto entry = dictionary->newIterator(0); !entry->done(); entry->next()) {
        const auto group = odrxCast<OdDbGroup>(entry->getObject());
        if (!group.isNull() && (data->includeUnnamed || !group->isAnonymous()))
            addRow(entry->name(), entry->objectId(), group);
    }
}

void CGroupReorderDlg::addRow(const OdString& key, OdDbObjectId id, const OdDbGroupPtr& group) {
    const int row = groupTable->rowCount();
    auto* const item = new QTableWidgetItem(hostqt::qString(key));
    item->setData(Qt::UserRole, group_dialogs::dataOfId(id));
    groupTable->insertRow(row);
    groupTable->setItem(row, 0, item);
    if (key.iCompare(data->name) == 0) {
        data->currentRow = row;
        data->group = group;
    }
}

void CGroupReorderDlg::chooseFirstRow() {
    if (data->currentRow != -1 || groupTable->rowCount() == 0)
        return;
    data->currentRow = 0;
    data->group = groupOfRow(0);
}

OdDbGroupPtr CGroupReorderDlg::groupOfRow(int row) const {
    const QTableWidgetItem* const item = groupTable->item(row, 0);
    const OdDbObjectId id = item ? group_dialogs::idOfData(item->data(Qt::UserRole)) : OdDbObjectId();
    return id.isValid() ? odrxCast<OdDbGroup>(id.safeOpenObject()) : OdDbGroupPtr();
}

void CGroupReorderDlg::refreshOrderFields(bool store) {
    messageLabel->clear();
    const int row = qMax(0, group_dialogs::firstSelectedRow(*groupTable));
    const OdDbGroupPtr group = groupOfRow(row);
    if (group.isNull())
        return;
    showGroup(group);
    if (!store)
        return;
    data->name = hostqt::odStringFromWidget(groupTable->item(row, 0)->text());
    data->description = group->name(); // the name, not the description: that is meant
    data->currentRow = row;
    data->group = group;
}

// Three texts of their own, for a number of the printf form; those of the construction never show: meant.
void CGroupReorderDlg::showGroup(const OdDbGroupPtr& group) {
    const int count = static_cast<int>(group->numEntities());
    const QString description = hostqt::qString(group->description());
    descriptionLabel->setText(description.isEmpty() ? QDialog::tr("None") : description);
    const auto withNumber = [](const QString& pattern, int number) {
        return QString::asprintf(pattern.toUtf8().constData(), number);
    };
    removeFromLabel->setText(withNumber(QDialog::tr("Remove from position (0 - %d):"), count - 1));
    newPositionLabel->setText(
        withNumber(QDialog::tr("Enter new position number for the object (0 - %d):"), count - 1));
    countLabel->setText(withNumber(QDialog::tr("Number of objects (less than %d):"), count));
    for (QWidget* const control :
         std::initializer_list<QWidget*>{removeFromLabel, newPositionLabel, countLabel, removeFromEdit,
                                         newPositionEdit, countEdit, reorderButton, reverseButton})
        control->setEnabled(count > 1);
    highlightButton->setEnabled(count >= 1);
    giveMnemonics(*this);
}

#include "moc_group_reorder_dlg.cpp"
