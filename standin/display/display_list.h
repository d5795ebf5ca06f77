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

// Reads a list in a thread of its own.
class ListReader {
public:
    virtual void leave() = 0; // the list is about to change or to end: waits until nobody reads it any more

protected:
    ~ListReader() = default;
};

// Any number of threads may look at a list that isn't changed. It is changed by `refresh` alone, in the
// thread of the drawing, after all readers have left.
class DisplayList : public OdDbDatabaseReactor {
public:
    explicit DisplayList(OdDbDatabasePtr database);
    ~DisplayList() override;
    DisplayList(const DisplayList&) = delete;
    DisplayList& operator=(const DisplayList&) = delete;

    // Brings the list up to date. The progress meter follows that, and what was shown stays until it is done;
    // another call meanwhile does nothing.
    void refresh();
    // The meter cancelled: some objects are not shown until everything is built again.
    bool isCancelled() const { return wasCancelled; }
    bool isBehind() const;                    // there is something to refresh
    bool tookLong() const { return wasLong; } // to build it all
    // Another number after each refresh that changed something, so that a picture knows that it is old.
    std::uint64_t revision() const { return changes; }
    // The changes of references that are read or unloaded come with no notice of the drawing.
    void forgetAll() { everything = true; }
    const Item* find(const OdDbObjectId& id) const; // null when it isn't shown
    // The items that touch `box`, in the order of the drawing.
    std::vector<const Item*> within(const Box& box) const;
    // How far marks are painted beyond their boxes; the part in drawing units is 0.
    const Reach& reachOfMarks() const { return farthest; }
    // In no order, those that are painted in `box` as far as letters go, until the visitor says false.
    void visitPainted(const Box& box, const std::function<bool(const Item&)>& visitor) const;
    // The items that touch `box`, in no order, until the visitor says false.
    void visit(const Box& box, const std::function<bool(const Item&)>& visitor) const;
    Box extents() const;
    std::size_t size() const { return items.size(); } // no fewer than there are items
    // What of the drawing could not be shown when all of it was shown last.
    const Unshown& unshown() const { return left; }
    const std::unordered_set<OdDbObjectId>& highlighted() const { return marked; }
    OdDbDatabase& database() const { return *drawing; }
    // Until it is removed; each reader once.
    void addReader(ListReader* reader) const { readers.push_back(reader); }
    void removeReader(ListReader* reader) const;

    std::function<void()> changed; // something in the drawing is different; may come often

    void objectAppended(OdDbObjectId id) override { note(id); }
    void objectErased(OdDbObjectId id) override { note(id); }
    void objectModified(OdDbObjectId id) override { note(id); }
    void highlightChanged(OdDbObjectId id) override;

private:
    void note(const OdDbObjectId& id);
    void rebuild();
    std::vector<Item> builtItems(ItemBuilder& builder, const OdDbObjectIdArray& ids);
    void update(const OdDbObjectIdArray& ids);
    void takeOut(const OdDbObjectId& id);
    void put(Item item);
    void sendReadersAway();
    void note(const Reach& reach);
    bool touchesMoreThanItself(const OdDbObjectId& id) const;

    OdDbDatabasePtr drawing;
    std::vector<Item> items; // those taken out are empty
    std::unordered_map<OdDbObjectId, int> places;
    SpatialIndex index;
    std::unordered_set<OdDbObjectId> stale, marked;
    DrawingVariables variables;
    mutable std::vector<ListReader*> readers;
    Unshown left;
    std::uint64_t changes = 0;
    bool everything = true;
    bool isBuilding = false, wasCancelled = false, wasLong = false;
    Reach farthest; // of all marks that there are or were
};

} // namespace standin
