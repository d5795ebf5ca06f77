// How the benchmarks that need a window run: off screen, in the application of the tests.
#pragma once

#include "tests/support/test_application.h"

#include <benchmark/benchmark.h>

inline int runBenchmarks(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    TestApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
