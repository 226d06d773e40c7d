// Random sequences of searchable-string operations: the search forms, the
// replace operations, edits at random (also out-of-range) positions and
// regular expressions under a step budget. Besides "no crash, no leak,
// no hang" it checks that searches point at a real occurrence and that the
// one-pass replace-all equals one replacement at a time.
#include "text/SearchableString.h"

#include "FuzzSupport.h"

#include <cstdint>

namespace {

using fuzz::Check;
using S = VU_CSearchableString;

constexpr unsigned long long kStepLimit = 200000;

// Forces replace-all through ReplaceAt, one replacement at a time.
struct OneAtATime : S {
    using S::S;
    S& ReplaceAt(int index, int count, const WCHAR* text) override {
        return S::ReplaceAt(index, count, text);
    }
};

int ReplaceAll(S& s, int kind, const vu::String& find, const vu::String& by) {
    s.SetRegularExpStepLimit(kStepLimit);
    return kind == 0   ? s.FindReplace(find.c_str(), by.c_str(), TRUE, FALSE)
           : kind == 1 ? s.FindReplaceNoCase(find.c_str(), by.c_str(), TRUE, FALSE)
                       : s.FindReplaceRegularExp(find.c_str(), by.c_str(), TRUE);
}

bool MatchesAt(const S& s, int at, const vu::String& find) {
    return at == -1 || (at >= 0 && s.View().substr(at, find.size()) == find);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider in(data, size);
    // Letters in both cases, delimiters, regular-expression specials and a
    // few characters beyond ASCII, so that searches hit.
    const vu::StringView alphabet = VU_T("aAbB zZ,.-_()*+?|[]^$\\&\u00E4\u00C4\u212Ak\u03C3\u03A3");
    S s(fuzz::Text(in, alphabet, 64).c_str());
    s.SetRegularExpStepLimit(kStepLimit);
    for (int op = 0; op < 64 && in.remaining_bytes() > 0; ++op) {
        const vu::String t = fuzz::Text(in, alphabet, 4), u = fuzz::Text(in, alphabet, 4);
        const WCHAR ch = t.empty() ? VU_T('a') : t[0];
        const BOOL flag = in.ConsumeBool();
        const int i = in.ConsumeIntegralInRange(-3, s.GetLength() + 3);
        const int j = in.ConsumeIntegralInRange(-3, s.GetLength() + 3);
        switch (in.ConsumeIntegralInRange(0, 6)) {
        case 0: {
            Check(MatchesAt(s, s.Find(t.c_str(), i, flag), t));
            Check(MatchesAt(s, s.ReverseFind(t.c_str(), i, flag), t));
            Check(MatchesAt(s, s.FindN(ch, i, j, flag), vu::String(1, ch)));
            const int r = s.FindNoCase(t.c_str(), i, flag); // case-blind: within the text
            Check(r == -1 || (r >= 0 && r + int(t.size()) <= s.GetLength()));
            Check(s.ReverseFindNoCase(ch, i, flag) < s.GetLength());
            break;
        }
        case 1: {
            const int r = s.FindRegularExp(t.c_str(), i);
            Check(r >= -1 && r <= s.GetLength());
            break;
        }
        case 2: {                    // the class's one-pass replace-all against one at a time
            S fast(s.Str().c_str()); // neither with a compiled pattern to fall back on
            OneAtATime slow(s.Str().c_str());
            const int kind = in.ConsumeIntegralInRange(0, 2);
            const int a = ReplaceAll(fast, kind, t, u), b = ReplaceAll(slow, kind, t, u);
            // Runs that run out of steps search different strings.
            if (!fast.IsRegularExpStepLimitExceeded() && !slow.IsRegularExpStepLimitExceeded())
                Check(a == b && fast.View() == slow.View());
            s = fast;
            break;
        }
        case 3:
            s.FindReplace(t.c_str(), u.c_str(), FALSE, flag);
            s.FindReplaceNoCase(t.c_str(), u.c_str(), FALSE, flag);
            break;
        case 4:
            s.InsertAt(i, t.c_str());
            s.InsertAt(j, ch);
            break;
        case 5:
            s.DeleteAt(i, j);
            s.ReplaceAt(j, i, t.c_str());
            break;
        default:
            s.SetTokenDelimiters(t.c_str());
            s = CString(u.c_str()); // the text only
            break;
        }
        if (s.GetLength() > 2000)
            s.DeleteAt(2000, -1);
    }
    return 0;
}
