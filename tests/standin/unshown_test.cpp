// What a drawing does not show is told by kinds; blocks that are shown often, and what is cut off of them.
#include "standin/display/block_shapes.h"
#include "standin/display/unshown.h"
#include "tests/standin/shown_drawing.h"

#include <gtest/gtest.h>

namespace {

using namespace standin;
using namespace shown;

std::string record(const char* name) { return head(name, "AcDbSomething"); }
std::string line(const std::string& common = "8\n0\n") {
    return head("LINE", "AcDbLine", common) + point(10, 0, 0) + point(11, 4, 0);
}
std::string insert(const char* block, const std::string& more, const std::string& common = "8\n0\n") {
    return head("INSERT", "AcDbBlockReference", common) + "2\n" + block + "\n" + more;
}

TEST(Unshown, IsToldByKindsTheMostFrequentFirst) {
    std::string entities = line() + record("REGION") + record("ACME_WALL");
    for (int i = 0; i < 10; ++i)
        entities += record("3DSOLID");
    EXPECT_EQ(Drawing(entities).list.unshown().notices(),
              QStringList("12 objects are not shown: 10 3DSOLID, 1 ACME_WALL, 1 REGION."));
    EXPECT_EQ(Drawing(record("BODY")).list.unshown().notices(),
              QStringList("1 object is not shown: 1 BODY."));
    EXPECT_TRUE(Drawing(line()).list.unshown().notices().isEmpty());
}

TEST(Unshown, CountsThePartsOfABlockOnceHoweverOftenItIsPlaced) {
    const std::string references = insert("B", point(10, 0, 0)) +
                                   insert("B", point(10, 9, 0) + "62\n1\n", "8\n0\n62\n1\n") +
                                   insert("B", point(10, 0, 9) + "70\n3\n71\n3\n44\n5.0\n45\n5.0\n");
    EXPECT_EQ(Drawing(references, blocks(blockOf("B", record("REGION") + line()))).list.unshown().notices(),
              QStringList("1 object is not shown: 1 REGION."));
}

struct NoPicture {
    const char* name;
    const char* marker;
    std::string data;
};

TEST(Unshown, AreObjectsOfAKindWithAPictureThatSayTooLittleForOne) {
    const std::string context = "300\nCONTEXT_DATA{\n" + point(10, 1, 1) + "301\n}\n";
    for (const NoPicture& each : {NoPicture{"DIMENSION", "AcDbDimension", point(10, 7, 7)},
                                  {"DIMENSION", "AcDbDimension", "2\n\n" + point(10, 7, 7)},
                                  {"ARC_DIMENSION", "AcDbDimension", point(10, 7, 7)},
                                  {"LARGE_RADIAL_DIMENSION", "AcDbDimension", point(10, 7, 7)},
                                  {"MULTILEADER", "AcDbMLeader", "170\n1\n"},
                                  {"MLEADER", "AcDbMLeader", {}}}) {
        const Drawing drawing(head(each.name, each.marker) + each.data);
        EXPECT_EQ(drawing.list.unshown().notices(),
                  QStringList(QString("1 object is not shown: 1 %1.").arg(each.name)));
        EXPECT_TRUE(drawing.items.empty()) << each.name << " is counted, and not marked as well";
    }
    const Drawing shown(head("DIMENSION", "AcDbDimension") + "2\n*D1\n" + head("MULTILEADER", "AcDbMLeader") +
                        context);
    EXPECT_TRUE(shown.list.unshown().notices().isEmpty());
}

// More cells than can be shown.
TEST(Unshown, IsWhatIsCutOffOfAnEndlessArray) {
    const Drawing drawing(
        line() + insert("B", point(10, 0, 0) + "70\n32767\n71\n32767\n44\n5.0\n45\n5.0\n", "5\n2F\n8\n0\n"),
        blocks(blockOf("B", line())));
    ASSERT_EQ(drawing.items.size(), 2u);
    EXPECT_GT(drawing.items[1]->shapes.size(), ItemBuilder::kMostShapes * 9 / 10);
    EXPECT_LE(drawing.items[1]->shapes.size(), ItemBuilder::kMostShapes);
    ASSERT_EQ(drawing.list.unshown().notices().size(), 1);
    const QString notice = drawing.list.unshown().notices()[0];
    EXPECT_TRUE(notice.startsWith("1 object has too many parts and is shown only in part: INSERT "))
        << notice.toStdString();
}

// So many empty cells count, although there is nothing to see in them.
std::string emptyCells(int columns, int rows, const char* handle) {
    return insert("E",
                  point(10, 0, 0) + "70\n" + std::to_string(columns) + "\n71\n" + std::to_string(rows) + "\n",
                  "5\n" + std::string(handle) + "\n8\n0\n");
}

struct CutCase {
    std::string entities;
    QStringList notices;
};

TEST(Unshown, SaysWhetherAnObjectOrTheDrawingHasTooManyParts) {
    const std::string letters(5001, 'x'), reference = insert("B", point(10, 0, 0), "5\n31\n8\n0\n");
    const std::string thirds =
        emptyCells(1000, 600, "41") + emptyCells(1000, 600, "42") + emptyCells(1000, 600, "43");
    const QString ownParts = "1 object has too many parts and is shown only in part: ";
    for (const CutCase& each :
         {CutCase{thirds, {}},
          {head("TEXT", "AcDbText", "5\n30\n8\n0\n") + point(10, 0, 0) + "40\n1\n1\n" + letters + "\n",
           {ownParts + "TEXT 30."}},
          {emptyCells(2000, 1100, "44"), {ownParts + "INSERT 44."}},
          {emptyCells(2000, 1100, "44") + reference,
           {ownParts + "INSERT 44.",
            "The drawing has too many parts in all; 1 object is shown only in part: INSERT 31."}},
          {thirds + emptyCells(1000, 600, "44") + reference,
           {"The drawing has too many parts in all; 2 objects are shown only in part: INSERT 44, INSERT "
            "31."}}})
        EXPECT_EQ(
            Drawing(each.entities, blocks(blockOf("E", {}) + blockOf("B", line()))).list.unshown().notices(),
            each.notices);
}

TEST(BlockShapes, AreMovedTurnedAndStretchedForEachPlace) {
    const std::string parts = line() + head("CIRCLE", "AcDbCircle") + point(10, 1, 1) + "40\n2.0\n" +
                              head("TEXT", "AcDbText") + point(10, 3, 0) + "40\n1.5\n1\nT\n" +
                              head("POINT", "AcDbPoint") + point(10, 5, 5);
    const Drawing drawing(insert("B", point(10, 100, 0) + "41\n2.0\n42\n2.0\n50\n90.0\n") +
                              insert("B", point(10, 200, 0)),
                          blocks(blockOf("B", parts)));
    for (const auto& [number, origin, x] :
         {std::tuple(0u, QPointF(100, 0), QPointF(0, 2)), {1u, QPointF(200, 0), QPointF(1, 0)}}) {
        const QPointF y(-x.y(), x.x());
        const auto at = [&, from = origin, along = x](double a, double b) {
            return from + along * a + y * b;
        };
        const std::vector<Shape>& shapes = drawing.items.at(number)->shapes;
        ASSERT_EQ(shapes.size(), 4u);
        const auto expectNear = [](const QPointF& found, const QPointF& expected) {
            EXPECT_NEAR(found.x(), expected.x(), 1e-9);
            EXPECT_NEAR(found.y(), expected.y(), 1e-9);
        };
        expectNear(shapes[0].points[1], at(4, 0));
        expectNear(shapes[1].points[0], at(1, 1));
        expectNear(shapes[1].points[1], x * 2);
        expectNear(shapes[1].points[2], y * 2);
        expectNear(shapes[1].points[3], {0, 2 * M_PI});
        expectNear(shapes[2].points[0], at(3, 0));
        expectNear(shapes[2].points[2], y * 1.5);
        expectNear(shapes[3].points[0], at(5, 5));
    }
}

TEST(BlockShapes, LookAsEachOfTheirReferencesAsks) {
    const Drawing drawing(
        insert("B", point(10, 0, 0), "8\n0\n62\n1\n") + insert("B", point(10, 0, 9), "8\n0\n62\n5\n") +
            insert("B", point(10, 0, 18), "8\nRed\n") + insert("B", point(10, 0, 27), "8\n0\n62\n1\n"),
        blocks(blockOf("B", line("8\n0\n62\n0\n") + line())));
    const std::vector<std::pair<Ink, Ink>> expected{{0xffff0000u, kForeground},
                                                    {0xff0000ffu, kForeground},
                                                    {0xffff0000u, 0xffff0000u},
                                                    {0xffff0000u, kForeground}};
    ASSERT_EQ(drawing.items.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(drawing.items[i]->shapes[0].ink, expected[i].first) << i;
        EXPECT_EQ(drawing.items[i]->shapes[1].ink, expected[i].second) << i;
    }
}

TEST(BlockShapes, OfATiltedReferenceKeepTheirHeights) {
    const std::string raised = head("LINE", "AcDbLine") + "10\n0\n20\n0\n30\n0\n11\n0\n21\n0\n31\n7\n";
    const Drawing drawing(insert("B", point(10, 0, 0) + "210\n1\n220\n0\n230\n0\n"),
                          blocks(blockOf("B", raised)));
    EXPECT_EQ(drawing.shape().points[1], QPointF(7, 0)); // up in the block is along X of the drawing
}

// Of the two blocks each holds the other and a line.
TEST(BlockShapes, ThatHoldEachOtherAreShownOnceFromEitherSide) {
    const std::string both = blockOf("A", line() + insert("B", point(10, 0, 10))) +
                             blockOf("B", line() + insert("A", point(10, 0, 100)));
    const Drawing drawing(insert("A", point(10, 0, 0)) + insert("B", point(10, 0, 0)) +
                              insert("A", point(10, 0, 0)),
                          blocks(both));
    ASSERT_EQ(drawing.items.size(), 3u);
    for (const auto& [number, height] : {std::pair(0u, 10.0), {1u, 100.0}, {2u, 10.0}}) {
        ASSERT_EQ(drawing.items[number]->shapes.size(), 2u);
        EXPECT_EQ(drawing.items[number]->shapes[1].points[0].y(), height);
    }
}

// The third one has nothing to do with the circle.
TEST(BlockShapes, ThatHoldEachOtherAndAThirdOneAreShownOnceFromEitherSide) {
    const std::string all =
        blockOf("A", line() + insert("B", point(10, 0, 10)) + insert("C", point(10, 0, 20))) +
        blockOf("B", line() + insert("A", point(10, 0, 100))) + blockOf("C", line());
    const Drawing drawing(insert("A", point(10, 0, 0)) + insert("B", point(10, 0, 0)), blocks(all));
    ASSERT_EQ(drawing.items.size(), 2u);
    for (const auto& [number, heights] :
         {std::pair(0u, std::vector<double>{0, 10, 20}), {1u, std::vector<double>{0, 100, 120}}}) {
        std::vector<double> found;
        for (const Shape& shape : drawing.items[number]->shapes)
            found.push_back(shape.points[0].y());
        EXPECT_EQ(found, heights) << "of item " << number;
    }
}

TEST(BlockShapes, AreShownToADepthOfSixtyFour) {
    std::string nest;
    for (int depth = 1; depth <= 70; ++depth)
        nest += blockOf(("N" + std::to_string(depth)).c_str(),
                        line() + insert(("N" + std::to_string(depth + 1)).c_str(), point(10, 0, 1)));
    const Drawing drawing(insert("N1", point(10, 0, 0)), blocks(nest));
    ASSERT_EQ(drawing.items.size(), 1u);
    EXPECT_EQ(drawing.items[0]->shapes.size(), 64u);
    EXPECT_TRUE(drawing.list.unshown().notices().isEmpty());
}

TEST(BlockShapes, TakeTheLinesOfTheirHatchesFromOneStore) {
    const std::string hatch =
        head("HATCH", "AcDbHatch") +
        "10\n0\n20\n0\n30\n0\n2\nP\n70\n0\n71\n0\n91\n1\n92\n2\n72\n0\n73\n1\n93\n4\n" + point(10, 0, 0) +
        point(10, 10, 0) + point(10, 10, 10) + point(10, 0, 10) +
        "97\n0\n75\n0\n76\n1\n78\n1\n53\n0\n43\n0\n44\n0\n45\n0\n46\n0.001\n79\n0\n98\n0\n";
    const Drawing drawing(insert("B", point(10, 0, 0) + "70\n150\n44\n20.0\n"), blocks(blockOf("B", hatch)));
    std::size_t lines = 0;
    for (const Shape& shape : drawing.items.at(0)->shapes)
        lines += shape.area->hatching.size();
    EXPECT_EQ(drawing.items[0]->shapes.size(), 150u); // the last ones are shades
    EXPECT_GT(lines, 900000u);
    EXPECT_LE(lines, ItemBuilder::kMostHatchLines);
}

} // namespace
