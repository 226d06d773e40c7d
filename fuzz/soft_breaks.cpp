// Random edit and search sequences on a string with soft line breaks, over
// random texts and wrap widths. Besides crashes, leaks and hangs it checks
// that taking the breaks out and putting them back gives the text back.
#include "text/SearchableStringWithSoftLineBreaks.h"

#include "FuzzSupport.h"

#include <cstdint>

namespace {

using Soft = VU_CSearchableStringWithSoftLineBreaks;
using fuzz::Check;

// Breaks, blanks, delimiters, case pairs, regular-expression specials; '~'
// stands for a soft break typed into the text.
vu::String Text(FuzzedDataProvider& in, std::size_t maxLength) {
    vu::String text;
    for (WCHAR c : fuzz::Text(in, VU_T("abA  \t\r\n\r_,().*+?^$[]|\\\u00e9\u0130~"), maxLength))
        text += c == VU_T('~') ? vu::String(VU_T("\r\r\n")) : vu::String(1, c);
    return text;
}

// Right after wrapping the breaks are in: out and back in is an identity.
void WrapAndRoundTrip(Soft& s, int width) {
    Check(s.WordWrapText(width) == s.GetNumberOfSoftLineBreaks(s.GetLength() + 1));
    const vu::String wrapped = s.Str();
    const int breaks = s.RemoveSoftLineBreaks();
    Check(s.WereSoftLineBreaksRemoved() && s.ReInsertSoftLineBreaks() == breaks);
    Check(s.Str() == wrapped);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider in(data, size);
    Soft s{CString(Text(in, 200))};
    WrapAndRoundTrip(s, in.ConsumeIntegralInRange(-1, 30));
    for (int step = 0; step < 48 && in.remaining_bytes() > 0; ++step) {
        const vu::String a = Text(in, 4), b = Text(in, 4);
        const WCHAR c = a.empty() ? VU_T('a') : a[0];
        const BOOL flag = in.ConsumeBool();
        const auto at = [&] { return in.ConsumeIntegralInRange<int>(-3, s.GetLength() + 3); };
        switch (in.ConsumeIntegralInRange(0, 7)) {
        case 0:
            WrapAndRoundTrip(s, in.ConsumeIntegralInRange(-3, 40));
            break;
        case 1:
            s.RemoveSoftLineBreaks();
            s.ReplaceSoftLineBreaksWith(CString(a));
            s.ReInsertSoftLineBreaks();
            break;
        case 2:
            s.SetSelection(at(), at());
            s.ReplaceSelectionWith(CString(a));
            break;
        case 3: // searches move the selection
            s.Find(a.c_str(), at(), flag);
            s.FindNoCase(c, at(), flag);
            s.ReverseFindNoCase(a.c_str(), at(), flag);
            s.FindN(c, at(), at(), flag);
            s.FindRegularExp(a.c_str(), at());
            break;
        case 4:
            s.FindReplaceRegularExp(a.c_str(), b.c_str(), flag);
            s.FindReplace(a.c_str(), b.c_str(), flag, in.ConsumeBool());
            s.FindReplaceNoCase(a.c_str(), b.c_str(), flag, in.ConsumeBool());
            break;
        case 5:
            s.InsertAt(at(), a.c_str());
            s.DeleteAt(at(), in.ConsumeIntegralInRange(-2, 8));
            s.ReplaceAt(at(), in.ConsumeIntegralInRange(-2, 8), b.c_str());
            break;
        default: {
            const Soft copy(s);
            Check(copy.Str() == s.Str() &&
                  copy.WereSoftLineBreaksRemoved() == s.WereSoftLineBreaksRemoved());
            s = flag ? copy : Soft(CString(a));
            break;
        }
        }
        if (s.GetLength() > 4096) // keeps one-replacement-at-a-time edits quick
            s = CString(s.View().substr(0, 64));
    }
    return 0;
}
