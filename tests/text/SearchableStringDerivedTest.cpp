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

// Records the calls that reach the overridden slots, then does the base work.
class Recorder : public S {
public:
    using S::Find, S::GetFieldCount, S::InsertAt, S::ReverseFindNoCase;
    using S::IsReplaceAtOverridden;
    using S::S;
    std::vector<std::string> calls;

    S& InsertAt(int index, const WCHAR* text) override {
        calls.push_back("InsertAt " + std::to_string(index) + char(*text));
        return S::InsertAt(index, text);
    }
    int Find(WCHAR ch, int start, BOOL wholeWord) override {
        calls.push_back("Find " + std::string(1, char(ch)) + std::to_string(start));
        return S::Find(ch, start, wholeWord);
    }
    int ReverseFindNoCase(const WCHAR* text, int start, BOOL wholeWord) override {
        calls.push_back("ReverseFindNoCase " + std::string(1, char(*text)) + std::to_string(start));
        return S::ReverseFindNoCase(text, start, wholeWord);
    }
    int GetFieldCount(const WCHAR* delimiter) override {
        calls.push_back("GetFieldCount " + std::string(1, char(*delimiter)));
        return S::GetFieldCount(delimiter);
    }
};

// Overrides ReplaceAt with the base behaviour only: forces the one
// replacement at a time path, which must give the same text.
class OneAtATime : public S {
public:
    using S::S;
    S& ReplaceAt(int index, int count, const WCHAR* text) override {
        ++calls;
        return S::ReplaceAt(index, count, text);
    }
    int calls = 0;
};

TEST(SearchableStringDerived, CharacterFormsGoThroughTheTableAndReplaceAtIsAlwaysUsed) {
    Recorder r(VU_T("aXbx"));
    S& s = r;
    s.InsertAt(1, VU_T('z'));
    EXPECT_EQ(s.ReverseFindNoCase(VU_T('x'), -1, FALSE), 4);
    EXPECT_EQ(s.GetFieldCount(VU_T('x')), 2);
    EXPECT_EQ(s.FindNoCase(VU_T('X'), 0, FALSE), 2);
    const std::vector<std::string> expected = {"InsertAt 1z", "ReverseFindNoCase x-1",
                                               "GetFieldCount x", "Find x0", "Find X0"};
    EXPECT_EQ(r.calls, expected);
    // Only the class itself takes the one-pass path; a derived class may keep
    // bookkeeping in ReplaceAt whether or not this level overrides it.
    EXPECT_TRUE(r.IsReplaceAtOverridden());
}

TEST(SearchableStringDerived, OnePassReplaceAllMatchesOneAtATime) {
    std::mt19937 rng(20240611);
    const auto RandomText = [](std::mt19937& rng, int maxLength) {
        vu::String s(rng() % (maxLength + 1), VU_T(' '));
        for (WCHAR& c : s)
            c = VU_T("aAbB \u00E4\u00C4\u212Ak")[rng() % 9];
        return s;
    };
    const WCHAR* patterns[] = {
        VU_T("a"),      VU_T("ab"),    VU_T("a*"),  VU_T("b+"),  VU_T("^a"),  VU_T("a$"),
        VU_T("(a|b)b"), VU_T("[ab]*"), VU_T("."),   VU_T("x*"),  VU_T(""),    VU_T("^"),
        VU_T("$"),      VU_T("a?b?"),  VU_T("\\a"), VU_T("(ab"), VU_T("k+a"), VU_T("\u00E4+")};
    for (int round = 0; round < 3000 && !HasFailure(); ++round) {
        // Mostly short finds so that they occur; sometimes empty.
        const vu::String text = RandomText(rng, 40), find = RandomText(rng, 3),
                         by = RandomText(rng, 4);
        const int kind = round % 3;
        const WCHAR* what = kind == 2 ? patterns[round % std::size(patterns)] : find.c_str();
        S fast(text.c_str());
        OneAtATime slow(text.c_str());
        int counts[2];
        for (S* s : {&fast, static_cast<S*>(&slow)})
            counts[s == &fast] = kind == 0   ? s->FindReplace(what, by.c_str(), TRUE, FALSE)
                                 : kind == 1 ? s->FindReplaceNoCase(what, by.c_str(), TRUE, FALSE)
                                             : s->FindReplaceRegularExp(what, by.c_str(), TRUE);
        SCOPED_TRACE(testing::Message()
                     << "round " << round << " kind " << kind << " text "
                     << testing::PrintToString(text) << " find " << testing::PrintToString(what));
        EXPECT_EQ(counts[1], counts[0]);
        EXPECT_EQ(fast.Str(), slow.Str());
        EXPECT_EQ(slow.calls, counts[0]);
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
    EXPECT_EQ(s.FindReplaceNoCase(VU_T("XYZ"), VU_T(""), TRUE, FALSE), 400000);
    EXPECT_EQ(s.FindReplaceRegularExp(VU_T("b "), VU_T(""), TRUE), 400000);
    EXPECT_EQ(s.GetLength(), 400000);
}

} // namespace
