// Waits by polling: a test says what it waits for and is told at once when it holds.
#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>

// Runs the event loop until `condition` holds; false when it does not within `milliseconds`.
template <class Condition> bool waitUntil(Condition condition, int milliseconds = 5000) {
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > milliseconds)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return true;
}
