// The arcs of polyline segments.
#include "sdk/ge/bulge_arc.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

OdGePoint3d pointAt(const OdGeBulgeArc& arc, double angle) {
    return arc.center + arc.zero * std::cos(angle) + arc.quarter * std::sin(angle);
}

TEST(BulgeArc, RunsFromTheFirstPointToTheSecondAsFarOffTheChordAsTheBulgeTells) {
    for (const double bulge : {1.0, -1.0, 0.25, -0.25, 3.0, -3.0}) {
        const OdGePoint3d from(1, 2, 7), to(5, 2, 7);
        const auto arc = odGeBulgeArc(from, to, bulge);
        ASSERT_TRUE(arc) << bulge;
        EXPECT_LT(pointAt(*arc, 0).distanceTo(from), 1e-12) << bulge;
        EXPECT_LT(pointAt(*arc, arc->sweep).distanceTo(to), 1e-12) << bulge;
        // The height of an arc over its chord is the bulge times half the chord, to the right of the way.
        EXPECT_LT(pointAt(*arc, arc->sweep / 2).distanceTo({3, 2 - 2 * bulge, 7}), 1e-12) << bulge;
        EXPECT_NEAR(arc->sweep, 4 * std::atan(std::fabs(bulge)), 1e-12);
    }
}

TEST(BulgeArc, StaysAtTheHeightOfTheFirstPoint) {
    const auto arc = odGeBulgeArc({0, 0, 3}, {2, 0, 9}, 1);
    EXPECT_EQ(arc->center.z, 3);
    EXPECT_EQ(arc->zero.z, 0);
}

TEST(BulgeArc, IsNoneWhereTheSegmentIsStraightOrNothingCanBeMadeOfIt) {
    const double infinite = std::numeric_limits<double>::infinity();
    for (const double bulge : {0.0, 1e-12, -1e-12, infinite, -infinite, std::nan("")})
        EXPECT_FALSE(odGeBulgeArc({0, 0, 0}, {1, 0, 0}, bulge)) << bulge;
    EXPECT_FALSE(odGeBulgeArc({4, 4, 0}, {4, 4, 1}, 1));
}

} // namespace
