// What the two kinds with a radio button share: their row, and the choice among the rows below one parent.
#pragma once

class IParam;
class OptionDialog;
class TreeItem;

void buildRadioButton(OptionDialog& options, TreeItem* item, IParam* node);
// The group shows the selected choice behind its own name. Brackets of the name itself are cut too: meant.
void updateGroupLabel(OptionDialog& options, TreeItem* item, TreeItem* parentItem);
// Makes one exclusive choice of the radio rows below each parent, once all rows stand.
void groupRadioButtons(OptionDialog& options);
