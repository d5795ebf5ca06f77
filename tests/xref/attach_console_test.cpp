// The prompts of the attach command as they are typed at the console of the workbench's host.
#include "tests/standin/console_driver.h"
#include "tests/xref/xref_fixture.h"
#include "xref/attach_reference.h"

#include <algorithm>
#include <cmath>

namespace {

class AttachAtConsole : public XRefTest {
protected:
    AttachAtConsole() { host.document.io = &user.console; }
    bool attach(bool uniform, std::initializer_list<const char*> lines) {
        user.type(lines);
        return attachReference(hostqt::odString(write("part.dxf")), {}, OdGeScale3d(1), false, true, true,
                               true, uniform, 0, false, 0);
    }
    bool printed(const QString& text) const {
        const QStringList& lines = user.console.transcript();
        return std::any_of(lines.begin(), lines.end(),
                           [&](const QString& line) { return line.contains(text); });
    }
    ConsoleDriver user;
};

} // namespace

TEST_F(AttachAtConsole, PointFactorsAndAngleAreTyped) {
    EXPECT_TRUE(attach(false, {"10,20", "2", "3", "30"}));
    EXPECT_EQ(user.unanswered, 0);
    ASSERT_EQ(inserted().size(), 1u);
    EXPECT_EQ(inserted()[0]->position(), OdGePoint3d(10, 20, 0));
    EXPECT_EQ(inserted()[0]->scaleFactors(), OdGeScale3d(2, 3, 2));
    EXPECT_NEAR(inserted()[0]->rotation(), M_PI / 6, 1e-12);
}

TEST_F(AttachAtConsole, KeywordsStandInTheBrackets) {
    attach(true, {"10,20", "", ""});
    EXPECT_TRUE(printed("Specify insertion point or [Scale/X/Y/Z/Rotate/PScale/PX/PY/PZ/PRotate]"));
    EXPECT_TRUE(printed("Enter X scale factor, specify opposite corner, or [Corner/XYZ] <1>"));
    EXPECT_EQ(inserted().at(0)->scaleFactors(), OdGeScale3d(1));
}

TEST_F(AttachAtConsole, StarredXAsksForTheFactorAndSettlesTheScale) {
    EXPECT_TRUE(attach(false, {"*X", "4", "10,20", "0"}));
    EXPECT_EQ(user.unanswered, 0);
    EXPECT_EQ(inserted().at(0)->scaleFactors(), OdGeScale3d(4, 1, 1));
}

TEST_F(AttachAtConsole, PlainXCancels) {
    EXPECT_FALSE(attach(false, {"X"}));
    EXPECT_EQ(user.unanswered, 0);
    EXPECT_TRUE(referenceNames().isEmpty());
}

TEST_F(AttachAtConsole, ShortKeywordsWork) {
    EXPECT_TRUE(attach(false, {"s", "2", "r", "90", "10,20"}));
    EXPECT_EQ(user.unanswered, 0);
    EXPECT_EQ(inserted().at(0)->scaleFactors(), OdGeScale3d(2));
    EXPECT_NEAR(inserted().at(0)->rotation(), M_PI / 2, 1e-12);
}

TEST_F(AttachAtConsole, OppositeCornerIsPicked) {
    EXPECT_TRUE(attach(false, {"10,20", "c", "13,24", "0"}));
    EXPECT_EQ(user.unanswered, 0);
    EXPECT_EQ(inserted().at(0)->scaleFactors(), OdGeScale3d(3, 4, 3));
}

TEST_F(AttachAtConsole, EscapeTakesTheNewReferenceBack) {
    EXPECT_FALSE(attach(false, {"10,20"}));
    EXPECT_EQ(user.unanswered, 1);
    EXPECT_TRUE(referenceNames().isEmpty());
    EXPECT_TRUE(inserted().empty());
}
