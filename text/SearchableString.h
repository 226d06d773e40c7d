#pragma once
// VU_CSearchableString: a framework string with search, replace, field and
// positional editing operations.
//
// Searches go forwards or backwards, by character or substring, exact or
// case-blind (through the library's case map), optionally restricted to whole
// words; words are separated by a per-object set of token delimiters, and the
// start and end of the text count as boundaries. Regular-expression search and
// replace run through VU_CRegExpression. All searches return a character index
// or -1; the replace operations return the number of replacements; the editing
// operations return the object itself.
//
// The editing operations and the searches are virtual so that a derived class
// can keep its own bookkeeping in step with every change of the text: every
// replacement goes through ReplaceAt. For an object of exactly this class,
// replace-all builds the new text in one pass instead (same result, time
// linear in the text); any derived class goes through ReplaceAt.
//
// Regular-expression searches have a step budget (SetRegularExpStepLimit, an
// addition to the classic interface) so that a pattern typed by a user cannot
// freeze the host; the default, 0, is unlimited.
//
// Bad input gives a clear result: null texts count as empty, an empty search
// text is never found, negative start positions count as 0, inserts and
// deletes at a negative index change nothing, and an edit whose result no
// string could hold changes nothing.
//
// The destructor is not virtual: do not delete a derived object through a
// pointer to this class.
#include "framework/CString.h"
#include "framework/Types.h"
#include "text/RegExpression.h"

#include <string>
#include <string_view>

class VU_CSearchableString : public CString {
public:
    // Construction: every constructor sets the default token delimiters.
    // The 8-bit forms widen each byte to the code unit of the same value.
    VU_CSearchableString();
    VU_CSearchableString(const CString& text);
    VU_CSearchableString(const VU_CSearchableString& other);
    VU_CSearchableString(WCHAR ch, int repeat);
    VU_CSearchableString(const WCHAR* text, int length);
    VU_CSearchableString(const unsigned char* text);
    VU_CSearchableString(const WCHAR* text);
    VU_CSearchableString(const char* text);
    ~VU_CSearchableString();

    // Copies the text, the regular-expression state and the delimiters.
    VU_CSearchableString& operator=(const VU_CSearchableString& other);
    // Replace the text only; delimiters and regular-expression state stay.
    VU_CSearchableString& operator=(const CString& text);
    VU_CSearchableString& operator=(const WCHAR* text);

    // The 28 delimiters every constructor sets: space , . ? ! @ # $ % ^ & * ( )
    // - / " ' ; : [ ] + \ tab CR LF ~
    static const WCHAR c_DEFAULT_TOKEN_DELIMITERS[];

    // Attributes
    void SetTokenDelimiters(const WCHAR* delimiters); // null gives none
    void SetTokenDelimiters(const CString& delimiters);
    CString& GetTokenDelimiters() { return m_tokenDelimiters; }
    const CString& GetTokenDelimiters() const { return m_tokenDelimiters; }
    // Step budget of each regular-expression search (see VU_CRegExpression);
    // 0, the default, is unlimited. A search that runs out of steps finds
    // nothing; a replace stops at that search and keeps the replacements made
    // before it. Copies and assignments between searchable strings carry it.
    void SetRegularExpStepLimit(unsigned long long limit) { m_regExp.SetStepLimit(limit); }
    unsigned long long GetRegularExpStepLimit() const { return m_regExp.GetStepLimit(); }
    // True when the last regular-expression search ran out of steps.
    bool IsRegularExpStepLimitExceeded() const { return m_regExp.IsStepLimitExceeded(); }

    // Overridables, in this order (derived classes rely on it).
    //
    // InsertAt: nothing for an empty text or a negative index; beyond the end
    // the gap is filled with spaces. The character form calls the text form.
    virtual VU_CSearchableString& InsertAt(int index, WCHAR ch);
    virtual VU_CSearchableString& InsertAt(int index, const WCHAR* text);
    // Nothing when index is outside the text; a negative count, or one that
    // reaches past the end, deletes up to the end.
    virtual VU_CSearchableString& DeleteAt(int index, int count);
    // Deletes count characters at index and inserts text there; index and
    // count are clamped to the text (an index past the end appends).
    virtual VU_CSearchableString& ReplaceAt(int index, int count, const WCHAR* text);
    // ch within [from, to) (only the character at `from` when from == to).
    // With wholeWord the first occurrence is tested once, with no second try.
    virtual int FindN(WCHAR ch, int from, int to, BOOL wholeWord = FALSE);
    // With wholeWord, after a rejected occurrence the text form resumes past
    // it (overlapping occurrences are skipped), the character form at the
    // next character.
    virtual int Find(const WCHAR* text, int start = 0, BOOL wholeWord = FALSE);
    virtual int Find(WCHAR ch, int start = 0, BOOL wholeWord = FALSE);
    virtual int FindNoCase(const WCHAR* text, int start = 0, BOOL wholeWord = FALSE);
    // The earlier of Find(lower ch) and Find(upper ch), through Find(ch).
    virtual int FindNoCase(WCHAR ch, int start = 0, BOOL wholeWord = FALSE);
    // Compiles pattern (a pattern that fails to compile leaves the previous
    // one in use) and searches the text from start; '^' matches at start.
    virtual int FindRegularExp(const WCHAR* pattern, int start = 0);
    // Replaces the first (or every) match with `replacement` taken literally:
    // '&' and group references are not expanded. After an empty match the
    // next search starts one character further on (the character is kept),
    // so every run ends.
    virtual int FindReplaceRegularExp(const WCHAR* pattern, const WCHAR* replacement,
                                      BOOL all = FALSE);
    // Exact substring replace; non-overlapping occurrences from the start,
    // inserted text is never searched again. wholeWord is accepted and
    // ignored (by both replace operations).
    virtual int FindReplace(const WCHAR* find, const WCHAR* replacement, BOOL all = FALSE,
                            BOOL wholeWord = FALSE);
    virtual int FindReplaceNoCase(const WCHAR* find, const WCHAR* replacement, BOOL all = FALSE,
                                  BOOL wholeWord = FALSE);
    // Last occurrence that begins at or before start (-1: the end); it may
    // run past start but not past the end of the text.
    virtual int ReverseFind(const WCHAR* text, int start = -1, BOOL wholeWord = FALSE);
    virtual int ReverseFind(WCHAR ch);
    virtual int ReverseFindNoCase(const WCHAR* text, int start = -1, BOOL wholeWord = FALSE);
    virtual int ReverseFindNoCase(WCHAR ch, int start = -1, BOOL wholeWord = FALSE);
    // 1 + the number of non-overlapping occurrences of the delimiter.
    virtual int GetFieldCount(WCHAR delimiter);
    virtual int GetFieldCount(const WCHAR* delimiter);

    // Operations
    // Field n (from 0) between occurrences of the delimiter; empty when n is
    // negative or beyond the last field.
    VU_CSearchableString GetField(const WCHAR* delimiter, int n) const;
    VU_CSearchableString GetField(WCHAR delimiter, int n) const;
    // The text between the (n+1)-th `open` and the `close` after it; empty
    // when either is missing or n is negative. Nesting is not recognised.
    VU_CSearchableString GetDelimitedField(const WCHAR* open, const WCHAR* close, int n) const;

protected:
    // index when the length characters at index form a whole word, else -1
    // (also when they do not lie within the text); a negative index is
    // returned unchanged.
    int CheckForWholeWord(int index, int length) const;
    int InternalReverseFind(const WCHAR* text, int start, BOOL wholeWord, bool noCase);
    // True unless the dynamic type is exactly this class: a derived class may
    // keep bookkeeping in ReplaceAt, so its replace-all goes through ReplaceAt
    // one replacement at a time.
    bool IsReplaceAtOverridden() const;

    VU_CRegExpression m_regExp; // last compiled pattern and match state
    CString m_tokenDelimiters;  // characters that separate words

private:
    int FindExact(const WCHAR* text, int start, BOOL wholeWord, bool noCase) const;
    int ReplaceText(const WCHAR* find, const WCHAR* replacement, BOOL all, bool noCase);
    int ReplaceAllInOnePass(const WCHAR* find, int length, vu::StringView replacement, bool noCase);
    int RegularExpReplaceAllInOnePass(vu::StringView replacement);
    void SetText(vu::String&& text);
};
