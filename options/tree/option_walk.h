// The walk of the option data, which makes the items of the tree and their rows.
#pragma once

class IParam;
class OptionDialog;
class TreeItem;

// Walks the whole option tree of the host's configuration below `root`.
void walkConfiguration(OptionDialog& options, TreeItem* root);
// One node and all below it. `node` and the name are borrowed; the item keeps a copy of the name.
void buildNode(OptionDialog& options, IParam* node, const char* nodeName, TreeItem* parentItem);
