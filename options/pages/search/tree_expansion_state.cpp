// Saving and restoring the expansion of a part of the tree.
#include "options/pages/search/tree_expansion_state.h"

#include <QTreeWidgetItem>

void TreeExpansionState::save(QTreeWidgetItem* item) {
    for (int i = 0; i < item->childCount(); ++i) {
        QTreeWidgetItem* child = item->child(i);
        if (!child->isHidden())
            expanded.insert(expanded.constEnd(), child, child->isExpanded()); // mostly made in this order
        save(child);                                                          // also below a hidden child
    }
}

void TreeExpansionState::restore(QTreeWidgetItem* item) const {
    for (int i = 0; i < item->childCount(); ++i)
        restore(item->child(i));
    const auto recorded = expanded.constFind(item);
    if (recorded != expanded.constEnd())
        item->setExpanded(recorded.value());
}
