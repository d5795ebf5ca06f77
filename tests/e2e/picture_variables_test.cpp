// Variables of a drawing that change its picture show at once.
#include "tests/e2e/drawing_fixture.h"

namespace {

const char* const dashedDrawing =
    "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n0\nENDSEC\n"
    "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLTYPE\n70\n1\n0\nLTYPE\n5\n15\n100\nAcDbSymbolTableRecord\n100\n"
    "AcDbLinetypeTableRecord\n2\nDASHED\n70\n0\n3\n__ "
    "__\n72\n65\n73\n2\n40\n20.0\n49\n12.0\n74\n0\n49\n-8.0\n74\n0\n"
    "0\nENDTAB\n0\nENDSEC\n"
    "0\nSECTION\n2\nENTITIES\n"
    "0\nLINE\n5\nA1\n100\nAcDbEntity\n8\n0\n6\nDASHED\n100\nAcDbLine\n10\n0.0\n20\n0.0\n11\n200.0\n21\n0.0\n"
    "0\nLINE\n5\nA2\n100\nAcDbEntity\n8\n0\n370\n211\n100\nAcDbLine\n10\n0.0\n20\n40.0\n11\n200.0\n21\n40.0\n"
    "0\nPOINT\n5\nA3\n100\nAcDbEntity\n8\n0\n100\nAcDbPoint\n10\n100.0\n20\n80.0\n"
    "0\nENDSEC\n0\nEOF\n";

struct PictureVariables : DrawingFixture {
    PictureVariables() {
        QFile file(root.filePath("dashed.dxf"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(dashedDrawing);
        file.close();
        static_cast<standin::DocumentManager*>(HostDocManager())->openFile(file.fileName());
    }
    QImage picture() {
        canvas().finishPicture();
        return canvas().grab().toImage();
    }
};

TEST_F(PictureVariables, ShowAtOnce) {
    struct Setting {
        const char *name, *value;
    };
    for (const Setting& each :
         {Setting{"LTSCALE", "0.3"}, {"PDMODE", "34"}, {"PDSIZE", "30"}, {"LWDISPLAY", "1"}}) {
        const QImage before = picture();
        enter({each.name, each.value});
        EXPECT_TRUE(waitUntil([&] { return picture() != before; })) << each.name;
    }
}

} // namespace
