#include "host/loop_exceptions.h"

#include "host/app.h"

namespace {

// Announces a loop as long as it lives.
class AnnouncedLoop {
public:
    AnnouncedLoop(ILoopExceptions& keeping, QEventLoop& running) : host(&keeping), loop(running) {
        host->begin(&loop);
    }
    ~AnnouncedLoop() {
        if (host)
            host->end(&loop);
    }
    std::exception_ptr end() { return std::exchange(host, nullptr)->end(&loop); }
    AnnouncedLoop(const AnnouncedLoop&) = delete;
    AnnouncedLoop& operator=(const AnnouncedLoop&) = delete;

private:
    ILoopExceptions* host;
    QEventLoop& loop;
};

} // namespace

void runLoop(QEventLoop& loop, QEventLoop::ProcessEventsFlags flags) {
    const auto host = appService<ILoopExceptions>();
    if (!host) {
        loop.exec(flags);
        return;
    }
    AnnouncedLoop announced(*host, loop);
    loop.exec(flags);
    if (const std::exception_ptr thrown = announced.end())
        std::rethrow_exception(thrown);
}
