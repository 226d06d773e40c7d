#include "text/WordWrappedString.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::u16string>;

Lines LinesOf(const VU_CWordWrappedString& w) {
    Lines lines;
    for (int i = 0; i < w.GetNumLines(); ++i)
        lines.push_back(w.GetLine(i).Str());
    return lines;
}

// ---- Fitting rules --------------------------------------------------------------

struct WrapRow {
    const char* name;
    std::u16string text;
    int length;
    Lines lines;
};

class Wrapping : public testing::TestWithParam<WrapRow> {};

TEST_P(Wrapping, GivesTheseLines) {
    const WrapRow& row = GetParam();
    EXPECT_EQ(LinesOf(VU_CWordWrappedString(CString(row.text), row.length)), row.lines);
}

std::string RowName(const testing::TestParamInfo<WrapRow>& info) {
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(
    WordWrappedString, Wrapping,
    testing::Values(
        WrapRow{"SpaceThatFitsStays", u"hello world again", 10, {u"hello ", u"world ", u"again"}},
        WrapRow{"SpaceOnePastTheLimit", u"abcde fgh", 5, {u"abcde ", u"fgh"}},
        WrapRow{"LongWordCutOnEmptyLine", u"abcdefghij", 4, {u"abcd", u"efgh", u"ij"}},
        WrapRow{"LongWordMovesThenIsCut", u"ab abcdefgh", 5, {u"ab ", u"abcde", u"fgh"}},
        // Cut on an empty line: a full last piece is emitted, the space then
        // starts a line. Cut after a moved word: the full piece stays open.
        WrapRow{"FullPieceEmittedOnEmptyLine", u"abcdefgh ij", 4, {u"abcd", u"efgh", u" ij"}},
        WrapRow{"FullPieceKeptAfterMove", u"x abcdefgh ij", 4, {u"x ", u"abcd", u"efgh ", u"ij"}},
        WrapRow{"TabTakesEightColumns", u"a\tb", 10, {u"a\tb"}},
        WrapRow{"TabFillsTheLine", u"a\tb", 9, {u"a\t", u"b"}},
        WrapRow{"TabDoesNotFit", u"a\tb", 8, {u"a", u"\t", u"b"}},
        WrapRow{"HardBreakEndsItsLine", u"x\r\ny", -1, {u"x\r\n", u"y"}},
        WrapRow{"NoEmptyLastLine", u"x\r\n", 3, {u"x\r\n"}},
        WrapRow{"HardBreaksAlone", u"\r\n\r\n", 5, {u"\r\n", u"\r\n"}},
        WrapRow{"LoneCrAndLfAreSpaces", u"a\rb\nc", -1, {u"a\rb\nc"}}, WrapRow{"Empty", u"", 5, {}},
        // Only a plain space may hang past the limit.
        WrapRow{"IdeographicSpaceDoesNotHang", u"abcd\u3000x", 4, {u"abcd", u"\u3000x"}},
        WrapRow{"IdeographicSpaceBreaks", u"aaa\u3000bbb", 4, {u"aaa\u3000", u"bbb"}},
        WrapRow{"NoBreakSpaceJoins", u"aaa\u00a0bbb", 4, {u"aaa\u00a0", u"bbb"}},
        WrapRow{"FigureSpaceJoins", u"aaa\u2007bbb", 4, {u"aaa\u2007", u"bbb"}},
        WrapRow{"ZeroLengthCutsEveryCharacter", u"ab", 0, {u"a", u"b"}}),
    RowName);

// ---- Joining ------------------------------------------------------------------------

TEST(WordWrappedString, FullStringJoinsWithSoftOrHardBreaksAndLineNumbersAreChecked) {
    VU_CWordWrappedString w(u"aa bb\r\ncc dd", 3);
    ASSERT_EQ(LinesOf(w), (Lines{u"aa ", u"bb\r\n", u"cc ", u"dd"}));
    EXPECT_EQ(w.GetFullString(true, false).Str(), u"aa \r\r\nbb\r\ncc \r\r\ndd");
    EXPECT_EQ(w.GetFullString(true, true).Str(), u"aa \r\nbb\r\ncc \r\ndd");
    EXPECT_EQ(w.GetFullString(false, false).Str(), u"aa bb\r\ncc dd");
    EXPECT_EQ(w.GetLine(-1), u"INVALID_LINE_NUMBER");
    EXPECT_EQ(w.GetLine(4), u"INVALID_LINE_NUMBER");
    EXPECT_EQ(VU_CWordWrappedString(u"", 3).GetFullString(true, true).Str(), u"");
}

// ---- Changing text, length and indentation --------------------------------------

TEST(WordWrappedString, EveryChangeParsesAgain) {
    VU_CWordWrappedString w(u"ab cd", -1);
    EXPECT_EQ(w.GetMaxLineLength(), 2147483647);
    EXPECT_EQ(w.GetNumLines(), 1);
    w.SetLineLength(3);
    EXPECT_EQ(LinesOf(w), (Lines{u"ab ", u"cd"}));
    w = CString(u"abcdefg");
    EXPECT_EQ(LinesOf(w), (Lines{u"abc", u"def", u"g"}));
    EXPECT_EQ(w.GetUnparsedLength(), 7);
    w = static_cast<const CString*>(nullptr);
    EXPECT_EQ(w.GetNumLines(), 0);
    VU_CWordWrappedString copy(u"x y", 2);
    w = copy;
    EXPECT_EQ(LinesOf(w), (Lines{u"x ", u"y"}));
    EXPECT_EQ(w.GetMaxLineLength(), 2);
}

TEST(WordWrappedString, IndentText) {
    VU_CWordWrappedString w(u"aa bb\r\ncc", 3);
    EXPECT_EQ(w.IndentText(0, 0), 0);
    EXPECT_EQ(w.IndentText(2, 3), 0);
    EXPECT_EQ(w.IndentText(2, -1), 0);
    EXPECT_EQ(w.IndentText(2, 1), 1);
    EXPECT_EQ(w.IndentText(1, 2), 1);
    EXPECT_EQ(LinesOf(w), (Lines{u"aa ", u"  bb\r\n", u"   cc"}));
    EXPECT_EQ(w.GetFullString(true, false).Str(), u"aa \r\r\n  bb\r\n   cc");
    w.SetLineLength(3); // a parse forgets the indentation
    EXPECT_EQ(LinesOf(w), (Lines{u"aa ", u"bb\r\n", u"cc"}));
}

struct TokenizingString : VU_CWordWrappedString {
    using VU_CWordWrappedString::Tokenize;
    using VU_CWordWrappedString::VU_CWordWrappedString;
};

TEST(WordWrappedString, Tokens) {
    CStringArray tokens;
    TokenizingString(u"ab  c\r\n\r\rd\t\u3000e", -1).Tokenize(tokens);
    Lines got;
    for (INT_PTR i = 0; i < tokens.GetSize(); ++i)
        got.push_back(tokens[i].Str());
    EXPECT_EQ(
        got, (Lines{u"ab", u" ", u" ", u"c", u"\r\n", u"\r", u"\r", u"d", u"\t", u"\u3000", u"e"}));
}

} // namespace
