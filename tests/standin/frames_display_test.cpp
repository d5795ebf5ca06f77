// Objects that are shown by frames, boxes and marks, and those that consist of lines and texts; and that no
// kind is forgotten.
#include "sdk/db/class_registry.h"
#include "sdk/db/entity.h"
#include "standin/display/kinds.h"
#include "standin/display/letters.h"
#include "tests/standin/shown_drawing.h"

#include <cstring>
#include <gtest/gtest.h>
#include <map>

namespace {

using namespace standin;
using namespace shown;

using Points = std::vector<QPointF>;

const Shape* firstOf(const Drawing& drawing, Shape::Kind kind) {
    for (const Item* item : drawing.items)
        for (const Shape& shape : item->shapes)
            if (shape.kind == kind)
                return &shape;
    return nullptr;
}

Points frameOf(const Drawing& drawing) {
    const Shape* found = firstOf(drawing, Shape::Path);
    return found ? found->points : Points();
}

QString nameIn(const Drawing& drawing) {
    const Shape* text = firstOf(drawing, Shape::Text);
    return text ? text->text : QString();
}

std::string objects(const std::string& all) { return "0\nSECTION\n2\nOBJECTS\n" + all + "0\nENDSEC\n"; }

// 20 by 10 pixels of 2 units each, at 100,100.
std::string image(const char* name, const char* marker, const std::string& clip) {
    return head(name, marker) + "90\n0\n" + point(10, 100, 100) + point(11, 2, 0) + point(12, 0, 2) +
           point(13, 20, 10) + "340\nA0\n70\n7\n" + clip;
}

TEST(Frames, OfImagesHaveTheNameOfTheirFile) {
    const Drawing drawing(
        image("IMAGE", "AcDbRasterImage", "280\n0\n"), {}, {},
        objects("0\nIMAGEDEF\n5\nA0\n100\nAcDbRasterImageDef\n1\nC:\\maps/old\\plan.png\n"));
    EXPECT_EQ(frameOf(drawing), (Points{{100, 120}, {140, 120}, {140, 100}, {100, 100}, {100, 120}}));
    EXPECT_EQ(nameIn(drawing), "plan.png");
    const Box box = drawing.items[0]->box;
    EXPECT_EQ(box.right, 140);                                                  // the name stays within
    EXPECT_EQ(nameIn(Drawing(image("IMAGE", "AcDbRasterImage", {}))), "IMAGE"); // nobody knows its file
}

TEST(Frames, OfImagesAreCutAsTheImagesAre) {
    const std::string rectangle = "280\n1\n71\n1\n91\n2\n" + point(14, -0.5, -0.5) + point(14, 9.5, 4.5);
    EXPECT_EQ(frameOf(Drawing(image("IMAGE", "AcDbRasterImage", rectangle))),
              (Points{{100, 120}, {120, 120}, {120, 110}, {100, 110}, {100, 120}})); // the upper left part
    const std::string triangle =
        "280\n1\n71\n2\n91\n3\n" + point(14, -0.5, -0.5) + point(14, 9.5, 9.5) + point(14, -0.5, 9.5);
    EXPECT_EQ(frameOf(Drawing(image("IMAGE", "AcDbRasterImage", triangle))),
              (Points{{100, 120}, {120, 100}, {100, 100}, {100, 120}}));
}

TEST(Frames, OfWipeoutsHaveNoName) {
    const std::string wipeout = head("WIPEOUT", "AcDbWipeout") + point(10, 10, 20) + point(11, 8, 0) +
                                point(12, 0, 4) + point(13, 1, 1) + "70\n7\n280\n1\n71\n1\n91\n2\n" +
                                point(14, -0.5, -0.5) + point(14, 0.5, 0.5);
    const Drawing drawing(wipeout);
    EXPECT_EQ(frameOf(drawing), (Points{{10, 24}, {18, 24}, {18, 20}, {10, 20}, {10, 24}}));
    EXPECT_EQ(drawing.items[0]->shapes.size(), 1u);
}

TEST(Frames, OfUnderlaysAreTheirBorderOrAMarkWithTheName) {
    const std::string definition =
        objects("0\nPDFDEFINITION\n5\nB0\n100\nAcDbUnderlayDefinition\n1\nsite.pdf\n2\n1\n");
    const std::string underlay = head("PDFUNDERLAY", "AcDbUnderlayReference") + "340\nB0\n" +
                                 point(10, 10, 10) + "41\n2.0\n42\n2.0\n43\n2.0\n50\n90.0\n280\n3\n";
    const Drawing clipped(underlay + point(11, 0, 0) + point(11, 5, 3), {}, {}, definition);
    const Points frame = frameOf(clipped);
    ASSERT_EQ(frame.size(), 5u);
    EXPECT_NEAR(frame[1].x(), 10, 1e-9);
    EXPECT_NEAR(frame[1].y(), 20, 1e-9);
    EXPECT_NEAR(frame[2].x(), 4, 1e-9);
    EXPECT_EQ(nameIn(clipped), "site.pdf");
    const Drawing whole(underlay, {}, {}, definition);
    ASSERT_NE(firstOf(whole, Shape::Missing), nullptr);
    EXPECT_EQ(firstOf(whole, Shape::Missing)->text, "site.pdf");
}

TEST(Frames, OfObjectsOfOtherProgramsHaveTheirName) {
    const Drawing drawing(head("OLE2FRAME", "AcDbOle2Frame") + "70\n2\n3\nA sheet\n" + point(10, 0, 30) +
                          point(11, 50, 0) + "71\n2\n");
    EXPECT_EQ(frameOf(drawing), (Points{{0, 30}, {50, 30}, {50, 0}, {0, 0}, {0, 30}}));
    EXPECT_EQ(nameIn(drawing), "A sheet");
}

std::string hexOf(const std::string& bytes) {
    std::string digits;
    for (const char byte : bytes) {
        char pair[3];
        std::snprintf(pair, sizeof pair, "%02X", static_cast<unsigned>(static_cast<unsigned char>(byte)));
        digits += pair;
    }
    return digits;
}
template <class T> std::string bytesOf(T value) {
    std::string bytes(sizeof value, '\0');
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes;
}

// A part that says nothing about the size, then the one that does.
std::string proxyPicture(std::int32_t sizeOfFirst) {
    std::string picture = bytesOf(std::int32_t{76}) + bytesOf(std::int32_t{2}) + bytesOf(sizeOfFirst) +
                          bytesOf(std::int32_t{14}) + bytesOf(std::int32_t{1}) + bytesOf(std::int32_t{56}) +
                          bytesOf(std::int32_t{1});
    for (const double number : {1.0, 2.0, 0.0, 31.0, 22.0, 0.0})
        picture += bytesOf(number);
    return picture;
}

std::string proxy(const std::string& picture) {
    const std::string digits = hexOf(picture);
    return head("ACAD_PROXY_ENTITY", "AcDbProxyEntity") + "90\n498\n91\n500\n92\n76\n310\n" +
           digits.substr(0, 60) + "\n310\n" + (digits.size() > 60 ? digits.substr(60) : "") + "\n";
}

TEST(Frames, OfProxiesAreTheSizeOfTheirPicture) {
    const Drawing drawing(proxy(proxyPicture(12)));
    EXPECT_EQ(frameOf(drawing), (Points{{1, 2}, {31, 2}, {31, 22}, {1, 22}, {1, 2}}));
    EXPECT_EQ(nameIn(drawing), "ACAD_PROXY_ENTITY");
    for (const std::string& broken : {proxyPicture(0), proxyPicture(-5), proxyPicture(2000000000),
                                      std::string("xy"), proxyPicture(12).substr(0, 60)})
        EXPECT_TRUE(Drawing(proxy(broken)).items.empty());
}

TEST(Frames, OfShapesAreTheBoxOfTheirSize) {
    const Drawing drawing(head("SHAPE", "AcDbShape") + point(10, 5, 5) +
                          "40\n4.0\n2\nARROW\n50\n90.0\n41\n2.0\n");
    const Points frame = frameOf(drawing);
    ASSERT_EQ(frame.size(), 5u);
    EXPECT_NEAR(frame[1].x(), 5, 1e-9);
    EXPECT_NEAR(frame[1].y(), 13, 1e-9);
    EXPECT_NEAR(frame[3].x(), 1, 1e-9);
}

std::string mlineVertex(double x, const std::string& lower, const std::string& upper) {
    return point(11, x, 0) + point(12, 1, 0) + point(13, 0, 1) + "74\n2\n" + lower + "75\n0\n74\n2\n" +
           upper + "75\n0\n";
}
const std::string kMlineStyle =
    "0\nMLINESTYLE\n5\nC0\n100\nAcDbMlineStyle\n2\nS\n70\n272\n3\n\n62\n256\n51\n90.0\n52\n"
    "90.0\n71\n2\n49\n0.5\n62\n1\n6\nBYLAYER\n49\n-0.5\n62\n256\n6\nBYLAYER\n";

std::string mline(const std::string& flags, const std::string& upperOfFirst) {
    return head("MLINE", "AcDbMline") + "2\nS\n340\nC0\n40\n1.0\n70\n0\n71\n" + flags + "\n72\n2\n73\n2\n" +
           point(10, 0, 0) + mlineVertex(0, "41\n-1.0\n41\n0.0\n", upperOfFirst) +
           mlineVertex(10, "41\n-1.0\n41\n0.0\n", "41\n1.0\n41\n0.0\n");
}

std::vector<Points> pathsOf(const Drawing& drawing) {
    std::vector<Points> paths;
    for (const Shape& shape : drawing.items.at(0)->shapes)
        if (shape.kind == Shape::Path)
            paths.push_back(shape.points);
    return paths;
}

TEST(MultipleLines, AreTheLinesOfTheirElementsWithCaps) {
    const Drawing drawing(mline("1", "41\n1.0\n41\n0.0\n"), {}, {}, objects(kMlineStyle));
    EXPECT_EQ(pathsOf(drawing),
              (std::vector<Points>{
                  {{0, -1}, {10, -1}}, {{0, 1}, {10, 1}}, {{0, -1}, {0, 1}}, {{10, -1}, {10, 1}}}));
    EXPECT_EQ(drawing.shape(0).ink, 0xffff0000u); // of the first element
    EXPECT_EQ(drawing.shape(1).ink, kForeground);
    const Drawing open(mline("13", "41\n1.0\n41\n0.0\n"), {}, {}, objects(kMlineStyle));
    EXPECT_EQ(pathsOf(open).size(), 2u); // without the caps
    const Drawing closed(mline("3", "41\n1.0\n41\n0.0\n"));
    EXPECT_EQ(pathsOf(closed).size(), 4u); // and back
}

TEST(MultipleLines, HaveRoundCapsOutwardsAndJointsWhereTheirStyleSaysSo) {
    std::string style = kMlineStyle;
    style.replace(style.find("272"), 3, "1090"); // 2 + 64 + 1024
    const std::vector<Points> paths =
        pathsOf(Drawing(mline("1", "41\n1.0\n41\n0.0\n"), {}, {}, objects(style)));
    ASSERT_EQ(paths.size(), 4u);
    const auto middleOf = [](const Points& path) { return path[path.size() / 2]; };
    EXPECT_NEAR(middleOf(paths[2]).x(), -1, 1e-9);
    EXPECT_NEAR(middleOf(paths[3]).x(), 11, 1e-9);
    EXPECT_NEAR(middleOf(paths[3]).y(), 0, 1e-9);
    const Drawing closed(mline("3", "41\n1.0\n41\n0.0\n"), {}, {}, objects(style));
    EXPECT_EQ(pathsOf(closed).size(), 6u) << "the lines, and a joint at each corner";
}

TEST(MultipleLines, AreFilledUnderTheirLinesInTheColourOfTheirStyle) {
    std::string style = kMlineStyle;
    style.replace(style.find("272"), 3, "1025"); // filled, and round at the end
    style.replace(style.find("62\n256"), 6, "62\n3");
    const Drawing drawing(mline("1", "41\n1.0\n41\n0.0\n"), {}, {}, objects(style));
    ASSERT_EQ(drawing.items.at(0)->shapes.size(), 5u) << "a piece, its cap, two elements and an arc";
    EXPECT_EQ(drawing.shape(0).kind, Shape::Fill);
    EXPECT_EQ(drawing.shape(0).ink, 0xff00ff00u);
    EXPECT_EQ(drawing.shape(0).points, (Points{{0, -1}, {10, -1}, {10, 1}, {0, 1}}));
    EXPECT_EQ(drawing.shape(1).kind, Shape::Fill);
    EXPECT_NEAR(drawing.shape(1).points[8].x(), 11, 1e-9) << "outwards";
    EXPECT_EQ(drawing.shape(2).ink, 0xffff0000u) << "the elements keep their own colour";
    style.replace(style.find("62\n3"), 4, "420\n255");
    EXPECT_EQ(Drawing(mline("1", "41\n1.0\n41\n0.0\n"), {}, {}, objects(style)).shape(0).ink, 0xff0000ffu);
}

TEST(MultipleLines, HaveTheGapsThatWereCutIntoThem) {
    const Drawing drawing(mline("1", "41\n1.0\n41\n0.0\n41\n3.0\n41\n7.0\n"));
    EXPECT_EQ(pathsOf(drawing),
              (std::vector<Points>{{{0, -1}, {10, -1}}, {{0, 1}, {3, 1}}, {{7, 1}, {10, 1}}}));
}

// The text is 2 high by its override.
TEST(Tolerances, AreRowsOfBoxes) {
    const std::string override = "1001\nACAD\n1000\nDSTYLE\n1002\n{\n1070\n140\n1040\n2.0\n1002\n}\n";
    const Drawing drawing(head("TOLERANCE", "AcDbFcf") + "3\nSTANDARD\n" + point(10, 10, 10) +
                          point(11, 1, 0) + "1\n{\\Fgdt;j}%%v{\\Fgdt;n}0.1%%v%%vA^J0.5\n" + override);
    ASSERT_EQ(drawing.items.size(), 1u);
    QStringList texts;
    std::vector<Points> boxes;
    for (const Shape& shape : drawing.items[0]->shapes)
        if (shape.kind == Shape::Text)
            texts << shape.text;
        else
            boxes.push_back(shape.points);
    EXPECT_EQ(texts, (QStringList{QString::fromUtf8("\u2316"), QString::fromUtf8("\u23000.1"), "A", "0.5"}));
    ASSERT_EQ(boxes.size(), 4u); // none for the empty one
    EXPECT_EQ(boxes[0][0], QPointF(10, 8));
    EXPECT_EQ(boxes[0][2].y(), 12);
    EXPECT_NEAR(boxes[1][0].x(), boxes[0][1].x(), 1e-9);
    EXPECT_EQ(boxes[3][0], QPointF(10, 4)); // the second row
}

std::string multiLeader(const std::string& content, const std::string& whole = "170\n1\n291\n1\n42\n3.0\n") {
    return head("MULTILEADER", "AcDbMLeader") + "270\n2\n300\nCONTEXT_DATA{\n40\n1.0\n" + point(10, 20, 0) +
           "41\n2.0\n140\n3.0\n145\n1.0\n174\n1\n" + content + "302\nLEADER{\n290\n1\n291\n1\n" +
           point(10, 20, 10) + point(11, 1, 0) + "90\n0\n40\n5.0\n304\nLEADER_LINE{\n" + point(10, 0, 0) +
           point(10, 12, 10) + "91\n0\n305\n}\n304\nLEADER_LINE{\n" + point(10, 20, -30) +
           "305\n}\n303\n}\n301\n}\n340\n0\n" + whole;
}
const std::string kNote = "290\n1\n304\nA {\\C1;note}\n11\n0\n21\n0\n31\n1\n340\n11\n" + point(12, 26, 11) +
                          point(13, 1, 0) +
                          "42\n0\n43\n0\n45\n1.0\n170\n1\n90\n-1023410171\n171\n1\n296\n0\n";

TEST(MultiLeaders, AreTheirLinesWithHeadsAndTheirText) {
    const Drawing drawing(multiLeader(kNote));
    EXPECT_EQ(
        pathsOf(drawing),
        (std::vector<Points>{{{0, 0}, {12, 10}, {20, 10}}, {{20, -30}, {20, 10}}, {{20, 10}, {25, 10}}}));
    EXPECT_EQ(drawing.shape(1).kind, Shape::Fill);
    EXPECT_EQ(drawing.shape(1).points[0], QPointF(0, 0));
    EXPECT_EQ(drawing.shape(3).points[0], QPointF(20, -30));
    const Shape& text = drawing.shape(5);
    EXPECT_EQ(text.text, "A ");
    EXPECT_EQ(text.points[0], QPointF(26, 9));
    EXPECT_EQ(text.ink, 0xff0000ffu); // 5 of the palette
    EXPECT_EQ(drawing.shape(6).ink, 0xffff0000u);
}

TEST(MultiLeaders, MayHaveABlockInTheEndAndNoLines) {
    const std::string block =
        "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nBLOCK_RECORD\n70\n1\n0\nBLOCK_RECORD\n5\nB1\n100\n"
        "AcDbSymbolTableRecord\n100\nAcDbBlockTableRecord\n2\nTAG\n0\nENDTAB\n0\nENDSEC\n" +
        blocks(blockOf("TAG", head("LINE", "AcDbLine") + point(10, 0, 0) + point(11, 4, 0)));
    const std::string content = "290\n0\n296\n1\n341\nB1\n14\n0\n24\n0\n34\n1\n" + point(15, 30, 10) +
                                "16\n2.0\n26\n2.0\n36\n2.0\n46\n0.0\n93\n-1056964608\n";
    const Drawing drawing(multiLeader(content, "170\n0\n"), block);
    EXPECT_EQ(pathsOf(drawing), (std::vector<Points>{{{30, 10}, {38, 10}}}));
}

TEST(MultiLeaders, MayBeCurved) {
    const Drawing drawing(multiLeader("290\n0\n296\n0\n", "170\n2\n291\n0\n"));
    EXPECT_GT(drawing.shape(0).points.size(), 20u);
    EXPECT_EQ(drawing.shape(0).points.back(), QPointF(20, 10));
}

// Every kind that has a class, and every kind of the format, is in the table: drawn, missed, or without a
// picture by its nature.
TEST(Kinds, AreAllInTheTable) {
    for (const char* name : {"3DFACE",
                             "3DSOLID",
                             "ACAD_PROXY_ENTITY",
                             "ACAD_TABLE",
                             "ARC",
                             "ARC_DIMENSION",
                             "ATTDEF",
                             "ATTRIB",
                             "BODY",
                             "CIRCLE",
                             "DGNUNDERLAY",
                             "DIMENSION",
                             "DWFUNDERLAY",
                             "ELLIPSE",
                             "EXTRUDEDSURFACE",
                             "HATCH",
                             "HELIX",
                             "IMAGE",
                             "INSERT",
                             "LARGE_RADIAL_DIMENSION",
                             "LEADER",
                             "LIGHT",
                             "LINE",
                             "LOFTEDSURFACE",
                             "LWPOLYLINE",
                             "MESH",
                             "MLINE",
                             "MPOLYGON",
                             "MTEXT",
                             "MULTILEADER",
                             "NURBSURFACE",
                             "OLE2FRAME",
                             "OLEFRAME",
                             "PDFUNDERLAY",
                             "PLANESURFACE",
                             "POINT",
                             "POLYLINE",
                             "RAY",
                             "REGION",
                             "REVOLVEDSURFACE",
                             "SECTIONOBJECT",
                             "SEQEND",
                             "SHAPE",
                             "SOLID",
                             "SPLINE",
                             "SURFACE",
                             "SWEPTSURFACE",
                             "TEXT",
                             "TOLERANCE",
                             "TRACE",
                             "VERTEX",
                             "VIEWPORT",
                             "WIPEOUT",
                             "XLINE"})
        EXPECT_NE(kindOf(std::string_view(name)), nullptr) << name << " is in no entry of the table";
    for (const std::string_view name : odDbEntityNames())
        EXPECT_NE(kindOf(name), nullptr) << name << " has a class, but no entry in the table";
}

TEST(Kinds, WithAClassOfTheirOwnAreDrawnUnlessTheyAreMarks) {
    for (const std::string_view name : odDbEntityNames()) {
        const bool isMark = name == "BLOCK" || name == "ENDBLK" || name == "VIEWPORT";
        EXPECT_EQ(kindOf(name)->draw == nullptr, isMark) << name;
    }
}

TEST(Kinds, ComeInTheOrderOfTheirNamesEachOnce) {
    for (std::size_t i = 1; i < kinds().size(); ++i)
        EXPECT_LT(kinds()[i - 1].name, kinds()[i].name);
}

} // namespace
