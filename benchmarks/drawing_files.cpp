// Opening and saving a large drawing, beside the floor: finding the line ends of the same bytes.
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/database.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cstring>
#include <map>

namespace {

std::string entityText(int number) {
    const std::string x = std::to_string(number % 1000 * 10.123456789);
    const std::string y = std::to_string(number / 1000 * 7.987654321);
    char handle[20];
    std::snprintf(handle, sizeof handle, "%X", 0x1000 + number);
    return std::string("  0\nLINE\n  5\n") + handle + "\n330\n1F\n100\nAcDbEntity\n  8\n0\n 62\n" +
           std::to_string(number % 255 + 1) + "\n  6\nContinuous\n100\nAcDbLine\n 10\n" + x + "\n 20\n" + y +
           "\n 30\n0.0\n 11\n" + y + "\n 21\n" + x + "\n 31\n0.0\n";
}

const std::string& largeDrawing(int entities) {
    static std::map<int, std::string> drawings;
    std::string& text = drawings[entities];
    if (!text.empty())
        return text;
    text = OdDbDatabase::createEmpty()->writeBytes();
    const std::string start = "  2\nENTITIES\n";
    std::string body;
    for (int i = 0; i < entities; ++i)
        body += entityText(i);
    return text.insert(text.find(start) + start.size(), body);
}

void setSpeed(benchmark::State& state, std::size_t bytes) {
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes) * state.iterations());
}

void lineScan(benchmark::State& state) {
    const std::string& text = largeDrawing(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] const auto round : state) {
        std::size_t lines = 0;
        const char* end = text.data() + text.size();
        for (const char* at = text.data(); at != end; ++lines)
            at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at))) + 1;
        benchmark::DoNotOptimize(lines);
    }
    setSpeed(state, text.size());
}

void open(benchmark::State& state) {
    const std::string& text = largeDrawing(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] const auto round : state)
        benchmark::DoNotOptimize(OdDbDatabase::readBytes(text));
    setSpeed(state, text.size());
}

void openEveryEntity(benchmark::State& state) {
    const std::string& text = largeDrawing(static_cast<int>(state.range(0)));
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    const auto space = odrxCast<OdDbBlockTableRecord>(database->getModelSpaceId().safeOpenObject());
    for ([[maybe_unused]] const auto round : state)
        for (OdDbObjectIterator it = space->newIterator(); !it.done(); it.step())
            benchmark::DoNotOptimize(it.entity().get());
    setSpeed(state, text.size());
}

void save(benchmark::State& state, bool changed) {
    QTemporaryDir folder;
    const QString path = folder.filePath("large.dxf");
    const std::string& text = largeDrawing(static_cast<int>(state.range(0)));
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    const auto space = odrxCast<OdDbBlockTableRecord>(database->getModelSpaceId().safeOpenObject());
    const OdDbObjectId first = space->entityIds().front();
    int color = 1;
    for ([[maybe_unused]] const auto round : state) {
        if (changed)
            odrxCast<OdDbEntity>(first.safeOpenObject(OdDb::kForWrite))->setColorIndex(color++ % 255 + 1);
        database->writeFile(path.toStdWString());
    }
    setSpeed(state, text.size());
}

void saveUnchanged(benchmark::State& state) { save(state, false); }
void saveChanged(benchmark::State& state) { save(state, true); }

} // namespace

BENCHMARK(lineScan)->Arg(200000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(open)->Arg(200000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(openEveryEntity)->Arg(200000)->Unit(benchmark::kMillisecond);
BENCHMARK(saveUnchanged)->Arg(200000)->Unit(benchmark::kMillisecond);
BENCHMARK(saveChanged)->Arg(200000)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
