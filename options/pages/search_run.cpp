// A search over the option tree: what is shown, expanded and marked, and how the tree is put back.
#include "options/pages/search_expression.h"
#include "options/pages/search_hits.h"
#include "options/pages/search_marks.h"
#include "options/pages/searching_line_edit.h"

#include <QLabel>
#include <QSet>
#include <QTreeWidget>

namespace {

// One search below a root. `foundItems` grows in the order of finding.
class SearchWalk {
public:
    SearchWalk(QTreeWidget* searchedTree, QTreeWidgetItem* root, const QRegularExpression& searched,
               const SearchMark& searchMark, QList<QTreeWidgetItem*>& found)
        : tree(searchedTree), expression(searched), mark(searchMark), hits(searchedTree, root, searched),
          foundItems(found), foundSet(found.cbegin(), found.cend()) {}

    void searchBelow(QTreeWidgetItem* parent) {
        for (int i = 0; i < parent->childCount(); ++i) {
            QTreeWidgetItem* child = parent->child(i);
            if (decideVisibility(child))
                keep(parent, child);
            searchBelow(child); // hidden children too, so that each gets its own flag
        }
    }

private:
    bool decideVisibility(QTreeWidgetItem* child) {
        const SearchHit hit = hits.of(child);
        const bool kept = hit.description || hit.descriptionBelow || hit.label || hit.labelBelow;
        child->setHidden(!kept);
        return kept;
    }

    void keep(QTreeWidgetItem* parent, QTreeWidgetItem* child) {
        parent->setExpanded(true);
        const SearchHit hit = hits.of(child);
        if (hit.label)
            highlightLabelMatches(child);
        if (hit.description)
            highlightWholeLabel(child);
        if (parent != tree->invisibleRootItem() && !foundSet.contains(child)) {
            foundSet.insert(child);
            foundItems.append(child);
        }
    }

    void highlightLabelMatches(QTreeWidgetItem* child) {
        if (QLabel* label = rowLabel(tree, child))
            label->setText(mark.aroundMatches(label->text(), expression));
    }

    void highlightWholeLabel(QTreeWidgetItem* child) {
        if (QLabel* label = rowLabel(tree, child))
            label->setText(mark.around(label->text()));
    }

    QTreeWidget* tree;
    const QRegularExpression& expression;
    const SearchMark& mark;
    const SearchHits hits;
    QList<QTreeWidgetItem*>& foundItems;
    QSet<QTreeWidgetItem*> foundSet;
};

} // namespace

void SearchingLineEdit::startSearch() {
    if (holdsNothing())
        return;
    runSearch(text());
    showBelowFoundItems();
}

void SearchingLineEdit::runSearch(const QString& searchText) {
    QTreeWidgetItem* root = tree->topLevelItem(0); // nothing beside or above what lies below it is searched
    if (root) {
        clearHighlights(root);
        searchItems(root, searchText);
    }
    if (foundItems.isEmpty())
        emit noFound();
    else
        emit smthFound();
    if (root) {
        tree->setCurrentItem(root);
        refreshDescription(root);
    }
}

void SearchingLineEdit::clearHighlights(QTreeWidgetItem* item) {
    const SearchMark mark(highlightBackground, highlightForeground);
    for (int i = 0; i < item->childCount(); ++i) {
        QTreeWidgetItem* child = item->child(i);
        if (QLabel* label = rowLabel(tree, child)) {
            QString cleared = label->text();
            mark.clear(cleared);
            if (cleared != label->text())
                label->setText(cleared);
        }
        clearHighlights(child);
    }
}

void SearchingLineEdit::searchItems(QTreeWidgetItem* parent, const QString& searchText) {
    if (searchText.isEmpty()) {
        showAllBelow(parent);
        statusLabel->setText(QString());
        return;
    }
    const QRegularExpression expression = buildSearchExpression(searchText);
    const SearchMark mark(highlightBackground, highlightForeground);
    SearchWalk(tree, parent, expression, mark, foundItems).searchBelow(parent);
    if (parent->childCount() > 0) // a root without children keeps the status of the search before
        statusLabel->setText(foundItems.isEmpty() ? tr("No matches!!!") : QString());
}

void SearchingLineEdit::showAllBelow(QTreeWidgetItem* item) {
    for (int i = 0; i < item->childCount(); ++i) {
        item->child(i)->setHidden(false);
        showAllBelow(item->child(i));
    }
}

// Works on a copy: losing the focus may run a reset, which empties the list. What lies below a found item is
// shown with it, so an item below another found one needs no walk of its own.
void SearchingLineEdit::showBelowFoundItems() {
    const QList<QTreeWidgetItem*> found = foundItems;
    const QSet<QTreeWidgetItem*> foundSet(found.cbegin(), found.cend());
    for (QTreeWidgetItem* item : found)
        if (!foundSet.contains(item->parent()))
            showAllBelow(item);
    foundItems.clear();
}

void SearchingLineEdit::reset(const QString& newText) {
    if (!newText.isEmpty())
        return;
    highlightDescription(QString());
    runSearch(QString());
    showBelowFoundItems();
    savedExpansion.restore(tree->invisibleRootItem());
    emit searchFinished();
}
