// How thick and how opaque objects and layers want to be drawn, as their tags say it.
#pragma once

#include "sdk/dxf/tag_list.h"

#include <cstdint>
#include <optional>

namespace standin {

constexpr int kDefaultWeight = 25; // hundredths of a millimetre
// What an object says instead of a weight of its own.
enum SpecialWeight { kWeightByLayer = -1, kWeightByBlock = -2, kWeightDefault = -3 };

// Of an object or a layer, in hundredths of a millimetre or one of the special ones.
int lineWeightOf(const DxfTagList& tags);

// 255 is opaque; none for what follows its layer or its block.
struct Opacity {
    enum Source { Own, ByLayer, ByBlock };
    Source source = ByLayer;
    std::uint8_t value = 255;
};
Opacity opacityOf(const DxfTagList& object);
// Layers keep theirs in extended data.
std::uint8_t layerOpacityOf(const DxfTagList& layer);

} // namespace standin
