#include "text/SearchableStringWithSoftLineBreaks.h"

#include "text/WordWrappedString.h"

#include <algorithm>
#include <climits>
#include <string>
#include <string_view>

using Self = VU_CSearchableStringWithSoftLineBreaks;

namespace {

int Length(const WCHAR* text) {
    return text ? static_cast<int>(std::char_traits<WCHAR>::length(text)) : 0;
}

CString OneCharacter(WCHAR ch) {
    const WCHAR text[2] = {ch, 0};
    return CString(text);
}

CString Widened(const char* text) {
    return static_cast<const CString&>(VU_CSearchableString(text));
}

} // namespace

// Takes the soft breaks out if they are in and, when it ends, puts back what
// stood at them, unless the operation re-assigned the text in the meantime
// (then the breaks are gone, as after any edit).
class Self::SoftLineBreaksOut {
public:
    explicit SoftLineBreaksOut(Self& text)
        : m_text(text), m_wasReplaced(text.m_breaksReplaced), m_previous(text.m_replacement) {
        text.LocateAllSoftLineBreaks();
        m_tookOut = !text.WereSoftLineBreaksRemoved();
        if (m_tookOut)
            text.ReplaceSoftLineBreaksWith(CString());
    }
    ~SoftLineBreaksOut() {
        if (!m_tookOut || !m_text.WereSoftLineBreaksRemoved())
            return;
        if (m_wasReplaced)
            m_text.ReplaceSoftLineBreaksWith(m_previous);
        else
            m_text.ReInsertSoftLineBreaks();
    }
    SoftLineBreaksOut(const SoftLineBreaksOut&) = delete;
    SoftLineBreaksOut& operator=(const SoftLineBreaksOut&) = delete;

private:
    Self& m_text;
    const BOOL m_wasReplaced;
    const CString m_previous;
    bool m_tookOut = false;
};

// ---- Construction -----------------------------------------------------------

Self::VU_CSearchableStringWithSoftLineBreaks()
    : m_breaksReplaced(FALSE), m_selectionStart(-1), m_selectionEnd(-1) {}

Self::VU_CSearchableStringWithSoftLineBreaks(const CString& text) : VU_CSearchableString(text) {
    ResetSoftLineBreakState(0, -1);
}

Self::VU_CSearchableStringWithSoftLineBreaks(const CString& text, int selectionStart,
                                             int selectionEnd)
    : VU_CSearchableString(text) {
    ResetSoftLineBreakState(selectionStart, selectionEnd);
}

Self::VU_CSearchableStringWithSoftLineBreaks(WCHAR ch, int repeat)
    : VU_CSearchableString(ch, repeat) {
    ResetSoftLineBreakState(0, -1);
}

Self::VU_CSearchableStringWithSoftLineBreaks(const WCHAR* text, int length)
    : VU_CSearchableString(text, length) {
    ResetSoftLineBreakState(0, -1);
}

Self::VU_CSearchableStringWithSoftLineBreaks(const unsigned char* text)
    : VU_CSearchableString(text) {
    ResetSoftLineBreakState(0, -1);
}

Self::VU_CSearchableStringWithSoftLineBreaks(const WCHAR* text) : VU_CSearchableString(text) {
    ResetSoftLineBreakState(0, -1);
}

Self::VU_CSearchableStringWithSoftLineBreaks(const char* text) : VU_CSearchableString(text) {
    ResetSoftLineBreakState(0, -1);
}

Self::VU_CSearchableStringWithSoftLineBreaks(const Self& other) : Self() {
    *this = other;
}

Self& Self::operator=(const Self& other) {
    if (this == &other)
        return *this;
    VU_CSearchableString::operator=(other);
    m_breaksReplaced = other.m_breaksReplaced;
    m_replacement = other.m_replacement;
    m_selectionStart = other.m_selectionStart;
    m_selectionEnd = other.m_selectionEnd;
    m_softLineBreaks.Copy(other.m_softLineBreaks);
    return *this;
}

Self& Self::operator=(const CString& text) {
    VU_CSearchableString::operator=(text);
    ReassignText();
    return *this;
}

Self& Self::operator=(const WCHAR* text) {
    VU_CSearchableString::operator=(text);
    ReassignText();
    return *this;
}

Self& Self::operator=(const char* text) {
    VU_CSearchableString::operator=(Widened(text));
    ReassignText();
    return *this;
}

void Self::ResetSoftLineBreakState(int selectionStart, int selectionEnd) {
    m_breaksReplaced = FALSE;
    m_replacement = c_SOFT_LINE_BREAK;
    m_selectionStart = selectionStart;
    m_selectionEnd = selectionEnd;
    m_softLineBreaks.SetSize(0);
}

// What the string assignment does after the text has changed.
void Self::ReassignText() {
    ResetSoftLineBreakState(0, -1);
    LocateAllSoftLineBreaks();
}

// ---- Attributes -------------------------------------------------------------

bool Self::WereSoftLineBreaksRemoved() const {
    return m_breaksReplaced && m_replacement.IsEmpty();
}

int Self::GetNumberOfSoftLineBreaks(int position) {
    LocateAllSoftLineBreaks();
    const int* first = m_softLineBreaks.GetData();
    const int* last = first + m_softLineBreaks.GetSize();
    return static_cast<int>(std::lower_bound(first, last, position) - first);
}

void Self::SetSelection(int start, int end) {
    m_selectionStart = start;
    m_selectionEnd = end;
}

void Self::GetSelection(int& start, int& end) const {
    start = m_selectionStart;
    end = m_selectionEnd;
}

// ---- Soft breaks --------------------------------------------------------------

int Self::LocateAllSoftLineBreaks() {
    if (m_breaksReplaced)
        return static_cast<int>(m_softLineBreaks.GetSize());
    m_softLineBreaks.SetSize(0);
    const vu::StringView text = View();
    const vu::StringView soft(c_SOFT_LINE_BREAK);
    for (std::size_t p = text.find(soft); p != vu::StringView::npos; p = text.find(soft, p + 1))
        m_softLineBreaks.Add(static_cast<int>(p));
    return static_cast<int>(m_softLineBreaks.GetSize());
}

CString Self::CurrentBreakText() const {
    return m_breaksReplaced ? m_replacement : CString(c_SOFT_LINE_BREAK);
}

// Comparisons against bounds already moved by the earlier breaks, as the
// selection has always been kept.
void Self::UpdateSelection(BOOL adding, const CString& text) {
    if (m_selectionStart == -1 || m_selectionEnd == -1)
        return;
    const int change = adding ? text.GetLength() : -text.GetLength();
    for (INT_PTR i = 0; i < m_softLineBreaks.GetSize(); ++i) {
        const int p = m_softLineBreaks[i];
        if (p < m_selectionStart)
            m_selectionStart += change;
        if (p <= m_selectionEnd)
            m_selectionEnd += change;
    }
}

bool Self::FitsWithBreaksReplaced(int breakLength, const CString& text) const {
    const long long grown =
        GetLength() +
        m_softLineBreaks.GetSize() * (static_cast<long long>(text.GetLength()) - breakLength);
    return grown <= INT_MAX;
}

// One pass over the text, with the result of replacing break by break: each
// break's characters give way to `text`, and each position moves by what the
// breaks before it added. Positions that no longer fit the text (it was
// changed behind our back) are clamped rather than trusted.
void Self::SubstituteAtBreaks(int breakLength, const CString& text) {
    const INT_PTR count = m_softLineBreaks.GetSize();
    if (count == 0)
        return;
    const vu::StringView old = View();
    vu::String out;
    out.reserve(old.size() + static_cast<std::size_t>(count) * text.GetLength());
    std::size_t copied = 0;
    for (INT_PTR i = 0; i < count; ++i) {
        const std::size_t at = std::clamp<std::size_t>(
            static_cast<std::size_t>(std::max(m_softLineBreaks[i], 0)), copied, old.size());
        out.append(old.substr(copied, at - copied));
        m_softLineBreaks[i] = static_cast<int>(out.size());
        out.append(text.View());
        copied = std::min(old.size(), at + static_cast<std::size_t>(breakLength));
    }
    out.append(old.substr(copied));
    CString::operator=(CString(std::move(out)));
}

int Self::ReplaceSoftLineBreaksWith(const CString& text) {
    const int count = LocateAllSoftLineBreaks();
    const CString current = CurrentBreakText();
    if (!FitsWithBreaksReplaced(current.GetLength(), text))
        return 0; // the result could not be held: leave everything as it is
    UpdateSelection(FALSE, current);
    SubstituteAtBreaks(current.GetLength(), text);
    UpdateSelection(TRUE, text);
    m_replacement = text;
    m_breaksReplaced = TRUE;
    return count;
}

int Self::RemoveSoftLineBreaks() {
    const int count = LocateAllSoftLineBreaks();
    if (WereSoftLineBreaksRemoved())
        return count;
    return ReplaceSoftLineBreaksWith(CString());
}

int Self::ReInsertSoftLineBreaks() {
    const int count = LocateAllSoftLineBreaks();
    if (m_breaksReplaced) {
        ReplaceSoftLineBreaksWith(c_SOFT_LINE_BREAK);
        m_breaksReplaced = FALSE;
    }
    return count;
}

int Self::WordWrapText(int lineLength) {
    const bool caretAtEnd = m_selectionStart == GetLength();
    LocateAllSoftLineBreaks();
    if (!WereSoftLineBreaksRemoved())
        ReplaceSoftLineBreaksWith(CString());
    const VU_CWordWrappedString wrapped(static_cast<const CString&>(*this), lineLength);
    CString::operator=(wrapped.GetFullString(true, false));
    m_breaksReplaced = FALSE;
    const int count = LocateAllSoftLineBreaks();
    m_replacement = c_SOFT_LINE_BREAK;
    UpdateSelection(TRUE, m_replacement);
    if (caretAtEnd)
        m_selectionStart = m_selectionEnd = GetLength();
    return count;
}

CString Self::TextWithoutSoftLineBreaks() const {
    if (WereSoftLineBreaksRemoved())
        return static_cast<const CString&>(*this);
    Self copy(*this);
    copy.RemoveSoftLineBreaks();
    return static_cast<const CString&>(copy);
}

// ---- Selection ----------------------------------------------------------------

int Self::ReplaceSelectionWith(const CString& text) {
    if (m_selectionStart == -1 && m_selectionEnd == -1)
        return 0;
    SoftLineBreaksOut out(*this);
    const int n = GetLength();
    const int first = std::clamp(m_selectionStart, 0, n);
    // The end is inclusive: the characters after it are kept.
    const int end =
        static_cast<int>(std::clamp(static_cast<long long>(m_selectionEnd) + 1,
                                    static_cast<long long>(first), static_cast<long long>(n)));
    if (static_cast<long long>(n) - (end - first) + text.GetLength() > INT_MAX)
        return 0;
    const vu::StringView old = View();
    vu::String replaced;
    replaced.reserve(static_cast<std::size_t>(n - (end - first) + text.GetLength()));
    replaced.append(old.substr(0, first)).append(text.View()).append(old.substr(end));
    // The break positions stay as they were: the breaks go back where they
    // stood before the edit, and the host wraps the text again.
    CString::operator=(CString(std::move(replaced)));
    m_selectionStart = first;
    m_selectionEnd = first + text.GetLength() - 1;
    return 1;
}

// ---- Editing --------------------------------------------------------------------

VU_CSearchableString& Self::InsertAt(int index, WCHAR ch) {
    return InsertAt(index, OneCharacter(ch).GetString());
}

VU_CSearchableString& Self::InsertAt(int index, const WCHAR* text) {
    SoftLineBreaksOut out(*this);
    VU_CSearchableString::InsertAt(index, text);
    ReassignText();
    return *this;
}

VU_CSearchableString& Self::DeleteAt(int index, int count) {
    SoftLineBreaksOut out(*this);
    VU_CSearchableString::DeleteAt(index, count);
    ReassignText();
    return *this;
}

VU_CSearchableString& Self::ReplaceAt(int index, int count, const WCHAR* text) {
    SoftLineBreaksOut out(*this);
    VU_CSearchableString::ReplaceAt(index, count, text);
    ReassignText();
    return *this;
}

// ---- Searching --------------------------------------------------------------------

int Self::FindTextW(const CString& text, BOOL noCase, int start, BOOL wholeWord, BOOL forward) {
    SoftLineBreaksOut out(*this);
    const WCHAR* s = text.GetString();
    int found;
    if (forward)
        found = noCase ? VU_CSearchableString::FindNoCase(s, start, wholeWord)
                       : VU_CSearchableString::Find(s, start, wholeWord);
    else
        found = noCase ? VU_CSearchableString::ReverseFindNoCase(s, start, wholeWord)
                       : VU_CSearchableString::ReverseFind(s, start, wholeWord);
    if (found == -1)
        SetSelection(-1, -1);
    else
        SetSelection(found, found + Length(s));
    return found;
}

int Self::FindN(WCHAR ch, int from, int to, BOOL wholeWord) {
    const int found = VU_CSearchableString::FindN(ch, from, to, wholeWord);
    if (found >= 0) {
        SetSelection(found, found + 1);
        return found;
    }
    SetSelection(GetLength(), GetLength());
    return GetLength();
}

int Self::Find(const WCHAR* text, int start, BOOL wholeWord) {
    return FindTextW(text, FALSE, start, wholeWord, TRUE);
}

int Self::Find(WCHAR ch, int start, BOOL wholeWord) {
    return FindTextW(OneCharacter(ch), FALSE, start, wholeWord, TRUE);
}

int Self::FindNoCase(const WCHAR* text, int start, BOOL wholeWord) {
    return FindTextW(text, TRUE, start, wholeWord, TRUE);
}

int Self::FindNoCase(WCHAR ch, int start, BOOL wholeWord) {
    return FindTextW(OneCharacter(ch), TRUE, start, wholeWord, TRUE);
}

int Self::ReverseFind(const WCHAR* text, int start, BOOL wholeWord) {
    return FindTextW(text, FALSE, start, wholeWord, FALSE);
}

int Self::ReverseFind(WCHAR ch) {
    return FindTextW(OneCharacter(ch), FALSE, -1, FALSE, FALSE);
}

int Self::ReverseFindNoCase(const WCHAR* text, int start, BOOL wholeWord) {
    return FindTextW(text, TRUE, start, wholeWord, FALSE);
}

int Self::ReverseFindNoCase(WCHAR ch, int start, BOOL wholeWord) {
    return FindTextW(OneCharacter(ch), TRUE, start, wholeWord, FALSE);
}

int Self::FindRegularExp(const WCHAR* pattern, int start) {
    {
        SoftLineBreaksOut out(*this);
        const int found = VU_CSearchableString::FindRegularExp(pattern, start);
        if (found >= 0)
            SetSelection(found, found + Length(pattern) - 1);
        else
            SetSelection(GetLength(), GetLength());
    }
    return m_selectionStart;
}

// Replace-all on a plain copy, which replaces in one pass where going
// through our ReplaceAt would copy the whole text for every occurrence. The
// state afterwards is the one the last ReplaceAt would leave: the text
// re-assigned, or nothing changed when nothing was found. The copy carries
// the regular-expression state back.
template <class Operation> int Self::ReplaceAllInOnePass(Operation replace) {
    VU_CSearchableString plain(static_cast<const VU_CSearchableString&>(*this));
    const int count = replace(plain);
    VU_CSearchableString::operator=(plain);
    if (count > 0)
        ReassignText();
    return count;
}

int Self::FindReplaceRegularExp(const WCHAR* pattern, const WCHAR* replacement, BOOL all) {
    SoftLineBreaksOut out(*this);
    const int count = all ? ReplaceAllInOnePass([&](VU_CSearchableString& plain) {
        return plain.FindReplaceRegularExp(pattern, replacement, all);
    })
                          : VU_CSearchableString::FindReplaceRegularExp(pattern, replacement, all);
    SetSelection(GetLength(), GetLength());
    return count;
}

int Self::FindReplace(const WCHAR* find, const WCHAR* replacement, BOOL all, BOOL wholeWord) {
    SoftLineBreaksOut out(*this);
    if (all) {
        const int count = ReplaceAllInOnePass([&](VU_CSearchableString& plain) {
            return plain.FindReplace(find, replacement, all, wholeWord);
        });
        SetSelection(GetLength(), GetLength());
        return count;
    }
    if (FindTextW(find, FALSE, 0, wholeWord, TRUE) == -1)
        return 0;
    return ReplaceSelectionWith(replacement);
}

int Self::FindReplaceNoCase(const WCHAR* find, const WCHAR* replacement, BOOL all, BOOL wholeWord) {
    SoftLineBreaksOut out(*this);
    if (all) {
        const int count = ReplaceAllInOnePass([&](VU_CSearchableString& plain) {
            return plain.FindReplaceNoCase(find, replacement, all, wholeWord);
        });
        SetSelection(GetLength(), GetLength());
        return count;
    }
    if (FindTextW(find, FALSE, 0, wholeWord, TRUE) == -1)
        return 0;
    return ReplaceSelectionWith(replacement);
}

// ---- Fields ------------------------------------------------------------------------

int Self::GetFieldCount(WCHAR delimiter) {
    return GetFieldCount(OneCharacter(delimiter).GetString());
}

int Self::GetFieldCount(const WCHAR* delimiter) {
    VU_CSearchableString plain(TextWithoutSoftLineBreaks());
    return plain.GetFieldCount(delimiter);
}

Self Self::GetField(const WCHAR* delimiter, int n) const {
    const VU_CSearchableString plain(TextWithoutSoftLineBreaks());
    return Self(static_cast<const CString&>(plain.GetField(delimiter, n)));
}

Self Self::GetField(WCHAR delimiter, int n) const {
    return GetField(OneCharacter(delimiter).GetString(), n);
}

Self Self::GetDelimitedField(const WCHAR* open, const WCHAR* close, int n) const {
    const VU_CSearchableString plain(TextWithoutSoftLineBreaks());
    return Self(static_cast<const CString&>(plain.GetDelimitedField(open, close, n)));
}
