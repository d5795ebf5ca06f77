// The row widgets of the tree's items and the bookkeeping of what stands on which item.
#include "options/window/preferences.h"

#include "host/typed_reads.h"
#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/pref_widget.h"
#include "options/window/option_keys.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QTreeWidget>
#include <memory>

namespace {

const int kStateDisabled = 8; // bit of a node's `State`

} // namespace

// The row is made where the tree is going to keep it: on its way there from another parent it would be
// polished a second time with its own style sheets, which takes longer than all the rest.
QPrefWidget* Preferences::makeRow(int position, TreeItem* item, QWidget* editor, bool cutAtAngleBracket,
                                  int doubleClickEnabled) {
    std::unique_ptr<QWidget> owned(editor);
    auto* const row =
        new QPrefWidget(item, position, editor, cutAtAngleBracket, doubleClickEnabled, tree->viewport());
    owned.release(); // the row has it
    ClickableLabel* const label = row->label();
    connect(label, &QWidget::customContextMenuRequested, this,
            [this, label](const QPoint& clicked) { showContextMenu(label, clicked); });
    connect(label, &ClickableLabel::doubleClicked, this, [this] { modifyCurrent(); });
    connect(this, &Preferences::themeChanged, row, [row] { row->applyToolTipStyle(); });
    if (keys && editor)
        keys->watch(editor);
    rowWidgets[item] = row;
    tree->setItemWidget(item, 0, row);
    startDisabledWhereTold(item, row);
    return row;
}

void Preferences::startDisabledWhereTold(TreeItem* item, QPrefWidget* row) {
    const TreeItem* const parent = item->parentItem();
    const bool parentIsOff = parent && (!parent->isEnabled() || parent->state == 0);
    int state = 0;
    readValue(optionItems.value(item), "State", &state);
    if (parentIsOff || (state & kStateDisabled)) {
        item->setEnabledFlag(false);
        row->setEnabled(false);
    }
}

void Preferences::clearTree() {
    tree->clear();
    qDeleteAll(buttonGroups);
    qDeleteAll(radioButtons);
    qDeleteAll(rowWidgets);
    releasePages();
    expandedItems.clear();
    buttonGroups.clear();
    rowWidgets.clear();
    radioButtons.clear();
    radioLists.clear();
    optionItems.clear();
    cursorColorItem = nullptr;
    paperRootItem = nullptr;
}

IParam* Preferences::parentNode(TreeItem* item) const { return optionItems.value(item->parentItem()); }

void Preferences::releasePages() {
    rasterFormats.clear();
    stdDirs.clear();
    paperFormats.clear();
    pageRecords.clear();
}

// A new item may come to lie at the address of one that is gone, so nothing may remember that.
void Preferences::forgetItem(TreeItem* item) {
    for (int i = 0; i < item->childCount(); ++i)
        forgetItem(item->childItem(i));
    forgetWidgets(item);
    radioLists.remove(item);
    delete buttonGroups.take(item);
    optionItems.remove(item);
    expandedItems.removeAll(item);
    if (cursorColorItem == item)
        cursorColorItem = nullptr;
    if (paperRootItem == item)
        paperRootItem = nullptr;
}

// The rows of the item and of all below it: they go when the item leaves the tree.
void Preferences::forgetWidgets(TreeItem* item) {
    for (int i = 0; i < item->childCount(); ++i)
        forgetWidgets(item->childItem(i));
    rowWidgets.remove(item);
    if (QRadioButton* const button = radioButtons.take(item))
        radioLists[item->parentItem()].removeOne(button); // the list goes after the last of its rows
}
