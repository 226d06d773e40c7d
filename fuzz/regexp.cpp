// Fuzzes VU_CRegExpression: a random pattern under a step budget on a random
// text, plainly and (in a copy) with the failure memo on from the start. A
// crash, leak or sanitizer report, a match or group outside the text, found
// text differing from the text, or the memo changing a result is a finding.
#include "text/RegExpression.h"

#include "FuzzSupport.h"

#include <algorithm>
#include <cstdint>
#include <memory>

namespace {

using fuzz::Check;
using R = VU_CRegExpression;

// Bytes below 0x80 are ASCII units; the others spread over the BMP so that
// sets and literals see high units too. NULs are left out.
vu::String Widen(const uint8_t* data, size_t size) {
    vu::String s;
    for (const uint8_t* p = data; p < data + size; ++p)
        if (*p)
            s += *p < 0x80 ? WCHAR(*p) : WCHAR(0x80 + (*p - 0x80) * 0x1FF);
    return s;
}

void CheckMatch(const R& re, const vu::String& text, int index) {
    if (index < 0)
        return Check(re.GetFoundText() == nullptr);
    const int length = re.GetFindLen();
    Check(size_t(index) + size_t(length) <= text.size());
    Check(re.GetGroupStart(0) == index && re.GetGroupEnd(0) == index + length);
    Check(vu::StringView(re.GetFoundText()) == vu::StringView(text).substr(index, length));
    for (int n = 1; n < R::kGroupCount; ++n) {
        const int start = re.GetGroupStart(n), end = re.GetGroupEnd(n);
        Check((start < 0) == (end < 0));
        Check(start < 0 || (start >= index && end <= index + length && start <= end));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 1)
        return 0;
    // The first byte splits the rest into pattern and text.
    const size_t patternSize = std::min<size_t>(data[0], size - 1);
    const vu::String pattern = Widen(data + 1, patternSize);
    const vu::String text = Widen(data + 1 + patternSize, size - 1 - patternSize);
    R re;
    re.SetStepLimit(20000);
    if (!re.RegComp(pattern.c_str())) {
        Check(re.GetProgram() == nullptr && re.RegFind(text.c_str()) == -1);
        return 0;
    }
    const int index = re.RegFind(text.c_str());
    CheckMatch(re, text, index);
    std::unique_ptr<WCHAR[]> replaced(re.GetReplaceString(pattern.c_str()));
    Check((index >= 0) == (replaced != nullptr));
    R memo(re);
    memo.SetFailureMemoThreshold(0);
    const int memoIndex = memo.RegFind(text.c_str());
    CheckMatch(memo, text, memoIndex);
    if (re.IsStepLimitExceeded() || memo.IsStepLimitExceeded())
        return 0;
    for (int n = 0; n < R::kGroupCount; ++n)
        Check(memo.GetGroupStart(n) == re.GetGroupStart(n) &&
              memo.GetGroupEnd(n) == re.GetGroupEnd(n));
    Check(memoIndex == index);
    return 0;
}
