// Dimensions, which are shown by a block of their own, and tables, too.
#include "standin/display/kinds.h"

#include "sdk/db/block_table.h"

#include <cmath>

namespace standin {

namespace {

constexpr std::string_view kDimension = "AcDbDimension";

OdString nameOfBlock(const OdDbEntity& dimension) { return dimension.textValue(kDimension, 2); }

OdDbObjectId blockNamed(const OdDbEntity& entity, const OdString& name) {
    const auto blocks = odrxQuery<OdDbBlockTable>(
        entity.database() ? entity.database()->getBlockTableId().openObject().get() : nullptr);
    return blocks.isNull() ? OdDbObjectId() : static_cast<const OdDbSymbolTable&>(*blocks).getAt(name);
}

} // namespace

bool draw::canDrawDimension(const OdDbEntity& entity) { return !nameOfBlock(entity).isEmpty(); }

// The block of a dimension that was copied from another one is moved to its place.
void draw::dimension(const OdDbEntity& entity, const Pencil& pencil) {
    const DxfTagList& tags = entity.tags();
    const OdString name = nameOfBlock(entity);
    if (name.isEmpty())
        return;
    const OdGePoint3d moved =
        pencil.world() * (OdGeMatrix3d::planeToWorld(entity.normal()) * tags.point(kDimension, 12));
    const OdGeVector3d by = moved - pencil.world() * OdGePoint3d();
    if (!pencil.block(blockNamed(entity, name), OdGeMatrix3d::translation(by) * pencil.world()))
        pencil.missing(pencil.world() * tags.point(kDimension, 10), name);
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
