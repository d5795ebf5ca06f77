#include "standin/qt_application/loop_exceptions.h"

#include <QThread>

namespace standin {

void LoopExceptions::begin(QEventLoop* loop) {
    loops.push_back({loop, QThread::currentThread()->loopLevel() + 1, nullptr});
}

std::exception_ptr LoopExceptions::end(QEventLoop* loop) {
    std::exception_ptr thrown;
    while (!loops.empty() && !thrown) {
        const Running ended = loops.back();
        loops.pop_back();
        thrown = ended.thrown;
        if (ended.loop == loop)
            break;
    }
    return thrown;
}

bool LoopExceptions::keep(std::exception_ptr thrown) {
    const bool first = !waiting && (loops.empty() || !loops.back().thrown);
    if (first)
        waiting = std::move(thrown);
    return first;
}

bool LoopExceptions::giveTo(int level) {
    if (loops.empty() || loops.back().level != level)
        return false;
    loops.back().thrown = take();
    loops.back().loop->quit();
    return true;
}

} // namespace standin
