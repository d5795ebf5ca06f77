// What was expanded and current in a part of the tree, so that a search or "Collapse all" can be undone.
#pragma once

#include <QMap>

class QTreeWidgetItem;

struct TreeExpansionState {
    // Adds the expansion of everything below `item` that is not hidden.
    void save(QTreeWidgetItem* item);
    // Puts back what is recorded below `item`, children first, and of `item` itself. What is not recorded
    // stays.
    void restore(QTreeWidgetItem* item) const;

    QTreeWidgetItem* currentItem = nullptr; // not kept by `save`
    QMap<QTreeWidgetItem*, bool> expanded;
};
