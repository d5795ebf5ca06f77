// What a search works on: the rows below the root in one list, each text matched once however deep it stands.
#pragma once

#include <vector>

class QLabel;
class QRegularExpression;
class QTreeWidget;
class QTreeWidgetItem;

struct SearchRow {
    bool isKept() const { return labelHit || descriptionHit || hitBelow; }

    QTreeWidgetItem* item;
    QLabel* label; // null without a row widget or a label
    int parent;    // index of the parent's row, -1 directly below the root
    bool labelHit = false;
    bool descriptionHit = false;
    bool hitBelow = false; // in the label or the description of some item below
};

// Every item below `root`, a parent before its children, in index order.
std::vector<SearchRow> rowsBelow(const QTreeWidget* tree, QTreeWidgetItem* root);

void matchRows(std::vector<SearchRow>& rows, const QRegularExpression& expression);
