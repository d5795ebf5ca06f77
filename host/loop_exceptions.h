// What a host may supply so that no exception has to cross an event loop, whose code is not made for that:
// the host catches what leaves a slot where it delivers events, and the loop that was running gives it on.
// Reached from theOnlyIApp like every service; without it an exception passes through the loop.
#pragma once

#include "host/ref.h"

#include <QEventLoop>
#include <exception>

class ILoopExceptions : public IKWUnknown {
public:
    // The loop is about to run, as the innermost one. What is thrown while it delivers events ends it.
    virtual void begin(QEventLoop* loop) = 0;
    // The loop has ended: what was thrown in it, or null. Every begin has its end, the innermost loop first.
    virtual std::exception_ptr end(QEventLoop* loop) = 0;
};

// Runs the loop. What leaves a slot while it runs ends it and is thrown again from here.
void runLoop(QEventLoop& loop, QEventLoop::ProcessEventsFlags flags = QEventLoop::AllEvents);
