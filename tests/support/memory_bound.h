// Memory that a test may take beyond what its process has already: more of it is refused.
#pragma once

#include <cstdio>
#include <sys/resource.h>
#include <unistd.h>

class MemoryBound {
public:
    explicit MemoryBound(std::size_t megabytes) {
        getrlimit(RLIMIT_AS, &former);
        rlimit bound = former;
        bound.rlim_cur = taken() + (static_cast<rlim_t>(megabytes) << 20);
        if (isPossible)
            setrlimit(RLIMIT_AS, &bound);
    }
    ~MemoryBound() { setrlimit(RLIMIT_AS, &former); }
    MemoryBound(const MemoryBound&) = delete;
    MemoryBound& operator=(const MemoryBound&) = delete;

    // The address sanitizer keeps addresses for itself by the terabyte.
#ifdef __SANITIZE_ADDRESS__
    static constexpr bool isPossible = false;
#else
    static constexpr bool isPossible = true;
#endif

private:
    static rlim_t taken() {
        unsigned long pages = 0;
        if (std::FILE* file = std::fopen("/proc/self/statm", "r")) {
            if (std::fscanf(file, "%lu", &pages) != 1)
                pages = 0;
            std::fclose(file);
        }
        return static_cast<rlim_t>(pages) * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
    }
    rlimit former{};
};
