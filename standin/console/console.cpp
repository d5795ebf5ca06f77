// Input queue, waiting and output of the console.
#include "standin/console/console.h"

#include "host/loop_exceptions.h"
#include "host/text.h"
#include "standin/console/point_text.h"
#include "standin/console/shown_text.h"

namespace standin {

// Opens a prompt for its lifetime, also when an exception passes.
class Console::PromptScope {
public:
    PromptScope(Console& owner, const OpenPrompt& prompt) : console(owner), outerLoop(owner.waitingLoop) {
        console.prompts.append(&prompt);
        console.waitingLoop = nullptr;
    }
    ~PromptScope() {
        console.prompts.removeLast();
        console.waitingLoop = outerLoop;
        emit console.promptChanged();
    }
    void wait() {
        QEventLoop loop;
        console.waitingLoop = &loop;
        emit console.promptChanged();
        runLoop(loop);
        console.waitingLoop = nullptr;
    }
    PromptScope(const PromptScope&) = delete;
    PromptScope& operator=(const PromptScope&) = delete;

private:
    Console& console;
    QEventLoop* outerLoop;
};

Console::Console(QObject* parent) : QObject(parent) {}
Console::~Console() = default;

void Console::put(ConsoleInput input) {
    pending.append(std::move(input));
    if (waitingLoop)
        waitingLoop->quit();
    emit inputArrived();
}

void Console::enterLine(const QString& line) { put({ConsoleInput::Line, line, {}}); }

void Console::pickPoint(const OdGePoint3d& point) { put({ConsoleInput::Point, {}, point}); }

void Console::escape() {
    pending.clear();
    if (openPrompt())
        put({ConsoleInput::Escape, {}, {}});
}

ConsoleInput Console::takeInput() { return pending.takeFirst(); }

// A program that is ending leaves all its loops: the prompt is then cancelled.
ConsoleInput Console::waitForInput(const OpenPrompt& prompt) {
    finishLine();
    PromptScope scope(*this, prompt);
    if (!hasInput())
        scope.wait();
    const ConsoleInput input = hasInput() ? takeInput() : ConsoleInput();
    if (input.kind == ConsoleInput::Escape)
        echo(prompt.text, tr("*Cancel*"));
    else
        echo(prompt.text, input.kind == ConsoleInput::Point ? pointText(input.point) : input.text);
    return input;
}

void Console::echo(const QString& prompt, const QString& answer) {
    finishLine();
    write(prompt + answer + QLatin1Char('\n'));
}

void Console::print(const QString& text) {
    finishLine();
    write(text.endsWith(QLatin1Char('\n')) ? text : text + QLatin1Char('\n'));
}

void Console::printLine(const wchar_t* text) { print(hostqt::qString(text)); }

void Console::printFormatted(const wchar_t* text, ...) { write(hostqt::qString(text)); }

void Console::write(const QString& text) {
    const QStringList parts = (partialLine + withoutControls(text)).split(QLatin1Char('\n'));
    partialLine = parts.last();
    const QStringList whole = parts.mid(0, parts.size() - 1);
    lines.append(whole);
    if (!whole.isEmpty())
        emit linesWritten(whole);
}

void Console::finishLine() {
    if (!partialLine.isEmpty())
        write(QStringLiteral("\n"));
}

} // namespace standin

#include "moc_console.cpp"
