// What a search works on: the rows below the root in one list, each text matched once however deep it stands.
#pragma once

#include <vector>

class QLabel;
class QRegularExpression;
class QTreeWidget;
class QTreeWidgetItem;

struct SearchRow {
    bool matches() const { return labelHit || descriptionHit || wordHit; }
    bool isKept() const { return matches() || hitBelow; }

    QTreeWidgetItem* item;
    QLabel* label; // null without a row widget or a label
    int parent;    // index of the parent's row, -1 directly below the root
    bool labelHit = false;
    bool descriptionHit = false;
    bool wordHit = false;  // in the search words
    bool hitBelow = false; // some item below matches
};

// Every item below `root`, a parent before its children, in index order.
std::vector<SearchRow> rowsBelow(const QTreeWidget* tree, QTreeWidgetItem* root);

void matchRows(std::vector<SearchRow>& rows, const QRegularExpression& expression);
