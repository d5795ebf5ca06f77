// What the editors of several row kinds share.
#pragma once

#include "options/pages/rows/option_dialog.h"
#include "options/pages/rows/pref_widget.h"

#include <QString>

class LineEdit;
class QAction;

// The nodes of an item and of its parent item; either may be null.
struct RowNodes {
    IParam* node;
    IParam* parent;
};
RowNodes nodesOf(const OptionIndex& options, TreeItem* item);

// An editor is found by the name of its option's node.
void nameEditor(QWidget* editor, const TreeItem* item);
// Adds the folder action at the end of a line edit and keeps its picture in step with the theme.
void addBrowseAction(OptionDialog& options, LineEdit* edit, QAction* action);
// The text with its tool tip, which shows it as it stands.
void showText(LineEdit* edit, const QString& text);
// Gives the field the focus after its action has put a text into it, so that leaving the field, by OK too,
// ends the edit. Its row becomes current first, since a change of row hands the focus to OK.
void focusPicked(LineEdit* edit, TreeItem* item);

// The editor of a row, null when it has none of this class.
template <class Editor> Editor* editorOf(const OptionIndex& options, TreeItem* item) {
    QPrefWidget* const row = options.rowWidgets.value(item);
    return row ? row->findChild<Editor*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}
// What Modify does on the rows whose editor is typed into; null is passed over.
void startEditing(QWidget* editor);
