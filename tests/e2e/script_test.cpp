// The program on its command line: scripts, their exit status, what goes where.
#include "tests/e2e/script_fixture.h"

#include <QDir>
#include <QImage>

namespace {

using ScriptTest = ScriptFixture;

TEST_F(ScriptTest, LinesAnswerTheConsoleInOrder) {
    const Result result = play("SETVAR\nPICKBOX\n9\nPICKBOX\n\n");
    EXPECT_EQ(result.status, 0) << result.err.toStdString();
    EXPECT_EQ(result.out, "Command: SETVAR\nEnter variable name or [?]: PICKBOX\n"
                          "Half height of the pick box, in pixels.\n"
                          "Enter new value for PICKBOX <4>: 9\nCommand: PICKBOX\n"
                          "Half height of the pick box, in pixels.\nEnter new value for PICKBOX <9>: \n");
}

TEST_F(ScriptTest, BlankLineIsEnterAndRepeatsTheCommand) {
    EXPECT_EQ(play("NEW\n\nDRAWINGS\n").out,
              "Command: NEW\nCommand: NEW\nCommand: DRAWINGS\n  Drawing1\n  Drawing2\n* Drawing3\n");
}

TEST_F(ScriptTest, ControlCCancels) {
    const Result result = play("SETVAR\n^C\nDRAWINGS\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.out.contains("Enter variable name or [?]: *Cancel*\nCommand: DRAWINGS\n"));
}

TEST_F(ScriptTest, LinesAfterQuitAreNotTaken) {
    EXPECT_EQ(play("QUIT\n").status, 0);
    EXPECT_EQ(play("QUIT\nNEW\n").status, 1);
}

TEST_F(ScriptTest, ActionThatIsNoneNamesItsLine) {
    const Result result = play("NEW\n@fly away\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.err.contains("test.script:2: \"@fly away\" is no action on a window"));
}

TEST_F(ScriptTest, ActionsClickSetAndPressKeys) {
    const Result result = play("@set commandLine DRAWINGS\n@key Return\n@click Light\n@screenshot light\n"
                               "@click Dark\n@screenshot dark\n");
    EXPECT_EQ(result.status, 0) << result.err.toStdString();
    EXPECT_EQ(result.out, "Command: DRAWINGS\n* Drawing1\n");
    const QImage light(folder.filePath("light.png")), dark(folder.filePath("dark.png"));
    EXPECT_GT(light.pixelColor(300, 12).lightness(), 200);
    EXPECT_LT(dark.pixelColor(300, 12).lightness(), 80);
}

TEST_F(ScriptTest, ScreenshotThatCannotBeWrittenIsAFault) {
    const Result result = play("@screenshot no/such/folder/x\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.err.contains("test.script:1: no/such/folder/x.png can't be written"))
        << result.err.toStdString();
}

TEST_F(ScriptTest, DialogOfACommandIsWorkedThrough) {
    const Result result = play("QPREF\n@wait Preferences\n@key Escape\nDRAWINGS\n");
    EXPECT_EQ(result.status, 0) << result.err.toStdString();
    EXPECT_EQ(result.out, "Command: QPREF\nCommand: DRAWINGS\n* Drawing1\n");
}

TEST_F(ScriptTest, LinesComeFromTheStandardInputWithoutAScript) {
    const Result result = run({"--headless", "--root", folder.filePath("root")}, "DRAWINGS\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "Command: DRAWINGS\n* Drawing1\n");
}

TEST_F(ScriptTest, MissingScriptIsTold) {
    const Result result = run({"--headless", "--root", folder.filePath("root"), "--script", "nowhere"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.err.contains("nowhere: No such file or directory"));
}

TEST_F(ScriptTest, UnknownOptionIsTold) {
    const Result result = run({"--frobnicate"});
    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(result.err.contains("frobnicate"));
}

TEST_F(ScriptTest, ThemeOutsideTheListIsTold) {
    EXPECT_EQ(run({"--theme", "7"}).status, 2);
    EXPECT_EQ(run({"--theme", "dark"}).status, 2);
}

TEST_F(ScriptTest, ThemeOfTheCommandLineIsShown) {
    const Result result =
        run({"--headless", "--root", folder.filePath("root"), "--theme", "1"}, "@screenshot light\n");
    EXPECT_EQ(result.status, 0) << result.err.toStdString();
    EXPECT_GT(QImage(folder.filePath("light.png")).pixelColor(300, 12).lightness(), 200);
}

TEST_F(ScriptTest, ShippedDataComesFromTheFolderOfTheCommandLine) {
    QDir(folder.path()).mkdir("data");
    QFile variables(folder.filePath("data/sysvars.yaml"));
    ASSERT_TRUE(variables.open(QIODevice::WriteOnly));
    variables.write(
        "variables:\n  MINE: {type: int16, scope: application, default: 7, description: \"Mine.\"}\n");
    variables.close();
    const Result result =
        run({"--headless", "--root", folder.filePath("root"), "--data", folder.filePath("data")}, "MINE\n\n");
    EXPECT_TRUE(result.out.contains("Enter new value for MINE <7>: ")) << result.out.toStdString();
    EXPECT_TRUE(result.err.contains("preftree.yaml")) << "what the folder lacks is told";
}

TEST_F(ScriptTest, DemoRunsThroughAndLeavesItsScreenshots) {
    const QString data = QStringLiteral(SHIPPED_DATA_DIR "/");
    const Result result = run({"--headless", "--root", folder.filePath("root"), "--script",
                               data + "demo.script", data + "samples/house.dxf"});
    EXPECT_EQ(result.status, 0) << result.err.toStdString();
    QFile script(data + "demo.script");
    ASSERT_TRUE(script.open(QIODevice::ReadOnly));
    int pictures = 0;
    for (const QByteArray& line : script.readAll().split('\n'))
        if (line.startsWith("@screenshot ")) {
            ++pictures;
            EXPECT_FALSE(QImage(folder.filePath(line.mid(12) + ".png")).isNull()) << line.constData();
        }
    EXPECT_GT(pictures, 10);
}

TEST_F(ScriptTest, ScriptOfTheGuideMakesThePicturesThatItShows) {
    const QDir home(folder.path()), samples(QStringLiteral(SHIPPED_DATA_DIR "/samples"));
    ASSERT_TRUE(home.mkdir("drawings"));
    for (const QString& name : samples.entryList({"*.dxf"}))
        ASSERT_TRUE(QFile::copy(samples.filePath(name), home.filePath("drawings/" + name)));
    QFile script(QStringLiteral(SHIPPED_DOCS_DIR "/pictures.script"));
    ASSERT_TRUE(script.open(QIODevice::ReadOnly));
    const Result result = play(script.readAll().replace("/home/user", home.path().toLocal8Bit()));
    EXPECT_EQ(result.status, 0) << result.err.toStdString();
    const QDir shown(QStringLiteral(SHIPPED_DOCS_DIR "/images"));
    QStringList pictures = shown.entryList({"*.png"});
    EXPECT_TRUE(pictures.removeOne("start-dark.png")) << "only the start without a script shows its page";
    EXPECT_EQ(home.entryList({"*.png"}), pictures);
    for (const QString& name : home.entryList({"*.png"})) {
        const QImage made(home.filePath(name));
        EXPECT_FALSE(made.isNull()) << name.toStdString();
        if (name.startsWith("xattach-"))
            continue; // this dialog is as large as the letters of the machine make it
        EXPECT_EQ(made.size(), QImage(shown.filePath(name)).size()) << name.toStdString();
    }
}

TEST_F(ScriptTest, HelpIsPrinted) {
    const Result result = run({"--help"});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.out.contains("--script"));
}

TEST_F(ScriptTest, DrawingThatCannotBeOpenedIsTold) {
    const Result result =
        run({"--headless", "--root", folder.filePath("root"), folder.filePath("missing.dxf")}, "DRAWINGS\n");
    EXPECT_TRUE(result.err.contains("missing.dxf")) << result.err.toStdString();
    EXPECT_TRUE(result.out.endsWith("Command: DRAWINGS\nNo drawing is open.\n"));
}

} // namespace
