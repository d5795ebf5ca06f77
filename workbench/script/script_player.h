// Plays a script: its lines answer the console one after the other, lines that begin with @ act on the active
// window.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <functional>

namespace standin {
class CommandLoop;
class Console;
} // namespace standin

namespace workbench {

class ScriptPlayer : public QObject {
    Q_OBJECT
public:
    ScriptPlayer(const QString& scriptName, const QString& text, standin::Console& console,
                 const standin::CommandLoop& commandLoop);
    ~ScriptPlayer() override;
    void start();
    // How long a line waits until the console or a window is ready for it.
    void setPatience(int milliseconds) { patience = milliseconds; }
    // How long it rests between two looks at what the program waits for.
    void setPace(int milliseconds) { timer.setInterval(milliseconds); }
    bool isAtEnd() const { return position == lines.size(); } // every line was taken

signals:
    // `problem` is empty when every line was taken; else it names the line and what is wrong with it. Dialogs
    // and prompts that were open have been cancelled by then.
    void finished(const QString& problem);

private:
    enum class Outcome { Taken, NotYet };
    void step();
    Outcome take(const QString& line);
    Outcome act(const QString& line);
    void runAction(const std::function<void()>& action);
    void finish(const QString& problem);
    void cancelOrEnd();
    void cancelOne();
    QString whatIsThere() const;

    QString name;
    QStringList lines;
    standin::Console& io;
    const standin::CommandLoop& loop;
    QTimer timer;
    QElapsedTimer waiting; // since the present line became due
    int position = 0;
    int patience = 10000;
    bool acting = false; // an action was posted and has not begun
    bool ending = false; // what is still open is being cancelled
    QString result;      // told once that is done
    int cancels = 0;
};

} // namespace workbench
