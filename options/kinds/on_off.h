// What a row that is on or off does to the rows below it.
#pragma once

class OptionIndex;
class TreeItem;

// A child's own check box isn't asked: checking a row again enables everything below it. That is meant.
void setChildrenDisabled(OptionIndex& options, TreeItem* item, bool disable);
