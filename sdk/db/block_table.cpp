// Blocks and what lies in them. The oldest version has no block records, so that all that a block has is
// asked from the entity that opens it.
#include "sdk/db/block_table.h"

#include "sdk/db/block_reference.h"
#include "sdk/db/database_impl.h"

#include <algorithm>

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbBlockTableRecord, OdDbSymbolTableRecord)
ODRX_DEFINE_CLASS_WITH_MAKER(OdDbBlockTable, OdDbSymbolTable)
ODRX_DEFINE_CLASS_WITH_MAKER(OdDbBlockBegin, OdDbEntity)
ODRX_DEFINE_CLASS_WITH_MAKER(OdDbBlockEnd, OdDbEntity)

namespace {

constexpr std::string_view kRecord = "AcDbBlockTableRecord";
constexpr std::string_view kBegin = "AcDbBlockBegin";
constexpr int kName = 2;
constexpr int kOtherName = 3;
constexpr int kFlags = 70;
constexpr int kUnits = 70;
constexpr int kPath = 1;
constexpr int kBase = 10;
constexpr int kPaperSpaceFlag = 67;

OdDbEntityPtr beginOf(const OdDbBlockTableRecord& record, OdDb::OpenMode mode = OdDb::kForRead) {
    return odrxQuery<OdDbEntity>(record.blockBeginId().openObject(mode, true).get());
}

bool isLivingReference(OdDbDatabaseImpl& impl, OdDbStub& stub, OdDbObjectId block) {
    if (stub.has(OdDbStub::kErased) || impl.typeName(stub) != "INSERT")
        return false;
    const auto insert = odrxQuery<OdDbBlockReference>(impl.load(stub).get());
    return !insert.isNull() && insert->blockTableRecord() == block;
}

// References know their block by its name.
void renameInserts(OdDbDatabase& database, const OdString& former, const OdString& name) {
    OdDbDatabaseImpl& impl = database.impl();
    for (std::size_t i = 0; i < impl.stubs.size(); ++i) {
        OdDbStub& stub = impl.stubs[i];
        if (impl.typeName(stub) != "INSERT" || stub.has(OdDbStub::kStructure))
            continue;
        const auto insert = odrxQuery<OdDbBlockReference>(impl.load(stub).get());
        if (!insert.isNull() && insert->blockName().iCompare(former) == 0) {
            const bool wasWritable = insert->isWriteEnabled();
            insert->upgradeOpen();
            insert->setBlockName(name);
            if (!wasWritable)
                insert->downgradeOpen();
        }
    }
}

bool isLayoutName(const OdString& name) {
    const std::wstring folded = odDbFoldedName(name);
    return folded.find(L"model_space") == 1 || folded.find(L"paper_space") == 1;
}

} // namespace

OdDbEntityPtr OdDbObjectIterator::entity(OdDb::OpenMode mode) const {
    return odrxCast<OdDbEntity>(objectId().openObject(mode));
}

OdDbBlockBegin::OdDbBlockBegin() {
    startEntity("BLOCK", kBegin);
    content.append(kName, "");
    content.append(kFlags, "0");
    content.setPoint(kBegin, kBase, {});
    content.append(kOtherName, "");
    content.append(kPath, "");
}

OdDbBlockEnd::OdDbBlockEnd() { startEntity("ENDBLK", "AcDbBlockEnd"); }

OdDbBlockTableRecord::OdDbBlockTableRecord() {
    startTags("BLOCK_RECORD");
    content.append(100, "AcDbSymbolTableRecord");
    content.append(100, kRecord);
    content.append(kName, "");
}

OdDbObjectId OdDbBlockTableRecord::blockBeginId() const {
    if (!database())
        return {};
    const auto& blocks = database()->impl().blocks;
    const auto found = blocks.find(objectId().getStub());
    return found == blocks.end() ? OdDbObjectId() : OdDbObjectId(found->second.begin);
}

void OdDbBlockTableRecord::setName(const OdString& name) {
    const OdString former = getName();
    OdDbSymbolTableRecord::setName(name);
    if (database() && former != name)
        renameInserts(*database(), former, name);
    const OdDbEntityPtr begin = beginOf(*this, OdDb::kForWrite);
    if (begin.isNull())
        return;
    begin->setTextValue(kBegin, kName, name);
    begin->setTextValue(kBegin, kOtherName, name);
}

OdGePoint3d OdDbBlockTableRecord::origin() const {
    const OdDbEntityPtr begin = beginOf(*this);
    return begin.isNull() ? OdGePoint3d() : begin->tags().point(kBegin, kBase);
}

void OdDbBlockTableRecord::setOrigin(const OdGePoint3d& point) {
    assertWriteEnabled();
    beginOf(*this, OdDb::kForWrite)->edit().setPoint(kBegin, kBase, point);
}

OdString OdDbBlockTableRecord::pathName() const {
    const OdDbEntityPtr begin = beginOf(*this);
    return begin.isNull() ? OdString() : begin->textValue(kBegin, kPath);
}

void OdDbBlockTableRecord::setPathName(const OdString& path) {
    assertWriteEnabled();
    beginOf(*this, OdDb::kForWrite)->setTextValue(kBegin, kPath, path);
}

int OdDbBlockTableRecord::blockFlags() const {
    const OdDbEntityPtr begin = beginOf(*this);
    return begin.isNull() ? 0 : static_cast<int>(begin->tags().integer(kBegin, kFlags));
}

void OdDbBlockTableRecord::setBlockFlags(int flags) {
    assertWriteEnabled();
    beginOf(*this, OdDb::kForWrite)->edit().set(kBegin, kFlags, dxfText(std::int64_t{flags}));
}

OdDb::UnitsValue OdDbBlockTableRecord::blockInsertUnits() const {
    return static_cast<OdDb::UnitsValue>(content.integer(kRecord, kUnits));
}

void OdDbBlockTableRecord::setBlockInsertUnits(OdDb::UnitsValue units) {
    if (units != blockInsertUnits())
        edit().set(kRecord, kUnits, dxfText(std::int64_t{units}));
}

bool OdDbBlockTableRecord::isAnonymous() const { return blockFlags() & kAnonymous; }

bool OdDbBlockTableRecord::isLayout() const { return isLayoutName(getName()); }

bool OdDbBlockTableRecord::isFromExternalReference() const { return blockFlags() & (kXref | kOverlay); }

bool OdDbBlockTableRecord::isFromOverlayReference() const { return blockFlags() & kOverlay; }

OdDbDatabasePtr OdDbBlockTableRecord::xrefDatabase(bool) const {
    return database() ? database()->impl().blocks[objectId().getStub()].xrefDatabase : OdDbDatabasePtr();
}

OdDbObjectId OdDbBlockTableRecord::appendOdDbEntity(OdDbEntity* entity) {
    if (!isWriteEnabled())
        throw OdError(eNotOpenForWrite);
    if (!database())
        throw OdError(eNotInDatabase);
    database()->impl().appendEntity(*objectId().getStub(), *entity);
    if (odDbFoldedName(getName()).find(L"paper_space") == 1)
        entity->edit().set("AcDbEntity", kPaperSpaceFlag, "1");
    return entity->objectId();
}

OdDbObjectIdArray OdDbBlockTableRecord::entityIds() const {
    OdDbObjectIdArray ids;
    if (!database())
        return ids;
    for (OdDbStub* stub : database()->impl().blocks[objectId().getStub()].entities)
        if (!stub->has(OdDbStub::kErased))
            ids.emplace_back(stub);
    return ids;
}

OdDbObjectIterator OdDbBlockTableRecord::newIterator() const { return OdDbObjectIterator(entityIds()); }

// A loaded reference shows the model space of its own drawing.
OdGeExtents3d OdDbBlockTableRecord::extents() const {
    if (!database())
        return {};
    if (const OdDbDatabasePtr loaded = xrefDatabase(); !loaded.isNull())
        return odrxCast<OdDbBlockTableRecord>(loaded->getModelSpaceId().safeOpenObject())->extents();
    OdDbDatabaseImpl& impl = database()->impl();
    OdDbBlockContent& block = impl.blocks[objectId().getStub()];
    if (block.extentsChange == impl.changeCount || block.measuring)
        return block.measuring ? OdGeExtents3d() : block.extents;
    block.measuring = true;
    OdGeExtents3d found;
    for (OdDbStub* stub : block.entities) {
        const auto entity = odrxQuery<OdDbEntity>(OdDbObjectId(stub).openObject().get());
        if (!entity.isNull())
            entity->addExtents(found, OdGeMatrix3d::kIdentity);
    }
    block.measuring = false;
    block.extents = found;
    block.extentsChange = impl.changeCount;
    return found;
}

bool OdDbBlockTableRecord::hasLivingReferences() const {
    if (!database())
        return false;
    OdDbDatabaseImpl& impl = database()->impl();
    for (const auto& [owner, block] : impl.blocks) {
        if (owner == objectId().getStub() || owner->has(OdDbStub::kErased))
            continue;
        for (OdDbStub* stub : block.entities)
            if (isLivingReference(impl, *stub, objectId()))
                return true;
    }
    return false;
}

OdResult OdDbBlockTableRecord::erase(bool erasing) {
    if (isLayout())
        throw OdError(eInvalidInput, L"A layout can't be erased");
    if (erasing && !isErased() && hasLivingReferences())
        return eIsReferenced;
    OdDbSymbolTableRecord::erase(erasing);
    if (!database())
        return eOk;
    OdDbDatabaseImpl& impl = database()->impl();
    const OdDbBlockContent& block = impl.blocks[objectId().getStub()];
    std::vector<OdDbStub*> parts = block.entities;
    for (OdDbStub* part : {block.begin, block.end})
        if (part)
            parts.push_back(part);
    for (OdDbStub* part : parts)
        if (part->has(OdDbStub::kErased) != erasing)
            impl.setErased(*part, erasing);
    return eOk;
}

OdDbObjectId OdDbBlockTable::add(OdDbSymbolTableRecord* record) {
    const OdDbObjectId id = OdDbSymbolTable::add(record);
    OdDbDatabaseImpl& impl = database()->impl();
    OdSmartPtr<OdDbBlockBegin> begin(new OdDbBlockBegin);
    begin->setTextValue(kBegin, kName, record->getName());
    begin->setTextValue(kBegin, kOtherName, record->getName());
    OdSmartPtr<OdDbBlockEnd> end(new OdDbBlockEnd);
    OdDbBlockContent& block = impl.blocks[id.getStub()];
    block.begin = &impl.add(*begin, id.getStub());
    block.end = &impl.add(*end, id.getStub());
    if (impl.version < kVersionR13)
        id.getStub()->set(OdDbStub::kUnwritten, true);
    return id;
}
