// Opening and saving large drawings, each beside its floor and its peers in the same run: a scan for the line
// ends of the mapped file, dxflib with callbacks that do nothing, and ezdxf. All work is measured in
// processor time of its own thread or process, so that a busy machine disturbs little.
#include "benchmarks/large_drawing.h"

#include "sdk/db/block_table.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/entity.h"
#include "sdk/db/group.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstring>
#include <ctime>
#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>
#include <fstream>

namespace {

template <class Work> double processorSeconds(Work work) {
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
    };
    const double start = now();
    work();
    return now() - start;
}

void lineScan(const QString& path) {
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const char* at = reinterpret_cast<const char*>(file.map(0, file.size()));
    const char* end = at + file.size();
    std::size_t lines = 0;
    for (; at != end; ++lines)
        at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at))) + 1;
    benchmark::DoNotOptimize(lines);
}

void readWithDxflib(const QString& path) {
    DL_CreationAdapter nothing;
    DL_Dxf().in(path.toStdString(), &nothing);
}

double secondsOfEzdxf(const QString& path) {
    QProcess python;
    python.start("/usr/bin/python3", {"-c",
                                      "import sys, time, ezdxf\nstart = time.process_time()\n"
                                      "ezdxf.readfile(sys.argv[1])\nprint(time.process_time() - start)",
                                      path});
    python.waitForFinished(-1);
    return python.readAllStandardOutput().trimmed().toDouble();
}

// Kilobytes of a line of /proc/self/status.
double memoryLine(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (word == name) {
            double kilobytes = 0;
            status >> kilobytes;
            return kilobytes;
        }
    return 0;
}

constexpr const char* kPeakMode = "--peak-of-opening";

int printPeakOfOpening(const char* path) {
    const double before = memoryLine("VmHWM:");
    const OdDbDatabasePtr database = OdDbDatabase::readFile(OdString(path, CP_UTF8));
    std::printf("%f\n", (memoryLine("VmHWM:") - before) * 1024);
    return 0;
}

// The most memory that opening takes, in bytes, in a process that has done nothing else.
double peakOfOpening(const QString& path) {
    QProcess self;
    self.start("/proc/self/exe", {kPeakMode, path});
    self.waitForFinished(-1);
    return self.readAllStandardOutput().trimmed().toDouble();
}

// Everything takes turns, and of each the fastest turn counts.
void opening(benchmark::State& state, bool withPeers) {
    const LargeDrawing drawing(static_cast<int>(state.range(0)));
    double ours = 1e9, scan = 1e9, dxflib = 1e9;
    for ([[maybe_unused]] const auto round : state) {
        const double seconds =
            processorSeconds([&] { OdDbDatabase::readFile(drawing.path().toStdWString()); });
        ours = std::min(ours, seconds);
        state.SetIterationTime(seconds);
        scan = std::min(scan, processorSeconds([&] { lineScan(drawing.path()); }));
        if (withPeers)
            dxflib = std::min(dxflib, processorSeconds([&] { readWithDxflib(drawing.path()); }));
    }
    const double megabytes = drawing.size() / 1e6;
    state.counters["MB"] = megabytes;
    state.counters["MB/s"] = megabytes / ours;
    state.counters["line_scans"] = ours / scan;
    state.counters["memory/file"] = peakOfOpening(drawing.path()) / drawing.size();
    if (!withPeers)
        return;
    state.counters["dxflib_MB/s"] = megabytes / dxflib;
    state.counters["x_dxflib"] = dxflib / ours;
    state.counters["x_ezdxf"] = secondsOfEzdxf(drawing.path()) / ours;
}

void openBesidePeers(benchmark::State& state) { opening(state, true); }
void open(benchmark::State& state) { opening(state, false); }

// Every entity of model space opened once, in a drawing that was read before.
void visitEveryEntity(benchmark::State& state) {
    const LargeDrawing drawing(static_cast<int>(state.range(0)));
    const OdDbDatabasePtr database = OdDbDatabase::readFile(drawing.path().toStdWString());
    const auto space = odrxCast<OdDbBlockTableRecord>(database->getModelSpaceId().safeOpenObject());
    for ([[maybe_unused]] const auto round : state)
        for (OdDbObjectIterator it = space->newIterator(); !it.done(); it.step())
            benchmark::DoNotOptimize(it.entity().get());
    state.SetBytesProcessed(static_cast<std::int64_t>(drawing.size()) * state.iterations());
}

void save(benchmark::State& state, bool changed) {
    const LargeDrawing drawing(static_cast<int>(state.range(0)));
    QTemporaryDir folder;
    const OdString target = folder.filePath("saved.dxf").toStdWString();
    const OdDbDatabasePtr database = OdDbDatabase::readFile(drawing.path().toStdWString());
    const auto groups = odrxCast<OdDbDictionary>(database->getGroupDictionaryId().safeOpenObject());
    double fastest = 1e9;
    int number = 0;
    for ([[maybe_unused]] const auto round : state) {
        if (changed)
            odrxCast<OdDbGroup>(groups->getAt(L"G7", OdDb::kForWrite))
                ->setDescription(OdString(std::to_wstring(++number)));
        const auto start = std::chrono::steady_clock::now();
        database->writeFile(target);
        const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(seconds.count());
        fastest = std::min(fastest, seconds.count());
    }
    state.counters["MB"] = drawing.size() / 1e6;
    state.counters["MB/s"] = drawing.size() / 1e6 / fastest;
}

void saveUnchanged(benchmark::State& state) { save(state, false); }
void saveWithOneGroupChanged(benchmark::State& state) { save(state, true); }

} // namespace

BENCHMARK(openBesidePeers)->Arg(200000)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(open)
    ->RangeMultiplier(10)
    ->Range(10000, 1000000)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(visitEveryEntity)->Arg(200000)->Unit(benchmark::kMillisecond);
BENCHMARK(saveUnchanged)
    ->Arg(200000)
    ->Arg(1000000)
    ->UseManualTime()
    ->Iterations(8)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(saveWithOneGroupChanged)
    ->Arg(200000)
    ->Arg(1000000)
    ->UseManualTime()
    ->Iterations(8)
    ->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    if (argc == 3 && std::strcmp(argv[1], kPeakMode) == 0)
        return printPeakOfOpening(argv[2]);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
