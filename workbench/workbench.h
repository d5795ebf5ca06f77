// The workbench as a whole: the host's pieces put together, the plug-in loaded, the window.
#pragma once

#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/documents/document_manager.h"
#include "standin/params/store_io.h"
#include "standin/themes/style_manager.h"
#include "standin/translation/translation.h"
#include "workbench/command_line.h"
#include "workbench/commands/file_questions.h"
#include "workbench/settings.h"
#include "workbench/window/problem_box.h"
#include "workbench/window/wheel_guard.h"

#include <QTimer>
#include <memory>

namespace standin {
class Application;
class Events;
class HelpService;
class RootUse;
} // namespace standin

namespace workbench {

class DialogPlaces;
class HistoryKeeper;
class LoadedModule;
class MainWindow;
class PreviewWriter;
class ProgressDialog;
class ScriptPlayer;

// Make it after the application object; it registers itself behind the host's functions until it goes.
class Workbench : public QObject {
    Q_OBJECT
public:
    explicit Workbench(const Launch& launchOptions);
    ~Workbench() override;

    // Shows the window (or nothing, when headless), opens the drawing, and plays the script.
    void start();
    int exitStatus() const; // 0, or 1 when a script was not taken to its end
    // Tells the user of something that went wrong: on the console, and over a modal dialog that hides it.
    void report(const QString& problem);

    standin::Console& console() { return io; }
    standin::CommandLoop& commands() { return loop; }
    ProgressDialog* progress() const { return progressDialog.get(); }
    MainWindow* window() const { return mainWindow.get(); }

private:
    standin::StoreIo storeIo();
    void openStores();
    void provideServices();
    void addCommands();
    void showOnScreen();
    void showStartPage();
    void addAliases();
    void greet();
    void openFirstDrawing();
    void openChosen(const QString& path);
    void play();
    void endScript(const QString& problem);
    void applySettings();
    void applyChangedSettings();
    void chooseTheme(int theme);
    void printTranscript();

    const Launch launch;
    standin::Console io;
    standin::CommandLoop loop{io};
    ProblemBox problemBox; // outlives the stores, which report to their end
    const FileQuestions files;
    standin::StyleManager styles;
    standin::Catalogues catalogues;
    std::unique_ptr<standin::RootUse> rootUse; // as long as there are stores
    std::unique_ptr<standin::Application> application;
    std::unique_ptr<standin::DocumentManager> documents;
    std::unique_ptr<HistoryKeeper> history;
    Ref<standin::HelpService> help;
    Ref<standin::Events> events;
    std::unique_ptr<LoadedModule> module;
    std::unique_ptr<MainWindow> mainWindow;
    std::unique_ptr<PreviewWriter> previews;
    std::unique_ptr<ProgressDialog> progressDialog; // null when headless
    std::unique_ptr<DialogPlaces> dialogPlaces;     // likewise
    WheelGuard wheelGuard;
    std::unique_ptr<ScriptPlayer> player;
    QTimer settingsCheck; // runs while a command does
    Settings appliedSettings;
    bool scriptPlays = false;
    bool scriptFailed = false;
};

} // namespace workbench
