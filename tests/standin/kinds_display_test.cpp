// Lines of each kind of object that is drawn by lines alone, and the pens that they are drawn with.
#include "standin/display/kinds.h"
#include "standin/display/picking.h"
#include "standin/display/point_mark.h"
#include "tests/standin/shown_drawing.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace standin;
using namespace shown;

using Points = std::vector<QPointF>;

std::string line(const std::string& common = "8\n0\n") {
    return head("LINE", "AcDbLine", common) + point(10, 0, 0) + point(11, 100, 0);
}

std::vector<Points> pathsOf(const Item& item) {
    std::vector<Points> paths;
    for (const Shape& shape : item.shapes)
        if (shape.kind == Shape::Path)
            paths.push_back(shape.points);
    return paths;
}

const std::string kWeightsOn = variable("LWDISPLAY", 290, "1");

struct WeightCase {
    const char* common;
    int weight;
};

TEST(LineWeights, ComeFromTheObjectItsLayerOrTheUsualOne) {
    const std::string layers =
        "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n70\n2\n0\nLAYER\n100\n"
        "AcDbSymbolTableRecord\n100\nAcDbLayerTableRecord\n2\nThick\n70\n0\n62\n1\n370\n"
        "70\n0\nLAYER\n100\nAcDbSymbolTableRecord\n100\nAcDbLayerTableRecord\n2\nPlain\n"
        "70\n0\n62\n1\n370\n-3\n0\nENDTAB\n0\nENDSEC\n";
    for (const WeightCase& each : {WeightCase{"8\nThick\n", 70},
                                   {"8\nPlain\n", 25},
                                   {"8\nThick\n370\n13\n", 13},
                                   {"8\nThick\n370\n0\n", 0},
                                   {"8\nThick\n370\n-3\n", 25},
                                   {"8\nThick\n370\n-1\n", 70},
                                   {"8\nThick\n370\n9999\n", 211}}) {
        const auto drawing =
            OdDbDatabase::readBytes("0\nSECTION\n2\nHEADER\n" + kWeightsOn + "0\nENDSEC\n" + layers +
                                    "0\nSECTION\n2\nENTITIES\n" + line(each.common) + "0\nENDSEC\n0\nEOF\n");
        DisplayList list(drawing);
        list.refresh();
        EXPECT_EQ(list.within({-1, -1, 1, 1}).at(0)->shapes[0].weight, each.weight) << each.common;
    }
}

TEST(LineWeights, OfPartsByBlockAreThoseOfTheReference) {
    const Drawing drawing(head("INSERT", "AcDbBlockReference", "8\n0\n370\n50\n") + "2\nB\n" +
                              point(10, 0, 0),
                          blocks(blockOf("B", line("8\n0\n370\n-2\n"))), kWeightsOn);
    EXPECT_EQ(drawing.shape().weight, 50);
}

TEST(LineWeights, ShowOnlyInDrawingsThatAskForThem) {
    const Box around{0, -5, 100, 5};
    const Drawing thin(line("8\n0\n370\n200\n")), thick(line("8\n0\n370\n200\n"), {}, kWeightsOn);
    const double above = 2.5; // 2.5 pixels: within half of 7.6 of them
    EXPECT_EQ(Screen(thin, around).grey(50, above), 0);
    EXPECT_GT(Screen(thick, around).grey(50, above), 200);
    EXPECT_EQ(Screen(thick, around).grey(50, 5), 0);
}

TEST(LineWeights, AreSwitchedByTheVariable) {
    Drawing drawing(line("8\n0\n370\n200\n"), {}, variable("LWDISPLAY", 290, "0"));
    EXPECT_EQ(drawing.shape().weight, 0);
    const OdResBufPtr on = OdResBuf::newRb(OdResBuf::kDxfBool);
    on->setBool(true);
    drawing.list.database().setSysVar(L"LWDISPLAY", on.get());
    drawing.list.refresh();
    EXPECT_EQ(drawing.list.within({-1, -1, 1, 1}).at(0)->shapes[0].weight, 200);
}

TEST(Transparency, MixesTheColourWithWhatLiesBelow) {
    const std::string area = head("SOLID", "AcDbTrace", "8\n0\n62\n1\n440\n33554559\n") + point(10, 0, 0) +
                             point(11, 10, 0) + point(12, 0, 10) + point(13, 10, 10);
    const Drawing drawing(area);
    EXPECT_EQ(drawing.shape().opacity, 127);
    const QColor seen = Screen(drawing, {0, 0, 10, 10}).at(5, 5);
    EXPECT_NEAR(seen.red(), 127, 2);
    EXPECT_EQ(seen.green(), 0);
}

TEST(Transparency, ComesFromTheLayerOrTheReference) {
    const std::string tables =
        "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n70\n1\n0\nLAYER\n100\nAcDbSymbolTableRecord\n100\n"
        "AcDbLayerTableRecord\n2\nGlass\n70\n0\n62\n1\n1001\nOther\n1071\n33554441\n1001\nAcCmTransparency\n1"
        "071\n"
        "33554532\n0\nENDTAB\n0\nENDSEC\n";
    const auto drawing = OdDbDatabase::readBytes(
        tables + blocks(blockOf("B", line("8\n0\n440\n16777216\n"))) + "0\nSECTION\n2\nENTITIES\n" +
        line("8\nGlass\n") + head("INSERT", "AcDbBlockReference", "8\n0\n440\n33554522\n") + "2\nB\n" +
        point(10, 0, 50) + "0\nENDSEC\n0\nEOF\n");
    DisplayList list(drawing);
    list.refresh();
    EXPECT_EQ(list.within({-1, -1, 1, 1}).at(0)->shapes[0].opacity, 100);
    EXPECT_EQ(list.within({-1, 49, 1, 51}).at(0)->shapes[0].opacity, 90);
}

TEST(EndlessLines, ReachOutOfEveryViewButCountByTheirPoint) {
    for (const bool isRay : {true, false}) {
        const Drawing drawing(head(isRay ? "RAY" : "XLINE", isRay ? "AcDbRay" : "AcDbXline") +
                              point(10, 2, 3) + point(11, 1, 0));
        ASSERT_EQ(drawing.items.size(), 1u);
        EXPECT_EQ(drawing.items[0]->shapes.size(), isRay ? 1u : 2u);
        EXPECT_EQ(drawing.shape().points[0], QPointF(2, 3));
        const Box size = drawing.list.extents();
        EXPECT_EQ(size.width(), 0);
        EXPECT_EQ(size.left, 2);
        EXPECT_EQ(size.bottom, 3);
        const Screen far(drawing, {1e6, -100, 1e6 + 200, 106});
        EXPECT_GT(far.grey(1e6 + 50, 3), 100);
        EXPECT_EQ(itemAt(drawing.list, {-1e6, 3}, 1, 1).isNull(), isRay);
    }
}

TEST(Faces, AreTheirVisibleEdges) {
    const std::string corners = point(10, 0, 0) + point(11, 4, 0) + point(12, 4, 3) + point(13, 0, 3);
    const Drawing whole(head("3DFACE", "AcDbFace") + corners);
    EXPECT_EQ(pathsOf(*whole.items.at(0)), (std::vector<Points>{{{0, 0}, {4, 0}, {4, 3}, {0, 3}, {0, 0}}}));
    const Drawing partly(head("3DFACE", "AcDbFace") + corners +
                         "70\n5\n"); // the first and the third are hidden
    EXPECT_EQ(pathsOf(*partly.items.at(0)), (std::vector<Points>{{{4, 0}, {4, 3}}, {{0, 3}, {0, 0}}}));
    const Drawing triangle(head("3DFACE", "AcDbFace") + point(10, 0, 0) + point(11, 4, 0) + point(12, 4, 3));
    EXPECT_EQ(pathsOf(*triangle.items.at(0)), (std::vector<Points>{{{0, 0}, {4, 0}, {4, 3}, {0, 0}}}));
}

// Two triangles that share an edge.
TEST(Meshes, AreTheEdgesOfTheirFaces) {
    const Drawing drawing(head("MESH", "AcDbSubDMesh") + "71\n2\n72\n0\n91\n0\n92\n4\n" + point(10, 0, 0) +
                          point(10, 4, 0) + point(10, 4, 3) + point(10, 0, 3) +
                          "93\n8\n90\n3\n90\n0\n90\n1\n90\n2\n90\n3\n90\n0\n90\n2\n90\n3\n94\n0\n95\n0\n");
    EXPECT_EQ(pathsOf(*drawing.items.at(0)).size(), 5u);
    EXPECT_EQ(drawing.items[0]->box.right, 4);
    const Drawing broken(head("MESH", "AcDbSubDMesh") + "92\n1\n" + point(10, 0, 0) +
                         "93\n9\n90\n3\n90\n0\n90\n7\n90\n-1\n90\n999999999\n94\n0\n");
    EXPECT_TRUE(broken.items.empty()); // numbers of points that are not there
}

std::string vertex(const std::string& rest) { return "0\nVERTEX\n8\n0\n" + rest; }

TEST(Meshes, OfPolyfacesHaveNoLineToTheOrigin) {
    std::string text = "0\nPOLYLINE\n8\n0\n66\n1\n70\n64\n71\n3\n72\n1\n";
    for (const auto& corner : {QPointF(10, 10), QPointF(14, 10), QPointF(14, 13)})
        text += vertex(point(10, corner.x(), corner.y()) + "70\n192\n");
    text += vertex(point(10, 0, 0) + "70\n128\n71\n1\n72\n2\n73\n-3\n") + "0\nSEQEND\n8\n0\n";
    const Drawing drawing(text);
    EXPECT_EQ(pathsOf(*drawing.items.at(0)),
              (std::vector<Points>{{{10, 10}, {14, 10}}, {{14, 10}, {14, 13}}}));
    EXPECT_EQ(drawing.items[0]->box.left, 10);
}

TEST(Meshes, OfPolygonsAreRowsAndColumns) {
    std::string text = "0\nPOLYLINE\n8\n0\n66\n1\n70\n17\n71\n2\n72\n3\n"; // closed along the columns
    for (int row = 0; row < 2; ++row)
        for (int column = 0; column < 3; ++column)
            text += vertex(point(10, column, row) + "70\n64\n");
    const Drawing drawing(text + "0\nSEQEND\n8\n0\n");
    EXPECT_EQ(pathsOf(*drawing.items.at(0)), (std::vector<Points>{{{0, 0}, {1, 0}, {2, 0}},
                                                                  {{0, 1}, {1, 1}, {2, 1}},
                                                                  {{0, 0}, {0, 1}, {0, 0}},
                                                                  {{1, 0}, {1, 1}, {1, 0}},
                                                                  {{2, 0}, {2, 1}, {2, 0}}}));
}

TEST(Helices, AreTheCurveThatTheyKeep) {
    const Drawing drawing(head("HELIX", "AcDbSpline") + "70\n0\n71\n1\n40\n0\n40\n0\n40\n1\n40\n1\n" +
                          point(10, 0, 0) + point(10, 8, 0) + "100\nAcDbHelix\n" + point(10, 50, 50));
    EXPECT_EQ(drawing.shape().points.front(), QPointF(0, 0));
    EXPECT_EQ(drawing.shape().points.back(), QPointF(8, 0));
}

TEST(FitSplines, GoSmoothlyThroughAllTheirPoints) {
    const Drawing drawing(head("SPLINE", "AcDbSpline") + "70\n8\n71\n3\n74\n3\n" + point(11, 0, 0) +
                          point(11, 5, 5) + point(11, 10, 0));
    const Points& path = drawing.shape().points;
    ASSERT_GT(path.size(), 20u);
    EXPECT_EQ(path.front(), QPointF(0, 0));
    EXPECT_NE(std::find(path.begin(), path.end(), QPointF(5, 5)), path.end());
    EXPECT_EQ(path.back(), QPointF(10, 0));
    const QPointF before = path[path.size() / 2 - 1], behind = path[path.size() / 2 + 1];
    EXPECT_NEAR(before.y(), behind.y(), 1e-9); // level at the top: no corner there
    EXPECT_NEAR(before.x() + behind.x(), 10, 1e-9);
}

TEST(FitSplines, StartInTheirDirectionAndCloseWithoutACorner) {
    const Drawing directed(head("SPLINE", "AcDbSpline") + "70\n8\n71\n3\n" + point(11, 0, 0) +
                           point(11, 10, 0) + point(12, 0, 5));
    const QPointF first = directed.shape().points[1];
    EXPECT_GT(first.y(), 5 * first.x()); // upwards
    const Drawing closed(head("SPLINE", "AcDbSpline") + "70\n9\n71\n3\n" + point(11, 0, 0) +
                         point(11, 10, 0) + point(11, 10, 10) + point(11, 0, 10));
    const Points& path = closed.shape().points;
    EXPECT_EQ(path.front(), path.back());
    const QPointF out = path[1] - path[0], in = path[0] - path[path.size() - 2];
    EXPECT_NEAR(out.x() * in.y() - out.y() * in.x(), 0, 0.02);
    EXPECT_GT(QPointF::dotProduct(out, in), 0);
}

std::string shownPoint() { return head("POINT", "AcDbPoint") + point(10, 5, 5); }

std::string pointVariables(int mode, double size) {
    return variable("PDMODE", 70, std::to_string(mode)) + variable("PDSIZE", 40, std::to_string(size));
}

TEST(Points, AreDrawnByTheModeAndTheSizeOfTheDrawing) {
    EXPECT_EQ(Drawing(shownPoint()).shape().kind, Shape::Dot);
    const Drawing plus(shownPoint(), {}, pointVariables(2, 2));
    EXPECT_EQ(pathsOf(*plus.items.at(0)), (std::vector<Points>{{{3, 5}, {7, 5}}, {{5, 3}, {5, 7}}}));
    const Drawing framed(shownPoint(), {}, pointVariables(3 + 32 + 64, 4));
    ASSERT_EQ(framed.items.at(0)->shapes.size(), 4u); // a cross, a circle and a square
    EXPECT_EQ(framed.shape(0).points, (Points{{1, 1}, {9, 9}}));
    EXPECT_EQ(framed.shape(2).kind, Shape::Arc);
    EXPECT_EQ(framed.shape(2).points[1], QPointF(2, 0));
    EXPECT_EQ(framed.shape(3).points[0], QPointF(3, 3));
    const Drawing tick(shownPoint(), {}, pointVariables(4, 4));
    EXPECT_EQ(pathsOf(*tick.items.at(0)), (std::vector<Points>{{{5, 5}, {5, 7}}}));
    EXPECT_TRUE(Drawing(shownPoint(), {}, pointVariables(1, 4)).items.empty());
}

// 100 pixels for 10 units.
TEST(Points, MayBeAsLargeAsAPartOfTheWindow) {
    for (const double size : {0.0, -20.0}) {
        const Drawing drawing(shownPoint(), {}, pointVariables(2, size));
        ASSERT_EQ(drawing.items.size(), 1u);
        EXPECT_EQ(drawing.items[0]->box.width(), 0);
        const Screen screen(drawing, {0, 0, 10, 10});
        EXPECT_GT(screen.grey(5.4, 5), 100) << size;
        EXPECT_EQ(screen.grey(6.5, 5) > 100, size < 0) << size; // 20 percent reach 2 units out, 5 only a half
    }
}

TEST(TaperedPolylines, AreAsWideAsEachOfTheirEnds) {
    const Drawing drawing(head("LWPOLYLINE", "AcDbPolyline") + "70\n0\n" + point(10, 0, 0) +
                          "40\n0.0\n41\n4.0\n" + point(10, 10, 0) + "40\n4.0\n41\n4.0\n" + point(10, 10, 10));
    ASSERT_EQ(drawing.shape().kind, Shape::Fill);
    const std::vector<QPointF> first = bordersOf(drawing.shape()).at(0);
    EXPECT_EQ(first.at(0), QPointF(0, 0));
    EXPECT_EQ(first.at(1), QPointF(8, 2)); // mitred with the next one
    EXPECT_EQ(first.at(2), QPointF(12, -2));
    const Screen screen(drawing, {-2, -2, 14, 14});
    EXPECT_EQ(screen.at(9, 1.5), QColor(Qt::white));
    EXPECT_EQ(screen.at(2, 1.5), QColor(Qt::black));
    EXPECT_EQ(screen.at(11.5, 8), QColor(Qt::white));
}

TEST(TaperedPolylines, OfTheOldKindTakeTheWidthsOfTheWholeWhereAVertexHasNone) {
    const Drawing drawing("0\nPOLYLINE\n8\n0\n66\n1\n70\n0\n40\n2.0\n41\n6.0\n" + vertex(point(10, 0, 0)) +
                          vertex(point(10, 10, 0)) + "0\nSEQEND\n8\n0\n");
    ASSERT_EQ(drawing.shape().kind, Shape::Fill);
    EXPECT_EQ(drawing.shape().points, (Points{{0, 1}, {10, 3}, {10, -3}, {0, -1}}));
}

std::string border(double from, double to) {
    return "92\n2\n72\n0\n73\n1\n93\n4\n" + point(10, from, from) + point(10, to, from) + point(10, to, to) +
           point(10, from, to) + "97\n0\n";
}

TEST(HatchStyles, SayWhichOfTheBordersWithinEachOtherCount) {
    for (const int style : {0, 1, 2}) {
        const Drawing drawing(head("HATCH", "AcDbHatch") +
                              "10\n0\n20\n0\n30\n0\n2\nSOLID\n70\n1\n71\n0\n91\n3\n" + border(0, 12) +
                              border(2, 10) + border(4, 8) + "75\n" + std::to_string(style) +
                              "\n76\n1\n98\n0\n");
        const Screen screen(drawing, {0, 0, 12, 12});
        EXPECT_EQ(screen.at(1, 6), QColor(Qt::white)) << style;
        EXPECT_EQ(screen.at(3, 6), QColor(style == 2 ? Qt::white : Qt::black)) << style;
        EXPECT_EQ(screen.at(6, 6), QColor(style == 1 ? Qt::black : Qt::white)) << style;
    }
}

TEST(AttributeDefinitions, OfConstantsAreTextsOfTheirBlock) {
    const auto definition = [](const char* flags) {
        return "0\nATTDEF\n100\nAcDbEntity\n8\n0\n100\nAcDbText\n" + point(10, 1, 2) +
               "40\n2.5\n1\nVALUE\n100\nAcDbAttributeDefinition\n3\n?\n2\nTAG\n70\n" + flags + "\n";
    };
    const std::string reference = head("INSERT", "AcDbBlockReference") + "2\nB\n" + point(10, 10, 0);
    const Drawing constant(reference, blocks(blockOf("B", definition("2"))));
    EXPECT_EQ(constant.shape().text, "VALUE");
    EXPECT_EQ(constant.shape().points[0], QPointF(11, 2));
    for (const char* flags : {"0", "3"}) { // to be filled in, and constant but invisible
        const Drawing hidden(line() + reference, blocks(blockOf("B", line() + definition(flags))));
        ASSERT_EQ(hidden.items.size(), 2u) << flags;
        for (const Item* item : hidden.items)
            for (const Shape& shape : item->shapes)
                EXPECT_EQ(shape.kind, Shape::Path) << flags;
    }
    EXPECT_EQ(Drawing(definition("2")).shape().text, "TAG"); // outside of a block it waits to be put into one
}

TEST(Dimensions, AreTheirBlockMovedToTheirPlace) {
    for (const char* name : {"DIMENSION", "ARC_DIMENSION"}) {
        const Drawing drawing(head(name, "AcDbDimension") + "2\n*D1\n" + point(10, 7, 7) + point(12, 0, 20),
                              blocks(blockOf("*D1", line())));
        ASSERT_EQ(drawing.items.size(), 1u) << name;
        EXPECT_EQ(drawing.shape().points, (Points{{0, 20}, {100, 20}})) << name;
    }
}

TEST(Dimensions, WithoutTheirBlockAreAMarkWithItsName) {
    for (const char* name : {"DIMENSION", "ARC_DIMENSION", "LARGE_RADIAL_DIMENSION"}) {
        const Drawing drawing(head(name, "AcDbDimension") + "2\n*D9\n" + point(10, 7, 8) + point(12, 0, 20));
        ASSERT_EQ(drawing.items.size(), 1u) << name;
        EXPECT_EQ(drawing.shape().kind, Shape::Missing) << name;
        EXPECT_EQ(drawing.shape().text, "*D9") << name;
        EXPECT_EQ(drawing.shape().points, (Points{{7, 8}})) << name;
    }
}

// Some files have a copy of the other drawing's contents in the block.
TEST(References, ThatAreNotLoadedAreWhatTheirBlockHoldsOrAMark) {
    const std::string reference = head("INSERT", "AcDbBlockReference") + "2\nX\n" + point(10, 5, 6);
    const std::string start = "0\nBLOCK\n8\n0\n2\nX\n70\n4\n10\n0\n20\n0\n30\n0\n1\nnowhere.dxf\n";
    const std::string end = "0\nENDBLK\n8\n0\n";
    EXPECT_EQ(Drawing(reference, blocks(start + line() + end)).shape().points, (Points{{5, 6}, {105, 6}}));
    EXPECT_EQ(Drawing(reference, blocks(start + end)).shape().kind, Shape::Missing);
}

TEST(Tables, AreTheirBlockAtTheirPlace) {
    const std::string table = "0\nACAD_TABLE\n100\nAcDbEntity\n8\n0\n100\nAcDbBlockReference\n2\n*T1\n" +
                              point(10, 5, 6) + "100\nAcDbTable\n" + point(11, 0, 1) + "91\n1\n92\n1\n";
    const Drawing drawing(table, blocks(blockOf("*T1", line())));
    ASSERT_EQ(drawing.items.size(), 1u);
    EXPECT_EQ(drawing.shape().points[0], QPointF(5, 6));
    EXPECT_NEAR(drawing.shape().points[1].y(), 106, 1e-9);
    EXPECT_EQ(Drawing(table).shape().kind, Shape::Missing); // without its block
}

} // namespace
