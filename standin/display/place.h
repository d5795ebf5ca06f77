// Where and in which looks objects are shown: in the drawing itself, or as parts of a block.
#pragma once

#include "sdk/ge/matrix3d.h"
#include "standin/display/layer_looks.h"

namespace standin {

// The pen of one object, with everything resolved.
struct Look {
    Ink ink = kForeground;
    Dashes dashes{};
    int weight = kDefaultWeight; // hundredths of a millimetre
    std::uint8_t opacity = 255;

    friend bool operator==(const Look& a, const Look& b) {
        return a.ink == b.ink && a.dashes == b.dashes && a.weight == b.weight && a.opacity == b.opacity;
    }
};

struct Place {
    const Place* outer = nullptr;
    OdDbObjectId block;
    OdGeMatrix3d toWorld;
    const LayerLooks* layers = nullptr;
    LayerLook layer; // of the reference: its parts on layer 0 follow it
    Look look;       // of the reference: parts that are "by block" follow it
    int depth = 0;
    bool isExternal = false; // the parts are those of another drawing
};

// How often a block is repeated, and the steps from one to the next in the drawing.
struct Repeats {
    int rows = 1, columns = 1;
    OdGeVector3d rowStep{}, columnStep{};
};

// The layer that an object follows.
LayerLook layerOf(const OdDbEntity& entity, const Place& place);
Look lookOf(const OdDbEntity& entity, const LayerLook& layer, const Place& place);

} // namespace standin
