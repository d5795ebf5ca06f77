// The functions of the system's library that put something onto the disk are defined here once more: those of
// the program go before those of the library, for Qt's calls too.
#include "tests/support/kill_at_call.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

bool counting = false;
int counted = 0;
int deadly = -1;
testing_kills::Moment deadlyMoment = testing_kills::Moment::before;

[[noreturn]] void die() {
    ::kill(getpid(), SIGKILL);
    std::abort();
}

// Whether this is the last call, which a write makes by half. A process that ends before it does so here.
bool isLast() {
    if (!counting || counted++ != deadly)
        return false;
    if (deadlyMoment == testing_kills::Moment::before)
        die();
    return true;
}

long made(long result, bool last) {
    if (last)
        die();
    return result;
}

} // namespace

extern "C" {

ssize_t write(int file, const void* bytes, size_t count) {
    const bool last = isLast();
    return made(syscall(SYS_write, file, bytes, last ? count / 2 : count), last);
}

int rename(const char* from, const char* to) noexcept {
    const bool last = isLast();
    return static_cast<int>(made(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0), last));
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned int flags) noexcept {
    const bool last = isLast();
    return static_cast<int>(made(syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags), last));
}

int link(const char* from, const char* to) noexcept {
    const bool last = isLast();
    return static_cast<int>(made(syscall(SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0), last));
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
    const bool last = isLast();
    return static_cast<int>(made(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags), last));
}

int unlink(const char* path) noexcept {
    const bool last = isLast();
    return static_cast<int>(made(syscall(SYS_unlinkat, AT_FDCWD, path, 0), last));
}

int fsync(int file) {
    const bool last = isLast();
    return static_cast<int>(made(syscall(SYS_fsync, file), last));
}

int fdatasync(int file) {
    const bool last = isLast();
    return static_cast<int>(made(syscall(SYS_fdatasync, file), last));
}

int ftruncate64(int file, off64_t size) noexcept {
    const bool last = isLast();
    return static_cast<int>(made(syscall(SYS_ftruncate, file, size), last));
}

int mkdir(const char* path, mode_t mode) noexcept {
    const bool last = isLast();
    return static_cast<int>(made(syscall(SYS_mkdirat, AT_FDCWD, path, mode), last));
}

} // extern "C"

namespace testing_kills {

namespace {

// What the process left in its end of a pipe, or -1 when it was killed or failed.
int runApart(int call, Moment moment, const std::function<void()>& work, bool& killed) {
    int channel[2];
    if (pipe(channel) != 0)
        return -1;
    const pid_t child = fork();
    if (child == 0) {
        deadly = call;
        deadlyMoment = moment;
        counted = 0;
        counting = true;
        try {
            work();
        } catch (...) {
            _exit(1);
        }
        counting = false;
        _exit(::write(channel[1], &counted, sizeof counted) == sizeof counted ? 0 : 1);
    }
    close(channel[1]);
    int calls = -1;
    if (read(channel[0], &calls, sizeof calls) != sizeof calls)
        calls = -1;
    close(channel[0]);
    int status = 0;
    waitpid(child, &status, 0);
    killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? calls : -1;
}

} // namespace

int callsOf(const std::function<void()>& work) {
    bool killed = false;
    return runApart(-1, Moment::before, work, killed);
}

bool killedAt(int call, Moment moment, const std::function<void()>& work) {
    bool killed = false;
    runApart(call, moment, work, killed);
    return killed;
}

std::string faultOfKills(const std::function<void()>& prepare, const std::function<void()>& work,
                         const std::function<std::string()>& faultAfter, int& places) {
    prepare();
    const int calls = callsOf(work);
    if (calls <= 0)
        return "the work fails, or writes nothing";
    places = 0;
    for (const Moment moment : {Moment::before, Moment::halfway})
        for (int call = 0; call < calls; ++call, ++places) {
            const std::string place = "call " + std::to_string(call) + " of " + std::to_string(calls) +
                                      (moment == Moment::before ? ", before it: " : ", halfway: ");
            prepare();
            if (!killedAt(call, moment, work))
                return place + "the process lived on";
            if (const std::string fault = faultAfter(); !fault.empty())
                return place + fault;
        }
    return "";
}

} // namespace testing_kills
