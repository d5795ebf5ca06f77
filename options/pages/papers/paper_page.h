// The page of paper formats: a row with a check box for each paper. The dialogs that add or change a paper
// are the host's; the page rebuilds its rows from the store afterwards.
#pragma once

#include <vector>

class IKWUnknown;
class OptionDialog;
class TreeItem;
struct PaperFormat;

void loadPaperFormats(OptionDialog& options, TreeItem* paperRootItem);
void reloadPaperRows(OptionDialog& options); // in-memory changes not yet in the store are lost
void storePaperFormats(IKWUnknown* app, std::vector<PaperFormat*>& paperFormats); // `app` may be null

// The operations on a paper row (node type 3); add takes `paperRootItem` too.
void addPaperFormat(OptionDialog& options, TreeItem* item);
void modifyPaperFormat(OptionDialog& options, TreeItem* item);
void deletePaperFormat(OptionDialog& options, TreeItem* item); // asks first; the store changes at once

// Moves the record of a row by one place (-1 up, 1 down) in the dialog's array; the row itself is the
// caller's. Past the ends it does nothing.
void movePaperFormat(OptionDialog& options, TreeItem* item, int step);
