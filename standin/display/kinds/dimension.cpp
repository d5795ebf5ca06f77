// Dimensions, which are shown by a block of their own, and tables, too.
#include "standin/display/kinds.h"

#include "sdk/db/block_table.h"

#include <cmath>

namespace standin {

namespace {

OdDbObjectId blockNamed(const OdDbEntity& entity, const OdString& name) {
    const auto blocks = odrxQuery<OdDbBlockTable>(
        entity.database() ? entity.database()->getBlockTableId().openObject().get() : nullptr);
    return blocks.isNull() ? OdDbObjectId() : static_cast<const OdDbSymbolTable&>(*blocks).getAt(name);
}

} // namespace

// The block of a dimension that was copied from another one is moved to its place.
void draw::dimension(const OdDbEntity& entity, const Pencil& pencil) {
    constexpr const char* marker = "AcDbDimension";
    const DxfTagList& tags = entity.tags();
    const OdGePoint3d moved =
        pencil.world() * (OdGeMatrix3d::planeToWorld(entity.normal()) * tags.point(marker, 12));
    const OdGeVector3d by = moved - pencil.world() * OdGePoint3d();
    pencil.block(blockNamed(entity, entity.textValue(marker, 2)),
                 OdGeMatrix3d::translation(by) * pencil.world());
}

void draw::table(const OdDbEntity& entity, const Pencil& pencil) {
    const DxfTagList& tags = entity.tags();
    const OdGePoint3d at = tags.point(tags.own(), 10);
    const OdGeVector3d along = tags.point("AcDbTable", 11).asVector();
    const double turn = along.isZeroLength() ? 0 : std::atan2(along.y, along.x);
    const OdDbObjectId block = blockNamed(entity, entity.textValue("AcDbBlockReference", 2));
    if (!pencil.block(block, pencil.world() * OdGeMatrix3d::translation(at.asVector()) *
                                 OdGeMatrix3d::rotation(turn, OdGeVector3d::kZAxis)))
        pencil.missing(pencil.world() * at, entity.dxfName());
}

} // namespace standin
