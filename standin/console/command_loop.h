// Takes the lines that the console has when no command runs, and runs the commands that they name.
#pragma once

#include "sdk/ed/command.h"

#include <QMap>
#include <QObject>
#include <QStringList>
#include <functional>
#include <map>

namespace standin {

class Console;
class DrawingState;

struct OwnCommand {
    QString name; // in capitals
    QString description;
    std::function<void()> run;
    // Takes the words behind the name in its line; without it a line with such words names no command.
    std::function<void(const QString& words)> runOn{};
};

class CommandLoop : public QObject {
    Q_OBJECT
public:
    explicit CommandLoop(Console& commandConsole, QObject* parent = nullptr);
    ~CommandLoop() override;

    // Commands of the application itself; those of modules are on odedRegCmds().
    void add(OwnCommand command);
    // Short names, in capitals, each with its command. The name of a command is never one.
    void setAliases(const QMap<QString, QString>& shortNames) { aliases = shortNames; }
    QStringList aliasesOf(const QString& command) const { return aliases.keys(command); }
    // The command that a name or an alias means, in capitals; empty when it means none.
    QString commandOf(const QString& nameOrAlias) const;
    QString descriptionOf(const QString& name) const;
    QStringList names() const;                               // all of them, sorted
    QStringList completions(const QString& beginning) const; // none for an empty beginning
    // Asked for a line that names no command; true when it was taken.
    std::function<bool(const QString& line)> otherwise;

    // Asked before a command of a module runs: the reason why it can't, or an empty text.
    std::function<QString()> refusal;

    bool isRunning() const { return !runningName.isEmpty(); }
    // The console reads the next line at once: a prompt is open, or no command runs and nothing waits.
    bool isReady() const;
    QString prompt() const; // what the user is asked now; empty while a command asks for nothing
    QString lastCommand() const { return last; }

signals:
    void commandStarted(const QString& name);
    void commandEnded(const QString& name);

private:
    void takeLines();
    void takeLine(const QString& line);
    void runNamed(const QString& name);
    bool runOnWords(const QString& line);
    void execute(const QString& name, const std::function<void()>& body);
    void endFailed(const QString& name, const QString& problem, const DrawingState& before);
    bool isKnown(const QString& name) const;

    Console& console;
    std::map<QString, OwnCommand> ownCommands;
    QMap<QString, QString> aliases;
    QString runningName, last;
    bool taking = false;
};

} // namespace standin
