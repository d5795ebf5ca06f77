// Drawings by a C++ library for such files, in its versions: dxflib_writer FOLDER.
#include <dxflib/dl_dxf.h>

#include <string>

namespace {

using Version = DL_Codes::version;

class Sheet {
public:
    Sheet(const std::string& file, Version version)
        : out(library.out(file.c_str(), version)), version(version) {
        library.writeHeader(*out);
        out->sectionEnd();
        writeTables();
        out->sectionEntities();
    }
    ~Sheet() {
        out->sectionEnd();
        library.writeObjects(*out);
        library.writeObjectsEnd(*out);
        out->dxfEOF();
        out->close();
        delete out;
    }

    DL_Dxf library;
    DL_WriterA* out;
    Version version;

private:
    void writeTables() {
        out->sectionTables();
        library.writeVPort(*out);
        out->tableLinetypes(3);
        for (const char* name : {"BYBLOCK", "BYLAYER", "CONTINUOUS"})
            library.writeLinetype(*out, DL_LinetypeData(name, "", 0, 0, 0.0));
        out->tableEnd();
        out->tableLayers(2);
        library.writeLayer(*out, DL_LayerData("0", 0), DL_Attributes("", 7, -1, "CONTINUOUS", 1.0));
        library.writeLayer(*out, DL_LayerData("Waende", 0), DL_Attributes("", 3, 35, "CONTINUOUS", 1.0));
        out->tableEnd();
        out->tableStyle(1);
        library.writeStyle(*out, DL_StyleData("standard", 0, 2.5, 1.0, 0.0, 0, 2.5, "txt", ""));
        out->tableEnd();
        library.writeView(*out);
        library.writeUcs(*out);
        out->tableAppid(1);
        library.writeAppid(*out, "ACAD");
        out->tableEnd();
        library.writeDimStyle(*out, 2.5, 1.25, 0.625, 0.625, 2.5);
        library.writeBlockRecord(*out);
        out->tableEnd();
        out->sectionEnd();
        out->sectionBlocks();
        for (const char* name : {"*Model_Space", "*Paper_Space", "*Paper_Space0"}) {
            library.writeBlock(*out, DL_BlockData(name, 0, 0, 0, 0));
            library.writeEndBlock(*out, name);
        }
        out->sectionEnd();
    }
};

const DL_Attributes kOnWalls("Waende", 256, 0, -1, "BYLAYER");
const DL_Attributes kRed("0", 1, 0xff8040, 50, "BYLAYER");

void lines(Sheet& sheet) {
    sheet.library.writeLine(*sheet.out, DL_LineData(0, 0, 0, 40, 30, 0), kOnWalls);
    sheet.library.writeLine(*sheet.out, DL_LineData(40, 30, 0, 40, 60, 5), kRed);
    sheet.library.writePoint(*sheet.out, DL_PointData(3, 4, 0), kOnWalls);
}

void round(Sheet& sheet) {
    sheet.library.writeCircle(*sheet.out, DL_CircleData(10, 10, 0, 5), kOnWalls);
    sheet.library.writeArc(*sheet.out, DL_ArcData(0, 0, 0, 8, 30, 290), kRed);
    if (sheet.version != DL_VERSION_R12)
        sheet.library.writeEllipse(*sheet.out, DL_EllipseData(0, 0, 0, 20, 5, 0, 0.4, 0, 6.28318530717959),
                                   kRed);
}

void polylines(Sheet& sheet) {
    sheet.library.writePolyline(*sheet.out, DL_PolylineData(3, 0, 0, 1), kOnWalls);
    sheet.library.writeVertex(*sheet.out, DL_VertexData(0, 0, 0, 0.5));
    sheet.library.writeVertex(*sheet.out, DL_VertexData(20, 0, 0, 0));
    sheet.library.writeVertex(*sheet.out, DL_VertexData(20, 20, 0, -1));
    sheet.library.writePolylineEnd(*sheet.out);
}

void texts(Sheet& sheet) {
    sheet.library.writeText(
        *sheet.out, DL_TextData(5, 5, 0, 5, 5, 0, 2.5, 1, 0, 0, 0, "Plan 1:50 %%c12", "standard", 0.3),
        kOnWalls);
    if (sheet.version != DL_VERSION_R12)
        sheet.library.writeMText(
            *sheet.out, DL_MTextData(5, 20, 0, 1, 0, 0, 2.5, 40, 1, 1, 1, 1, "one\\Ptwo", "standard", 0),
            kRed);
}

void solids(Sheet& sheet) {
    sheet.library.writeSolid(*sheet.out, DL_SolidData(0, 0, 0, 10, 0, 0, 0, 10, 0, 10, 10, 0, 0), kRed);
    sheet.library.writeXLine(*sheet.out, DL_XLineData(0, 0, 0, 1, 1, 0), kOnWalls);
    sheet.library.writeRay(*sheet.out, DL_RayData(0, 0, 0, 0, 1, 0), kOnWalls);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    const struct {
        const char* name;
        void (*draw)(Sheet&);
        bool inOldest;
    } drawings[] = {{"lines", lines, true},
                    {"round", round, true},
                    {"polylines", polylines, true},
                    {"texts", texts, true},
                    {"solids", solids, false}};
    for (const auto& drawing : drawings)
        for (Version version : {DL_VERSION_R12, DL_VERSION_2000}) {
            if (version == DL_VERSION_R12 && !drawing.inOldest)
                continue;
            std::string ending = version == DL_VERSION_R12 ? "_r12.dxf" : "_r2000.dxf";
            Sheet sheet(std::string(argv[1]) + "/" + drawing.name + ending, version);
            drawing.draw(sheet);
        }
    return 0;
}
