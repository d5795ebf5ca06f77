// Records whose tags stand elsewhere than their class says: they are read as other readers take them.
#include "tests/sdk/dxf/reading_contract.h"

#include "sdk/db/polyline.h"
#include "tests/sdk/db/drawing_fixture.h"
#include "tests/sdk/dxf/drawing_texts.h"

namespace {

// A newer drawing with `record` as its only entity.
std::string newDrawingWith(const std::string& record) {
    return replaced(OdDbDatabase::createEmpty()->writeBytes(), "  0\nENDSEC\n  0\nSECTION\n  2\nOBJECTS\n",
                    record + "  0\nENDSEC\n  0\nSECTION\n  2\nOBJECTS\n");
}

const std::string kStart = "  5\nABC\n330\n1F\n100\nAcDbEntity\n";

} // namespace

TEST(MisplacedTags, CommonPropertiesHoldBehindALaterMarker) {
    const std::string text = newDrawingWith(
        "  0\nLINE\n" + kStart +
        "100\nAcDbLine\n 62\n1\n  6\nDASHED\n  8\nWALLS\n420\n255\n 60\n1\n 10\n1.0\n 20\n2.0\n 30\n"
        "0.0\n 11\n3.0\n 21\n4.0\n 31\n0.0\n");
    EXPECT_EQ(faultOfReading(text), "");
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    const auto line = onlyEntity<OdDbLine>(*database, OdDb::kForWrite);
    EXPECT_EQ(line->layer(), OdString(L"WALLS"));
    EXPECT_EQ(line->linetype(), OdString(L"DASHED"));
    EXPECT_EQ(line->colorIndex(), 1);
    EXPECT_EQ(line->trueColor(), 255u);
    EXPECT_FALSE(line->isVisible());
    line->setColorIndex(5);
    EXPECT_EQ(database->writeBytes(), replaced(replaced(text, " 62\n1\n", " 62\n5\n"), "420\n255\n", ""))
        << "the tag that was read is the one that is set";
}

TEST(MisplacedTags, CodesWithAnotherMeaningInTheirOwnPartAreNoCommonProperties) {
    const std::string text =
        newDrawingWith("  0\nMTEXT\n" + kStart +
                       "  8\n0\n100\nAcDbMText\n 10\n1.0\n 20\n2.0\n 30\n0.0\n 40\n2.5\n  1\nx\n"
                       " 90\n1\n 63\n5\n420\n255\n 48\n77.0\n");
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    const auto paragraph = onlyEntity<OdDbMText>(*database, OdDb::kForWrite);
    EXPECT_FALSE(paragraph->hasTrueColor()) << "420 is the colour behind the text";
    EXPECT_EQ(paragraph->commonTag(48), DxfTagList::npos) << "48 is the width of a column";
    paragraph->setTrueColor(7);
    EXPECT_EQ(paragraph->trueColor(), 7u);
    EXPECT_NE(database->writeBytes().find(" 63\n5\n420\n255\n"), std::string::npos);
}

TEST(MisplacedTags, DataBeforeTheMarkerAreRead) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(newDrawingWith(
        "  0\nARC\n" + kStart +
        "  8\n0\n 10\n1.0\n 20\n2.0\n 30\n0.0\n 40\n3.0\n100\nAcDbArc\n 50\n0.0\n 51\n90.0\n"));
    const auto arc = onlyEntity<OdDbArc>(*database, OdDb::kForWrite);
    EXPECT_EQ(arc->center(), OdGePoint3d(1, 2, 0));
    EXPECT_EQ(arc->radius(), 3);
    arc->setCenter({7, 8, 0});
    EXPECT_EQ(arc->center(), OdGePoint3d(7, 8, 0));
    EXPECT_EQ(database->writeBytes().find(" 10\n1.0\n 20\n2.0\n"), std::string::npos);
}

TEST(MisplacedTags, APolylineMayHaveItsCornersBeforeTheMarkerOrNoMarkerAtAll) {
    const std::string corners = " 90\n2\n 70\n1\n 10\n1.0\n 20\n2.0\n 10\n5.0\n 20\n6.0\n";
    for (const std::string& record : {kStart + "  8\n0\n" + corners + "100\nAcDbPolyline\n",
                                      kStart + "  8\n0\n" + corners, "  5\nABC\n  8\n0\n" + corners}) {
        const OdDbDatabasePtr database =
            OdDbDatabase::readBytes(newDrawingWith("  0\nLWPOLYLINE\n" + record));
        const auto polyline = onlyEntity<OdDbPolyline>(*database, OdDb::kForWrite);
        ASSERT_EQ(polyline->vertices().size(), 2u) << record;
        EXPECT_EQ(polyline->vertices()[1].point, OdGePoint3d(5, 6, 0));
        EXPECT_TRUE(polyline->isClosed());
    }
}

TEST(MisplacedTags, APointEndsWithItsPart) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(newDrawingWith(
        "  0\nLINE\n" + kStart +
        "  8\n0\n100\nAcDbLine\n 10\n1.0\n 20\n2.0\n 11\n3.0\n 21\n4.0\n100\nOther\n 30\n9.0\n"));
    EXPECT_EQ(onlyEntity<OdDbLine>(*database, OdDb::kForWrite)->startPoint(), OdGePoint3d(1, 2, 0));
}

TEST(MisplacedTags, ReferenceArraysHaveAMarkerOfTheirOwn) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(newDrawingWith(
        "  0\nINSERT\n" + kStart +
        "  8\n0\n100\nAcDbMInsertBlock\n  2\nPART\n 10\n1.0\n 20\n2.0\n 30\n0.0\n 70\n3\n 44\n5.0\n"));
    const auto insert = onlyEntity<OdDbBlockReference>(*database, OdDb::kForWrite);
    EXPECT_EQ(insert->blockName(), OdString(L"PART"));
    EXPECT_EQ(insert->columnCount(), 3);
    insert->setBlockName(L"OTHER");
    EXPECT_EQ(database->writeBytes().find("PART"), std::string::npos);
}

TEST(EmbeddedObjects, EndTheTagsOfTheirText) {
    const std::string text = newDrawingWith(
        "  0\nMTEXT\n" + kStart +
        "  8\n0\n100\nAcDbMText\n 10\n1.0\n 20\n2.0\n 30\n0.0\n 40\n2.5\n 41\n50.0\n 71\n1\n  1\none\\Ntwo\n"
        "101\nEmbedded Object\n 70\n1\n 10\n0.0\n 20\n1.0\n 30\n0.0\n 11\n9.0\n 21\n9.0\n 31\n0.0\n "
        "40\n50.0\n"
        " 41\n30.0\n 42\n110.0\n 43\n30.0\n 71\n2\n 72\n2\n 44\n50.0\n 45\n10.0\n 73\n0\n 74\n0\n 46\n20.0\n"
        " 46\n0.0\n 62\n3\n");
    EXPECT_EQ(faultOfReading(text), "");
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    const auto paragraph = onlyEntity<OdDbMText>(*database, OdDb::kForWrite);
    EXPECT_EQ(paragraph->location(), OdGePoint3d(1, 2, 0));
    EXPECT_NEAR(paragraph->rotation(), M_PI / 2, 1e-12)
        << "the direction stands in the embedded object alone";
    EXPECT_EQ(paragraph->colorIndex(), OdDbEntity::kByLayer);
    EXPECT_EQ(paragraph->attachment(), 1);
    const OdDbMText::Columns columns = paragraph->columns();
    EXPECT_EQ(columns.count, 2);
    EXPECT_EQ(columns.width, 50);
    EXPECT_EQ(columns.gutter, 10);
    EXPECT_EQ(columns.height, 30);
    EXPECT_EQ(columns.heights, (std::vector<double>{20, 0}));
    paragraph->setColorIndex(5);
    EXPECT_EQ(database->writeBytes(), replaced(text, "100\nAcDbMText\n", " 62\n5\n100\nAcDbMText\n"));
}

TEST(EmbeddedObjects, ColumnsThatGrowByThemselvesAreCountedByTheirWidth) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(
        newDrawingWith("  0\nMTEXT\n" + kStart +
                       "  8\n0\n100\nAcDbMText\n 40\n2.5\n 71\n1\n 11\n1.0\n 21\n0.0\n  1\nx\n"
                       "101\nEmbedded Object\n 70\n1\n 11\n4.0\n 21\n5.0\n 31\n0.0\n 42\n170.0\n"
                       " 71\n2\n 72\n0\n 44\n50.0\n 45\n10.0\n 73\n1\n"));
    EXPECT_EQ(onlyEntity<OdDbMText>(*database, OdDb::kForWrite)->columns().count, 3);
    EXPECT_EQ(onlyEntity<OdDbMText>(*database, OdDb::kForWrite)->location(), OdGePoint3d(4, 5, 0));
}

TEST(EmbeddedObjects, AttributesHaveAllTheirLines) {
    const std::string text = newDrawingWith(
        "  0\nINSERT\n" + kStart +
        "  8\n0\n100\nAcDbBlockReference\n 66\n1\n  2\nPART\n 10\n0.0\n 20\n0.0\n 30\n0.0\n"
        "  0\nATTRIB\n  5\nABD\n330\nABC\n100\nAcDbEntity\n  8\nNOTES\n100\nAcDbText\n 10\n1.0\n 20\n2.0\n "
        "30\n0.0\n 40\n2.5\n"
        "  1\nfirst\n100\nAcDbAttribute\n280\n0\n  2\nTAG\n 70\n0\n 71\n2\n 72\n0\n101\nEmbedded Object\n "
        "70\n1\n"
        " 10\n3.0\n 20\n4.0\n 30\n0.0\n 40\n1.5\n 41\n0.0\n 71\n5\n 72\n5\n  1\nfirst\\Psecond\n  "
        "7\nStandard\n"
        " 11\n1.0\n 21\n0.0\n 31\n0.0\n  0\nSEQEND\n  5\nABE\n330\nABC\n100\nAcDbEntity\n  8\n0\n");
    EXPECT_EQ(faultOfReading(text), "");
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    const auto insert = onlyEntity<OdDbBlockReference>(*database, OdDb::kForWrite);
    ASSERT_EQ(insert->attributes().size(), 1u);
    const auto attribute = odrxCast<OdDbAttribute>(insert->attributes()[0].safeOpenObject());
    EXPECT_EQ(attribute->position(), OdGePoint3d(1, 2, 0));
    EXPECT_EQ(attribute->horizontalMode(), 0) << "5 is the direction in which the paragraph flows";
    const OdDbMTextPtr paragraph = attribute->paragraph();
    ASSERT_FALSE(paragraph.isNull());
    EXPECT_EQ(paragraph->plainText(), OdString(L"first\nsecond"));
    EXPECT_EQ(paragraph->location(), OdGePoint3d(3, 4, 0));
    EXPECT_EQ(paragraph->textHeight(), 1.5);
    EXPECT_EQ(paragraph->attachment(), 5);
    EXPECT_EQ(paragraph->layer(), OdString(L"NOTES"));
}
