// Block references: the contents of their block, once or in rows and columns, and their attributes.
#include "sdk/db/block_reference.h"

#include "sdk/db/text.h"
#include "standin/display/kinds.h"

namespace standin {

namespace {

void drawAttributes(const OdDbBlockReference& reference, const Pencil& pencil) {
    if (!reference.database())
        return;
    for (const OdDbObjectId& id : reference.attributes()) {
        const auto attribute = odrxQuery<OdDbAttribute>(id.openObject().get());
        if (!attribute.isNull() && !attribute->isInvisible())
            pencil.part(*attribute);
    }
}

} // namespace

void draw::reference(const OdDbEntity& entity, const Pencil& pencil) {
    const auto* reference = dynamic_cast<const OdDbBlockReference*>(&entity);
    if (!reference)
        return;
    const OdDbObjectId block = reference->blockTableRecord();
    bool shown = false;
    for (int row = 0; row < reference->rowCount() && !pencil.isFull(); ++row)
        for (int column = 0; column < reference->columnCount() && !pencil.isFull(); ++column)
            shown |= pencil.block(block, pencil.world() * reference->blockTransform(row, column));
    if (!shown && !pencil.isLayerOff() && !pencil.isFull())
        pencil.missing(pencil.world() * reference->position(), reference->blockName());
    drawAttributes(*reference, pencil);
}

} // namespace standin
