// Which objects are shown, where, and in what colour.
#include "standin/display/item_builder.h"

#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/progress.h"
#include "sdk/db/text.h"
#include "standin/display/flat.h"
#include "standin/display/kinds.h"
#include "standin/display/pencil.h"

#include <QScopedValueRollback>
#include <utility>

namespace standin {

namespace {

const int deepestBlock = 64;
const std::size_t partsBetweenReports = 100;

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
    const std::size_t partsBefore = parts, pointsBefore = points;
    Item built = build(*entity, *id.database());
    built.id = id;
    // What takes more than a half of what there is for a whole drawing is too large itself.
    const bool tookMost = parts - partsBefore > kMostParts / 2 || points - pointsBefore > kMostPoints / 2;
    if (built.isCut)
        left.addCut(id, built.isTooLarge || tookMost);
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
    if ((!kind || kind->isMissed) && isMissed(entity))
        left.addMissed(entity);
    if (!kind || !kind->draw || !entity.isVisible())
        return;
    const LayerLook layer = layerOf(entity, place);
    const bool isReference = entity.isKindOf(OdDbBlockReference::desc());
    // A layer that is off hides its own objects alone, a frozen one what its references show, too.
    if (layer.frozen || (layer.off && !isReference))
        return;
    kind->draw(entity, Pencil(*this, place, layer, lookOf(entity, layer, place)));
}

void ItemBuilder::report(double part) {
    reported = part;
    odDbReportProgress(OdDbProgressMeter::kShowing, part);
}

void ItemBuilder::countPart() {
    if (++parts % partsBetweenReports == 0 && reported)
        report(*reported);
}

// False for a block that is missing, and for a reference that isn't loaded. A loaded one shows the model
// space of its own drawing, in the looks of the layers there.
bool ItemBuilder::addBlock(OdDbObjectId blockId, const Holder& holder, const OdGeMatrix3d& toWorld,
                           const Repeats& repeats) {
    const Place& place = holder.place;
    countPart();
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
    bool isInItself = false;
    for (const Place* outer = &place; outer; outer = outer->outer)
        isInItself |= outer->block == contents;
    if (isInItself || place.depth >= deepestBlock) {
        isContextual = true;
        return true; // it is shown once
    }
    Place inner{&place,       contents,    toWorld,         place.layers,
                holder.layer, holder.look, place.depth + 1, place.isExternal};
    if (!loaded.isNull()) {
        inner.layers = &looksOf(*loaded);
        inner.isExternal = true;
    }
    addCells(inner, repeats);
    return true;
}

// The shapes of a block are made once, in its own coordinates, unless heights of them would be seen.
void ItemBuilder::addCells(Place& inner, const Repeats& repeats) {
    const QScopedValueRollback<int> inside(blocksInside, blocksInside + 1);
    const OdGeMatrix3d first = inner.toWorld;
    const auto movement = FlatMovement::of(first);
    const auto shapes = movement ? made(inner) : nullptr;
    if (shapes)
        item.isTooLarge |= shapes->isTooLarge;
    if (shapes && shapes->isCut && isFull())
        return passOn(*shapes, *movement);
    for (int row = 0; row < repeats.rows; ++row)
        for (int column = 0; column < repeats.columns && !isFull(); ++column) {
            const OdGeVector3d step = repeats.rowStep * row + repeats.columnStep * column;
            countPart();
            if (shapes) {
                addMoved(*shapes, {movement->origin + flat(step), movement->x, movement->y});
            } else {
                inner.toWorld = OdGeMatrix3d::translation(step) * first;
                addParts(inner);
            }
        }
}

void ItemBuilder::addMoved(const BlockShapes::Made& shapes, const FlatMovement& movement) {
    for (auto shape = shapes.shapes.begin(); shape != shapes.shapes.end() && !isFull(); ++shape) {
        countPart();
        addMoved(*shape, movement);
    }
    item.isCut |= shapes.isCut;
}

void ItemBuilder::addMoved(const Shape& shape, const FlatMovement& movement) {
    Shape moved = movedShape(shape, movement);
    if (isDrawable(moved))
        put(withinLimits(std::move(moved)));
}

// When there is no room for more, one copy of what was made of a block is shown nevertheless: half of it, so
// that the levels of blocks within blocks add up to no more than twice as much.
void ItemBuilder::passOn(const BlockShapes::Made& shapes, const FlatMovement& movement) {
    const std::size_t count = (shapes.shapes.size() + 1) / 2;
    for (std::size_t i = 0; i < count && passed < kMostShapes && points < 2 * kMostPoints; ++i, ++passed)
        addMoved(shapes.shapes[i], movement);
}

std::shared_ptr<const BlockShapes::Made> ItemBuilder::made(const Place& inner) {
    if (auto found = blocks.find(inner))
        return found;
    Item outer = std::exchange(item, {});
    const bool wasContextual = std::exchange(isContextual, false);
    Place own = inner;
    own.toWorld = OdGeMatrix3d::kIdentity;
    addParts(own);
    auto result = std::make_shared<const BlockShapes::Made>(
        BlockShapes::Made{std::move(item.shapes), item.isCut, item.isTooLarge});
    item = std::move(outer);
    if (!isContextual)
        blocks.add(inner, result);
    isContextual |= wasContextual;
    return result;
}

// Copies of hatches take their lines from the same store as others.
Shape ItemBuilder::withinLimits(Shape shape) {
    if (!shape.area || shape.area->hatching.empty())
        return shape;
    hatchingLines += shape.area->hatching.size();
    if (hatchingLines <= kMostHatchLines)
        return shape;
    hatchingLines -= shape.area->hatching.size();
    auto shade = std::make_shared<Area>(*shape.area);
    shade->hatching.clear();
    shape.area = std::move(shade);
    return shape;
}

void ItemBuilder::addParts(const Place& inner) {
    const auto record = odrxCast<OdDbBlockTableRecord>(inner.block.safeOpenObject());
    for (auto it = record->newIterator(); !it.done() && !isFull(); it.step()) {
        countPart();
        const auto part = odrxQuery<OdDbEntity>(it.objectId().openObject().get());
        if (!part.isNull() && !isLeftOut(*part))
            add(*part, inner);
    }
}

// Asked before more is drawn.
bool ItemBuilder::isFull() {
    const bool isTooLarge = item.shapes.size() >= kMostShapes;
    const bool full = isTooLarge || parts >= kMostParts || points >= kMostPoints;
    item.isTooLarge |= isTooLarge;
    item.isCut |= full;
    return full;
}

void ItemBuilder::put(Shape shape) {
    shape.box = boxOf(shape);
    item.box.add(shape.box);
    item.weight.add(weightOf(shape));
    if (blocksInside > 0)
        points += shape.points.size() + (shape.area ? 2 * shape.area->hatching.size() : 0);
    item.isEndless |= shape.isEndless;
    item.reach.add(reachOf(shape));
    item.shapes.push_back(std::move(shape));
}

} // namespace standin
