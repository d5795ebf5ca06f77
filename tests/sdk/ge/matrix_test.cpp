// Vectors, matrices and boxes.
#include "sdk/ge/matrix3d.h"
#include "sdk/ge/point3d.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

const OdGeVector3d x = OdGeVector3d::kXAxis, y = OdGeVector3d::kYAxis, z = OdGeVector3d::kZAxis;

void expectNear(const OdGePoint3d& found, const OdGePoint3d& expected) {
    EXPECT_NEAR(found.x, expected.x, 1e-12);
    EXPECT_NEAR(found.y, expected.y, 1e-12);
    EXPECT_NEAR(found.z, expected.z, 1e-12);
}
void expectNear(const OdGeVector3d& found, const OdGeVector3d& expected) {
    expectNear(OdGePoint3d() + found, OdGePoint3d() + expected);
}

} // namespace

TEST(Vectors, HaveLengthsAndProducts) {
    const OdGeVector3d a(2, 3, 6), b(1, -1, 2);
    EXPECT_EQ(a.length(), 7);
    expectNear(a.crossProduct(b), {12, 2, -5});
    expectNear(b.crossProduct(a), {-12, -2, 5});
    expectNear(a.normal(), {2.0 / 7, 3.0 / 7, 6.0 / 7});
    EXPECT_TRUE(OdGeVector3d().isZeroLength());
    EXPECT_FALSE(OdGeVector3d(0, 0, 1e-100).isZeroLength());
    expectNear(OdGeVector3d().normal(), {0, 0, 0});
}

TEST(Vectors, TurnAboutAnyAxisAsAScrewDoes) {
    expectNear(x.rotatedBy(M_PI / 2, z), y);
    expectNear(y.rotatedBy(M_PI / 2, x), z);
    expectNear(z.rotatedBy(M_PI / 2, y), x);
    expectNear(x.rotatedBy(-M_PI / 2, z * 5), -y);
    const OdGeVector3d diagonal(1, 1, 1);
    expectNear(x.rotatedBy(2 * M_PI / 3, diagonal), y);
    expectNear(y.rotatedBy(2 * M_PI / 3, diagonal), z);
    expectNear(z.rotatedBy(2 * M_PI / 3, diagonal), x);
    expectNear(diagonal.rotatedBy(1, diagonal), diagonal);
    const OdGeVector3d slanted = OdGeVector3d(3, -2, 1).rotatedBy(0.7, {1, 2, 2});
    EXPECT_NEAR(slanted.length(), std::sqrt(14), 1e-12);
    expectNear(slanted.rotatedBy(-0.7, {1, 2, 2}), {3, -2, 1});
}

TEST(Matrices, MoveStretchAndTurnPointsAndOnlyTurnAndStretchDirections) {
    const OdGeMatrix3d placed = OdGeMatrix3d::translation({10, 20, 30}) *
                                OdGeMatrix3d::rotation(M_PI / 2, z) * OdGeMatrix3d::scaling({2, 3, 4});
    expectNear(placed * OdGePoint3d(1, 1, 1), {7, 22, 34});
    expectNear(placed * OdGeVector3d(1, 1, 1), {-3, 2, 4});
    OdGePoint3d point(1, 1, 1);
    expectNear(point.transformBy(placed), {7, 22, 34});
    expectNear(point, {7, 22, 34});
    OdGeVector3d direction(1, 1, 1);
    expectNear(direction.transformBy(placed), {-3, 2, 4});
}

TEST(Matrices, OfACoordinateSystemHaveItsAxesAsColumns) {
    OdGeMatrix3d system = OdGeMatrix3d::scaling({9, 9, 9});
    system.setCoordSystem({5, 6, 7}, {1, 2, 3}, {4, 5, 6}, {7, 8, 10});
    expectNear(system * OdGePoint3d(), {5, 6, 7});
    expectNear(system * x, {1, 2, 3});
    expectNear(system * y, {4, 5, 6});
    expectNear(system * z, {7, 8, 10});
    EXPECT_EQ(system.entry[3][3], 1);
    EXPECT_FALSE(system == OdGeMatrix3d::kIdentity);
    EXPECT_EQ(system.setToIdentity(), OdGeMatrix3d::kIdentity);
}

TEST(Matrices, AreTransposedAboutTheirDiagonal) {
    OdGeMatrix3d matrix;
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            matrix.entry[row][column] = 10 * row + column;
    const OdGeMatrix3d turned = matrix.transpose();
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            EXPECT_EQ(turned.entry[row][column], 10 * column + row);
    EXPECT_EQ(turned.transpose(), matrix);
}

// By the arbitrary axis rule: close to the Z axis the X axis of the plane comes from the world's Y, elsewhere
// from its Z.
TEST(Matrices, OfPlanesFollowTheArbitraryAxisRule) {
    expectNear(OdGeMatrix3d::planeToWorld(x) * x, y);
    expectNear(OdGeMatrix3d::planeToWorld(x) * y, z);
    expectNear(OdGeMatrix3d::planeToWorld({0, 0, -2}) * x, -x);
    EXPECT_EQ(OdGeMatrix3d::planeToWorld({0, 0, 0}), OdGeMatrix3d::kIdentity);
    const auto axisOf = [](double tilt) {
        return OdGeMatrix3d::planeToWorld({0, tilt, std::sqrt(1 - tilt * tilt)}) * x;
    };
    expectNear(axisOf(0.9 / 64), x);
    expectNear(axisOf(1.1 / 64), -x);
    const auto sidewards = [](double tilt) {
        return OdGeMatrix3d::planeToWorld({tilt, 0, std::sqrt(1 - tilt * tilt)}) * y;
    };
    expectNear(sidewards(0.9 / 64), y);
    EXPECT_NEAR((sidewards(1.1 / 64)).y, 0, 1e-12);
}

TEST(Extents, GrowWithPointsAndOtherBoxes) {
    OdGeExtents3d box;
    EXPECT_FALSE(box.isValidExtents());
    box.addExtents(OdGeExtents3d());
    EXPECT_FALSE(box.isValidExtents()) << "an empty box adds nothing";
    box.addPoint({1, 2, 3});
    EXPECT_TRUE(box.isValidExtents());
    EXPECT_EQ(box.minPoint(), OdGePoint3d(1, 2, 3));
    EXPECT_EQ(box.maxPoint(), OdGePoint3d(1, 2, 3));
    box.addPoint({-4, 5, -6});
    OdGeExtents3d other;
    other.addPoint({0, -7, 0});
    other.addPoint({8, 0, 9});
    box.addExtents(other);
    EXPECT_EQ(box.minPoint(), OdGePoint3d(-4, -7, -6));
    EXPECT_EQ(box.maxPoint(), OdGePoint3d(8, 5, 9));
}

TEST(Extents, LeavePointsOutThatAreNowhere) {
    OdGeExtents3d box;
    const double infinite = std::numeric_limits<double>::infinity();
    for (const OdGePoint3d& nowhere :
         {OdGePoint3d(infinite, 0, 0), OdGePoint3d(0, -infinite, 0), OdGePoint3d(0, 0, std::nan(""))})
        box.addPoint(nowhere);
    EXPECT_FALSE(box.isValidExtents());
}

TEST(Points, HaveDistancesInSpace) {
    EXPECT_EQ(OdGePoint3d(1, 1, 1).distanceTo({3, 4, 7}), 7);
    OdGePoint3d point;
    EXPECT_EQ(point.set(1, 2, 3), OdGePoint3d(1, 2, 3));
}
