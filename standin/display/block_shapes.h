// The shapes of blocks, made once for each look and moved to every place where the block is shown.
#pragma once

#include "sdk/db/object_id.h"
#include "standin/display/place.h"

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace standin {

// A transformation whose result, seen from above, does not depend on heights.
struct FlatMovement {
    QPointF origin, x, y;

    // None for a matrix that tilts the drawing plane.
    static std::optional<FlatMovement> of(const OdGeMatrix3d& matrix);
    QPointF vector(const QPointF& v) const { return x * v.x() + y * v.y(); }
    QPointF point(const QPointF& p) const { return origin + vector(p); }
    double stretch() const; // of lengths, on an average
};

Shape movedShape(const Shape& shape, const FlatMovement& movement);

class BlockShapes {
public:
    struct Made {
        std::vector<Shape> shapes;
        bool isCut = false, isTooLarge = false; // as of items
    };
    // In the coordinates of the contents, as they look within this place; null when they are not made yet.
    std::shared_ptr<const Made> find(const Place& within) const;
    void add(const Place& within, std::shared_ptr<const Made> made);

private:
    struct Entry {
        const LayerLooks* layers;
        LayerLook layer;
        Look look;
        bool isExternal;
        std::shared_ptr<const Made> made;
        bool fits(const Place& within) const;
    };
    std::unordered_map<OdDbObjectId, std::vector<Entry>> entries;
};

} // namespace standin
