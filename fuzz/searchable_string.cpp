// Random sequences of searchable-string operations: every search form, the
// replace operations, edits at random (also out-of-range) positions, field
// operations and regular expressions under a step budget. Besides "no crash,
// no leak, no hang" it checks that search results point at a real occurrence
// and that the one-pass replace-all equals one replacement at a time.
#include "text/SearchableString.h"

#include "FuzzSupport.h"

#include <cstdint>

namespace {

using fuzz::Check;

// Small alphabet so that searches hit: letters in both cases, delimiters,
// regular-expression specials and a few characters beyond ASCII.
constexpr vu::StringView kAlphabet =
    VU_T("aAbB zZ,.-_()*+?|[]^$\\&\u00E4\u00C4\u212Ak\u03C3\u03A3");
constexpr int kMaxText = 2000;
constexpr unsigned long long kStepLimit = 200000;

vu::String TakeText(FuzzedDataProvider& in, int maxLength) {
    return fuzz::Text(in, kAlphabet, maxLength);
}

// Positions around and beyond the text, negative ones included.
int TakeIndex(FuzzedDataProvider& in, int length) {
    return in.ConsumeIntegralInRange<int>(-3, length + 3);
}

// Forces replace-all through ReplaceAt, one replacement at a time.
class OneAtATime : public VU_CSearchableString {
public:
    using VU_CSearchableString::VU_CSearchableString;
    VU_CSearchableString& ReplaceAt(int index, int count, const WCHAR* text) override {
        return VU_CSearchableString::ReplaceAt(index, count, text);
    }
};

bool MatchesAt(const CString& s, int at, const vu::String& find) {
    return at >= 0 && at + static_cast<int>(find.size()) <= s.GetLength() &&
           s.View().substr(at, find.size()) == find;
}

// The one-pass replace-all of the class itself against a derived class,
// which replaces one occurrence at a time.
void CompareReplaceAll(const CString& text, int kind, const vu::String& find,
                       const vu::String& replacement) {
    VU_CSearchableString fast(text);
    OneAtATime slow(text);
    fast.SetRegularExpStepLimit(kStepLimit);
    slow.SetRegularExpStepLimit(kStepLimit);
    const auto replaceAll = [&](VU_CSearchableString& s) {
        const WCHAR *f = find.c_str(), *r = replacement.c_str();
        return kind == 0   ? s.FindReplace(f, r, TRUE, FALSE)
               : kind == 1 ? s.FindReplaceNoCase(f, r, TRUE, FALSE)
                           : s.FindReplaceRegularExp(f, r, TRUE);
    };
    const int a = replaceAll(fast), b = replaceAll(slow);
    // A run ends at its first search that runs out of steps; the two runs
    // search different strings, so compare only runs that finished.
    if (fast.IsRegularExpStepLimitExceeded() || slow.IsRegularExpStepLimitExceeded())
        return;
    Check(a == b);
    Check(fast.View() == slow.View());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider in(data, size);
    VU_CSearchableString s(TakeText(in, 64).c_str());
    s.SetRegularExpStepLimit(kStepLimit);
    for (int op = 0; op < 64 && in.remaining_bytes() > 0; ++op) {
        const int n = s.GetLength();
        const vu::String t = TakeText(in, 4);
        const vu::String u = TakeText(in, 4);
        const WCHAR ch = t.empty() ? VU_T('a') : t[0];
        const BOOL flag = in.ConsumeBool();
        const int i = TakeIndex(in, n);
        const int j = TakeIndex(in, n);
        int r = -1;
        // clang-format off
        switch (in.ConsumeIntegralInRange<int>(0, 13)) {
        case 0: // exact searches find real occurrences
            r = s.Find(t.c_str(), i, flag);
            Check(r == -1 || MatchesAt(s, r, t));
            r = s.ReverseFind(t.c_str(), i, flag);
            Check(r == -1 || MatchesAt(s, r, t));
            break;
        case 1:
            r = s.Find(ch, i, flag);
            Check(r == -1 || s[r] == ch);
            r = s.FindN(ch, i, j, flag);
            Check(r == -1 || s[r] == ch);
            r = s.ReverseFind(ch);
            Check(r == -1 || s[r] == ch);
            break;
        case 2: // case-blind searches stay within the text
            r = s.FindNoCase(t.c_str(), i, flag);
            Check(r == -1 || (r >= 0 && r + static_cast<int>(t.size()) <= n));
            Check(s.FindNoCase(ch, i, flag) < n);
            Check(s.ReverseFindNoCase(t.c_str(), i, flag) < n);
            Check(s.ReverseFindNoCase(ch, i, flag) < n);
            break;
        case 3: r = s.FindRegularExp(t.c_str(), i); Check(r >= -1 && r <= n); break;
        case 4: s.FindReplaceRegularExp(t.c_str(), u.c_str(), flag); break;
        case 5: s.FindReplace(t.c_str(), u.c_str(), flag, FALSE); break;
        case 6: s.FindReplaceNoCase(t.c_str(), u.c_str(), flag, FALSE); break;
        case 7: s.InsertAt(i, t.c_str()); s.InsertAt(j, ch); break;
        case 8: s.DeleteAt(i, j); break;
        case 9: s.ReplaceAt(i, j, t.c_str()); break;
        case 10:
            Check(s.GetFieldCount(t.c_str()) >= 1 && s.GetFieldCount(ch) >= 1);
            Check(s.GetField(t.c_str(), i).GetLength() <= n);
            Check(s.GetDelimitedField(t.c_str(), u.c_str(), j).GetLength() <= n);
            break;
        case 11: s.SetTokenDelimiters(t.c_str()); break;
        case 12: CompareReplaceAll(s, in.ConsumeIntegralInRange<int>(0, 2), t, u); break;
        default: {
            VU_CSearchableString copy(s);
            copy.FindRegularExp(nullptr, 0); // the copied pattern, if any
            if (flag)
                s = copy;
            else
                s = CString(t.c_str()); // the text only
            break;
        }
        }
        // clang-format on
        if (s.GetLength() > kMaxText)
            s.DeleteAt(kMaxText, -1);
    }
    return 0;
}
