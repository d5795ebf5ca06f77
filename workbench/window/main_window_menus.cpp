// The menus and the tool bar of the main window.
#include "workbench/window/main_window.h"

#include "host/help.h"
#include "standin/documents/document_manager.h"
#include "standin/themes/style_manager.h"

#include <QActionGroup>
#include <QMenuBar>
#include <QToolBar>

using namespace standin;

namespace workbench {

QAction* MainWindow::commandAction(const QString& text, const QString& command, const QString& icon) {
    auto* action = new QAction(text, this);
    action->setObjectName(command.toLower() + QStringLiteral("Action"));
    connect(action, &QAction::triggered, this, [this, command] { runCommand(command); });
    if (!icon.isEmpty())
        picturedActions.push_back({action, icon});
    return action;
}

void MainWindow::buildMenus() {
    QMenu* file = menuBar()->addMenu(tr("&File"));
    QAction* open = commandAction(tr("&New drawing"), QStringLiteral("NEW"), QStringLiteral("template"));
    open->setShortcut(QKeySequence::New);
    file->addAction(open);
    file->addAction(commandAction(tr("&Close drawing"), QStringLiteral("CLOSE")));
    file->addSeparator();
    QAction* quit = commandAction(tr("&Quit"), QStringLiteral("QUIT"));
    quit->setShortcut(QKeySequence::Quit);
    quit->setMenuRole(QAction::QuitRole);
    file->addAction(quit);
    QMenu* tools = menuBar()->addMenu(tr("&Tools"));
    tools->addAction(commandAction(tr("&Options..."), QStringLiteral("QPREF"), QStringLiteral("pref")));
    tools->addAction(commandAction(tr("System &variable"), QStringLiteral("SETVAR")));
    tools->addSeparator();
    tools->addAction(
        commandAction(tr("Drawing &properties..."), QStringLiteral("DWGPROPS"), QStringLiteral("show_msg")));
    buildThemeMenu();
    drawingsMenu = menuBar()->addMenu(tr("&Drawings"));
    QMenu* help = menuBar()->addMenu(tr("&Help"));
    help->addAction(
        commandAction(tr("List of &commands"), QStringLiteral("HELP"), QStringLiteral("command_pref")));
}

void MainWindow::buildThemeMenu() {
    QMenu* view = menuBar()->addMenu(tr("&View"));
    themeGroup = new QActionGroup(this);
    for (const QString& name : {tr("&Dark"), tr("&Light"), tr("As the &system")}) {
        QAction* action = themeGroup->addAction(name);
        action->setCheckable(true);
        view->addAction(action);
    }
    connect(themeGroup, &QActionGroup::triggered, this,
            [this](QAction* chosen) { emit themeChosen(themeGroup->actions().indexOf(chosen)); });
    checkTheme();
}

void MainWindow::buildToolBar() {
    toolBar = addToolBar(tr("Tools"));
    toolBar->setObjectName(QStringLiteral("toolBar"));
    toolBar->setMovable(false);
    toolBar->setIconSize({20, 20});
    for (const PicturedAction& pictured : picturedActions)
        toolBar->addAction(pictured.action);
}

void MainWindow::fillDrawingsMenu() {
    drawingsMenu->clear();
    for (Document* document : documents.all()) {
        QAction* action = drawingsMenu->addAction(document->displayName().replace("&", "&&"));
        action->setCheckable(true);
        action->setChecked(document == documents.currentOne());
        connect(action, &QAction::triggered, this, [this, document] { documents.activate(document); });
    }
    if (drawingsMenu->isEmpty())
        drawingsMenu->addAction(tr("None open"))->setEnabled(false);
}

} // namespace workbench
