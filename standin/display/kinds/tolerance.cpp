// Tolerances of form and place: rows of boxes, a text or a sign in each.
#include "sdk/db/dimension_values.h"
#include "sdk/db/mtext_codes.h"
#include "standin/display/kinds.h"
#include "standin/display/text_painting.h"

#include <cmath>

namespace standin {

namespace {

constexpr std::string_view kMarker = "AcDbFcf";
constexpr int kTextHeight = 140; // of a dimension style
constexpr int kScale = 40;       // of it, too
constexpr double kUsualHeight = 0.18;

std::vector<std::wstring> split(const std::wstring& text, const std::wstring& by) {
    std::vector<std::wstring> parts;
    std::size_t from = 0;
    for (std::size_t at = text.find(by); at != std::wstring::npos; at = text.find(by, from)) {
        parts.push_back(text.substr(from, at - from));
        from = at + by.size();
    }
    parts.push_back(text.substr(from));
    return parts;
}

std::vector<std::wstring> rowsOf(std::wstring content) {
    const std::wstring feed = L"\n";
    for (const std::wstring& other : {std::wstring(L"\\P"), std::wstring(L"^J")})
        for (std::size_t at = content.find(other); at != std::wstring::npos; at = content.find(other))
            content.replace(at, other.size(), feed);
    return split(content, feed);
}

// Draws boxes from left to right; the base of the letters is a half of their height above that of the box.
class RowPainter {
public:
    RowPainter(double letterHeight, const OdGeMatrix3d& toDrawing, const Pencil& rowPencil)
        : height(letterHeight), matrix(toDrawing), pencil(rowPencil) {}

    void draw(const std::wstring& row, double bottom) {
        double x = 0;
        for (const std::wstring& cell : split(row, L"%%v")) {
            OdDbTextFormat format;
            format.height = height;
            TextRoom room;
            room.letterHeight = height;
            room.row = 2;
            const LaidText text = layOut(odDbTextPieces(cell, format), room);
            if (text.runs.empty())
                continue;
            const double width = text.box.width() + height;
            drawBox(x, bottom, width);
            drawLaidText(text, matrix * OdGeMatrix3d::translation({x + height / 2, bottom + height / 2, 0}),
                         pencil);
            x += width;
        }
    }

private:
    void drawBox(double left, double bottom, double width) const {
        const double right = left + width, top = bottom + 2 * height;
        pencil.path(
            {{left, bottom, 0}, {right, bottom, 0}, {right, top, 0}, {left, top, 0}, {left, bottom, 0}},
            matrix);
    }
    const double height;
    const OdGeMatrix3d matrix;
    const Pencil& pencil;
};

} // namespace

// It hangs at the middle of the left side of its first row.
void draw::tolerance(const OdDbEntity& entity, const Pencil& pencil) {
    const DxfTagList& tags = entity.tags();
    const double scale = odDbDimensionValue(entity, kMarker, kScale, 1);
    const double height =
        odDbDimensionValue(entity, kMarker, kTextHeight, kUsualHeight) * (scale > 0 ? scale : 1);
    const OdGeVector3d along = tags.point(kMarker, 11).asVector();
    const double turn = along.isZeroLength() ? 0 : std::atan2(along.y, along.x);
    if (!(height > 0))
        return;
    RowPainter painter(height,
                       pencil.world() * OdGeMatrix3d::translation(tags.point(kMarker, 10).asVector()) *
                           OdGeMatrix3d::rotation(turn, OdGeVector3d::kZAxis),
                       pencil);
    double bottom = -height;
    for (const std::wstring& row : rowsOf(entity.textValue(kMarker, 1).wide())) {
        painter.draw(row, bottom);
        bottom -= 2 * height;
    }
}

} // namespace standin
