// Drawing texts for the tests of this folder.
#pragma once

#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"
#include "sdk/db/layer_table.h"
#include "sdk/db/text.h"

#include <gtest/gtest.h>

// A drawing of the oldest version: a block, entities without handles, a layer.
inline std::string oldDrawing() {
    return "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1009\n  9\n$DWGCODEPAGE\n  3\nANSI_1252\n  "
           "0\nENDSEC\n"
           "  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nLAYER\n 70\n1000000\n"
           "  0\nLAYER\n  2\nWALLS\n 70\n0\n 62\n-3\n  6\nCONTINUOUS\n  0\nENDTAB\n  0\nENDSEC\n"
           "  0\nSECTION\n  2\nBLOCKS\n  0\nBLOCK\n  8\n0\n  2\nPART\n 70\n0\n 10\n1.0\n 20\n2.0\n 30\n0.0\n"
           "  0\nCIRCLE\n  8\n0\n 10\n1.0\n 20\n2.0\n 40\n3.0\n  0\nENDBLK\n  8\n0\n  0\nENDSEC\n"
           "  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n  8\nWALLS\n 10\n0.0\n 20\n0.0\n 11\n3.0\n 21\n4.0\n"
           "  0\nINSERT\n  8\n0\n  2\npart\n 10\n10.0\n 20\n20.0\n 41\n2.0\n 42\n2.0\n"
           "  0\nTEXT\n  8\n0\n 10\n0.0\n 20\n0.0\n 40\n1.0\n  1\nK\xFC"
           "che \\U+4E16\n"
           "  0\nPOLYLINE\n  8\n0\n 66\n1\n 70\n1\n  0\nVERTEX\n  8\n0\n 10\n0.0\n 20\n0.0\n 42\n1.0\n"
           "  0\nVERTEX\n  8\n0\n 10\n4.0\n 20\n0.0\n  0\nSEQEND\n  8\n0\n"
           "  0\nENDSEC\n  0\nEOF\n";
}

inline OdDbBlockTableRecordPtr modelSpaceOf(OdDbDatabase& database, OdDb::OpenMode mode = OdDb::kForRead) {
    return odrxCast<OdDbBlockTableRecord>(database.getModelSpaceId().safeOpenObject(mode));
}

// A new drawing with some entities, a block, a group and texts.
inline std::string sampleDrawing() {
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    const auto table = odrxCast<OdDbBlockTable>(database->getBlockTableId().safeOpenObject(OdDb::kForWrite));
    OdDbBlockTableRecordPtr part(new OdDbBlockTableRecord);
    part->setName(L"PART");
    const OdDbObjectId partId = table->add(part.get());
    OdDbCirclePtr circle(new OdDbCircle);
    part->appendOdDbEntity(circle.get());
    const OdDbBlockTableRecordPtr space = modelSpaceOf(*database, OdDb::kForWrite);
    OdDbLinePtr line(new OdDbLine);
    line->setEndPoint({3, 4, 0});
    space->appendOdDbEntity(line.get());
    OdDbTextPtr text(new OdDbText);
    text->setTextString(L"K\u00fcche");
    space->appendOdDbEntity(text.get());
    OdDbBlockReferencePtr insert(new OdDbBlockReference);
    insert->setBlockTableRecord(partId);
    space->appendOdDbEntity(insert.get());
    const auto groups =
        odrxCast<OdDbDictionary>(database->getGroupDictionaryId(true).safeOpenObject(OdDb::kForWrite));
    OdDbGroupPtr group(new OdDbGroup);
    groups->setAt(L"G", group.get());
    group->append(space->entityIds());
    return database->writeBytes();
}

inline OdError errorOf(const std::string& bytes) {
    try {
        OdDbDatabase::readBytes(bytes, L"test.dxf");
    } catch (const OdError& error) {
        return error;
    }
    return OdError(eOk);
}

inline std::string replaced(std::string text, const std::string& from, const std::string& to) {
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return text.replace(at, from.size(), to);
}
