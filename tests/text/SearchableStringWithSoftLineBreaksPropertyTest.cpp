// Soft line breaks on generated texts: taking them out and putting them back
// is an identity, and searches see the text as if it had never been wrapped.
#include "text/SearchableStringWithSoftLineBreaks.h"
#include "text/WordWrappedString.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

using Soft = VU_CSearchableStringWithSoftLineBreaks;

TEST(SoftBreaksProperty, RoundTripIsAnIdentityAndSearchesSeeTheUnwrappedText) {
    // Words, blanks, tabs and hard breaks; never a soft break of its own.
    const vu::String pieces[] = {
        VU_T("a"), VU_T("of"), VU_T("wrapping"), VU_T("x_y-z"), VU_T(" "),
        VU_T(" "), VU_T("\t"), VU_T("\r\n"),     VU_T("\n"),    VU_T("longerthananyline")};
    std::mt19937 rng(20240611);
    for (int round = 0; round < 300 && !HasFailure(); ++round) {
        vu::String text;
        for (int n = rng() % 41; n > 0; --n)
            text += pieces[rng() % std::size(pieces)];
        const int n = static_cast<int>(text.size());
        for (int width : {-1, 1, 2, 3, 5, 8, 13, 40}) {
            SCOPED_TRACE(testing::Message() << "round " << round << " width " << width);
            Soft s(CString(text), n, n);
            const int breaks = s.WordWrapText(width);
            const vu::String wrapped = s.Str();
            ASSERT_EQ(wrapped,
                      VU_CWordWrappedString(CString(text), width).GetFullString(true, false).Str());
            int start, end;
            s.GetSelection(start, end);
            EXPECT_EQ(start, static_cast<int>(wrapped.size())) << "the caret stays at the end";
            EXPECT_EQ(s.RemoveSoftLineBreaks(), breaks);
            EXPECT_EQ(s.Str(), text);
            EXPECT_EQ(s.ReInsertSoftLineBreaks(), breaks);
            EXPECT_EQ(s.ReplaceSoftLineBreaksWith(VU_T("\u00b6")), breaks);
            EXPECT_EQ(s.ReInsertSoftLineBreaks(), breaks);
            ASSERT_EQ(s.Str(), wrapped);
            if (n == 0)
                continue;
            const int at = static_cast<int>(rng() % n);
            const vu::String needle = text.substr(at, 1 + at % 5);
            vu::String upper = needle;
            for (WCHAR& c : upper)
                c = (c >= VU_T('a') && c <= VU_T('z')) ? WCHAR(c - 32) : c;
            EXPECT_EQ(s.Find(needle.c_str()), int(text.find(needle)));
            EXPECT_EQ(s.FindNoCase(upper.c_str()), int(text.find(needle)));
            EXPECT_EQ(s.ReverseFind(needle.c_str()), int(text.rfind(needle)));
            EXPECT_EQ(s.Find(needle[0], at), int(text.find(needle[0], at)));
        }
    }
}

} // namespace
