// Fuzzes VU_CRegExpression: compiles a random pattern, runs it with a step
// budget on a random text and on its suffixes, expands the pattern as a
// replacement template, copies the object and searches again with the
// failure memo switched on at once. Any crash, leak, sanitizer
// report or broken invariant (a match outside the text, groups outside the
// match, found text differing from the text) is a finding.
#include "text/RegExpression.h"

#include "FuzzSupport.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace {

// Bytes below 0x80 are ASCII units; the others spread over the BMP so that
// sets and literals see high units too.
vu::String Widen(const uint8_t* data, size_t size) {
    vu::String s;
    s.reserve(size);
    for (size_t i = 0; i < size; ++i) {
        const uint8_t b = data[i];
        if (b == 0)
            continue; // strings are NUL-terminated
        s += b < 0x80 ? WCHAR(b) : WCHAR(0x80 + (b - 0x80) * 0x1FF);
    }
    return s;
}

using fuzz::Check;

void CheckMatch(const VU_CRegExpression& re, const vu::String& text, int index) {
    if (index < 0) {
        Check(re.GetFoundText() == nullptr);
        return;
    }
    const int length = re.GetFindLen();
    Check(size_t(index) + size_t(length) <= text.size());
    Check(re.GetGroupStart(0) == index && re.GetGroupEnd(0) == index + length);
    Check(vu::StringView(re.GetFoundText()) == vu::StringView(text).substr(index, length));
    for (int n = 1; n < VU_CRegExpression::kGroupCount; ++n) {
        const int start = re.GetGroupStart(n), end = re.GetGroupEnd(n);
        Check((start < 0) == (end < 0));
        if (start >= 0)
            Check(start >= index && end <= index + length && start <= end);
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

    VU_CRegExpression re;
    re.SetStepLimit(20000);
    const bool compiled = re.RegComp(pattern.c_str()) != nullptr;
    Check(re.IsCompiled());
    Check(compiled || re.GetProgram() == nullptr);

    const int index = re.RegFind(text.c_str());
    CheckMatch(re, text, index);
    std::unique_ptr<WCHAR[]> replaced(re.GetReplaceString(pattern.c_str()));
    Check((index >= 0) == (replaced != nullptr));

    // Copies search alike and own their buffers.
    VU_CRegExpression copy(re);
    if (!re.IsStepLimitExceeded())
        Check(copy.RegFind(text.c_str()) == index);
    // With the failure memo on from the start, the same match and groups.
    VU_CRegExpression memo(re);
    memo.SetFailureMemoThreshold(0);
    const int memoIndex = memo.RegFind(text.c_str());
    if (!re.IsStepLimitExceeded() && !memo.IsStepLimitExceeded()) {
        Check(memoIndex == index);
        for (int n = 0; n < VU_CRegExpression::kGroupCount; ++n)
            Check(memo.GetGroupStart(n) == re.GetGroupStart(n) &&
                  memo.GetGroupEnd(n) == re.GetGroupEnd(n));
    }
    VU_CRegExpression assigned;
    assigned = copy;
    for (size_t from = 1; from < text.size() && from < 8; ++from)
        CheckMatch(assigned, text.substr(from), assigned.RegFind(text.c_str() + from));

    // A second pattern (the text) replaces the first, or fails and keeps it.
    if (re.RegComp(text.c_str()))
        CheckMatch(re, pattern, re.RegFind(pattern.c_str()));
    return 0;
}
