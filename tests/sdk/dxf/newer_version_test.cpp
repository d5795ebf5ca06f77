// Drawings of the oldest version become newer ones, which have a place for groups.
#include "tests/sdk/dxf/drawing_texts.h"

#include "sdk/db/newer_version.h"
#include "sdk/db/polyline.h"
#include "sdk/db/xref_man.h"

namespace {

OdDbDatabasePtr newer(OdDbDatabase& database) {
    std::vector<OdString> leftOut;
    return odDbInNewerVersion(database, leftOut);
}

void addGroup(OdDbDatabase& database, const wchar_t* name) {
    const auto groups =
        odrxCast<OdDbDictionary>(database.getGroupDictionaryId(true).safeOpenObject(OdDb::kForWrite));
    OdDbGroupPtr group(new OdDbGroup);
    groups->setAt(name, group.get());
    group->append(modelSpaceOf(database)->entityIds());
    group->setDescription(L"Gr\u00fc\u00dfe");
    group->setSelectable(false);
}

OdDbGroupPtr groupOf(OdDbDatabase& database, const wchar_t* name) {
    const auto groups = odrxCast<OdDbDictionary>(database.getGroupDictionaryId().safeOpenObject());
    return odrxCast<OdDbGroup>(groups->getAt(name, OdDb::kForRead));
}

} // namespace

TEST(NewerVersion, SavingGroupsInTheOldestOneNamesTheWayOut) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(oldDrawing());
    addGroup(*database, L"G");
    try {
        database->writeBytes();
        FAIL() << "groups were written";
    } catch (const OdError& error) {
        EXPECT_NE(error.description().toUtf8().find("newer version"), std::string::npos);
    }
}

TEST(NewerVersion, IsNeededByGroupsInTheOldestOneAlone) {
    const OdDbDatabasePtr old = OdDbDatabase::readBytes(oldDrawing());
    EXPECT_FALSE(odDbNeedsNewerVersion(*old));
    addGroup(*old, L"G");
    EXPECT_TRUE(odDbNeedsNewerVersion(*old));
    EXPECT_FALSE(odDbNeedsNewerVersion(*newer(*old)));
    const auto group = groupOf(*old, L"G");
    group->upgradeOpen();
    group->erase();
    EXPECT_FALSE(odDbNeedsNewerVersion(*old));
    EXPECT_NO_THROW(old->writeBytes());
}

TEST(NewerVersion, GroupsComeAlongWithTheirMembers) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(oldDrawing());
    addGroup(*database, L"G");
    const OdDbDatabasePtr made = newer(*database);
    EXPECT_EQ(made->versionName(), OdString(L"AC1027"));
    EXPECT_TRUE(made->readWarnings().empty());
    const OdDbGroupPtr group = groupOf(*made, L"G");
    OdDbObjectIdArray members;
    group->allEntityIds(members);
    EXPECT_EQ(members, modelSpaceOf(*made)->entityIds());
    EXPECT_EQ(group->description(), OdString(L"Gr\u00fc\u00dfe"));
    EXPECT_FALSE(group->isSelectable());
}

TEST(NewerVersion, EntitiesBlocksLayersAndTextsComeAlong) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(oldDrawing());
    const OdDbDatabasePtr made = newer(*database);
    const OdDbObjectIdArray ids = modelSpaceOf(*made)->entityIds();
    ASSERT_EQ(ids.size(), modelSpaceOf(*database)->entityIds().size());
    EXPECT_EQ(odrxCast<OdDbText>(ids[2].safeOpenObject())->textString(), OdString(L"K\u00fcche \u4e16"));
    EXPECT_EQ(odrxCast<OdDb2dPolyline>(ids[3].safeOpenObject())->vertices().size(), 2u);
    EXPECT_TRUE(odrxCast<OdDbBlockReference>(ids[1].safeOpenObject())->blockTableRecord().isValid());
    const auto layers = odrxCast<OdDbLayerTable>(made->getLayerTableId().safeOpenObject());
    EXPECT_TRUE(odrxCast<OdDbLayerTableRecord>(layers->getAt(L"WALLS", OdDb::kForRead))->isOff());
    const OdGeExtents3d before = modelSpaceOf(*database)->extents(), after = modelSpaceOf(*made)->extents();
    EXPECT_EQ(after.minPoint(), before.minPoint());
    EXPECT_EQ(after.maxPoint(), before.maxPoint());
}

TEST(NewerVersion, MarkersAndReferencesThatAreThereAlreadyAreNotTakenTwice) {
    const std::string arc =
        "  0\nARC\n  5\n2F\n102\n{ACAD_REACTORS\n330\nAB\n102\n}\n330\n1F\n100\nAcDbEntity\n  8\n0\n"
        " 10\n1.0\n 20\n2.0\n 40\n3.0\n100\nAcDbArc\n 50\n0.0\n 51\n90.0\n";
    const std::string other = "  0\nOTHER\n100\nAcDbEntity\n  8\n0\n100\nAcDbOther\n 10\n1.0\n";
    const OdDbDatabasePtr database =
        OdDbDatabase::readBytes(replaced(oldDrawing(), "  0\nLINE\n", arc + other + "  0\nLINE\n"));
    const OdDbDatabasePtr made = newer(*database);
    const OdDbObjectIdArray ids = modelSpaceOf(*made)->entityIds();
    const auto newArc = odrxCast<OdDbArc>(ids[0].safeOpenObject());
    EXPECT_EQ(newArc->center(), OdGePoint3d(1, 2, 0));
    EXPECT_EQ(newArc->radius(), 3);
    EXPECT_NEAR(newArc->endAngle(), M_PI / 2, 1e-12);
    const auto markersIn = [](const DxfTagList& tags) {
        std::string markers;
        for (const DxfTag& tag : tags)
            if (tag.code == 100 || tag.code == 102)
                markers += std::string(tag.value()) + " ";
        return markers;
    };
    EXPECT_EQ(markersIn(newArc->tags()), "AcDbEntity AcDbCircle AcDbArc ");
    EXPECT_EQ(markersIn(ids[1].safeOpenObject()->tags()), "AcDbEntity AcDbOther ");
    EXPECT_EQ(newArc->ownerId(), made->getModelSpaceId());
}

TEST(NewerVersion, ReferencesKeepTheirPathAndKind) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(oldDrawing());
    OdDbXRefManExt::addNewXRefDefBlock(database.get(), L"other.dxf", L"Plan", true);
    const OdDbDatabasePtr made = newer(*database);
    const auto blocks = odrxCast<OdDbBlockTable>(made->getBlockTableId().safeOpenObject());
    const auto block = odrxCast<OdDbBlockTableRecord>(
        static_cast<const OdDbSymbolTable&>(*blocks).getAt(L"Plan").safeOpenObject());
    EXPECT_TRUE(block->isFromOverlayReference());
    EXPECT_EQ(block->pathName(), OdString(L"other.dxf"));
}

TEST(NewerVersion, WhatHasNoPlaceIsNamed) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(
        replaced(oldDrawing(), "  9\n$DWGCODEPAGE\n", "  9\n$FLATLAND\n 70\n1\n  9\n$DWGCODEPAGE\n"));
    std::vector<OdString> leftOut;
    odDbInNewerVersion(*database, leftOut);
    ASSERT_EQ(leftOut.size(), 1u);
    EXPECT_EQ(leftOut[0], OdString(L"the header value $FLATLAND"));
}

TEST(NewerVersion, LaterVersionsAreLeftAsTheyAre) {
    std::vector<OdString> leftOut;
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    EXPECT_THROW(odDbInNewerVersion(*database, leftOut), OdError);
}
