// Matches labels and descriptions, children before their parent.
#include "options/pages/search_hits.h"

#include "options/tree_item.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTreeWidget>

QLabel* rowLabel(const QTreeWidget* tree, QTreeWidgetItem* item) {
    const QWidget* row = tree->itemWidget(item, 0);
    return row ? row->findChild<QLabel*>() : nullptr;
}

SearchHits::SearchHits(const QTreeWidget* searchedTree, QTreeWidgetItem* root,
                       const QRegularExpression& searched)
    : tree(searchedTree), expression(searched) {
    matchBelow(root);
}

// What matches below `item`, as the two "below" facts of the result.
SearchHit SearchHits::matchBelow(QTreeWidgetItem* item) {
    SearchHit below;
    for (int i = 0; i < item->childCount(); ++i) {
        const SearchHit child = matchItem(item->child(i));
        below.labelBelow |= child.label || child.labelBelow;
        below.descriptionBelow |= child.description || child.descriptionBelow;
    }
    return below;
}

SearchHit SearchHits::matchItem(QTreeWidgetItem* item) {
    SearchHit hit = matchBelow(item);
    const QLabel* label = rowLabel(tree, item);
    hit.label = label && expression.match(label->text()).hasMatch();
    hit.description = expression.match(static_cast<TreeItem*>(item)->description).hasMatch();
    hits.insert(item, hit);
    return hit;
}
