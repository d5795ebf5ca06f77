// What each kind of entity says of itself: every value stands under a code of its own, so that a value that
// is taken from its neighbour shows.
#include "tests/sdk/db/drawing_fixture.h"

#include "sdk/db/block_reference.h"
#include "sdk/db/layer_table.h"
#include "sdk/db/polyline.h"
#include "sdk/db/spline.h"
#include "sdk/db/text.h"

#include <cmath>

namespace {

constexpr double kDegree = M_PI / 180;

std::string record(const std::string& name, const std::string& tags) {
    return "0\n" + name + "\n5\nA1\n100\nAcDbEntity\n8\n0\n" + tags;
}

// The tags that a new object begins with, "code=value" each.
std::string tagsOf(const OdDbObject& object) {
    std::string text;
    for (const DxfTag& tag : object.tags())
        text += (text.empty() ? "" : " ") + std::to_string(tag.code) + "=" + std::string(tag.value());
    return text;
}

void expectBox(const OdDbEntity& entity, const OdGePoint3d& low, const OdGePoint3d& high) {
    OdGeExtents3d box;
    ASSERT_EQ(entity.getGeomExtents(box), eOk);
    const auto expectNear = [](const OdGePoint3d& actual, const OdGePoint3d& expected, const char* corner) {
        EXPECT_NEAR(actual.x, expected.x, 1e-9) << corner;
        EXPECT_NEAR(actual.y, expected.y, 1e-9) << corner;
        EXPECT_NEAR(actual.z, expected.z, 1e-9) << corner;
    };
    expectNear(box.minPoint(), low, "the lowest corner");
    expectNear(box.maxPoint(), high, "the highest corner");
}

// A line of two letters, a unit high and 0.7 wide each, which hangs at 10, 20.
std::string text(int horizontal, int vertical) {
    return record("TEXT", "100\nAcDbText\n10\n1.0\n20\n2.0\n40\n1.0\n1\nab\n72\n" +
                              std::to_string(horizontal) + "\n11\n10.0\n21\n20.0\n100\nAcDbText\n73\n" +
                              std::to_string(vertical) + "\n");
}

} // namespace

TEST(EntityValues, OfALineOfText) {
    const OdDbDatabasePtr database = drawingWith(record(
        "TEXT",
        "100\nAcDbText\n10\n1.0\n20\n2.0\n30\n3.0\n40\n4.0\n1\nwords\n50\n30.0\n41\n0.8\n51\n15.0\n7\nNotes\n"
        "71\n2\n72\n5\n11\n6.0\n21\n7.0\n31\n8.0\n100\nAcDbText\n73\n3\n74\n1\n"));
    const auto line = onlyEntity<OdDbText>(*database);
    EXPECT_EQ(line->textString(), OdString(L"words"));
    EXPECT_EQ(line->position(), OdGePoint3d(1, 2, 3));
    EXPECT_EQ(line->alignmentPoint(), OdGePoint3d(6, 7, 8));
    EXPECT_EQ(line->horizontalMode(), 5);
    EXPECT_EQ(line->verticalMode(), 3);
    EXPECT_EQ(line->height(), 4);
    EXPECT_NEAR(line->rotation(), 30 * kDegree, 1e-12);
    EXPECT_EQ(line->widthFactor(), 0.8);
    EXPECT_EQ(line->textStyle(), OdString(L"Notes"));
}

TEST(EntityValues, OfALineOfTextThatSaysLittle) {
    const OdDbDatabasePtr database =
        drawingWith(record("TEXT", "100\nAcDbText\n10\n1.0\n20\n2.0\n40\n4.0\n1\nx\n11\n6.0\n21\n7.0\n"));
    const auto line = onlyEntity<OdDbText>(*database);
    EXPECT_EQ(line->alignmentPoint(), OdGePoint3d(1, 2, 0))
        << "left on its base line it hangs where it stands";
    EXPECT_EQ(line->widthFactor(), 1);
    EXPECT_EQ(line->textStyle(), OdString(L"STANDARD"));
}

TEST(EntityValues, AnAlignedTextWithoutItsSecondPointHangsAtItsFirst) {
    const OdDbDatabasePtr database =
        drawingWith(record("TEXT", "100\nAcDbText\n10\n1.0\n20\n2.0\n40\n4.0\n1\nx\n72\n2\n"));
    EXPECT_EQ(onlyEntity<OdDbText>(*database)->alignmentPoint(), OdGePoint3d(1, 2, 0));
}

TEST(EntityValues, BoxesOfTextsHangByTheirAlignment) {
    struct Case {
        int horizontal, vertical;
        double left, bottom;
    };
    // Two letters of 0.7; in the middle of the letters is the middle of the height, whatever the vertical
    // mode says.
    for (const Case& each :
         {Case{1, 0, 9.3, 20}, Case{2, 0, 8.6, 20}, Case{4, 0, 9.3, 19.5}, Case{0, 1, 10, 20},
          Case{0, 2, 10, 19.5}, Case{0, 3, 10, 19}, Case{4, 3, 9.3, 19.5}, Case{1, 3, 9.3, 19}}) {
        SCOPED_TRACE(std::to_string(each.horizontal) + " by " + std::to_string(each.vertical));
        const OdDbDatabasePtr database = drawingWith(text(each.horizontal, each.vertical));
        expectBox(*onlyEntity<OdDbText>(*database), {each.left, each.bottom, 0},
                  {each.left + 1.4, each.bottom + 1, 0});
    }
}

TEST(EntityValues, BoxOfATurnedTextTurnsAboutWhereItHangs) {
    const OdDbDatabasePtr database =
        drawingWith(record("TEXT", "100\nAcDbText\n10\n1.0\n20\n2.0\n40\n1.0\n1\nab\n50\n90.0\n41\n2.0\n"));
    expectBox(*onlyEntity<OdDbText>(*database), {0, 2, 0}, {1, 4.8, 0});
}

TEST(EntityValues, OfAttributesAndTheirDefinitions) {
    const std::string values =
        "100\nAcDbText\n10\n1.0\n20\n2.0\n40\n4.0\n1\nvalue\n72\n1\n11\n6.0\n21\n7.0\n";
    for (int flags = 0; flags < 4; ++flags) {
        const OdDbDatabasePtr database =
            drawingWith(record("ATTDEF", values + "100\nAcDbAttributeDefinition\n3\nAsked\n2\nTAG\n70\n" +
                                             std::to_string(flags) + "\n73\n9\n74\n2\n"));
        const auto definition = onlyEntity<OdDbAttributeDefinition>(*database);
        EXPECT_EQ(definition->tag(), OdString(L"TAG"));
        EXPECT_EQ(definition->prompt(), OdString(L"Asked"));
        EXPECT_EQ(definition->isInvisible(), flags == 1 || flags == 3) << flags;
        EXPECT_EQ(definition->isConstant(), flags >= 2) << flags;
        EXPECT_EQ(definition->verticalMode(), 2) << "73 is the length of the field";
        EXPECT_EQ(definition->horizontalMode(), 1);
    }
    const OdDbDatabasePtr database = drawingWith(
        "0\nINSERT\n5\nA0\n100\nAcDbEntity\n8\n0\n66\n1\n100\nAcDbBlockReference\n2\nB\n10\n0.0\n20\n0.0\n" +
        record("ATTRIB", values + "100\nAcDbAttribute\n2\nTAG\n70\n1\n73\n9\n74\n3\n") +
        "0\nSEQEND\n5\nA2\n8\n0\n");
    const auto insert = onlyEntity<OdDbBlockReference>(*database);
    ASSERT_EQ(insert->attributes().size(), 1u);
    const auto attribute = odrxCast<OdDbAttribute>(insert->attributes()[0].safeOpenObject());
    EXPECT_EQ(attribute->tag(), OdString(L"TAG"));
    EXPECT_TRUE(attribute->isInvisible());
    EXPECT_EQ(attribute->verticalMode(), 3);
    EXPECT_TRUE(attribute->paragraph().isNull());
}

TEST(EntityValues, OfAParagraph) {
    const OdDbDatabasePtr database = drawingWith(record(
        "MTEXT",
        "100\nAcDbMText\n10\n1.0\n20\n2.0\n30\n3.0\n40\n4.0\n41\n50.0\n42\n6.0\n71\n7\n72\n5\n3\nfirst \n"
        "1\nand rest\n11\n0.0\n21\n1.0\n31\n0.0\n50\n33.0\n73\n1\n44\n1.5\n"));
    const auto paragraph = onlyEntity<OdDbMText>(*database);
    EXPECT_EQ(paragraph->contents(), OdString(L"first and rest"));
    EXPECT_EQ(paragraph->location(), OdGePoint3d(1, 2, 3));
    EXPECT_EQ(paragraph->textHeight(), 4);
    EXPECT_EQ(paragraph->width(), 50);
    EXPECT_NEAR(paragraph->rotation(), 90 * kDegree, 1e-12) << "the direction goes before the angle";
    EXPECT_EQ(paragraph->attachment(), 7);
    EXPECT_EQ(paragraph->columns().count, 1);
}

TEST(EntityValues, AParagraphsContentsMayStandBeforeItsMarkerOrNowhere) {
    const std::string marked = "100\nAcDbMText\n10\n1.0\n20\n2.0\n40\n4.0\n";
    for (const auto& [tags, contents] :
         {std::pair("3\nsome \n1\nwords\n" + marked, L"some words"), {marked, L""}}) {
        const OdDbDatabasePtr database = drawingWith(record("MTEXT", tags));
        const auto paragraph =
            odrxCast<OdDbMText>(onlyEntity<OdDbMText>(*database)->objectId().safeOpenObject(OdDb::kForWrite));
        EXPECT_EQ(paragraph->contents(), OdString(contents));
        const OdString longer = std::wstring(600, L'x') + L"y";
        paragraph->setContents(longer);
        EXPECT_EQ(paragraph->contents(), longer);
    }
}

TEST(EntityValues, AParagraphMayGiveItsAngleAndNoAttachment) {
    const OdDbDatabasePtr database =
        drawingWith(record("MTEXT", "100\nAcDbMText\n10\n1.0\n20\n2.0\n40\n4.0\n72\n5\n1\nx\n50\n30.0\n"));
    const auto paragraph = onlyEntity<OdDbMText>(*database);
    EXPECT_NEAR(paragraph->rotation(), 30 * kDegree, 1e-12);
    EXPECT_EQ(paragraph->attachment(), 1);
}

TEST(EntityValues, BoxesOfParagraphsHangByTheirAttachment) {
    const double width = 0.7 * 2, height = 1 + 5.0 / 3;
    for (int attachment = 1; attachment <= 9; ++attachment) {
        SCOPED_TRACE(attachment);
        const OdDbDatabasePtr database =
            drawingWith(record("MTEXT", "100\nAcDbMText\n10\n10.0\n20\n20.0\n40\n1.0\n71\n" +
                                            std::to_string(attachment) + "\n1\nab\\Pc\n"));
        const double left = 10 - width / 2 * ((attachment - 1) % 3);
        const double top = 20 + height / 2 * ((attachment - 1) / 3);
        expectBox(*onlyEntity<OdDbMText>(*database), {left, top - height, 0}, {left + width, top, 0});
    }
}

TEST(EntityValues, OfCurves) {
    const OdDbDatabasePtr arcs = drawingWith(record(
        "ARC", "100\nAcDbCircle\n10\n1.0\n20\n2.0\n30\n3.0\n40\n4.0\n100\nAcDbArc\n50\n30.0\n51\n60.0\n"));
    const auto arc = onlyEntity<OdDbArc>(*arcs);
    EXPECT_EQ(arc->center(), OdGePoint3d(1, 2, 3));
    EXPECT_EQ(arc->radius(), 4);
    EXPECT_NEAR(arc->startAngle(), 30 * kDegree, 1e-12);
    EXPECT_NEAR(arc->endAngle(), 60 * kDegree, 1e-12);

    const OdDbDatabasePtr ellipses = drawingWith(
        record("ELLIPSE", "100\nAcDbEllipse\n10\n1.0\n20\n2.0\n30\n3.0\n11\n4.0\n21\n0.0\n31\n0.0\n40\n0.5\n"
                          "41\n1.0\n42\n2.0\n"));
    const auto ellipse = onlyEntity<OdDbEllipse>(*ellipses);
    EXPECT_EQ(ellipse->center(), OdGePoint3d(1, 2, 3));
    EXPECT_EQ(ellipse->majorAxis(), OdGeVector3d(4, 0, 0));
    EXPECT_EQ(ellipse->minorAxis(), OdGeVector3d(0, 2, 0));
    EXPECT_EQ(ellipse->startParam(), 1);
    EXPECT_EQ(ellipse->endParam(), 2);

    const OdDbDatabasePtr whole =
        drawingWith(record("ELLIPSE", "100\nAcDbEllipse\n10\n1.0\n20\n2.0\n11\n4.0\n21\n0.0\n"));
    expectBox(*onlyEntity<OdDbEllipse>(*whole), {-3, -2, 0}, {5, 6, 0});
}

TEST(EntityValues, OfAReferenceThatRepeatsItsBlock) {
    const OdDbDatabasePtr database = drawingWith(record(
        "INSERT",
        "100\nAcDbBlockReference\n2\nPART\n10\n1.0\n20\n2.0\n30\n3.0\n41\n4.0\n42\n5.0\n43\n6.0\n50\n30.0\n"
        "70\n7\n71\n8\n44\n9.0\n45\n10.0\n"));
    const auto insert = onlyEntity<OdDbBlockReference>(*database);
    EXPECT_EQ(insert->blockName(), OdString(L"PART"));
    EXPECT_EQ(insert->position(), OdGePoint3d(1, 2, 3));
    EXPECT_EQ(insert->scaleFactors().sx, 4);
    EXPECT_EQ(insert->scaleFactors().sy, 5);
    EXPECT_EQ(insert->scaleFactors().sz, 6);
    EXPECT_NEAR(insert->rotation(), 30 * kDegree, 1e-12);
    EXPECT_EQ(insert->columnCount(), 7);
    EXPECT_EQ(insert->rowCount(), 8);
    EXPECT_EQ(insert->columnSpacing(), 9);
    EXPECT_EQ(insert->rowSpacing(), 10);
}

TEST(EntityValues, CountsOfRepeatedReferencesStayWithinTheirRange) {
    for (const auto& [given, counted] : {std::pair(-5, 1), {0, 1}, {32767, 32767}, {40000, 32767}}) {
        const std::string number = std::to_string(given);
        const OdDbDatabasePtr database =
            drawingWith(record("INSERT", "100\nAcDbBlockReference\n2\nB\n10\n0.0\n20\n0.0\n70\n" + number +
                                             "\n71\n" + number + "\n"));
        EXPECT_EQ(onlyEntity<OdDbBlockReference>(*database)->columnCount(), counted) << given;
        EXPECT_EQ(onlyEntity<OdDbBlockReference>(*database)->rowCount(), counted) << given;
    }
}

TEST(EntityValues, OfAPolyline) {
    const OdDbDatabasePtr database = drawingWith(record(
        "LWPOLYLINE",
        "100\nAcDbPolyline\n90\n2\n70\n129\n38\n5.0\n10\n1.0\n20\n2.0\n40\n0.1\n41\n0.2\n42\n0.5\n10\n3.0\n"
        "20\n4.0\n"));
    const auto line = onlyEntity<OdDbPolyline>(*database);
    EXPECT_TRUE(line->isClosed());
    const auto vertices = line->vertices();
    ASSERT_EQ(vertices.size(), 2u);
    EXPECT_EQ(vertices[0].point, OdGePoint3d(1, 2, 5));
    EXPECT_EQ(vertices[0].startWidth, 0.1);
    EXPECT_EQ(vertices[0].endWidth, 0.2);
    EXPECT_EQ(vertices[0].bulge, 0.5);
    EXPECT_EQ(vertices[1].point, OdGePoint3d(3, 4, 5));
    EXPECT_EQ(vertices[1].bulge, 0);
}

TEST(EntityValues, SetVerticesReplaceTheFormerOnesAndKeepTheRest) {
    const OdDbDatabasePtr database = drawingWith(record(
        "LWPOLYLINE", "100\nAcDbPolyline\n90\n1\n70\n128\n38\n5.0\n10\n1.0\n20\n2.0\n40\n0.1\n41\n0.2\n42\n"
                      "0.5\n91\n7\n210\n0.0\n220\n0.0\n230\n1.0\n"));
    const auto line = onlyEntity<OdDbPolyline>(*database);
    line->upgradeOpen();
    line->setVertices({{{7, 8, 5}, 0.25, 0, 0}, {{9, 10, 5}, 0, 0, 0}});
    line->setClosed(true);
    EXPECT_EQ(tagsOf(*line),
              "0=LWPOLYLINE 5=A1 100=AcDbEntity 8=0 100=AcDbPolyline 90=2 70=129 38=5.0 210=0.0 220=0.0 "
              "230=1.0 10=7.0 20=8.0 42=0.25 10=9.0 20=10.0");
    line->setClosed(false);
    EXPECT_FALSE(line->isClosed());
    EXPECT_NE(tagsOf(*line).find(" 70=128 "), std::string::npos) << "the other flags stay";
}

TEST(EntityValues, SettersSetWhatTheirGettersRead) {
    const OdGePoint3d point(1.5, 2.5, 3.5);
    OdDbPointPtr mark(new OdDbPoint);
    mark->setPosition(point);
    EXPECT_EQ(mark->position(), point);
    OdDbLinePtr line(new OdDbLine);
    line->setStartPoint(point);
    EXPECT_EQ(line->startPoint(), point);
    EXPECT_EQ(line->endPoint(), OdGePoint3d());
    line->setEndPoint({4, 5, 6});
    EXPECT_EQ(line->endPoint(), OdGePoint3d(4, 5, 6));
    EXPECT_EQ(line->startPoint(), point);
    OdDbCirclePtr circle(new OdDbCircle);
    circle->setCenter(point);
    circle->setRadius(7);
    EXPECT_EQ(circle->center(), point);
    EXPECT_EQ(circle->radius(), 7);
    OdDbArcPtr arc(new OdDbArc);
    arc->setCenter(point);
    arc->setRadius(7);
    arc->setStartAngle(1);
    arc->setEndAngle(2);
    EXPECT_EQ(arc->center(), point);
    EXPECT_EQ(arc->radius(), 7);
    EXPECT_NEAR(arc->startAngle(), 1, 1e-12);
    EXPECT_NEAR(arc->endAngle(), 2, 1e-12);
    OdDbTextPtr words(new OdDbText);
    words->setPosition(point);
    words->setHeight(7);
    words->setRotation(1);
    words->setTextString(L"abc");
    EXPECT_EQ(words->position(), point);
    EXPECT_EQ(words->height(), 7);
    EXPECT_NEAR(words->rotation(), 1, 1e-12);
    EXPECT_EQ(words->textString(), OdString(L"abc"));
    OdDbMTextPtr paragraph(new OdDbMText);
    paragraph->setLocation(point);
    EXPECT_EQ(paragraph->location(), point);
    OdDbViewportPtr view(new OdDbViewport);
    view->setNumber(5);
    EXPECT_EQ(view->number(), 5);
}

TEST(EntityValues, OfAViewport) {
    const OdDbDatabasePtr database = drawingWith(
        record("VIEWPORT", "100\nAcDbViewport\n10\n1.0\n20\n2.0\n30\n3.0\n40\n4.0\n41\n5.0\n68\n6\n69\n7\n"));
    const auto view = onlyEntity<OdDbViewport>(*database);
    EXPECT_EQ(view->centerPoint(), OdGePoint3d(1, 2, 3));
    EXPECT_EQ(view->width(), 4);
    EXPECT_EQ(view->height(), 5);
    EXPECT_EQ(view->number(), 7);
}

TEST(EntityValues, OfALayer) {
    OdDbLayerTableRecordPtr layer(new OdDbLayerTableRecord);
    EXPECT_FALSE(layer->isOff() || layer->isFrozen() || layer->isLocked() || layer->hasTrueColor());
    EXPECT_EQ(layer->colorIndex(), 7);
    layer->setIsFrozen(true);
    EXPECT_TRUE(layer->isFrozen() && !layer->isLocked());
    layer->setIsLocked(true);
    layer->setIsFrozen(false);
    EXPECT_TRUE(layer->isLocked() && !layer->isFrozen());
    layer->setColorIndex(3);
    layer->setIsOff(true);
    EXPECT_TRUE(layer->isOff());
    EXPECT_EQ(layer->colorIndex(), 3);
    layer->setColorIndex(4);
    EXPECT_TRUE(layer->isOff()) << "a colour does not turn a layer on";
    layer->setIsOff(false);
    EXPECT_FALSE(layer->isOff());
    EXPECT_EQ(layer->colorIndex(), 4);
    for (const auto& [stored, shown] : {std::pair(0, 7), {1, 1}, {255, 255}, {256, 7}}) {
        layer->setColorIndex(stored);
        EXPECT_EQ(layer->colorIndex(), shown) << stored;
    }
}

TEST(EntityValues, NewObjectsBeginWithTheTagsOfTheirKind) {
    const std::string entity = " 100=AcDbEntity 8=0 ";
    const std::string origin = "10=0.0 20=0.0 30=0.0";
    EXPECT_EQ(tagsOf(*OdDbPointPtr(new OdDbPoint)), "0=POINT" + entity + "100=AcDbPoint " + origin);
    EXPECT_EQ(tagsOf(*OdDbLinePtr(new OdDbLine)),
              "0=LINE" + entity + "100=AcDbLine " + origin + " 11=0.0 21=0.0 31=0.0");
    EXPECT_EQ(tagsOf(*OdDbCirclePtr(new OdDbCircle)),
              "0=CIRCLE" + entity + "100=AcDbCircle " + origin + " 40=1.0");
    EXPECT_EQ(tagsOf(*OdDbArcPtr(new OdDbArc)),
              "0=ARC" + entity + "100=AcDbCircle " + origin + " 40=1.0 100=AcDbArc 50=0.0 51=90.0");
    EXPECT_EQ(tagsOf(*OdDbTextPtr(new OdDbText)),
              "0=TEXT" + entity + "100=AcDbText " + origin + " 40=2.5 1= 100=AcDbText");
    EXPECT_EQ(tagsOf(*OdDbMTextPtr(new OdDbMText)),
              "0=MTEXT" + entity + "100=AcDbMText " + origin + " 40=2.5 71=1 1=");
    EXPECT_EQ(tagsOf(*OdDbPolylinePtr(new OdDbPolyline)),
              "0=LWPOLYLINE" + entity + "100=AcDbPolyline 90=0 70=0");
    EXPECT_EQ(tagsOf(*OdDbBlockReferencePtr(new OdDbBlockReference)),
              "0=INSERT" + entity + "100=AcDbBlockReference 2= " + origin);
    EXPECT_EQ(tagsOf(*OdDbViewportPtr(new OdDbViewport)),
              "0=VIEWPORT" + entity + "100=AcDbViewport " + origin + " 40=1.0 41=1.0 68=1 69=2");
    EXPECT_EQ(tagsOf(*OdDbLayerTableRecordPtr(new OdDbLayerTableRecord)),
              "0=LAYER 100=AcDbSymbolTableRecord 100=AcDbLayerTableRecord 2= 70=0 62=7 6=Continuous");
    EXPECT_EQ(tagsOf(*OdDbBlockTableRecordPtr(new OdDbBlockTableRecord)),
              "0=BLOCK_RECORD 100=AcDbSymbolTableRecord 100=AcDbBlockTableRecord 2=");
}

TEST(EntityValues, RenamingABlockLeavesReferencesOfOtherBlocksAlone) {
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    const auto blocks = odrxCast<OdDbBlockTable>(database->getBlockTableId().safeOpenObject(OdDb::kForWrite));
    const auto space =
        odrxCast<OdDbBlockTableRecord>(database->getModelSpaceId().safeOpenObject(OdDb::kForWrite));
    OdDbObjectIdArray references;
    OdDbObjectIdArray definitions;
    for (const wchar_t* name : {L"First", L"Second"}) {
        OdDbBlockTableRecordPtr block(new OdDbBlockTableRecord);
        block->setName(name);
        definitions.push_back(blocks->add(block.get()));
        OdDbBlockReferencePtr reference(new OdDbBlockReference);
        reference->setBlockTableRecord(definitions.back());
        references.push_back(space->appendOdDbEntity(reference.get()));
    }
    odrxCast<OdDbBlockTableRecord>(definitions[0].safeOpenObject(OdDb::kForWrite))->setName(L"Other");
    const auto blockOf = [](OdDbObjectId id) {
        return odrxCast<OdDbBlockReference>(id.safeOpenObject())->blockName();
    };
    EXPECT_EQ(blockOf(references[0]), OdString(L"Other"));
    EXPECT_EQ(blockOf(references[1]), OdString(L"Second"));
}
