// Event loops run with and without a host that keeps exceptions out of them.
#include "host/loop_exceptions.h"

#include "host/app.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTimer>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

// Tells its calls, and gives back what it is to give.
class KeepsExceptions : public CKWUnknownImpl<ILoopExceptions> {
public:
    void begin(QEventLoop* loop) override {
        calls << "begin";
        begun = loop;
    }
    std::exception_ptr end(QEventLoop* loop) override {
        calls << (loop == begun ? "end" : "end of another");
        return std::exchange(kept, nullptr);
    }
    QStringList calls;
    QEventLoop* begun = nullptr;
    std::exception_ptr kept;
};

class RunLoop : public testing::Test {
protected:
    RunLoop() { theOnlyIApp = host.get(); }
    ~RunLoop() override { theOnlyIApp = nullptr; }
    // Runs a loop that does this as its first event and then ends.
    template <class Work> void run(Work work) {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&] {
            loop.quit();
            work();
        });
        runLoop(loop);
    }
    Ref<KeepsExceptions> host = Ref<KeepsExceptions>::share(new KeepsExceptions);
};

} // namespace

TEST_F(RunLoop, IsToldToTheHostAtBothEnds) {
    bool hasRun = false;
    run([&] {
        hasRun = true;
        EXPECT_EQ(host->calls, QStringList("begin"));
    });
    EXPECT_TRUE(hasRun);
    EXPECT_EQ(host->calls, QStringList({"begin", "end"}));
}

TEST_F(RunLoop, ThrowsWhatTheHostHasKept) {
    host->kept = std::make_exception_ptr(std::runtime_error("kept"));
    try {
        run([] {});
        FAIL() << "nothing was thrown";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "kept");
    }
    EXPECT_EQ(host->calls, QStringList({"begin", "end"})) << "its end is told once";
}

TEST_F(RunLoop, IsToldToHaveEndedAlsoByAnExceptionThatPassesThroughIt) {
    EXPECT_THROW(run([] { throw std::runtime_error("not kept"); }), std::runtime_error);
    EXPECT_EQ(host->calls, QStringList({"begin", "end"}));
}

TEST_F(RunLoop, RunsWithoutAHostToo) {
    theOnlyIApp = nullptr;
    bool hasRun = false;
    run([&] { hasRun = true; });
    EXPECT_TRUE(hasRun);
    EXPECT_THROW(run([] { throw std::runtime_error("passes"); }), std::runtime_error);
    EXPECT_EQ(host->calls, QStringList());
}
