#include "standin/display/text_layout.h"

#include "standin/display/text_atoms.h"

#include <algorithm>
#include <cmath>

namespace standin {

namespace {

const double lineStep = 5.0 / 3.0;                                 // letter heights from one line to the next
const double underlineAt = -0.2, overlineAt = 1.2, strikeAt = 0.4; // letter heights

class LineSetter {
public:
    LineSetter(LaidText& text, const TextRoom& textRoom) : laid(text), room(textRoom) {}

    // `left` and `base` are where the room of the line and its base line begin.
    void set(const TextLine& line, double left, double base, double roomWidth) {
        tallest = tallestLetter(line);
        const double length = naturalWidth(line);
        const double free = (line.width > 0 ? line.width : roomWidth - line.indent) - length;
        x = start = left + line.indent + shiftOf(line, free);
        y = base;
        const bool isJustified = line.format.paragraph.alignment == OdDbParagraphFormat::kJustified &&
                                 !line.endsParagraph && line.width > 0;
        const double stretch = isJustified && free > 0 ? free / std::max(1, gapsIn(line)) : 0;
        for (std::size_t i = 0; i < solidAtoms(line); ++i)
            setAtom(line, i, stretch);
    }

private:
    double shiftOf(const TextLine& line, double free) const {
        switch (line.format.paragraph.alignment) {
        case OdDbParagraphFormat::kUsual:
            return free * room.column / 2;
        case OdDbParagraphFormat::kCenter:
            return free / 2;
        case OdDbParagraphFormat::kRight:
            return free;
        default:
            return 0;
        }
    }
    // Blanks at the end are not set.
    static std::size_t solidAtoms(const TextLine& line) {
        std::size_t solid = line.atoms.size();
        while (solid > 0 && line.atoms[solid - 1].kind == TextAtom::Blank)
            --solid;
        return solid;
    }
    static int gapsIn(const TextLine& line) {
        const auto end = line.atoms.begin() + static_cast<std::ptrdiff_t>(solidAtoms(line));
        return static_cast<int>(std::count_if(
            line.atoms.begin(), end, [](const TextAtom& atom) { return atom.kind == TextAtom::Blank; }));
    }

    void setAtom(const TextLine& line, std::size_t number, double stretch) {
        const TextAtom& atom = line.atoms[number];
        if (atom.kind == TextAtom::Tab) {
            x = start +
                tabPlace(x - start, widthToNextTab(line, number), line.format.paragraph, atom.format.height);
            return;
        }
        if (atom.kind == TextAtom::Stack)
            setStack(atom);
        else
            setRun(atom, stretch);
        x += atom.width + (atom.kind == TextAtom::Blank ? stretch : 0);
    }

    static double widthToNextTab(const TextLine& line, std::size_t tab) {
        double width = 0;
        for (std::size_t i = tab + 1; i < line.atoms.size() && line.atoms[i].kind != TextAtom::Tab; ++i)
            width += line.atoms[i].width;
        return width;
    }

    // Parts that follow each other in one format become one run.
    void setRun(const TextAtom& atom, double stretch) {
        const double up = (tallest - atom.format.height) * atom.format.place / 2;
        const QPointF at(x, y + up);
        setMarks(atom, at, atom.width + (atom.kind == TextAtom::Blank ? stretch : 0));
        if (stretch == 0 && !laid.runs.empty() && continues(laid.runs.back(), atom, at)) {
            laid.runs.back().text += atom.text;
            laid.runs.back().width += atom.width;
        } else if (atom.kind != TextAtom::Blank) {
            laid.runs.push_back({atom.text, at, atom.width, atom.format});
        }
    }

    static bool continues(const TextRun& run, const TextAtom& atom, const QPointF& at) {
        const OdDbTextFormat &a = run.format, &b = atom.format;
        return run.at.y() == at.y() && std::fabs(run.at.x() + run.width - at.x()) < 1e-9 * (1 + run.width) &&
               a.height == b.height && a.widthFactor == b.widthFactor && a.tracking == b.tracking &&
               a.oblique == b.oblique && a.colorSource == b.colorSource && a.color == b.color &&
               a.isBold == b.isBold && a.isItalic == b.isItalic;
    }

    void setMarks(const TextAtom& atom, const QPointF& at, double width) {
        const auto mark = [&](double height) {
            const QPointF up(0, height * atom.format.height);
            laid.marks.push_back({at + up, at + up + QPointF(width, 0), atom.format});
        };
        if (atom.format.isUnderlined)
            mark(underlineAt);
        if (atom.format.isOverlined)
            mark(overlineAt);
        if (atom.format.isStruck)
            mark(strikeAt);
    }

    // One part above the other, beside the base line, the middle or the top of the letters around.
    void setStack(const TextAtom& stack) {
        OdDbTextFormat format = stack.format;
        const double letters = stack.format.height, part = letters * kStackPart;
        format.height = part;
        const double upper = widthOf(stack.text, format), lower = widthOf(stack.lower, format);
        if (stack.bar == L'#') {
            const double rise = letters * (1 - kStackPart);
            laid.runs.push_back({stack.text, {x, y + rise}, upper, format});
            laid.runs.push_back({stack.lower, {x + stack.width - lower, y - rise}, lower, format});
            laid.marks.push_back({{x + upper, y - rise}, {x + stack.width - lower, y + letters}, format});
            return;
        }
        const double gap = letters * kStackGap, low = y + stackBottom(stack);
        laid.runs.push_back(
            {stack.text, {x + (stack.width - upper) / 2, low + part + 2 * gap}, upper, format});
        laid.runs.push_back({stack.lower, {x + (stack.width - lower) / 2, low}, lower, format});
        if (stack.bar == L'^') {
            laid.runs[laid.runs.size() - 2].at.setX(x);
            laid.runs.back().at.setX(x);
        } else if (stack.bar) {
            laid.marks.push_back({{x, low + part + gap}, {x + stack.width, low + part + gap}, format});
        }
    }

    LaidText& laid;
    const TextRoom& room;
    double x = 0, y = 0, start = 0, tallest = 0;
};

struct Column {
    std::vector<const TextLine*> lines;
    std::vector<double> bases; // below the top of the column
    double height = 0;
};

class Columns {
public:
    Columns(const std::vector<TextLine>& lines, const TextRoom& textRoom) : room(textRoom) {
        columns.emplace_back();
        for (const TextLine& line : lines)
            add(line);
    }
    const std::vector<Column>& all() const { return columns; }
    double height() const {
        double tallest = 0;
        for (const Column& column : columns)
            tallest = std::max(tallest, column.height);
        return tallest;
    }

private:
    void add(const TextLine& line) {
        const double above = stacksAbove(line), letters = tallestLetter(line) + above;
        const double step = room.isSpacingExact ? room.letterHeight * lineStep * room.spacing
                                                : tallestLetter(line) * lineStep * room.spacing + above;
        const double base = baseIn(columns.back(), letters, step);
        if (limit() > 0 && base > limit() && !columns.back().lines.empty() && isMore())
            columns.emplace_back();
        Column& column = columns.back();
        column.height = baseIn(column, letters, step);
        column.lines.push_back(&line);
        column.bases.push_back(column.height);
        if (line.endsColumn && isMore())
            columns.emplace_back();
    }
    static double baseIn(const Column& column, double letters, double step) {
        return column.lines.empty() ? letters : column.height + step;
    }
    bool isMore() const { return columns.size() < static_cast<std::size_t>(room.columnCount); }
    double limit() const {
        if (room.columnHeights.empty())
            return 0;
        return room.columnHeights[std::min(columns.size(), room.columnHeights.size()) - 1];
    }

    const TextRoom& room;
    std::vector<Column> columns;
};

double widthOfLines(const std::vector<TextLine>& lines, const TextRoom& room) {
    if (room.width > 0)
        return room.width;
    double widest = 0;
    for (const TextLine& line : lines)
        widest = std::max(widest, line.indent + naturalWidth(line));
    return widest;
}

} // namespace

LaidText layOut(const std::vector<OdDbTextPiece>& pieces, const TextRoom& room) {
    LaidText laid;
    const std::vector<TextLine> lines = brokenLines(pieces, room);
    const Columns columns(lines, room);
    const double width = widthOfLines(lines, room), height = columns.height();
    const double step = width + room.gutter;
    const double whole = width + step * (static_cast<double>(columns.all().size()) - 1);
    const double left = -whole * room.column / 2, top = height * room.row / 2;
    laid.box = {left, top - height, left + whole, top};
    LineSetter setter(laid, room);
    for (std::size_t c = 0; c < columns.all().size(); ++c) {
        const Column& column = columns.all()[c];
        for (std::size_t i = 0; i < column.lines.size(); ++i)
            setter.set(*column.lines[i], left + step * static_cast<double>(c), top - column.bases[i], width);
    }
    return laid;
}

} // namespace standin
