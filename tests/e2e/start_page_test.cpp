// What the start offers.
#include "tests/e2e/drawing_fixture.h"

#include "tests/support/tool_tip_text.h"
#include "workbench/window/start_page.h"

#include <QPushButton>

namespace {

struct StartPageTest : WorkbenchFixture {
    workbench::StartPage* page() { return part<workbench::StartPage>("startPage"); }
    void click(const char* name) {
        auto* button = part<QPushButton>(name);
        ASSERT_NE(button, nullptr) << name;
        QTest::mouseClick(button, Qt::LeftButton);
    }
    QString title() { return bench->window()->windowTitle(); }
};

TEST_F(StartPageTest, OffersWhatCanBeDoneUntilTheFirstCommand) {
    ASSERT_TRUE(page()->isVisible());
    for (const char* name : {"newButton", "openButton", "qprefButton", "guideButton", "sampleButton0"})
        EXPECT_TRUE(part<QPushButton>(name) && part<QPushButton>(name)->isVisible()) << name;
    EXPECT_EQ(part<QPushButton>("recentButton0"), nullptr) << "nothing was opened yet";
    EXPECT_TRUE(line().hasFocus()) << "who types a command need not click first";
    enter({"DRAWINGS"});
    EXPECT_FALSE(page()->isVisible());
}

TEST_F(StartPageTest, LiesWithinTheDrawingArea) {
    EXPECT_TRUE(page()->parentWidget()->rect().contains(page()->geometry()));
}

TEST_F(StartPageTest, AClickBesideItTakesItAway) {
    QTest::mouseClick(page()->parentWidget(), Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_FALSE(page()->isVisible());
}

TEST_F(StartPageTest, ASampleIsOpenedAsACopy) {
    click("sampleButton0");
    EXPECT_TRUE(title().contains("house")) << title().toStdString();
    EXPECT_STREQ(HostDocManager()->currentDocument()->fileName(), L"") << "what is shipped stays as it is";
    EXPECT_FALSE(page()->isVisible());
}

TEST_F(StartPageTest, ACommandIsStartedByItsEntry) {
    click("newButton");
    EXPECT_TRUE(waitUntil([&] { return title() == "Drawing2 - Workbench"; }));
}

TEST_F(StartPageTest, TellsTheWholePathAsItStands) {
    const QString folder = root.filePath("R&D  <b>plans</b>"), path = folder + "/plan.dxf";
    ASSERT_TRUE(QDir().mkpath(folder));
    OdDbDatabase::createEmpty()->writeFile(hostqt::odString(path));
    enter({"FILEDIA", "0", "OPEN", qPrintable(path)});
    restart();
    EXPECT_EQ(toolTipOf(*part<QPushButton>("recentButton0")), QDir::toNativeSeparators(path));
}

TEST_F(StartPageTest, DrawingsThatWereOpenedAreOfferedInTheNextRun) {
    const QString kept = root.filePath("kept.dxf"), gone = root.filePath("gone.dxf");
    for (const QString& path : {kept, gone})
        OdDbDatabase::createEmpty()->writeFile(hostqt::odString(path));
    enter({"FILEDIA", "0", "OPEN", qPrintable(kept), "OPEN", qPrintable(gone)});
    QFile::remove(gone);
    restart();
    ASSERT_NE(part<QPushButton>("recentButton0"), nullptr);
    EXPECT_EQ(part<QPushButton>("recentButton0")->text(), "kept.dxf");
    EXPECT_EQ(part<QPushButton>("recentButton1"), nullptr) << "a file that is gone can't be opened";
    click("recentButton0");
    EXPECT_EQ(title(), "kept.dxf - Workbench");
}

} // namespace
