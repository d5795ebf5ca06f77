// What the start offers.
#include "tests/e2e/drawing_fixture.h"

#include "host/reference_files.h"
#include "tests/support/tool_tip_text.h"
#include "workbench/window/start_page.h"

#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>

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

TEST_F(StartPageTest, WhatItOpensTakesThePlaceOfTheEmptyDrawing) {
    auto* const tabs = bench->window()->findChild<QTabBar*>("drawingTabs");
    click("sampleButton0");
    EXPECT_EQ(tabs->count(), 1);
    EXPECT_TRUE(line().hasFocus()) << "keys go on to the command line";
    const QString path = root.filePath("plan.dxf");
    OdDbDatabase::createEmpty()->writeFile(hostqt::odString(path));
    enter({"FILEDIA", "0", "OPEN", qPrintable(path)});
    EXPECT_EQ(tabs->count(), 2) << "a sample is not empty: it stays until it is closed";
    restart();
    auto* const tabsOfNext = bench->window()->findChild<QTabBar*>("drawingTabs");
    click("recentButton0");
    EXPECT_TRUE(waitUntil([&] { return tabsOfNext->count() == 1 && tabsOfNext->tabText(0) == "plan.dxf"; }))
        << tabsOfNext->count();
}

TEST_F(StartPageTest, ASampleLeadsToTheOtherSamplesAndADrawingOfOnesOwnElsewhere) {
    click("sampleButton0");
    const auto startOf = [] {
        const OdDbDatabasePtr database = HostDocManager()->currentDocument()->database();
        return hostqt::qString(appService<IReferenceFiles>()->startFolder(database.get()));
    };
    EXPECT_TRUE(startOf().endsWith("samples")) << startOf().toStdString();
    enter({"NEW"});
    EXPECT_EQ(startOf(), QDir::homePath());
}

TEST_F(StartPageTest, ScrollsInALowWindowInsteadOfCuttingItsEntries) {
    bench->window()->resize(640, 420);
    QCoreApplication::processEvents();
    EXPECT_TRUE(page()->parentWidget()->rect().contains(page()->geometry()));
    for (const QPushButton* entry : page()->findChildren<QPushButton*>())
        EXPECT_GE(entry->height(), entry->minimumSizeHint().height()) << entry->text().toStdString();
}

TEST_F(StartPageTest, IsReachedByTabFromAnEmptyCommandLine) {
    ASSERT_TRUE(line().hasFocus());
    press(Qt::Key_Tab);
    QWidget* const focus = QApplication::focusWidget();
    EXPECT_TRUE(focus && page()->isAncestorOf(focus));
    line().setFocus();
    type("ZOO");
    press(Qt::Key_Tab);
    EXPECT_EQ(line().text(), "ZOOM") << "a word is completed";
    line().clear();
}

TEST_F(StartPageTest, HasLettersThatNoMenuHas) {
    QStringList letters;
    for (const QAction* menu : bench->window()->menuBar()->actions())
        letters << QKeySequence::mnemonic(menu->text()).toString();
    for (const char* name : {"newButton", "openButton", "qprefButton", "guideButton"}) {
        const QString letter = QKeySequence::mnemonic(part<QPushButton>(name)->text()).toString();
        EXPECT_FALSE(letter.isEmpty() || letters.contains(letter)) << name;
        letters << letter;
    }
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
