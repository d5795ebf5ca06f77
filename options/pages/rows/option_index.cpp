// Keeps the maps of the index in step with the tree.
#include "options/pages/rows/option_index.h"

#include "options/pages/directories/std_dir_item.h"
#include "options/pages/rows/pref_widget.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QTreeWidget>

OptionIndex::OptionIndex() = default;
OptionIndex::~OptionIndex() = default;

IParam* OptionIndex::parentNode(TreeItem* item) const { return optionItems.value(item->parentItem()); }

void OptionIndex::clearTree() {
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

void OptionIndex::releasePages() {
    rasterFormats.clear();
    stdDirs.clear();
    paperFormats.clear();
    pageRecords.clear();
}

// A new item may come to lie at the address of one that is gone, so nothing may
// remember that.
void OptionIndex::forgetItem(TreeItem* item) {
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

// The rows of the item and of all below it: they go when the item leaves the
// tree.
void OptionIndex::forgetWidgets(TreeItem* item) {
    for (int i = 0; i < item->childCount(); ++i)
        forgetWidgets(item->childItem(i));
    rowWidgets.remove(item);
    if (QRadioButton* const button = radioButtons.take(item))
        radioLists[item->parentItem()].removeOne(button); // the list goes after the last of its rows
}
