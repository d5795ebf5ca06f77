// The window of the workbench: menus, tool bar, drawing area and console.
#pragma once

#include "workbench/settings.h"

#include <QMainWindow>
#include <vector>

class QActionGroup;
class QLabel;
class QMenu;
class QToolBar;

namespace standin {
class CommandLoop;
class Console;
class DocumentManager;
class StyleManager;
} // namespace standin

namespace workbench {

class CanvasPlaceholder;
class ConsolePanel;

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    MainWindow(standin::Console& console, standin::CommandLoop& commandLoop,
               standin::DocumentManager& documentManager, standin::StyleManager& styleManager);
    ~MainWindow() override;
    void apply(const Settings& settings);
    ConsolePanel* console() const { return consolePanel; }

signals:
    void themeChosen(int theme);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void build();
    void buildMenus();
    void buildThemeMenu();
    void buildToolBar();
    void connectSignals();
    QAction* commandAction(const QString& text, const QString& command, const QString& icon = {});
    void runCommand(const QString& command);
    void showIcons();
    void showDrawing();
    void fillDrawingsMenu();
    void checkTheme();

    standin::Console& io;
    standin::CommandLoop& loop;
    standin::DocumentManager& documents;
    standin::StyleManager& styles;
    CanvasPlaceholder* canvas = nullptr;
    ConsolePanel* consolePanel = nullptr;
    QToolBar* toolBar = nullptr;
    QMenu* drawingsMenu = nullptr;
    QActionGroup* themeGroup = nullptr;
    QLabel* drawingLabel = nullptr;
    struct PicturedAction {
        QAction* action;
        QString icon;
    };
    std::vector<PicturedAction> picturedActions; // their icons follow the theme
};

} // namespace workbench
