#include "standin/display/place.h"

#include "sdk/db/entity.h"

namespace standin {

namespace {

std::string_view firstValue(const OdDbEntity& entity, int code) {
    const std::size_t place = entity.tags().find(code);
    return place == DxfTagList::npos ? std::string_view() : dxfTrimmed(entity.tags()[place].value());
}

bool isWord(std::string_view text, const char* word) {
    return text.size() == qstrlen(word) && qstrnicmp(text.data(), word, static_cast<uint>(text.size())) == 0;
}

Ink inkOf(const OdDbEntity& entity, const LayerLook& layer, const Place& place) {
    if (entity.hasTrueColor())
        return entity.trueColor() | 0xff000000u;
    if (entity.colorIndex() == OdDbEntity::kByLayer)
        return layer.ink;
    return entity.colorIndex() == OdDbEntity::kByBlock ? place.look.ink : inkOfIndex(entity.colorIndex());
}

Dashes dashesOf(const OdDbEntity& entity, const LayerLook& layer, const Place& place) {
    const std::string_view name = firstValue(entity, 6);
    const bool byLayer = name.empty() || isWord(name, "BYLAYER");
    const Dashes plain = byLayer                   ? layer.dashes
                         : isWord(name, "BYBLOCK") ? place.look.dashes
                                                   : place.layers->linetypes().of(entity.linetype());
    const std::string_view scale = plain ? firstValue(entity, 48) : std::string_view();
    return scale.empty() ? plain : Linetypes::scaled(plain, dxfReal(scale));
}

int weightOf(const OdDbEntity& entity, const LayerLook& layer, const Place& place) {
    const int weight = lineWeightOf(entity.tags());
    if (weight >= 0)
        return weight;
    return weight == kWeightByLayer   ? layer.weight
           : weight == kWeightByBlock ? place.look.weight
                                      : kDefaultWeight;
}

std::uint8_t resolvedOpacity(const OdDbEntity& entity, const LayerLook& layer, const Place& place) {
    const Opacity own = opacityOf(entity.tags());
    return own.source == Opacity::Own       ? own.value
           : own.source == Opacity::ByBlock ? place.look.opacity
                                            : layer.opacity;
}

} // namespace

LayerLook layerOf(const OdDbEntity& entity, const Place& place) {
    const OdString name = entity.layer();
    return place.outer && name == OdString(L"0") ? place.layer : place.layers->of(name);
}

Look lookOf(const OdDbEntity& entity, const LayerLook& layer, const Place& place) {
    return {inkOf(entity, layer, place), dashesOf(entity, layer, place), weightOf(entity, layer, place),
            resolvedOpacity(entity, layer, place)};
}

} // namespace standin
