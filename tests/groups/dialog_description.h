// A dialog written down as text: the properties of its controls, and what lies where in its layout.
#pragma once

#include <QDialog>
#include <QString>
#include <ostream>

struct DialogProperty {
    const char*
        control; // its object name; empty for the dialog, "table.horizontal" for the header of a table
    const char* property; // of Qt
    const char* value;    // enumerations by their names, a size as "380x420", a policy as "Expanding,Fixed"
};

// "no control" or "no property" where there is none.
QString valueOf(const QDialog& dialog, const DialogProperty& wanted);

// "V(a, H(~, b, ~), box 'Title' grid(c@0,1+2))": boxes of widgets by their direction, '~' for a stretch,
// cells of a grid by row and column with the number of columns where it is more than one. Controls without a
// name show their text.
QString layoutText(const QDialog& dialog);
