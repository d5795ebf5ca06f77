// The option data of a fixture host, and the way back from a node's name to its item.
#pragma once

#include "host/typed_reads.h"
#include "options/window/preferences.h"
#include "tests/options/option_tree_writer.h"
#include "tests/support/fixture_host.h"

#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

inline OptionTreeWriter optionTree(FixtureHost& host) {
    return OptionTreeWriter(openChild(&host.config(), "PrefTree", 1));
}

inline TreeItem* rootItem(const Preferences& preferences) {
    return static_cast<TreeItem*>(preferences.tree->topLevelItem(0));
}

// The item of the first node of that name, or null.
inline TreeItem* itemOf(const Preferences& preferences, const char* nodeName) {
    for (QTreeWidgetItemIterator it(preferences.tree); *it; ++it)
        if (static_cast<TreeItem*>(*it)->nodeName == nodeName)
            return static_cast<TreeItem*>(*it);
    return nullptr;
}

// The text that an item's row shows.
QString shownText(const Preferences& preferences, const char* nodeName);
QString shownText(const Preferences& preferences, TreeItem* item);
// The nodes' names of the items below `item`, in order.
QStringList namesBelow(const TreeItem* item);
