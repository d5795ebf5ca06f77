// Layers that are renamed: what lies on them goes with them, also back and forth through undo.
#include "tests/sdk/db/drawing_fixture.h"

#include "sdk/db/layer_table.h"

class Layers : public DrawingTest {
protected:
    OdDbObjectId addLayer(const wchar_t* name) {
        OdDbLayerTableRecordPtr layer(new OdDbLayerTableRecord);
        layer->setName(name);
        return odrxCast<OdDbLayerTable>(database->getLayerTableId().safeOpenObject(OdDb::kForWrite))
            ->add(layer.get());
    }
    static void rename(OdDbObjectId layer, const wchar_t* name) {
        odrxCast<OdDbLayerTableRecord>(layer.safeOpenObject(OdDb::kForWrite))->setName(name);
    }
    static OdString layerOf(OdDbObjectId entity) {
        return odrxCast<OdDbEntity>(entity.safeOpenObject())->layer();
    }
    OdDbObjectId addLineOn(const wchar_t* layer) {
        const OdDbObjectId id = addLine(*database, 1);
        odrxCast<OdDbEntity>(id.safeOpenObject(OdDb::kForWrite))->setLayer(layer);
        return id;
    }
    OdString currentLayer() const { return database->getSysVar(L"CLAYER")->getString(); }
    void makeCurrent(const wchar_t* name) {
        const OdResBufPtr value = OdResBuf::newRb(8);
        value->setString(name);
        database->setSysVar(L"CLAYER", value.get());
    }
};

TEST_F(Layers, EntitiesGoWithTheirLayer) {
    const OdDbObjectId layer = addLayer(L"Walls");
    const OdDbObjectId inside = addLineOn(L"WALLS"), outside = addLineOn(L"0");
    rename(layer, L"W\u00e4nde");
    EXPECT_EQ(layerOf(inside), OdString(L"W\u00e4nde"));
    EXPECT_EQ(layerOf(outside), OdString(L"0"));
    EXPECT_EQ(odrxCast<OdDbEntity>(inside.safeOpenObject())->layerId(), layer);
    const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes());
    const auto table = odrxCast<OdDbLayerTable>(again->getLayerTableId().safeOpenObject());
    EXPECT_TRUE(table->has(L"W\u00e4nde"));
    EXPECT_FALSE(table->has(L"Walls"));
}

TEST_F(Layers, CurrentLayerFollowsItsNameBackAndForth) {
    const OdDbObjectId layer = addLayer(L"Walls");
    const OdDbObjectId line = addLineOn(L"Walls");
    makeCurrent(L"Walls");
    database->startUndoRecord();
    rename(layer, L"Other");
    EXPECT_EQ(currentLayer(), OdString(L"Other"));
    ASSERT_TRUE(database->undo());
    EXPECT_EQ(currentLayer(), OdString(L"Walls"));
    EXPECT_EQ(layerOf(line), OdString(L"Walls"));
    ASSERT_TRUE(database->redo());
    EXPECT_EQ(currentLayer(), OdString(L"Other"));
    EXPECT_EQ(layerOf(line), OdString(L"Other"));
}

TEST_F(Layers, TakenNameAndLayerZeroAreRefused) {
    const OdDbObjectId layer = addLayer(L"Walls");
    addLayer(L"Doors");
    const OdDbObjectId line = addLineOn(L"Walls");
    EXPECT_EQ(codeOf([&] { rename(layer, L"DOORS"); }), eDuplicateKey);
    EXPECT_EQ(layerOf(line), OdString(L"Walls"));
    const auto table = odrxCast<OdDbLayerTable>(database->getLayerTableId().safeOpenObject());
    const OdDbObjectId zero = static_cast<const OdDbSymbolTable&>(*table).getAt(L"0");
    EXPECT_EQ(codeOf([&] { rename(zero, L"Zero"); }), eInvalidInput);
}

TEST_F(Layers, OwnNameInAnotherSpellingIsTaken) {
    const OdDbObjectId layer = addLayer(L"Walls");
    const OdDbObjectId line = addLineOn(L"Walls");
    rename(layer, L"WALLS");
    EXPECT_EQ(layerOf(line), OdString(L"WALLS"));
}

TEST_F(Layers, RenamingOpensNothingForGood) {
    const OdDbObjectId layer = addLayer(L"Walls");
    const auto closed = odrxCast<OdDbEntity>(addLineOn(L"Walls").safeOpenObject());
    const auto open = odrxCast<OdDbEntity>(addLineOn(L"Walls").safeOpenObject(OdDb::kForWrite));
    closed->downgradeOpen();
    rename(layer, L"Doors");
    EXPECT_EQ(closed->layer(), OdString(L"Doors"));
    EXPECT_FALSE(closed->isWriteEnabled());
    EXPECT_TRUE(open->isWriteEnabled());
}
