// Paragraphs of text.
#include "host/text.h"
#include "sdk/db/text.h"
#include "standin/display/flat.h"
#include "standin/display/kinds.h"
#include "standin/display/text_lines.h"

void standin::draw::mtext(const OdDbEntity& entity, const Pencil& pencil) {
    const auto* text = dynamic_cast<const OdDbMText*>(&entity);
    if (!text)
        return;
    const double height = text->textHeight();
    const QStringList lines =
        wrappedLines(hostqt::qString(text->plainText()), height > 0 ? text->width() / height : 0);
    const OdGeMatrix3d matrix = pencil.world() * OdGeMatrix3d::translation(text->location().asVector()) *
                                OdGeMatrix3d::rotation(text->rotation(), OdGeVector3d::kZAxis);
    const int column = (text->attachment() - 1) % 3, row = (text->attachment() - 1) / 3;
    const double step = height * 5 / 3;
    const double total = height + step * (lines.size() - 1);
    double base = -height + total * row / 2; // of the first line
    for (const QString& line : lines) {
        pencil.draw({Shape::Text,
                     {},
                     {flat(matrix * OdGePoint3d(0, base, 0)),
                      flat(matrix * OdGeVector3d(height, 0, 0)),
                      flat(matrix * OdGeVector3d(0, height, 0)),
                      {column / 2.0, 0}},
                     line});
        base -= step;
    }
}
