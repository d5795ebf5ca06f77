// Which objects are shown, where, and in what colour.
#include "standin/display/item_builder.h"

#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/polyline.h"
#include "sdk/db/text.h"

#include <cmath>
#include <utility>

namespace standin {

namespace {

const int deepestBlock = 64;
const double farthest = 1e15; // beyond it pixels can't be told apart any more

std::string_view firstValue(const OdDbEntity& entity, int code) {
    const std::size_t place = entity.tags().find(code);
    return place == DxfTagList::npos ? std::string_view() : dxfTrimmed(entity.tags()[place].value());
}

bool isWord(std::string_view text, const char* word) {
    return text.size() == qstrlen(word) && qstrnicmp(text.data(), word, static_cast<uint>(text.size())) == 0;
}

bool isUsable(const QPointF& point) {
    return std::isfinite(point.x()) && std::isfinite(point.y()) && std::fabs(point.x()) < farthest &&
           std::fabs(point.y()) < farthest;
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
    Place place;
    place.layers = &looksOf(drawing);
    add(entity, place);
    return std::move(item);
}

void ItemBuilder::add(const OdDbEntity& entity, const Place& place) {
    if (!entity.isVisible())
        return;
    const LayerLook layer = layerOf(entity, place);
    const bool isReference = entity.isKindOf(OdDbBlockReference::desc());
    // A layer that is off hides its own objects alone, a frozen one what its references show, too.
    if (layer.frozen || (layer.off && !isReference))
        return;
    const Dashes outer = std::exchange(dashes, dashesOf(entity, layer, place));
    addGeometry(entity, place, layer, inkOf(entity, layer, place));
    dashes = outer;
}

Dashes ItemBuilder::dashesOf(const OdDbEntity& entity, const LayerLook& layer, const Place& place) const {
    const std::string_view name = firstValue(entity, 6);
    const bool byLayer = name.empty() || isWord(name, "BYLAYER");
    const Dashes plain = byLayer                   ? layer.dashes
                         : isWord(name, "BYBLOCK") ? dashes
                                                   : place.layers->linetypes().of(entity.linetype());
    const std::string_view scale = plain ? firstValue(entity, 48) : std::string_view();
    return scale.empty() ? plain : Linetypes::scaled(plain, dxfReal(scale));
}

LayerLook ItemBuilder::layerOf(const OdDbEntity& entity, const Place& place) const {
    const OdString name = entity.layer();
    return place.outer && name == OdString(L"0") ? place.layer : place.layers->of(name);
}

Ink ItemBuilder::inkOf(const OdDbEntity& entity, const LayerLook& layer, const Place& place) const {
    if (entity.hasTrueColor())
        return entity.trueColor() | 0xff000000u;
    if (entity.colorIndex() == OdDbEntity::kByLayer)
        return layer.ink;
    return entity.colorIndex() == OdDbEntity::kByBlock ? place.byBlock : inkOfIndex(entity.colorIndex());
}

void ItemBuilder::addReference(const OdDbBlockReference& reference, const Place& place,
                               const LayerLook& layer, Ink ink) {
    const OdDbObjectId block = reference.blockTableRecord();
    bool shown = false;
    for (int row = 0; row < reference.rowCount() && !isFull(); ++row)
        for (int column = 0; column < reference.columnCount() && !isFull(); ++column)
            shown |=
                addBlock(block, place, place.toWorld * reference.blockTransform(row, column), layer, ink);
    if (!shown && !layer.off && !isFull()) {
        const OdGePoint3d at = place.toWorld * reference.position();
        put({Shape::Missing, ink, {{at.x, at.y}}, QString::fromStdWString(reference.blockName().c_str())});
    }
    addAttributes(reference, place);
}

void ItemBuilder::addAttributes(const OdDbBlockReference& reference, const Place& place) {
    if (!reference.database())
        return;
    for (const OdDbObjectId& id : reference.attributes()) {
        const auto attribute = odrxQuery<OdDbAttribute>(id.openObject().get());
        if (!attribute.isNull() && !attribute->isInvisible())
            add(*attribute, place);
    }
}

// False for a block that is missing, and for a reference that isn't loaded. A loaded one shows the model
// space of its own drawing, in the looks of the layers there.
bool ItemBuilder::addBlock(OdDbObjectId blockId, const Place& place, const OdGeMatrix3d& toWorld,
                           const LayerLook& layer, Ink ink) {
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
    Place inner{&place, contents, toWorld, place.layers, layer, ink, place.depth + 1, place.isExternal};
    if (!loaded.isNull()) {
        inner.layers = &looksOf(*loaded);
        inner.isExternal = true;
    }
    const auto record = odrxCast<OdDbBlockTableRecord>(contents.safeOpenObject());
    for (auto it = record->newIterator(); !it.done() && !isFull(); it.step()) {
        ++parts;
        const auto part = odrxQuery<OdDbEntity>(it.objectId().openObject().get());
        if (!part.isNull() && !part->isKindOf(OdDbAttributeDefinition::desc()))
            add(*part, inner);
    }
    return true;
}

// A dimension is shown by a block of its own.
void ItemBuilder::addDimension(const OdDbEntity& dimension, const Place& place, const LayerLook& layer,
                               Ink ink) {
    const auto blocks = odrxQuery<OdDbBlockTable>(
        dimension.database() ? dimension.database()->getBlockTableId().openObject().get() : nullptr);
    if (!blocks.isNull())
        addBlock(static_cast<const OdDbSymbolTable&>(*blocks).getAt(dimension.textValue("AcDbDimension", 2)),
                 place, place.toWorld, layer, ink);
}

void ItemBuilder::put(Shape shape) {
    for (const QPointF& point : shape.points)
        if (!isUsable(point))
            return;
    if (shape.points.empty())
        return;
    item.box.add(boxOf(shape));
    if (shape.kind == Shape::Path || shape.kind == Shape::Arc)
        shape.dashes = dashes;
    item.shapes.push_back(std::move(shape));
}

} // namespace standin
