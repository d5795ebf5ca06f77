// Runs one input operation of a console with answers given in advance. A prompt that finds no answer waits in
// an event loop; the driver then presses Escape, so that a test never hangs.
#pragma once

#include "standin/console/console.h"

#include <QTimer>

class ConsoleDriver {
public:
    ConsoleDriver() {
        QObject::connect(&watchdog, &QTimer::timeout, &console, [this] {
            if (!console.isWaiting())
                return;
            ++unanswered;
            console.escape();
        });
        watchdog.start(20);
    }
    void type(std::initializer_list<const char*> lines) {
        for (const char* line : lines)
            console.enterLine(QString::fromUtf8(line));
    }
    QString lastLine() const {
        return console.transcript().isEmpty() ? QString() : console.transcript().last();
    }

    standin::Console console;
    int unanswered = 0; // prompts that had to be cancelled

private:
    QTimer watchdog;
};
