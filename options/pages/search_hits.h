// Where a search matches: found out for the whole tree in one pass, so that each text is matched once however
// deep it stands.
#pragma once

#include <QHash>

class QLabel;
class QRegularExpression;
class QTreeWidget;
class QTreeWidgetItem;

// The label of an item's row, null without a row or a label.
QLabel* rowLabel(const QTreeWidget* tree, QTreeWidgetItem* item);

struct SearchHit {
    bool label = false; // of the item itself
    bool description = false;
    bool labelBelow = false; // of some item below it
    bool descriptionBelow = false;
};

class SearchHits {
public:
    // Matches everything below `root`.
    SearchHits(const QTreeWidget* tree, QTreeWidgetItem* root, const QRegularExpression& expression);

    SearchHit of(QTreeWidgetItem* item) const { return hits.value(item); }

private:
    SearchHit matchBelow(QTreeWidgetItem* item);
    SearchHit matchItem(QTreeWidgetItem* item);

    const QTreeWidget* tree;
    const QRegularExpression& expression; // lives longer than this object
    QHash<QTreeWidgetItem*, SearchHit> hits;
};
