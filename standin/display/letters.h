// The outlines of texts, made once for each text by each thread that paints.
#pragma once

#include <QPainterPath>
#include <QString>

namespace standin {

// At a letter height of 1, from the origin to the right, y upwards.
struct Letters {
    QPainterPath outline;
    double width = 0;
};

// Of a longer text these alone are shown: each one takes time and space.
constexpr int kMostLetters = 5000;

// Good until the next call of the same thread.
const Letters& lettersOf(const QString& text, bool isBold = false);

} // namespace standin
