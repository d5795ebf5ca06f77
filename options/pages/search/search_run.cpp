// A search over the option tree: what is shown, expanded and marked, and how the tree is put back.
#include "options/pages/search/search_expression.h"
#include "options/pages/search/search_marks.h"
#include "options/pages/search/search_rows.h"
#include "options/pages/search/searching_line_edit.h"

#include <QLabel>
#include <QSet>
#include <QTreeWidget>

namespace {

void showAllBelow(QTreeWidgetItem* item) {
    for (int i = 0; i < item->childCount(); ++i) {
        item->child(i)->setHidden(false);
        showAllBelow(item->child(i));
    }
}

void highlightLabelMatches(const SearchRow& row, const QRegularExpression& expression,
                           const SearchMark& mark) {
    row.label->setText(mark.aroundMatches(row.label->text(), expression));
}

void highlightWholeLabel(const SearchRow& row, const SearchMark& mark) {
    if (row.label)
        row.label->setText(mark.around(row.label->text()));
}

} // namespace

void SearchingLineEdit::startSearch() {
    if (holdsNothing())
        return;
    searchRuns = true;
    runSearch(text());
    showBelowFoundItems();
}

void SearchingLineEdit::runSearch(const QString& searchText) {
    QTreeWidgetItem* root = tree->topLevelItem(0); // nothing beside or above what lies below it is searched
    if (root) {
        std::vector<SearchRow> rows = rowsBelow(tree, root);
        clearHighlights(rows);
        searchItems(rows, searchText);
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

void SearchingLineEdit::clearHighlights(const std::vector<SearchRow>& rows) {
    const SearchMark mark(highlightBackground, highlightForeground);
    for (const SearchRow& row : rows) {
        if (!row.label || !row.label->text().contains('<')) // no mark is without one
            continue;
        QString cleared = row.label->text();
        mark.clear(cleared);
        if (cleared != row.label->text())
            row.label->setText(cleared);
    }
}

void SearchingLineEdit::searchItems(std::vector<SearchRow>& rows, const QString& searchText) {
    if (searchText.isEmpty()) {
        for (const SearchRow& row : rows)
            row.item->setHidden(false);
        statusLabel->setText(QString());
        return;
    }
    const QRegularExpression expression = buildSearchExpression(searchText);
    const SearchMark mark(highlightBackground, highlightForeground);
    matchRows(rows, expression);
    for (const SearchRow& row : rows) {
        row.item->setHidden(!row.isKept());
        if (row.isKept())
            keep(row, expression, mark);
    }
    if (!rows.empty()) // a root without children keeps the status of the search before
        statusLabel->setText(foundItems.isEmpty() ? tr("No matches!!!") : QString());
}

// Every kept item counts as found: also the ancestors of a hit. None comes twice, since the list is empty
// between searches and a search comes past each item once. A branch that matches itself opens when searches
// run while typing.
void SearchingLineEdit::keep(const SearchRow& row, const QRegularExpression& expression,
                             const SearchMark& mark) {
    row.item->parent()->setExpanded(true);
    if (row.labelHit)
        highlightLabelMatches(row, expression, mark);
    if (row.descriptionHit || row.wordHit)
        highlightWholeLabel(row, mark);
    if (typing && row.matches())
        row.item->setExpanded(true);
    foundItems.append(row.item);
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
    searchRuns = false;
    emit searchFinished();
}
