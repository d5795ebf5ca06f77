// What the objects of a drawing look like, and where they are found.
#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/layer_table.h"
#include "sdk/db/polyline.h"
#include "standin/display/display_list.h"
#include "standin/display/picking.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace standin;

struct DisplayTest : testing::Test {
    OdDbBlockTableRecordPtr modelSpace() {
        return odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject(OdDb::kForWrite));
    }
    OdDbObjectId addLine(double y, const OdDbObjectId& block = {}) {
        const OdDbLinePtr line(new OdDbLine);
        line->setStartPoint({0, y, 0});
        line->setEndPoint({10, y, 0});
        const auto record = block.isNull()
                                ? modelSpace()
                                : odrxCast<OdDbBlockTableRecord>(block.safeOpenObject(OdDb::kForWrite));
        return record->appendOdDbEntity(line.get());
    }
    OdDbObjectId addBlock(const wchar_t* name) {
        const OdDbBlockTableRecordPtr record(new OdDbBlockTableRecord);
        record->setName(name);
        return odrxCast<OdDbBlockTable>(drawing->getBlockTableId().safeOpenObject(OdDb::kForWrite))
            ->add(record.get());
    }
    OdDbObjectId insert(const OdDbObjectId& block, const OdGePoint3d& at, const OdDbObjectId& into = {}) {
        const OdDbBlockReferencePtr reference(new OdDbBlockReference);
        reference->setBlockTableRecord(block);
        reference->setPosition(at);
        const auto record = into.isNull()
                                ? modelSpace()
                                : odrxCast<OdDbBlockTableRecord>(into.safeOpenObject(OdDb::kForWrite));
        return record->appendOdDbEntity(reference.get());
    }
    OdDbLayerTableRecordPtr addLayer(const wchar_t* name) {
        const OdDbLayerTableRecordPtr layer(new OdDbLayerTableRecord);
        layer->setName(name);
        odrxCast<OdDbLayerTable>(drawing->getLayerTableId().safeOpenObject(OdDb::kForWrite))
            ->add(layer.get());
        return layer;
    }
    OdDbEntityPtr forWrite(const OdDbObjectId& id) {
        return odrxCast<OdDbEntity>(id.safeOpenObject(OdDb::kForWrite));
    }
    const Item* item(const OdDbObjectId& id) {
        list.refresh();
        return list.find(id);
    }
    OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
    DisplayList list{drawing};
};

TEST_F(DisplayTest, ColoursComeFromTheObjectItsLayerAndItsReference) {
    const auto layer = addLayer(L"Red");
    layer->setColorIndex(1);
    const OdDbObjectId block = addBlock(L"B");
    const OdDbObjectId own = addLine(0), byLayer = addLine(1);
    forWrite(own)->setTrueColor(0x123456);
    forWrite(byLayer)->setLayer(L"Red");
    forWrite(addLine(2, block))->setColorIndex(OdDbEntity::kByBlock);
    addLine(3, block); // on layer 0: follows the layer of its reference
    const OdDbObjectId reference = insert(block, {0, 0, 0});
    forWrite(reference)->setLayer(L"Red");
    forWrite(reference)->setColorIndex(5);
    EXPECT_EQ(item(own)->shapes[0].ink, 0xff123456u);
    EXPECT_EQ(item(byLayer)->shapes[0].ink, 0xffff0000u);
    ASSERT_EQ(item(reference)->shapes.size(), 2u);
    EXPECT_EQ(item(reference)->shapes[0].ink, 0xff0000ffu);
    EXPECT_EQ(item(reference)->shapes[1].ink, 0xffff0000u);
}

TEST_F(DisplayTest, LayersThatAreOffOrFrozenHideTheirObjects) {
    const auto layer = addLayer(L"L");
    const OdDbObjectId block = addBlock(L"B");
    addLine(0, block);
    const OdDbObjectId line = addLine(0), reference = insert(block, {0, 0, 0});
    forWrite(line)->setLayer(L"L");
    forWrite(reference)->setLayer(L"L");
    EXPECT_NE(item(line), nullptr);
    layer->setIsOff(true);
    EXPECT_EQ(item(line), nullptr);
    layer->setIsOff(false);
    layer->setIsFrozen(true);
    EXPECT_EQ(item(line), nullptr);
    EXPECT_EQ(item(reference), nullptr);
}

TEST_F(DisplayTest, ABulgeIsAnArc) {
    const OdDbPolylinePtr polyline(new OdDbPolyline);
    polyline->setVertices(
        {{{0, 0, 0}, 1}, {{10, 0, 0}, 0}}); // half a circle that turns left: below the chord
    const OdDbObjectId id = modelSpace()->appendOdDbEntity(polyline.get());
    const Box box = item(id)->box;
    EXPECT_NEAR(box.bottom, -5, 1e-9);
    EXPECT_NEAR(box.top, 0, 1e-9);
    EXPECT_NEAR(box.left, 0, 1e-9);
    EXPECT_NEAR(box.right, 10, 1e-9);
}

TEST_F(DisplayTest, BlocksNestAndOneThatHoldsItselfIsShownOnce) {
    const OdDbObjectId outer = addBlock(L"Outer"), inner = addBlock(L"Inner");
    addLine(0, inner);
    insert(inner, {0, 5, 0}, outer);
    insert(outer, {1, 1, 0}, outer);
    const OdDbObjectId reference = insert(outer, {100, 0, 0});
    ASSERT_EQ(item(reference)->shapes.size(), 1u);
    EXPECT_EQ(item(reference)->shapes[0].points[0], QPointF(100, 5));
}

TEST_F(DisplayTest, BlocksThatMultiplyWithoutBoundsEnd) {
    OdDbObjectId block = addBlock(L"B0");
    for (int level = 1; level < 20; ++level) {
        const OdDbObjectId outer = addBlock((L"B" + std::to_wstring(level)).c_str());
        for (int i = 0; i < 64; ++i)
            insert(block, {0, 0, 0}, outer);
        block = outer;
    }
    const OdDbObjectId reference = insert(block, {0, 0, 0});
    EXPECT_EQ(item(reference), nullptr); // there is nothing in it, however often
}

TEST_F(DisplayTest, AReferenceWithoutContentsIsAMarkWithItsName) {
    const OdDbObjectId block = addBlock(L"Gone");
    const OdDbObjectId reference = insert(block, {3, 4, 0});
    // A block that something refers to can't be erased; as in a file whose block is missing, it is gone
    // first.
    forWrite(reference)->erase();
    ASSERT_EQ(odrxCast<OdDbBlockTableRecord>(block.safeOpenObject(OdDb::kForWrite))->erase(), eOk);
    reference.safeOpenObject(OdDb::kForWrite, true)->erase(false);
    list.forgetAll();
    ASSERT_NE(item(reference), nullptr);
    EXPECT_EQ(item(reference)->shapes[0].kind, Shape::Missing);
    EXPECT_EQ(item(reference)->shapes[0].text, "Gone");
}

TEST_F(DisplayTest, ChangesShow) {
    const OdDbObjectId line = addLine(0);
    EXPECT_EQ(item(line)->box.top, 0);
    odrxCast<OdDbLine>(line.safeOpenObject(OdDb::kForWrite))->setEndPoint({10, 30, 0});
    EXPECT_EQ(item(line)->box.top, 30);
    forWrite(line)->erase();
    EXPECT_EQ(item(line), nullptr);
    EXPECT_TRUE(list.extents().isEmpty());
}

TEST_F(DisplayTest, PickingFindsTheNearestWithinReach) {
    const OdDbObjectId low = addLine(0), high = addLine(3);
    list.refresh();
    EXPECT_EQ(itemAt(list, {5, 1}, 2, 1), low);
    EXPECT_EQ(itemAt(list, {5, 2}, 2, 1), high);
    EXPECT_TRUE(itemAt(list, {5, 8}, 2, 1).isNull());
    EXPECT_TRUE(itemAt(list, {14, 0}, 2, 1).isNull());
}

TEST_F(DisplayTest, AWindowAroundACircleIsNoCrossing) {
    const OdDbCirclePtr circle(new OdDbCircle);
    circle->setCenter({0, 0, 0});
    circle->setRadius(10);
    const OdDbObjectId id = modelSpace()->appendOdDbEntity(circle.get());
    list.refresh();
    EXPECT_TRUE(itemsIn(list, {-3, -3, 3, 3}, true, 10).empty()); // inside, without touching the line
    EXPECT_EQ(itemsIn(list, {0, -3, 12, 3}, true, 10), OdDbObjectIdArray{id});
    EXPECT_TRUE(itemsIn(list, {0, -3, 12, 3}, false, 10).empty());
    EXPECT_EQ(itemsIn(list, {-10, -10, 10, 10}, false, 10), OdDbObjectIdArray{id});
}

TEST(DasherTest, PartsALineByItsPatternAcrossTheClippedPart) {
    const std::vector<double> pattern{4, -2};
    QVector<QLineF> lines;
    Dasher dasher(pattern, 1);
    dasher.add(QLineF(0, 0, 10, 0), 0, 10, lines);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0], QLineF(0, 0, 4, 0));
    EXPECT_EQ(lines[1], QLineF(6, 0, 10, 0));
    lines.clear();
    dasher.add(QLineF(15, 0, 20, 0), 5, 10,
               lines); // goes on where the first line ended, 5 of it out of sight
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0], QLineF(15, 0, 16, 0));
    EXPECT_EQ(lines[1], QLineF(18, 0, 20, 0));
    EXPECT_TRUE(Dasher(pattern, 0.1).isPlain());
}

TEST(SpatialIndexTest, FindsWhatACompleteSearchFinds) {
    SpatialIndex index(Box{0, 0, 100, 100});
    std::vector<Box> boxes;
    for (int i = 0; i < 500; ++i) {
        const double x = i * 37 % 120 - 10, y = i * 53 % 120 - 10, size = i % 40 / 2.0;
        boxes.push_back({x, y, x + size, y + size});
        index.insert(i, boxes.back());
    }
    index.remove(17, boxes[17]);
    const Box wanted{20, 30, 45, 50};
    std::vector<int> found;
    index.visit(wanted, [&](int item) {
        if (boxes[static_cast<std::size_t>(item)].intersects(wanted))
            found.push_back(item);
    });
    std::sort(found.begin(), found.end());
    std::vector<int> expected;
    for (int i = 0; i < 500; ++i)
        if (i != 17 && boxes[static_cast<std::size_t>(i)].intersects(wanted))
            expected.push_back(i);
    EXPECT_EQ(found, expected);
}

TEST_F(DisplayTest, PolyfaceMeshesShowTheirFacesAndNothingAtTheOrigin) {
    const auto vertex = [](int flags, const std::string& rest) {
        return "0\nVERTEX\n8\n0\n70\n" + std::to_string(flags) + "\n" + rest;
    };
    const OdDbDatabasePtr old = OdDbDatabase::readBytes(
        "0\nSECTION\n2\nENTITIES\n0\nPOLYLINE\n8\n0\n66\n1\n70\n64\n" + vertex(192, "10\n10.0\n20\n10.0\n") +
        vertex(192, "10\n20.0\n20\n10.0\n") + vertex(192, "10\n20.0\n20\n20.0\n") +
        vertex(128, "10\n0.0\n20\n0.0\n71\n1\n72\n2\n73\n3\n") + "0\nSEQEND\n8\n0\n0\nENDSEC\n0\nEOF\n");
    DisplayList shown{old};
    shown.refresh();
    const auto space = odrxCast<OdDbBlockTableRecord>(old->getModelSpaceId().safeOpenObject());
    const Item* mesh = shown.find(space->entityIds().at(0));
    ASSERT_TRUE(mesh);
    ASSERT_EQ(mesh->shapes.size(), 3u) << "the three edges of the face";
    for (const Shape& edge : mesh->shapes)
        for (const QPointF& point : edge.points)
            EXPECT_GE(point.x(), 10);
}

TEST_F(DisplayTest, AttributesOfSeveralLinesShowThemAll) {
    const OdDbDatabasePtr read = OdDbDatabase::readBytes(
        "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1032\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n"
        "0\nINSERT\n5\nAB\n100\nAcDbEntity\n8\n0\n100\nAcDbBlockReference\n66\n1\n2\nGONE\n10\n0.0\n20\n0.0\n"
        "0\nATTRIB\n5\nAC\n100\nAcDbEntity\n8\n0\n100\nAcDbText\n10\n1.0\n20\n2.0\n40\n2.5\n1\nplain\n"
        "100\nAcDbAttribute\n2\nTAG\n70\n0\n101\nEmbedded "
        "Object\n10\n50.0\n20\n40.0\n40\n1.5\n71\n1\n1\nfirst\\Psecond\n"
        "0\nSEQEND\n5\nAD\n100\nAcDbEntity\n8\n0\n0\nENDSEC\n0\nEOF\n");
    DisplayList shown{read};
    shown.refresh();
    const auto space = odrxCast<OdDbBlockTableRecord>(read->getModelSpaceId().safeOpenObject());
    const Item* insert = shown.find(space->entityIds().at(0));
    ASSERT_TRUE(insert);
    QStringList texts;
    for (const Shape& shape : insert->shapes)
        if (shape.kind == Shape::Text)
            texts << shape.text;
    EXPECT_EQ(texts, (QStringList{"first", "second"}));
}

} // namespace
