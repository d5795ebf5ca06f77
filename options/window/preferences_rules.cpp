// What the Options dialog does of itself: scrolling to an opened branch, following the current item, the tool
// bar, and the change of theme.
#include "options/window/preferences.h"

#include "module/icons/icons.h"
#include "options/kinds/icon_numbers.h"
#include "options/pages/search/searching_line_edit.h"
#include "options/tree/mask_rules.h"

#include <QPushButton>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace {

// Where the open branch below `item` ends.
QTreeWidgetItem* lastOpenItem(QTreeWidgetItem* item) {
    while (item->childCount() > 0 && item->isExpanded())
        item = item->child(item->childCount() - 1);
    return item;
}

} // namespace

// Calls the base of QDialog on purpose: QDialog's own would move the dialog over its parent.
void Preferences::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    focusAtStart();
}

// Shows as much of a newly opened branch as there is room for, and never scrolls the opened item out of view.
void Preferences::onItemExpanded(QTreeWidgetItem* item) {
    tree->setCurrentItem(item);
    QTreeWidgetItem* const last = lastOpenItem(item);
    const QRect viewport = tree->viewport()->rect();
    const int height = viewport.bottom() - viewport.top();
    const auto isInView = [this, height](QTreeWidgetItem* shown) {
        const QRect rect = tree->visualItemRect(shown);
        return rect.top() >= 0 && rect.bottom() <= height;
    };
    if (isInView(last))
        return;
    tree->scrollToItem(last, QAbstractItemView::PositionAtBottom);
    if (!isInView(item))
        tree->scrollToItem(item, QAbstractItemView::PositionAtTop);
}

// Without a host that wants otherwise the focus goes to OK on every change, also when the user has just
// clicked into the editor of another row: meant, the second click edits.
void Preferences::onCurrentItemChanged(QTreeWidgetItem* current) {
    if (current)
        showDescription(static_cast<TreeItem*>(current));
    if (!keys && !okButton->hasFocus())
        focusOkButton();
}

void Preferences::focusOkButton() { okButton->setFocus(Qt::OtherFocusReason); }

void Preferences::focusAtStart() {
    if (keys)
        tree->setFocus(Qt::OtherFocusReason);
    else
        focusOkButton();
}

void Preferences::showDescription(TreeItem* item) {
    description->setPlainText(item->description);
    refreshButtons(item);
    searchEdit->refreshDescription(item);
}

void Preferences::refreshButtons(TreeItem* item) {
    const std::uint32_t mask = toolBarMask(item);
    deleteButton->setEnabled(mask & kMaskDelete);
    addButton->setEnabled(mask & kMaskAdd);
    upButton->setEnabled(mask & kMaskUp);
    downButton->setEnabled(mask & kMaskDown);
}

void Preferences::onThemeClicked() {
    setThemeIcons();
    emit themeChanged();
}

// Each item's own number counts, 0 included: the root then gets the fallback picture.
void Preferences::setThemeIcons() {
    for (QTreeWidgetItemIterator it(tree); *it; ++it)
        (*it)->setData(0, Qt::DecorationRole, treeIcon(static_cast<TreeItem*>(*it)->imageId));
    profileButton->setIcon(treeIcon(kIconProfile));
    addButton->setIcon(toolIcon(kToolAdd));
    deleteButton->setIcon(toolIcon(kToolDelete));
    upButton->setIcon(toolIcon(kToolUp));
    downButton->setIcon(toolIcon(kToolDown));
    searchEdit->setClearIcon(treeIcon(kIconClear));
}
