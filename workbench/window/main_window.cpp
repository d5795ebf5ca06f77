#include "workbench/window/main_window.h"

#include "host/qt_ui_core.h"
#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/documents/document_manager.h"
#include "standin/themes/style_manager.h"
#include "workbench/window/canvas_placeholder.h"
#include "workbench/window/console_line.h"
#include "workbench/window/console_panel.h"
#include "workbench/window/window_place.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QToolBar>

using namespace standin;
using hostui::qt::style::hostQtThemeChangeWatcher;

namespace workbench {

MainWindow::MainWindow(Console& console, CommandLoop& commandLoop, DocumentManager& documentManager,
                       StyleManager& styleManager)
    : io(console), loop(commandLoop), documents(documentManager), styles(styleManager) {
    setObjectName(QStringLiteral("mainWindow"));
    build();
    buildMenus();
    buildToolBar();
    connectSignals();
    showDrawing();
    showIcons();
    resize(1000, 680);
    consolePanel->line()->setFocus();
}

MainWindow::~MainWindow() = default;

void MainWindow::build() {
    canvas = new CanvasPlaceholder(this);
    setCentralWidget(canvas);
    consolePanel = new ConsolePanel(io, loop, this);
    canvas->setFocusProxy(consolePanel->line());
    canvas->setFocusPolicy(Qt::ClickFocus);
    auto* dock = new QDockWidget(tr("Console"), this);
    dock->setObjectName(QStringLiteral("consoleDock"));
    dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    dock->setWidget(consolePanel);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
    drawingLabel = new QLabel(this);
    drawingLabel->setObjectName(QStringLiteral("drawingLabel"));
    statusBar()->addPermanentWidget(drawingLabel);
}

void MainWindow::connectSignals() {
    connect(&documents, &DocumentManager::currentChanged, this, &MainWindow::showDrawing);
    connect(drawingsMenu, &QMenu::aboutToShow, this, &MainWindow::fillDrawingsMenu);
    connect(styles.themeWatcher(), &hostQtThemeChangeWatcher::clicked, this, &MainWindow::showIcons);
    connect(styles.themeWatcher(), &hostQtThemeChangeWatcher::clicked, this, &MainWindow::checkTheme);
}

void MainWindow::apply(const Settings& settings) {
    canvas->apply(settings);
    consolePanel->apply(settings);
    toolBar->setVisible(settings.showToolBar);
    statusBar()->setVisible(settings.showStatusBar);
    showIcons();
}

void MainWindow::showIcons() {
    for (const PicturedAction& pictured : picturedActions)
        pictured.action->setIcon(hostIconResource::get(pictured.icon));
}

void MainWindow::showDrawing() {
    const Document* current = documents.currentOne();
    const QString name = current ? current->displayName() : QString();
    canvas->showDrawing(name);
    drawingLabel->setText(name.isEmpty() ? tr("No drawing") : name);
    setWindowTitle(name.isEmpty() ? tr("Workbench") : tr("%1 - Workbench").arg(name));
}

// What a menu starts takes the place of a command that is waiting for an answer.
void MainWindow::runCommand(const QString& command) {
    io.escape();
    io.enterLine(command);
}

void MainWindow::checkTheme() { themeGroup->actions().at(styles.themeNumber())->setChecked(true); }

// A prompt that is open is cancelled first; the window then closes when its command has ended.
void MainWindow::closeEvent(QCloseEvent* event) {
    if (!loop.isRunning()) {
        saveWindowPlace(*this);
        return event->accept();
    }
    event->ignore();
    connect(&loop, &CommandLoop::commandEnded, this, &QWidget::close,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
    io.escape();
}

} // namespace workbench

#include "moc_main_window.cpp"
