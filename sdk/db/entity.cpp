// What all entities have in common: layer, colour, plane and box.
#include "sdk/db/entity.h"

#include "sdk/db/class_registry.h"
#include "sdk/db/database_impl.h"
#include "sdk/db/symbol_table.h"

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
constexpr int kExtendedData = 1000;
} // namespace

void OdDbEntity::startEntity(std::string_view name, std::string_view marker) {
    startTags(name);
    content.append(100, kMarker);
    content.append(kLayer, "0");
    content.append(100, marker);
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

int OdDbEntity::colorIndex() const {
    return static_cast<int>(content.integer(content.subclass(kMarker), kColor, kByLayer));
}

void OdDbEntity::setColorIndex(int index) {
    edit().set(kMarker, kColor, dxfText(std::int64_t{index}));
    content.remove(kMarker, kTrueColor);
}

bool OdDbEntity::hasTrueColor() const {
    return content.find(kTrueColor, content.subclass(kMarker)) != DxfTagList::npos;
}

std::uint32_t OdDbEntity::trueColor() const {
    return static_cast<std::uint32_t>(content.integer(content.subclass(kMarker), kTrueColor)) & 0xFFFFFFu;
}

void OdDbEntity::setTrueColor(std::uint32_t rgb) {
    edit().set(kMarker, kTrueColor, dxfText(std::int64_t{rgb}));
}

OdString OdDbEntity::linetype() const {
    const OdString name = textValue(kMarker, kLinetype);
    return name.isEmpty() ? OdString(L"ByLayer") : name;
}

bool OdDbEntity::isVisible() const { return content.integer(content.subclass(kMarker), kInvisible) == 0; }

bool OdDbEntity::isInPaperSpace() const {
    return content.integer(content.subclass(kMarker), kPaperSpace) != 0;
}

OdGeVector3d OdDbEntity::normal() const {
    // The last one: an entity's own part comes behind the common one.
    for (std::size_t i = content.size(); i-- > 0;)
        if (content[i].code == kNormal)
            return content.point({i, content.size()}, kNormal).asVector();
    return OdGeVector3d::kZAxis;
}

void OdDbEntity::setNormal(const OdGeVector3d& value) {
    DxfTagList& tags = edit();
    for (int axis = 0; axis < 3; ++axis) {
        const std::size_t found = tags.find(kNormal + 10 * axis);
        if (found != DxfTagList::npos)
            tags.erase(found);
    }
    std::size_t place = 0;
    while (place < tags.size() && tags[place].code < kExtendedData)
        ++place;
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
