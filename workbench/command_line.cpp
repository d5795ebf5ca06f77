// Reads the arguments of the program and tells of wrong ones.
#include "workbench/command_line.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QStandardPaths>

namespace workbench {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("CommandLine", text); }

void describe(QCommandLineParser& parser) {
    parser.setApplicationDescription(tr("A small CAD application for the commands of the plug-in."));
    parser.addHelpOption();
    parser.addOptions({{"root", tr("Keep what the user changes below <dir>."), "dir"},
                       {"data", tr("Take the shipped data from <dir>."), "dir"},
                       {"script", tr("Answer the console with the lines of <file>."), "file"},
                       {"headless", tr("Print the transcript, show no window; without a script the lines "
                                       "come from the standard input.")},
                       {"theme", tr("Start with theme <n>: 0 dark, 1 light, 2 the system's."), "n"}});
    parser.addPositionalArgument("drawing", tr("The drawing to open."), "[DRAWING]");
}

} // namespace

Launch defaultLaunch() {
    Launch launch;
    launch.rootDir = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    launch.dataDir = QStringLiteral(WORKBENCH_DATA_DIR);
    launch.moduleFile = QCoreApplication::applicationDirPath() + QStringLiteral("/libhostPortedCommands.so");
    launch.guideFile = QStringLiteral(WORKBENCH_GUIDE_FILE);
    return launch;
}

std::optional<Launch> parseCommandLine(const QStringList& arguments, QString* message, bool* failed) {
    QCommandLineParser parser;
    describe(parser);
    *failed = !parser.parse(arguments) || parser.positionalArguments().size() > 1;
    *message = *failed && !parser.errorText().isEmpty() ? parser.errorText() : parser.helpText();
    if (*failed || parser.isSet("help"))
        return std::nullopt;
    Launch launch = defaultLaunch();
    if (parser.isSet("root"))
        launch.rootDir = parser.value("root");
    if (parser.isSet("data"))
        launch.dataDir = parser.value("data");
    launch.scriptFile = parser.value("script");
    launch.headless = parser.isSet("headless");
    launch.drawing = parser.positionalArguments().value(0);
    if (parser.isSet("theme")) {
        launch.theme = parser.value("theme").toInt();
        *failed = !QStringList({"0", "1", "2"}).contains(parser.value("theme"));
        *message = tr("The theme is one of 0, 1, 2.");
    }
    return *failed ? std::nullopt : std::optional<Launch>(launch);
}

} // namespace workbench
