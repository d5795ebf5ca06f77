// The shapes of everything in the model space of a drawing, kept up with its changes.
#pragma once

#include "sdk/db/database.h"
#include "sdk/db/reactor.h"
#include "standin/display/item_builder.h"
#include "standin/display/spatial_index.h"

#include <cstdint>
#include <functional>
#include <unordered_map>
#include <unordered_set>

namespace standin {

class DisplayList : public OdDbDatabaseReactor {
public:
    explicit DisplayList(OdDbDatabasePtr database);
    ~DisplayList() override;
    DisplayList(const DisplayList&) = delete;
    DisplayList& operator=(const DisplayList&) = delete;

    // Brings the list up to date.
    void refresh();
    // Another number after each refresh that changed something, so that a picture knows that it is old.
    std::uint64_t revision() const { return changes; }
    // The changes of references that are read or unloaded come with no notice of the drawing.
    void forgetAll() { everything = true; }
    const Item* find(const OdDbObjectId& id) const; // null when it isn't shown
    // The items that touch `box`, in the order of the drawing.
    std::vector<const Item*> within(const Box& box) const;
    Box extents() const;
    const std::unordered_set<OdDbObjectId>& highlighted() const { return marked; }
    OdDbDatabase& database() const { return *drawing; }

    std::function<void()> changed; // something in the drawing is different; may come often

    void objectAppended(OdDbObjectId id) override { note(id); }
    void objectErased(OdDbObjectId id) override { note(id); }
    void objectModified(OdDbObjectId id) override { note(id); }
    void highlightChanged(OdDbObjectId id) override;

private:
    void note(const OdDbObjectId& id);
    void rebuild();
    void update(ItemBuilder& builder, const OdDbObjectId& id);
    void put(Item item);
    bool touchesMoreThanItself(const OdDbObjectId& id) const;

    OdDbDatabasePtr drawing;
    std::vector<Item> items; // those taken out are empty
    std::unordered_map<OdDbObjectId, int> places;
    SpatialIndex index;
    std::unordered_set<OdDbObjectId> stale, marked;
    DrawingVariables variables;
    std::uint64_t changes = 0;
    bool everything = true;
};

} // namespace standin
