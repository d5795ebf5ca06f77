// Tables of named records: layers, blocks, text styles and so on. Names ignore case and keep their spelling.
#pragma once

#include "sdk/db/object.h"

class OdDbSymbolTableRecord : public OdDbObject {
    ODRX_DECLARE_CLASS(OdDbSymbolTableRecord)
public:
    OdString getName() const;
    // Throws eDuplicateKey when another record of the table has the name.
    virtual void setName(const OdString& name);

protected:
    void contentReplaced() override;
    void assertNameIsFree(const OdString& name) const;
};
using OdDbSymbolTableRecordPtr = OdSmartPtr<OdDbSymbolTableRecord>;

// In the order of the table, without erased records.
class OdDbSymbolTableIterator {
public:
    explicit OdDbSymbolTableIterator(std::vector<OdDbObjectId> ids) : records(std::move(ids)) {}
    void start() { position = 0; }
    bool done() const { return position >= records.size(); }
    void step() { ++position; }
    OdDbObjectId getRecordId() const { return records.at(position); }
    OdDbSymbolTableRecordPtr getRecord(OdDb::OpenMode mode = OdDb::kForRead) const;

private:
    std::vector<OdDbObjectId> records;
    std::size_t position = 0;
};

class OdDbSymbolTable : public OdDbObject {
    ODRX_DECLARE_CLASS(OdDbSymbolTable)
public:
    bool has(const OdString& name) const { return getAt(name).isValid(); }
    OdDbObjectId getAt(const OdString& name) const; // null when there is none
    OdDbSymbolTableRecordPtr getAt(const OdString& name, OdDb::OpenMode mode) const;
    // Throws eDuplicateKey for a taken name.
    virtual OdDbObjectId add(OdDbSymbolTableRecord* record);
    OdDbSymbolTableIterator newIterator() const;
    int numRecords() const;
};
using OdDbSymbolTablePtr = OdSmartPtr<OdDbSymbolTable>;
