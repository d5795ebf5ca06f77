// Drawings whose objects have no handles, or not their own: what is referenced gets one when it is saved.
#include "tests/sdk/dxf/drawing_texts.h"
#include "tests/sdk/dxf/reading_contract.h"

namespace {

std::string line(const std::string& handle = "") {
    return "  0\nLINE\n" + (handle.empty() ? "" : "  5\n" + handle + "\n") +
           "100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n 10\n0.0\n 20\n0.0\n 11\n1.0\n 21\n1.0\n";
}

std::string section(const std::string& name, const std::string& content) {
    return "  0\nSECTION\n  2\n" + name + "\n" + content + "  0\nENDSEC\n";
}

std::string header(const std::string& version) {
    return section("HEADER", "  9\n$ACADVER\n  1\n" + version + "\n");
}

const std::string kEnd = "  0\nEOF\n";
const std::string kRoot = "  0\nDICTIONARY\n100\nAcDbDictionary\n";

// A drawing with a group of two entities.
std::string withGroup(const std::string& firstLine, const std::string& dictionary, const std::string& group) {
    return header("AC1015") + section("ENTITIES", line(firstLine) + line("30") + line("31")) +
           section("OBJECTS", "  0\nDICTIONARY\n  5\nC\n100\nAcDbDictionary\n  3\nACAD_GROUP\n350\n" +
                                  dictionary + "\n  0\nDICTIONARY\n  5\n" + dictionary +
                                  "\n330\nC\n100\nAcDbDictionary\n  3\nPAIR\n350\n" + group +
                                  "\n  0\nGROUP\n  5\n" + group + "\n330\n" + dictionary +
                                  "\n100\nAcDbGroup\n300\n\n 70\n0\n 71\n1\n340\n" + firstLine +
                                  "\n340\n30\n") +
           kEnd;
}

// Careless writers, each with what it leaves out.
std::vector<std::pair<std::string, std::string>> carelessDrawings() {
    const std::string three = section("ENTITIES", line() + line() + line());
    return {
        {"entities alone", three + kEnd},
        {"R2000, entities alone", header("AC1015") + three + kEnd},
        {"R2000, objects without handles", header("AC1015") + three + section("OBJECTS", kRoot) + kEnd},
        {"R2000, no objects in their section", header("AC1015") + three + section("OBJECTS", "") + kEnd},
        {"no header, but objects", three + section("OBJECTS", kRoot) + kEnd},
        {"R12 with objects", header("AC1009") + three + section("OBJECTS", kRoot) + kEnd},
        {"R2018, some handles",
         header("AC1032") + section("ENTITIES", line("2F") + line() + line("31")) + kEnd},
        {"two with one handle",
         header("AC1015") + section("ENTITIES", line("2F") + line("2F") + line("30")) + kEnd},
        {"an entity with the handle of a group", withGroup("E", "D", "E")},
        {"an entity with the handle of the groups", withGroup("D", "D", "E")},
        {"objects before entities", header("AC1015") + section("OBJECTS", kRoot) + three + kEnd},
        {"a byte order mark and no header", "\xEF\xBB\xBF" + three + section("OBJECTS", kRoot) + kEnd},
        {"tables without handles",
         header("AC1015") +
             section("TABLES", "  0\nTABLE\n  2\nBLOCK_RECORD\n 70\n1\n  0\nBLOCK_RECORD\n"
                               "100\nAcDbSymbolTableRecord\n100\nAcDbBlockTableRecord\n  2\n"
                               "*Model_Space\n  0\nENDTAB\n") +
             three + section("OBJECTS", kRoot) + kEnd},
        {"no end mark and no last line end",
         header("AC1015") + section("ENTITIES", line()) + "  0\nSECTION\n  2\nOBJECTS\n  0\nENDSEC"},
    };
}

OdDbObjectId addGroup(OdDbDatabase& database, const OdDbObjectIdArray& members) {
    const auto groups =
        odrxCast<OdDbDictionary>(database.getGroupDictionaryId(true).safeOpenObject(OdDb::kForWrite));
    OdDbGroupPtr group(new OdDbGroup);
    const OdDbObjectId id = groups->setAt(L"G", group.get());
    group->append(members);
    return id;
}

// Each handle of the text once; handles that are referred to, but not there, too.
std::string faultOfHandles(const std::string& text) {
    std::map<std::string, int> own;
    std::vector<std::string> referenced;
    const DxfTagList tags = DxfTagList::parse(text, nullptr, false);
    for (const DxfTag& tag : tags) {
        if (tag.code == 5 && tags[static_cast<std::size_t>(&tag - &tags[0]) - 1].value() != "$HANDSEED")
            ++own[std::string(tag.value())];
        if (tag.code == 330 || tag.code == 340 || tag.code == 350)
            referenced.emplace_back(tag.value());
    }
    for (const auto& [handle, count] : own)
        if (count > 1)
            return "handle " + handle + " twice";
    for (const std::string& handle : referenced)
        if (handle != "0" && own.count(handle) == 0)
            return "nothing has the handle " + handle;
    return "";
}

} // namespace

TEST(MissingHandles, CarelessDrawingsKeepTheContract) {
    for (const auto& [name, text] : carelessDrawings())
        EXPECT_EQ(faultOfReading(text), "") << name;
}

TEST(MissingHandles, WhatIsReferredToIsThere) {
    for (const auto& [name, text] : carelessDrawings()) {
        const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
        addGroup(*database, modelSpaceEntities(*database));
        if (odDbNeedsNewerVersion(*database))
            continue;
        EXPECT_EQ(faultOfHandles(database->writeBytes().substr(text[0] == '\xEF' ? 3 : 0)), "") << name;
    }
}

TEST(MissingHandles, OnlyWhatIsReferredToChanges) {
    const std::string text = carelessDrawings()[6].second;
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    addGroup(*database, {modelSpaceEntities(*database)[0]});
    const std::string saved = database->writeBytes();
    EXPECT_NE(saved.find(line("2F") + line() + line("31")), std::string::npos) << saved;
}

TEST(MissingHandles, NumbersThatOnlyReferencesHaveAreNotTaken) {
    const std::string lost =
        "  0\nDICTIONARY\n  5\nC\n100\nAcDbDictionary\n  3\nACAD_GROUP\n350\nD\n"
        "  0\nDICTIONARY\n  5\nD\n330\nC\n100\nAcDbDictionary\n  3\nG\n350\nE\n"
        "  0\nGROUP\n  5\nE\n330\nD\n100\nAcDbGroup\n300\n\n 70\n0\n 71\n1\n340\n10\n340\n11\n";
    const std::string text =
        header("AC1015") + section("ENTITIES", line() + line()) + section("OBJECTS", lost) + kEnd;
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    EXPECT_EQ(groupIn(*database, L"G")->numEntities(), 0u) << "members that are gone are none of the others";
    EXPECT_EQ(faultOfReading(text), "");
}

TEST(MissingHandles, TheNextHandleFollows) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(carelessDrawings()[1].second);
    addGroup(*database, modelSpaceEntities(*database));
    const std::string saved = database->writeBytes();
    const DxfTagList tags = DxfTagList::parse(saved, nullptr, false);
    std::uint64_t seed = 0, highest = 0;
    for (std::size_t i = 1; i < tags.size(); ++i) {
        if (tags[i].code == 5 && tags[i - 1].value() == "$HANDSEED")
            seed = dxfHandle(tags[i].value());
        else if (tags[i].code == 5)
            highest = std::max(highest, dxfHandle(tags[i].value()));
    }
    EXPECT_GT(highest, 0u);
    EXPECT_GT(seed, highest);
}

TEST(MissingHandles, TwoObjectsWithOneHandleAreToldWithBothLines) {
    const std::string text = carelessDrawings()[7].second;
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    ASSERT_EQ(database->readWarnings().size(), 1u);
    EXPECT_EQ(database->readWarnings()[0].toUtf8(),
              "line 33: an object with the handle of another one, that of line 15");
    const OdDbObjectId second = modelSpaceEntities(*database)[1];
    addGroup(*database, {second});
    const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes());
    EXPECT_TRUE(again->readWarnings().empty()) << "the second has a handle of its own now";
    OdDbObjectIdArray members;
    groupIn(*again, L"G")->allEntityIds(members);
    EXPECT_EQ(members, OdDbObjectIdArray{modelSpaceEntities(*again)[1]});
}

TEST(MissingHandles, TheFirstOfTwoWithOneHandleIsTheOneThatIsFound) {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(carelessDrawings()[7].second);
    addGroup(*database, {modelSpaceEntities(*database)[0]});
    EXPECT_EQ(faultOfHandles(database->writeBytes()), "");
    const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes());
    OdDbObjectIdArray members;
    groupIn(*again, L"G")->allEntityIds(members);
    EXPECT_EQ(members, OdDbObjectIdArray{modelSpaceEntities(*again)[0]});
}

TEST(MissingHandles, AnEntityWithTheHandleOfAGroupLosesNeitherOfThem) {
    for (const auto& [dictionary, group, entity] :
         {std::tuple("D", "E", "E"), std::tuple("D", "E", "D"), std::tuple("D", "E", "2F")}) {
        const std::string text = withGroup(entity, dictionary, group);
        OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
        for (const bool isSaved : {false, true}) {
            const OdDbObjectIdArray all = modelSpaceEntities(*database);
            OdDbObjectIdArray members;
            groupIn(*database, L"PAIR")->allEntityIds(members);
            EXPECT_EQ(members, (OdDbObjectIdArray{all[0], all[1]})) << entity << (isSaved ? " saved" : "");
            if (isSaved)
                break;
            EXPECT_EQ(database->writeBytes(), text) << "unchanged, it goes out as it is";
            addGroup(*database, {all[0], all[2]});
            const std::string saved = database->writeBytes();
            EXPECT_EQ(faultOfHandles(saved), "") << saved;
            database = OdDbDatabase::readBytes(saved);
            EXPECT_TRUE(database->readWarnings().empty());
        }
    }
}

TEST(MissingHandles, ADictionaryOfGroupsThatIsNoneIsReplaced) {
    const std::string wrong = "  0\nDICTIONARY\n  5\nC\n100\nAcDbDictionary\n  3\nACAD_GROUP\n350\n2F\n";
    const std::string text =
        header("AC1015") + section("ENTITIES", line("2F")) + section("OBJECTS", wrong) + kEnd;
    EXPECT_EQ(faultOfReading(text), "");
}

TEST(MissingHandles, EntriesGoBeforeTheExtendedDataOfTheirDictionary) {
    const std::string extended = "  0\nDICTIONARY\n  5\nC\n100\nAcDbDictionary\n1001\nAPP\n1000\nx\n";
    const std::string text =
        header("AC1015") + section("ENTITIES", line("2F")) + section("OBJECTS", extended) + kEnd;
    EXPECT_EQ(faultOfReading(text), "");
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    addGroup(*database, modelSpaceEntities(*database));
    const std::string saved = database->writeBytes();
    EXPECT_LT(saved.find("ACAD_GROUP"), saved.find("1001\nAPP"));
}

TEST(MissingHandles, HandlesAtTheUpperEndLeaveRoomForNewOnes) {
    const std::string text = header("AC1015") +
                             section("ENTITIES", line("FFFFFFFFFFFFFFF") + line("7FFFFFFFFFFFFFF") + line()) +
                             kEnd;
    EXPECT_EQ(faultOfReading(text), "");
}

TEST(MissingSections, StandInTheUsualOrder) {
    const std::string text =
        header("AC1015") + section("TABLES", "") + section("ENTITIES", line("2F")) + kEnd;
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    OdSmartPtr<OdDbLayerTableRecord> layer(new OdDbLayerTableRecord);
    layer->setName(L"New");
    odrxCast<OdDbLayerTable>(database->getLayerTableId().safeOpenObject(OdDb::kForWrite))->add(layer.get());
    OdDbBlockTableRecordPtr block(new OdDbBlockTableRecord);
    block->setName(L"PART");
    odrxCast<OdDbBlockTable>(database->getBlockTableId().safeOpenObject(OdDb::kForWrite))->add(block.get());
    addGroup(*database, modelSpaceEntities(*database));
    const std::string saved = database->writeBytes();
    std::size_t last = 0;
    for (const char* name :
         {"\nHEADER\n", "\nTABLES\n", "\nLAYER\n", "\nBLOCKS\n", "\nENTITIES\n", "\nOBJECTS\n", "\nEOF\n"}) {
        const std::size_t at = saved.find(name);
        ASSERT_NE(at, std::string::npos) << name;
        EXPECT_LT(last, at) << name;
        EXPECT_EQ(saved.find("SECTION\n  2" + std::string(name), at), std::string::npos) << "twice" << name;
        last = at;
    }
    EXPECT_TRUE(OdDbDatabase::readBytes(saved)->readWarnings().empty());
}

TEST(OpenPolylines, GetTheirEndMarkBeforeAnythingIsAppended) {
    const std::string open =
        "  0\nPOLYLINE\n  5\n2F\n100\nAcDbEntity\n  8\nWALLS\n100\nAcDb2dPolyline\n 66\n1\n"
        "  0\nVERTEX\n  5\n30\n100\nAcDbEntity\n  8\nWALLS\n100\nAcDbVertex\n 10\n1.0\n 20\n2.0\n";
    const std::string text = header("AC1015") + section("ENTITIES", open) + kEnd;
    EXPECT_EQ(faultOfReading(text), "");
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    OdDbLinePtr added(new OdDbLine);
    modelSpaceOf(*database, OdDb::kForWrite)->appendOdDbEntity(added.get());
    const std::string saved = database->writeBytes();
    EXPECT_EQ(saved, database->writeBytes()) << "saving twice gives the same";
    const std::size_t end = saved.find("  0\nSEQEND\n"), line = saved.find("  0\nLINE\n");
    ASSERT_NE(end, std::string::npos) << saved;
    EXPECT_LT(end, line);
    EXPECT_NE(saved.find("330\n2F\n100\nAcDbEntity\n  8\nWALLS\n", end), std::string::npos);
    EXPECT_EQ(faultOfHandles(saved), "");
    modelSpaceEntities(*database)[0].safeOpenObject(OdDb::kForWrite)->erase();
    EXPECT_EQ(database->writeBytes().find("SEQEND"), std::string::npos) << "the polyline is gone";
}

TEST(OpenPolylines, OfTheOldestVersionAndInBlocksToo) {
    const std::string vertex = "  0\nVERTEX\n  8\n0\n 10\n1.0\n 20\n2.0\n";
    const std::string text = replaced(replaced(oldDrawing(), "  0\nSEQEND\n  8\n0\n", ""), "  0\nENDBLK\n",
                                      "  0\nPOLYLINE\n  8\nWALLS\n 66\n1\n" + vertex + "  0\nENDBLK\n");
    EXPECT_EQ(faultOfReading(text), "");
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    const auto blocks = odrxCast<OdDbBlockTable>(database->getBlockTableId().safeOpenObject());
    const auto part = odrxCast<OdDbBlockTableRecord>(
        blocks->OdDbSymbolTable::getAt(L"part").safeOpenObject(OdDb::kForWrite));
    OdDbLinePtr added(new OdDbLine);
    part->appendOdDbEntity(added.get());
    const std::string saved = database->writeBytes();
    EXPECT_NE(saved.find(vertex + "  0\nSEQEND\n  8\nWALLS\n  0\nLINE\n"), std::string::npos) << saved;
}
