// Layers and viewports. Entities and the header name a layer, so renaming one goes through the whole drawing.
#include "sdk/db/layer_table.h"

#include "sdk/db/database_impl.h"

#include <cstdlib>
#include <utility>

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbLayerTableRecord, OdDbSymbolTableRecord)
ODRX_DEFINE_CLASS_WITH_MAKER(OdDbLayerTable, OdDbSymbolTable)
ODRX_DEFINE_CLASS_WITH_MAKER(OdDbViewport, OdDbEntity)

namespace {
constexpr std::string_view kLayer = "AcDbLayerTableRecord";
constexpr std::string_view kViewport = "AcDbViewport";
constexpr int kFlags = 70;
constexpr int kColor = 62;
constexpr int kTrueColor = 420;
constexpr int kFrozen = 1;
constexpr int kLocked = 4;
constexpr int kWhite = 7;
constexpr const wchar_t* kFixedLayer = L"0";
constexpr const char* kCurrentLayer = "$CLAYER";

// The name of the current layer, which follows its layer back and forth.
class CurrentLayerChange : public OdDbChange {
public:
    CurrentLayerChange(OdDbDatabaseImpl& database, std::string name)
        : impl(database), other(std::move(name)) {}
    void swap() override {
        const std::string present(impl.header.value(kCurrentLayer));
        impl.header.set(kCurrentLayer, 8, std::exchange(other, present));
    }

private:
    OdDbDatabaseImpl& impl;
    std::string other;
};

void renameCurrentLayer(OdDbDatabaseImpl& impl, const std::wstring& former, const OdString& name) {
    const OdString current = impl.codec.decode(impl.header.value(kCurrentLayer));
    if (impl.header.find(kCurrentLayer) == nullptr || odDbFoldedName(current) != former)
        return;
    auto change = std::make_unique<CurrentLayerChange>(impl, impl.codec.encode(name));
    change->swap();
    impl.log.record(std::move(change));
}

// Entities know their layer by its name.
void moveEntities(OdDbDatabaseImpl& impl, const std::wstring& former, const OdString& name) {
    for (std::size_t i = 0; i < impl.stubs.size(); ++i) {
        OdDbStub& stub = impl.stubs[i];
        if (!stub.has(OdDbStub::kEntity) || stub.has(OdDbStub::kStructure))
            continue;
        const auto entity = odrxQuery<OdDbEntity>(impl.load(stub).get());
        if (entity.isNull() || odDbFoldedName(entity->layer()) != former)
            continue;
        const bool wasWritable = entity->isWriteEnabled();
        entity->upgradeOpen();
        entity->setLayer(name);
        if (!wasWritable)
            entity->downgradeOpen();
    }
}
} // namespace

OdDbLayerTableRecord::OdDbLayerTableRecord() {
    startTags("LAYER");
    content.append(100, "AcDbSymbolTableRecord");
    content.append(100, kLayer);
    content.append(2, "");
    content.append(kFlags, "0");
    content.append(kColor, "7");
    content.append(6, "Continuous");
}

void OdDbLayerTableRecord::setName(const OdString& name) {
    const OdString former = getName();
    if (database() && former == OdString(kFixedLayer) && name != former)
        throw OdError(eInvalidInput, L"Layer 0 can't be renamed");
    OdDbSymbolTableRecord::setName(name);
    if (!database() || former == name)
        return;
    const std::wstring formerKey = odDbFoldedName(former);
    moveEntities(database()->impl(), formerKey, name);
    renameCurrentLayer(database()->impl(), formerKey, name);
}

bool OdDbLayerTableRecord::flag(int bit) const { return content.integer(kLayer, kFlags) & bit; }

void OdDbLayerTableRecord::setFlag(int bit, bool on) {
    const std::int64_t flags = content.integer(kLayer, kFlags);
    edit().set(kLayer, kFlags, dxfText(on ? flags | bit : flags & ~std::int64_t{bit}));
}

// A layer that is off has its colour number below zero.
bool OdDbLayerTableRecord::isOff() const { return content.integer(kLayer, kColor, kWhite) < 0; }

void OdDbLayerTableRecord::setIsOff(bool off) {
    const std::int64_t color = colorIndex();
    edit().set(kLayer, kColor, dxfText(off ? -color : color));
}

bool OdDbLayerTableRecord::isFrozen() const { return flag(kFrozen); }
void OdDbLayerTableRecord::setIsFrozen(bool frozen) { setFlag(kFrozen, frozen); }
bool OdDbLayerTableRecord::isLocked() const { return flag(kLocked); }
void OdDbLayerTableRecord::setIsLocked(bool locked) { setFlag(kLocked, locked); }

int OdDbLayerTableRecord::colorIndex() const {
    const std::int64_t color = std::llabs(content.integer(kLayer, kColor, kWhite));
    return color >= 1 && color <= 255 ? static_cast<int>(color) : kWhite;
}

void OdDbLayerTableRecord::setColorIndex(int index) {
    const bool off = isOff();
    edit().set(kLayer, kColor, dxfText(std::int64_t{off ? -index : index}));
    content.remove(kLayer, kTrueColor);
}

bool OdDbLayerTableRecord::hasTrueColor() const {
    return content.find(kLayer, kTrueColor) != DxfTagList::npos;
}

std::uint32_t OdDbLayerTableRecord::trueColor() const {
    return static_cast<std::uint32_t>(content.integer(kLayer, kTrueColor)) & 0xFFFFFFu;
}

OdString OdDbLayerTableRecord::linetype() const { return textValue(kLayer, 6); }

OdDbViewport::OdDbViewport() {
    startEntity("VIEWPORT", kViewport);
    content.setPoint(kViewport, 10, {});
    content.append(40, "1.0");
    content.append(41, "1.0");
    content.append(68, "1");
    content.append(69, "2");
}

int OdDbViewport::number() const { return static_cast<int>(content.integer(kViewport, 69)); }
void OdDbViewport::setNumber(int number) { edit().set(kViewport, 69, dxfText(std::int64_t{number})); }
OdGePoint3d OdDbViewport::centerPoint() const { return content.point(kViewport, 10); }
double OdDbViewport::width() const { return content.real(kViewport, 40); }
double OdDbViewport::height() const { return content.real(kViewport, 41); }
