// What the user types into the search box, as an expression.
#pragma once

#include <QRegularExpression>

// Whole words, without regard to case. "?" stands for one character, "*" for a run of letters at the start,
// at the end, or once inside the text; any further "*" is a star. Always valid.
QRegularExpression buildSearchExpression(const QString& text);
