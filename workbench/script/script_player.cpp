// Takes the lines of a script whenever the program waits for input, and ends the script on the first that
// fails.
#include "workbench/script/script_player.h"

#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "workbench/script/window_actions.h"

#include <QApplication>
#include <QTextStream>
#include <QWidget>

namespace workbench {

namespace {

const int stepMilliseconds = 10;
const int mostCancels = 500; // then the script ends with what can't be cancelled still open

QStringList linesOf(QString text) {
    QStringList lines;
    for (QTextStream stream(&text); !stream.atEnd();)
        lines.append(stream.readLine());
    return lines;
}

} // namespace

ScriptPlayer::ScriptPlayer(const QString& scriptName, const QString& text, standin::Console& console,
                           const standin::CommandLoop& commandLoop)
    : name(scriptName), lines(linesOf(text)), io(console), loop(commandLoop) {
    timer.setInterval(stepMilliseconds);
    connect(&timer, &QTimer::timeout, this, &ScriptPlayer::step);
}

ScriptPlayer::~ScriptPlayer() = default;

void ScriptPlayer::start() {
    waiting.start();
    timer.start();
}

// Runs from the timer, within whatever loop is the innermost one: that of a dialog, of a prompt, or the main
// one.
void ScriptPlayer::step() {
    if (acting)
        return;
    if (ending)
        return cancelOrEnd();
    if (isAtEnd()) {
        if (loop.isReady() && !QApplication::activeModalWidget())
            finish({});
        else if (waiting.hasExpired(patience))
            finish(tr("the script is at its end, but %1").arg(whatIsThere()));
        return;
    }
    try {
        if (take(lines[position]) == Outcome::Taken) {
            ++position;
            waiting.restart();
        } else if (waiting.hasExpired(patience)) {
            finish(tr("%1:%2: \"%3\" was not taken: %4")
                       .arg(name)
                       .arg(position + 1)
                       .arg(lines[position], whatIsThere()));
        }
    } catch (const ScriptFault& fault) {
        finish(QStringLiteral("%1:%2: %3").arg(name).arg(position + 1).arg(fault.reason));
    }
}

ScriptPlayer::Outcome ScriptPlayer::take(const QString& line) {
    if (line.startsWith(QLatin1Char('@')))
        return act(line);
    if (!loop.isReady() || QApplication::activeModalWidget())
        return Outcome::NotYet;
    if (line == QLatin1String("^C"))
        io.escape();
    else
        io.enterLine(line);
    return Outcome::Taken;
}

ScriptPlayer::Outcome ScriptPlayer::act(const QString& line) {
    if (!loop.isReady() && !QApplication::activeModalWidget())
        return Outcome::NotYet;
    const QString awaited = awaitedWindow(line);
    if (!awaited.isEmpty())
        return isActive(awaited) ? Outcome::Taken : Outcome::NotYet;
    const auto action = windowAction(line);
    if (!action)
        return Outcome::NotYet;
    // Posted, so that the timer goes on when the action opens a dialog.
    acting = true;
    QTimer::singleShot(0, this, [this, action] {
        acting = false;
        runAction(action);
    });
    return Outcome::Taken;
}

// What a command throws passes on to those who run it.
void ScriptPlayer::runAction(const std::function<void()>& action) {
    const int line = position;
    try {
        action();
    } catch (const ScriptFault& fault) {
        finish(QStringLiteral("%1:%2: %3").arg(name).arg(line).arg(fault.reason));
    }
}

QString ScriptPlayer::whatIsThere() const {
    if (const QWidget* dialog = QApplication::activeModalWidget())
        return tr("the dialog %1 is open").arg(QString::fromLatin1(dialog->metaObject()->className()));
    if (loop.isReady())
        return tr("the active window has no such part");
    return tr("the command takes no input");
}

void ScriptPlayer::finish(const QString& problem) {
    result = problem;
    ending = true;
}

// What a script that ends with a problem leaves open is cancelled, as its user would do it, one dialog or
// prompt at a time. A prompt that is open after the last line is none.
void ScriptPlayer::cancelOrEnd() {
    const bool isOpen =
        QApplication::activePopupWidget() || QApplication::activeModalWidget() || loop.isRunning();
    if (isOpen && !result.isEmpty() && ++cancels <= mostCancels)
        return cancelOne();
    timer.stop();
    emit finished(result);
}

// Posted, as every action: a dialog that is cancelled may ask something in another one.
void ScriptPlayer::cancelOne() {
    acting = true;
    QTimer::singleShot(0, this, [this] {
        acting = false;
        if (!cancelTopmost() && loop.isReady())
            io.escape();
    });
}

} // namespace workbench

#include "moc_script_player.cpp"
