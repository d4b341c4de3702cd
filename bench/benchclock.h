#pragma once

#include <algorithm>
#include <ctime>
#include <vector>

namespace bench {

// Processor time of the calling thread, in seconds: what one core spends on
// the work, whatever else the machine runs at the same time.
inline double threadSeconds()
{
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

// Nanoseconds per call of `call` over `rounds` rounds of `calls` calls: the
// fastest round and the median one. On a virtual machine the time a neighbour
// takes from the processor is counted as the thread's own, so the fastest
// round is the one least disturbed; the median shows how much the rest moved.
struct Rounds
{
    double fastest;
    double median;
};

template <typename Call> Rounds roundsPerCall(Call call, int calls, int rounds = 5)
{
    std::vector<double> times;
    for (int r = 0; r < rounds; ++r) {
        const double start = threadSeconds();
        for (int i = 0; i < calls; ++i)
            call(i);
        times.push_back((threadSeconds() - start) * 1e9 / calls);
    }
    std::sort(times.begin(), times.end());
    return { times.front(), times[times.size() / 2] };
}

// Nanoseconds per call of `call`: the fastest of `rounds` rounds.
template <typename Call> double nanosecondsPerCall(Call call, int calls, int rounds = 5)
{
    return roundsPerCall(call, calls, rounds).fastest;
}

// The cost of `call` beyond `baseline`, in nanoseconds per call: many short
// rounds of each in turn, the median of the differences. A neighbour that
// steals the processor for a while spoils a few pairs, not the figure.
struct Overhead
{
    double call; // median nanoseconds per call
    double baseline;
    double extra; // median of the per-round differences
};

template <typename Call, typename Baseline>
Overhead overheadPerCall(Call call, Baseline baseline, int calls, int rounds = 51)
{
    std::vector<double> a, b, diff;
    for (int r = 0; r < rounds; ++r) {
        double start = threadSeconds();
        for (int i = 0; i < calls; ++i)
            call(i);
        a.push_back((threadSeconds() - start) * 1e9 / calls);
        start = threadSeconds();
        for (int i = 0; i < calls; ++i)
            baseline(i);
        b.push_back((threadSeconds() - start) * 1e9 / calls);
        diff.push_back(a.back() - b.back());
    }
    const auto median = [](std::vector<double> &v) {
        std::nth_element(v.begin(), v.begin() + v.size() / 2, v.end());
        return v[v.size() / 2];
    };
    return { median(a), median(b), median(diff) };
}

} // namespace bench
