// Single lines of text, and definitions of attributes, which show their tag where they are not filled in.
#include "sdk/db/text.h"

#include "standin/display/kinds.h"
#include "standin/display/line_text.h"

namespace standin {

namespace {

constexpr std::string_view kMarker = "AcDbText";
constexpr int kBackwards = 2, kUpsideDown = 4; // in the flags of generation
constexpr double kDegree = M_PI / 180;

// Behind the part of the text the code means something else in an attribute.
std::int64_t turnsOf(const OdDbText& text, const TextStyle& style) {
    const DxfTagList& tags = text.tags();
    const std::size_t found = tags.find(kMarker, 71);
    const std::size_t end = kindName(text) == "TEXT" ? DxfTagList::npos : tags.endOf(kMarker);
    if (found < end)
        return dxfInteger(tags[found].value());
    return (style.backwards ? kBackwards : 0) | (style.upsideDown ? kUpsideDown : 0);
}

// What a text says itself comes before what its style says.
LineText lineOf(const OdDbText& text, const OdString& content, const Pencil& pencil) {
    const TextStyle& style = pencil.looks().textStyles().of(text.textStyle());
    const DxfTagList& tags = text.tags();
    const std::int64_t turns = turnsOf(text, style);
    LineText line;
    line.content = content.wide();
    line.height = text.height();
    line.widthFactor = text.widthFactor() > 0 ? text.widthFactor() : 1;
    line.oblique =
        tags.find(kMarker, 51) == DxfTagList::npos ? style.oblique : tags.real(kMarker, 51) * kDegree;
    line.isBackwards = (turns & kBackwards) != 0;
    line.isUpsideDown = (turns & kUpsideDown) != 0;
    line.isVertical = style.vertical;
    return line;
}

void drawText(const OdDbText& text, const OdString& content, const Pencil& pencil) {
    enum { Aligned = 3, Middle = 4, Fit = 5 };
    const int across = text.horizontalMode(), up = text.verticalMode();
    const OdGePoint3d left = text.position(), hung = text.alignmentPoint();
    LineText line = lineOf(text, content, pencil);
    line.before = {across == 1 || across == Middle ? 0.5
                   : across == 2                   ? 1
                                                   : 0,
                   up == 3                       ? 1
                   : up == 2 || across == Middle ? 0.5
                                                 : 0};
    line.rotation = text.rotation();
    line.place = across != 0 || up != 0 ? hung : left;
    if ((across == Aligned || across == Fit) && left != hung)
        line.fitBetween(left, hung, across == Aligned);
    else if (across == Aligned || across == Fit)
        line.place = left;
    drawLineText(line, pencil.plane(text), pencil);
}

} // namespace

// An attribute of several lines shows these, and not what its plain text has of them.
void draw::text(const OdDbEntity& entity, const Pencil& pencil) {
    const auto* attribute = dynamic_cast<const OdDbAttribute*>(&entity);
    if (const OdDbMTextPtr lines = attribute ? attribute->paragraph() : OdDbMTextPtr(); !lines.isNull())
        mtext(*lines, pencil);
    else if (const auto* text = dynamic_cast<const OdDbText*>(&entity))
        drawText(*text, text->textString(), pencil);
}

void draw::attributeDefinition(const OdDbEntity& entity, const Pencil& pencil) {
    const auto* definition = dynamic_cast<const OdDbAttributeDefinition*>(&entity);
    if (!definition)
        return;
    const bool isInBlock = pencil.place().outer;
    if (!isInBlock)
        drawText(*definition, definition->tag(), pencil);
    else if (const OdDbMTextPtr lines = definition->paragraph();
             !definition->isInvisible() && !lines.isNull())
        mtext(*lines, pencil);
    else if (!definition->isInvisible())
        drawText(*definition, definition->textString(), pencil);
}

} // namespace standin
