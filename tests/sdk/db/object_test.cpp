// Ids, open modes and the life of objects.
#include "tests/sdk/db/drawing_fixture.h"

class Objects : public DrawingTest {};

TEST_F(Objects, NullIdIsInvalidAndOpensNothing) {
    const OdDbObjectId none;
    EXPECT_FALSE(none.isValid());
    EXPECT_TRUE(none.openObject().isNull());
    EXPECT_EQ(codeOf([&] { none.safeOpenObject(); }), eNullObjectId);
}

TEST_F(Objects, ErasedIdStaysValidButOpensNothing) {
    const OdDbObjectId id = addLine(*database, 1);
    id.safeOpenObject(OdDb::kForWrite)->erase(true);
    EXPECT_TRUE(id.isValid());
    EXPECT_TRUE(id.isErased());
    EXPECT_TRUE(id.openObject().isNull());
    EXPECT_EQ(codeOf([&] { id.safeOpenObject(); }), eWasErased);
    EXPECT_FALSE(id.openObject(OdDb::kForRead, true).isNull());
}

TEST_F(Objects, SettersThrowOnAnObjectOpenForRead) {
    const auto line = odrxCast<OdDbLine>(addLine(*database, 1).safeOpenObject());
    EXPECT_FALSE(line->isWriteEnabled());
    EXPECT_EQ(codeOf([&] { line->setEndPoint({5, 5, 0}); }), eNotOpenForWrite);
    EXPECT_EQ(line->endPoint(), OdGePoint3d(1, 0, 0));
}

TEST_F(Objects, UpgradeAndDowngradeSwitchWriting) {
    const auto line = odrxCast<OdDbLine>(addLine(*database, 1).safeOpenObject());
    line->upgradeOpen();
    EXPECT_TRUE(line->isWriteEnabled());
    line->setEndPoint({5, 5, 0});
    line->downgradeOpen();
    EXPECT_EQ(codeOf([&] { line->setEndPoint({6, 6, 0}); }), eNotOpenForWrite);
    EXPECT_EQ(line->endPoint(), OdGePoint3d(5, 5, 0));
}

TEST_F(Objects, ObjectThatNobodyRefersToIsClosed) {
    const OdDbObjectId id = addLine(*database, 1);
    odrxCast<OdDbLine>(id.safeOpenObject(OdDb::kForWrite))->setEndPoint({2, 0, 0});
    EXPECT_FALSE(id.safeOpenObject()->isWriteEnabled());
}

TEST_F(Objects, NewObjectIsOpenForWriteUntilItsPointersAreGone) {
    OdDbGroupPtr group(new OdDbGroup);
    group->setDescription(L"before");
    const OdDbObjectId id = groupsOf(*database, OdDb::kForWrite)->setAt(L"G", group.get());
    group->setDescription(L"after");
    group.release();
    EXPECT_FALSE(id.safeOpenObject()->isWriteEnabled());
    EXPECT_EQ(openGroup(id)->description(), OdString(L"after"));
}

TEST_F(Objects, CastToAnotherClassNamesBothClasses) {
    const OdDbObjectPtr line = addLine(*database, 1).safeOpenObject();
    try {
        odrxCast<OdDbGroup>(line);
        FAIL() << "a line was taken for a group";
    } catch (const OdError_NotThatKindOfClass& error) {
        EXPECT_EQ(error.fromClass(), OdDbLine::desc());
        EXPECT_EQ(error.toClass(), OdDbGroup::desc());
    }
}

TEST_F(Objects, SameObjectIsHandedOutWhileItIsOpen) {
    const OdDbObjectId id = database->getLayerTableId();
    const OdDbObjectPtr first = id.safeOpenObject();
    EXPECT_EQ(first, id.safeOpenObject());
}

TEST_F(Objects, HandleLeadsBackToTheId) {
    const OdDbObjectId id = addLine(*database, 1);
    EXPECT_EQ(database->getOdDbObjectId(id.getHandle()), id);
    EXPECT_TRUE(database->getOdDbObjectId(OdDbHandle(0xFFFFF)).isNull());
    EXPECT_EQ(OdDbHandle(id.getHandle().ascii()), id.getHandle());
}

TEST_F(Objects, EntityEntersOneDatabaseOnly) {
    OdDbLinePtr line(new OdDbLine);
    const auto space =
        odrxCast<OdDbBlockTableRecord>(database->getModelSpaceId().safeOpenObject(OdDb::kForWrite));
    space->appendOdDbEntity(line.get());
    EXPECT_EQ(codeOf([&] { space->appendOdDbEntity(line.get()); }), eAlreadyInDb);
    EXPECT_EQ(modelSpace().size(), 1u);
}

TEST_F(Objects, AppendingNeedsASpaceOpenForWrite) {
    OdDbLinePtr line(new OdDbLine);
    const auto space = odrxCast<OdDbBlockTableRecord>(database->getModelSpaceId().safeOpenObject());
    EXPECT_EQ(codeOf([&] { space->appendOdDbEntity(line.get()); }), eNotOpenForWrite);
}

TEST_F(Objects, ObjectOutlivesItsClosedDatabaseWithoutHarm) {
    OdDbObjectPtr line = addLine(*database, 7).safeOpenObject();
    database.release();
    EXPECT_TRUE(line->objectId().isNull());
    EXPECT_EQ(odrxCast<OdDbLine>(line)->endPoint().x, 7);
}

TEST_F(Objects, HighlightIsNeitherAChangeNorUndone) {
    const OdDbObjectId id = addLine(*database, 1);
    database->startUndoRecord();
    const auto line = odrxCast<OdDbEntity>(id.safeOpenObject());
    line->highlight(true, nullptr, false);
    EXPECT_TRUE(line->isHighlighted());
    line->highlight(false, nullptr, false);
    EXPECT_FALSE(line->isHighlighted());
}

TEST_F(Objects, ModifiedFollowsUndoBackToTheSavedState) {
    EXPECT_FALSE(database->isModified());
    database->startUndoRecord();
    addLine(*database, 1);
    EXPECT_TRUE(database->isModified());
    database->undo();
    EXPECT_FALSE(database->isModified());
}
