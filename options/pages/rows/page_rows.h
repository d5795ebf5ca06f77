// What the rows of the tree have in common: their icon, their text, and how a row leaves the tree.
#pragma once

class Preferences;
class QCheckBox;
class QIcon;
class QString;
class QTreeWidgetItem;
class TreeItem;

// The icon of an item, or an empty one when its decoration is something else.
QIcon iconOf(const QTreeWidgetItem* item);
// A row's text as its label shows it, with the marks of a search in it; empty for an item without a row.
QString labelText(const Preferences& preferences, TreeItem* item);
// The same without the marks.
QString plainLabelText(const Preferences& preferences, TreeItem* item);
// Takes the row's widget off and the item out of the dialog's maps; the item is then ready to be deleted.
void takeOffRow(Preferences& preferences, TreeItem* item);
// Gives the item a row with a check box, double click on.
QCheckBox* makeCheckRow(Preferences& preferences, TreeItem* item, bool checked);
