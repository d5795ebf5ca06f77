// Plug-ins that can't be taken: told with the reason and left out, and the workbench goes on without them.
#include "tests/e2e/workbench_fixture.h"

#include "sdk/ed/command.h"

namespace {

struct BadPlugIn {
    const char* file;
    const char* reason;
};

std::ostream& operator<<(std::ostream& stream, const BadPlugIn& plugIn) { return stream << plugIn.file; }

struct BadPlugInTest : WorkbenchFixture, testing::WithParamInterface<BadPlugIn> {
    BadPlugInTest() {
        bench.reset();
        workbench::Launch launch = launchIn(root.path());
        launch.moduleFile = QStringLiteral(PLUG_IN_DIR "/") + GetParam().file;
        bench = std::make_unique<workbench::Workbench>(launch);
        bench->start();
        EXPECT_TRUE(waitUntil([this] { return QApplication::activeWindow() == bench->window(); }));
        moduleFile = launch.moduleFile;
    }
    QString moduleFile;
};

TEST_P(BadPlugInTest, IsToldWithTheReasonAndLeftOut) {
    const QString told = QString("The module %1 can't be loaded: ").arg(moduleFile);
    const QStringList lines = transcript().filter(told);
    ASSERT_EQ(lines.size(), 1) << transcript().join('\n').toStdString();
    EXPECT_TRUE(lines[0].contains(GetParam().reason)) << lines[0].toStdString();
    enter({"GROUP"});
    EXPECT_EQ(lastLine(), "The plug-in has no group commands.");
    enter({"QPREF"});
    EXPECT_EQ(lastLine(), "Unknown command \"QPREF\". HELP lists the commands.");
    enter({"DRAWINGS"});
    EXPECT_EQ(lastLine(), "* Drawing1");
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, BadPlugInTest,
    testing::Values(BadPlugIn{"libbad_plug_in_1.so", "it gives no module"},
                    BadPlugIn{"libbad_plug_in_2.so", "no module today"},
                    BadPlugIn{"libbad_plug_in_3.so",
                              "it is made for version 24.9 of the program, which has version 24.8"},
                    BadPlugIn{"libbad_plug_in_4.so", "not in the mood"},
                    BadPlugIn{"libsdk.so", "undefined symbol: odrxGetAPIVersion"},
                    BadPlugIn{"libmissing.so", "cannot open shared object file"}),
    [](const auto& tested) { return "Kind" + std::to_string(tested.index); });

} // namespace
