// The Options dialog as its rows, their kinds and its pages see it: the index, and what only the window does.
#pragma once

#include "options/pages/rows/option_index.h"

#include <functional>

class QDialog;
class QObject;
class QWidget;
class SearchingLineEdit;

class OptionDialog : public OptionIndex {
public:
    // Makes the row of an item, in place of one that it has. Takes the editor over, also when it throws.
    virtual QPrefWidget* makeRow(int position, TreeItem* item, QWidget* editor, bool cutAtAngleBracket,
                                 int doubleClickEnabled) = 0;
    virtual void showDescription(TreeItem* item) = 0; // in the pane, with the tool bar and the search marks
    // Runs `act` after each change of theme, as long as `context` lives.
    virtual void atThemeChange(QObject* context, std::function<void()> act) = 0;
    virtual QDialog& asDialog() = 0; // the parent of the dialogs that rows open

    SearchingLineEdit* searchEdit = nullptr; // not there yet while the tree is being built

protected:
    ~OptionDialog() = default;
};
