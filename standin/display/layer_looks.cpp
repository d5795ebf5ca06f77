#include "standin/display/layer_looks.h"

#include "standin/display/folded_name.h"

namespace standin {

namespace {

LayerLook lookOf(const OdDbLayerTableRecord& layer, const Linetypes& types) {
    const Ink ink =
        layer.hasTrueColor() ? Ink(layer.trueColor() | 0xff000000u) : inkOfIndex(layer.colorIndex());
    const int weight = lineWeightOf(layer.tags());
    return {ink,
            layer.isOff(),
            layer.isFrozen(),
            types.of(layer.linetype()),
            weight >= 0 ? weight : kDefaultWeight,
            layerOpacityOf(layer.tags())};
}

} // namespace

Ink inkOfIndex(int index) {
    if (index < 1 || index > 255 || index == 7)
        return kForeground;
    return OdCmEntityColor::lookUpRGB(static_cast<std::uint8_t>(index)) | 0xff000000u;
}

LayerLooks::LayerLooks(const OdDbDatabase& drawing)
    : header(DrawingVariables::of(drawing)), types(drawing, header.linetypeScale), styles(drawing) {
    const auto layers = odrxQuery<OdDbLayerTable>(drawing.getLayerTableId().openObject().get());
    if (layers.isNull())
        return;
    for (auto it = layers->newIterator(); !it.done(); it.step()) {
        const auto layer = odrxQuery<OdDbLayerTableRecord>(it.getRecord().get());
        if (!layer.isNull())
            looks.emplace(foldedName(layer->getName()), lookOf(*layer, types));
    }
}

const LayerLook& LayerLooks::of(const OdString& layer) const {
    static const LayerLook plain;
    const auto found = looks.find(foldedName(layer));
    return found == looks.end() ? plain : found->second;
}

} // namespace standin
