// Random edit and search sequences on a string with soft line breaks, over
// random texts and wrap widths. Besides crashes, leaks and hangs it checks
// that taking the breaks out and putting them back gives the text back.
#include "text/SearchableStringWithSoftLineBreaks.h"

#include "FuzzSupport.h"

#include <cstdint>

namespace {

using Soft = VU_CSearchableStringWithSoftLineBreaks;
using fuzz::Check;

constexpr int kMaxLength = 4096; // keeps one-replacement-at-a-time edits quick

// Breaks, blanks, delimiters, case pairs, regular-expression specials; '~'
// stands for a soft break typed into the text.
vu::String Text(FuzzedDataProvider& in, std::size_t maxLength) {
    vu::String text;
    for (WCHAR c : fuzz::Text(in, VU_T("abA  \t\r\n\r_,().*+?^$[]|\\\u00e9\u0130~"), maxLength))
        text += c == VU_T('~') ? vu::String(VU_T("\r\r\n")) : vu::String(1, c);
    return text;
}

int Position(FuzzedDataProvider& in, const Soft& s) {
    return in.ConsumeIntegralInRange<int>(-3, s.GetLength() + 3);
}

// Right after wrapping the breaks are in: out and back in is an identity.
void CheckRoundTrip(Soft& s) {
    const vu::String wrapped = s.Str();
    const int breaks = s.RemoveSoftLineBreaks();
    Check(s.WereSoftLineBreaksRemoved());
    Check(s.ReInsertSoftLineBreaks() == breaks);
    Check(s.Str() == wrapped);
}

void Step(FuzzedDataProvider& in, Soft& s) {
    const vu::String a = Text(in, 4);
    const vu::String b = Text(in, 4);
    const WCHAR c = a.empty() ? VU_T('a') : a[0];
    const BOOL flag = in.ConsumeBool();
    // clang-format off
    switch (in.ConsumeIntegralInRange(0, 12)) {
    case 0: {
        const int breaks = s.WordWrapText(in.ConsumeIntegralInRange(-3, 40));
        Check(breaks == s.GetNumberOfSoftLineBreaks(s.GetLength() + 1));
        CheckRoundTrip(s);
        break;
    }
    case 1: s.RemoveSoftLineBreaks(); s.ReplaceSoftLineBreaksWith(CString(a)); break;
    case 2: s.ReInsertSoftLineBreaks(); break;
    case 3:
        s.SetSelection(Position(in, s), Position(in, s));
        s.ReplaceSelectionWith(CString(a));
        break;
    case 4: // every search form; each moves the selection
        s.Find(a.c_str(), Position(in, s), flag);
        s.Find(c, Position(in, s), flag);
        s.FindNoCase(a.c_str(), Position(in, s), flag);
        s.FindNoCase(c, Position(in, s), flag);
        s.ReverseFind(a.c_str(), Position(in, s), flag);
        s.ReverseFind(c);
        s.ReverseFindNoCase(a.c_str(), Position(in, s), flag);
        s.ReverseFindNoCase(c, Position(in, s), flag);
        s.FindN(c, Position(in, s), Position(in, s), flag);
        break;
    case 5: s.FindRegularExp(a.c_str(), Position(in, s)); break;
    case 6: s.FindReplaceRegularExp(a.c_str(), b.c_str(), flag); break;
    case 7: s.FindReplace(a.c_str(), b.c_str(), flag, in.ConsumeBool()); break;
    case 8: s.FindReplaceNoCase(a.c_str(), b.c_str(), flag, in.ConsumeBool()); break;
    case 9: s.InsertAt(Position(in, s), a.c_str()); s.InsertAt(Position(in, s), c); break;
    case 10:
        s.DeleteAt(Position(in, s), in.ConsumeIntegralInRange(-2, 8));
        s.ReplaceAt(Position(in, s), in.ConsumeIntegralInRange(-2, 8), b.c_str());
        break;
    case 11:
        s.GetField(a.c_str(), in.ConsumeIntegralInRange(-1, 5));
        s.GetFieldCount(c);
        s.GetDelimitedField(a.c_str(), b.c_str(), in.ConsumeIntegralInRange(-1, 3));
        break;
    default: {
        Soft copy(s);
        Check(copy.Str() == s.Str() &&
              copy.WereSoftLineBreaksRemoved() == s.WereSoftLineBreaksRemoved());
        if (flag)
            s = copy;
        else
            s = CString(a);
        break;
    }
    }
    // clang-format on
    if (s.GetLength() > kMaxLength)
        s = CString(s.View().substr(0, 64));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider in(data, size);
    Soft s{CString(Text(in, 200))};
    s.WordWrapText(in.ConsumeIntegralInRange(-1, 30));
    CheckRoundTrip(s);
    for (int step = 0; step < 48 && in.remaining_bytes() > 0; ++step)
        Step(in, s);
    return 0;
}
