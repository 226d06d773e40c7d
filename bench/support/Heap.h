#pragma once
// Fresh pages are expensive on the virtual machines these benchmarks run on:
// the first touch of new memory can cost more than the work measured. By
// default the benchmarks keep freed memory in the process, as a long-running
// host's heap does, for every contender alike; VU_BENCH_COLD_MEMORY=1 turns
// that off.

#include <cstdlib>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace vu::bench {

inline void KeepFreedMemory() {
#if defined(__GLIBC__)
    const char* cold = std::getenv("VU_BENCH_COLD_MEMORY");
    if (cold && *cold == '1')
        return;
    mallopt(M_MMAP_MAX, 0); // large blocks from the heap too, so they are kept
    mallopt(M_TRIM_THRESHOLD, -1);
#endif
}

} // namespace vu::bench
