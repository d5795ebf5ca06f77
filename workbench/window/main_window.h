// The window of the workbench: menus, tool bar, drawing area and console.
#pragma once

#include "workbench/commands/menu_entry.h"
#include "workbench/settings.h"

#include <QMainWindow>
#include <map>
#include <vector>

class QActionGroup;
class QLabel;
class QMenu;
class QToolBar;

namespace standin {
class CommandLoop;
class Console;
class Document;
class DocumentManager;
class StyleManager;
} // namespace standin

namespace workbench {

class Canvas;
class ConsolePanel;
class DrawingTabs;

class MainWindow : public QMainWindow, public MenuSink {
    Q_OBJECT
public:
    MainWindow(standin::Console& console, standin::CommandLoop& commandLoop,
               standin::DocumentManager& documentManager, standin::StyleManager& styleManager);
    ~MainWindow() override;
    void apply(const Settings& settings);
    void addEntry(const MenuEntry& entry) override;
    ConsolePanel* console() const { return consolePanel; }
    Canvas& drawingArea() const { return *canvas; }
    // Until the first command. `recent` and `samples`: paths of drawings.
    void showStartPage(const QStringList& recent, const QStringList& samples);

signals:
    void themeChosen(int theme);
    void drawingChosen(const QString& path);                 // on the start page
    void partSwitched(const QByteArray& option, bool shown); // "ShowToolBar", "ShowStatusBar"

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void build();
    void buildMenus();
    void buildThemeEntries();
    void buildToolBar();
    void connectSignals();
    QAction* actionFor(const MenuEntry& entry);
    void runCommand(const QString& command);
    void showIcons();
    void showDrawing();
    void showWhatCanBeUndone();
    void cancelPrompt();
    void closeAfterCommand();
    void buildPartEntries();
    // A prompt that is open is cancelled first.
    void switchTo(standin::Document* document);
    QWidget* buildDrawingArea();
    void showCursorPlace(const QPointF& point);
    void fillDrawingsMenu();
    void checkTheme();

    standin::Console& io;
    standin::CommandLoop& loop;
    standin::DocumentManager& documents;
    standin::StyleManager& styles;
    Canvas* canvas = nullptr;
    DrawingTabs* tabs = nullptr;
    ConsolePanel* consolePanel = nullptr;
    QToolBar* toolBar = nullptr;
    std::map<Menu, QMenu*> menus;
    QActionGroup* themeGroup = nullptr;
    QLabel* drawingLabel = nullptr;
    QLabel* cursorLabel = nullptr;
    struct PicturedAction {
        QAction* action;
        QString icon;
    };
    std::vector<PicturedAction> picturedActions; // their icons follow the theme
};

} // namespace workbench
