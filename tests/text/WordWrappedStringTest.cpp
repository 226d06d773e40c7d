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

// ---- Fitting rules --------------------------------------------------------------

TEST(WordWrappedString, FittingRules) {
    const struct {
        const char* name;
        vu::String text;
        int length;
        Lines lines;
    } rows[] = {
        // clang-format off
        {"space that fits stays", VU_T("hello world again"), 10,
         {VU_T("hello "), VU_T("world "), VU_T("again")}},
        {"space one past the limit", VU_T("abcde fgh"), 5, {VU_T("abcde "), VU_T("fgh")}},
        {"cut on an empty line", VU_T("abcdefghij"), 4, {VU_T("abcd"), VU_T("efgh"), VU_T("ij")}},
        {"moved, then cut", VU_T("ab abcdefgh"), 5, {VU_T("ab "), VU_T("abcde"), VU_T("fgh")}},
        // Cut on an empty line: a full last piece is emitted, the space then
        // starts a line. Cut after a moved word: the full piece stays open.
        {"full piece emitted", VU_T("abcdefgh ij"), 4, {VU_T("abcd"), VU_T("efgh"), VU_T(" ij")}},
        {"full piece kept after a move", VU_T("x abcdefgh ij"), 4,
         {VU_T("x "), VU_T("abcd"), VU_T("efgh "), VU_T("ij")}},
        {"tab takes eight columns", VU_T("a\tb"), 10, {VU_T("a\tb")}},
        {"tab fills the line", VU_T("a\tb"), 9, {VU_T("a\t"), VU_T("b")}},
        {"tab does not fit", VU_T("a\tb"), 8, {VU_T("a"), VU_T("\t"), VU_T("b")}},
        {"hard break ends its line", VU_T("x\r\ny"), -1, {VU_T("x\r\n"), VU_T("y")}},
        {"no empty last line", VU_T("x\r\n"), 3, {VU_T("x\r\n")}},
        {"lone CR and LF are spaces", VU_T("a\rb\nc"), -1, {VU_T("a\rb\nc")}},
        // Only a plain space may hang past the limit.
        {"ideographic space never hangs", VU_T("abcd\u3000x"), 4, {VU_T("abcd"), VU_T("\u3000x")}},
        {"ideographic space breaks", VU_T("aaa\u3000bbb"), 4, {VU_T("aaa\u3000"), VU_T("bbb")}},
        {"no-break space joins", VU_T("aaa\u00a0bbb"), 4, {VU_T("aaa\u00a0"), VU_T("bbb")}},
        {"length 0 cuts every character", VU_T("ab"), 0, {VU_T("a"), VU_T("b")}},
        // clang-format on
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(LinesOf(VU_CWordWrappedString(CString(row.text), row.length)), row.lines);
    }
}

// ---- Joining ------------------------------------------------------------------------

TEST(WordWrappedString, FullStringJoinsWithSoftOrHardBreaksAndLineNumbersAreChecked) {
    VU_CWordWrappedString w(VU_T("aa bb\r\ncc dd"), 3);
    ASSERT_EQ(LinesOf(w), (Lines{VU_T("aa "), VU_T("bb\r\n"), VU_T("cc "), VU_T("dd")}));
    EXPECT_EQ(w.GetFullString(true, false).Str(), VU_T("aa \r\r\nbb\r\ncc \r\r\ndd"));
    EXPECT_EQ(w.GetFullString(true, true).Str(), VU_T("aa \r\nbb\r\ncc \r\ndd"));
    EXPECT_EQ(w.GetFullString(false, false).Str(), VU_T("aa bb\r\ncc dd"));
    EXPECT_EQ(w.GetLine(-1), VU_T("INVALID_LINE_NUMBER"));
    EXPECT_EQ(w.GetLine(4), VU_T("INVALID_LINE_NUMBER"));
    EXPECT_EQ(VU_CWordWrappedString(VU_T(""), 3).GetFullString(true, true).Str(), VU_T(""));
}

// ---- Changing text, length and indentation --------------------------------------

TEST(WordWrappedString, EveryChangeParsesAgain) {
    VU_CWordWrappedString w(VU_T("ab cd"), -1);
    EXPECT_EQ(w.GetMaxLineLength(), 2147483647);
    EXPECT_EQ(w.GetNumLines(), 1);
    w.SetLineLength(3);
    EXPECT_EQ(LinesOf(w), (Lines{VU_T("ab "), VU_T("cd")}));
    w = CString(VU_T("abcdefg"));
    EXPECT_EQ(LinesOf(w), (Lines{VU_T("abc"), VU_T("def"), VU_T("g")}));
    EXPECT_EQ(w.GetUnparsedLength(), 7);
    w = static_cast<const CString*>(nullptr);
    EXPECT_EQ(w.GetNumLines(), 0);
    VU_CWordWrappedString copy(VU_T("x y"), 2);
    w = copy;
    EXPECT_EQ(LinesOf(w), (Lines{VU_T("x "), VU_T("y")}));
    EXPECT_EQ(w.GetMaxLineLength(), 2);
}

TEST(WordWrappedString, IndentText) {
    VU_CWordWrappedString w(VU_T("aa bb\r\ncc"), 3);
    EXPECT_EQ(w.IndentText(0, 0), 0);
    EXPECT_EQ(w.IndentText(2, 3), 0);
    EXPECT_EQ(w.IndentText(2, -1), 0);
    EXPECT_EQ(w.IndentText(2, 1), 1);
    EXPECT_EQ(w.IndentText(1, 2), 1);
    EXPECT_EQ(LinesOf(w), (Lines{VU_T("aa "), VU_T("  bb\r\n"), VU_T("   cc")}));
    EXPECT_EQ(w.GetFullString(true, false).Str(), VU_T("aa \r\r\n  bb\r\n   cc"));
    w.SetLineLength(3); // a parse forgets the indentation
    EXPECT_EQ(LinesOf(w), (Lines{VU_T("aa "), VU_T("bb\r\n"), VU_T("cc")}));
}

struct TokenizingString : VU_CWordWrappedString {
    using VU_CWordWrappedString::Tokenize;
    using VU_CWordWrappedString::VU_CWordWrappedString;
};

TEST(WordWrappedString, Tokens) {
    CStringArray tokens;
    TokenizingString(VU_T("ab  c\r\n\r\rd\t\u3000e"), -1).Tokenize(tokens);
    Lines got;
    for (INT_PTR i = 0; i < tokens.GetSize(); ++i)
        got.push_back(tokens[i].Str());
    EXPECT_EQ(got, (Lines{VU_T("ab"), VU_T(" "), VU_T(" "), VU_T("c"), VU_T("\r\n"), VU_T("\r"),
                          VU_T("\r"), VU_T("d"), VU_T("\t"), VU_T("\u3000"), VU_T("e")}));
}

} // namespace
