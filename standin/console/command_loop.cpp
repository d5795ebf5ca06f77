// Finds the command that a line names, the workbench's own before those on the command stack, and runs it.
#include "standin/console/command_loop.h"

#include "host/documents.h"
#include "host/text.h"
#include "standin/console/console.h"
#include "standin/console/drawing_state.h"
#include "standin/console/error_text.h"

namespace standin {

namespace {

// Keeps a value for a scope and puts the former one back, also when an exception passes.
template <class T> class Keep {
public:
    Keep(T& variable, T value) : target(variable), former(variable) { target = std::move(value); }
    ~Keep() { target = former; }
    Keep(const Keep&) = delete;
    Keep& operator=(const Keep&) = delete;

private:
    T& target;
    T former;
};

// "_QPREF" and ".QPREF" name the same command as "QPREF".
QString commandName(const QString& line) {
    QString name = line.trimmed().toUpper();
    while (name.startsWith(QLatin1Char('_')) || name.startsWith(QLatin1Char('.')))
        name.remove(0, 1);
    return name;
}

OdEdCommandPtr registeredCommand(const QString& name) {
    return odedRegCmds()->lookupCmd(hostqt::odString(name));
}

void runRegistered(const OdEdCommandPtr& command) {
    const OdSmartPtr<OdEdCommandContext> context(new OdEdCommandContext);
    command->execute(context.get());
}

} // namespace

CommandLoop::CommandLoop(Console& commandConsole, QObject* parent)
    : QObject(parent), console(commandConsole) {
    connect(&console, &Console::inputArrived, this, &CommandLoop::takeLines, Qt::QueuedConnection);
}

CommandLoop::~CommandLoop() = default;

void CommandLoop::add(OwnCommand command) { ownCommands[command.name] = std::move(command); }

QString CommandLoop::descriptionOf(const QString& name) const {
    const auto found = ownCommands.find(commandName(name));
    return found == ownCommands.end() ? QString() : found->second.description;
}

QStringList CommandLoop::names() const {
    QStringList result;
    for (const auto& command : ownCommands)
        result.append(command.first);
    for (const OdString& name : odedRegCmds()->globalNames())
        result.append(hostqt::qString(name).toUpper());
    result.removeDuplicates();
    result.sort();
    return result;
}

QStringList CommandLoop::completions(const QString& beginning) const {
    const QString typed = commandName(beginning);
    QStringList result;
    for (const QString& name : names())
        if (!typed.isEmpty() && name.startsWith(typed))
            result.append(name);
    return result;
}

bool CommandLoop::isReady() const {
    return console.isWaiting() || (!taking && !console.openPrompt() && !console.hasInput());
}

QString CommandLoop::prompt() const {
    if (const OpenPrompt* open = console.openPrompt())
        return open->text;
    return isRunning() ? QString() : tr("Command: ");
}

void CommandLoop::takeLines() {
    if (taking || console.openPrompt())
        return;
    const Keep<bool> guard(taking, true);
    while (console.hasInput()) {
        const ConsoleInput input = console.takeInput();
        if (input.kind == ConsoleInput::Line)
            takeLine(input.text);
    }
}

QString CommandLoop::commandOf(const QString& nameOrAlias) const {
    const QString name = commandName(nameOrAlias);
    const QString command = isKnown(name) ? name : aliases.value(name);
    return isKnown(command) ? command : QString();
}

// An empty line runs the last command again.
void CommandLoop::takeLine(const QString& line) {
    const QString name = commandName(line).isEmpty() ? last : commandName(line);
    console.echo(prompt(), line.trimmed().isEmpty() ? name : line.trimmed());
    if (name.isEmpty())
        return;
    if (const QString command = commandOf(name); !command.isEmpty())
        return runNamed(command);
    bool taken = runOnWords(line.simplified());
    if (!taken && otherwise)
        execute(name, [&] { taken = otherwise(line.trimmed()); });
    if (!taken)
        console.print(tr("Unknown command \"%1\". HELP lists the commands.").arg(line.trimmed()));
}

bool CommandLoop::runOnWords(const QString& line) {
    const QString name = commandOf(line.section(QLatin1Char(' '), 0, 0));
    const auto own = ownCommands.find(name);
    if (own == ownCommands.end() || !own->second.runOn)
        return false;
    last = name;
    execute(name, [&] { own->second.runOn(line.section(QLatin1Char(' '), 1)); });
    return true;
}

bool CommandLoop::isKnown(const QString& name) const {
    return ownCommands.count(name) != 0 || !registeredCommand(name).isNull();
}

void CommandLoop::runNamed(const QString& name) {
    last = name;
    const auto own = ownCommands.find(name);
    if (own != ownCommands.end())
        return execute(name, own->second.run);
    const OdEdCommandPtr command = registeredCommand(name);
    const QString refused = refusal ? refusal() : QString();
    if (!refused.isEmpty())
        return console.print(refused);
    execute(name, [&] { runRegistered(command); });
}

// An exception ends the command; the context and what else it may have left behind is taken away.
void CommandLoop::execute(const QString& name, const std::function<void()>& body) {
    {
        const Keep<QString> guard(runningName, name);
        emit commandStarted(name);
        const DrawingState before;
        const QString problem = errorTextOf(body);
        if (!problem.isNull())
            endFailed(name, problem, before);
    }
    emit commandEnded(name);
}

void CommandLoop::endFailed(const QString& name, const QString& problem, const DrawingState& before) {
    setCtx(nullptr);
    console.print(QStringLiteral("%1: %2").arg(name, problem));
    bool putBack = false;
    const QString further = errorTextOf([&] { putBack = before.putBack(); });
    if (!further.isNull())
        console.print(tr("What %1 had begun can't be taken back: %2").arg(name, further));
    else if (putBack)
        console.print(tr("What %1 had begun is taken back.").arg(name));
}

} // namespace standin

#include "moc_command_loop.cpp"
