// "Collapse all", and "Expand" which undoes it within a search.
#include "options/pages/search/collapse_widget.h"

#include "options/pages/search/searching_line_edit.h"

#include <QPushButton>
#include <QTreeWidget>

namespace {

// Compares addresses only: `wanted` may belong to an item that no longer exists.
bool holdsItem(const QTreeWidgetItem* item, const QTreeWidgetItem* wanted) {
    if (item == wanted)
        return true;
    for (int i = 0; i < item->childCount(); ++i)
        if (holdsItem(item->child(i), wanted))
            return true;
    return false;
}

} // namespace

CollapseWidget::CollapseWidget(QTreeWidget* optionTree, SearchingLineEdit* searchBox, QWidget* parent)
    : QWidget(parent), tree(optionTree), searchEdit(searchBox) {
    hide(); // it has no place in a layout and would lie over the tree's corner
    buildButtons(parent);
    updateButtons();
    connectTree();
    connectButtons();
    connectSearch();
}

void CollapseWidget::buildButtons(QWidget* parent) {
    collapseButton = new QPushButton(tr("Collapse all"), parent);
    collapseButton->setObjectName(QStringLiteral("collapseButton"));
    expandButton = new QPushButton(tr("Expand"), parent);
    expandButton->setObjectName(QStringLiteral("expandButton"));
}

void CollapseWidget::connectTree() {
    connect(tree, &QTreeWidget::itemCollapsed, this, &CollapseWidget::onItemCollapsed);
    connect(tree, &QTreeWidget::itemExpanded, this, &CollapseWidget::updateButtons);
}

void CollapseWidget::connectButtons() {
    connect(collapseButton, &QPushButton::clicked, this, &CollapseWidget::collapseAll);
    connect(expandButton, &QPushButton::clicked, this, &CollapseWidget::expandAgain);
}

void CollapseWidget::connectSearch() {
    connect(searchEdit, &SearchingLineEdit::searchStarted, this, &CollapseWidget::onSearchStarted);
    connect(searchEdit, &SearchingLineEdit::searchFinished, this, &CollapseWidget::onSearchFinished);
    connect(searchEdit, &SearchingLineEdit::noFound, this, [this] { searchHasResult = false; });
    connect(searchEdit, &SearchingLineEdit::smthFound, this, [this] { searchHasResult = true; });
    // Connected a second time on purpose: the buttons are brought up to date after everything else.
    connect(searchEdit, &SearchingLineEdit::searchFinished, this, &CollapseWidget::onSearchFinished);
}

void CollapseWidget::onItemCollapsed(QTreeWidgetItem* item) {
    if (selectCollapsed)
        tree->setCurrentItem(item);
    updateButtons();
}

void CollapseWidget::onSearchStarted() {
    searching = true;
    updateButtons();
}

void CollapseWidget::onSearchFinished() {
    searching = false;
    updateButtons();
}

void CollapseWidget::updateButtons() {
    const bool collapsed = allCollapsed();
    const bool offerExpand = searching && searchHasResult && collapsed;
    collapseButton->setVisible(!offerExpand);
    expandButton->setVisible(offerExpand);
    collapseButton->setDisabled(collapsed);
}

// False for a tree without a root; otherwise only the direct children of the root count.
bool CollapseWidget::allCollapsed() const {
    const QTreeWidgetItem* root = tree->topLevelItem(0);
    if (!root)
        return false;
    for (int i = 0; i < root->childCount(); ++i)
        if (root->child(i)->isExpanded() && !root->child(i)->isHidden())
            return false;
    return true;
}

void CollapseWidget::collapseAll() {
    QTreeWidgetItem* root = tree->topLevelItem(0);
    if (!root)
        return;
    if (searching) {
        state.currentItem = tree->currentItem();
        state.expanded.clear();
        state.save(root);
    }
    selectCollapsed = false;
    collapseBelow(root, true);
    selectCollapsed = true;
    updateButtons();
}

// The children go first, so that the current item climbs with the collapsing.
void CollapseWidget::collapseBelow(QTreeWidgetItem* item, bool keepItem) {
    const bool heldCurrent = holdsCurrentItem(item);
    for (int i = 0; i < item->childCount(); ++i)
        collapseBelow(item->child(i), false);
    if (keepItem)
        return;
    item->setExpanded(false);
    if (heldCurrent)
        tree->setCurrentItem(item);
}

bool CollapseWidget::holdsCurrentItem(const QTreeWidgetItem* item) const {
    const QTreeWidgetItem* current = tree->currentItem();
    while (current && current != item)
        current = current->parent();
    return current != nullptr;
}

void CollapseWidget::expandAgain() {
    if (QTreeWidgetItem* root = tree->topLevelItem(0))
        state.restore(root);
    if (state.currentItem && holdsItem(tree->invisibleRootItem(), state.currentItem))
        tree->setCurrentItem(state.currentItem);
    updateButtons();
}
