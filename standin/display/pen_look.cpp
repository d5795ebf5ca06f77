#include "standin/display/pen_look.h"

#include <algorithm>

namespace standin {

namespace {

constexpr int kWeight = 370;
constexpr int kTransparency = 440;
constexpr int kApplication = 1001;
constexpr int kExtendedLong = 1071;
constexpr int kThickest = 211;

// The kind of value is in the highest byte, the opacity in the lowest.
Opacity opacityOfNumber(std::int64_t number) {
    const std::int64_t kind = number >> 24 & 0xff;
    if (kind == 2)
        return {Opacity::Own, static_cast<std::uint8_t>(number & 0xff)};
    return {kind == 1 ? Opacity::ByBlock : Opacity::ByLayer, 255};
}

} // namespace

int lineWeightOf(const DxfTagList& tags) {
    const std::int64_t weight = tags.integer(tags.own(), kWeight, kWeightByLayer);
    return static_cast<int>(std::clamp<std::int64_t>(weight, kWeightDefault, kThickest));
}

Opacity opacityOf(const DxfTagList& object) {
    return opacityOfNumber(object.integer(object.whole(), kTransparency));
}

std::uint8_t layerOpacityOf(const DxfTagList& layer) {
    bool isOurs = false;
    for (const DxfTag& tag : layer) {
        if (tag.code == kApplication)
            isOurs = dxfTrimmed(tag.value()) == "AcCmTransparency";
        else if (isOurs && tag.code == kExtendedLong)
            return opacityOfNumber(dxfInteger(tag.value())).value;
    }
    return 255;
}

} // namespace standin
