// Apply into stores in memory, by the row: the whole of it, beside the bare writes of the same values.
#include "benchmarks/run.h"
#include "benchmarks/timing.h"
#include "options/window/preferences.h"
#include "tests/options/option_tree_writer.h"
#include "tests/support/fixture_host.h"

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

// One opened section and one value for each row, with nothing to find out.
void bareWrites(FixtureHost& host, int rows) {
    CKWVariant value;
    value = 1;
    for (int i = 0; i < rows; ++i)
        Ref<IParam>::take(host.profile().openSection("Values", 1))
            ->setValue(("Option" + std::to_string(i)).c_str(), &value);
}

// "us_per_row" is to stay below 5; "bare_us_per_row" is the floor.
void applyRows(benchmark::State& state) {
    const int rows = static_cast<int>(state.range(0));
    FixtureHost host;
    fillTree(host.config(), rows);
    Preferences preferences(nullptr);
    timing::Turns bare, apply;
    for (auto _ : state) {
        bare.add(timing::secondsOf([&] { bareWrites(host, rows); }));
        apply.add(timing::secondsOf([&] { preferences.applyChanges(); }));
        state.SetIterationTime(apply.last());
    }
    state.counters["us_per_row"] = apply.fastest() * 1e6 / rows;
    state.counters["bare_us_per_row"] = bare.fastest() * 1e6 / rows;
}

BENCHMARK(applyRows)->Arg(300)->Arg(1000)->Arg(10000)->UseManualTime()->Iterations(20)->Unit(
    benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) { return runBenchmarks(argc, argv); }
