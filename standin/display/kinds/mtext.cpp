// Paragraphs of text, with all that their codes ask for, and what lies behind and around them.
#include "sdk/db/text.h"

#include "standin/display/kinds.h"
#include "standin/display/text_painting.h"

#include <algorithm>

namespace standin {

namespace {

constexpr std::string_view kMarker = "AcDbMText";
constexpr std::size_t longestContents = 50000; // letters and codes
constexpr int kFilled = 1;                     // in the flags of the background
constexpr int kFramed = 16;                    // in them, too

OdDbTextFormat usualFormat(const OdDbMText& text, const Pencil& pencil) {
    const TextStyle& style = pencil.looks().textStyles().of(text.textValue(kMarker, 7));
    OdDbTextFormat format;
    format.height = text.textHeight();
    format.widthFactor = style.widthFactor;
    format.oblique = style.oblique;
    return format;
}

TextRoom roomOf(const OdDbMText& text) {
    const DxfTagList& tags = text.tags();
    const int attachment = std::clamp(text.attachment(), 1, 9) - 1;
    const double spacing = tags.real(kMarker, 44, 1);
    TextRoom room;
    room.letterHeight = text.textHeight();
    room.width = std::max(0.0, text.width());
    room.spacing = std::clamp(spacing > 0 ? spacing : 1, 0.25, 4.0);
    room.isSpacingExact = tags.integer(kMarker, 73) == 2;
    room.column = attachment % 3;
    room.row = attachment / 3;
    if (const OdDbMText::Columns columns = text.columns(); columns.count > 1 && columns.width > 0) {
        room.width = columns.width;
        room.gutter = columns.gutter;
        room.columnCount = columns.count;
        room.columnHeights = columns.heights;
        if (room.columnHeights.empty() && columns.height > 0)
            room.columnHeights = {columns.height};
    }
    return room;
}

// The background reaches out of the text by a part of the letters' height.
void drawBackground(const OdDbMText& text, const Box& box, const OdGeMatrix3d& matrix, const Pencil& pencil) {
    const DxfTagList& tags = text.tags();
    const std::int64_t flags = tags.integer(kMarker, 90);
    const Box area = box.grown(std::max(0.0, tags.real(kMarker, 45, 1.5) - 1) * text.textHeight());
    std::vector<OdGePoint3d> corners{{area.left, area.bottom, 0},
                                     {area.right, area.bottom, 0},
                                     {area.right, area.top, 0},
                                     {area.left, area.top, 0}};
    if ((flags & 3) == kFilled) {
        const bool hasColor = tags.find(kMarker, 421) != DxfTagList::npos;
        const Ink ink = hasColor ? static_cast<Ink>(tags.integer(kMarker, 421)) | 0xff000000u
                                 : inkOfIndex(static_cast<int>(tags.integer(kMarker, 63, 7)));
        pencil.inked(ink).fill(corners, matrix);
    }
    if ((flags & kFramed) != 0) {
        corners.push_back(corners.front());
        pencil.plain().path(corners, matrix);
    }
}

} // namespace

void draw::mtext(const OdDbEntity& entity, const Pencil& pencil) {
    const auto* text = dynamic_cast<const OdDbMText*>(&entity);
    if (!text || !(text->textHeight() > 0))
        return;
    const OdGeMatrix3d matrix = pencil.world() * OdGeMatrix3d::translation(text->location().asVector()) *
                                OdGeMatrix3d::rotation(text->rotation(), OdGeVector3d::kZAxis);
    const LaidText laid = layOut(odDbTextPieces(pencil.shortened(text->contents().wide(), longestContents),
                                                usualFormat(*text, pencil)),
                                 roomOf(*text));
    drawBackground(*text, laid.box, matrix, pencil);
    drawLaidText(laid, matrix, pencil);
}

} // namespace standin
