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

Repeats repeatsOf(const OdDbBlockReference& reference, const OdGeMatrix3d& world) {
    const OdGePoint3d origin;
    const OdGePoint3d first = reference.blockTransform() * origin;
    const auto step = [&](int row, int column) {
        return world * (reference.blockTransform(row, column) * origin - first);
    };
    return {reference.rowCount(), reference.columnCount(), step(1, 0), step(0, 1)};
}

} // namespace

void draw::reference(const OdDbEntity& entity, const Pencil& pencil) {
    const auto* reference = dynamic_cast<const OdDbBlockReference*>(&entity);
    if (!reference)
        return;
    const OdGeMatrix3d first = pencil.world() * reference->blockTransform();
    if (!pencil.block(reference->blockTableRecord(), first, repeatsOf(*reference, pencil.world())) &&
        !pencil.isLayerOff())
        pencil.missing(pencil.world() * reference->position(), reference->blockName());
    drawAttributes(*reference, pencil);
}

} // namespace standin
