// Makes the shapes of the objects of a drawing, references resolved and layers and colours applied.
#pragma once

#include "sdk/db/entity.h"
#include "standin/display/layer_looks.h"

#include <map>
#include <memory>

class OdDbArc;
class OdDbBlockReference;
class OdDbBlockTableRecord;
class OdDbCircle;
class OdDbEllipse;
class OdDbHatch;
class OdDbLeader;
class OdDbMText;
class OdDbPolylineBase;
class OdDbText;

namespace standin {

class ItemBuilder {
public:
    // Without shapes for an object that isn't shown.
    Item build(OdDbObjectId id);
    // An object that need not be in a drawing, as trackers show it.
    Item build(const OdDbEntity& entity, const OdDbDatabase& drawing);
    // Blocks that repeat each other grow without bounds: what would be beyond these numbers isn't shown.
    static constexpr std::size_t kMostShapes = 1000000; // of one object
    static constexpr std::size_t kMostParts = 2000000;  // of blocks, in all
    // What would take more lines of hatch patterns than these is shown as a shade.
    static constexpr std::size_t kMostLinesOfHatch = 20000;
    static constexpr std::size_t kMostHatchLines = 1000000; // in all

private:
    // Where and in which looks the parts of a block are shown; the first one is the drawing itself.
    struct Place {
        const Place* outer = nullptr;
        OdDbObjectId block;
        OdGeMatrix3d toWorld;
        const LayerLooks* layers = nullptr;
        LayerLook layer; // of the reference: its parts on layer 0 follow it
        Ink byBlock = kForeground;
        int depth = 0;
        bool isExternal = false; // the parts are those of another drawing
    };

    void add(const OdDbEntity& entity, const Place& place);
    LayerLook layerOf(const OdDbEntity& entity, const Place& place) const;
    Ink inkOf(const OdDbEntity& entity, const LayerLook& layer, const Place& place) const;
    Dashes dashesOf(const OdDbEntity& entity, const LayerLook& layer, const Place& place) const;
    void addGeometry(const OdDbEntity& entity, const Place& place, const LayerLook& layer, Ink ink);
    void addReference(const OdDbBlockReference& reference, const Place& place, const LayerLook& layer,
                      Ink ink);
    void addAttributes(const OdDbBlockReference& reference, const Place& place);
    bool addBlock(OdDbObjectId blockId, const Place& place, const OdGeMatrix3d& toWorld,
                  const LayerLook& layer, Ink ink);
    void addDimension(const OdDbEntity& dimension, const Place& place, const LayerLook& layer, Ink ink);
    void addPolyline(const OdDbPolylineBase& polyline, const OdGeMatrix3d& toWorld, Ink ink);
    void addArc(const OdGePoint3d& center, const OdGeVector3d& zero, const OdGeVector3d& quarter,
                double start, double sweep, const OdGeMatrix3d& matrix, Ink ink);
    bool addWide(const OdDbPolylineBase& polyline, const OdGeMatrix3d& toWorld, Ink ink);
    void addPath(const std::vector<OdGePoint3d>& points, const OdGeMatrix3d& toWorld, Ink ink);
    void addOther(const OdDbEntity& entity, const Place& place, const LayerLook& layer, Ink ink);
    void addHatch(const OdDbHatch& hatch, const OdGeMatrix3d& toWorld, Ink ink);
    void addHatching(Area& area, const OdDbHatch& hatch, const std::vector<std::vector<OdGePoint3d>>& loops,
                     const OdGeMatrix3d& toWorld);
    void addLeader(const OdDbLeader& leader, const OdGeMatrix3d& toWorld, Ink ink);
    void addArea(const OdDbEntity& entity, const OdGeMatrix3d& toWorld, Ink ink);
    void addText(const OdDbText& text, const OdString& content, const OdGeMatrix3d& toWorld, Ink ink);
    void addMText(const OdDbMText& text, const OdGeMatrix3d& toWorld, Ink ink);
    void put(Shape shape);
    bool isFull() const { return item.shapes.size() >= kMostShapes || parts >= kMostParts; }
    const LayerLooks& looksOf(const OdDbDatabase& drawing);

    Item item;
    std::size_t parts = 0;         // of blocks, so far
    std::size_t hatchingLines = 0; // so far
    Dashes dashes;                 // of the object that is being added
    std::map<const OdDbDatabase*, LayerLooks> looks;
};

} // namespace standin
