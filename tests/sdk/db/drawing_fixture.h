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
