#include "text/WordWrappedString.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Lines = std::vector<vu::String>;

Lines LinesOf(const VU_CWordWrappedString& w) {
    Lines lines;
    for (int i = 0; i < w.GetNumLines(); ++i)
        lines.push_back(w.GetLine(i).Str());
    return lines;
}

// The generated texts of the property test check what every wrapping keeps;
// these rows pin where the lines end.
TEST(WordWrappedString, FittingRules) {
    const struct {
        const char* name;
        vu::String text;
        int length;
        Lines lines;
    } rows[] = {
        // clang-format off
        {"space one past the limit", VU_T("abcde fgh"), 5, {VU_T("abcde "), VU_T("fgh")}},
        // Cut on an empty line: a full last piece is emitted, the space then
        // starts a line. Cut after a moved word: the full piece stays open.
        {"full piece emitted", VU_T("abcdefgh ij"), 4, {VU_T("abcd"), VU_T("efgh"), VU_T(" ij")}},
        {"full piece kept after a move", VU_T("x abcdefgh ij"), 4, {VU_T("x "), VU_T("abcd"), VU_T("efgh "), VU_T("ij")}},
        {"tab takes eight columns", VU_T("a\tb"), 9, {VU_T("a\t"), VU_T("b")}},
        {"tab does not fit", VU_T("a\tb"), 8, {VU_T("a"), VU_T("\t"), VU_T("b")}},
        {"lone CR and LF are spaces", VU_T("a\rb\nc"), -1, {VU_T("a\rb\nc")}},
        // Only a plain space may hang past the limit.
        {"ideographic space never hangs", VU_T("abcd\u3000x"), 4, {VU_T("abcd"), VU_T("\u3000x")}},
        {"no-break space joins", VU_T("aaa\u00a0bbb"), 4, {VU_T("aaa\u00a0"), VU_T("bbb")}},
        // clang-format on
    };
    for (const auto& row : rows)
        EXPECT_EQ(LinesOf(VU_CWordWrappedString(CString(row.text), row.length)), row.lines)
            << row.name;
}

TEST(WordWrappedString, JoiningChangesAndIndentation) {
    VU_CWordWrappedString w(VU_T("aa bb\r\ncc"), 3);
    EXPECT_EQ(w.GetFullString(true, false).Str(), VU_T("aa \r\r\nbb\r\ncc"));
    EXPECT_EQ(w.GetFullString(true, true).Str(), VU_T("aa \r\nbb\r\ncc"));
    EXPECT_EQ(w.GetLine(-1), VU_T("INVALID_LINE_NUMBER"));
    EXPECT_EQ(w.IndentText(2, 3), 0);
    EXPECT_EQ(w.IndentText(2, 1), 1);
    EXPECT_EQ(w.IndentText(1, 2), 1);
    EXPECT_EQ(w.GetFullString(true, false).Str(), VU_T("aa \r\r\n  bb\r\n   cc"));
    w.SetLineLength(3); // every change parses again and forgets the indentation
    EXPECT_EQ(LinesOf(w), (Lines{VU_T("aa "), VU_T("bb\r\n"), VU_T("cc")}));
    w = CString(VU_T("abcdefg"));
    EXPECT_EQ(LinesOf(w), (Lines{VU_T("abc"), VU_T("def"), VU_T("g")}));
    w = static_cast<const CString*>(nullptr);
    EXPECT_EQ(w.GetNumLines(), 0);
    w = VU_CWordWrappedString(VU_T("x y"), -1);
    EXPECT_EQ(w.GetMaxLineLength(), 2147483647);
    EXPECT_EQ(LinesOf(w), (Lines{VU_T("x y")}));
}

} // namespace
