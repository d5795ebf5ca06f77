// How a fuzzer says that something does not hold which no sanitizer can know of.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

namespace fuzz {

inline void expect(bool holds, const std::string& fault) {
    if (holds)
        return;
    std::fprintf(stderr, "%s\n", fault.c_str());
    std::abort();
}

} // namespace fuzz
