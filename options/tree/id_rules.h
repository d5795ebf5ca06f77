// What the `ID` of a node asks for beside its row: a page that fills the item, or a place in the index.
#pragma once

class OptionDialog;
class TreeItem;

void runIdRule(OptionDialog& options, int id, TreeItem* item); // an `ID` without a rule is passed over
