// Which objects are shown, where, and in what colour.
#include "standin/display/item_builder.h"

#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/text.h"
#include "standin/display/kinds.h"
#include "standin/display/pencil.h"

namespace standin {

namespace {

const int deepestBlock = 64;

// Definitions of attributes are there to be filled in; a constant one is a text of its block.
bool isLeftOut(const OdDbEntity& part) {
    const auto* definition = dynamic_cast<const OdDbAttributeDefinition*>(&part);
    return definition && !definition->isConstant();
}

} // namespace

const LayerLooks& ItemBuilder::looksOf(const OdDbDatabase& drawing) {
    return looks.try_emplace(&drawing, drawing).first->second;
}

Item ItemBuilder::build(OdDbObjectId id) {
    const auto entity = odrxQuery<OdDbEntity>(id.openObject().get());
    if (entity.isNull())
        return {};
    Item built = build(*entity, *id.database());
    built.id = id;
    return built;
}

Item ItemBuilder::build(const OdDbEntity& entity, const OdDbDatabase& drawing) {
    item = {};
    shown = &looksOf(drawing);
    Place place;
    place.layers = shown;
    add(entity, place);
    return std::move(item);
}

void ItemBuilder::add(const OdDbEntity& entity, const Place& place) {
    const Kind* kind = kindOf(entity);
    if (!kind || !kind->draw || !entity.isVisible())
        return;
    const LayerLook layer = layerOf(entity, place);
    const bool isReference = entity.isKindOf(OdDbBlockReference::desc());
    // A layer that is off hides its own objects alone, a frozen one what its references show, too.
    if (layer.frozen || (layer.off && !isReference))
        return;
    kind->draw(entity, Pencil(*this, place, layer, lookOf(entity, layer, place)));
}

// False for a block that is missing, and for a reference that isn't loaded. A loaded one shows the model
// space of its own drawing, in the looks of the layers there.
bool ItemBuilder::addBlock(OdDbObjectId blockId, const Place& place, const OdGeMatrix3d& toWorld,
                           const LayerLook& layer, const Look& look) {
    ++parts;
    const auto block = odrxQuery<OdDbBlockTableRecord>(blockId.openObject().get());
    if (block.isNull())
        return false;
    if (place.isExternal && block->isFromOverlayReference())
        return true; // overlays are shown in the drawing alone that they were attached to
    OdDbObjectId contents = blockId;
    const OdDbDatabasePtr loaded = block->xrefDatabase();
    if (!loaded.isNull())
        contents = loaded->getModelSpaceId();
    else if (block->isFromExternalReference() && block->entityIds().empty())
        return false;
    for (const Place* outer = &place; outer; outer = outer->outer)
        if (outer->block == contents)
            return true; // it contains itself: shown once
    if (place.depth >= deepestBlock)
        return true;
    Place inner{&place, contents, toWorld, place.layers, layer, look, place.depth + 1, place.isExternal};
    if (!loaded.isNull()) {
        inner.layers = &looksOf(*loaded);
        inner.isExternal = true;
    }
    addParts(contents, inner);
    return true;
}

void ItemBuilder::addParts(OdDbObjectId contents, const Place& inner) {
    const auto record = odrxCast<OdDbBlockTableRecord>(contents.safeOpenObject());
    for (auto it = record->newIterator(); !it.done() && !isFull(); it.step()) {
        ++parts;
        const auto part = odrxQuery<OdDbEntity>(it.objectId().openObject().get());
        if (!part.isNull() && !isLeftOut(*part))
            add(*part, inner);
    }
}

// Asked before more is drawn.
bool ItemBuilder::isFull() {
    const bool full = item.shapes.size() >= kMostShapes || parts >= kMostParts;
    item.isCut |= full;
    return full;
}

void ItemBuilder::put(Shape shape) {
    item.box.add(boxOf(shape));
    item.isEndless |= shape.isEndless;
    item.reach.add(reachOf(shape));
    item.shapes.push_back(std::move(shape));
}

} // namespace standin
