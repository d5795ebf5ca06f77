#include "standin/display/text_painting.h"

#include "standin/display/flat.h"
#include "standin/display/letters.h"

#include <cmath>

namespace standin {

namespace {

const double italicSlant = 15 * M_PI / 180;

Pencil pencilOf(const OdDbTextFormat& format, const Pencil& pencil) {
    if (format.colorSource == OdDbTextFormat::kTrueColor)
        return pencil.inked(format.color | 0xff000000u);
    if (format.colorSource == OdDbTextFormat::kIndex && format.color > 0 && format.color < 256)
        return pencil.inked(inkOfIndex(static_cast<int>(format.color)));
    return pencil;
}

void drawLetters(const QString& text, const QPointF& at, const OdDbTextFormat& format,
                 const OdGeMatrix3d& matrix, const Pencil& pencil) {
    const double slant = std::tan(format.oblique + (format.isItalic ? italicSlant : 0));
    const double high = format.height;
    Shape shape{Shape::Text,
                {},
                {flat(matrix * OdGePoint3d(at.x(), at.y(), 0)),
                 flat(matrix * OdGeVector3d(high * format.widthFactor, 0, 0)),
                 flat(matrix * OdGeVector3d(high * slant, high, 0)),
                 {}},
                text};
    shape.isBold = format.isBold;
    pencil.draw(std::move(shape));
}

// Letters that are moved apart are drawn one by one.
void drawRun(const TextRun& run, const OdGeMatrix3d& matrix, const Pencil& pencil) {
    if (run.format.tracking == 1)
        return drawLetters(run.text, run.at, run.format, matrix, pencil);
    QPointF at = run.at;
    for (int i = 0; i < run.text.size(); ++i) {
        const bool isPair = run.text[i].isHighSurrogate() && i + 1 < run.text.size();
        const QString letter = run.text.mid(i, isPair ? 2 : 1);
        i += isPair;
        if (letter != QLatin1String(" "))
            drawLetters(letter, at, run.format, matrix, pencil);
        at += QPointF(lettersOf(letter, run.format.isBold).width * run.format.height *
                          run.format.widthFactor * run.format.tracking,
                      0);
    }
}

} // namespace

void drawLaidText(const LaidText& text, const OdGeMatrix3d& matrix, const Pencil& pencil) {
    for (const TextRun& run : text.runs)
        drawRun(run, matrix, pencilOf(run.format, pencil));
    for (const TextMark& mark : text.marks)
        pencilOf(mark.format, pencil)
            .plain()
            .path({{mark.from.x(), mark.from.y(), 0}, {mark.to.x(), mark.to.y(), 0}}, matrix);
}

} // namespace standin
