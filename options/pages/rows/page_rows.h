// What the rows of the tree have in common: their icon, their text, and how a row moves in the tree and
// leaves it.
#pragma once

class OptionDialog;
class QCheckBox;
class QIcon;
class QString;
class QTreeWidgetItem;
class QWidget;
class TreeItem;

// The icon of an item, or an empty one when its decoration is something else.
QIcon iconOf(const QTreeWidgetItem* item);
// A row's text as its label shows it, with the marks of a search in it; empty for an item without a row.
QString labelText(const OptionDialog& options, TreeItem* item);
// The same without the marks.
QString plainLabelText(const OptionDialog& options, TreeItem* item);
// Takes the row's widget off and the item out of the dialog's maps; the item is then ready to be deleted.
void takeOffRow(OptionDialog& options, TreeItem* item);
// Gives the item a row with a check box, double click on.
QCheckBox* makeCheckRow(OptionDialog& options, TreeItem* item, bool checked);
// Moves the row one place up (-1) or down (1), where there is one, and makes it current. The row widget goes
// with the item's leaving its place, so it is made anew around `editor`, which may be null and must not be
// its child.
void moveRow(OptionDialog& options, TreeItem* item, int step, QWidget* editor);
