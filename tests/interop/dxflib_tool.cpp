// Counts what another reader of drawings finds in a file, one "KIND NAME COUNT" a line: dxflib_tool FILE.
#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>

#include <cstdio>
#include <map>
#include <string>

namespace {

class Counter : public DL_CreationAdapter {
public:
    std::map<std::string, int> found;

    void addLayer(const DL_LayerData& layer) override { ++found["layer " + layer.name]; }
    void addBlock(const DL_BlockData& block) override { ++found["block " + block.name]; }
    void addPoint(const DL_PointData&) override { count("POINT"); }
    void addLine(const DL_LineData&) override { count("LINE"); }
    void addArc(const DL_ArcData&) override { count("ARC"); }
    void addCircle(const DL_CircleData&) override { count("CIRCLE"); }
    void addEllipse(const DL_EllipseData&) override { count("ELLIPSE"); }
    void addSpline(const DL_SplineData&) override { count("SPLINE"); }
    void addHatch(const DL_HatchData&) override { count("HATCH"); }
    void addMText(const DL_MTextData&) override { count("MTEXT"); }
    void addText(const DL_TextData&) override { count("TEXT"); }
    void addPolyline(const DL_PolylineData&) override { count("POLYLINE"); } // light ones too
    void addInsert(const DL_InsertData& insert) override {
        count("INSERT");
        ++found["insert " + insert.name];
    }

private:
    void count(const char* kind) { ++found[std::string("entity ") + kind]; }
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    Counter counter;
    DL_Dxf reader;
    if (!reader.in(argv[1], &counter))
        return 1;
    for (const auto& [what, count] : counter.found)
        std::printf("%s %d\n", what.c_str(), count);
    return 0;
}
