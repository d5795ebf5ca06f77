// Apply into stores in memory, by the row: the whole of it, beside the bare writes of the same values.
#include "options/preferences.h"
#include "tests/options/option_tree_writer.h"
#include "tests/support/fixture_host.h"
#include "tests/support/test_application.h"

#include <benchmark/benchmark.h>
#include <string>

namespace {

// Rows in groups of twenty, of the kinds that are written most.
void fillTree(IParam& config, int rows) {
    const wchar_t* const kinds[] = {L"Check", L"EditInt", L"EditReal", L"Edit", L"EditDir"};
    const OptionTreeWriter tree(Ref<IParam>::take(config.openSection("PrefTree", 1)));
    for (int i = 0; i < rows; ++i) {
        const OptionTreeWriter group = tree.node(("Group" + std::to_string(i / 20)).c_str());
        const std::string name = "Option" + std::to_string(i);
        group.set("Section", "Values").set("IFace", "IProfile");
        group.node(name.c_str()).type(kinds[i % 5]).set("Key", name.c_str());
    }
}

void applyRows(benchmark::State& state) {
    const int rows = static_cast<int>(state.range(0));
    FixtureHost host;
    fillTree(host.config(), rows);
    Preferences preferences(nullptr);
    for (auto _ : state)
        preferences.applyChanges();
    state.counters["per_row"] =
        benchmark::Counter(rows, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// The floor: one opened section and one value for each row, with nothing to find out.
void bareWrites(benchmark::State& state) {
    const int rows = static_cast<int>(state.range(0));
    FixtureHost host;
    CKWVariant value;
    value = 1;
    for (auto _ : state)
        for (int i = 0; i < rows; ++i)
            Ref<IParam>::take(host.profile().openSection("Values", 1))
                ->setValue(("Option" + std::to_string(i)).c_str(), &value);
    state.counters["per_row"] =
        benchmark::Counter(rows, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

BENCHMARK(applyRows)->Arg(300)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(bareWrites)->Arg(300)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    TestApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
