#pragma once
// The tab beam's fitting loop as first written, kept as the reference that
// the test and the benchmarks compare the fast fitting with: measure the
// total, shorten the longest tab by one character, repeat. Returns the
// truncated flag the loop leaves.
#include "tabs/TabBeamModel.h"

namespace vu::reference {

inline bool LiteralFit(VU_CTabBeamModel& beam, bool truncated) {
    const int available = beam.CalcAvailableWidth();
    while (beam.CalcTotalTabWidth() > available) {
        if (!beam.CheckTabsForExcess()) {
            beam.RestoreTabsToOriginal();
            return false;
        }
        beam.ShortenLongestTab();
        truncated = true;
    }
    return truncated;
}

} // namespace vu::reference
