// Makes the shapes of the objects of a drawing, references resolved and layers and colours applied. How each
// kind of object is drawn is told by the table of kinds.
#pragma once

#include "sdk/db/entity.h"
#include "standin/display/block_shapes.h"
#include "standin/display/place.h"
#include "standin/display/unshown.h"

#include <map>
#include <optional>

namespace standin {

class ItemBuilder {
public:
    // Without shapes for an object that isn't shown.
    Item build(OdDbObjectId id);
    // Reports this part of the picture as done to the progress meter, now and again and again while the next
    // objects are built. Throws OdError with eUserBreak when it cancels, as `build` does from then on.
    void report(double part);
    // An object that need not be in a drawing, as trackers show it.
    Item build(const OdDbEntity& entity, const OdDbDatabase& drawing);
    // What was built so far without all that is in it.
    const Unshown& unshown() const { return left; }
    // Blocks that repeat each other grow without bounds: what would be beyond these numbers isn't shown, and
    // the item says so.
    static constexpr std::size_t kMostShapes = 1000000;  // of one object
    static constexpr std::size_t kMostParts = 2000000;   // of blocks, in all
    static constexpr std::size_t kMostPoints = 20000000; // of the shapes in blocks, in all
    // What would take more lines of hatch patterns than these is shown as a shade.
    static constexpr std::size_t kMostLinesOfHatch = 20000;
    static constexpr std::size_t kMostHatchLines = 1000000; // in all

private:
    friend class Pencil;
    void add(const OdDbEntity& entity, const Place& place);
    // A reference, or whatever else is shown by a block.
    struct Holder {
        const Place& place;
        const LayerLook& layer;
        const Look& look;
    };
    bool addBlock(OdDbObjectId blockId, const Holder& holder, const OdGeMatrix3d& toWorld,
                  const Repeats& repeats);
    void addCells(Place& inner, const Repeats& repeats);
    void addParts(const Place& inner);
    void addMoved(const BlockShapes::Made& shapes, const FlatMovement& movement);
    void addMoved(const Shape& shape, const FlatMovement& movement);
    void passOn(const BlockShapes::Made& shapes, const FlatMovement& movement);
    std::shared_ptr<const BlockShapes::Made> made(const Place& inner);
    Shape withinLimits(Shape shape);
    void countPart();
    void put(Shape shape);
    bool isFull();
    const LayerLooks& looksOf(const OdDbDatabase& drawing);

    Item item;
    const LayerLooks* shown = nullptr; // of the drawing, whose variables hold for references, too
    BlockShapes blocks;
    bool isContextual = false; // what was added last would look different elsewhere
    Unshown left;
    std::size_t parts = 0;          // of blocks, so far
    std::size_t points = 0;         // of shapes in blocks, so far
    std::size_t passed = 0;         // shapes that were shown though there was no room, so far
    int blocksInside = 0;           // how deep in blocks we are
    std::size_t hatchingLines = 0;  // so far
    std::optional<double> reported; // nothing while progress is not reported
    std::map<const OdDbDatabase*, LayerLooks> looks;
};

} // namespace standin
