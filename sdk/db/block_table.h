// Blocks: named collections of entities, among them model space, the layouts and external references.
#pragma once

#include "sdk/db/database.h"
#include "sdk/db/entity.h"
#include "sdk/db/symbol_table.h"

// The entities of a block in their order, without erased ones. A list made when the walk starts.
class OdDbObjectIterator {
public:
    explicit OdDbObjectIterator(OdDbObjectIdArray list) : ids(std::move(list)) {}
    void start() { position = 0; }
    bool done() const { return position >= ids.size(); }
    void step() { ++position; }
    OdDbObjectId objectId() const { return ids.at(position); }
    OdDbEntityPtr entity(OdDb::OpenMode mode = OdDb::kForRead) const;

private:
    OdDbObjectIdArray ids;
    std::size_t position = 0;
};

class OdDbBlockTableRecord : public OdDbSymbolTableRecord {
    ODRX_DECLARE_CLASS(OdDbBlockTableRecord)
public:
    OdDbBlockTableRecord();
    void setName(const OdString& name) override;
    OdGePoint3d origin() const;
    void setOrigin(const OdGePoint3d& point);
    OdString pathName() const; // of an external reference
    void setPathName(const OdString& path);
    OdDb::UnitsValue blockInsertUnits() const;
    void setBlockInsertUnits(OdDb::UnitsValue units);
    bool isAnonymous() const;
    bool isLayout() const; // model space and paper spaces

    bool isFromExternalReference() const; // overlays too
    bool isFromOverlayReference() const;
    // The drawing of a loaded reference, or null. With `includeUnresolved` the flag of the file decides
    // nothing: this drawing knows a reference only when it is loaded.
    OdDbDatabasePtr xrefDatabase(bool includeUnresolved = false) const;

    // Takes a new entity in at the end. Throws eAlreadyInDb.
    OdDbObjectId appendOdDbEntity(OdDbEntity* entity);
    OdDbObjectIterator newIterator() const;
    OdDbObjectIdArray entityIds() const;
    // The box around everything in the block. A block that contains itself counts once.
    OdGeExtents3d extents() const;
    // Whether an INSERT shows the block that is neither erased nor itself in an erased block or in this one.
    bool hasLivingReferences() const;
    // Erases the record with its entities, or brings them back. eIsReferenced, with nothing changed, for a
    // block with living references. Throws eInvalidInput for a layout.
    OdResult erase(bool erasing = true) override;

    // The entity that opens the block in the file; it holds path, base point and flags. Null when there is
    // none.
    OdDbObjectId blockBeginId() const;
    int blockFlags() const;
    void setBlockFlags(int flags);
    enum BlockFlag { kAnonymous = 1, kHasAttributes = 2, kXref = 4, kOverlay = 8, kResolved = 32 };
};
using OdDbBlockTableRecordPtr = OdSmartPtr<OdDbBlockTableRecord>;

class OdDbBlockTable : public OdDbSymbolTable {
    ODRX_DECLARE_CLASS(OdDbBlockTable)
public:
    OdDbObjectId add(OdDbSymbolTableRecord* record) override;
};
using OdDbBlockTablePtr = OdSmartPtr<OdDbBlockTable>;

class OdDbBlockBegin : public OdDbEntity {
    ODRX_DECLARE_CLASS(OdDbBlockBegin)
public:
    OdDbBlockBegin();
};

class OdDbBlockEnd : public OdDbEntity {
    ODRX_DECLARE_CLASS(OdDbBlockEnd)
public:
    OdDbBlockEnd();
};
