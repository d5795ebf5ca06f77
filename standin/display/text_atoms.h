// The parts of a text that lines are made of, and the breaking of lines.
#pragma once

#include "sdk/db/mtext_codes.h"
#include "standin/display/text_layout.h"

#include <vector>

namespace standin {

// A word or a part of one, blanks, a stack, or a tab.
struct TextAtom {
    enum Kind { Word, Blank, Stack, Tab };
    Kind kind = Word;
    QString text;  // the upper part of a stack
    QString lower; // of a stack
    wchar_t bar = 0;
    double width = 0;
    OdDbTextFormat format{};
};

struct TextLine {
    std::vector<TextAtom> atoms;
    OdDbTextFormat format{};      // at its end
    double indent = 0, width = 0; // where it may begin, and how long it may be: 0 without a limit
    bool endsParagraph = false, endsColumn = false;
};

// How large the letters of a stack are, of those around it.
constexpr double kStackPart = 0.7;
// And how far each part of it is from the bar between, of the height of the letters around.
constexpr double kStackGap = 0.15;
// Of a stack above the base line, or the other way round below it, by where it stands.
double stackBottom(const TextAtom& stack);
double stackHeight(const TextAtom& stack);

double widthOf(const QString& text, const OdDbTextFormat& format);
double naturalWidth(const TextLine& line); // without blanks at its end; tabs reach to their places
double tallestLetter(const TextLine& line);
// How far stacks reach out above that.
double stacksAbove(const TextLine& line);
// Where a tab at `x` leads to, with what follows it being so wide.
double tabPlace(double x, double following, const OdDbParagraphFormat& paragraph, double letterHeight);

std::vector<TextLine> brokenLines(const std::vector<OdDbTextPiece>& pieces, const TextRoom& room);

} // namespace standin
