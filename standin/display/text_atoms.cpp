#include "standin/display/text_atoms.h"

#include "sdk/rx/wide_text.h"
#include "standin/display/letters.h"

#include <algorithm>
#include <cmath>

namespace standin {

namespace {

const double usualTabs = 4; // letter heights from one to the next
const double slashWidth = 0.4;

// Where an atom ends that begins at `x`.
double endOf(const TextAtom& atom, double x, const TextLine& line) {
    return atom.kind == TextAtom::Tab ? tabPlace(x, 0, line.format.paragraph, atom.format.height)
                                      : x + atom.width;
}

TextAtom stackOf(const OdDbTextPiece& piece) {
    TextAtom atom{
        TextAtom::Stack, odQString(piece.text).trimmed(), odQString(piece.lower).trimmed(), piece.bar, 0,
        piece.format};
    const double upper = widthOf(atom.text, piece.format) * kStackPart;
    const double lower = widthOf(atom.lower, piece.format) * kStackPart;
    atom.width =
        piece.bar == L'#' ? upper + lower + slashWidth * piece.format.height : std::max(upper, lower);
    return atom;
}

// Breaks lines at blanks; a word that is wider than the line stands alone in one.
class Breaker {
public:
    Breaker(const TextRoom& textRoom) : room(textRoom) {}

    std::vector<TextLine> lines(const std::vector<OdDbTextPiece>& pieces) {
        for (const OdDbTextPiece& piece : pieces)
            add(piece);
        finish(true);
        return std::move(done);
    }

private:
    void add(const OdDbTextPiece& piece) {
        line.format = piece.format;
        switch (piece.kind) {
        case OdDbTextPiece::kText:
            return addWords(piece);
        case OdDbTextPiece::kStack:
            word.push_back(stackOf(piece));
            return;
        case OdDbTextPiece::kTab:
            flushWord();
            append({TextAtom::Tab, {}, {}, 0, 0, piece.format});
            return;
        case OdDbTextPiece::kParagraphEnd:
        case OdDbTextPiece::kColumnEnd:
            finish(true);
            done.back().endsColumn = piece.kind == OdDbTextPiece::kColumnEnd;
        }
    }

    void addWords(const OdDbTextPiece& piece) {
        const QString text = odQString(piece.text);
        for (int at = 0; at < text.size();) {
            const bool isBlank = text[at] == QLatin1Char(' ');
            int end = at;
            while (end < text.size() && (text[end] == QLatin1Char(' ')) == isBlank)
                ++end;
            const QString part = text.mid(at, end - at);
            TextAtom atom{isBlank ? TextAtom::Blank : TextAtom::Word,
                          part,
                          {},
                          0,
                          widthOf(part, piece.format),
                          piece.format};
            if (isBlank) {
                flushWord();
                append(std::move(atom));
            } else {
                word.push_back(std::move(atom));
            }
            at = end;
        }
    }

    void flushWord() {
        double width = 0;
        for (const TextAtom& atom : word)
            width += atom.width;
        const double limit = limitOf(line.format.paragraph);
        if (limit > 0 && !isEmpty && length + width > limit)
            finish(false);
        for (TextAtom& atom : word)
            append(std::move(atom));
        word.clear();
    }

    void append(TextAtom atom) {
        length = endOf(atom, length, line);
        isEmpty &= atom.kind == TextAtom::Blank;
        line.atoms.push_back(std::move(atom));
    }

    double indentOf(const OdDbParagraphFormat& paragraph) const {
        return room.letterHeight * (paragraph.leftIndent + (isFirst ? paragraph.firstIndent : 0));
    }
    double limitOf(const OdDbParagraphFormat& paragraph) const {
        if (!(room.width > 0))
            return 0;
        const double taken = indentOf(paragraph) + room.letterHeight * paragraph.rightIndent;
        return std::max(room.width - taken, room.letterHeight);
    }

    void finish(bool endsParagraph) {
        if (endsParagraph)
            flushWord();
        const OdDbTextFormat format = line.format;
        line.indent = indentOf(format.paragraph);
        line.width = limitOf(format.paragraph);
        line.endsParagraph = endsParagraph;
        done.push_back(std::move(line));
        line = {};
        length = 0;
        isEmpty = true;
        line.format = format;
        isFirst = endsParagraph;
    }

    const TextRoom& room;
    bool isFirst = true; // of its paragraph
    TextLine line;
    double length = 0;          // of the line, blanks included
    bool isEmpty = true;        // the line, but for blanks
    std::vector<TextAtom> word; // parts without a blank between them
    std::vector<TextLine> done;
};

} // namespace

double widthOf(const QString& text, const OdDbTextFormat& format) {
    return lettersOf(text, format.isBold).width * format.height * format.widthFactor * format.tracking;
}

double naturalWidth(const TextLine& line) {
    double x = 0, solid = 0;
    for (std::size_t i = 0; i < line.atoms.size(); ++i) {
        const TextAtom& atom = line.atoms[i];
        x = endOf(atom, x, line);
        if (atom.kind != TextAtom::Blank)
            solid = x;
    }
    return solid;
}

double tallestLetter(const TextLine& line) {
    double tallest = 0;
    for (const TextAtom& atom : line.atoms)
        tallest = std::max(tallest, atom.format.height);
    return tallest > 0 ? tallest : line.format.height;
}

double stackHeight(const TextAtom& stack) { return 2 * stack.format.height * (kStackPart + kStackGap); }

double stackBottom(const TextAtom& stack) {
    return (stack.format.height - stackHeight(stack)) * stack.format.place / 2;
}

double stacksAbove(const TextLine& line) {
    const double letters = tallestLetter(line);
    double above = 0;
    for (const TextAtom& atom : line.atoms)
        if (atom.kind == TextAtom::Stack && atom.bar != L'#')
            above = std::max(above, stackBottom(atom) + stackHeight(atom) - letters);
    return above;
}

double tabPlace(double x, double following, const OdDbParagraphFormat& paragraph, double letterHeight) {
    for (const OdDbParagraphFormat::Tab& tab : paragraph.tabs) {
        const double before = tab.alignment == OdDbParagraphFormat::kCenter  ? following / 2
                              : tab.alignment == OdDbParagraphFormat::kRight ? following
                                                                             : 0;
        if (tab.place * letterHeight - before > x)
            return tab.place * letterHeight - before;
    }
    const double step = usualTabs * letterHeight;
    return step > 0 ? (std::floor(x / step) + 1) * step : x;
}

std::vector<TextLine> brokenLines(const std::vector<OdDbTextPiece>& pieces, const TextRoom& room) {
    return Breaker(room).lines(pieces);
}

} // namespace standin
