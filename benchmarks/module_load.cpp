// Loading the module and starting it, beside loading an empty library that links the same Qt. Each figure is
// the first load in a fresh process that already has its application object, as in the host.
#include "benchmarks/timing.h"
#include "host/app.h"
#include "host/unknown.h"
#include "sdk/rx/rx_module.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <dlfcn.h>
#include <stdexcept>
#include <unistd.h>
#include <vector>

namespace {

class App : public CKWUnknownImpl<IAppInterior> {
public:
    App() { AddRef(); }
    const wchar_t* rootDirectory() override { return L""; }
    int applicationMode() override { return 0; }
};

// Runs in the child: nanoseconds from before dlopen to after initApp.
qint64 timeOfLoading(const char* file) {
    App app;
    theOnlyIApp = &app;
    QElapsedTimer timer;
    timer.start();
    void* const library = dlopen(file, RTLD_NOW | RTLD_LOCAL);
    if (!library)
        throw std::runtime_error(dlerror());
    if (void* const create = dlsym(library, "odrxCreateModuleObject"))
        reinterpret_cast<odrxCreateModuleObjectFunction>(create)(nullptr, L"module")->initApp();
    return timer.nsecsElapsed();
}

double secondsInFreshProcess(const char* file) {
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--load"), QString::fromLocal8Bit(file)});
    if (!child.waitForFinished() || child.exitCode() != 0)
        throw std::runtime_error("the loading process failed");
    return child.readAllStandardOutput().toLongLong() * 1e-9;
}

// "over_ms" is what the module takes beyond the empty library, to stay below 2.
void loadAndStart(benchmark::State& state) {
    std::vector<double> empty, module;
    for (auto _ : state) {
        empty.push_back(secondsInFreshProcess(EMPTY_LIBRARY_FILE));
        module.push_back(secondsInFreshProcess(MODULE_FILE));
        state.SetIterationTime(module.back());
    }
    const double emptyMs = timing::median(empty) * 1e3, moduleMs = timing::median(module) * 1e3;
    state.counters["empty_ms"] = emptyMs;
    state.counters["over_ms"] = moduleMs - emptyMs;
}

BENCHMARK(loadAndStart)->UseManualTime()->Iterations(40)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--load") {
        std::printf("%lld\n", static_cast<long long>(timeOfLoading(argv[2])));
        std::fflush(stdout);
        _exit(0);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
