// The check of a candidate drawing against the current one.
#include "tests/support/test_application.h"
#include "tests/xref/xref_fixture.h"
#include "xref/xref_conflicts.h"

namespace {

class Conflicts : public XRefTest {
protected:
    Conflicts() {
        candidate->setFilename(L"/x/part.dxf");
        TestApplication::self()->testServices.reader = [this](const OdString& path) {
            asked = path;
            return candidate;
        };
    }
    void candidateRefersTo(const wchar_t* blockName, bool overlay = false) {
        OdDbXRefManExt::addNewXRefDefBlock(candidate.get(), L"/x/some.dxf", blockName, overlay);
    }
    bool check() { return checkXRefConflicts(L"/x/part.dxf", drawing); }

    OdDbDatabasePtr candidate = OdDbDatabase::createEmpty();
    OdString asked;
};

} // namespace

TEST_F(Conflicts, DrawingWithoutReferencesPasses) {
    EXPECT_TRUE(check());
    EXPECT_EQ(asked, OdString(L"/x/part.dxf"));
    EXPECT_EQ(TestApplication::self()->testServices.readNumbers, (std::vector<int>{0, 0, 64}));
}

TEST_F(Conflicts, OtherReferencesPass) {
    candidateRefersTo(L"tree");
    define("tree", "/x/some.dxf");
    EXPECT_TRUE(check());
    EXPECT_TRUE(io.lines.isEmpty());
}

TEST_F(Conflicts, StandardBlockOfThatNameIsPrinted) {
    candidateRefersTo(L"tree");
    addPlainBlock(L"Tree");
    EXPECT_FALSE(check());
    EXPECT_EQ(io.lines,
              QStringList("Error: tree is already a standard block in the current drawing. Canceled"));
}

TEST_F(Conflicts, AttachmentOfTheCurrentDrawingIsAskedAbout) {
    candidateRefersTo(L"site");
    EXPECT_TRUE(check());
    EXPECT_EQ(noticeTexts(), QStringList("Error: Possible circular reference to current drawing. Continue?"));
    EXPECT_EQ(host.notices()[0].kind, 14);
    host.answerNotices(2);
    EXPECT_FALSE(check());
}

TEST_F(Conflicts, OverlayOfTheCurrentDrawingPasses) {
    candidateRefersTo(L"site", true);
    EXPECT_TRUE(check());
    EXPECT_TRUE(host.notices().empty());
}

TEST_F(Conflicts, ReferenceOfItsOwnNamePrintsATextThatDoesNotFit) {
    candidateRefersTo(L"part");
    EXPECT_FALSE(check());
    EXPECT_EQ(io.formatted, QStringList("There are no active Model space viewports"));
}
