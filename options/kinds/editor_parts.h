// What the editors of several row kinds share.
#pragma once

#include <QString>

class LineEdit;
class Preferences;
class QAction;
class QWidget;
class TreeItem;

// An editor is found by the name of its option's node.
void nameEditor(QWidget* editor, const TreeItem* item);
// Adds the folder action at the end of a line edit and keeps its picture in step with the theme.
void addBrowseAction(Preferences& preferences, LineEdit* edit, QAction* action);
// The text with its tool tip, which shows it as it stands.
void showText(LineEdit* edit, const QString& text);
// Gives the field the focus after its action has put a text into it, so that leaving the field, by OK too,
// ends the edit. Its row becomes current first, since a change of row hands the focus to OK.
void focusPicked(LineEdit* edit, TreeItem* item);
