#include "groups/group_dlg.h"

#include "groups/dialog_parts.h"
#include "groups/highlight.h"
#include "host/dialog_habits.h"
#include "host/help.h"
#include "host/selection.h"
#include "host/text.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

CGroupDlg::CGroupDlg(QWidget* parent, OdDbObjectId groupDictionaryId, GroupData& groupData)
    : QDialog(parent), dictionaryId(groupDictionaryId), data(&groupData),
      guided(hasHabit(DialogHabit::GuidedGroups)) {
    group_dialogs::setUpWindow(*this, "CGroupDlg", QDialog::tr("Object Grouping"), 380, 420);
    build();
    layOut();
    nameEdit->setFocus(); // in its box by now: a change of parent would take the focus away
    nameEdit->selectAll();
    fillTable();
    connectControls();
    if (guided)
        fitWindow();
}

// The table goes after the dialog's own part: its last signals must not come here.
CGroupDlg::~CGroupDlg() { groupTable->disconnect(this); }

void CGroupDlg::closeEvent(QCloseEvent*) { done(kCancelled); }

// Only hosts that want it have these shown: otherwise a rejected name is told by the focus alone, and that is
// meant.
QString CGroupDlg::errorMessage(int code) {
    switch (code) {
    case kGroupNameInvalid:
        return QDialog::tr("Group name is invalid.");
    case kGroupNameDuplicate:
        return QDialog::tr("Group name is a duplicate.");
    case kGroupEmpty:
        return QDialog::tr("Group is empty.");
    default:
        return {};
    }
}

// Throws for an object that was erased in the meantime. After an Explode the rows below the exploded one do
// not match their ids until the next fill, and an action on a row works on the id that the row had before:
// meant.
OdDbGroupPtr CGroupDlg::groupForRow(int row, OdDb::OpenMode mode) const {
    if (row < 0)
        row = group_dialogs::firstSelectedRow(*groupTable);
    if (row < 0 || row >= groupTable->rowCount())
        return {};
    const OdDbObjectId id = rowIds.at(static_cast<std::size_t>(row));
    return id.isValid() ? odrxCast<OdDbGroup>(id.safeOpenObject(mode)) : OdDbGroupPtr();
}

// A group that can't be opened counts as none.
OdDbGroupPtr CGroupDlg::currentGroup() const {
    const QModelIndex index = groupTable->currentIndex();
    try {
        return index.isValid() ? groupForRow(index.row(), OdDb::kForRead) : OdDbGroupPtr();
    } catch (const OdError&) {
        return {};
    }
}

void CGroupDlg::enableGroupButtons(bool enabled) {
    for (QPushButton* const button :
         {explodeButton, addButton, descriptionButton, selectableButton, removeButton})
        button->setEnabled(enabled);
}

// `selectableButton` is never checked: `selectable` becomes false here and only New gives it another value.
void CGroupDlg::captureControls(bool store) {
    const int row = group_dialogs::firstSelectedRow(*groupTable);
    if (store) {
        data->name = hostqt::odStringFromWidget(nameEdit->text());
        data->description = hostqt::odStringFromWidget(descriptionEdit->text());
        data->unnamed = unnamedCheck->isChecked();
        data->highlight = highlightCheck->isChecked();
        data->includeUnnamed = includeUnnamedCheck->isChecked();
        data->selectable = selectableButton->isChecked();
        data->currentRow = row;
        data->group = groupForRow(row, OdDb::kForRead);
    }
    enableGroupButtons(row != -1);
    const QTableWidgetItem* const item = row == -1 ? nullptr : groupTable->item(row, 0);
    if (item)
        nameEdit->setText(item->text());
    if (row == -1 && dropHighlight(*data))
        HostUpdateDisplay();
}

void CGroupDlg::selectionChanged() {
    enableGroupButtons(false);
    messageLabel->clear();
    const OdDbGroupPtr group = currentGroup();
    if (group.isNull()) {
        captureControls(false);
        return;
    }
    groupTable->horizontalHeader()->setHighlightSections(false);
    showGroup(group);
    data->currentRow = groupTable->currentIndex().row();
    data->group = group;
    renameButton->setEnabled(!group->isAnonymous());
    nameEdit->setEnabled(!group->isAnonymous());
    updateHighlight();
}

void CGroupDlg::showGroup(const OdDbGroupPtr& group) {
    descriptionEdit->setText(hostqt::qString(group->description()));
    nameEdit->setText(hostqt::qString(group->name()));
    enableGroupButtons(true);
    explodeButton->setEnabled(group->numEntities() != 0);
    if (unnamedCheck->isChecked() && !group->isAnonymous()) {
        unnamedCheck->setChecked(false);
        messageLabel->setText(QDialog::tr("New groups are named."));
    }
}

void CGroupDlg::updateHighlight() {
    const bool dropped = dropHighlight(*data);
    const bool raised = raiseHighlight(*data);
    if (dropped || raised)
        HostUpdateDisplay();
}

// Not connected: that is meant.
void CGroupDlg::showHelp() { ::showHelp(group_dialogs::helpTopic); }

#include "moc_group_dlg.cpp"
