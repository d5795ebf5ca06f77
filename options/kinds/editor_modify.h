// The Modify operation on the rows that have an editor.
#pragma once

class Preferences;
class TreeItem;

// Opens the row's colour dialog or list, or gives its editor the focus, as its kind asks for. Rows without an
// editor of these kinds are passed over.
void modifyEditorRow(Preferences& preferences, TreeItem* item);
