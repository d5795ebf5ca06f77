// Single lines of text, and definitions of attributes, which show their tag where they are not filled in.
#include "sdk/db/text.h"

#include "host/text.h"
#include "standin/display/flat.h"
#include "standin/display/kinds.h"
#include "standin/display/text_lines.h"

namespace standin {

namespace {

void drawText(const OdDbText& text, const OdString& content, const Pencil& pencil) {
    const int across = text.horizontalMode(), up = text.verticalMode();
    const bool isAligned = across != 0 || up != 0;
    const bool betweenPoints = across == 3 || across == 5; // the left end is given as well
    const OdGePoint3d place = isAligned && !betweenPoints ? text.alignmentPoint() : text.position();
    const OdGeMatrix3d matrix = pencil.plane(text) * OdGeMatrix3d::translation(place.asVector()) *
                                OdGeMatrix3d::rotation(text.rotation(), OdGeVector3d::kZAxis);
    const double wide = text.height() * (text.widthFactor() > 0 ? text.widthFactor() : 1);
    const QPointF before(across == 1 || across == 4 ? 0.5
                         : across == 2              ? 1
                                                    : 0,
                         up == 3                  ? 1
                         : up == 2 || across == 4 ? 0.5
                                                  : 0);
    pencil.draw({Shape::Text,
                 {},
                 {flat(matrix * OdGePoint3d()), flat(matrix * OdGeVector3d(wide, 0, 0)),
                  flat(matrix * OdGeVector3d(0, text.height(), 0)), before},
                 shownText(hostqt::qString(content))});
}

} // namespace

void draw::text(const OdDbEntity& entity, const Pencil& pencil) {
    if (const auto* text = dynamic_cast<const OdDbText*>(&entity))
        drawText(*text, text->textString(), pencil);
}

void draw::attributeDefinition(const OdDbEntity& entity, const Pencil& pencil) {
    const auto* definition = dynamic_cast<const OdDbAttributeDefinition*>(&entity);
    if (!definition)
        return;
    const bool isInBlock = pencil.place().outer;
    if (!isInBlock)
        drawText(*definition, definition->tag(), pencil);
    else if (!definition->isInvisible())
        drawText(*definition, definition->textString(), pencil);
}

} // namespace standin
