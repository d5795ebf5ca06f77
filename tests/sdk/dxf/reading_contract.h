// What any bytes may do to the reader: give an error that says why, or a drawing that works, is written back
// as it was, and loses nothing when it is changed. For the tests of damaged files and for the fuzzer.
#pragma once

#include "sdk/db/curves.h"
#include "sdk/db/newer_version.h"
#include "sdk/dxf/binary_text.h"
#include "tests/sdk/dxf/use_drawing.h"

// Empty when the drawing keeps the contract, otherwise what it broke.
inline std::string faultOfUnchanged(OdDbDatabase& database, const std::string& bytes) {
    useEverything(database);
    if (database.isModified())
        return "reading counts as a change";
    const std::string written = database.writeBytes();
    if (isBinaryDxf(bytes))
        return OdDbDatabase::readBytes(written)->writeBytes() == written ? "" : "the text form is not stable";
    return written == bytes ? "" : "an unchanged drawing is not written as it was read";
}

inline std::size_t entityCount(OdDbDatabase& database) {
    std::size_t count = 0;
    const auto blocks = odrxQuery<OdDbBlockTable>(database.getBlockTableId().openObject().get());
    for (OdDbSymbolTableIterator it = blocks->newIterator(); !it.done(); it.step())
        if (const auto block = odrxQuery<OdDbBlockTableRecord>(it.getRecordId().openObject().get());
            !block.isNull())
            count += block->entityIds().size();
    return count;
}

// Adds an entity, sees it written and read, and takes it back.
inline std::string faultOfChanged(OdDbDatabase& database) {
    const std::string before = database.writeBytes();
    const std::size_t count = entityCount(database);
    database.startTransaction();
    {
        const auto space =
            odrxCast<OdDbBlockTableRecord>(database.getModelSpaceId().safeOpenObject(OdDb::kForWrite));
        OdDbEntityPtr point = odrxCast<OdDbEntity>(OdDbPoint::desc()->create());
        space->appendOdDbEntity(point.get());
    }
    const std::string after = database.writeBytes();
    if (entityCount(*OdDbDatabase::readBytes(after)) != count + 1)
        return "a changed drawing has lost entities";
    database.abortTransaction();
    return database.writeBytes() == before ? "" : "an aborted change leaves something behind";
}

inline OdDbGroupPtr groupIn(OdDbDatabase& database, const OdString& name) {
    const auto groups = odrxQuery<OdDbDictionary>(database.getGroupDictionaryId().openObject().get());
    return groups.isNull() ? OdDbGroupPtr() : odrxQuery<OdDbGroup>(groups->getAt(name, OdDb::kForRead).get());
}

inline OdDbObjectIdArray modelSpaceEntities(OdDbDatabase& database) {
    return odrxCast<OdDbBlockTableRecord>(database.getModelSpaceId().safeOpenObject())->entityIds();
}

// The drawing as it is saved and opened again; of the oldest version, which has no place for groups, the
// newer one that is made of it. Null where an error says why it can't be made.
inline OdDbDatabasePtr savedAndOpened(OdDbDatabase& database) {
    if (!odDbNeedsNewerVersion(database))
        return OdDbDatabase::readBytes(database.writeBytes());
    try {
        std::vector<OdString> leftOut;
        return odDbInNewerVersion(database, leftOut); // which is read from what would be saved
    } catch (const OdError&) {
        return {};
    }
}

inline bool hasGroup(OdDbDatabase& database, const OdString& name, std::size_t count) {
    const OdDbGroupPtr group = groupIn(database, name);
    OdDbObjectIdArray members;
    if (!group.isNull())
        group->allEntityIds(members);
    return !group.isNull() && members == modelSpaceEntities(database) && members.size() == count;
}

// A group of everything in the model space is found whole again, in its order; undone, nothing of it is left.
inline std::string faultOfGroup(OdDbDatabase& database) {
    const std::string first = database.writeBytes();
    OdString name = L"Everything";
    while (!groupIn(database, name).isNull())
        name += L"+";
    database.startUndoRecord();
    const OdDbObjectIdArray all = modelSpaceEntities(database);
    {
        const auto groups =
            odrxCast<OdDbDictionary>(database.getGroupDictionaryId(true).safeOpenObject(OdDb::kForWrite));
        OdDbGroupPtr group(new OdDbGroup);
        groups->setAt(name, group.get());
        group->append(all);
    }
    const OdDbDatabasePtr again = savedAndOpened(database);
    if (!again.isNull() && !hasGroup(*again, name, all.size()))
        return "a saved group has lost members";
    database.undo();
    return database.writeBytes() == first ? "" : "a group that was undone leaves something behind";
}

// A drawing of the oldest version becomes a newer one, or an error says why not.
inline std::string faultOfUpgrade(OdDbDatabase& database) {
    std::vector<OdString> leftOut;
    try {
        const OdDbDatabasePtr newer = odDbInNewerVersion(database, leftOut);
        useEverything(*newer);
        return entityCount(*newer) == entityCount(database) ? "" : "a newer drawing has lost entities";
    } catch (const OdError&) {
        return "";
    }
}

inline std::string faultOfReading(const std::string& bytes) {
    OdDbDatabasePtr database;
    try {
        database = OdDbDatabase::readBytes(bytes, L"test.dxf");
    } catch (const OdError& error) {
        const std::string text = error.description().toUtf8();
        const bool known = error.code() == eDxfReadError || error.code() == eBadDwgFile ||
                           error.code() == eInvalidDrawing || error.code() == eUnsupportedFileFormat;
        return known && text.find("test.dxf") != std::string::npos ? ""
                                                                   : "an error that says too little: " + text;
    }
    std::string fault = faultOfUnchanged(*database, bytes);
    if (fault.empty())
        fault = faultOfChanged(*database);
    if (fault.empty())
        fault = faultOfGroup(*database);
    return fault.empty() ? faultOfUpgrade(*database) : fault;
}
