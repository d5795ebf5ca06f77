#include "workbench/workbench.h"

#include "host/app.h"
#include "host/options_parent.h"
#include "host/typed_reads.h"
#include "standin/console/aliases.h"
#include "standin/console/error_text.h"
#include "standin/console/shown_text.h"
#include "standin/dialogs/dialog_habits.h"
#include "standin/events/events.h"
#include "standin/help/help_service.h"
#include "standin/params/application.h"
#include "standin/params/root_use.h"
#include "standin/qt_application/host_application.h"
#include "standin/references/reference_files.h"
#include "standin/registry.h"
#include "workbench/canvas/canvas.h"
#include "workbench/canvas/preview_writer.h"
#include "workbench/commands/canvas_menu.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/drawing_commands.h"
#include "workbench/commands/group_commands.h"
#include "workbench/commands/help_commands.h"
#include "workbench/commands/history_commands.h"
#include "workbench/commands/xref_commands.h"
#include "workbench/history/history_keeper.h"
#include "workbench/module_loader.h"
#include "workbench/recent_drawings.h"
#include "workbench/script/script_player.h"
#include "workbench/window/dialog_places.h"
#include "workbench/window/main_window.h"
#include "workbench/window/progress_dialog.h"
#include "workbench/window/window_place.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QScreen>
#include <cerrno>
#include <cstdio>

using namespace standin;

namespace workbench {

namespace {

const int settingsCheckInterval = 50; // milliseconds

SysVarTable readVariables(const QString& dataDir, Console& console) {
    QStringList problems;
    SysVarTable table = SysVarTable::fromFile(dataDir + QStringLiteral("/sysvars.yaml"), &problems);
    for (const QString& problem : problems)
        console.print(problem);
    return table;
}

// Nothing can be kept below a file, or where no folder can be made.
QString rootProblem(const QString& rootDir) {
    const QFileInfo root(rootDir);
    const QString notKept = Workbench::tr("Nothing that you change can be kept below %1: %2")
                                .arg(QDir::toNativeSeparators(rootDir), QStringLiteral("%1"));
    if (root.exists() && !root.isDir())
        return notKept.arg(Workbench::tr("it is no folder."));
    return QDir().mkpath(rootDir) ? QString() : notKept.arg(qt_error_string(errno));
}

// The main window, which stays; the first of all top-level widgets may be a menu.
class OptionsParent : public CKWUnknownImpl<IOptionsParent> {
public:
    QWidget* optionsParent() override { return registry().mainWindow; }
};

std::vector<Ref<IKWUnknown>> extraServices() {
    std::vector<Ref<IKWUnknown>> services{Ref<OptionsParent>::share(new OptionsParent),
                                          Ref<DialogHabits>::share(new DialogHabits),
                                          Ref<ReferenceFiles>::share(new ReferenceFiles)};
    if (auto* host = qobject_cast<HostApplication*>(QCoreApplication::instance()))
        services.push_back(host->loopExceptions());
    return services;
}

} // namespace

Workbench::Workbench(const Launch& launchOptions)
    : launch(launchOptions), files(io, launch.headless || !launch.scriptFile.isEmpty()) {
    if (launch.headless)
        printTranscript();
    catalogues.load(QCoreApplication::applicationDirPath() + QStringLiteral("/translations"),
                    QLocale().name());
    openStores();
    documents = std::make_unique<DocumentManager>(io, readVariables(launch.dataDir, io));
    documents->variables().keepIn(openChild(appService<IProfile>().get(), "SysVars", 1));
    provideServices();
    appliedSettings = readSettings(appService<IProfile>().get());
    styles.setTheme(launch.theme.value_or(appliedSettings.theme));
    QString problem;
    module = std::make_unique<LoadedModule>(launch.moduleFile, &problem);
    if (!problem.isEmpty())
        report(problem);
    history = std::make_unique<HistoryKeeper>(*documents, io, files, launch.rootDir, storeIo());
    mainWindow = std::make_unique<MainWindow>(io, loop, *documents, styles);
    registry().mainWindow = mainWindow.get();
    previews = std::make_unique<PreviewWriter>(*documents, mainWindow->drawingArea());
    if (!launch.headless)
        showOnScreen();
    addCommands();
    applySettings();
}

StoreIo Workbench::storeIo() {
    StoreIo made;
    made.reportProblem = [this](const QString& problem) { report(problem); };
    made.isCalm = [] { return !QApplication::activeModalWidget(); };
    made.takenIn = [this] {
        QMetaObject::invokeMethod(this, &Workbench::applySettings, Qt::QueuedConnection);
    };
    return made;
}

void Workbench::openStores() {
    if (const QString problem = rootProblem(launch.rootDir); !problem.isEmpty())
        report(problem);
    rootUse = std::make_unique<RootUse>(launch.rootDir);
    if (!rootUse->notice().isEmpty())
        io.print(rootUse->notice());
    ApplicationSetup setup;
    setup.dataDir = launch.dataDir;
    setup.rootDir = launch.rootDir;
    setup.io = storeIo();
    setup.remembered = windowPlacePaths();
    setup.remembered.push_back(recentDrawingsPath());
    setup.services = extraServices();
    application = std::make_unique<Application>(setup);
}

// The module goes first: it still finds the host around it.
Workbench::~Workbench() {
    player.reset();
    dialogPlaces.reset();
    progressDialog.reset();
    previews.reset();
    mainWindow.reset();
    module.reset();
    registry().help = nullptr;
    registry().events = nullptr;
    registry().dialogParent = nullptr;
    registry().mainWindow = nullptr;
}

void Workbench::provideServices() {
    help = Ref<HelpService>::share(new HelpService(launch.dataDir + QStringLiteral("/help")));
    events = Ref<Events>::share(new Events([this](const QString& text) { io.print(text); },
                                           [this] { return !launch.headless && !scriptPlays; }));
    registry().help = help.get();
    registry().events = events.get();
    if (auto* host = qobject_cast<HostApplication*>(QCoreApplication::instance()))
        host->report = [this](const QString& problem) { report(problem); };
}

void Workbench::addCommands() {
    const CommandScope scope{io, loop, *documents, styles, files, mainWindow->drawingArea(), *mainWindow};
    addDrawingCommands(scope);
    addHistoryCommands(scope, *history);
    addEditCommands(scope);
    addViewCommands(scope);
    addXrefCommands(scope, *module);
    application->add(attachFilesFor(scope));
    addGroupCommands(scope, *module);
    addCanvasMenu(scope, *module);
    addPlugInEntries(*mainWindow);
    addProgramCommands(scope);
    addHelpCommands(scope, *help, launch.guideFile);
    addAliases();
    addVariableCommands(scope);
    loop.refusal = [this] { return documents->currentOne() ? QString() : tr("No drawing is open."); };
    connect(&loop, &CommandLoop::commandEnded, this, &Workbench::applySettings);
    // What a dialog applies shows while it is still open.
    connect(&loop, &CommandLoop::commandStarted, &settingsCheck,
            [this] { settingsCheck.start(settingsCheckInterval); });
    connect(&loop, &CommandLoop::commandEnded, &settingsCheck, &QTimer::stop);
    connect(&settingsCheck, &QTimer::timeout, this, &Workbench::applyChangedSettings);
    connect(mainWindow.get(), &MainWindow::themeChosen, this, &Workbench::chooseTheme);
    connect(mainWindow.get(), &MainWindow::drawingChosen, this, &Workbench::openChosen);
    connect(mainWindow.get(), &MainWindow::partSwitched, this, [this](const QByteArray& option, bool shown) {
        writeSetting(appService<IProfile>().get(), option.constData(), shown);
        applySettings();
    });
}

// What only a screen asks for. Without one the window has the size that pictures of it are made in.
void Workbench::showOnScreen() {
    const auto remember = [this] {
        if (documents->currentOne())
            addRecentDrawing(appService<IProfile>().get(), documents->currentOne()->path());
    };
    connect(documents.get(), &DocumentManager::documentOpened, this, remember);
    connect(documents.get(), &DocumentManager::documentRenamed, this, remember);
    progressDialog = std::make_unique<ProgressDialog>();
    dialogPlaces = std::make_unique<DialogPlaces>(*mainWindow);
    dialogPlaces->shown = [this] { return mainWindow->drawingArea().placeOfMarks(); };
    connect(&mainWindow->drawingArea(), &Canvas::marksChanged, dialogPlaces.get(),
            &DialogPlaces::keepMarksInSight);
    const QRect area = mainWindow->screen()->availableGeometry();
    mainWindow->setGeometry(placeOver(area, mainWindow->size(), area));
}

void Workbench::addAliases() {
    QStringList problems;
    loop.setAliases(readAliases(launch.dataDir + QStringLiteral("/aliases.yaml"), &problems));
    for (const QString& problem : problems)
        report(problem);
}

// Two lines for who starts the program for the first time.
void Workbench::greet() {
    io.print(
        tr("Welcome. Type a command and press Enter; HELP lists the commands, GUIDE opens the user guide."));
    io.print(tr("OPEN opens a drawing, QPREF the options. Escape cancels, U takes the last change back."));
}

void Workbench::report(const QString& problem) {
    if (launch.headless)
        std::fprintf(stderr, "%s\n", withoutControls(problem).toLocal8Bit().constData());
    io.print(problem);
    if (!launch.headless && !scriptPlays)
        problemBox.show(problem);
}

void Workbench::printTranscript() {
    connect(&io, &Console::linesWritten, this, [](const QStringList& lines) {
        for (const QString& line : lines)
            std::printf("%s\n", line.toLocal8Bit().constData());
        std::fflush(stdout);
    });
}

void Workbench::chooseTheme(int theme) {
    writeSetting(appService<IProfile>().get(), "Theme", theme);
    styles.setTheme(theme);
}

// A theme given on the command line stays until the user chooses one.
void Workbench::applySettings() {
    const Settings settings = readSettings(appService<IProfile>().get());
    if (settings.theme != appliedSettings.theme)
        styles.setTheme(settings.theme);
    appliedSettings = settings;
    mainWindow->apply(appliedSettings);
}

void Workbench::applyChangedSettings() {
    if (!(readSettings(appService<IProfile>().get()) == appliedSettings))
        applySettings();
}

void Workbench::start() {
    if (readSettings(appService<IProfile>().get()).restoreWindow && launch.scriptFile.isEmpty())
        restoreWindowPlace(*mainWindow);
    mainWindow->show();
    if (!launch.headless && launch.scriptFile.isEmpty())
        greet();
    openFirstDrawing();
    if (!launch.headless && launch.scriptFile.isEmpty() && launch.drawing.isEmpty())
        showStartPage();
    if (launch.headless || !launch.scriptFile.isEmpty())
        play();
}

void Workbench::showStartPage() {
    const QDir samples(launch.dataDir + QStringLiteral("/samples"));
    QStringList paths;
    for (const QString& name : samples.entryList({QStringLiteral("*.dxf")}, QDir::Files))
        paths.append(samples.filePath(name));
    mainWindow->showStartPage(recentDrawings(appService<IProfile>().get()), paths);
}

// Samples are opened as copies: what is shipped stays as it is.
void Workbench::openChosen(const QString& path) {
    const QString problem = errorTextOf([&] {
        openInPlaceOfUntouched(*documents, [&] {
            if (path.startsWith(launch.dataDir))
                documents->openCopy(path, QFileInfo(path).completeBaseName());
            else
                documents->openFile(path);
        });
    });
    if (!problem.isNull())
        report(problem);
}

void Workbench::openFirstDrawing() {
    const QString problem = errorTextOf([this] {
        if (launch.drawing.isEmpty())
            return documents->openEmpty();
        return documents->openFile(launch.drawing);
    });
    if (!problem.isNull())
        report(problem);
}

void Workbench::play() {
    QFile file(launch.scriptFile);
    const bool opened =
        launch.scriptFile.isEmpty() ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!opened)
        return endScript(tr("%1: %2").arg(launch.scriptFile, file.errorString()));
    const QString name = launch.scriptFile.isEmpty() ? tr("standard input") : launch.scriptFile;
    player = std::make_unique<ScriptPlayer>(name, QString::fromUtf8(file.readAll()), io, loop);
    connect(player.get(), &ScriptPlayer::finished, this, &Workbench::endScript);
    scriptPlays = true;
    player->start();
}

void Workbench::endScript(const QString& problem) {
    scriptPlays = false;
    scriptFailed = !problem.isEmpty();
    if (scriptFailed)
        report(problem);
    // Later: before the main loop runs there is nothing to leave.
    if (launch.headless)
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

int Workbench::exitStatus() const { return scriptFailed || (player && !player->isAtEnd()) ? 1 : 0; }

} // namespace workbench

#include "moc_workbench.cpp"
