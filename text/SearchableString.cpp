#include "text/SearchableString.h"

#include "framework/CaseMap.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <deque>
#include <string>
#include <string_view>
#include <typeinfo>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

// Substring scans. Forward and backward, exact and case-blind. With SSE2 the
// scans test sixteen positions at a time: a position is a candidate when its
// first character and the character where the needle's last one would fall
// both fit; only candidates are compared in full. Case-blind scans compare
// characters lowered through the case map; their candidate test accepts the
// ASCII characters that lower to the needle's character and every non-ASCII
// character (several of which lower to ASCII letters, e.g. KELVIN SIGN).
namespace {

using TextView = vu::StringView;

int Length(const WCHAR* s) {
    return s ? static_cast<int>(std::char_traits<WCHAR>::length(s)) : 0;
}

vu::String Lowered(const WCHAR* s, int n) {
    vu::String out(s, static_cast<std::size_t>(n));
    vu::MakeLower(out.data(), out.size());
    return out;
}

bool EqualLowered(const WCHAR* s, const WCHAR* lowered, int m) {
    for (int k = 0; k < m; ++k)
        if (vu::ToLower(s[k]) != lowered[k])
            return false;
    return true;
}

// The characters a scan's candidate test accepts for one needle character.
struct CharClass {
    WCHAR a, b;    // accepted exactly (equal when only one)
    bool nonAscii; // every character >= 0x80 is accepted too

    static CharClass Exact(WCHAR c) { return {c, c, false}; }
    // Characters whose lower case is the (already lowered) c.
    static CharClass Folded(WCHAR c) {
        if (c >= 0x80)
            return {0xFFFF, 0xFFFF, true}; // no ASCII character lowers to c
        WCHAR other = c;
        if (c >= VU_T('a') && c <= VU_T('z') && vu::ToLower(static_cast<WCHAR>(c - 32)) == c)
            other = static_cast<WCHAR>(c - 32);
        return {c, other, true};
    }
    bool Accepts(WCHAR x) const { return x == a || x == b || (nonAscii && x >= 0x80); }
};

#if defined(__SSE2__)
// The candidate test on eight units at once; Folded adds "any non-ASCII".
template <bool Folded> struct CharClassVec {
    __m128i a, b;
    explicit CharClassVec(const CharClass& c)
        : a(_mm_set1_epi16(static_cast<short>(c.a))), b(_mm_set1_epi16(static_cast<short>(c.b))) {}
    __m128i Match(__m128i x) const {
        if constexpr (!Folded)
            return _mm_cmpeq_epi16(x, a);
        const __m128i m = _mm_or_si128(_mm_cmpeq_epi16(x, a), _mm_cmpeq_epi16(x, b));
        const __m128i high = _mm_and_si128(x, _mm_set1_epi16(static_cast<short>(0xFF80)));
        const __m128i ascii = _mm_cmpeq_epi16(high, _mm_setzero_si128());
        return _mm_or_si128(m, _mm_andnot_si128(ascii, _mm_set1_epi16(-1)));
    }
};

inline __m128i Load(const WCHAR* p) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
}
#endif

// A needle ready to scan for: its first and last character classes and how to
// verify a candidate.
struct Needle {
    const WCHAR* text; // lowered when noCase
    int length;
    bool noCase;
    CharClass first, last;
    bool filterIsExact; // a candidate is already a match (exact, at most 2 units)

    Needle(const WCHAR* t, int m, bool nc)
        : text(t), length(m), noCase(nc),
          first(nc ? CharClass::Folded(t[0]) : CharClass::Exact(t[0])),
          last(nc ? CharClass::Folded(t[m - 1]) : CharClass::Exact(t[m - 1])),
          filterIsExact(!nc && m <= 2) {}

    bool MatchesAt(const WCHAR* s) const {
        if (filterIsExact)
            return true;
        if (noCase)
            return EqualLowered(s, text, length);
        return std::memcmp(s + 1, text + 1, sizeof(WCHAR) * static_cast<std::size_t>(length - 1)) ==
               0;
    }
    bool Candidate(const WCHAR* s) const {
        return first.Accepts(s[0]) && last.Accepts(s[length - 1]);
    }
};

// Calls onMatch(p) for the occurrences of the needle from `from` on, leftmost
// first and non-overlapping (the next one begins at or after p + length),
// until onMatch returns false. Returns the position where it did, or -1.
template <bool Folded, class OnMatch>
int ForEachOccurrenceOf(const WCHAR* s, int n, int from, const Needle& nd, OnMatch& onMatch) {
    const int m = nd.length;
    const int lastStart = n - m;
    int next = from; // no occurrence may begin before it
    int i = from;
#if defined(__SSE2__)
    const CharClassVec<Folded> first(nd.first), last(nd.last);
    // Sixteen positions per step: the two halves' 16-bit lane masks are
    // packed to bytes so that bit k of the mask stands for position i + k.
    for (; i + 16 <= lastStart + 1; i += 16) {
        const WCHAR* tail = s + i + m - 1;
        const __m128i low = _mm_and_si128(first.Match(Load(s + i)), last.Match(Load(tail)));
        const __m128i high =
            _mm_and_si128(first.Match(Load(s + i + 8)), last.Match(Load(tail + 8)));
        unsigned mask = static_cast<unsigned>(_mm_movemask_epi8(_mm_packs_epi16(low, high)));
        while (mask) {
            const int p = i + __builtin_ctz(mask);
            mask &= mask - 1;
            if (p >= next && nd.MatchesAt(s + p)) {
                if (!onMatch(p))
                    return p;
                next = p + m;
            }
        }
    }
#endif
    for (i = std::max(i, next); i <= lastStart; ++i)
        if (nd.Candidate(s + i) && nd.MatchesAt(s + i)) {
            if (!onMatch(i))
                return i;
            i += m - 1;
        }
    return -1;
}

template <class OnMatch>
int ForEachOccurrence(const WCHAR* s, int n, int from, const Needle& nd, OnMatch&& onMatch) {
    return nd.noCase ? ForEachOccurrenceOf<true>(s, n, from, nd, onMatch)
                     : ForEachOccurrenceOf<false>(s, n, from, nd, onMatch);
}

// First position p >= from with p + m <= n where the needle matches, or -1.
int ScanForward(const WCHAR* s, int n, int from, const Needle& nd) {
    return ForEachOccurrence(s, n, from, nd, [](int) { return false; });
}

// Last position p <= start (p + m <= n) where the needle matches, or -1.
template <bool Folded> int ScanBackwardOf(const WCHAR* s, int n, int start, const Needle& nd) {
    const int m = nd.length;
    int i = std::min(start, n - m);
#if defined(__SSE2__)
    const CharClassVec<Folded> first(nd.first), last(nd.last);
    // Sixteen positions per step ending at i, the highest first.
    for (; i - 15 >= 0; i -= 16) {
        const WCHAR* block = s + i - 15;
        const WCHAR* tail = block + m - 1;
        const __m128i low = _mm_and_si128(first.Match(Load(block)), last.Match(Load(tail)));
        const __m128i high =
            _mm_and_si128(first.Match(Load(block + 8)), last.Match(Load(tail + 8)));
        unsigned mask = static_cast<unsigned>(_mm_movemask_epi8(_mm_packs_epi16(low, high)));
        while (mask) {
            const int k = 31 - __builtin_clz(mask);
            if (nd.MatchesAt(block + k))
                return i - 15 + k;
            mask &= ~(1u << k);
        }
    }
#endif
    for (; i >= 0; --i)
        if (nd.Candidate(s + i) && nd.MatchesAt(s + i))
            return i;
    return -1;
}

int ScanBackward(const WCHAR* s, int n, int start, const Needle& nd) {
    return nd.noCase ? ScanBackwardOf<true>(s, n, start, nd)
                     : ScanBackwardOf<false>(s, n, start, nd);
}

// Delimiter membership in constant time for ASCII, a short scan beyond.
class DelimiterSet {
public:
    explicit DelimiterSet(const CString& delimiters) : m_all(delimiters.View()) {
        for (WCHAR c : m_all)
            if (c < 128)
                m_ascii[c >> 6] |= std::uint64_t{1} << (c & 63);
    }
    bool Contains(WCHAR c) const {
        if (c < 128)
            return (m_ascii[c >> 6] >> (c & 63)) & 1;
        return m_all.find(c) != TextView::npos;
    }

private:
    TextView m_all;
    std::uint64_t m_ascii[2] = {0, 0};
};

// Whether the m characters at index of s (length n) stand between boundaries.
// With lowered, the neighbours are lowered before the test (as in a lowered
// copy of the text).
bool IsWholeWord(const WCHAR* s, int n, int index, int m, const DelimiterSet& delimiters,
                 bool lowered) {
    auto isDelimiter = [&](WCHAR c) { return delimiters.Contains(lowered ? vu::ToLower(c) : c); };
    if (index - 1 >= 0 && !isDelimiter(s[index - 1]))
        return false;
    if (index < n - m && !isDelimiter(s[index + m]))
        return false;
    return true;
}

} // namespace

// ---- Construction ---------------------------------------------------------

const WCHAR VU_CSearchableString::c_DEFAULT_TOKEN_DELIMITERS[] =
    VU_T(" ,.?!@#$%^&*()-/\"';:[]+\\\t\r\n~");

static CString Widened(const unsigned char* text) {
    vu::String out;
    if (text)
        for (; *text; ++text)
            out.push_back(*text);
    return CString(std::move(out));
}

VU_CSearchableString::VU_CSearchableString() : m_tokenDelimiters(c_DEFAULT_TOKEN_DELIMITERS) {}

VU_CSearchableString::VU_CSearchableString(const CString& text)
    : CString(text), m_tokenDelimiters(c_DEFAULT_TOKEN_DELIMITERS) {}

VU_CSearchableString::VU_CSearchableString(const VU_CSearchableString& other)
    : CString(other), m_tokenDelimiters(other.m_tokenDelimiters) {
    m_regExp = other.m_regExp;
}

VU_CSearchableString::VU_CSearchableString(WCHAR ch, int repeat)
    : CString(ch, repeat), m_tokenDelimiters(c_DEFAULT_TOKEN_DELIMITERS) {}

VU_CSearchableString::VU_CSearchableString(const WCHAR* text, int length)
    : CString(text && length > 0 ? CString(text, length) : CString()),
      m_tokenDelimiters(c_DEFAULT_TOKEN_DELIMITERS) {}

VU_CSearchableString::VU_CSearchableString(const unsigned char* text)
    : CString(Widened(text)), m_tokenDelimiters(c_DEFAULT_TOKEN_DELIMITERS) {}

VU_CSearchableString::VU_CSearchableString(const WCHAR* text)
    : CString(text), m_tokenDelimiters(c_DEFAULT_TOKEN_DELIMITERS) {}

VU_CSearchableString::VU_CSearchableString(const char* text)
    : CString(Widened(reinterpret_cast<const unsigned char*>(text))),
      m_tokenDelimiters(c_DEFAULT_TOKEN_DELIMITERS) {}

VU_CSearchableString::~VU_CSearchableString() = default;

VU_CSearchableString& VU_CSearchableString::operator=(const VU_CSearchableString& other) {
    if (this != &other) {
        CString::operator=(other);
        m_regExp = other.m_regExp;
        m_tokenDelimiters = other.m_tokenDelimiters;
    }
    return *this;
}

VU_CSearchableString& VU_CSearchableString::operator=(const CString& text) {
    CString::operator=(text);
    return *this;
}

VU_CSearchableString& VU_CSearchableString::operator=(const WCHAR* text) {
    CString::operator=(text);
    return *this;
}

void VU_CSearchableString::SetTokenDelimiters(const WCHAR* delimiters) {
    m_tokenDelimiters = delimiters; // null gives an empty set
}

void VU_CSearchableString::SetTokenDelimiters(const CString& delimiters) {
    m_tokenDelimiters = delimiters;
}

void VU_CSearchableString::SetText(vu::String&& text) {
    CString::operator=(CString(std::move(text)));
}

// ---- Editing --------------------------------------------------------------

VU_CSearchableString& VU_CSearchableString::InsertAt(int index, WCHAR ch) {
    const WCHAR text[2] = {ch, 0};
    return InsertAt(index, text);
}

VU_CSearchableString& VU_CSearchableString::InsertAt(int index, const WCHAR* text) {
    const int m = Length(text);
    if (m == 0 || index < 0 || static_cast<long long>(index) + m > INT_MAX)
        return *this; // nothing to insert, or a result no string can hold
    const TextView old = View();
    vu::String out;
    if (index < static_cast<int>(old.size())) {
        out.reserve(old.size() + m);
        out.append(old.substr(0, index)).append(text, m).append(old.substr(index));
    } else {
        // Beyond the end the gap is filled with blanks.
        out.reserve(static_cast<std::size_t>(index) + m);
        out.append(old).append(index - old.size(), VU_T(' ')).append(text, m);
    }
    SetText(std::move(out));
    return *this;
}

VU_CSearchableString& VU_CSearchableString::DeleteAt(int index, int count) {
    const int n = GetLength();
    if (index < 0 || index >= n)
        return *this;
    if (count < 0 || count > n - index)
        count = n - index;
    if (count == 0)
        return *this;
    const TextView old = View();
    vu::String out;
    out.reserve(n - count);
    out.append(old.substr(0, index)).append(old.substr(index + count));
    SetText(std::move(out));
    return *this;
}

VU_CSearchableString& VU_CSearchableString::ReplaceAt(int index, int count, const WCHAR* text) {
    const int n = GetLength();
    index = std::clamp(index, 0, n);
    count = std::clamp(count, 0, n - index);
    const int m = Length(text);
    if ((count == 0 && m == 0) || static_cast<long long>(n) - count + m > INT_MAX)
        return *this;
    const TextView old = View();
    vu::String out;
    out.reserve(static_cast<std::size_t>(n) - count + m);
    out.append(old.substr(0, index))
        .append(text ? text : VU_T(""), m)
        .append(old.substr(index + count));
    SetText(std::move(out));
    return *this;
}

// ---- Searching ------------------------------------------------------------

int VU_CSearchableString::CheckForWholeWord(int index, int length) const {
    if (index < 0)
        return index;
    if (length < 0 || index > GetLength() - length)
        return -1; // not within the text
    const DelimiterSet delimiters(m_tokenDelimiters);
    return IsWholeWord(GetString(), GetLength(), index, length, delimiters, false) ? index : -1;
}

int VU_CSearchableString::FindExact(const WCHAR* text, int start, BOOL wholeWord,
                                    bool noCase) const {
    const int m = Length(text);
    const int n = GetLength();
    start = std::max(start, 0);
    if (m == 0 || start > n - m)
        return -1;
    vu::String lowered;
    if (noCase)
        lowered = Lowered(text, m);
    const Needle needle(noCase ? lowered.c_str() : text, m, noCase);
    const WCHAR* s = GetString();
    if (!wholeWord)
        return ScanForward(s, n, start, needle);
    const DelimiterSet delimiters(m_tokenDelimiters);
    // A rejected occurrence is skipped whole: with a single character the
    // search resumes at the next one, with a text past the occurrence.
    for (int p = ScanForward(s, n, start, needle); p >= 0; p = ScanForward(s, n, p + m, needle))
        if (IsWholeWord(s, n, p, m, delimiters, noCase))
            return p;
    return -1;
}

int VU_CSearchableString::FindN(WCHAR ch, int from, int to, BOOL wholeWord) {
    if (from == to && from < INT_MAX)
        to = from + 1;
    const int n = GetLength();
    from = std::max(from, 0);
    to = std::min(to, n);
    if (from >= to)
        return -1;
    const Needle needle(&ch, 1, false);
    const int p = ScanForward(GetString(), to, from, needle);
    return wholeWord ? CheckForWholeWord(p, 1) : p;
}

int VU_CSearchableString::Find(const WCHAR* text, int start, BOOL wholeWord) {
    return FindExact(text, start, wholeWord, false);
}

int VU_CSearchableString::Find(WCHAR ch, int start, BOOL wholeWord) {
    const WCHAR text[2] = {ch, 0};
    return FindExact(text, start, wholeWord, false);
}

int VU_CSearchableString::FindNoCase(const WCHAR* text, int start, BOOL wholeWord) {
    return FindExact(text, start, wholeWord, true);
}

int VU_CSearchableString::FindNoCase(WCHAR ch, int start, BOOL wholeWord) {
    // Compared as unsigned, -1 loses to any real position.
    const unsigned lower = static_cast<unsigned>(Find(vu::ToLower(ch), start, wholeWord));
    const unsigned upper = static_cast<unsigned>(Find(vu::ToUpper(ch), start, wholeWord));
    return static_cast<int>(std::min(lower, upper));
}

int VU_CSearchableString::InternalReverseFind(const WCHAR* text, int start, BOOL wholeWord,
                                              bool noCase) {
    const int m = Length(text);
    const int n = GetLength();
    if (m == 0 || n == 0 || start < -1)
        return -1;
    if (start == -1 || start >= n)
        start = n - 1;
    vu::String lowered;
    if (noCase)
        lowered = Lowered(text, m);
    const Needle needle(noCase ? lowered.c_str() : text, m, noCase);
    const WCHAR* s = GetString();
    int p = ScanBackward(s, n, start, needle);
    if (!wholeWord)
        return p;
    const DelimiterSet delimiters(m_tokenDelimiters);
    for (; p >= 0; p = ScanBackward(s, n, p - 1, needle))
        if (IsWholeWord(s, n, p, m, delimiters, false))
            return p;
    return -1;
}

int VU_CSearchableString::ReverseFind(const WCHAR* text, int start, BOOL wholeWord) {
    return InternalReverseFind(text, start, wholeWord, false);
}

int VU_CSearchableString::ReverseFind(WCHAR ch) {
    const Needle needle(&ch, 1, false);
    return ScanBackward(GetString(), GetLength(), GetLength() - 1, needle);
}

int VU_CSearchableString::ReverseFindNoCase(const WCHAR* text, int start, BOOL wholeWord) {
    return InternalReverseFind(text, start, wholeWord, true);
}

int VU_CSearchableString::ReverseFindNoCase(WCHAR ch, int start, BOOL wholeWord) {
    const WCHAR text[2] = {ch, 0};
    return ReverseFindNoCase(text, start, wholeWord);
}

int VU_CSearchableString::FindRegularExp(const WCHAR* pattern, int start) {
    m_regExp.RegComp(pattern); // on failure the previous pattern stays in use
    start = std::max(start, 0);
    if (start > GetLength())
        return -1;
    const int found = m_regExp.RegFind(GetString() + start);
    return found < 0 ? -1 : found + start;
}

// ---- Replacing ------------------------------------------------------------

bool VU_CSearchableString::IsReplaceAtOverridden() const {
    return typeid(*this) != typeid(VU_CSearchableString);
}

namespace {

// A replaced stretch of the text.
struct Run {
    int at, length;
};

constexpr std::size_t kChunk = 32; // units moved per step by CopyWithSlack

// Copies n units in whole chunks: it may read and write up to kChunk - 1
// units past the end of both ranges, which the caller must own. Gaps between
// frequent matches are short and of varying length; whole chunks keep the
// copy free of length-dependent branches and library calls.
inline WCHAR* CopyWithSlack(WCHAR* to, const WCHAR* from, std::size_t n) {
    std::size_t k = 0;
    do {
        std::memcpy(to + k, from + k, kChunk * sizeof(WCHAR));
        k += kChunk;
    } while (k < n);
    return to + n;
}

inline WCHAR* CopyExact(WCHAR* to, const WCHAR* from, std::size_t n) {
    std::memcpy(to, from, n * sizeof(WCHAR));
    return to + n;
}

// Size of a text of textSize units after `count` stretches of `removed` units
// in all were replaced by `replacement`; false when no string can hold it.
bool ResultSize(std::size_t textSize, std::size_t count, long long removed, std::size_t replacement,
                std::size_t& size) {
    const long long result = static_cast<long long>(textSize) - removed +
                             static_cast<long long>(count) * static_cast<long long>(replacement);
    size = static_cast<std::size_t>(result);
    return result <= INT_MAX;
}

// Writes `text` with stretches replaced by `replacement` into `out`, which the
// caller has sized to the result. The writes go left to right, so what a
// chunk copy writes past its end is overwritten by the next copy; near either
// end the copies are exact.
class Rebuilder {
public:
    Rebuilder(vu::StringView text, vu::StringView replacement, vu::String& out)
        : m_text(text), m_replacement(replacement), m_padded(replacement), m_to(out.data()),
          m_end(out.data() + out.size()) {
        m_padded.resize(replacement.size() + kChunk);
    }
    // Stretches come in ascending order and do not overlap.
    void Replace(std::size_t at, std::size_t length) {
        const std::size_t gap = at - m_copied;
        const WCHAR* from = m_text.data() + m_copied;
        if (at + kChunk <= m_text.size() && m_to + gap + m_replacement.size() + kChunk <= m_end) {
            m_to = CopyWithSlack(m_to, from, gap);
            m_to = CopyWithSlack(m_to, m_padded.data(), m_replacement.size());
        } else {
            m_to = CopyExact(m_to, from, gap);
            m_to = CopyExact(m_to, m_replacement.data(), m_replacement.size());
        }
        m_copied = at + length;
    }
    void Finish() { CopyExact(m_to, m_text.data() + m_copied, m_text.size() - m_copied); }

private:
    vu::StringView m_text, m_replacement;
    vu::String m_padded; // the replacement with room for chunk reads
    WCHAR* m_to;
    WCHAR* const m_end;
    std::size_t m_copied = 0; // units of the text dealt with
};

} // namespace

// Replace-all in one pass over the text: the occurrences found are exactly
// those the replacement-by-replacement loop finds (non-overlapping, from the
// start, never inside inserted text), so the result is the same.
int VU_CSearchableString::ReplaceAllInOnePass(const WCHAR* find, int m, vu::StringView replacement,
                                              bool noCase) {
    vu::String lowered;
    if (noCase)
        lowered = Lowered(find, m);
    const Needle needle(noCase ? lowered.c_str() : find, m, noCase);
    // Count first, so that the result is allocated once at its size, then
    // write it in a second scan.
    const TextView text = View();
    const int n = GetLength();
    std::size_t count = 0, size = 0;
    ForEachOccurrence(text.data(), n, 0, needle, [&count](int) {
        ++count;
        return true;
    });
    if (count == 0 || !ResultSize(text.size(), count, static_cast<long long>(count) * m,
                                  replacement.size(), size))
        return 0;
    vu::String out(size, VU_T('\0'));
    Rebuilder rebuilder(text, replacement, out);
    ForEachOccurrence(text.data(), n, 0, needle, [&rebuilder, m](int p) {
        rebuilder.Replace(static_cast<std::size_t>(p), static_cast<std::size_t>(m));
        return true;
    });
    rebuilder.Finish();
    SetText(std::move(out));
    return static_cast<int>(count);
}

int VU_CSearchableString::ReplaceText(const WCHAR* find, const WCHAR* replacement, BOOL all,
                                      bool noCase) {
    const int m = Length(find);
    if (m == 0)
        return 0;
    const int r = Length(replacement);
    if (!replacement)
        replacement = VU_T("");
    if (all && !IsReplaceAtOverridden())
        return ReplaceAllInOnePass(find, m, vu::StringView(replacement, r), noCase);

    if (!noCase) {
        // Each search runs on the text as ReplaceAt left it.
        int count = 0;
        for (int p = FindExact(find, 0, FALSE, false); p >= 0;
             p = FindExact(find, p + r, FALSE, false)) {
            ReplaceAt(p, m, replacement);
            ++count;
            if (!all)
                break;
        }
        return count;
    }
    // Case-blind: the occurrences come from a lowered copy of the text as it
    // was; the real positions move by what the replacements before added.
    const VU_CSearchableString copy(static_cast<const CString&>(*this));
    int count = 0, shift = 0;
    for (int p = copy.FindExact(find, 0, FALSE, true); p >= 0;
         p = copy.FindExact(find, p + m, FALSE, true)) {
        ReplaceAt(p + shift, m, replacement);
        shift += r - m;
        ++count;
        if (!all)
            break;
    }
    return count;
}

int VU_CSearchableString::FindReplace(const WCHAR* find, const WCHAR* replacement, BOOL all,
                                      BOOL /*wholeWord: ignored*/) {
    return ReplaceText(find, replacement, all, false);
}

int VU_CSearchableString::FindReplaceNoCase(const WCHAR* find, const WCHAR* replacement, BOOL all,
                                            BOOL /*wholeWord: ignored*/) {
    return ReplaceText(find, replacement, all, true);
}

int VU_CSearchableString::FindReplaceRegularExp(const WCHAR* pattern, const WCHAR* replacement,
                                                BOOL all) {
    m_regExp.RegComp(pattern); // on failure the previous pattern stays in use
    const int r = Length(replacement);
    if (!replacement)
        replacement = VU_T("");
    if (all && !IsReplaceAtOverridden())
        return RegularExpReplaceAllInOnePass(vu::StringView(replacement, r));

    // Each search starts right after the inserted replacement, on the text as
    // ReplaceAt left it; after an empty match one more character is skipped.
    int count = 0;
    for (int from = 0; from <= GetLength();) {
        const int found = m_regExp.RegFind(GetString() + from);
        if (found < 0)
            break;
        const int at = from + found;
        const int length = m_regExp.GetFindLen();
        ReplaceAt(at, length, replacement);
        ++count;
        if (!all)
            break;
        from = at + r + (length == 0 ? 1 : 0);
    }
    return count;
}

// The regular-expression replace-all in one pass: every search runs on the
// unchanged rest of the original text, which is what the loop above searches
// after each replacement.
int VU_CSearchableString::RegularExpReplaceAllInOnePass(vu::StringView replacement) {
    const int n = GetLength();
    const WCHAR* s = GetString();
    // Matches are kept in small blocks: a run of huge reallocations would
    // cost more than the replacement on a large text.
    std::deque<Run> runs;
    long long removed = 0;
    for (int from = 0; from <= n;) {
        const int found = m_regExp.RegFind(s + from);
        if (found < 0)
            break;
        const int at = from + found;
        const int length = m_regExp.GetFindLen();
        runs.push_back({at, length});
        removed += length;
        // After an empty match the character after it is kept and skipped.
        from = at + std::max(length, 1);
    }
    std::size_t size = 0;
    if (runs.empty() || !ResultSize(n, runs.size(), removed, replacement.size(), size))
        return 0;
    vu::String out(size, VU_T('\0'));
    Rebuilder rebuilder(View(), replacement, out);
    for (const Run& run : runs)
        rebuilder.Replace(static_cast<std::size_t>(run.at), static_cast<std::size_t>(run.length));
    rebuilder.Finish();
    SetText(std::move(out));
    return static_cast<int>(runs.size());
}

// ---- Fields ---------------------------------------------------------------

int VU_CSearchableString::GetFieldCount(WCHAR delimiter) {
    const WCHAR text[2] = {delimiter, 0};
    return GetFieldCount(text);
}

int VU_CSearchableString::GetFieldCount(const WCHAR* delimiter) {
    const int m = Length(delimiter);
    int count = 1;
    if (m == 0)
        return count;
    for (int p = FindExact(delimiter, 0, FALSE, false); p >= 0;
         p = FindExact(delimiter, p + m, FALSE, false))
        ++count;
    return count;
}

VU_CSearchableString VU_CSearchableString::GetField(const WCHAR* delimiter, int n) const {
    if (n < 0)
        return VU_CSearchableString();
    const int m = Length(delimiter);
    const int length = GetLength();
    int cursor = 0, begin = 0, end = 0;
    for (int k = 0; k <= n; ++k) {
        begin = cursor;
        const int p = m == 0 ? -1 : FindExact(delimiter, cursor, FALSE, false);
        if (p >= 0) {
            end = p;
            cursor = p + m;
        } else {
            end = cursor = length;
            if (k < n) // no further field: the answer is empty
                return VU_CSearchableString();
        }
    }
    return VU_CSearchableString(GetString() + begin, end - begin);
}

VU_CSearchableString VU_CSearchableString::GetField(WCHAR delimiter, int n) const {
    const WCHAR text[2] = {delimiter, 0};
    return GetField(text, n);
}

VU_CSearchableString VU_CSearchableString::GetDelimitedField(const WCHAR* open, const WCHAR* close,
                                                             int n) const {
    if (n < 0)
        return VU_CSearchableString();
    const int openLength = Length(open), closeLength = Length(close);
    int cursor = 0, begin = 0, end = 0;
    for (int k = n; k >= 0; --k) {
        const int p = FindExact(open, cursor, FALSE, false);
        if (p < 0)
            return VU_CSearchableString();
        begin = p + openLength;
        end = FindExact(close, begin, FALSE, false);
        if (end < 0)
            return VU_CSearchableString();
        cursor = end + closeLength;
    }
    return VU_CSearchableString(GetString() + begin, end - begin);
}
