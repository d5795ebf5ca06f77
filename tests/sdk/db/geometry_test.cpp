// Vectors, planes and the boxes around entities.
#include "tests/sdk/db/drawing_fixture.h"

#include "sdk/db/polyline.h"
#include "sdk/db/text.h"

#include <algorithm>
#include <cmath>

TEST(Geometry, AnglesAboutAReferenceGoOnceAround) {
    const OdGeVector3d x = OdGeVector3d::kXAxis, y = OdGeVector3d::kYAxis, z = OdGeVector3d::kZAxis;
    EXPECT_DOUBLE_EQ(x.angleTo(y, z), M_PI / 2);
    EXPECT_DOUBLE_EQ(y.angleTo(x, z), 3 * M_PI / 2);
    EXPECT_DOUBLE_EQ(x.angleTo(-x, z), M_PI);
    EXPECT_DOUBLE_EQ(x.angleTo(x, z), 0);
    EXPECT_DOUBLE_EQ(x.angleTo(y), M_PI / 2);
}

TEST(Geometry, PlaneCoordinatesGoThereAndBack) {
    for (const OdGeVector3d& normal : {OdGeVector3d(0, 0, 1), OdGeVector3d(0, 0, -1), OdGeVector3d(1, 2, 3),
                                       OdGeVector3d(0.001, 0.001, 1)}) {
        const OdGePoint3d point(4, 5, 6);
        const OdGePoint3d back =
            OdGeMatrix3d::planeToWorld(normal) * (OdGeMatrix3d::worldToPlane(normal) * point);
        EXPECT_NEAR(back.distanceTo(point), 0, 1e-12);
    }
    EXPECT_EQ(OdGeMatrix3d::worldToPlane(OdGeVector3d::kZAxis), OdGeMatrix3d::kIdentity);
    EXPECT_EQ((OdGeMatrix3d::planeToWorld({0, 0, -1}) * OdGeVector3d::kXAxis).x, -1);
}

class Boxes : public DrawingTest {
protected:
    OdGeExtents3d boxOf(const OdDbEntity& entity) {
        OdGeExtents3d box;
        EXPECT_EQ(entity.getGeomExtents(box), eOk);
        return box;
    }
};

TEST_F(Boxes, ArcReachesToItsOutermostPoints) {
    OdDbArcPtr arc(new OdDbArc);
    arc->setRadius(2);
    arc->setStartAngle(M_PI / 4);
    arc->setEndAngle(M_PI);
    const OdGeExtents3d box = boxOf(*arc);
    EXPECT_NEAR(box.maxPoint().y, 2, 1e-12);
    EXPECT_NEAR(box.maxPoint().x, std::sqrt(2), 1e-12);
    EXPECT_NEAR(box.minPoint().x, -2, 1e-12);
    EXPECT_NEAR(box.minPoint().y, 0, 1e-12);
}

TEST_F(Boxes, BulgesOfPolylinesCount) {
    OdDbPolylinePtr line(new OdDbPolyline);
    line->setVertices({{{0, 0, 0}, 1}, {{4, 0, 0}, 0}});
    EXPECT_NEAR(boxOf(*line).minPoint().y, -2, 1e-12);
    EXPECT_NEAR(boxOf(*line).maxPoint().y, 0, 1e-12);
    line->setClosed(true);
    EXPECT_TRUE(line->isClosed());
    EXPECT_EQ(line->vertices().size(), 2u);
}

TEST_F(Boxes, CircleInATurnedPlane) {
    OdDbCirclePtr circle(new OdDbCircle);
    circle->setRadius(3);
    circle->setNormal(OdGeVector3d::kXAxis);
    const OdGeExtents3d box = boxOf(*circle);
    EXPECT_NEAR(box.maxPoint().x, 0, 1e-9);
    EXPECT_NEAR(box.maxPoint().y, 3, 1e-9);
    EXPECT_NEAR(box.maxPoint().z, 3, 1e-9);
}

TEST_F(Boxes, ParagraphsAreReadWithoutTheirCodes) {
    OdDbMTextPtr text(new OdDbMText);
    text->setContents(L"{\\fArial|b0;One}\\PTwo\\~\\H2.5;three \\\\ \\S1#2;\\{x\\}");
    EXPECT_EQ(text->plainText(), OdString(L"One\nTwo three \\ 1/2{x}"));
    text->setContents(OdString(std::wstring(1000, L'y')));
    EXPECT_EQ(text->contents().getLength(), 1000);
    for (const int length : {249, 250, 251, 500, 501}) {
        text->setContents(OdString(std::wstring(static_cast<std::size_t>(length), L'y')));
        EXPECT_EQ(text->contents().getLength(), length);
        const auto pieces = std::count_if(text->tags().begin(), text->tags().end(),
                                          [](const DxfTag& tag) { return tag.code == 3; });
        EXPECT_EQ(pieces, (length - 1) / 250) << length << " letters: 250 stand in each tag";
    }
    text->setContents(L"short\nagain");
    EXPECT_EQ(text->contents(), OdString(L"short\\Pagain"));
}
