#include "standin/display/display_list.h"

#include "sdk/db/block_table.h"
#include "sdk/db/layer_table.h"
#include "sdk/rx/od_error.h"

#include <QElapsedTimer>
#include <QScopedValueRollback>

#include <algorithm>

namespace standin {

namespace {

const qint64 longBuilding = 300; // milliseconds

Box indexedBox(const Item& item) { return item.box.grown(item.reach.units); }

} // namespace

DisplayList::DisplayList(OdDbDatabasePtr database) : drawing(std::move(database)) {
    drawing->addReactor(this);
}

DisplayList::~DisplayList() {
    sendReadersAway();
    drawing->removeReactor(this);
}

// A reader that leaves takes itself out.
void DisplayList::sendReadersAway() {
    for (ListReader* reader : std::vector<ListReader*>(readers))
        reader->leave();
}

void DisplayList::removeReader(ListReader* reader) const {
    readers.erase(std::remove(readers.begin(), readers.end(), reader), readers.end());
}

void DisplayList::note(const OdDbObjectId& id) {
    stale.insert(id);
    if (changed)
        changed();
}

void DisplayList::highlightChanged(OdDbObjectId id) {
    const auto entity = odrxQuery<OdDbEntity>(id.openObject(OdDb::kForRead, true).get());
    if (!entity.isNull() && entity->isHighlighted())
        marked.insert(id);
    else
        marked.erase(id);
    if (changed)
        changed();
}

// Layers, blocks and what is in them are part of many items. Groups and the like are part of none.
bool DisplayList::touchesMoreThanItself(const OdDbObjectId& id) const {
    const OdDbObjectPtr object = id.openObject(OdDb::kForRead, true);
    if (object.isNull())
        return true;
    if (!object->isKindOf(OdDbEntity::desc()))
        return object->isKindOf(OdDbSymbolTableRecord::desc());
    return object->ownerId() != drawing->getModelSpaceId() && object->ownerId() != drawing->getPaperSpaceId();
}

bool DisplayList::isBehind() const {
    return everything || !stale.empty() || !(DrawingVariables::of(*drawing) == variables);
}

void DisplayList::refresh() {
    const DrawingVariables now = DrawingVariables::of(*drawing);
    everything |= !(now == variables);
    variables = now;
    if (isBuilding || (stale.empty() && !everything))
        return;
    const std::unordered_set<OdDbObjectId> ids = std::move(stale);
    stale.clear();
    for (auto it = ids.begin(); it != ids.end() && !everything; ++it)
        everything = touchesMoreThanItself(*it);
    if (everything)
        return rebuild();
    update({ids.begin(), ids.end()});
}

void DisplayList::rebuild() {
    QElapsedTimer timer;
    timer.start();
    everything = wasCancelled = false;
    const auto space = odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject());
    ItemBuilder builder;
    std::vector<Item> built = builtItems(builder, space->entityIds());
    wasLong = timer.elapsed() > longBuilding;
    left = builder.unshown();
    sendReadersAway();
    ++changes;
    items = std::move(built);
    places.clear();
    index = SpatialIndex(extents());
    for (std::size_t i = 0; i < items.size(); ++i) {
        places[items[i].id] = static_cast<int>(i);
        note(items[i].reach);
        index.insert(static_cast<int>(i), indexedBox(items[i]));
    }
}

// Those that have shapes, up to where the progress meter cancels.
std::vector<Item> DisplayList::builtItems(ItemBuilder& builder, const OdDbObjectIdArray& ids) {
    const QScopedValueRollback<bool> building(isBuilding, true);
    std::vector<Item> built;
    try {
        for (std::size_t i = 0; i < ids.size(); ++i) {
            builder.report(static_cast<double>(i) / static_cast<double>(ids.size()));
            if (Item item = builder.build(ids[i]); !item.shapes.empty())
                built.push_back(std::move(item));
        }
        builder.report(1);
    } catch (const OdError& error) {
        if (error.code() != eUserBreak)
            throw;
        wasCancelled = true;
    }
    return built;
}

void DisplayList::update(const OdDbObjectIdArray& ids) {
    OdDbObjectIdArray present;
    for (const OdDbObjectId& id : ids)
        if (const OdDbObjectPtr object = id.openObject();
            !object.isNull() && object->ownerId() == drawing->getModelSpaceId())
            present.push_back(id);
    ItemBuilder builder;
    std::vector<Item> built = builtItems(builder, present);
    sendReadersAway();
    ++changes;
    for (const OdDbObjectId& id : ids)
        takeOut(id);
    for (Item& item : built)
        put(std::move(item));
}

// An object keeps its place, so that it stays above and below the same others.
void DisplayList::takeOut(const OdDbObjectId& id) {
    const auto found = places.find(id);
    if (found == places.end())
        return;
    Item& item = items[static_cast<std::size_t>(found->second)];
    if (!item.shapes.empty())
        index.remove(found->second, indexedBox(item));
    item = {};
}

void DisplayList::put(Item item) {
    const auto place = places.try_emplace(item.id, static_cast<int>(items.size())).first->second;
    if (static_cast<std::size_t>(place) == items.size())
        items.emplace_back();
    index.insert(place, indexedBox(item));
    note(item.reach);
    items[static_cast<std::size_t>(place)] = std::move(item);
}

const Item* DisplayList::find(const OdDbObjectId& id) const {
    const auto found = places.find(id);
    if (found == places.end())
        return nullptr;
    const Item& item = items[static_cast<std::size_t>(found->second)];
    return item.shapes.empty() ? nullptr : &item;
}

void DisplayList::visit(const Box& box, const std::function<bool(const Item&)>& visitor) const {
    index.visitWhile(box, [&](int place) {
        const Item& item = items[static_cast<std::size_t>(place)];
        return !item.box.intersects(box) || visitor(item);
    });
}

// The items lie one behind the other in the order of the drawing.
std::vector<const Item*> DisplayList::within(const Box& box) const {
    std::vector<const Item*> found;
    visit(box, [&](const Item& item) {
        found.push_back(&item);
        return true;
    });
    std::sort(found.begin(), found.end());
    return found;
}

void DisplayList::visitPainted(const Box& box, const std::function<bool(const Item&)>& visitor) const {
    index.visitWhile(box, [&](int place) { return visitor(items[static_cast<std::size_t>(place)]); });
}

void DisplayList::note(const Reach& reach) {
    farthest.add(reach);
    farthest.units = 0; // the index knows
}

Box DisplayList::extents() const {
    Box box;
    for (const Item& item : items)
        box.add(extentsOf(item));
    return box;
}

} // namespace standin
