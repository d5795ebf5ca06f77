// Files that are cut off, damaged or no drawings at all: an error with line and reason, or a drawing; never a
// crash.
#include "tests/sdk/dxf/drawing_texts.h"
#include "tests/sdk/dxf/reading_contract.h"

#include <cmath>

namespace {

std::string textOf(const OdError& error) { return error.description().toUtf8(); }

void expectNoHarm(const std::string& text) { EXPECT_EQ(faultOfReading(text), "") << text; }

} // namespace

TEST(BadInput, FilesThatAreNoDrawings) {
    EXPECT_EQ(errorOf("").code(), eInvalidDrawing);
    EXPECT_EQ(errorOf(" \n\n").code(), eInvalidDrawing);
    EXPECT_EQ(errorOf("AC1032\0\0\0\0\x01binary").code(), eUnsupportedFileFormat);
    EXPECT_EQ(errorOf("%PDF-1.4\n").code(), eBadDwgFile);
    EXPECT_EQ(errorOf(std::string(1000, '\0')).code(), eBadDwgFile);
}

TEST(BadInput, NewerVersionIsNotSupported) {
    const OdError error = errorOf(replaced(oldDrawing(), "AC1009", "AC1099"));
    EXPECT_EQ(error.code(), eUnsupportedFileFormat);
    EXPECT_NE(textOf(error).find("AC1099"), std::string::npos);
}

TEST(BadInput, ErrorsNameTheLineAndTheReason) {
    EXPECT_EQ(textOf(errorOf("  0\nSECTION\n  2\nHEADER\n  9\n$X\nfoo\nbar\n")),
              "test.dxf, line 7: a group code was expected");
    EXPECT_EQ(textOf(errorOf("  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n 8\n0\n")),
              "test.dxf, line 9: the file ends before its end mark");
    EXPECT_EQ(textOf(errorOf("  0\nLINE\n  8\n0\n  0\nEOF\n")),
              "test.dxf, line 1: a record outside of the sections");
    EXPECT_EQ(
        textOf(errorOf("  0\nSECTION\n  2\nENTITIES\n  0\nSECTION\n  2\nBLOCKS\n  0\nENDSEC\n  0\nEOF\n")),
        "test.dxf, line 5: a section within a section");
    EXPECT_EQ(textOf(errorOf(replaced(oldDrawing(), "  0\nENDBLK\n  8\n0\n", ""))),
              "test.dxf, line 67: a block without an end");
    EXPECT_EQ(textOf(errorOf(replaced(oldDrawing(), "  0\nENDTAB\n", ""))),
              "test.dxf, line 35: a table without an end");
}

TEST(BadInput, TruncationAnywhereDoesNoHarm) {
    for (const std::string& text : {oldDrawing(), sampleDrawing()})
        for (std::size_t size = 0; size < text.size(); size += 64)
            expectNoHarm(text.substr(0, size));
}

TEST(BadInput, EveryDamagedLineDoesNoHarm) {
    const std::string text = oldDrawing();
    for (const std::string& damage :
         {std::string("?"), std::string("-1"), std::string("99999"), std::string(), std::string(1, '\0'),
          std::string("0"), std::string("nan")}) {
        for (std::size_t start = 0; start < text.size();) {
            const std::size_t end = text.find('\n', start);
            expectNoHarm(text.substr(0, start) + damage + text.substr(end));
            expectNoHarm(text.substr(0, start) + text.substr(end + 1));
            start = end + 1;
        }
    }
}

TEST(BadInput, EveryDamagedLineOfANewDrawingDoesNoHarm) {
    const std::string text = sampleDrawing();
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find('\n', start);
        expectNoHarm(text.substr(0, start) + "FFFFFFFFFFFFFFFF" + text.substr(end));
        expectNoHarm(text.substr(0, start) + text.substr(end + 1));
        start = end + 1;
    }
}

TEST(BadInput, DuplicateAndDanglingHandlesGiveAWarningAndNoLoss) {
    std::string text = sampleDrawing();
    const OdDbDatabasePtr whole = OdDbDatabase::readBytes(text);
    const OdDbObjectIdArray ids = modelSpaceOf(*whole)->entityIds();
    const std::string first = "  5\n" + ids[0].getHandle().ascii().toUtf8() + "\n";
    const std::string second = "  5\n" + ids[1].getHandle().ascii().toUtf8() + "\n";
    text = replaced(text, second, first);
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    ASSERT_EQ(database->readWarnings().size(), 1u);
    EXPECT_NE(database->readWarnings()[0].toUtf8().find("handle of another one"), std::string::npos);
    EXPECT_EQ(modelSpaceOf(*database)->entityIds().size(), 3u);
    const auto groups = odrxCast<OdDbDictionary>(database->getGroupDictionaryId().safeOpenObject());
    EXPECT_EQ(odrxCast<OdDbGroup>(groups->getAt(L"G", OdDb::kForRead))->numEntities(), 2u);
    EXPECT_EQ(database->writeBytes(), text);
}

TEST(BadInput, BlocksThatContainThemselvesEnd) {
    const std::string insert = "  0\nINSERT\n  8\n0\n  2\nPART\n 10\n0.0\n 20\n0.0\n";
    const OdDbDatabasePtr database =
        OdDbDatabase::readBytes(replaced(oldDrawing(), "  0\nCIRCLE\n", insert + "  0\nCIRCLE\n"));
    EXPECT_TRUE(modelSpaceOf(*database)->extents().isValidExtents());
}

TEST(BadInput, DeeplyNestedInsertsAreMeasuredAtOnce) {
    std::string blocks;
    for (int level = 0; level < 64; ++level) {
        const std::string own = "B" + std::to_string(level), inner = "B" + std::to_string(level + 1);
        blocks += "  0\nBLOCK\n  8\n0\n  2\n" + own + "\n 70\n0\n 10\n0.0\n 20\n0.0\n";
        for (int i = 0; i < 64; ++i)
            blocks += "  0\nINSERT\n  8\n0\n  2\n" + inner + "\n 10\n" + std::to_string(i) + ".0\n 20\n0.0\n";
        blocks += "  0\nENDBLK\n  8\n0\n";
    }
    blocks +=
        "  0\nBLOCK\n  8\n0\n  2\nB64\n 70\n0\n 10\n0.0\n 20\n0.0\n  0\nPOINT\n  8\n0\n 10\n0.0\n 20\n0.0\n"
        "  0\nENDBLK\n  8\n0\n";
    std::string text = replaced(oldDrawing(), "  0\nBLOCK\n", blocks + "  0\nBLOCK\n");
    text = replaced(text, "  2\npart\n", "  2\nB0\n");
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    EXPECT_NEAR(modelSpaceOf(*database)->extents().maxPoint().x, 10 + 2 * 64 * 63, 1e-6);
}

TEST(BadInput, CoordinatesThatAreNoNumbersCoverNothing) {
    const std::string text = replaced(oldDrawing(), " 11\n3.0\n", " 11\nnan\n");
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    const OdGeExtents3d box = modelSpaceOf(*database)->extents();
    EXPECT_TRUE(std::isfinite(box.maxPoint().x));
}

TEST(BadInput, GroupCodesOutOfRangeAreRefusedWithTheirLine) {
    for (const char* code : {"-6", "1072", "99999", "-32769", "123456789"}) {
        const OdError error =
            errorOf(replaced(oldDrawing(), "  0\nLINE\n  8\n", std::string("  0\nLINE\n") + code + "\n"));
        EXPECT_EQ(error.code(), eDxfReadError) << code;
        EXPECT_NE(textOf(error).find("line "), std::string::npos) << textOf(error);
        EXPECT_NE(textOf(error).find("group code"), std::string::npos) << textOf(error);
    }
}

TEST(BadInput, TableThatClaimsAMillionRecordsHasThoseThatItHas) {
    const OdDbDatabasePtr database =
        OdDbDatabase::readBytes(replaced(oldDrawing(), " 70\n1000000\n", " 70\n999999999999\n"));
    EXPECT_EQ(odrxCast<OdDbLayerTable>(database->getLayerTableId().safeOpenObject())->numRecords(), 1);
}

TEST(BadInput, ListsThatClaimAMillionMembersHaveThoseThatTheyHave) {
    const std::string counts =
        "  0\nLWPOLYLINE\n  8\n0\n 90\n1000000000\n 10\n1.0\n 20\n2.0\n"
        "  0\nSPLINE\n  8\n0\n 71\n1000000000\n 72\n1000000000\n 73\n1000000000\n 10\n1.0\n 20\n2.0\n"
        "  0\nHATCH\n  8\n0\n 91\n1000000000\n 92\n2\n 93\n1000000000\n 10\n1.0\n 20\n2.0\n";
    expectNoHarm(replaced(oldDrawing(), "  0\nLINE\n", counts + "  0\nLINE\n"));
}

TEST(BadInput, HugeCoordinatesAreKeptAsTheyStand) {
    for (const char* number : {"1e308", "-1e308", "1e999", "123456789012345678901234567890"}) {
        const std::string text = replaced(oldDrawing(), " 11\n3.0\n", std::string(" 11\n") + number + "\n");
        expectNoHarm(text);
        expectNoHarm(replaced(text, " 41\n2.0\n 42\n2.0\n",
                              std::string(" 41\n") + number + "\n 42\n" + number + "\n"));
    }
}

TEST(BadInput, NulBytesAnywhereDoNoHarm) {
    const std::string text = oldDrawing();
    for (std::size_t place = 0; place < text.size(); place += 3)
        expectNoHarm(text.substr(0, place) + std::string(2, '\0') + text.substr(place));
}

TEST(BadInput, HandlesThatLeadNowhereAreKept) {
    const std::string text =
        replaced(sampleDrawing(), "330\n1F\n100\nAcDbEntity\n", "330\nDEAD\n100\nAcDbEntity\n");
    expectNoHarm(replaced(text, "340\n104\n", "340\nBEEF\n"));
}
