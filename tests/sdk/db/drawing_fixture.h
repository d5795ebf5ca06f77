// A new drawing with a few lines, for the tests of this folder.
#pragma once

#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/database.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"

#include <gtest/gtest.h>

inline OdDbObjectId addLine(OdDbDatabase& database, double x) {
    OdDbLinePtr line(new OdDbLine);
    line->setEndPoint({x, 0, 0});
    const auto space =
        odrxCast<OdDbBlockTableRecord>(database.getModelSpaceId().safeOpenObject(OdDb::kForWrite));
    return space->appendOdDbEntity(line.get());
}

// A drawing of one entity, read from its tags as a file has them; what stands before the entities are whole
// sections.
inline OdDbDatabasePtr drawingWith(const std::string& entity, const std::string& before = {}) {
    return OdDbDatabase::readBytes("0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n0\nENDSEC\n" + before +
                                   "0\nSECTION\n2\nENTITIES\n" + entity + "0\nENDSEC\n0\nEOF\n");
}

template <class T> OdSmartPtr<T> onlyEntity(OdDbDatabase& database, OdDb::OpenMode mode = OdDb::kForRead) {
    const auto space = odrxCast<OdDbBlockTableRecord>(database.getModelSpaceId().safeOpenObject());
    return odrxCast<T>(space->entityIds().at(0).safeOpenObject(mode));
}

inline OdDbDictionaryPtr groupsOf(OdDbDatabase& database, OdDb::OpenMode mode = OdDb::kForRead) {
    return odrxCast<OdDbDictionary>(database.getGroupDictionaryId(true).safeOpenObject(mode));
}

inline OdDbObjectId addGroup(OdDbDatabase& database, const wchar_t* name, const OdDbObjectIdArray& members) {
    OdDbGroupPtr group(new OdDbGroup);
    const OdDbObjectId id = groupsOf(database, OdDb::kForWrite)->setAt(name, group.get());
    group->append(members);
    return id;
}

inline OdDbGroupPtr openGroup(OdDbObjectId id, OdDb::OpenMode mode = OdDb::kForRead) {
    return odrxCast<OdDbGroup>(id.safeOpenObject(mode));
}

inline OdDbObjectIdArray membersOf(OdDbObjectId group) {
    OdDbObjectIdArray ids;
    openGroup(group)->allEntityIds(ids);
    return ids;
}

template <class Call> OdResult codeOf(Call call) {
    try {
        call();
    } catch (const OdError& error) {
        return error.code();
    }
    return eOk;
}

class DrawingTest : public testing::Test {
protected:
    OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    OdDbObjectIdArray modelSpace() const {
        return odrxCast<OdDbBlockTableRecord>(database->getModelSpaceId().safeOpenObject())->entityIds();
    }
};
