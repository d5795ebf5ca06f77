// What all entities have in common: layer, colour, plane and box.
#include "sdk/db/entity.h"

#include "sdk/db/class_registry.h"
#include "sdk/db/database_impl.h"
#include "sdk/db/symbol_table.h"

#include <algorithm>

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbEntity, OdDbObject)

namespace {
constexpr std::string_view kMarker = "AcDbEntity";
constexpr int kLayer = 8;
constexpr int kLinetype = 6;
constexpr int kColor = 62;
constexpr int kTrueColor = 420;
constexpr int kInvisible = 60;
constexpr int kPaperSpace = 67;
constexpr int kNormal = 210;

// Codes of common properties that mean something else in the part of this kind's own.
struct OwnUse {
    std::string_view name;
    int code;
};
constexpr OwnUse ownUses[] = {{"MTEXT", 48}, {"MTEXT", 420}, {"MTEXT", 430}, {"MTEXT", 440}};

bool isOwnUse(std::string_view name, int code) {
    return std::any_of(std::begin(ownUses), std::end(ownUses),
                       [&](const OwnUse& use) { return use.code == code && use.name == name; });
}
} // namespace

void OdDbEntity::startEntity(std::string_view name, std::string_view marker) {
    startTags(name);
    content.append(100, kMarker);
    content.append(kLayer, "0");
    content.append(100, marker);
}

std::size_t OdDbEntity::commonTag(int code) const {
    const std::size_t found = content.find(kMarker, code);
    if (found == DxfTagList::npos || !isOwnUse(content[0].value(), code))
        return found;
    return found >= content.endOf(kMarker) ? DxfTagList::npos : found;
}

std::int64_t OdDbEntity::commonInteger(int code, std::int64_t otherwise) const {
    const std::size_t found = commonTag(code);
    return found == DxfTagList::npos ? otherwise : dxfInteger(content[found].value());
}

OdString OdDbEntity::layer() const {
    const OdString name = textValue(kMarker, kLayer);
    return name.isEmpty() ? OdString(L"0") : name;
}

void OdDbEntity::setLayer(const OdString& name) { setTextValue(kMarker, kLayer, name); }

OdDbObjectId OdDbEntity::layerId() const {
    if (!database())
        return {};
    const auto layers = odrxQuery<OdDbSymbolTable>(database()->getLayerTableId().openObject().get());
    return layers.isNull() ? OdDbObjectId() : layers->getAt(layer());
}

int OdDbEntity::colorIndex() const { return static_cast<int>(commonInteger(kColor, kByLayer)); }

void OdDbEntity::setColorIndex(int index) {
    edit().set(kMarker, kColor, dxfText(std::int64_t{index}));
    const std::size_t trueColorTag = commonTag(kTrueColor);
    if (trueColorTag != DxfTagList::npos)
        content.erase(trueColorTag);
}

bool OdDbEntity::hasTrueColor() const { return commonTag(kTrueColor) != DxfTagList::npos; }

std::uint32_t OdDbEntity::trueColor() const {
    return static_cast<std::uint32_t>(commonInteger(kTrueColor)) & 0xFFFFFFu;
}

void OdDbEntity::setTrueColor(std::uint32_t rgb) {
    const std::string text = dxfText(std::int64_t{rgb});
    const std::size_t found = commonTag(kTrueColor);
    if (found == DxfTagList::npos)
        edit().insert(content.endOf(kMarker), kTrueColor, text);
    else
        edit().replace(found, text);
}

OdString OdDbEntity::linetype() const {
    const OdString name = textValue(kMarker, kLinetype);
    return name.isEmpty() ? OdString(L"ByLayer") : name;
}

bool OdDbEntity::isVisible() const { return commonInteger(kInvisible) == 0; }
bool OdDbEntity::isInPaperSpace() const { return commonInteger(kPaperSpace) != 0; }

OdGeVector3d OdDbEntity::normal() const {
    // The last one: an entity's own part comes behind the common one.
    const std::size_t end = content.own().end;
    for (std::size_t i = end; i-- > 0;)
        if (content[i].code == kNormal)
            return content.point({i, end}, kNormal).asVector();
    return OdGeVector3d::kZAxis;
}

void OdDbEntity::setNormal(const OdGeVector3d& value) {
    DxfTagList& tags = edit();
    for (int axis = 0; axis < 3; ++axis) {
        const std::size_t found = tags.find(kNormal + 10 * axis);
        if (found != DxfTagList::npos)
            tags.erase(found);
    }
    std::size_t place = tags.own().end;
    const double parts[] = {value.x, value.y, value.z};
    for (int axis = 0; axis < 3; ++axis)
        tags.insert(place++, kNormal + 10 * axis, dxfText(parts[axis]));
}

void OdDbEntity::highlight(bool on, const OdDbFullSubentPath*, bool) {
    OdDbStub* stub = objectId().getStub();
    if (!stub || stub->has(OdDbStub::kHighlighted) == on)
        return;
    stub->set(OdDbStub::kHighlighted, on);
    stub->database->impl().notify(
        [stub](OdDbDatabaseReactor& reactor) { reactor.highlightChanged(OdDbObjectId(stub)); });
}

bool OdDbEntity::isHighlighted() const {
    const OdDbStub* stub = objectId().getStub();
    return stub && stub->has(OdDbStub::kHighlighted);
}

OdResult OdDbEntity::getGeomExtents(OdGeExtents3d& extents) const {
    OdGeExtents3d found;
    addExtents(found, OdGeMatrix3d::kIdentity);
    if (!found.isValidExtents())
        return eInvalidInput;
    extents = found;
    return eOk;
}

void OdDbEntity::addExtents(OdGeExtents3d&, const OdGeMatrix3d&) const {}
