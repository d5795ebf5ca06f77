// A drawing that would take minutes to paint: the window stays alive, and the user is told once.
#include "tests/e2e/drawing_fixture.h"

#include <QFile>

namespace {

// A block of one line in 900 rows and columns, each line across all of the window.
QByteArray lineUponLine() {
    return "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nB\n70\n0\n10\n0\n20\n0\n30\n0\n0\nLINE\n100\nAcDbEntity"
           "\n8\n"
           "0\n100\nAcDbLine\n10\n0\n20\n0\n11\n100\n21\n70\n0\nENDBLK\n8\n0\n0\nENDSEC\n0\nSECTION\n2\nENTIT"
           "IES\n"
           "0\nINSERT\n100\nAcDbEntity\n8\n0\n100\nAcDbBlockReference\n2\nB\n10\n0\n20\n0\n70\n900\n71\n900\n"
           "44\n"
           "0.001\n45\n0.001\n0\nENDSEC\n0\nEOF\n";
}

struct HostileDrawingTest : DrawingFixture {
    int told() { return transcript().filter("There is more to paint than can be shown at once").size(); }
    bool isPainted() {
        canvas().grab();
        return canvas().isPictureFinished();
    }
};

TEST_F(HostileDrawingTest, WithMoreThanCanBePaintedIsToldOfOnceAndSavedNevertheless) {
    const QString file = root.filePath("hostile.dxf");
    QFile written(file);
    ASSERT_TRUE(written.open(QIODevice::WriteOnly));
    written.write(lineUponLine());
    written.close();
    enter({"OPEN", qPrintable(file)});
    ASSERT_TRUE(waitUntil([this] { return isPainted(); }, 100000));
    EXPECT_EQ(told(), 1) << "nobody is told that the picture leaves something out";
    canvas().finishPicture();
    EXPECT_EQ(told(), 1) << "the same is told again";
    enter({"SAVEAS", qPrintable(root.filePath("saved.dxf"))});
    EXPECT_TRUE(QFile::exists(root.filePath("saved.dxf")));
}

} // namespace
