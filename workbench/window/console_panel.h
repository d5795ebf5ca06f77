// The console as the user sees it: what was printed, the present prompt, and the line to type in.
#pragma once

#include "workbench/settings.h"

#include <QWidget>

class QLabel;
class QPlainTextEdit;

namespace standin {
class CommandLoop;
class Console;
} // namespace standin

namespace workbench {

class ConsoleLine;

class ConsolePanel : public QWidget {
    Q_OBJECT
public:
    ConsolePanel(standin::Console& console, standin::CommandLoop& commandLoop, QWidget* parent);
    ~ConsolePanel() override;
    void apply(const Settings& settings);
    ConsoleLine* line() const { return commandLine; }
    void showTranscript(bool on); // the command line is always there
    QSize sizeHint() const override;

private:
    void build();
    void layOut();
    void connectSignals();
    void showPrompt();
    void showEnd();
    void enter(const QString& typed);

    standin::Console& io;
    standin::CommandLoop& loop;
    QPlainTextEdit* transcriptView = nullptr;
    QWidget* inputRow = nullptr;
    QLabel* promptLabel = nullptr;
    ConsoleLine* commandLine = nullptr;
};

} // namespace workbench
