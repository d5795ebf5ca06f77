// Builds the main window and keeps its title, icons and menu in step with drawing and theme.
#include "workbench/window/main_window.h"

#include "host/qt_ui_core.h"
#include "sdk/db/database.h"
#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/console/point_text.h"
#include "standin/documents/document_manager.h"
#include "standin/themes/style_manager.h"
#include "workbench/canvas/canvas.h"
#include "workbench/window/console_line.h"
#include "workbench/window/console_panel.h"
#include "workbench/window/drawing_tabs.h"
#include "workbench/window/start_page.h"
#include "workbench/window/window_place.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

using namespace standin;
using hostui::qt::style::hostQtThemeChangeWatcher;

namespace workbench {

MainWindow::MainWindow(Console& console, CommandLoop& commandLoop, DocumentManager& documentManager,
                       StyleManager& styleManager)
    : io(console), loop(commandLoop), documents(documentManager), styles(styleManager) {
    setObjectName(QStringLiteral("mainWindow"));
    build();
    buildToolBar();
    buildMenus();
    connectSignals();
    showDrawing();
    showIcons();
    resize(1160, 800);
    consolePanel->line()->setFocus();
}

MainWindow::~MainWindow() = default;

QWidget* MainWindow::buildDrawingArea() {
    auto* area = new QWidget(this);
    tabs = new DrawingTabs(documents, area);
    canvas = new Canvas(io, loop, documents, area);
    auto* column = new QVBoxLayout(area);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tabs);
    column->addWidget(canvas, 1);
    return area;
}

void MainWindow::build() {
    setCentralWidget(buildDrawingArea());
    consolePanel = new ConsolePanel(io, loop, this);
    canvas->setFocusProxy(consolePanel->line());
    canvas->setFocusPolicy(Qt::ClickFocus);
    auto* dock = new QDockWidget(tr("Console"), this);
    dock->setObjectName(QStringLiteral("consoleDock"));
    dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    dock->setWidget(consolePanel);
    dock->toggleViewAction()->setVisible(false); // the entry of the View menu keeps the command line
    addDockWidget(Qt::BottomDockWidgetArea, dock);
    cursorLabel = new QLabel(this);
    cursorLabel->setObjectName(QStringLiteral("cursorLabel"));
    statusBar()->addWidget(cursorLabel);
    drawingLabel = new QLabel(this);
    drawingLabel->setObjectName(QStringLiteral("drawingLabel"));
    statusBar()->addPermanentWidget(drawingLabel);
}

void MainWindow::connectSignals() {
    connect(&documents, &DocumentManager::currentChanged, this, &MainWindow::showDrawing);
    connect(&documents, &DocumentManager::documentRenamed, this, &MainWindow::showDrawing);
    connect(&documents, &DocumentManager::documentClosed, this, &MainWindow::showDrawing);
    connect(&loop, &CommandLoop::commandEnded, this, &MainWindow::showDrawing);
    connect(tabs, &DrawingTabs::chosen, this, &MainWindow::switchTo);
    connect(tabs, &DrawingTabs::closeWanted, this, [this](Document* document) {
        switchTo(document);
        if (documents.currentOne() == document)
            runCommand(QStringLiteral("CLOSE"));
    });
    connect(canvas, &Canvas::cursorMoved, this, &MainWindow::showCursorPlace);
    connect(canvas, &Canvas::cursorLeft, cursorLabel, &QLabel::clear);
    connect(consolePanel->line(), &ConsoleLine::escaped, canvas, &Canvas::escape);
    connect(menus[Menu::Drawings], &QMenu::aboutToShow, this, &MainWindow::fillDrawingsMenu);
    connect(styles.themeWatcher(), &hostQtThemeChangeWatcher::clicked, this, &MainWindow::showIcons);
    connect(styles.themeWatcher(), &hostQtThemeChangeWatcher::clicked, this, &MainWindow::checkTheme);
}

void MainWindow::showStartPage(const QStringList& recent, const QStringList& samples) {
    auto* page = new StartPage(recent, samples, canvas);
    connect(page, &StartPage::commandChosen, this, &MainWindow::runCommand);
    connect(page, &StartPage::drawingChosen, this, &MainWindow::drawingChosen);
    connect(&loop, &CommandLoop::commandStarted, page, &QWidget::hide);
    connect(&documents, &DocumentManager::currentChanged, page, &QWidget::hide);
    page->show();
}

void MainWindow::apply(const Settings& settings) {
    canvas->apply(settings);
    consolePanel->apply(settings);
    toolBar->setVisible(settings.showToolBar);
    statusBar()->setVisible(settings.showStatusBar);
    findChild<QAction*>(QStringLiteral("ShowToolBar"))->setChecked(settings.showToolBar);
    findChild<QAction*>(QStringLiteral("ShowStatusBar"))->setChecked(settings.showStatusBar);
    showIcons();
}

void MainWindow::showIcons() {
    for (const PicturedAction& pictured : picturedActions)
        pictured.action->setIcon(hostIconResource::get(pictured.icon));
}

void MainWindow::showDrawing() {
    Document* current = documents.currentOne();
    const QString name = current ? titleOf(*current) : QString();
    tabs->showDrawings();
    drawingLabel->setText(name.isEmpty() ? tr("No drawing") : name);
    setWindowTitle(name.isEmpty() ? tr("Workbench") : tr("%1 - Workbench").arg(name));
    showWhatCanBeUndone();
}

void MainWindow::showWhatCanBeUndone() {
    Document* current = documents.currentOne();
    if (auto* undo = findChild<QAction*>(QStringLiteral("undoAction")))
        undo->setEnabled(current && current->database()->hasUndo());
    if (auto* redo = findChild<QAction*>(QStringLiteral("redoAction")))
        redo->setEnabled(current && current->database()->hasRedo());
}

// What was typed for an answer is none for the command that follows.
void MainWindow::cancelPrompt() {
    if (io.isWaiting())
        consolePanel->line()->clear();
    io.escape();
}

// What a menu starts takes the place of a command that is waiting for an answer.
void MainWindow::runCommand(const QString& command) {
    cancelPrompt();
    const QStringList lines = command.split(QLatin1Char('\n'));
    for (const QString& line : documents.currentOne() ? lines : QStringList(lines.first()))
        io.enterLine(line);
}

void MainWindow::switchTo(Document* document) {
    const std::vector<Document*> open = documents.all();
    if (std::find(open.begin(), open.end(), document) == open.end())
        return;
    if (!loop.isRunning())
        return documents.activate(document);
    cancelPrompt();
    QTimer::singleShot(0, this, [this, document] { switchTo(document); });
}

void MainWindow::showCursorPlace(const QPointF& point) {
    cursorLabel->setText(pointText({point.x(), point.y(), 0}));
}

void MainWindow::checkTheme() { themeGroup->actions().at(styles.themeNumber())->setChecked(true); }

// The wish holds for the command that runs now: who answers its questions with Cancel stays.
void MainWindow::closeAfterCommand() {
    auto* wish = new QObject(this);
    connect(&loop, &CommandLoop::commandEnded, wish, [this, wish] {
        wish->deleteLater();
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    });
    cancelPrompt();
}

// A prompt that is open is cancelled first; the window then closes when its command has ended.
void MainWindow::closeEvent(QCloseEvent* event) {
    saveWindowPlace(*this);
    const std::vector<Document*> open = documents.all();
    const bool unsaved = std::any_of(open.begin(), open.end(),
                                     [](Document* document) { return document->database()->isModified(); });
    if (!loop.isRunning() && !unsaved)
        return event->accept();
    event->ignore();
    if (!loop.isRunning())
        return runCommand(QStringLiteral("QUIT")); // asks what is to become of them
    closeAfterCommand();
}

} // namespace workbench

#include "moc_main_window.cpp"
