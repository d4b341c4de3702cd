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

// Nanoseconds per call of `call`, the median of `rounds` rounds of `calls` calls.
template <typename Call> double nanosecondsPerCall(Call call, int calls, int rounds = 5)
{
    double best[16];
    rounds = rounds > 16 ? 16 : rounds;
    for (int r = 0; r < rounds; ++r) {
        const double start = threadSeconds();
        for (int i = 0; i < calls; ++i)
            call(i);
        best[r] = (threadSeconds() - start) * 1e9 / calls;
    }
    for (int i = 1; i < rounds; ++i) // insertion sort of a handful
        for (int j = i; j > 0 && best[j] < best[j - 1]; --j) {
            const double t = best[j];
            best[j] = best[j - 1];
            best[j - 1] = t;
        }
    return best[rounds / 2];
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
