// What LIST tells about objects, in the units of the drawing.
#include "sdk/db/progress.h"
#include "tests/e2e/drawing_fixture.h"
#include "tests/support/mixed_drawing.h"
#include "tests/support/text_file.h"

#include <set>

namespace {

const char* const kinds =
    "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n0\nENDSEC\n"
    "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n5\n20\n100\nAcDbEntity\n8\n0\n100\nAcDbBlockBegin\n2\nDESK\n70\n0\n10\n"
    "0\n20\n0\n"
    "0\nENDBLK\n5\n21\n100\nAcDbEntity\n8\n0\n100\nAcDbBlockEnd\n0\nENDSEC\n"
    "0\nSECTION\n2\nENTITIES\n"
    "0\nLINE\n5\nA1\n100\nAcDbEntity\n8\n0\n100\nAcDbLine\n10\n0.0\n20\n0.0\n11\n30.0\n21\n40.0\n31\n0.0\n"
    "0\nARC\n5\nA2\n100\nAcDbEntity\n8\n0\n62\n1\n100\nAcDbCircle\n10\n1.0\n20\n2.0\n40\n62.5\n100\nAcDbArc\n"
    "50\n22.5\n51\n120.0\n"
    "0\nINSERT\n5\nA3\n100\nAcDbEntity\n8\n0\n62\n0\n100\nAcDbBlockReference\n2\nDESK\n10\n5.0\n20\n6."
    "0\n30\n7.0\n"
    "41\n2.0\n42\n2.0\n43\n-0.5\n50\n315.0\n"
    "0\nTEXT\n5\nA4\n100\nAcDbEntity\n8\n0\n420\n255\n100\nAcDbText\n10\n1.0\n20\n1.0\n40\n2."
    "5\n1\nNorth\n100\n"
    "AcDbText\n"
    "0\nPOINT\n5\nA5\n100\nAcDbEntity\n8\n0\n100\nAcDbPoint\n10\n9.0\n20\n8.0\n"
    "0\nLWPOLYLINE\n5\nA6\n100\nAcDbEntity\n8\n0\n100\nAcDbPolyline\n90\n2\n70\n1\n10\n0\n20\n0\n10\n5\n20\n5"
    "\n"
    "0\nLWPOLYLINE\n5\nA7\n100\nAcDbEntity\n8\n0\n100\nAcDbPolyline\n90\n2\n70\n0\n10\n0\n20\n0\n10\n5\n20\n5"
    "\n"
    "0\nENDSEC\n0\nEOF\n";

struct ListTest : DrawingFixture {
    ListTest() {
        const QString file = root.filePath("kinds.dxf");
        writeText(file, kinds);
        static_cast<standin::DocumentManager*>(HostDocManager())->openFile(file);
    }
    // The lines that LIST adds to the transcript for all objects.
    QStringList list() {
        enter({"SELECT", "All", ""});
        const int before = transcript().size();
        enter({"LIST"});
        return transcript().mid(before);
    }
};

TEST_F(ListTest, TellsKindPropertiesAndGeometryOfEach) {
    const QStringList lines = list();
    for (const char* expected :
         {"LINE  handle A1  layer 0  colour by layer", "    from 0,0 to 30,40, length 50",
          "ARC  handle A2  layer 0  colour 1", "    centre 1,2, radius 62.5, from 23° to 120°",
          "INSERT  handle A3  layer 0  colour by block",
          "    block \"DESK\" at 5,6,7, scale 2, 2, -0.5, rotation 315°",
          "TEXT  handle A4  layer 0  colour #0000ff", "    \"North\" at 1,1, height 2.5", "    at 9,8",
          "    closed, 2 vertices", "    open, 2 vertices"})
        EXPECT_TRUE(lines.contains(QString::fromUtf8(expected))) << expected << " in\n"
                                                                 << lines.join('\n').toStdString();
}

TEST_F(ListTest, FollowsTheUnitsOfTheDrawing) {
    enter({"LUNITS", "4"});
    enter({"AUNITS", "1"});
    enter({"AUPREC", "4"});
    const QString feet = list().join('\n');
    EXPECT_TRUE(feet.contains("from 0'-0\",0'-0\" to 2'-6\",3'-4\", length 4'-2\"")) << feet.toStdString();
    EXPECT_TRUE(feet.contains(QString::fromUtf8("radius 5'-2-1/2\", from 22°30'0\" to 120°0'0\"")))
        << feet.toStdString();
    enter({"ANGBASE", "90"});
    enter({"ANGDIR", "1"});
    EXPECT_TRUE(list().join('\n').contains(QString::fromUtf8("from 67°30'0\" to 330°0'0\"")))
        << "clockwise from north";
}

// The user who cancels at the second report.
class Impatient : public OdDbProgressMeter {
public:
    Impatient() { odDbSetProgressMeter(this); }
    ~Impatient() override { odDbSetProgressMeter(former); }
    Impatient(const Impatient&) = delete;
    Impatient& operator=(const Impatient&) = delete;
    bool proceed(Work work, double) override {
        works.insert(work);
        return ++reports < 2;
    }
    std::set<Work> works;

private:
    OdDbProgressMeter* const former = odDbProgressMeter();
    int reports = 0;
};

struct LongWork : DrawingFixture {
    LongWork() {
        const QString file = root.filePath("many.dxf");
        mixedDrawing(1200)->writeFile(hostqt::odString(file));
        static_cast<standin::DocumentManager*>(HostDocManager())->openFile(file);
    }
};

TEST_F(LongWork, ASelectionThatIsCancelledSelectsNothingMore) {
    const Impatient user;
    play({[this] { submit("SELECT"); }, [this] { submit("All"); },
          [this] {
              EXPECT_EQ(lastLine(), "*Cancel*");
              for (const OdDbObjectId& id : entities())
                  EXPECT_FALSE(odrxCast<OdDbEntity>(id.safeOpenObject())->isHighlighted());
          },
          [this] { submit(""); }});
    EXPECT_EQ(user.works, std::set<OdDbProgressMeter::Work>{OdDbProgressMeter::kSelecting});
    EXPECT_EQ(selected(), std::vector<int>());
}

TEST_F(LongWork, AListThatIsCancelledEnds) {
    enter({"SELECT", "All", ""});
    EXPECT_TRUE(transcript().contains("1200 found, 1200 in all."));
    const int before = transcript().size();
    {
        const Impatient user;
        enter({"LIST"});
        EXPECT_EQ(user.works, std::set<OdDbProgressMeter::Work>{OdDbProgressMeter::kListing});
    }
    EXPECT_EQ(lastLine(), "LIST: cancelled");
    EXPECT_EQ(transcript().mid(before).filter("  handle ").size(), 1000) << "the parts that were done";
    enter({"LIST"});
    EXPECT_EQ(transcript().mid(before).filter("  handle ").size(), 2200);
}

} // namespace
