// Lists the rows of a search and finds out which of them match.
#include "options/pages/search/search_rows.h"

#include "options/store/tree_item.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTreeWidget>

namespace {

QLabel* rowLabel(const QTreeWidget* tree, QTreeWidgetItem* item) {
    const QWidget* row = tree->itemWidget(item, 0);
    return row ? row->findChild<QLabel*>() : nullptr;
}

void appendBelow(const QTreeWidget* tree, QTreeWidgetItem* item, int itemIndex,
                 std::vector<SearchRow>& rows) {
    for (int i = 0; i < item->childCount(); ++i) {
        QTreeWidgetItem* child = item->child(i);
        rows.push_back({child, rowLabel(tree, child), itemIndex});
        appendBelow(tree, child, static_cast<int>(rows.size()) - 1, rows);
    }
}

} // namespace

std::vector<SearchRow> rowsBelow(const QTreeWidget* tree, QTreeWidgetItem* root) {
    std::vector<SearchRow> rows;
    appendBelow(tree, root, -1, rows);
    return rows;
}

// From the last row to the first, so that a parent comes after everything below it.
void matchRows(std::vector<SearchRow>& rows, const QRegularExpression& expression) {
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        row->labelHit = row->label && expression.match(row->label->text()).hasMatch();
        const auto* const item = static_cast<TreeItem*>(row->item);
        row->descriptionHit = expression.match(item->description).hasMatch();
        row->wordHit = !item->searchWords.isEmpty() && expression.match(item->searchWords).hasMatch();
        if (row->parent >= 0 && row->isKept())
            rows[static_cast<std::size_t>(row->parent)].hitBelow = true;
    }
}
