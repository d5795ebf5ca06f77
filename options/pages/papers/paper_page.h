// The page of paper formats: a row with a check box for each paper. The dialogs that add or change a paper
// are the host's; the page rebuilds its rows from the store afterwards.
#pragma once

#include <vector>

class IKWUnknown;
class Preferences;
class TreeItem;
struct PaperFormat;

void loadPaperFormats(Preferences& preferences, TreeItem* paperRootItem);
void reloadPaperRows(Preferences& preferences); // in-memory changes not yet in the store are lost
void storePaperFormats(IKWUnknown* app, std::vector<PaperFormat*>& paperFormats); // `app` may be null

// The operations on a paper row (node type 3); add takes `paperRootItem` too.
void addPaperFormat(Preferences& preferences, TreeItem* item);
void modifyPaperFormat(Preferences& preferences, TreeItem* item);
void deletePaperFormat(Preferences& preferences, TreeItem* item); // asks first; the store changes at once

// Moves the record of a row by one place (-1 up, 1 down) in the dialog's array; the row itself is the
// caller's. Past the ends it does nothing.
void movePaperFormat(Preferences& preferences, TreeItem* item, int step);
