#include "standin/display/line_text.h"

#include "sdk/db/mtext_codes.h"
#include "sdk/rx/wide_text.h"
#include "standin/display/flat.h"
#include "standin/display/letters.h"

#include <cmath>
#include <cwctype>

namespace standin {

namespace {

const double underlineAt = -0.2, overlineAt = 1.2, strikeAt = 0.4; // letter heights
const double verticalStep = 1.5;                                   // letter heights from letter to letter

struct Part {
    QString text;
    bool isUnderlined = false, isOverlined = false, isStruck = false;
};

// %%u, %%o and %%k switch lines on and off, other codes are signs.
std::vector<Part> partsOf(const std::wstring& content) {
    std::vector<Part> parts{{}};
    for (std::size_t at = 0; at < content.size();) {
        if (const wchar_t sign = odDbPercentSign(content, at)) {
            parts.back().text += odQString({&sign, 1});
            continue;
        }
        const bool isCode = content.compare(at, 2, L"%%") == 0 && at + 2 < content.size();
        const auto code = isCode ? std::towlower(static_cast<std::wint_t>(content[at + 2])) : 0;
        Part next = parts.back();
        next.text.clear();
        bool* line = code == L'u'   ? &next.isUnderlined
                     : code == L'o' ? &next.isOverlined
                     : code == L'k' ? &next.isStruck
                                    : nullptr;
        if (line) {
            *line = !*line;
            parts.push_back(next);
            at += 3;
        } else {
            parts.back().text += odQString({&content[at++], 1});
        }
    }
    return parts;
}

double widthOf(const std::vector<Part>& parts) {
    double width = 0;
    for (const Part& part : parts)
        width += lettersOf(part.text).width;
    return width;
}

// The text in letter heights along and up from where it hangs.
class LinePainter {
public:
    LinePainter(const LineText& text, const OdGeMatrix3d& plane, const Pencil& textPencil)
        : pencil(textPencil) {
        const OdGeMatrix3d matrix = plane * OdGeMatrix3d::translation(text.place.asVector()) *
                                    OdGeMatrix3d::rotation(text.rotation, OdGeVector3d::kZAxis);
        const double right = text.isBackwards ? -1 : 1, top = text.isUpsideDown ? -1 : 1;
        const double slant = std::tan(text.oblique);
        origin = flat(matrix * OdGePoint3d());
        along = flat(matrix * OdGeVector3d(right * text.height * text.widthFactor, 0, 0));
        up = flat(matrix * OdGeVector3d(right * text.height * slant, top * text.height, 0));
    }
    // `before` as of a shape.
    void drawLetters(const QString& text, const QPointF& at, const QPointF& before) const {
        if (!text.trimmed().isEmpty())
            pencil.draw({Shape::Text, {}, {pointAt(at), along, up, before}, text});
    }
    void drawLine(const QPointF& from, double width) const {
        pencil.plain().draw({Shape::Path, {}, {pointAt(from), pointAt(from + QPointF(width, 0))}, {}});
    }

private:
    QPointF pointAt(const QPointF& at) const { return origin + along * at.x() + up * at.y(); }
    const Pencil& pencil;
    QPointF origin, along, up;
};

void drawHorizontal(const std::vector<Part>& parts, const LineText& text, const LinePainter& painter) {
    if (parts.size() == 1)
        return painter.drawLetters(parts[0].text, {}, text.before);
    QPointF at(-text.before.x() * widthOf(parts), -text.before.y());
    for (const Part& part : parts) {
        const double width = lettersOf(part.text).width;
        painter.drawLetters(part.text, at, {});
        for (const auto& [isOn, height] : {std::pair(part.isUnderlined, underlineAt),
                                           {part.isOverlined, overlineAt},
                                           {part.isStruck, strikeAt}})
            if (isOn && width > 0)
                painter.drawLine(at + QPointF(0, height), width);
        at += QPointF(width, 0);
    }
}

// One letter below the other, each about the line that they hang on.
void drawVertical(const std::vector<Part>& parts, const LinePainter& painter) {
    QPointF at(0, -1);
    for (const Part& part : parts)
        for (int i = 0; i < part.text.size(); ++i) {
            const bool isPair = part.text[i].isHighSurrogate() && i + 1 < part.text.size();
            painter.drawLetters(part.text.mid(i, isPair ? 2 : 1), at, {0.5, 0});
            i += isPair;
            at -= QPointF(0, verticalStep);
        }
}

} // namespace

void LineText::fitBetween(const OdGePoint3d& from, const OdGePoint3d& to, bool keepsShape) {
    const OdGeVector3d way = to - from;
    const double natural = widthOf(partsOf(content.substr(0, kMostLetters))) * widthFactor * height;
    place = from + way * 0.5;
    before.setX(0.5);
    rotation = std::atan2(way.y, way.x);
    if (!(natural > 0))
        return;
    (keepsShape ? height : widthFactor) *= way.length() / natural;
}

void drawLineText(const LineText& text, const OdGeMatrix3d& plane, const Pencil& pencil) {
    const std::vector<Part> parts = partsOf(pencil.shortened(text.content, kMostLetters));
    const LinePainter painter(text, plane, pencil);
    if (text.isVertical)
        drawVertical(parts, painter);
    else
        drawHorizontal(parts, text, painter);
}

} // namespace standin
