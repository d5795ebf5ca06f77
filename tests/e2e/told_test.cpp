// What a user must see: a store that can't be written while a dialog hides the console, and a second
// workbench on the same folder.
#include "tests/e2e/script_fixture.h"
#include "tests/e2e/workbench_fixture.h"

#include "host/documents.h"
#include "standin/params/profile_file.h"

#include <QAbstractButton>
#include <QDir>
#include <QMessageBox>
#include <QPointer>
#include <QSpinBox>

namespace {

const char* const sharedNotice = "Another workbench is using this folder, too: ";

struct ProblemBoxTest : WorkbenchFixture {
    // A folder takes the place of the profile, so that it can't be written.
    ProblemBoxTest() {
        bench.reset();
        QFile::remove(root.filePath("profile.yaml"));
        QDir(root.path()).mkdir("profile.yaml");
        start();
    }
    template <class T> static T* control(const char* name) {
        QWidget* dialog = QApplication::activeModalWidget();
        return dialog ? dialog->findChild<T*>(QString::fromLatin1(name)) : nullptr;
    }
    static QList<QMessageBox*> boxes() {
        QList<QMessageBox*> found;
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == "problemBox" && widget->isVisible())
                found << qobject_cast<QMessageBox*>(widget);
        return found;
    }
    static QMessageBox* box() { return boxes().value(0); }
    static void set(int fontSize) { control<QSpinBox>("ConsoleFontSize")->setValue(fontSize); }
    static void click(const char* button) { control<QAbstractButton>(button)->click(); }
    // Opens the options, changes one and applies; then what follows, when the box is there.
    void applyAndThen(std::vector<std::function<void()>> steps) {
        steps.insert(steps.begin(), {[this] { submit("QPREF"); },
                                     [] {
                                         set(17);
                                         click("applyButton");
                                     }});
        play(std::move(steps));
    }
    QStringList failures() { return transcript().filter("profile.yaml could not be written: "); }
};

TEST_F(ProblemBoxTest, AFailedWriteIsShownOverTheOptionsAndOnTheConsole) {
    QString text;
    applyAndThen({[&] {
        ASSERT_TRUE(box());
        text = box()->text();
        EXPECT_EQ(QApplication::activeModalWidget(), box());
        EXPECT_EQ(box()->icon(), QMessageBox::Warning);
        EXPECT_EQ(box()->textFormat(), Qt::PlainText);
        ASSERT_TRUE(box()->parentWidget());
        EXPECT_STREQ(box()->parentWidget()->metaObject()->className(), "Preferences");
        EXPECT_TRUE(box()->parentWidget()->isVisible()) << "the dialog goes on below it";
    }});
    ASSERT_GE(failures().size(), 1) << transcript().join('\n').toStdString();
    EXPECT_TRUE(text.startsWith(failures().first())) << text.toStdString();
}

TEST_F(ProblemBoxTest, TheOptionsGoOnWhenTheBoxIsClosed) {
    QPointer<QMessageBox> first;
    applyAndThen({[&] {
                      first = box();
                      ASSERT_TRUE(first);
                      first->button(QMessageBox::Ok)->click();
                  },
                  [&] {
                      EXPECT_STREQ(QApplication::activeModalWidget()->metaObject()->className(),
                                   "Preferences");
                      EXPECT_FALSE(first);
                      set(12);
                      click("applyButton");
                  },
                  [] { EXPECT_EQ(boxes().size(), 1) << "the next failure is shown again"; }});
}

TEST_F(ProblemBoxTest, ProblemsThatComeMeanwhileAreGatheredEachOnce) {
    QString before, after;
    applyAndThen({[&] {
        ASSERT_TRUE(box());
        before = box()->text();
        bench->report("The <b>second</b> problem");
        bench->report("The third problem");
        bench->report("The <b>second</b> problem");
        EXPECT_EQ(boxes().size(), 1);
        after = box()->text();
    }});
    EXPECT_EQ(after, before + "\n\nThe <b>second</b> problem\n\nThe third problem");
    EXPECT_EQ(transcript().filter("second").size(), 2) << "the console has each";
}

TEST_F(ProblemBoxTest, AFailureThatComesWithOkIsOnTheConsoleAndNoBoxIsLeft) {
    play({[this] { submit("QPREF"); },
          [] {
              set(17);
              click("okButton");
          }});
    EXPECT_TRUE(waitUntil([this] { return !failures().isEmpty(); }));
    EXPECT_TRUE(waitUntil([] { return boxes().isEmpty(); }));
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(ProblemBoxTest, ABoxThatIsOpenGoesWithItsDialogAndTheTextStays) {
    QPointer<QMessageBox> shown;
    applyAndThen({[&] {
        shown = box();
        ASSERT_TRUE(shown);
        shown->parentWidget()->findChild<QAbstractButton*>("okButton")->click();
    }});
    EXPECT_TRUE(waitUntil([&] { return !shown; }));
    EXPECT_FALSE(failures().isEmpty());
    EXPECT_FALSE(QApplication::activeModalWidget());
    enter({"DRAWINGS"});
    EXPECT_TRUE(bench->commands().isReady()) << "the workbench takes commands as before";
}

TEST_F(ProblemBoxTest, WithoutADialogTheConsoleSuffices) {
    bench->report("A problem");
    EXPECT_EQ(lastLine(), "A problem");
    EXPECT_TRUE(boxes().isEmpty());
}

// With a window too: the lines of a script are meant for the dialogs that its writer knows.
struct ProblemInAScript : ScriptFixture {
    QByteArray writeScript(const QByteArray& end) {
        QDir(folder.path()).mkpath("root/profile.yaml");
        return "QPREF\n@wait Preferences\n@click applyButton\n@wait Preferences\n@click okButton\n" + end;
    }
};

TEST_F(ProblemInAScript, AHeadlessRunIsNotStoppedByABox) {
    const Result result = play(writeScript("DRAWINGS\n"));
    EXPECT_EQ(result.status, 0) << result.err.toStdString();
    EXPECT_TRUE(result.err.contains("profile.yaml could not be written: ")) << result.err.toStdString();
}

TEST_F(ProblemInAScript, AScriptThatPlaysInAWindowIsNotStoppedByABox) {
    QFile script(folder.filePath("window.script"));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write(writeScript("QUIT\n"));
    script.close();
    const Result result = run({"--root", folder.filePath("root"), "--script", script.fileName()});
    EXPECT_EQ(result.status, 0) << result.err.toStdString();
}

struct SharedRoot : WorkbenchFixture {
    QStringList notices() { return transcript().filter(sharedNotice); }
};

TEST_F(SharedRoot, TheFirstWorkbenchIsToldNothing) { EXPECT_EQ(notices(), QStringList()); }

TEST_F(SharedRoot, AWorkbenchAfterAnotherIsToldNothing) {
    restart();
    EXPECT_EQ(notices(), QStringList());
}

// Another program: it waits on its standard input for the lines of its script, and has its locks meanwhile.
struct SharedWithAProgram : SharedRoot {
    void SetUp() override {
        bench.reset();
        other.start(QStringLiteral(WORKBENCH_FILE), {"--headless", "--root", root.path()});
        ASSERT_TRUE(
            waitUntil([this] { return QFileInfo(root.filePath("workbench-1.lock")).size() > 0; }, 60000));
    }
    void TearDown() override {
        other.kill();
        other.waitForFinished();
    }
    QProcess other;
};

TEST_F(SharedWithAProgram, TheSecondIsToldOnceAndStarts) {
    start();
    EXPECT_EQ(notices(), QStringList(sharedNotice + QDir::toNativeSeparators(root.path())));
    EXPECT_TRUE(bench->window()->isVisible());
    EXPECT_EQ(transcript().filter("NAME.other-1").size(), 1);
    enter({"DRAWINGS"});
    EXPECT_EQ(notices().size(), 1);
}

TEST_F(SharedWithAProgram, AProgramThatWasKilledIsNotTaken) {
    other.kill();
    ASSERT_TRUE(other.waitForFinished());
    ASSERT_TRUE(QFile::exists(root.filePath("workbench-1.lock"))) << "it could not take its lock back";
    start();
    EXPECT_EQ(notices(), QStringList());
}

TEST_F(SharedWithAProgram, AVariableThatBothChangedIsToldWithTheValueOfTheOther) {
    start();
    other.write("GRIPSIZE\n11\n");
    other.closeWriteChannel();
    ASSERT_TRUE(other.waitForFinished(60000));
    ASSERT_EQ(other.exitCode(), 0);
    enter({"GRIPSIZE", "7"});
    EXPECT_TRUE(waitUntil([this] { return transcript().contains("SysVars/GRIPSIZE: 11"); }))
        << transcript().join('\n').toStdString();
    EXPECT_TRUE(QFile::exists(root.filePath("profile.yaml.other-1")));
}

TEST_F(SharedWithAProgram, AVariableThatOnlyTheOtherHasChangedStaysAsTheOtherHasIt) {
    start();
    other.write("PICKBOX\n11\n");
    other.closeWriteChannel();
    ASSERT_TRUE(other.waitForFinished(60000));
    play({[this] { submit("QPREF"); },
          [] {
              QApplication::activeModalWidget()->findChild<QSpinBox*>("ConsoleFontSize")->setValue(17);
              QApplication::activeModalWidget()->findChild<QAbstractButton*>("okButton")->click();
          }});
    const auto variable = [](const wchar_t* name) {
        OdResBufPtr value;
        HostDocManager()->varService()->getVar(name, &value, nullptr, 0);
        return value.isNull() ? -1 : value->getInt16();
    };
    EXPECT_TRUE(waitUntil([&] { return variable(L"PICKBOX") == 11; })) << "it has reached the variables, too";
    restart();
    EXPECT_EQ(variable(L"PICKBOX"), 11);
    EXPECT_FALSE(QFile::exists(root.filePath("profile.yaml.other-1")));
    EXPECT_EQ(transcript().filter("Another program has changed"), QStringList());
}

// Each workbench keeps at its end where its window was; nobody misses the place of the other one.
TEST_F(SharedRoot, PlacesOfWindowsThatBothKeepAreNotTold) {
    const auto closeAt = [this](int width) {
        bench->window()->resize(width, 500);
        bench->window()->close();
        EXPECT_TRUE(standin::openProfile(root.path())->flush());
        bench->window()->show();
    };
    const auto profileText = [this] {
        QFile file(root.filePath("profile.yaml"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    closeAt(700);
    QByteArray text = profileText();
    const int place = text.indexOf("WindowGeometry: \"");
    ASSERT_GE(place, 0);
    text.insert(place + int(sizeof "WindowGeometry: \"") - 1, "Other");
    QFile file(root.filePath("profile.yaml"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    closeAt(800);
    EXPECT_FALSE(profileText().contains("Other")) << "the last one stands";
    EXPECT_EQ(transcript().filter("Another program"), QStringList());
    EXPECT_FALSE(QFile::exists(root.filePath("profile.yaml.other-1")));
}

} // namespace
