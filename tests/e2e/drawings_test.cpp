// Opening, saving and closing drawings, and what is asked before changes are lost.
#include "tests/e2e/drawing_fixture.h"
#include "workbench/window/progress_dialog.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTabBar>

namespace {

const int largeCount = 100000;

struct DrawingsTest : DrawingFixture {
    QString title() { return bench->window()->windowTitle(); }
    int linesIn(const QString& file) {
        const OdDbDatabasePtr read = OdDbDatabase::readFile(hostqt::odString(file));
        return static_cast<int>(
            odrxCast<OdDbBlockTableRecord>(read->getModelSpaceId().safeOpenObject())->entityIds().size());
    }
    QString largeDrawing() {
        const QString large = root.filePath("large.dxf");
        QFile file(large);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("0\nSECTION\n2\nENTITIES\n");
        for (int i = 0; i < largeCount; ++i)
            file.write("0\nPOINT\n8\n0\n10\n1.0\n20\n2.0\n30\n0.0\n");
        file.write("0\nENDSEC\n0\nEOF\n");
        return large;
    }
    static QByteArray bytesOf(const QString& file) {
        QFile stream(file);
        EXPECT_TRUE(stream.open(QIODevice::ReadOnly));
        return stream.readAll();
    }
    // Leaves two objects in the file.
    void changeByAnotherProgram() {
        const OdDbDatabasePtr theirs = OdDbDatabase::readFile(hostqt::odString(path));
        const auto space = odrxCast<OdDbBlockTableRecord>(theirs->getModelSpaceId().safeOpenObject());
        for (const std::size_t number : {std::size_t(1), std::size_t(2)})
            space->entityIds()[number].safeOpenObject(OdDb::kForWrite)->erase();
        theirs->writeFile(hostqt::odString(path));
    }
};

TEST_F(DrawingsTest, ChangesShowAStarUntilTheyAreSaved) {
    EXPECT_EQ(title(), "lines.dxf - Workbench");
    eraseFirstLine();
    enter({"DRAWINGS"});
    EXPECT_EQ(title(), "lines.dxf* - Workbench");
    enter({"SAVE"});
    EXPECT_EQ(title(), "lines.dxf - Workbench");
    EXPECT_EQ(linesIn(path), 3);
}

TEST_F(DrawingsTest, OpenFindsAFileBesideTheCurrentDrawingByItsName) {
    QFile::copy(path, root.filePath("beside.dxf"));
    enter({"OPEN", "beside.dxf"});
    EXPECT_EQ(title(), "beside.dxf - Workbench");
    EXPECT_EQ(QFileInfo(document().path()), QFileInfo(root.filePath("beside.dxf")));
    enter({"OPEN", "\"lines.dxf\""});
    EXPECT_EQ(title(), "lines.dxf - Workbench");
}

TEST_F(DrawingsTest, OpenTellsWhereItLookedForAFileThatIsNowhere) {
    enter({"OPEN", "nowhere.dxf"});
    EXPECT_EQ(transcript().filter("OPEN: " + QDir::current().filePath("nowhere.dxf")).size(), 1);
    EXPECT_EQ(title(), "lines.dxf - Workbench");
}

TEST_F(DrawingsTest, OpenTellsOnceWhatIsNotShown) {
    QFile file(root.filePath("bodies.dxf"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(
        "0\nSECTION\n2\nENTITIES\n0\nBODY\n8\n0\n0\nREGION\n8\n0\n0\nREGION\n8\n0\n0\nLINE\n8\n0\n10\n0\n"
        "20\n0\n11\n1\n21\n1\n0\nENDSEC\n0\nEOF\n");
    file.close();
    enter({"OPEN", "bodies.dxf", "ZOOM", "Extents"});
    EXPECT_EQ(transcript().filter("not shown"), QStringList("3 objects are not shown: 2 REGION, 1 BODY."));
}

TEST_F(DrawingsTest, SaveAsTakesANameAndAsksBeforeItReplaces) {
    eraseFirstLine();
    const QString copy = root.filePath("copy");
    enter({"SAVEAS", qPrintable(copy)});
    EXPECT_EQ(title(), "copy.dxf - Workbench");
    EXPECT_EQ(linesIn(copy + ".dxf"), 3);
    EXPECT_EQ(linesIn(path), 4);
    enter({"SAVEAS", qPrintable(path), "No"});
    EXPECT_EQ(linesIn(path), 4);
    enter({"SAVEAS", qPrintable(path), "Yes"});
    EXPECT_EQ(linesIn(path), 3);
}

TEST_F(DrawingsTest, SaveAsRefusesAFileThatIsOpenInAnotherTab) {
    enter({"NEW", "SAVEAS", qPrintable(path), "Yes"});
    EXPECT_EQ(lastLine(), "SAVEAS: " + path + " is open in another tab: close it first.");
    EXPECT_EQ(linesIn(path), 4);
    EXPECT_EQ(title(), "Drawing2 - Workbench");
}

TEST_F(DrawingsTest, SaveAsksOnTheConsoleBeforeItOverwritesTheWorkOfAnotherProgram) {
    eraseFirstLine();
    changeByAnotherProgram();
    enter({"SAVE", "No"});
    EXPECT_TRUE(transcript().filter("lines.dxf was changed by another program").size() == 1);
    EXPECT_EQ(linesIn(path), 2);
    EXPECT_EQ(title(), "lines.dxf* - Workbench");
    enter({"SAVE", ""});
    EXPECT_EQ(linesIn(path), 2);
    enter({"SAVE", "Yes"});
    EXPECT_EQ(linesIn(path), 3);
    EXPECT_EQ(title(), "lines.dxf - Workbench");
    eraseFirstLine();
    enter({"SAVE"}); // its own work is not another program's
    EXPECT_EQ(linesIn(path), 2);
}

TEST_F(DrawingsTest, SaveAsksWithABoxBeforeItOverwritesTheWorkOfAnotherProgram) {
    enter({"FILEDIA", "1"});
    eraseFirstLine();
    changeByAnotherProgram();
    for (const auto button : {QMessageBox::No, QMessageBox::Yes}) {
        play({[this] { submit("SAVE"); },
              [button] {
                  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                  ASSERT_NE(box, nullptr);
                  EXPECT_EQ(box->objectName(), "overwriteBox");
                  EXPECT_EQ(box->standardButton(box->defaultButton()), QMessageBox::No);
                  box->button(button)->click();
              }});
        EXPECT_EQ(linesIn(path), button == QMessageBox::Yes ? 3 : 2);
        EXPECT_EQ(title(), button == QMessageBox::Yes ? "lines.dxf - Workbench" : "lines.dxf* - Workbench");
    }
}

TEST_F(DrawingsTest, SaveAsUnderTheSameNameAsksTooAndAnotherNameDoesNot) {
    eraseFirstLine();
    changeByAnotherProgram();
    enter({"SAVEAS", "", "No"});
    EXPECT_EQ(linesIn(path), 2);
    enter({"SAVEAS", qPrintable(root.filePath("mine"))});
    EXPECT_EQ(linesIn(root.filePath("mine.dxf")), 3);
    EXPECT_EQ(linesIn(path), 2);
}

TEST_F(DrawingsTest, CloseKeepsADrawingOpenThatWasNotSavedOverTheWorkOfAnotherProgram) {
    eraseFirstLine();
    changeByAnotherProgram();
    enter({"CLOSE", "Yes", "No"});
    EXPECT_EQ(title(), "lines.dxf* - Workbench");
    EXPECT_EQ(linesIn(path), 2);
}

TEST_F(DrawingsTest, CloseAsksForUnsavedChangesOnTheConsole) {
    eraseFirstLine();
    enter({"CLOSE", "Cancel"});
    EXPECT_EQ(title(), "lines.dxf* - Workbench");
    enter({"CLOSE", "No"});
    EXPECT_EQ(title(), "Drawing1 - Workbench");
    EXPECT_EQ(linesIn(path), 4);
    enter({"OPEN", qPrintable(path)});
    eraseFirstLine();
    enter({"CLOSE", ""});
    EXPECT_EQ(linesIn(path), 3);
}

TEST_F(DrawingsTest, CloseAsksForUnsavedChangesWithABox) {
    enter({"FILEDIA", "1"});
    for (const auto button : {QMessageBox::Cancel, QMessageBox::Save, QMessageBox::Discard}) {
        if (title().startsWith("Drawing1"))
            enter({"FILEDIA", "0", "OPEN", qPrintable(path), "FILEDIA", "1"});
        eraseFirstLine();
        const int before = linesIn(path);
        play({[this] { submit("CLOSE"); },
              [button] {
                  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                  ASSERT_NE(box, nullptr);
                  box->button(button)->click();
              }});
        EXPECT_EQ(title().startsWith("lines.dxf"), button == QMessageBox::Cancel);
        EXPECT_EQ(linesIn(path), button == QMessageBox::Save ? before - 1 : before);
        if (button == QMessageBox::Cancel)
            enter({"UNDO"});
    }
}

TEST_F(DrawingsTest, ClosingTheWindowAsksToo) {
    eraseFirstLine();
    play({[this] { bench->window()->close(); }, [this] { submit("Cancel"); }});
    EXPECT_TRUE(bench->window()->isVisible());
    EXPECT_TRUE(transcript().filter("Save changes to lines.dxf?").size() == 1);
    EXPECT_EQ(linesIn(path), 4);
}

TEST_F(DrawingsTest, AnOpenDrawingIsBroughtToTheFront) {
    enter({"NEW"});
    enter({"OPEN", qPrintable(path)});
    EXPECT_EQ(title(), "lines.dxf - Workbench");
    EXPECT_EQ(part<QTabBar>("drawingTabs")->count(), 3);
}

TEST_F(DrawingsTest, TabsSwitchDrawings) {
    auto* tabs = part<QTabBar>("drawingTabs");
    EXPECT_EQ(tabs->tabText(1), "lines.dxf");
    QTest::mouseClick(tabs, Qt::LeftButton, Qt::NoModifier, tabs->tabRect(0).center());
    EXPECT_EQ(title(), "Drawing1 - Workbench");
    play({[this] { submit("SELECT"); },
          [tabs] { QTest::mouseClick(tabs, Qt::LeftButton, Qt::NoModifier, tabs->tabRect(1).center()); }});
    EXPECT_TRUE(waitUntil([this] { return title() == "lines.dxf - Workbench"; }));
}

TEST_F(DrawingsTest, TheCrossOfATabClosesItsDrawing) {
    auto* tabs = part<QTabBar>("drawingTabs");
    qobject_cast<QAbstractButton*>(tabs->tabButton(0, QTabBar::RightSide))->click();
    EXPECT_TRUE(waitUntil([tabs] { return tabs->count() == 1; }));
    EXPECT_EQ(title(), "lines.dxf - Workbench");
    EXPECT_FALSE(tabs->isVisible());
}

TEST_F(DrawingsTest, AFaultNamesFileAndLine) {
    const QString broken = root.filePath("broken.dxf");
    QFile file(broken);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("0\nSECTION\n2\nENTITIES\n0\nLINE\nwrong\n0\n");
    file.close();
    enter({"OPEN", qPrintable(broken)});
    EXPECT_TRUE(lastLine().contains("broken.dxf, line 7")) << lastLine().toStdString();
    EXPECT_EQ(title(), "lines.dxf - Workbench");
    enter({"OPEN", qPrintable(root.filePath("missing.dxf"))});
    EXPECT_TRUE(lastLine().contains("missing.dxf")) << lastLine().toStdString();
}

// Presses Escape in whatever progress is shown as long as it lives.
struct ProgressCanceller {
    ProgressCanceller() {
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] {
            if (auto* dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget())) {
                label = dialog->labelText();
                QTest::keyClick(dialog, Qt::Key_Escape);
            }
        });
        timer.start(0);
    }
    QString label; // of what was cancelled
    QTimer timer;
};

TEST_F(DrawingsTest, ReadingIsShownAndCanBeCancelled) {
    const QString large = largeDrawing();
    bench->progress()->setDelay(0);
    {
        const ProgressCanceller canceller;
        enter({"OPEN", qPrintable(large)});
        EXPECT_EQ(canceller.label, "Reading the drawing...");
    }
    EXPECT_EQ(title(), "lines.dxf - Workbench");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    enter({"OPEN", qPrintable(large)});
    EXPECT_EQ(title(), "large.dxf - Workbench");
}

TEST_F(DrawingsTest, PreparingThePictureIsShownAndCanBeCancelled) {
    const QString large = largeDrawing();
    enter({"OPEN", qPrintable(large)});
    bench->progress()->setDelay(0);
    {
        const ProgressCanceller canceller;
        enter({"REGEN"});
        ASSERT_TRUE(waitUntil([&] { return !canceller.label.isEmpty(); }));
        EXPECT_EQ(canceller.label, "Preparing the picture...");
    }
    EXPECT_EQ(title(), "large.dxf - Workbench");
    const QString notice =
        "Only a part of the drawing is shown, since preparing the picture was cancelled. REGEN "
        "prepares it again.";
    EXPECT_TRUE(waitUntil([&] { return transcript().contains(notice); }));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    bench->progress()->setDelay(100000);
    enter({"SELECT", "All", "", "UNDO"});
    EXPECT_TRUE(lastLine().contains("undo"))
        << "the window takes no commands any more: " << lastLine().toStdString();
    enter({"REGEN"});
    EXPECT_TRUE(waitUntil([&] { return !canvas().listOf(*document().database())->isCancelled(); }));
    EXPECT_EQ(transcript().filter(notice).size(), 1);
}

TEST_F(DrawingsTest, SavingIsShownAndCanBeCancelled) {
    const QString large = largeDrawing();
    enter({"OPEN", qPrintable(large)});
    eraseFirstLine();
    const QByteArray before = bytesOf(large);
    bench->progress()->setDelay(0);
    {
        const ProgressCanceller canceller;
        enter({"SAVE"});
        EXPECT_EQ(canceller.label, "Saving the drawing...");
    }
    EXPECT_EQ(title(), "large.dxf* - Workbench");
    EXPECT_TRUE(bytesOf(large) == before);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    enter({"SAVE"});
    EXPECT_EQ(title(), "large.dxf - Workbench");
    EXPECT_EQ(linesIn(large), largeCount - 1);
}

TEST_F(DrawingsTest, ADrawingGivenAtTheStartIsShown) {
    bench.reset();
    workbench::Launch launch = launchIn(root.path());
    launch.drawing = path;
    bench = std::make_unique<workbench::Workbench>(launch);
    bench->start();
    EXPECT_EQ(title(), "lines.dxf - Workbench");
    EXPECT_TRUE(waitUntil([this] { return canvas().rect().contains(pixel(210, 20)); }));
}

} // namespace
