#pragma once

#include <ctime>

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

} // namespace bench
