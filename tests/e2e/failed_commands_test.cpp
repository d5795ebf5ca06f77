// What is told when something can't be done: scripts that end too early, a root that is no folder, a save
// that fails, and commands without a drawing.
#include "tests/e2e/drawing_fixture.h"

#include "workbench/script/script_player.h"

#include <QDir>
#include <QMessageBox>
#include <QTimer>
#include <csignal>
#include <sys/resource.h>

namespace {

struct FailedCommands : DrawingFixture {
    // The problem that a script of these lines ends with.
    QString play(const QString& text) {
        workbench::ScriptPlayer player("test", text, bench->console(), bench->commands());
        player.setPatience(300);
        QString problem;
        bool finished = false;
        QObject::connect(&player, &workbench::ScriptPlayer::finished, [&](const QString& told) {
            problem = told;
            finished = true;
        });
        player.start();
        EXPECT_TRUE(waitUntil([&] { return finished; }, 20000));
        return problem;
    }
    standin::DocumentManager& documents() {
        return *static_cast<standin::DocumentManager*>(HostDocManager());
    }
    QStringList versions() const {
        QStringList found;
        const QDir history(root.filePath("history"));
        for (const QString& folder : history.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            found += QDir(history.filePath(folder)).entryList(QDir::Files);
        return found;
    }
};

// The limit on the size of files stands for a disk that is full.
class SmallDisk {
public:
    SmallDisk() : formerAction(std::signal(SIGXFSZ, SIG_IGN)) { getrlimit(RLIMIT_FSIZE, &former); }
    ~SmallDisk() {
        setrlimit(RLIMIT_FSIZE, &former);
        std::signal(SIGXFSZ, formerAction);
    }
    void fill() {
        const rlimit none{4096, former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }

private:
    void (*formerAction)(int);
    rlimit former{};
};

TEST_F(FailedCommands, AScriptThatEndsWhileADialogIsOpenCancelsIt) {
    const QStringList ways{"QPREF\n", "DWGPROPS\n@click Summary\n@set titleEdit Changed\n", "GROUP\n",
                           "VERSIONS\n"};
    for (const QString& way : ways) {
        const QString command = way.section('\n', 0, 0);
        const QString problem = play("FILEDIA\n1\n" + way);
        EXPECT_TRUE(problem.startsWith("the script is at its end, but the dialog ")) << problem.toStdString();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << command.toStdString();
        EXPECT_TRUE(bench->commands().isReady() && !bench->commands().isRunning()) << command.toStdString();
    }
    EXPECT_FALSE(document().database()->isModified());
}

TEST_F(FailedCommands, AScriptThatFailsAtAPromptCancelsIt) {
    EXPECT_TRUE(play("SETVAR\n@click nowhere").contains("was not taken"));
    EXPECT_FALSE(bench->commands().isRunning());
    EXPECT_TRUE(transcript().last().contains("*Cancel*")) << transcript().last().toStdString();
}

TEST_F(FailedCommands, AScriptMayEndAtAPromptThatTheUserAnswers) {
    workbench::ScriptPlayer player("test", "SETVAR", bench->console(), bench->commands());
    QString problem = "none was emitted";
    bool wasRunning = false;
    // The prompt waits within the script's step, so its user answers from there.
    QObject::connect(&player, &workbench::ScriptPlayer::finished, &player, [&](const QString& emitted) {
        problem = emitted;
        wasRunning = bench->commands().isRunning();
        QTimer::singleShot(0, &player, [&] { bench->console().escape(); });
    });
    player.start();
    EXPECT_TRUE(waitUntil([&] { return wasRunning && !bench->commands().isRunning(); }, 20000));
    EXPECT_EQ(problem, "");
}

TEST_F(FailedCommands, CommandsOfThePlugInSayThatNoDrawingIsOpen) {
    enter({"CLOSE", "CLOSE"}); // this drawing, and the empty one of the start
    for (const char* command : {"DWGPROPS", "QPREF"}) {
        enter({command});
        EXPECT_EQ(lastLine(), "No drawing is open.") << command;
        EXPECT_EQ(transcript().filter("Null object").size(), 0);
    }
}

TEST_F(FailedCommands, ASaveThatFailsSaysWhyAndLeavesNoVersionBehind) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    file.close();
    for (const bool inBox : {false, true}) {
        enter({"FILEDIA", inBox ? "1" : "0"});
        eraseFirstLine();
        SmallDisk disk;
        const auto filling =
            QObject::connect(&documents(), &standin::DocumentManager::beforeWrite, [&] { disk.fill(); });
        QString shown;
        std::vector<std::function<void()>> steps{[this] { submit("SAVE"); }};
        if (inBox)
            steps.push_back([&shown] {
                auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                ASSERT_TRUE(box);
                shown = box->text();
                box->accept();
            });
        WorkbenchFixture::play(std::move(steps));
        QObject::disconnect(filling);
        EXPECT_EQ(shown.contains(path + ": File too large"), inBox) << shown.toStdString();
        EXPECT_EQ(transcript().filter("SAVE: " + path + ": File too large").size(), inBox ? 2 : 1)
            << transcript().join('\n').toStdString();
        EXPECT_EQ(versions(), QStringList());
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), before) << "the file is as it was";
    EXPECT_TRUE(document().database()->isModified());
    enter({"FILEDIA", "0"});
    enter({"SAVE"});
    EXPECT_EQ(versions().size(), 1) << "a save that goes well keeps one";
}

TEST_F(FailedCommands, TheCursorOnTheCanvasIsTheInputPoint) {
    const QPoint place = pixel(30, 10);
    QMouseEvent move(QEvent::MouseMove, place, canvas().mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&canvas(), &move);
    EXPECT_NEAR(bench->console().inputPoint().x, 30, 1);
    EXPECT_NEAR(bench->console().inputPoint().y, 10, 1);
}

TEST_F(FailedCommands, ListWritesLengthsInTheUnitsOfTheDrawing) {
    enter({"LUNITS", "4"});
    enter({"SELECT", "Last", ""});
    enter({"LIST"});
    EXPECT_EQ(transcript().filter("radius 0'-10\"").size(), 1) << transcript().join('\n').toStdString();
    const auto circle = odrxCast<OdDbCircle>(entities()[3].safeOpenObject(OdDb::kForWrite));
    circle->setRadius(1e300);
    enter({"LIST"});
    EXPECT_EQ(transcript().filter("radius 1.0000E+300").size(), 1) << transcript().join('\n').toStdString();
}

struct RootThatIsAFile : WorkbenchFixture {};

TEST_F(RootThatIsAFile, IsToldAndTheWorkbenchStartsAllTheSame) {
    bench.reset();
    const QString file = root.filePath("taken");
    QFile taken(file);
    ASSERT_TRUE(taken.open(QIODevice::WriteOnly));
    taken.close();
    for (const QString& dir : {file, file + "/below"}) {
        bench = std::make_unique<workbench::Workbench>(launchIn(dir));
        bench->start();
        const QStringList told =
            transcript().filter("Nothing that you change can be kept below " + dir + ": ");
        ASSERT_EQ(told.size(), 1) << transcript().join('\n').toStdString();
        EXPECT_TRUE(told[0].endsWith("it is no folder.") || told[0].endsWith("Not a directory"));
        bench.reset();
    }
}

} // namespace
