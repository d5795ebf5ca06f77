// The page of standard directories: one section item for each of the host's lists, one item for each path.
// Edits change the lists that the dialog holds; the host hears of them on Apply.
#pragma once

class OptionDialog;
class QString;
class QTreeWidgetItem;
class TreeItem;

// Builds the sections and paths under `parent`; leaves the page out when the host doesn't offer the lists.
void loadStdDirs(OptionDialog& options, QTreeWidgetItem* parent);
void storeStdDirs(OptionDialog& options);

// The operations on a row. `path` has node type 14; `item` of addPath may be a path or a section (15). A move
// does the whole of it: texts, rows, current item and focus.
void addPath(OptionDialog& options, TreeItem* item);
void modifyPath(OptionDialog& options, TreeItem* path);
void deletePath(OptionDialog& options, TreeItem* path);         // without a question
void movePath(OptionDialog& options, TreeItem* path, int step); // -1 up, 1 down

// Whether the path may be stored in the section; tells the user why not.
bool validatePath(OptionDialog& options, const QString& path, const QString& sectionTitle, int sectionIndex);
