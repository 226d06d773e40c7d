#pragma once
// The timing programs' clock: seconds from the performance counter, and
// the best time of several rounds.
#include <windows.h>

#include <algorithm>
#include <functional>

namespace vu::bench {

inline double Now() {
    static LARGE_INTEGER frequency{};
    if (frequency.QuadPart == 0)
        QueryPerformanceFrequency(&frequency);
    LARGE_INTEGER counter;
    QueryPerformanceCounter(&counter);
    return static_cast<double>(counter.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// The best time in seconds of `rounds` runs of `timed`, each after an
// untimed `prepare`.
inline double BestOf(int rounds, const std::function<void()>& prepare,
                     const std::function<void()>& timed) {
    double best = 1e30;
    for (int round = 0; round < rounds; ++round) {
        prepare();
        const double start = Now();
        timed();
        best = std::min(best, Now() - start);
    }
    return best;
}

} // namespace vu::bench
