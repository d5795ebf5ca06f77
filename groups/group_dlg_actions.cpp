// What the buttons and check boxes of the dialog "Object Grouping" do.
#include "groups/dialog_parts.h"
#include "groups/group_dlg.h"
#include "groups/group_names.h"
#include "host/app.h"
#include "host/group_services.h"
#include "host/text.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

void CGroupDlg::highlightChanged() {
    captureControls(true);
    updateHighlight();
    groupTable->setFocus();
}

void CGroupDlg::unnamedChanged() { nameEdit->setEnabled(!unnamedCheck->isChecked()); }

void CGroupDlg::endForWork(Result result) {
    captureControls(true);
    done(result);
}

void CGroupDlg::endForNew() {
    const QString name = nameEdit->text().toUpper();
    if (!unnamedCheck->isChecked() && checkNewName(name) != 0)
        return;
    reorderButton->setEnabled(countNamedRows() >= 1);
    captureControls(true);
    data->name = hostqt::odStringFromWidget(name);
    data->selectable = selectableCheck->isChecked();
    done(kNew);
}

// The trimmed name is checked, what was typed is stored, in upper case: that is meant.
int CGroupDlg::checkNewName(const QString& name) {
    const QString trimmed = name.trimmed();
    int error = 0;
    if (!isValidGroupName(hostqt::odStringFromWidget(trimmed)))
        error = kGroupNameInvalid;
    else if (isListed(trimmed))
        error = kGroupNameDuplicate;
    if (error == 0)
        return 0;
    data->errorCode = error;
    if (guided)
        tellRefusal(error);
    nameEdit->setFocus();
    nameEdit->selectAll();
    return error;
}

void CGroupDlg::tellRefusal(int error) {
    const QString allowed = QDialog::tr("Up to 31 letters, digits, $, - and _.");
    messageLabel->setText(error == kGroupNameInvalid ? errorMessage(error) + ' ' + allowed
                                                     : errorMessage(error));
}

bool CGroupDlg::isListed(const QString& name) const {
    for (int row = 0; row < groupTable->rowCount(); ++row)
        if (groupTable->item(row, 0)->text().compare(name, Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

int CGroupDlg::countNamedRows() const {
    int count = 0;
    for (int row = 0; row < groupTable->rowCount(); ++row)
        if (!groupTable->item(row, 0)->text().isEmpty())
            ++count;
    return count;
}

// `rowIds` keeps its entry unless the host wants it otherwise: that is meant.
void CGroupDlg::giveUpRow(int row) {
    const Ref<IGroupServices> services = appService<IGroupServices>();
    if (services && services->explodeGivesUpRow()) {
        groupTable->setCurrentItem(nullptr);
        rowIds.erase(rowIds.begin() + row);
    }
    groupTable->removeRow(row);
}

void CGroupDlg::explode() {
    const QTableWidgetItem* const item = groupTable->currentItem();
    if (!item)
        return;
    const int row = groupTable->row(item);
    const OdDbGroupPtr group = groupForRow(row, OdDb::kForRead);
    if (group.isNull() || group->isNotAccessible())
        return;
    group->upgradeOpen();
    if (!group->isWriteEnabled()) {
        messageLabel->setText(QDialog::tr("Unable to explode this group."));
        return;
    }
    const auto dictionary = odrxCast<OdDbDictionary>(dictionaryId.safeOpenObject(OdDb::kForWrite));
    group->erase(true);
    giveUpRow(row);
    reorderButton->setEnabled(groupTable->rowCount() > 0);
}

void CGroupDlg::rename() {
    const int row = group_dialogs::firstSelectedRow(*groupTable);
    if (unnamedCheck->isChecked() || row == -1) {
        messageLabel->clear();
        return;
    }
    const QString name = nameEdit->text().toUpper();
    if (checkNewName(name) != 0)
        return;
    groupForRow(row, OdDb::kForWrite)->setName(hostqt::odStringFromWidget(name));
    groupTable->setItem(row, 0, new QTableWidgetItem(name));
    messageLabel->setText(QDialog::tr("Group name has been updated."));
}

void CGroupDlg::changeDescription() {
    const int row = group_dialogs::firstSelectedRow(*groupTable);
    if (row == -1)
        return;
    groupForRow(row, OdDb::kForWrite)->setDescription(hostqt::odStringFromWidget(descriptionEdit->text()));
    messageLabel->setText(QDialog::tr("Group description has been updated."));
}

void CGroupDlg::changeSelectable() {
    captureControls(true);
    const int row = group_dialogs::firstSelectedRow(*groupTable);
    if (row == -1)
        return;
    const OdDbGroupPtr group = groupForRow(row, OdDb::kForWrite);
    const bool selectable = !group->isSelectable();
    group->setSelectable(selectable);
    groupTable->setItem(row, 1, new QTableWidgetItem(group_dialogs::yesOrNo(selectable)));
    group_dialogs::scrollToRow(*groupTable, row);
}
