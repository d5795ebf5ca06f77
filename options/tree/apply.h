// Apply: the rows of the tree, the data of the pages and the open branches into their stores.
#pragma once

class OptionDialog;
class QTreeWidget;
class TreeItem;

void applyOptions(
    OptionDialog& options); // everything, a parent before its children, without stopping at a failure
void applyItem(OptionDialog& options, TreeItem* item);
void saveExpandedSections(QTreeWidget* tree);
