// The three fills of the table of groups. They differ in order and strictness, and that is meant.
#include "groups/dialog_parts.h"
#include "groups/group_dlg.h"
#include "groups/highlight.h"
#include "host/selection.h"
#include "host/text.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <algorithm>

namespace {

// Where the fill isn't strict, an entry that does not open or is no group is passed over.
OdDbGroupPtr groupOf(const OdDbDictionaryIteratorPtr& entry, bool strict) {
    const OdDbObjectPtr object = entry->getObject();
    return strict ? odrxCast<OdDbGroup>(object) : odrxQuery<OdDbGroup>(object.get());
}

int rowOf(const OdDbObjectIdArray& ids, OdDbObjectId id) {
    const auto found = std::find(ids.begin(), ids.end(), id);
    return id.isNull() || found == ids.end() ? -1 : static_cast<int>(found - ids.begin());
}

} // namespace

void CGroupDlg::fillTable() {
    data->currentRow = -1;
    showRows(rowsOf(odrxCast<OdDbDictionary>(dictionaryId.safeOpenObject()), kSorted, true), false);
    reorderButton->setEnabled(namedRows >= 2);
    findNameButton->setEnabled(namedRows > 0);
    if (data->currentRow >= 0)
        group_dialogs::scrollToRow(*groupTable, data->currentRow);
    enableGroupButtons(false);
}

// `currentRow` keeps its value when no row has the name: that is meant.
void CGroupDlg::refillTable() {
    data->group = {};
    if (dropHighlight(*data))
        HostUpdateDisplay();
    clearTable();
    if (guided)
        data->currentRow = -1;
    showRows(rowsOf(odrxCast<OdDbDictionary>(dictionaryId.openObject()), kSorted, false), false);
    const bool isRow = data->currentRow >= 0 && data->currentRow < groupTable->rowCount();
    if (isRow)
        group_dialogs::scrollToRow(*groupTable, data->currentRow);
    enableGroupButtons(isRow);
    findNameButton->setEnabled(namedRows > 0);
    if (guided)
        showFill(data->currentRow);
}

void CGroupDlg::fillForIncludeUnnamed() {
    data->includeUnnamed = includeUnnamedCheck->isChecked();
    const int currentRow = data->currentRow;
    const int chosen = group_dialogs::firstSelectedRow(*groupTable);
    const OdDbObjectId chosenId = chosen < 0 ? OdDbObjectId() : rowIds.at(static_cast<std::size_t>(chosen));
    clearTable();
    showRows(rowsOf(odrxCast<OdDbDictionary>(dictionaryId.openObject()), kCollated, false), true);
    data->currentRow = currentRow;
    if (guided)
        showFill(rowOf(rowIds, chosenId));
}

// The group that was chosen does not come back by this: only a choice of the user fills the controls.
void CGroupDlg::clearTable() {
    const QSignalBlocker blocker(groupTable);
    groupTable->clearContents();
    groupTable->setRowCount(0);
    rowIds.clear();
}

// The key of a group is its name.
std::vector<CGroupDlg::Row> CGroupDlg::rowsOf(const OdDbDictionaryPtr& dictionary, Order order, bool strict) {
    std::vector<Row> rows;
    namedRows = 0;
    for (const auto entry = dictionary->newIterator(static_cast<int>(order)); !entry->done(); entry->next()) {
        const OdDbGroupPtr group = groupOf(entry, strict);
        if (group.isNull() && !strict)
            continue;
        const bool anonymous = group->isAnonymous();
        if (anonymous && !data->includeUnnamed)
            continue;
        rows.push_back({hostqt::qString(entry->name()), group->isSelectable(), group->objectId()});
        noteRow(entry->name(), anonymous, static_cast<int>(rows.size()) - 1, strict);
    }
    return rows;
}

// At the start only the named groups are compared with the record's name, exactly; later all, in any case.
void CGroupDlg::noteRow(const OdString& name, bool anonymous, int row, bool strict) {
    if (!anonymous)
        ++namedRows;
    if (strict ? !anonymous && name == data->name : name.iCompare(data->name) == 0)
        data->currentRow = row;
}

void CGroupDlg::showRows(const std::vector<Row>& rows, bool withIds) {
    groupTable->setRowCount(static_cast<int>(rows.size()));
    // A header that may redraw looks for the position of each row that is resized, which takes as long as
    // there are rows.
    groupTable->verticalHeader()->setUpdatesEnabled(false);
    const QSignalBlocker blocker(
        groupTable->model()); // the rows are new: nobody needs to hear of their cells
    const QString yes = group_dialogs::yesOrNo(true), no = group_dialogs::yesOrNo(false);
    int at = 0;
    for (const Row& row : rows) {
        auto* const nameItem = new QTableWidgetItem(row.name);
        if (withIds)
            nameItem->setData(Qt::UserRole, group_dialogs::dataOfId(row.id));
        groupTable->setItem(at, 0, nameItem);
        groupTable->setItem(at, 1, new QTableWidgetItem(row.selectable ? yes : no));
        groupTable->setRowHeight(at++, kRowHeight);
        rowIds.push_back(row.id);
    }
    groupTable->verticalHeader()->setUpdatesEnabled(true);
    groupTable->viewport()->update();
}
