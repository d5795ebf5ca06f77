// The menus and the tool bar of the main window.
#include "workbench/window/main_window.h"

#include "host/qt_ui_core.h"
#include "standin/documents/document_manager.h"
#include "standin/themes/style_manager.h"
#include "workbench/window/console_panel.h"
#include "workbench/window/drawing_tabs.h"

#include <QActionGroup>
#include <QMenuBar>
#include <QToolBar>

using namespace standin;

namespace workbench {

namespace {

// "newAction", "zoomExtentsAction": a name that tests and scripts find the entry by.
QString actionName(const QString& command) {
    const QStringList lines = command.split(QLatin1Char('\n'));
    return lines.first().toLower() + lines.mid(1).join(QString()) + QStringLiteral("Action");
}

} // namespace

QAction* MainWindow::actionFor(const MenuEntry& entry) {
    auto* action = new QAction(entry.text, this);
    action->setObjectName(actionName(entry.command));
    action->setShortcut(entry.shortcut);
    action->setMenuRole(QAction::NoRole);
    connect(action, &QAction::triggered, this, [this, command = entry.command] { runCommand(command); });
    return action;
}

void MainWindow::addEntry(const MenuEntry& entry) {
    QMenu* menu = menus[entry.menu];
    QAction* action = actionFor(entry);
    QAction* behind = entry.menu == Menu::View ? themeGroup->actions().first() : nullptr;
    if (entry.startsSection && !menu->isEmpty())
        menu->insertSeparator(behind);
    menu->insertAction(behind, action);
    menu->menuAction()->setVisible(true);
    if (entry.icon.isEmpty())
        return;
    picturedActions.push_back({action, entry.icon});
    action->setIcon(hostIconResource::get(entry.icon));
    toolBar->addAction(action);
}

void MainWindow::buildMenus() {
    const std::pair<Menu, QString> titles[] = {
        {Menu::File, tr("&File")},         {Menu::Edit, tr("&Edit")},     {Menu::View, tr("&View")},
        {Menu::Insert, tr("&Insert")},     {Menu::Groups, tr("&Groups")}, {Menu::Tools, tr("&Tools")},
        {Menu::Drawings, tr("&Drawings")}, {Menu::Help, tr("&Help")}};
    for (const auto& [menu, title] : titles) {
        menus[menu] = menuBar()->addMenu(title);
        menus[menu]->menuAction()->setVisible(menu == Menu::Drawings);
    }
    buildThemeEntries();
}

void MainWindow::buildThemeEntries() {
    themeGroup = new QActionGroup(this);
    for (const QString& name : {tr("&Dark"), tr("&Light"), tr("As the &system")}) {
        QAction* action = themeGroup->addAction(name);
        action->setCheckable(true);
        menus[Menu::View]->addAction(action);
    }
    buildPartEntries();
    menus[Menu::View]->menuAction()->setVisible(true);
    connect(themeGroup, &QActionGroup::triggered, this,
            [this](QAction* chosen) { emit themeChosen(themeGroup->actions().indexOf(chosen)); });
    checkTheme();
}

// The bars follow the options of their names, which their entries change.
void MainWindow::buildPartEntries() {
    QMenu* view = menus[Menu::View];
    view->addSeparator();
    QAction* console = view->addAction(tr("&Console")); // all of it but the command line
    console->setObjectName(QStringLiteral("showConsoleAction"));
    console->setCheckable(true);
    console->setChecked(true);
    console->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_9));
    connect(console, &QAction::toggled, consolePanel, &ConsolePanel::showTranscript);
    for (const auto& [key, text] :
         {std::pair{"ShowToolBar", tr("&Tool bar")}, {"ShowStatusBar", tr("Status &bar")}}) {
        QAction* action = view->addAction(text);
        action->setObjectName(QLatin1String(key));
        action->setCheckable(true);
        connect(action, &QAction::triggered, this,
                [this, key = QByteArray(key)](bool shown) { emit partSwitched(key, shown); });
    }
}

void MainWindow::buildToolBar() {
    toolBar = addToolBar(tr("Tools"));
    toolBar->setObjectName(QStringLiteral("toolBar"));
    toolBar->setMovable(false);
    toolBar->setIconSize({20, 20});
}

void MainWindow::fillDrawingsMenu() {
    QMenu* drawingsMenu = menus[Menu::Drawings];
    drawingsMenu->clear();
    for (Document* document : documents.all()) {
        QAction* action = drawingsMenu->addAction(titleOf(*document).replace("&", "&&"));
        action->setCheckable(true);
        action->setChecked(document == documents.currentOne());
        connect(action, &QAction::triggered, this, [this, document] { switchTo(document); });
    }
    if (drawingsMenu->isEmpty())
        drawingsMenu->addAction(tr("None open"))->setEnabled(false);
}

} // namespace workbench
