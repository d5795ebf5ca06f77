// The text of a new drawing, put together here so that no file has to be shipped with the library.
#include "sdk/db/empty_drawing.h"

#include "sdk/dxf/tag.h"

#include <initializer_list>
#include <string_view>

namespace {

// Handles of the fixed records.
constexpr const char* kRoot = "C";
constexpr const char* kModelRecord = "1F";
constexpr const char* kPaperRecord = "1B";
constexpr const char* kModelLayout = "22";
constexpr const char* kPaperLayout = "1E";
constexpr const char* kPlotStyle = "F";

struct Tag {
    int code;
    std::string_view value;
};

class Text {
public:
    void add(std::initializer_list<Tag> tags) {
        for (const Tag& tag : tags)
            text += dxfTagText(tag.code, tag.value, "\n");
    }
    void section(std::string_view name) { add({{0, "SECTION"}, {2, name}}); }
    void endSection() { add({{0, "ENDSEC"}}); }
    void point(int code, std::string_view x, std::string_view y, std::string_view z = "0.0") {
        add({{code, x}, {code + 10, y}, {code + 20, z}});
    }
    void table(std::string_view name, std::string_view handle, std::string_view count) {
        add({{0, "TABLE"}, {2, name}, {5, handle}, {330, "0"}, {100, "AcDbSymbolTable"}, {70, count}});
    }
    void endTable() { add({{0, "ENDTAB"}}); }
    // Opens a record; its own class's tags follow.
    void record(std::string_view type, std::string_view handle, std::string_view owner,
                std::string_view marker, std::string_view name) {
        add({{0, type},
             {type == "DIMSTYLE" ? 105 : 5, handle},
             {330, owner},
             {100, "AcDbSymbolTableRecord"},
             {100, marker},
             {2, name}});
    }
    std::string take() { return std::move(text); }

private:
    std::string text;
};

void addHeader(Text& t) {
    t.section("HEADER");
    t.add({{9, "$ACADVER"}, {1, "AC1027"}, {9, "$DWGCODEPAGE"}, {3, "ANSI_1252"}});
    t.add({{9, "$LASTSAVEDBY"}, {1, ""}, {9, "$REVISIONNUMBER"}, {1, "0"}});
    t.add({{9, "$INSBASE"}});
    t.point(10, "0.0", "0.0");
    t.add({{9, "$EXTMIN"}});
    t.point(10, "1e20", "1e20", "1e20");
    t.add({{9, "$EXTMAX"}});
    t.point(10, "-1e20", "-1e20", "-1e20");
    t.add({{9, "$LIMMIN"}, {10, "0.0"}, {20, "0.0"}, {9, "$LIMMAX"}, {10, "420.0"}, {20, "297.0"}});
    t.add({{9, "$ORTHOMODE"}, {70, "0"}, {9, "$FILLMODE"}, {70, "1"}, {9, "$QTEXTMODE"}, {70, "0"}});
    t.add({{9, "$MIRRTEXT"}, {70, "0"}, {9, "$LTSCALE"}, {40, "1.0"}, {9, "$ATTMODE"}, {70, "1"}});
    t.add({{9, "$TEXTSIZE"}, {40, "2.5"}, {9, "$TEXTSTYLE"}, {7, "Standard"}, {9, "$CLAYER"}, {8, "0"}});
    t.add({{9, "$CELTYPE"}, {6, "ByLayer"}, {9, "$CECOLOR"}, {62, "256"}, {9, "$DIMSTYLE"}, {2, "Standard"}});
    t.add({{9, "$LUNITS"}, {70, "2"}, {9, "$LUPREC"}, {70, "4"}, {9, "$AUNITS"}, {70, "0"}});
    t.add({{9, "$AUPREC"}, {70, "0"}, {9, "$ANGBASE"}, {50, "0.0"}, {9, "$ANGDIR"}, {70, "0"}});
    t.add({{9, "$PDMODE"}, {70, "0"}, {9, "$PDSIZE"}, {40, "0.0"}, {9, "$ELEVATION"}, {40, "0.0"}});
    t.add({{9, "$TDCREATE"}, {40, "0.0"}, {9, "$TDUCREATE"}, {40, "0.0"}, {9, "$TDUPDATE"}, {40, "0.0"}});
    t.add({{9, "$TDUUPDATE"}, {40, "0.0"}, {9, "$TDINDWG"}, {40, "0.0"}});
    t.add({{9, "$HANDSEED"}, {5, "100"}});
    t.add({{9, "$UCSNAME"}, {2, ""}, {9, "$UCSORG"}});
    t.point(10, "0.0", "0.0");
    t.add({{9, "$UCSXDIR"}});
    t.point(10, "1.0", "0.0");
    t.add({{9, "$UCSYDIR"}});
    t.point(10, "0.0", "1.0");
    t.add({{9, "$TILEMODE"}, {70, "1"}, {9, "$MEASUREMENT"}, {70, "1"}, {9, "$INSUNITS"}, {70, "4"}});
    t.add({{9, "$CELWEIGHT"}, {370, "-1"}, {9, "$LWDISPLAY"}, {290, "0"}, {9, "$PSTYLEMODE"}, {290, "1"}});
    t.endSection();
}

void addViewports(Text& t) {
    t.table("VPORT", "8", "1");
    t.record("VPORT", "29", "8", "AcDbViewportTableRecord", "*Active");
    t.add({{70, "0"}, {10, "0.0"}, {20, "0.0"}, {11, "1.0"}, {21, "1.0"}, {12, "210.0"}, {22, "148.5"}});
    t.add({{13, "0.0"}, {23, "0.0"}, {14, "10.0"}, {24, "10.0"}, {15, "10.0"}, {25, "10.0"}});
    t.point(16, "0.0", "0.0", "1.0");
    t.point(17, "0.0", "0.0");
    t.add({{40, "297.0"}, {41, "1.5"}, {42, "50.0"}, {43, "0.0"}, {44, "0.0"}, {50, "0.0"}, {51, "0.0"}});
    t.add({{71, "0"}, {72, "100"}, {73, "1"}, {74, "3"}, {75, "0"}, {76, "0"}, {77, "0"}, {78, "0"}});
    t.endTable();
}

void addStyles(Text& t) {
    t.table("LTYPE", "5", "3");
    const auto linetype = [&t](std::string_view handle, std::string_view name, std::string_view text) {
        t.record("LTYPE", handle, "5", "AcDbLinetypeTableRecord", name);
        t.add({{70, "0"}, {3, text}, {72, "65"}, {73, "0"}, {40, "0.0"}});
    };
    linetype("14", "ByBlock", "");
    linetype("15", "ByLayer", "");
    linetype("16", "Continuous", "Solid line");
    t.endTable();
    t.table("LAYER", "2", "1");
    t.record("LAYER", "10", "2", "AcDbLayerTableRecord", "0");
    t.add({{70, "0"}, {62, "7"}, {6, "Continuous"}, {370, "-3"}, {390, kPlotStyle}});
    t.endTable();
    t.table("STYLE", "3", "1");
    t.record("STYLE", "11", "3", "AcDbTextStyleTableRecord", "Standard");
    t.add({{70, "0"}, {40, "0.0"}, {41, "1.0"}, {50, "0.0"}, {71, "0"}, {42, "2.5"}, {3, "txt"}, {4, ""}});
    t.endTable();
    t.table("VIEW", "6", "0");
    t.endTable();
    t.table("UCS", "7", "0");
    t.endTable();
    t.table("APPID", "9", "1");
    t.record("APPID", "12", "9", "AcDbRegAppTableRecord", "ACAD");
    t.add({{70, "0"}});
    t.endTable();
    t.table("DIMSTYLE", "A", "1");
    t.add({{100, "AcDbDimStyleTable"}, {71, "1"}});
    t.record("DIMSTYLE", "27", "A", "AcDbDimStyleTableRecord", "Standard");
    t.add({{70, "0"}});
    t.endTable();
}

void addBlocks(Text& t) {
    t.table("BLOCK_RECORD", "1", "2");
    t.record("BLOCK_RECORD", kModelRecord, "1", "AcDbBlockTableRecord", "*Model_Space");
    t.add({{340, kModelLayout}, {70, "0"}, {280, "1"}, {281, "0"}});
    t.record("BLOCK_RECORD", kPaperRecord, "1", "AcDbBlockTableRecord", "*Paper_Space");
    t.add({{340, kPaperLayout}, {70, "0"}, {280, "1"}, {281, "0"}});
    t.endTable();
    t.endSection();
    t.section("BLOCKS");
    const auto block = [&t](std::string_view handle, std::string_view end, std::string_view record,
                            std::string_view name, bool paper) {
        const auto common = [&](std::string_view type, std::string_view itsHandle) {
            t.add({{0, type}, {5, itsHandle}, {330, record}, {100, "AcDbEntity"}});
            if (paper)
                t.add({{67, "1"}});
            t.add({{8, "0"}});
        };
        common("BLOCK", handle);
        t.add({{100, "AcDbBlockBegin"}, {2, name}, {70, "0"}});
        t.point(10, "0.0", "0.0");
        t.add({{3, name}, {1, ""}});
        common("ENDBLK", end);
        t.add({{100, "AcDbBlockEnd"}});
    };
    block("20", "21", kModelRecord, "*Model_Space", false);
    block("1C", "1D", kPaperRecord, "*Paper_Space", true);
    t.endSection();
}

void addDictionary(Text& t, std::string_view handle, std::string_view owner,
                   std::initializer_list<Tag> entries) {
    t.add({{0, "DICTIONARY"}, {5, handle}});
    if (owner != "0")
        t.add({{102, "{ACAD_REACTORS"}, {330, owner}, {102, "}"}});
    t.add({{330, owner}, {100, "AcDbDictionary"}, {281, "1"}});
    for (const Tag& entry : entries)
        t.add({entry});
}

void addLayout(Text& t, std::string_view handle, std::string_view name, std::string_view order,
               std::string_view record, bool isModel) {
    t.add({{0, "LAYOUT"}, {5, handle}, {102, "{ACAD_REACTORS"}, {330, "1A"}, {102, "}"}, {330, "1A"}});
    t.add({{100, "AcDbPlotSettings"}, {1, ""}, {2, "none_device"}, {4, ""}, {6, ""}});
    t.add({{40, "0.0"}, {41, "0.0"}, {42, "0.0"}, {43, "0.0"}, {44, "0.0"}, {45, "0.0"}, {46, "0.0"}});
    t.add({{47, "0.0"}, {48, "0.0"}, {49, "0.0"}, {140, "0.0"}, {141, "0.0"}, {142, "1.0"}, {143, "1.0"}});
    t.add({{70, isModel ? "1712" : "688"}, {72, "0"}, {73, "0"}, {74, "5"}, {7, ""}, {75, "16"}});
    t.add({{147, "1.0"}, {148, "0.0"}, {149, "0.0"}, {100, "AcDbLayout"}, {1, name}, {70, "1"}, {71, order}});
    t.add({{10, "0.0"}, {20, "0.0"}, {11, "420.0"}, {21, "297.0"}});
    t.point(12, "0.0", "0.0");
    t.point(14, "1e20", "1e20", "1e20");
    t.point(15, "-1e20", "-1e20", "-1e20");
    t.add({{146, "0.0"}});
    t.point(13, "0.0", "0.0");
    t.point(16, "1.0", "0.0");
    t.point(17, "0.0", "1.0");
    t.add({{76, "1"}, {330, record}});
}

void addObjects(Text& t) {
    t.section("OBJECTS");
    addDictionary(t, kRoot, "0",
                  {{3, "ACAD_GROUP"},
                   {350, "D"},
                   {3, "ACAD_LAYOUT"},
                   {350, "1A"},
                   {3, "ACAD_PLOTSTYLENAME"},
                   {350, "E"}});
    addDictionary(t, "D", kRoot, {});
    addDictionary(t, "1A", kRoot, {{3, "Layout1"}, {350, kPaperLayout}, {3, "Model"}, {350, kModelLayout}});
    t.add({{0, "ACDBDICTIONARYWDFLT"},
           {5, "E"},
           {102, "{ACAD_REACTORS"},
           {330, kRoot},
           {102, "}"},
           {330, kRoot}});
    t.add({{100, "AcDbDictionary"}, {281, "1"}, {3, "Normal"}, {350, kPlotStyle}});
    t.add({{100, "AcDbDictionaryWithDefault"}, {340, kPlotStyle}});
    t.add({{0, "ACDBPLACEHOLDER"},
           {5, kPlotStyle},
           {102, "{ACAD_REACTORS"},
           {330, "E"},
           {102, "}"},
           {330, "E"}});
    addLayout(t, kPaperLayout, "Layout1", "1", kPaperRecord, false);
    addLayout(t, kModelLayout, "Model", "0", kModelRecord, true);
    t.endSection();
}

} // namespace

std::string odDbEmptyDrawingText() {
    Text t;
    addHeader(t);
    t.section("CLASSES");
    t.endSection();
    t.section("TABLES");
    addViewports(t);
    addStyles(t);
    addBlocks(t);
    t.section("ENTITIES");
    t.endSection();
    addObjects(t);
    t.add({{0, "EOF"}});
    return t.take();
}
