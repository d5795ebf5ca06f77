// Texts of a drawing as they are shown.
#pragma once

#include <QStringList>

namespace standin {

// %%d, %%p and %%c as the signs that they stand for; the switches of under- and overlining are left out.
QString shownText(QString text);
// The lines of a paragraph, parted at blanks where they are wider than `width` letter heights; 0 is no limit.
QStringList wrappedLines(const QString& text, double width);

} // namespace standin
