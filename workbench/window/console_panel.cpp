// Prints what comes, keeps the view at the end, and hands typed lines on.
#include "workbench/window/console_panel.h"

#include "host/tool_tip.h"
#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "workbench/window/console_line.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QVBoxLayout>

using standin::CommandLoop;
using standin::Console;

namespace workbench {

namespace {
const int leastTyped = 160; // pixels for what is typed behind a long prompt
} // namespace

ConsolePanel::ConsolePanel(Console& console, CommandLoop& commandLoop, QWidget* parent)
    : QWidget(parent), io(console), loop(commandLoop) {
    setObjectName(QStringLiteral("consolePanel"));
    build();
    layOut();
    connectSignals();
    showPrompt();
}

ConsolePanel::~ConsolePanel() = default;

void ConsolePanel::build() {
    transcriptView = new QPlainTextEdit(this);
    transcriptView->setObjectName(QStringLiteral("transcriptView"));
    transcriptView->setAccessibleName(tr("Transcript"));
    transcriptView->setReadOnly(true);
    transcriptView->setFocusPolicy(Qt::ClickFocus);
    transcriptView->setFrameShape(QFrame::NoFrame);
    transcriptView->setPlainText(io.transcript().join(QLatin1Char('\n')));
    inputRow = new QWidget(this);
    inputRow->setAutoFillBackground(true);
    inputRow->setBackgroundRole(QPalette::Base);
    promptLabel = new QLabel(inputRow);
    promptLabel->setObjectName(QStringLiteral("promptLabel"));
    promptLabel->setTextFormat(Qt::PlainText);
    promptLabel->setMinimumWidth(1); // a long prompt is cut and never makes the window wider
    promptLabel->setForegroundRole(QPalette::Text);
    commandLine = new ConsoleLine(inputRow);
    commandLine->setAccessibleName(tr("Command line"));
    commandLine->setMinimumWidth(leastTyped);
    commandLine->completions = [this](const QString& beginning) {
        return io.openPrompt() ? QStringList() : loop.completions(beginning);
    };
}

void ConsolePanel::layOut() {
    auto* row = new QHBoxLayout(inputRow);
    row->setContentsMargins(5, 3, 4, 3);
    row->setSpacing(0);
    row->addWidget(promptLabel);
    row->addWidget(commandLine, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(1);
    layout->addWidget(transcriptView, 1);
    layout->addWidget(inputRow);
}

void ConsolePanel::connectSignals() {
    connect(&io, &Console::linesWritten, transcriptView, [this](const QStringList& lines) {
        transcriptView->appendPlainText(lines.join(QLatin1Char('\n')));
        showEnd();
    });
    connect(&io, &Console::promptChanged, this, &ConsolePanel::showPrompt);
    connect(&loop, &CommandLoop::commandStarted, this, &ConsolePanel::showPrompt);
    connect(&loop, &CommandLoop::commandEnded, this, &ConsolePanel::showPrompt);
    connect(commandLine, &ConsoleLine::entered, this, &ConsolePanel::enter);
    connect(commandLine, &ConsoleLine::escaped, &io, &Console::escape);
}

void ConsolePanel::showTranscript(bool on) {
    transcriptView->setVisible(on);
    setMaximumHeight(on ? QWIDGETSIZE_MAX : inputRow->sizeHint().height());
}

void ConsolePanel::enter(const QString& typed) { io.enterLine(typed); }

// The view follows its end by itself only while it is there, which a change of the font may end.
void ConsolePanel::showEnd() {
    QScrollBar* bar = transcriptView->verticalScrollBar();
    bar->setValue(bar->maximum());
}

void ConsolePanel::showPrompt() {
    promptLabel->setText(loop.prompt());
    promptLabel->setToolTip(hostqt::plainToolTip(loop.prompt()));
}

void ConsolePanel::apply(const Settings& settings) {
    QFont font(settings.consoleFont, settings.consoleFontSize);
    font.setStyleHint(QFont::Monospace);
    QPalette colors;
    if (settings.consoleBack.isValid()) {
        colors.setColor(QPalette::Base, settings.consoleBack);
        colors.setColor(QPalette::Text, settings.consoleText);
    }
    for (QWidget* part :
         std::initializer_list<QWidget*>{transcriptView, inputRow, promptLabel, commandLine}) {
        part->setFont(font);
        part->setPalette(colors);
    }
    transcriptView->setMaximumBlockCount(settings.consoleLines);
    showEnd();
    commandLine->setCompletes(settings.completeCommands);
    commandLine->history.setLimit(settings.historyLines);
}

QSize ConsolePanel::sizeHint() const { return {600, 7 * fontMetrics().height()}; }

} // namespace workbench

#include "moc_console_panel.cpp"
