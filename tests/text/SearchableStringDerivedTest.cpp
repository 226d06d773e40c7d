// Searchable string seen from derived classes: which virtual operation each
// operation goes through, every replacement reaching an overridden ReplaceAt,
// and the one-pass replace-all giving the same text as one replacement at a
// time.
#include "text/SearchableString.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

std::string Show(std::u16string_view s) {
    std::string out;
    for (char16_t c : s)
        out.push_back(c < 0x80 ? static_cast<char>(c) : '?');
    return out;
}

// Records the calls that reach the overridden slots, then does the base work.
class Recorder : public VU_CSearchableString {
public:
    using VU_CSearchableString::Find;
    using VU_CSearchableString::GetFieldCount;
    using VU_CSearchableString::InsertAt;
    using VU_CSearchableString::IsReplaceAtOverridden;
    using VU_CSearchableString::ReverseFindNoCase;
    using VU_CSearchableString::VU_CSearchableString;

    struct Replacement {
        int index, count;
        std::u16string text;
        bool operator==(const Replacement&) const = default;
        friend void PrintTo(const Replacement& r, std::ostream* os) {
            *os << "(" << r.index << "," << r.count << ",'" << Show(r.text) << "')";
        }
    };
    std::vector<Replacement> replacements;
    std::vector<std::string> calls;

    VU_CSearchableString& ReplaceAt(int index, int count, const char16_t* text) override {
        replacements.push_back({index, count, text ? text : u""});
        return VU_CSearchableString::ReplaceAt(index, count, text);
    }
    VU_CSearchableString& InsertAt(int index, const char16_t* text) override {
        calls.push_back("InsertAt(" + std::to_string(index) + "," + Show(text) + ")");
        return VU_CSearchableString::InsertAt(index, text);
    }
    int Find(char16_t ch, int start, BOOL wholeWord) override {
        calls.push_back("Find(" + Show(std::u16string(1, ch)) + "," + std::to_string(start) + ")");
        return VU_CSearchableString::Find(ch, start, wholeWord);
    }
    int ReverseFindNoCase(const char16_t* text, int start, BOOL wholeWord) override {
        calls.push_back("ReverseFindNoCase(" + Show(text) + "," + std::to_string(start) + ")");
        return VU_CSearchableString::ReverseFindNoCase(text, start, wholeWord);
    }
    int GetFieldCount(const char16_t* delimiter) override {
        calls.push_back("GetFieldCount(" + Show(delimiter) + ")");
        return VU_CSearchableString::GetFieldCount(delimiter);
    }
};

// Derives without touching ReplaceAt: replace-all may take the one-pass path.
class PlainDerived : public VU_CSearchableString {
public:
    using VU_CSearchableString::IsReplaceAtOverridden;
    using VU_CSearchableString::VU_CSearchableString;
    int FindN(char16_t ch, int from, int to, BOOL wholeWord) override {
        return VU_CSearchableString::FindN(ch, from, to, wholeWord);
    }
};

// Overrides ReplaceAt with the base behaviour only: forces the one
// replacement at a time path, which must give the same text.
class OneAtATime : public VU_CSearchableString {
public:
    using VU_CSearchableString::IsReplaceAtOverridden;
    using VU_CSearchableString::VU_CSearchableString;
    VU_CSearchableString& ReplaceAt(int index, int count, const char16_t* text) override {
        ++calls;
        return VU_CSearchableString::ReplaceAt(index, count, text);
    }
    int calls = 0;
};

struct Probe : VU_CSearchableString {
    using VU_CSearchableString::IsReplaceAtOverridden;
    using VU_CSearchableString::VU_CSearchableString;
};

TEST(SearchableStringDerived, DetectsAnOverriddenReplaceAt) {
    EXPECT_FALSE(Probe(u"x").IsReplaceAtOverridden()) << "own class";
    EXPECT_FALSE(PlainDerived(u"x").IsReplaceAtOverridden()) << "derived, ReplaceAt untouched";
    EXPECT_TRUE(OneAtATime(u"x").IsReplaceAtOverridden()) << "derived, ReplaceAt overridden";
    EXPECT_TRUE(Recorder(u"x").IsReplaceAtOverridden());
}

TEST(SearchableStringDerived, CharacterFormsCallTheTextFormsThroughTheTable) {
    Recorder r(u"aXbx");
    VU_CSearchableString& s = r;
    s.InsertAt(1, u'z');
    EXPECT_EQ(s.ReverseFindNoCase(u'x', -1, FALSE), 4);
    EXPECT_EQ(s.GetFieldCount(u'x'), 2);
    EXPECT_EQ(s.FindNoCase(u'X', 0, FALSE), 2);
    const std::vector<std::string> expected = {"InsertAt(1,z)", "ReverseFindNoCase(x,-1)",
                                               "GetFieldCount(x)", "Find(x,0)", "Find(X,0)"};
    EXPECT_EQ(r.calls, expected);
}

TEST(SearchableStringDerived, EveryReplacementGoesThroughReplaceAt) {
    using R = Recorder::Replacement;
    struct Row {
        const char* name;
        const char16_t* text;
        int (*replace)(VU_CSearchableString&);
        int count;
        std::vector<R> replacements;
        std::string result;
    } rows[] = {
        {"exact, all",
         u"aba",
         [](VU_CSearchableString& s) { return s.FindReplace(u"a", u"aa", TRUE, FALSE); },
         2,
         {{0, 1, u"aa"}, {3, 1, u"aa"}},
         "aabaa"},
        {"exact, first",
         u"aba",
         [](VU_CSearchableString& s) { return s.FindReplace(u"a", u"aa", FALSE, FALSE); },
         1,
         {{0, 1, u"aa"}},
         "aaba"},
        {"no case, positions shift",
         u"aAa",
         [](VU_CSearchableString& s) { return s.FindReplaceNoCase(u"A", u"xy", TRUE, FALSE); },
         3,
         {{0, 1, u"xy"}, {2, 1, u"xy"}, {4, 1, u"xy"}},
         "xyxyxy"},
        {"no case, shrinking",
         u"ABcAB",
         [](VU_CSearchableString& s) { return s.FindReplaceNoCase(u"ab", u"", TRUE, FALSE); },
         2,
         {{0, 2, u""}, {1, 2, u""}},
         "c"},
        {"regular expression, literal replacement",
         u"abbcb",
         [](VU_CSearchableString& s) { return s.FindReplaceRegularExp(u"b+", u"&", TRUE); },
         2,
         {{1, 2, u"&"}, {3, 1, u"&"}},
         "a&c&"},
        {"regular expression, empty matches",
         u"ab",
         [](VU_CSearchableString& s) { return s.FindReplaceRegularExp(u"x*", u"-", TRUE); },
         3,
         {{0, 0, u"-"}, {2, 0, u"-"}, {4, 0, u"-"}},
         "-a-b-"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Recorder r(row.text);
        EXPECT_EQ(row.replace(r), row.count);
        EXPECT_EQ(r.replacements, row.replacements);
        EXPECT_EQ(Show(r.View()), row.result);
    }
}

// ---- One pass against one replacement at a time ------------------------------

std::u16string RandomText(std::mt19937& rng, int maxLength, std::u16string_view alphabet) {
    std::uniform_int_distribution<int> length(0, maxLength);
    std::uniform_int_distribution<std::size_t> pick(0, alphabet.size() - 1);
    std::u16string s(length(rng), u' ');
    for (char16_t& c : s)
        c = alphabet[pick(rng)];
    return s;
}

TEST(SearchableStringDerived, OnePassReplaceAllMatchesOneAtATime) {
    std::mt19937 rng(20240611);
    const std::u16string alphabet = u"aAbB \u00E4\u00C4\u212Ak";
    const char16_t* patterns[] = {u"a",      u"ab",    u"a*",  u"b+",  u"^a",  u"a$",
                                  u"(a|b)b", u"[ab]*", u".",   u"x*",  u"",    u"^",
                                  u"$",      u"a?b?",  u"\\a", u"(ab", u"k+a", u"\u00E4+"};
    int checked = 0, differing = 0;
    for (int round = 0; round < 3000; ++round) {
        const std::u16string text = RandomText(rng, 40, alphabet);
        // Mostly short finds so that they occur; sometimes empty.
        const std::u16string find = RandomText(rng, 3, alphabet);
        const std::u16string replacement = RandomText(rng, 4, alphabet);
        const int kind = round % 3;
        VU_CSearchableString fast(text.c_str());
        OneAtATime slow(text.c_str());
        int fastCount = 0, slowCount = 0;
        if (kind == 0) {
            fastCount = fast.FindReplace(find.c_str(), replacement.c_str(), TRUE, FALSE);
            slowCount = slow.FindReplace(find.c_str(), replacement.c_str(), TRUE, FALSE);
        } else if (kind == 1) {
            fastCount = fast.FindReplaceNoCase(find.c_str(), replacement.c_str(), TRUE, FALSE);
            slowCount = slow.FindReplaceNoCase(find.c_str(), replacement.c_str(), TRUE, FALSE);
        } else {
            const char16_t* pattern = patterns[round % std::size(patterns)];
            fastCount = fast.FindReplaceRegularExp(pattern, replacement.c_str(), TRUE);
            slowCount = slow.FindReplaceRegularExp(pattern, replacement.c_str(), TRUE);
        }
        ++checked;
        if (fastCount != slowCount || fast.View() != slow.View() || slow.calls != slowCount) {
            ++differing;
            ADD_FAILURE() << "round " << round << " kind " << kind << " text '" << Show(text)
                          << "' find '" << Show(find) << "' replacement '" << Show(replacement)
                          << "': one pass " << fastCount << " '" << Show(fast.View())
                          << "', one at a time " << slowCount << " '" << Show(slow.View()) << "' ("
                          << slow.calls << " calls)";
            if (differing > 5)
                break;
        }
    }
    EXPECT_EQ(checked, 3000);
}

TEST(SearchableStringDerived, ReplaceAllOnALongTextIsLinear) {
    // 2M characters with 400k matches: the one-pass path finishes in well
    // under a second where one replacement at a time would copy the text
    // 400k times.
    std::u16string text;
    for (int i = 0; i < 400000; ++i)
        text += u"ab cd";
    VU_CSearchableString s(text.c_str());
    EXPECT_EQ(s.FindReplace(u"cd", u"xyz", TRUE, FALSE), 400000);
    EXPECT_EQ(s.GetLength(), 400000 * 6);
    EXPECT_EQ(s.FindReplaceNoCase(u"XYZ", u"", TRUE, FALSE), 400000);
    EXPECT_EQ(s.GetLength(), 400000 * 3);
    EXPECT_EQ(s.FindReplaceRegularExp(u"b ", u"", TRUE), 400000);
    EXPECT_EQ(s.GetLength(), 400000);
}

} // namespace
