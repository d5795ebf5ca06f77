// A user who does what comes to mind: types commands, answers prompts well or badly, works every control of
// the dialogs that open, clicks on the drawing. The same seed does the same on the same program.
#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <deque>
#include <random>
#include <string>

namespace workbench {
class Workbench;
}

class RandomUser {
public:
    RandomUser(workbench::Workbench& workbench, unsigned seed);

    // One thing that a user would do to the window that has the focus: an open menu, a dialog, a prompt, or
    // the console.
    void act();
    // Escape, Cancel and so on until nothing is open and no command runs. False when that is not to be had.
    bool comeToRest();
    bool isAtRest() const;

    int commandsGiven() const { return commands; }
    // The last things done, the latest last, as text for a message.
    std::string lastSteps() const;

private:
    void actOnMenu(QWidget& menu);
    void actOnDialog(QWidget& dialog);
    void actOnControl(QWidget& control);
    void leave(QDialog& dialog);
    void answerPrompt();
    void giveCommand();
    void useMouse();
    void note(const QString& step);
    int below(int bound); // a number from 0 to bound - 1
    QString someText();
    QString someCommand();
    template <class T> const T& oneOf(const std::vector<T>& things) {
        return things[static_cast<std::size_t>(below(static_cast<int>(things.size())))];
    }

    workbench::Workbench& bench;
    std::mt19937 random;
    std::deque<QString> steps;
    int commands = 0;
};
