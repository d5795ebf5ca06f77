// Drawings of several versions as they are read and written.
#include "tests/sdk/dxf/drawing_texts.h"

#include "sdk/db/summary_info.h"

TEST(Reading, OldestVersionIsUnderstood) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(oldDrawing());
    EXPECT_EQ(database->versionName(), OdString(L"AC1009"));
    EXPECT_TRUE(database->readWarnings().empty());
    const OdDbObjectIdArray ids = modelSpaceOf(*database)->entityIds();
    ASSERT_EQ(ids.size(), 4u);
    const auto line = odrxCast<OdDbLine>(ids[0].safeOpenObject());
    EXPECT_EQ(line->endPoint(), OdGePoint3d(3, 4, 0));
    EXPECT_EQ(line->layer(), OdString(L"WALLS"));
    const auto layer = odrxCast<OdDbLayerTableRecord>(line->layerId().safeOpenObject());
    EXPECT_TRUE(layer->isOff());
    EXPECT_EQ(layer->colorIndex(), 3);
    EXPECT_EQ(odrxCast<OdDbText>(ids[2].safeOpenObject())->textString(), OdString(L"K\u00fcche \u4e16"));
}

TEST(Reading, InsertsReachTheirBlocks) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(oldDrawing());
    const auto insert =
        odrxCast<OdDbBlockReference>(modelSpaceOf(*database)->entityIds()[1].safeOpenObject());
    const auto block = odrxCast<OdDbBlockTableRecord>(insert->blockTableRecord().safeOpenObject());
    EXPECT_EQ(block->getName(), OdString(L"PART"));
    EXPECT_EQ(block->origin(), OdGePoint3d(1, 2, 0));
    OdGeExtents3d box;
    ASSERT_EQ(insert->getGeomExtents(box), eOk);
    EXPECT_EQ(box.minPoint(), OdGePoint3d(4, 14, 0));
    EXPECT_EQ(box.maxPoint(), OdGePoint3d(16, 26, 0));
}

TEST(Reading, OldPolylinesHaveTheirVertices) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(oldDrawing());
    const auto curve = odrxCast<OdDbEntity>(modelSpaceOf(*database)->entityIds()[3].safeOpenObject());
    OdGeExtents3d box;
    ASSERT_EQ(curve->getGeomExtents(box), eOk);
    EXPECT_NEAR(box.minPoint().y, -2, 1e-9);
    EXPECT_NEAR(box.maxPoint().x, 4, 1e-9);
}

TEST(Reading, UnchangedDrawingIsWrittenByteForByte) {
    const std::string crlf = [] {
        std::string text;
        for (const char c : oldDrawing())
            text += c == '\n' ? std::string("\r\n") : std::string(1, c);
        return text;
    }();
    for (const std::string& text :
         {oldDrawing(), crlf, sampleDrawing(), "999\na comment\n" + oldDrawing(),
          "\xEF\xBB\xBF" + oldDrawing(), oldDrawing() + "what follows the end mark\n"})
        EXPECT_EQ(OdDbDatabase::readBytes(text)->writeBytes(), text);
}

TEST(Reading, OpeningObjectsChangesNothing) {
    const std::string text = sampleDrawing();
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    for (OdDbObjectIterator it = modelSpaceOf(*database)->newIterator(); !it.done(); it.step())
        it.entity(OdDb::kForWrite);
    database->getGroupDictionaryId(true).safeOpenObject(OdDb::kForWrite);
    EXPECT_FALSE(database->isModified());
    EXPECT_EQ(database->writeBytes(), text);
}

TEST(Reading, ChangedObjectKeepsTheTagsThatWereNotSet) {
    const std::string text =
        replaced(oldDrawing(), " 11\n3.0\n", " 39\n 7.77\n 11\n3.0\n1001\nAPP\n1000\nkept\n");
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    odrxCast<OdDbLine>(modelSpaceOf(*database)->entityIds()[0].safeOpenObject(OdDb::kForWrite))
        ->setColorIndex(5);
    EXPECT_EQ(database->writeBytes(), replaced(text, "1001\nAPP\n", " 62\n5\n1001\nAPP\n"));
}

TEST(Reading, UnknownEntitiesObjectsAndSectionsAreKept) {
    std::string text = replaced(oldDrawing(), "  0\nLINE\n", "  0\nWHATEVER\n  8\n0\n310\nABCD\n  0\nLINE\n");
    text = replaced(text, "  0\nEOF\n",
                    "  0\nSECTION\n  2\nSTRANGE\n  0\nTHING\n  1\nx\n  0\nENDSEC\n  0\nEOF\n");
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    EXPECT_EQ(modelSpaceOf(*database)->entityIds().size(), 5u);
    modelSpaceOf(*database)->entityIds()[1].safeOpenObject(OdDb::kForWrite)->erase(true);
    EXPECT_NE(database->writeBytes().find("WHATEVER\n  8\n0\n310\nABCD\n"), std::string::npos);
    EXPECT_NE(database->writeBytes().find("STRANGE\n  0\nTHING\n"), std::string::npos);
}

TEST(Reading, NewEntitiesOfAFileWithoutHandlesHaveNone) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(oldDrawing());
    OdDbLinePtr line(new OdDbLine);
    modelSpaceOf(*database, OdDb::kForWrite)->appendOdDbEntity(line.get());
    const std::string text = database->writeBytes();
    EXPECT_EQ(text.find("  5\n"), std::string::npos);
    EXPECT_EQ(text.find("AcDb"), std::string::npos);
    EXPECT_EQ(modelSpaceOf(*OdDbDatabase::readBytes(text))->entityIds().size(), 5u);
}

TEST(Reading, DrawingWithoutAnySectionButEntitiesIsEnough) {
    const std::string text = "0\nSECTION\n2\nENTITIES\n0\nPOINT\n8\n0\n10\n1.0\n20\n2.0\n0\nENDSEC\n0\nEOF\n";
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    EXPECT_EQ(modelSpaceOf(*database)->entityIds().size(), 1u);
    EXPECT_EQ(database->writeBytes(), text);
    OdSmartPtr<OdDbLayerTableRecord> layer(new OdDbLayerTableRecord);
    layer->setName(L"New");
    odrxCast<OdDbLayerTable>(database->getLayerTableId().safeOpenObject(OdDb::kForWrite))->add(layer.get());
    const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes());
    EXPECT_TRUE(odrxCast<OdDbLayerTable>(again->getLayerTableId().safeOpenObject())->has(L"NEW"));
}

TEST(Reading, NewBlocksAndLayersAreWrittenInTheirPlaces) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(sampleDrawing());
    EXPECT_TRUE(database->readWarnings().empty());
    const auto blocks = odrxCast<OdDbBlockTable>(database->getBlockTableId().safeOpenObject());
    const auto part =
        odrxCast<OdDbBlockTableRecord>(blocks->OdDbSymbolTable::getAt(L"part").safeOpenObject());
    EXPECT_EQ(part->entityIds().size(), 1u);
    const auto groups = odrxCast<OdDbDictionary>(database->getGroupDictionaryId().safeOpenObject());
    EXPECT_EQ(odrxCast<OdDbGroup>(groups->getAt(L"G", OdDb::kForRead))->numEntities(), 3u);
}

TEST(Reading, SavingTwiceWritesTheSame) {
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    OdDbLinePtr line(new OdDbLine);
    modelSpaceOf(*database, OdDb::kForWrite)->appendOdDbEntity(line.get());
    const std::string first = database->writeBytes();
    EXPECT_EQ(database->writeBytes(), first);
    EXPECT_EQ(OdDbDatabase::readBytes(first)->writeBytes(), first);
}

TEST(Reading, PaperSpaceEntitiesStandInTheirLayout) {
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    OdDbLinePtr line(new OdDbLine);
    odrxCast<OdDbBlockTableRecord>(database->getPaperSpaceId().safeOpenObject(OdDb::kForWrite))
        ->appendOdDbEntity(line.get());
    const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes());
    EXPECT_TRUE(modelSpaceOf(*again)->entityIds().empty());
    const auto paper = odrxCast<OdDbBlockTableRecord>(again->getPaperSpaceId().safeOpenObject());
    ASSERT_EQ(paper->entityIds().size(), 1u);
    EXPECT_TRUE(odrxCast<OdDbEntity>(paper->entityIds()[0].safeOpenObject())->isInPaperSpace());
}

TEST(Reading, RenamedBlockKeepsItsReferences) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(oldDrawing());
    const OdDbObjectId insert = modelSpaceOf(*database)->entityIds()[1];
    const auto blockId = [&] {
        return odrxCast<OdDbBlockReference>(insert.safeOpenObject())->blockTableRecord();
    };
    const OdDbObjectId block = blockId();
    database->startTransaction();
    odrxCast<OdDbBlockTableRecord>(block.safeOpenObject(OdDb::kForWrite))->setName(L"PIECE");
    EXPECT_EQ(blockId(), block);
    EXPECT_EQ(OdDbDatabase::readBytes(database->writeBytes())->writeBytes().find("PART"), std::string::npos);
    database->abortTransaction();
    EXPECT_EQ(blockId(), block);
    EXPECT_EQ(database->writeBytes(), oldDrawing());
}
