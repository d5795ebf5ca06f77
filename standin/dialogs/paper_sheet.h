// One standard paper as its dialogs edit it, and how it stands in the store.
#pragma once

#include "host/param.h"

#include <QString>

namespace standin {

// Lengths are in `units`: "mm", "in", or a unit that the program does not know and never converts. The
// margins are those of the upright sheet.
struct PaperSheet {
    QString name;
    QString units = QStringLiteral("mm");
    double width = 210;
    double height = 297;
    double left = 5, right = 5, top = 5, bottom = 5;
    bool used = true;

    bool sameShape(const PaperSheet& other) const;
};

// Missing values and those of a wrong type take their defaults.
PaperSheet readPaper(IParam* section);
// Writes over what is there and leaves all other values. The printable sizes and the origin are only touched
// when the shape differs from what the section holds.
void writePaper(IParam* section, const PaperSheet& sheet);
// The text that the list of papers shows for a section.
QString paperRowText(IParam* section);

// Millimetres in one unit; 0 for an unknown one.
double millimetresIn(const QString& units);

} // namespace standin
