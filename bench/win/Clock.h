#pragma once
// The timing programs' clock: seconds from the performance counter.
#include <windows.h>

namespace vu::bench {

inline double Now() {
    static LARGE_INTEGER frequency{};
    if (frequency.QuadPart == 0)
        QueryPerformanceFrequency(&frequency);
    LARGE_INTEGER counter;
    QueryPerformanceCounter(&counter);
    return static_cast<double>(counter.QuadPart) / static_cast<double>(frequency.QuadPart);
}

} // namespace vu::bench
