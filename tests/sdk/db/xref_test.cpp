// External references: definitions, loading, nesting, cycles and the graph.
#include "tests/sdk/db/drawing_fixture.h"
#include "tests/support/memory_bound.h"

#include "sdk/db/block_reference.h"
#include "sdk/db/file_dependency.h"
#include "sdk/db/xref_graph.h"

#include <QTemporaryDir>
#include <cmath>

class References : public DrawingTest {
protected:
    void SetUp() override { database->setFilename(pathOf("host.dxf")); }
    OdString pathOf(const char* name) const { return folder.filePath(name).toStdWString(); }
    // A drawing in metres with one line and the references named.
    void write(const char* name, std::initializer_list<const char*> attached,
               std::initializer_list<const char*> overlaid = {}) {
        const OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
        drawing->setINSUNITS(OdDb::kUnitsMeters);
        addLine(*drawing, 1);
        for (const char* other : attached)
            OdDbXRefManExt::addNewXRefDefBlock(drawing.get(), OdString(other), OdString(other), false);
        for (const char* other : overlaid)
            OdDbXRefManExt::addNewXRefDefBlock(drawing.get(), OdString(other), OdString(other), true);
        drawing->writeFile(pathOf(name));
    }
    OdDbBlockTableRecordPtr attach(const char* file, bool overlay = false) {
        const OdDbObjectId id =
            OdDbXRefManExt::addNewXRefDefBlock(database.get(), OdString(file), OdString(file), overlay);
        return odrxCast<OdDbBlockTableRecord>(id.safeOpenObject());
    }
    std::vector<std::string> graphNames() {
        OdDbXrefGraph graph;
        EXPECT_EQ(OdDbXrefGraph::getFrom(database.get(), graph, false), eOk);
        std::vector<std::string> names;
        for (std::size_t i = 1; i < graph.numNodes(); ++i)
            names.push_back(graph.node(i).name.toUtf8());
        return names;
    }
    QTemporaryDir folder;
};

using Names = std::vector<std::string>;

TEST_F(References, NewDefinitionIsUnloadedAndHasItsPath) {
    write("a.dxf", {});
    const auto record = attach("a.dxf");
    EXPECT_TRUE(record->isFromExternalReference());
    EXPECT_FALSE(record->isFromOverlayReference());
    EXPECT_EQ(record->pathName(), OdString(L"a.dxf"));
    EXPECT_TRUE(record->xrefDatabase(false).isNull());
    EXPECT_EQ(codeOf([&] { attach("A.DXF"); }), eDuplicateKey);
}

TEST_F(References, LoadingSetsUnitsAndDatabase) {
    write("a.dxf", {});
    const auto record = attach("a.dxf");
    EXPECT_EQ(OdDbXRefMan::load(record.get()), eOk);
    EXPECT_EQ(record->blockInsertUnits(), OdDb::kUnitsMeters);
    ASSERT_FALSE(record->xrefDatabase(false).isNull());
    EXPECT_EQ(record->xrefDatabase(false)->getFilename(), pathOf("a.dxf"));
}

TEST_F(References, LoadingAllOfADrawingIsNoChangeOfIt) {
    write("a.dxf", {});
    attach("a.dxf");
    attach("missing.dxf");
    database->writeFile(pathOf("host.dxf"));
    const OdDbDatabasePtr opened = OdDbDatabase::readFile(pathOf("host.dxf"));
    const std::string before = opened->writeBytes();
    const OdDbObjectIdArray failed = OdDbXRefMan::loadAll(opened.get());
    ASSERT_EQ(failed.size(), 1u);
    EXPECT_EQ(odrxCast<OdDbBlockTableRecord>(failed[0].safeOpenObject())->getName(),
              OdString(L"missing.dxf"));
    const auto blocks = odrxCast<OdDbBlockTable>(opened->getBlockTableId().safeOpenObject());
    const auto record = odrxCast<OdDbBlockTableRecord>(blocks->getAt(L"a.dxf", OdDb::kForRead));
    EXPECT_FALSE(record->xrefDatabase().isNull());
    EXPECT_FALSE(opened->isModified());
    EXPECT_FALSE(opened->hasUndo());
    EXPECT_EQ(opened->writeBytes(), before);
    EXPECT_EQ(OdDbXRefMan::load(record.get()), eOk);
    EXPECT_EQ(record->blockInsertUnits(), OdDb::kUnitsMeters);
}

TEST_F(References, LoadingFailsWithoutAnException) {
    EXPECT_NE(OdDbXRefMan::load(nullptr), eOk);
    EXPECT_EQ(OdDbXRefMan::load(attach("missing.dxf").get()), eCantOpenFile);
    OdDbDatabase::createEmpty()->writeFile(pathOf("bad.dxf"));
    QFile file(folder.filePath("bad.dxf"));
    ASSERT_TRUE(file.resize(100));
    EXPECT_EQ(OdDbXRefMan::load(attach("bad.dxf").get()), eDxfReadError);
    const auto plain = odrxCast<OdDbBlockTableRecord>(database->getModelSpaceId().safeOpenObject());
    EXPECT_NE(OdDbXRefMan::load(plain.get()), eOk);
}

TEST_F(References, OverlayFlagGoesOnAndOff) {
    const auto record = attach("a.dxf");
    OdDbXRefMan::setOverlaid(record.get(), true);
    EXPECT_TRUE(record->isFromOverlayReference());
    EXPECT_TRUE(record->isFromExternalReference());
    OdDbXRefMan::setOverlaid(record.get(), false);
    EXPECT_FALSE(record->isFromOverlayReference());
    EXPECT_TRUE(record->isFromExternalReference());
}

TEST_F(References, NestedReferencesComeAlongButOverlaysDoNot) {
    write("c.dxf", {});
    write("d.dxf", {});
    write("b.dxf", {"c.dxf"}, {"d.dxf"});
    write("a.dxf", {"b.dxf"});
    OdDbXRefMan::load(attach("a.dxf").get());
    EXPECT_EQ(graphNames(), (Names{"a.dxf", "b.dxf", "c.dxf"}));
}

TEST_F(References, CyclesAreStopped) {
    write("a.dxf", {"b.dxf"});
    write("b.dxf", {"a.dxf", "host.dxf"});
    database->writeFile(pathOf("host.dxf"));
    const auto record = attach("a.dxf");
    EXPECT_EQ(OdDbXRefMan::load(record.get()), eOk);
    EXPECT_EQ(graphNames(), (Names{"a.dxf", "b.dxf", "a.dxf", "host.dxf"}));
    EXPECT_EQ(OdDbXRefMan::load(attach("host.dxf").get()), eSelfReference);
}

TEST_F(References, GraphTellsHostAndStatesApart) {
    write("a.dxf", {});
    write("b.dxf", {});
    OdDbXRefMan::load(attach("a.dxf").get());
    attach("b.dxf", true);
    attach("missing.dxf");
    OdDbXrefGraph graph;
    OdDbXrefGraph::getFrom(database.get(), graph, false);
    ASSERT_EQ(graph.numNodes(), 4u);
    EXPECT_EQ(graph.hostDwg().status, 0);
    EXPECT_EQ(graph.hostDwg().flags & 0x10, 0);
    EXPECT_EQ(graph.xrefNode(L"A.dxf")->status, kXrfResolved);
    EXPECT_EQ(graph.xrefNode(L"b.dxf")->status, kXrfUnloaded);
    EXPECT_EQ(graph.xrefNode(L"missing.dxf")->status, kXrfFileNotFound);
    EXPECT_EQ(graph.xrefNode(L"b.dxf")->flags & 0x10, 0x10);
    EXPECT_EQ(graph.xrefNode(L"nobody"), nullptr);
    EXPECT_EQ(graph.hostDwg().children.size(), 3u);
}

TEST_F(References, AbortTakesDefinitionAndLoadingBack) {
    write("a.dxf", {});
    const auto kept = attach("a.dxf");
    write("b.dxf", {});
    database->startTransaction();
    OdDbXRefMan::load(kept.get());
    attach("b.dxf");
    database->abortTransaction();
    EXPECT_TRUE(kept->xrefDatabase(false).isNull());
    EXPECT_EQ(kept->blockInsertUnits(), OdDb::kUnitsUndefined);
    EXPECT_EQ(graphNames(), Names{"a.dxf"});
}

TEST_F(References, DependencyTellsWhereTheFileWasFound) {
    write("a.dxf", {});
    OdFileDependencyInfo info;
    EXPECT_EQ(database->fileDependencyManager()->getEntry(L"Acad:XRef", L"a.dxf", info), 0u);
    OdDbXRefMan::load(attach("a.dxf").get());
    EXPECT_NE(database->fileDependencyManager()->getEntry(L"Acad:XRef", L"a.dxf", info), 0u);
    EXPECT_EQ(info.foundPath + info.fileName, pathOf("a.dxf"));
    EXPECT_EQ(info.fullFileName, OdString(L"a.dxf"));
}

TEST_F(References, ErasedDefinitionTakesItsBlockAlong) {
    const auto record = attach("a.dxf");
    record->upgradeOpen();
    record->erase(true);
    EXPECT_TRUE(graphNames().empty());
    EXPECT_EQ(database->writeBytes().find("a.dxf"), std::string::npos);
    EXPECT_EQ(codeOf([&] { attach("a.dxf"); }), eOk);
}

TEST_F(References, DefinitionThatALivingReferenceUsesRefusesToBeErased) {
    const auto record = attach("a.dxf");
    const auto space =
        odrxCast<OdDbBlockTableRecord>(database->getModelSpaceId().safeOpenObject(OdDb::kForWrite));
    OdDbBlockReferencePtr reference(new OdDbBlockReference);
    reference->setBlockTableRecord(record->objectId());
    EXPECT_FALSE(record->hasLivingReferences()) << "in no space yet";
    space->appendOdDbEntity(reference.get());
    record->upgradeOpen();
    const std::string before = database->writeBytes();
    EXPECT_EQ(record->erase(true), eIsReferenced);
    EXPECT_FALSE(record->isErased());
    EXPECT_EQ(database->writeBytes(), before);
    EXPECT_EQ(reference->erase(true), eOk);
    EXPECT_EQ(record->erase(true), eOk);
    EXPECT_TRUE(graphNames().empty());
    EXPECT_EQ(record->erase(false), eOk);
    EXPECT_EQ(graphNames(), Names{"a.dxf"});
}

TEST_F(References, ReferencesInErasedBlocksAndInTheBlockItselfDoNotCount) {
    const auto record = attach("a.dxf");
    OdDbBlockTableRecordPtr outer(new OdDbBlockTableRecord);
    outer->setName(L"OUTER");
    odrxCast<OdDbBlockTable>(database->getBlockTableId().safeOpenObject(OdDb::kForWrite))->add(outer.get());
    outer->upgradeOpen();
    for (const OdDbBlockTableRecordPtr& shown : {record, outer}) {
        OdDbBlockReferencePtr reference(new OdDbBlockReference);
        reference->setBlockTableRecord(shown->objectId());
        outer->appendOdDbEntity(reference.get());
    }
    record->upgradeOpen();
    EXPECT_EQ(record->erase(true), eIsReferenced);
    EXPECT_EQ(outer->erase(true), eOk);
    EXPECT_EQ(record->erase(true), eOk);
}

TEST_F(References, ReferenceEntitySurvivesSaving) {
    write("a.dxf", {});
    OdDbBlockReferencePtr reference(new OdDbBlockReference);
    reference->setBlockTableRecord(attach("a.dxf", true)->objectId());
    reference->setPosition({1, 2, 3});
    reference->setScaleFactors({2, 2, 2});
    reference->setRotation(1);
    EXPECT_EQ(codeOf([&] { reference->setScaleFactors({std::nan(""), 1, 1}); }), eInvalidInput);
    odrxCast<OdDbBlockTableRecord>(database->getModelSpaceId().safeOpenObject(OdDb::kForWrite))
        ->appendOdDbEntity(reference.get());
    const OdDbDatabasePtr read = OdDbDatabase::readBytes(database->writeBytes());
    const auto space = odrxCast<OdDbBlockTableRecord>(read->getModelSpaceId().safeOpenObject());
    const auto copy = odrxCast<OdDbBlockReference>(space->entityIds()[0].safeOpenObject());
    EXPECT_EQ(copy->position(), OdGePoint3d(1, 2, 3));
    EXPECT_EQ(copy->scaleFactors(), OdGeScale3d(2));
    EXPECT_DOUBLE_EQ(copy->rotation(), 1);
    const auto block = odrxCast<OdDbBlockTableRecord>(copy->blockTableRecord().safeOpenObject());
    EXPECT_TRUE(block->isFromOverlayReference());
    EXPECT_EQ(block->pathName(), OdString(L"a.dxf"));
}

// Twenty-two drawings, each with the next one twice, would be read four million times one by one.
TEST_F(References, ADrawingThatManyReferToIsReadOnce) {
    const int count = 22;
    for (int i = count; i-- > 0;) {
        const OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
        if (i + 1 < count)
            for (const wchar_t* name : {L"first", L"second"})
                OdDbXRefManExt::addNewXRefDefBlock(drawing.get(), std::to_wstring(i + 1) + L".dxf", name,
                                                   false);
        drawing->writeFile(pathOf((std::to_string(i) + ".dxf").c_str()));
    }
    const MemoryBound bound(200);
    const OdDbDatabasePtr host = OdDbDatabase::readFile(pathOf("0.dxf"));
    EXPECT_TRUE(OdDbXRefMan::loadAll(host.get()).empty());
    const auto loadedAs = [](const OdDbDatabase& drawing, const wchar_t* name) {
        const auto blocks = odrxCast<OdDbBlockTable>(drawing.getBlockTableId().safeOpenObject());
        return odrxCast<OdDbBlockTableRecord>(blocks->getAt(name, OdDb::kForRead))->xrefDatabase();
    };
    OdDbDatabasePtr drawing = host;
    for (int i = 1; i < count; ++i) {
        const OdDbDatabasePtr first = loadedAs(*drawing, L"first");
        ASSERT_FALSE(first.isNull()) << i;
        EXPECT_EQ(first.get(), loadedAs(*drawing, L"second").get()) << i;
        drawing = first;
    }
    OdDbXrefGraph graph;
    OdDbXrefGraph::getFrom(host.get(), graph);
    EXPECT_EQ(graph.numNodes(), 2u * (count - 1) + 1) << "each reference of each drawing once";
    EXPECT_TRUE(host->readWarnings().empty());
}

// b alone shows c, c alone shows b: what one of them lacks, since the other is on the way, is no state to
// share.
TEST_F(References, WhatACircleLeavesOutIsThereOnAnotherWay) {
    write("c.dxf", {"b.dxf"});
    write("b.dxf", {"c.dxf"});
    write("host.dxf", {"b.dxf", "c.dxf"});
    const OdDbDatabasePtr host = OdDbDatabase::readFile(pathOf("host.dxf"));
    EXPECT_TRUE(OdDbXRefMan::loadAll(host.get()).empty());
    const auto nested = [](const OdDbDatabase& drawing, const wchar_t* name) {
        const auto blocks = odrxCast<OdDbBlockTable>(drawing.getBlockTableId().safeOpenObject());
        return odrxCast<OdDbBlockTableRecord>(blocks->getAt(name, OdDb::kForRead))->xrefDatabase();
    };
    const OdDbDatabasePtr b = nested(*host, L"b.dxf"), c = nested(*host, L"c.dxf");
    ASSERT_FALSE(b.isNull() || c.isNull());
    EXPECT_FALSE(nested(*b, L"c.dxf").isNull());
    EXPECT_FALSE(nested(*c, L"b.dxf").isNull());
    EXPECT_TRUE(nested(*nested(*b, L"c.dxf"), L"b.dxf").isNull());
}

TEST_F(References, TooDeepOnesAreLeftOutAndTold) {
    const int count = 70;
    for (int i = count; i-- > 0;) {
        const OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
        if (i + 1 < count)
            OdDbXRefManExt::addNewXRefDefBlock(drawing.get(), std::to_wstring(i + 1) + L".dxf", L"next",
                                               false);
        drawing->writeFile(pathOf((std::to_string(i) + ".dxf").c_str()));
    }
    const OdDbDatabasePtr host = OdDbDatabase::readFile(pathOf("0.dxf"));
    EXPECT_TRUE(OdDbXRefMan::loadAll(host.get()).empty());
    ASSERT_EQ(host->readWarnings().size(), 1u);
    EXPECT_EQ(
        host->readWarnings()[0].toUtf8(),
        "1 references are not loaded: a drawing loads no more than 1000 files, and none beyond 64 levels");
    int depth = 0;
    for (OdDbDatabasePtr drawing = host; !drawing.isNull(); ++depth) {
        const auto blocks = odrxCast<OdDbBlockTable>(drawing->getBlockTableId().safeOpenObject());
        const auto block = odrxQuery<OdDbBlockTableRecord>(blocks->getAt(L"next", OdDb::kForRead).get());
        drawing = block.isNull() ? OdDbDatabasePtr() : block->xrefDatabase();
    }
    EXPECT_EQ(depth, 1 + 64) << "the host and what it refers to";
}

TEST_F(References, ADrawingReadsNoMoreFilesThanTheLimit) {
    QFile smallest(folder.filePath("0.dxf"));
    ASSERT_TRUE(smallest.open(QIODevice::WriteOnly));
    smallest.write("0\nEOF\n");
    smallest.close();
    const OdDbDatabasePtr host = OdDbDatabase::createEmpty();
    for (int i = 0; i < 1003; ++i) {
        const QString name = QString::number(i) + ".dxf";
        QFile::copy(folder.filePath("0.dxf"), folder.filePath(name));
        OdDbXRefManExt::addNewXRefDefBlock(host.get(), name.toStdWString(), name.toStdWString(), false);
    }
    host->writeFile(pathOf("host.dxf"));
    EXPECT_EQ(OdDbXRefMan::loadAll(host.get()).size(), 3u);
    ASSERT_EQ(host->readWarnings().size(), 1u);
    EXPECT_EQ(host->readWarnings()[0].toUtf8().substr(0, 31), "3 references are not loaded: a ");
}
