// Searchable string seen from derived classes: which virtual operation each
// operation goes through, and the one-pass replace-all giving the same text
// and count as one replacement at a time through an overridden ReplaceAt.
#include "text/SearchableString.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

using S = VU_CSearchableString;

std::string Show(vu::StringView s) {
    std::string out;
    for (WCHAR c : s)
        out.push_back(c < 0x80 ? static_cast<char>(c) : '?');
    return out;
}

enum Kind { Exact, NoCase, RegExp };

// Replaces through the base class, as a user of the base class would.
int Replace(S& s, Kind kind, const WCHAR* find, const WCHAR* by, BOOL all) {
    if (kind == Exact)
        return s.FindReplace(find, by, all, FALSE);
    if (kind == NoCase)
        return s.FindReplaceNoCase(find, by, all, FALSE);
    return s.FindReplaceRegularExp(find, by, all);
}

// Records the calls that reach the overridden slots, then does the base work.
class Recorder : public S {
public:
    using S::Find;
    using S::GetFieldCount;
    using S::InsertAt;
    using S::IsReplaceAtOverridden;
    using S::ReverseFindNoCase;
    using S::S;

    std::vector<std::string> calls;

    S& InsertAt(int index, const WCHAR* text) override {
        calls.push_back("InsertAt(" + std::to_string(index) + "," + Show(text) + ")");
        return S::InsertAt(index, text);
    }
    int Find(WCHAR ch, int start, BOOL wholeWord) override {
        calls.push_back("Find(" + Show(vu::String(1, ch)) + "," + std::to_string(start) + ")");
        return S::Find(ch, start, wholeWord);
    }
    int ReverseFindNoCase(const WCHAR* text, int start, BOOL wholeWord) override {
        calls.push_back("ReverseFindNoCase(" + Show(text) + "," + std::to_string(start) + ")");
        return S::ReverseFindNoCase(text, start, wholeWord);
    }
    int GetFieldCount(const WCHAR* delimiter) override {
        calls.push_back("GetFieldCount(" + Show(delimiter) + ")");
        return S::GetFieldCount(delimiter);
    }
};

// Derives without touching ReplaceAt.
class PlainDerived : public S {
public:
    using S::IsReplaceAtOverridden;
    using S::S;
    int FindN(WCHAR ch, int from, int to, BOOL wholeWord) override {
        return S::FindN(ch, from, to, wholeWord);
    }
};

// Overrides ReplaceAt with the base behaviour only: forces the one
// replacement at a time path, which must give the same text.
class OneAtATime : public S {
public:
    using S::IsReplaceAtOverridden;
    using S::S;
    S& ReplaceAt(int index, int count, const WCHAR* text) override {
        ++calls;
        return S::ReplaceAt(index, count, text);
    }
    int calls = 0;
};

TEST(SearchableStringDerived, EveryDerivedClassReplacesThroughReplaceAt) {
    // Only the class itself takes the one-pass path; a derived class may keep
    // bookkeeping in ReplaceAt whether or not this level overrides it.
    EXPECT_TRUE(PlainDerived(VU_T("x")).IsReplaceAtOverridden());
    EXPECT_TRUE(OneAtATime(VU_T("x")).IsReplaceAtOverridden());
}

TEST(SearchableStringDerived, CharacterFormsCallTheTextFormsThroughTheTable) {
    Recorder r(VU_T("aXbx"));
    S& s = r;
    s.InsertAt(1, VU_T('z'));
    EXPECT_EQ(s.ReverseFindNoCase(VU_T('x'), -1, FALSE), 4);
    EXPECT_EQ(s.GetFieldCount(VU_T('x')), 2);
    EXPECT_EQ(s.FindNoCase(VU_T('X'), 0, FALSE), 2);
    const std::vector<std::string> expected = {"InsertAt(1,z)", "ReverseFindNoCase(x,-1)",
                                               "GetFieldCount(x)", "Find(x,0)", "Find(X,0)"};
    EXPECT_EQ(r.calls, expected);
}

// ---- One pass against one replacement at a time ------------------------------

vu::String RandomText(std::mt19937& rng, int maxLength, vu::StringView alphabet) {
    std::uniform_int_distribution<std::size_t> pick(0, alphabet.size() - 1);
    vu::String s(std::uniform_int_distribution<int>(0, maxLength)(rng), VU_T(' '));
    for (WCHAR& c : s)
        c = alphabet[pick(rng)];
    return s;
}

TEST(SearchableStringDerived, OnePassReplaceAllMatchesOneAtATime) {
    std::mt19937 rng(20240611);
    const vu::String alphabet = VU_T("aAbB \u00E4\u00C4\u212Ak");
    const WCHAR* patterns[] = {
        VU_T("a"),      VU_T("ab"),    VU_T("a*"),  VU_T("b+"),  VU_T("^a"),  VU_T("a$"),
        VU_T("(a|b)b"), VU_T("[ab]*"), VU_T("."),   VU_T("x*"),  VU_T(""),    VU_T("^"),
        VU_T("$"),      VU_T("a?b?"),  VU_T("\\a"), VU_T("(ab"), VU_T("k+a"), VU_T("\u00E4+")};
    for (int round = 0; round < 3000; ++round) {
        const vu::String text = RandomText(rng, 40, alphabet);
        // Mostly short finds so that they occur; sometimes empty.
        const vu::String find = RandomText(rng, 3, alphabet);
        const vu::String by = RandomText(rng, 4, alphabet);
        const Kind kind = static_cast<Kind>(round % 3);
        const WCHAR* what = kind == RegExp ? patterns[round % std::size(patterns)] : find.c_str();
        S fast(text.c_str());
        OneAtATime slow(text.c_str());
        const int fastCount = Replace(fast, kind, what, by.c_str(), TRUE);
        const int slowCount = Replace(slow, kind, what, by.c_str(), TRUE);
        SCOPED_TRACE(testing::Message()
                     << "round " << round << " kind " << kind << " text '" << Show(text)
                     << "' find '" << Show(what) << "' by '" << Show(by) << "'");
        EXPECT_EQ(fastCount, slowCount);
        EXPECT_EQ(Show(fast.View()), Show(slow.View()));
        ASSERT_EQ(slow.calls, slowCount);
        if (HasFailure())
            break;
    }
}

TEST(SearchableStringDerived, ReplaceAllOnALongTextIsLinear) {
    // 2M characters with 400k matches: the one-pass path finishes in well
    // under a second where one replacement at a time would copy the text
    // 400k times.
    vu::String text;
    for (int i = 0; i < 400000; ++i)
        text += VU_T("ab cd");
    S s(text.c_str());
    EXPECT_EQ(s.FindReplace(VU_T("cd"), VU_T("xyz"), TRUE, FALSE), 400000);
    EXPECT_EQ(s.GetLength(), 400000 * 6);
    EXPECT_EQ(s.FindReplaceNoCase(VU_T("XYZ"), VU_T(""), TRUE, FALSE), 400000);
    EXPECT_EQ(s.GetLength(), 400000 * 3);
    EXPECT_EQ(s.FindReplaceRegularExp(VU_T("b "), VU_T(""), TRUE), 400000);
    EXPECT_EQ(s.GetLength(), 400000);
}

} // namespace
