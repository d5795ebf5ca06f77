// The colours of the two themes of the house.
#pragma once

#include <QPalette>

namespace standin {

QPalette darkPalette();
QPalette lightPalette();

// Red that can be read on the background of these.
QColor errorColour(const QPalette& palette);

// Contrast of two colours as the ratio of their luminances, 1 to 21; 4.5 is needed for reading.
double contrastRatio(const QColor& a, const QColor& b);

} // namespace standin
