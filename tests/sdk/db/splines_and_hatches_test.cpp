// Points of splines and borders of hatches, against curves that are known.
#include "tests/sdk/db/drawing_fixture.h"

#include "sdk/db/hatch.h"
#include "sdk/db/spline.h"

#include <cmath>

namespace {

// A quarter of the unit circle, which a rational spline of degree 2 follows exactly.
const std::string kQuarter =
    "0\nSPLINE\n5\nA1\n100\nAcDbEntity\n8\n0\n100\nAcDbSpline\n70\n4\n71\n2\n72\n6\n73\n3\n"
    "40\n0.0\n40\n0.0\n40\n0.0\n40\n1.0\n40\n1.0\n40\n1.0\n"
    "41\n1.0\n41\n0.7071067811865476\n41\n1.0\n"
    "10\n1.0\n20\n0.0\n30\n5.0\n10\n1.0\n20\n1.0\n30\n5.0\n10\n0.0\n20\n1.0\n30\n5.0\n";

std::string hatch(const std::string& loops) {
    return "0\nHATCH\n5\nA1\n100\nAcDbEntity\n8\n0\n100\nAcDbHatch\n10\n0.0\n20\n0.0\n30\n0."
           "0\n2\nSOLID\n70\n1\n71\n0\n" +
           loops + "75\n0\n76\n1\n98\n1\n10\n77.0\n20\n77.0\n";
}

void expectBox(const OdDbEntity& entity, double left, double bottom, double right, double top) {
    OdGeExtents3d box;
    ASSERT_EQ(entity.getGeomExtents(box), eOk);
    EXPECT_NEAR(box.minPoint().x, left, 1e-3);
    EXPECT_NEAR(box.minPoint().y, bottom, 1e-3);
    EXPECT_NEAR(box.maxPoint().x, right, 1e-3);
    EXPECT_NEAR(box.maxPoint().y, top, 1e-3);
}

} // namespace

TEST(Splines, RationalOneFollowsItsCircle) {
    const OdDbDatabasePtr database = drawingWith(kQuarter);
    const std::vector<OdGePoint3d> path = onlyEntity<OdDbSpline>(*database)->path();
    ASSERT_GT(path.size(), 8u);
    for (const OdGePoint3d& point : path) {
        EXPECT_NEAR(std::hypot(point.x, point.y), 1, 1e-9);
        EXPECT_NEAR(point.z, 5, 1e-9);
    }
    EXPECT_NEAR(path.front().distanceTo({1, 0, 5}), 0, 1e-9);
    EXPECT_NEAR(path.back().distanceTo({0, 1, 5}), 0, 1e-9);
    expectBox(*onlyEntity<OdDbSpline>(*database), 0, 0, 1, 1);
}

TEST(Splines, CubicOneGoesThroughTheMiddleOfItsSpan) {
    OdDbSplineCurve curve;
    curve.knots = {0, 0, 0, 0, 1, 1, 1, 1};
    curve.controls = {{0, 0, 0}, {0, 8, 0}, {8, 8, 0}, {8, 0, 0}};
    const std::vector<OdGePoint3d> path = curve.path(2);
    ASSERT_EQ(path.size(), 3u);
    EXPECT_NEAR(path[1].distanceTo({4, 6, 0}), 0, 1e-12);
}

TEST(Splines, NumbersThatMakeNoSplineGiveTheControlPoints) {
    OdDbSplineCurve curve;
    curve.controls = {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}};
    for (const std::vector<double>& knots :
         {std::vector<double>{}, {0, 0, 0, 1, 1, NAN}, {1, 1, 1, 0, 0, 0}}) {
        curve.knots = knots;
        curve.degree = 2;
        EXPECT_EQ(curve.path(), curve.controls);
    }
    curve.degree = 1000000;
    EXPECT_EQ(curve.path(), curve.controls);
}

TEST(Splines, FitPointsAloneAreJoinedByACurveThroughAllOfThem) {
    const OdDbDatabasePtr database =
        drawingWith("0\nSPLINE\n5\nA1\n100\nAcDbEntity\n8\n0\n100\nAcDbSpline\n70\n1\n71\n3\n"
                    "11\n0.0\n21\n0.0\n31\n0.0\n11\n4.0\n21\n0.0\n31\n0.0\n11\n4.0\n21\n4.0\n31\n0.0\n");
    const std::vector<OdGePoint3d> path = onlyEntity<OdDbSpline>(*database)->path();
    ASSERT_EQ(path.size(), 37u); // twelve pieces between any two
    EXPECT_EQ(path.front(), path.back());
    EXPECT_EQ(path[12], OdGePoint3d(4, 0, 0));
    EXPECT_EQ(path[24], OdGePoint3d(4, 4, 0));
}

TEST(Hatches, PolylineBorderTakesItsBulges) {
    const OdDbDatabasePtr database =
        drawingWith(hatch("91\n1\n92\n2\n72\n1\n73\n1\n93\n2\n10\n0.0\n20\n0.0\n42\n1.0\n"
                          "10\n4.0\n20\n0.0\n42\n0.0\n97\n0\n"));
    const auto entity = onlyEntity<OdDbHatch>(*database);
    EXPECT_TRUE(entity->isSolidFill());
    EXPECT_EQ(entity->patternName(), OdString(L"SOLID"));
    ASSERT_EQ(entity->loops().size(), 1u);
    expectBox(*entity, 0, -2, 4, 0);
}

TEST(Hatches, EdgesOfEveryKindJoinToABorder) {
    const std::string lines = "92\n1\n93\n2\n72\n1\n10\n0.0\n20\n0.0\n11\n9.0\n21\n0.0\n"
                              "72\n1\n10\n9.0\n20\n0.0\n11\n9.0\n21\n7.0\n97\n0\n";
    const std::string clockwise =
        "92\n0\n93\n1\n72\n2\n10\n20.0\n20\n20.0\n40\n2.0\n50\n0.0\n51\n90.0\n73\n0\n97\n0\n";
    const std::string ellipse = "92\n0\n93\n1\n72\n3\n10\n30.0\n20\n0.0\n11\n0.0\n21\n4.0\n40\n0.5\n50\n0."
                                "0\n51\n360.0\n73\n1\n97\n0\n";
    const std::string spline =
        "92\n0\n93\n1\n72\n4\n94\n1\n73\n0\n74\n0\n95\n4\n96\n2\n40\n0.0\n40\n0.0\n40\n1.0\n40\n1.0\n"
        "10\n50.0\n20\n50.0\n10\n51.0\n20\n52.0\n97\n0\n";
    const OdDbDatabasePtr database = drawingWith(hatch("91\n4\n" + lines + clockwise + ellipse + spline));
    const std::vector<OdDbHatch::Loop> loops = onlyEntity<OdDbHatch>(*database)->loops();
    ASSERT_EQ(loops.size(), 4u);
    EXPECT_EQ(loops[0], (OdDbHatch::Loop{{0, 0, 0}, {9, 0, 0}, {9, 0, 0}, {9, 7, 0}}));
    EXPECT_NEAR(loops[1].front().distanceTo({22, 20, 0}), 0, 1e-9);
    EXPECT_NEAR(loops[1].back().distanceTo({20, 18, 0}), 0, 1e-9);
    OdGeExtents3d box;
    for (const OdGePoint3d& point : loops[2])
        box.addPoint(point);
    EXPECT_NEAR(box.minPoint().distanceTo({28, -4, 0}), 0, 1e-9);
    EXPECT_NEAR(box.maxPoint().distanceTo({32, 4, 0}), 0, 1e-9);
    EXPECT_EQ(loops[3].front(), OdGePoint3d(50, 50, 0));
    EXPECT_EQ(loops[3].back(), OdGePoint3d(51, 52, 0));
}

TEST(Hatches, CountsOfTheFileAreNotBelieved) {
    const OdDbDatabasePtr database =
        drawingWith(hatch("91\n1000000000\n92\n2\n72\n0\n73\n1\n93\n1000000000\n10\n1.0\n20\n2.0\n"));
    const std::vector<OdDbHatch::Loop> loops = onlyEntity<OdDbHatch>(*database)->loops();
    ASSERT_EQ(loops.size(), 1u);
    EXPECT_EQ(loops[0].size(), 1u);
}

TEST(Hatches, PatternLinesComeWithTheirPlaceAndDashes) {
    const std::string pattern =
        "75\n0\n76\n1\n52\n30.0\n41\n2.0\n77\n0\n78\n2\n"
        "53\n90.0\n43\n1.0\n44\n2.0\n45\n-4.0\n46\n0.5\n79\n2\n49\n3.0\n49\n-1.5\n"
        "53\n0.0\n43\n0.0\n44\n0.0\n45\n0.0\n46\n5.0\n79\n0\n98\n1\n10\n77.0\n20\n77.0\n";
    const OdDbDatabasePtr database = drawingWith(
        "0\nHATCH\n5\nA1\n100\nAcDbEntity\n8\n0\n100\nAcDbHatch\n10\n0.0\n20\n0.0\n30\n0.0\n2\nP\n"
        "70\n0\n71\n0\n91\n0\n" +
        pattern);
    const auto entity = onlyEntity<OdDbHatch>(*database);
    EXPECT_FALSE(entity->isSolidFill());
    const std::vector<OdDbHatch::PatternLines> lines = entity->patternLines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_NEAR(lines[0].angle, M_PI / 2, 1e-12);
    EXPECT_EQ(lines[0].base, OdGePoint3d(1, 2, 0));
    EXPECT_EQ(lines[0].offset, OdGeVector3d(-4, 0.5, 0));
    EXPECT_EQ(lines[0].dashes, (std::vector<double>{3, -1.5}));
    EXPECT_TRUE(lines[1].dashes.empty());
}

TEST(Hatches, OneInATiltedPlaneLiesAtItsHeight) {
    std::string text =
        hatch("91\n1\n92\n2\n72\n0\n73\n1\n93\n3\n10\n0.0\n20\n0.0\n10\n4.0\n20\n0.0\n10\n4.0\n20\n"
              "3.0\n97\n0\n");
    text.replace(text.find("30\n0.0"), 6, "30\n7.0"); // the plane below looks along the x axis
    const OdDbDatabasePtr database = drawingWith(text + "210\n1.0\n220\n0.0\n230\n0.0\n");
    OdGeExtents3d box;
    ASSERT_EQ(onlyEntity<OdDbHatch>(*database)->getGeomExtents(box), eOk);
    EXPECT_NEAR(box.minPoint().distanceTo({7, 0, 0}), 0, 1e-12);
    EXPECT_NEAR(box.maxPoint().distanceTo({7, 4, 3}), 0, 1e-12);
}
