// How the benchmarks of the Options dialog compare two pieces of work, so that a busy machine disturbs
// little: both take turns within one run, and only the processor time of their own thread counts. A ratio is
// the median over the turns side by side; a figure by the row is that of the fastest turn.
#pragma once
#include <algorithm>
#include <ctime>
#include <vector>

namespace timing {

// Everything runs on one thread. Its processor time is not disturbed by what else the machine does.
inline double cpuSeconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

template <class Work> double secondsOf(Work work) {
    const double before = cpuSeconds();
    work();
    return cpuSeconds() - before;
}

inline double median(std::vector<double> times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

// Other work on the machine can only make a turn slower, so the fastest one tells most about the code.
class Turns {
public:
    void add(double seconds) { times.push_back(seconds); }
    double fastest() const { return *std::min_element(times.begin(), times.end()); }
    double last() const { return times.back(); }

    // How many times as long as the other's turns these took, as the median of the turns side by side.
    double ratioTo(const Turns& other) const {
        std::vector<double> ratios;
        for (std::size_t i = 0; i < times.size(); ++i)
            ratios.push_back(times[i] / other.times[i]);
        return median(ratios);
    }

private:
    std::vector<double> times;
};

} // namespace timing
