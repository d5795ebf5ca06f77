// Placed blocks: where they stand, which block they show, and the box of nested ones.
#include "sdk/db/block_reference.h"

#include "sdk/db/block_table.h"
#include "sdk/db/database.h"
#include "sdk/db/sub_entities.h"
#include "sdk/dxf/codec.h"

#include <algorithm>
#include <cmath>

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbBlockReference, OdDbEntity)

namespace {

// An array of references has a marker of its own, but the same tags.
constexpr std::string_view kMarker = "AcDbBlockReference";
constexpr double kDegree = M_PI / 180;

} // namespace

OdDbBlockReference::OdDbBlockReference() {
    startEntity("INSERT", kMarker);
    content.append(2, "");
    content.setPoint(kMarker, 10, {});
}

OdString OdDbBlockReference::blockName() const {
    const std::size_t found = content.find(kMarker, 2);
    return found == DxfTagList::npos ? OdString() : codec().decode(content[found].value());
}

void OdDbBlockReference::setBlockName(const OdString& name) { edit().set(kMarker, 2, codec().encode(name)); }

OdDbObjectId OdDbBlockReference::blockTableRecord() const {
    if (!database())
        return pendingBlock;
    const auto blocks = odrxQuery<OdDbBlockTable>(database()->getBlockTableId().openObject().get());
    return blocks.isNull() ? OdDbObjectId() : static_cast<const OdDbSymbolTable&>(*blocks).getAt(blockName());
}

void OdDbBlockReference::setBlockTableRecord(OdDbObjectId block) {
    const auto record = odrxCast<OdDbBlockTableRecord>(block.safeOpenObject());
    setBlockName(record->getName());
    pendingBlock = block;
}

// The block may have been renamed between the choice and the entry.
void OdDbBlockReference::enteredDatabase() {
    if (pendingBlock.isValid() && pendingBlock.database() == database() && !pendingBlock.isErased())
        setBlockName(odrxCast<OdDbBlockTableRecord>(pendingBlock.openObject())->getName());
}

OdGePoint3d OdDbBlockReference::position() const { return planeToWorld() * content.point(kMarker, 10); }

void OdDbBlockReference::setPosition(const OdGePoint3d& point) {
    edit().setPoint(kMarker, 10, OdGeMatrix3d::worldToPlane(normal()) * point);
}

OdGeScale3d OdDbBlockReference::scaleFactors() const {
    return {content.real(kMarker, 41, 1), content.real(kMarker, 42, 1), content.real(kMarker, 43, 1)};
}

void OdDbBlockReference::setScaleFactors(const OdGeScale3d& factors) {
    const double parts[] = {factors.sx, factors.sy, factors.sz};
    if (std::any_of(parts, parts + 3, [](double part) { return !std::isfinite(part); }))
        throw OdError(eInvalidInput, L"A scale factor must be a finite number");
    for (int axis = 0; axis < 3; ++axis)
        edit().set(kMarker, 41 + axis, dxfText(parts[axis]));
}

double OdDbBlockReference::rotation() const { return content.real(kMarker, 50) * kDegree; }

void OdDbBlockReference::setRotation(double angle) { edit().set(kMarker, 50, dxfText(angle / kDegree)); }

int OdDbBlockReference::columnCount() const {
    return static_cast<int>(std::clamp<std::int64_t>(content.integer(kMarker, 70, 1), 1, 32767));
}

int OdDbBlockReference::rowCount() const {
    return static_cast<int>(std::clamp<std::int64_t>(content.integer(kMarker, 71, 1), 1, 32767));
}

double OdDbBlockReference::columnSpacing() const { return content.real(kMarker, 44); }
double OdDbBlockReference::rowSpacing() const { return content.real(kMarker, 45); }

OdGeMatrix3d OdDbBlockReference::blockTransform(int row, int column) const {
    const auto block = odrxQuery<OdDbBlockTableRecord>(blockTableRecord().openObject().get());
    const OdGePoint3d base = block.isNull() ? OdGePoint3d() : block->origin();
    const OdGeVector3d cell(column * columnSpacing(), row * rowSpacing(), 0);
    return OdGeMatrix3d::translation(position().asVector()) * planeToWorld() *
           OdGeMatrix3d::rotation(rotation(), OdGeVector3d::kZAxis) * OdGeMatrix3d::translation(cell) *
           OdGeMatrix3d::scaling(scaleFactors()) * OdGeMatrix3d::translation(-base.asVector());
}

OdDbObjectIdArray OdDbBlockReference::attributes() const { return odDbSubEntities(objectId()); }

void OdDbBlockReference::addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const {
    const auto block = odrxQuery<OdDbBlockTableRecord>(blockTableRecord().openObject().get());
    if (block.isNull())
        return;
    // The box of the block stands for its contents: exact while nothing is turned, and never too small.
    const OdGeExtents3d inside = block->extents();
    if (!inside.isValidExtents())
        return;
    const OdGePoint3d low = inside.minPoint(), high = inside.maxPoint();
    for (const int row : {0, rowCount() - 1})
        for (const int column : {0, columnCount() - 1}) {
            const OdGeMatrix3d matrix = toWorld * blockTransform(row, column);
            for (const double x : {low.x, high.x})
                for (const double y : {low.y, high.y})
                    for (const double z : {low.z, high.z})
                        extents.addPoint(matrix * OdGePoint3d(x, y, z));
        }
}
