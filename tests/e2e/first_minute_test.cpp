// What helps who starts the program for the first time: the greeting, help, the guide, short names, and what
// can be undone.
#include "tests/e2e/drawing_fixture.h"

#include "standin/help/help_service.h"
#include "standin/registry.h"

#include <QTabBar>
#include <QTextBrowser>

namespace {

struct FirstMinute : DrawingFixture {
    FirstMinute() { enter({"FILEDIA", "1"}); }
    QTextBrowser* page() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == "helpWindow" && window->isVisible())
                return window->findChild<QTextBrowser*>("pageBrowser");
        return nullptr;
    }
};

TEST_F(FirstMinute, TheConsoleGreetsInTwoLines) {
    ASSERT_GE(transcript().size(), 2);
    EXPECT_TRUE(transcript()[0].contains("HELP") && transcript()[0].contains("GUIDE"));
    EXPECT_TRUE(transcript()[1].contains("OPEN") && transcript()[1].contains("QPREF"));
}

TEST_F(FirstMinute, HelpShowsTheCommandsAsAPage) {
    ASSERT_EQ(page(), nullptr);
    enter({"HELP"});
    ASSERT_NE(page(), nullptr);
    EXPECT_EQ(page()->window()->windowTitle(), "Help - Commands");
    const QString text = page()->toPlainText();
    for (const QString& name : bench->commands().names())
        EXPECT_TRUE(text.split('\n').contains(name)) << name.toStdString();
    EXPECT_TRUE(text.contains("UNDO\nU\n")) << "the short names stand beside";
}

TEST_F(FirstMinute, HelpWithANameTellsOfThatCommandAndShowsItsPage) {
    enter({"help  zoom"});
    EXPECT_EQ(lastLine(), "ZOOM (Z): Changes what part of the drawing is shown.");
    EXPECT_EQ(page(), nullptr) << "there is no page of it";
    enter({"HELP g"});
    EXPECT_TRUE(lastLine().startsWith("GROUP (G): "));
    ASSERT_NE(page(), nullptr);
    EXPECT_TRUE(page()->source().fileName().startsWith("IDH_GroupCmd"));
    enter({"HELP nothing"});
    EXPECT_EQ(lastLine(), "Unknown command \"nothing\". HELP lists the commands.");
}

TEST_F(FirstMinute, WordsBehindOtherCommandsAreNotDropped) {
    enter({"DRAWINGS all"});
    EXPECT_EQ(lastLine(), "Unknown command \"DRAWINGS all\". HELP lists the commands.");
}

TEST_F(FirstMinute, TheGuideOpensInTheHelpWindowWithItsPictures) {
    enter({"GUIDE"});
    ASSERT_NE(page(), nullptr);
    EXPECT_TRUE(page()->toPlainText().contains("QPREF"));
    EXPECT_TRUE(page()->source().fileName().endsWith("user-guide.md"));
}

TEST_F(FirstMinute, ShortNamesRunTheirCommands) {
    eraseFirstLine();
    enter({"u"});
    EXPECT_TRUE(transcript().contains("Command: u"));
    EXPECT_TRUE(lastLine().contains("undone", Qt::CaseInsensitive));
    EXPECT_EQ(entities().size(), 4u);
    enter({"?"});
    ASSERT_NE(page(), nullptr);
    EXPECT_EQ(page()->window()->windowTitle(), "Help - Commands");
}

TEST_F(FirstMinute, EnterRepeatsTheCommandOfAShortName) {
    eraseFirstLine();
    eraseFirstLine();
    enter({"U", ""});
    EXPECT_EQ(entities().size(), 4u) << "undone twice";
}

TEST_F(FirstMinute, UndoAndRedoAreGreyWhereThereIsNothing) {
    EXPECT_FALSE(action("Undo")->isEnabled());
    EXPECT_FALSE(action("Redo")->isEnabled());
    eraseFirstLine();
    enter({"DRAWINGS"});
    EXPECT_TRUE(action("Undo")->isEnabled());
    EXPECT_FALSE(action("Redo")->isEnabled());
    enter({"UNDO"});
    EXPECT_FALSE(action("Undo")->isEnabled());
    EXPECT_TRUE(action("Redo")->isEnabled());
    enter({"NEW"});
    EXPECT_FALSE(action("Redo")->isEnabled()) << "this drawing has nothing to do again";
}

TEST_F(FirstMinute, ViewShowsAndHidesTheBarsAndTheConsole) {
    for (const auto& [entry, widget] :
         {std::pair{"ShowToolBar", "toolBar"}, {"showConsoleAction", "transcriptView"}}) {
        ASSERT_TRUE(part<QWidget>(widget)->isVisible()) << widget;
        ASSERT_TRUE(part<QAction>(entry)->isEnabled()) << entry;
        part<QAction>(entry)->trigger();
        EXPECT_FALSE(part<QWidget>(widget)->isVisible()) << widget;
        enter({"DRAWINGS"});
        EXPECT_FALSE(part<QWidget>(widget)->isVisible()) << widget << " after a command";
        EXPECT_TRUE(line().isVisible()) << "the command line is always there";
        part<QAction>(entry)->trigger();
        EXPECT_TRUE(part<QWidget>(widget)->isVisible()) << widget;
    }
}

TEST_F(FirstMinute, TextTypedAtAPromptThatAMenuCancelsIsDropped) {
    play({[this] { submit("SELECT"); },
          [this] {
              type("abc");
              action("Zoom extents")->trigger();
          },
          [this] { EXPECT_EQ(line().text(), ""); }});
    play({[this] { submit("SELECT"); },
          [this] {
              type("abc");
              auto* const tabs = bench->window()->findChild<QTabBar*>("drawingTabs");
              QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
          },
          [this] { EXPECT_EQ(line().text(), "") << "as by another tab"; }});
}

TEST_F(FirstMinute, ALongPromptMakesTheWindowNoWider) {
    int width = 0;
    const int before = bench->window()->width();
    play({[this] { submit("ZOOM"); },
          [&] {
              line().setText(QString(500, 'x'));
              QCoreApplication::processEvents(); // a layout that grows does so here
              width = bench->window()->width();
          }});
    EXPECT_EQ(width, before);
    EXPECT_GE(line().width(), 160);
}

TEST_F(FirstMinute, AnUntouchedEmptyDrawingGivesWayToTheFileThatIsOpened) {
    auto* tabs = bench->window()->findChild<QTabBar*>("drawingTabs");
    enter({"FILEDIA", "0", "CLOSE"}); // back to the empty one of the start
    ASSERT_EQ(tabs->count(), 1);
    enter({"OPEN", qPrintable(path)});
    ASSERT_EQ(tabs->count(), 1);
    EXPECT_EQ(tabs->tabText(0), "lines.dxf");
}

TEST_F(FirstMinute, AnEmptyDrawingThatWasTouchedStays) {
    auto* tabs = bench->window()->findChild<QTabBar*>("drawingTabs");
    enter({"FILEDIA", "0", "CLOSE", "LTSCALE", "3", "OPEN", qPrintable(path)});
    EXPECT_EQ(tabs->count(), 2);
}

TEST_F(FirstMinute, TabsOfEqualNamesShowTheirFolders) {
    auto* tabs = bench->window()->findChild<QTabBar*>("drawingTabs");
    ASSERT_TRUE(QDir(root.path()).mkdir("other"));
    const QString other = root.filePath("other/lines.dxf");
    ASSERT_TRUE(QFile::copy(path, other));
    EXPECT_EQ(tabs->tabText(1), "lines.dxf");
    enter({"FILEDIA", "0", "OPEN", qPrintable(other)});
    EXPECT_EQ(tabs->tabText(1), "lines.dxf in " + root.path());
    EXPECT_EQ(tabs->tabText(2), "lines.dxf in " + root.filePath("other"));
}

TEST_F(FirstMinute, AWishToCloseHoldsForTheCommandThatRunsAndNoLonger) {
    eraseFirstLine();
    play({[this] { submit("SETVAR"); }, [this] { bench->window()->close(); },
          [] { // the question what is to become of the changes
              auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
              ASSERT_NE(box, nullptr);
              box->reject();
          }});
    EXPECT_TRUE(bench->window()->isVisible());
    document().database()->undo();
    document().database()->undo();
    ASSERT_FALSE(document().database()->isModified());
    enter({"DRAWINGS", "DRAWINGS"});
    EXPECT_TRUE(bench->window()->isVisible()) << "the wish was taken back with Cancel";
}

TEST_F(FirstMinute, QuittingShowsTheDrawingThatItAsksAbout) {
    eraseFirstLine();
    const QString changed = document().displayName();
    enter({"NEW"});
    ASSERT_NE(document().displayName(), changed);
    QString shown;
    play({[this] { submit("QUIT"); }, [&] { shown = document().displayName(); }});
    EXPECT_EQ(shown, changed);
}

} // namespace
