// Exceptions on their way from the event that threw them to the loop that delivered it.
#pragma once

#include "host/loop_exceptions.h"

#include <vector>

namespace standin {

class LoopExceptions : public CKWUnknownImpl<ILoopExceptions> {
public:
    void begin(QEventLoop* loop) override;
    std::exception_ptr end(QEventLoop* loop) override;

    // Takes what was thrown. False when something waits already: then this one goes no further.
    bool keep(std::exception_ptr thrown);
    bool isWaiting() const { return waiting != nullptr; }
    std::exception_ptr take() { return std::exchange(waiting, nullptr); }
    // Ends the loop at `level` with what waits; false when the loop there is not one that was begun.
    bool giveTo(int level);

private:
    struct Running {
        QEventLoop* loop;
        int level;
        std::exception_ptr thrown;
    };
    std::vector<Running> loops; // the innermost last
    std::exception_ptr waiting;
};

} // namespace standin
