#include "workbench/canvas/layer_looks.h"

#include <cwctype>

namespace workbench {

namespace {

std::wstring folded(const OdString& name) {
    std::wstring text = name.c_str();
    for (wchar_t& letter : text)
        letter = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(letter)));
    return text;
}

LayerLook lookOf(const OdDbLayerTableRecord& layer) {
    const Ink ink =
        layer.hasTrueColor() ? Ink(layer.trueColor() | 0xff000000u) : inkOfIndex(layer.colorIndex());
    return {ink, layer.isOff(), layer.isFrozen()};
}

} // namespace

Ink inkOfIndex(int index) {
    if (index < 1 || index > 255 || index == 7)
        return kForeground;
    return OdCmEntityColor::lookUpRGB(static_cast<std::uint8_t>(index)) | 0xff000000u;
}

LayerLooks::LayerLooks(const OdDbDatabase& drawing) {
    const auto layers = odrxQuery<OdDbLayerTable>(drawing.getLayerTableId().openObject().get());
    if (layers.isNull())
        return;
    for (auto it = layers->newIterator(); !it.done(); it.step()) {
        const auto layer = odrxQuery<OdDbLayerTableRecord>(it.getRecord().get());
        if (!layer.isNull())
            looks.emplace(folded(layer->getName()), lookOf(*layer));
    }
}

const LayerLook& LayerLooks::of(const OdString& layer) const {
    static const LayerLook plain;
    const auto found = looks.find(folded(layer));
    return found == looks.end() ? plain : found->second;
}

} // namespace workbench
