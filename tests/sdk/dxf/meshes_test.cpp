// Meshes of old drawings: what their faces are written as is no vertex.
#include "tests/sdk/dxf/drawing_texts.h"
#include "tests/sdk/dxf/reading_contract.h"

#include "sdk/db/polyline.h"

namespace {

std::string vertex(int flags, const std::string& rest) {
    return "  0\nVERTEX\n  8\n0\n 70\n" + std::to_string(flags) + "\n" + rest;
}

std::string point(int x, int y, int flags) {
    return vertex(flags, " 10\n" + std::to_string(x) + ".0\n 20\n" + std::to_string(y) + ".0\n 30\n0.0\n");
}

std::string mesh(const std::string& tags, const std::string& vertices) {
    return replaced(oldDrawing(), "  0\nLINE\n",
                    "  0\nPOLYLINE\n  8\n0\n 66\n1\n 10\n0.0\n 20\n0.0\n" + tags + vertices +
                        "  0\nSEQEND\n  8\n0\n  0\nLINE\n");
}

} // namespace

TEST(Meshes, FacesOfAPolyfaceMeshAreNoVertices) {
    const std::string text =
        mesh(" 70\n64\n 71\n4\n 72\n2\n",
             point(10, 10, 192) + point(20, 10, 192) + point(20, 20, 192) + point(10, 20, 192) +
                 vertex(128, " 10\n0.0\n 20\n0.0\n 71\n1\n 72\n2\n 73\n-3\n") +
                 vertex(128, " 10\n0.0\n 20\n0.0\n 71\n1\n 72\n3\n 73\n4\n 74\n9\n"));
    EXPECT_EQ(faultOfReading(text), "");
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    const auto polyface = odrxCast<OdDb2dPolyline>(modelSpaceEntities(*database)[0].safeOpenObject());
    EXPECT_EQ(polyface->vertices().size(), 4u);
    OdGeExtents3d box;
    ASSERT_EQ(polyface->getGeomExtents(box), eOk);
    EXPECT_EQ(box.minPoint(), OdGePoint3d(10, 10, 0)) << "nothing is at the origin";
}
