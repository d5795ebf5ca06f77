// Leaders with the sizes of their heads, and the widths of polylines.
#include "tests/sdk/db/drawing_fixture.h"

#include "sdk/db/leader.h"
#include "sdk/db/polyline.h"

namespace {

const std::string kStyles =
    "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nDIMSTYLE\n70\n1\n0\nDIMSTYLE\n105\n27\n100\nAcDbSymbolTableRecord\n1"
    "00\n"
    "AcDbDimStyleTableRecord\n2\nLarge\n70\n0\n40\n10.0\n41\n2.5\n0\nENDTAB\n0\nENDSEC\n";

std::string leader(const char* style, const std::string& extended = {}) {
    return std::string("0\nLEADER\n5\nA1\n100\nAcDbEntity\n8\n0\n100\nAcDbLeader\n3\n") + style +
           "\n71\n1\n72\n0\n76\n2\n10\n1.0\n20\n2.0\n30\n3.0\n10\n9.0\n20\n8.0\n30\n3.0\n340\n0\n211\n1."
           "0\n221\n0.0\n"
           "231\n0.0\n" +
           extended;
}

double sizeOfHead(const std::string& text) {
    const OdDbDatabasePtr database = drawingWith(text, kStyles);
    return onlyEntity<OdDbLeader>(*database)->arrowSize();
}

double widthOf(const std::string& text) {
    const OdDbDatabasePtr database = drawingWith(text, kStyles);
    return onlyEntity<OdDbPolylineBase>(*database)->constantWidth();
}

std::string light(const std::string& tags) {
    return "0\nLWPOLYLINE\n5\nA1\n100\nAcDbEntity\n8\n0\n100\nAcDbPolyline\n90\n2\n70\n0\n" + tags;
}

std::string old(const std::string& widths, const std::string& second) {
    return "0\nPOLYLINE\n5\nA1\n8\n0\n66\n1\n" + widths + "0\nVERTEX\n5\nA2\n8\n0\n10\n0.0\n20\n0.0\n" +
           "0\nVERTEX\n5\nA3\n8\n0\n10\n5.0\n20\n0.0\n" + second + "0\nSEQEND\n5\nA4\n8\n0\n";
}

} // namespace

TEST(Leaders, HaveVerticesAndExtents) {
    const OdDbDatabasePtr database = drawingWith(leader("Large"), kStyles);
    const auto entity = onlyEntity<OdDbLeader>(*database);
    EXPECT_EQ(entity->vertices(), (std::vector<OdGePoint3d>{{1, 2, 3}, {9, 8, 3}}));
    EXPECT_TRUE(entity->hasArrowHead());
    OdGeExtents3d box;
    ASSERT_EQ(entity->getGeomExtents(box), eOk);
    EXPECT_EQ(box.minPoint(), OdGePoint3d(1, 2, 3));
    EXPECT_EQ(box.maxPoint(), OdGePoint3d(9, 8, 3));
}

TEST(Leaders, TakeTheSizeOfTheHeadFromTheirStyleOrTheirOwnOverride) {
    EXPECT_EQ(sizeOfHead(leader("LARGE")), 25);
    EXPECT_EQ(sizeOfHead(leader("Missing")), 0.18);
    const std::string before = "1001\nACAD\n1000\nDSTYLE\n1002\n{\n", after = "1002\n}\n";
    EXPECT_EQ(sizeOfHead(leader("Large", before + "1070\n41\n1040\n4.0\n" + after)), 40);
    // A value that looks like a code is none, and the scale 0 is that of the model space.
    EXPECT_EQ(sizeOfHead(leader("Large", before + "1070\n77\n1070\n41\n1070\n40\n1040\n0.0\n" + after)), 2.5);
    EXPECT_EQ(sizeOfHead(leader("Large", "1001\nACAD\n1000\nDSTYLE\n")), 25);
}

TEST(Polylines, HaveAWidthWhenItIsTheSameEverywhere) {
    EXPECT_EQ(widthOf(light("43\n2.5\n10\n0.0\n20\n0.0\n10\n1.0\n20\n0.0\n")), 2.5);
    EXPECT_EQ(widthOf(light("10\n0.0\n20\n0.0\n10\n1.0\n20\n0.0\n")), 0);
    EXPECT_EQ(widthOf(light("10\n0.0\n20\n0.0\n40\n2.0\n41\n2.0\n10\n1.0\n20\n0.0\n40\n2.0\n41\n2.0\n")), 2);
    EXPECT_EQ(widthOf(light("10\n0.0\n20\n0.0\n40\n2.0\n41\n3.0\n10\n1.0\n20\n0.0\n40\n2.0\n41\n2.0\n")), 0);
    EXPECT_EQ(widthOf(light("10\n0.0\n20\n0.0\n40\n2.0\n41\n2.0\n10\n1.0\n20\n0.0\n")), 0);
}

TEST(Polylines, OldOnesHandTheirWidthToTheVertices) {
    EXPECT_EQ(widthOf(old("40\n2.0\n41\n2.0\n", "")), 2);
    EXPECT_EQ(widthOf(old("40\n2.0\n41\n2.0\n", "41\n5.0\n")), 0);
    EXPECT_EQ(widthOf(old("40\n2.0\n41\n3.0\n", "")), 0);
    EXPECT_EQ(widthOf(old("", "")), 0);
}
