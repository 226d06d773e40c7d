#pragma once
// VU_CSearchableStringWithSoftLineBreaks: a searchable string whose text may
// hold soft line breaks, "\r\r\n", the breaks that word wrapping inserts for
// display only (a hard break typed by the user is "\r\n").
//
// The object knows where its soft breaks are, can take them out, stand
// another text in their place, and put them back. Every search and edit works
// on the text without soft breaks: positions given and returned count that
// text. Each such operation takes the soft breaks out if they are in, does
// the base operation, and puts them back afterwards.
//
// A selection (start, end) follows the text through these changes; -1 means
// no selection. Searches set it to (match, match + length); the default is a
// caret at 0, (0, -1). How it follows the soft breaks:
//  - Taking out or putting in text of length L at the soft breaks moves the
//    start by L for each break before it and the end for each break at or
//    before it; each comparison uses the bounds as already moved by the
//    breaks before (so with several breaks the moved bounds are approximate).
//  - ReplaceSelectionWith treats the end as inclusive, so after a search it
//    replaces the match and the character after it, and puts the soft breaks
//    back at their old positions (re-wrap after editing); FindN and the regular
//    expression search report "not found" as the text length.
//  - The edits (InsertAt, DeleteAt, ReplaceAt, and the replace-all paths
//    that go through them) re-assign the text: the selection becomes (0, -1)
//    and the soft breaks are gone until the text is wrapped again.
#include "framework/Array.h"
#include "framework/CString.h"
#include "framework/Types.h"
#include "text/SearchableString.h"

class VU_CSearchableStringWithSoftLineBreaks : public VU_CSearchableString {
public:
    static constexpr WCHAR c_SOFT_LINE_BREAK[] = VU_T("\r\r\n");
    static constexpr WCHAR c_HARD_LINE_BREAK[] = VU_T("\r\n");

    // Construction. The default object has no selection and no replacement;
    // every other constructor sets the selection to (0, -1) and the
    // replacement to the soft break. The 8-bit forms widen each byte.
    VU_CSearchableStringWithSoftLineBreaks();
    VU_CSearchableStringWithSoftLineBreaks(const CString& text);
    VU_CSearchableStringWithSoftLineBreaks(const CString& text, int selectionStart,
                                           int selectionEnd);
    VU_CSearchableStringWithSoftLineBreaks(WCHAR ch, int repeat);
    VU_CSearchableStringWithSoftLineBreaks(const WCHAR* text, int length);
    VU_CSearchableStringWithSoftLineBreaks(const unsigned char* text);
    VU_CSearchableStringWithSoftLineBreaks(const WCHAR* text);
    VU_CSearchableStringWithSoftLineBreaks(const char* text);
    VU_CSearchableStringWithSoftLineBreaks(const VU_CSearchableStringWithSoftLineBreaks& other);

    // Copies the text, the regular-expression state, the delimiters and the
    // soft-break state (replacement, selection, break positions).
    VU_CSearchableStringWithSoftLineBreaks&
    operator=(const VU_CSearchableStringWithSoftLineBreaks& other);
    // Replace the text, reset the selection to (0, -1) and locate the soft
    // breaks in the new text.
    VU_CSearchableStringWithSoftLineBreaks& operator=(const CString& text);
    VU_CSearchableStringWithSoftLineBreaks& operator=(const WCHAR* text);
    VU_CSearchableStringWithSoftLineBreaks& operator=(const char* text);

    // Attributes
    // True while the soft breaks are taken out (not just replaced).
    bool WereSoftLineBreaksRemoved() const;
    // Soft breaks (or what stands in their place) that begin before position.
    int GetNumberOfSoftLineBreaks(int position);
    void SetSelection(int start, int end);
    void GetSelection(int& start, int& end) const;

    // Soft breaks: each returns the number of soft breaks.
    int RemoveSoftLineBreaks();
    int ReInsertSoftLineBreaks();
    // Stands text where the soft breaks are; ReInsertSoftLineBreaks undoes it.
    int ReplaceSoftLineBreaksWith(const CString& text);
    // Wraps the text to lineLength characters (-1: no limit) with soft breaks
    // between lines that do not end in a hard break. A caret at the end of
    // the text stays at the end.
    int WordWrapText(int lineLength);

    // Replaces the selection, its end counted as inclusive; the selection
    // then covers the new text. 0 when there is no selection, else 1. The
    // soft breaks are put back at the positions they had before the edit
    // (they stand replaced meanwhile, so they are not located anew): a
    // caller wraps the text again after editing.
    int ReplaceSelectionWith(const CString& text);

    // Overridables: the base operations on the text without soft breaks.
    VU_CSearchableString& InsertAt(int index, WCHAR ch) override;
    VU_CSearchableString& InsertAt(int index, const WCHAR* text) override;
    VU_CSearchableString& DeleteAt(int index, int count) override;
    VU_CSearchableString& ReplaceAt(int index, int count, const WCHAR* text) override;
    // Runs on the text as it stands (soft breaks included); not found gives
    // the text length, and the selection (length, length).
    int FindN(WCHAR ch, int from, int to, BOOL wholeWord = FALSE) override;
    int Find(const WCHAR* text, int start = 0, BOOL wholeWord = FALSE) override;
    int Find(WCHAR ch, int start = 0, BOOL wholeWord = FALSE) override;
    int FindNoCase(const WCHAR* text, int start = 0, BOOL wholeWord = FALSE) override;
    int FindNoCase(WCHAR ch, int start = 0, BOOL wholeWord = FALSE) override;
    // Selects (match, match + pattern length - 1), or (length, length) when
    // nothing is found, and returns the selection start.
    int FindRegularExp(const WCHAR* pattern, int start = 0) override;
    // Returns the number of replacements; the selection ends at the end.
    int FindReplaceRegularExp(const WCHAR* pattern, const WCHAR* replacement,
                              BOOL all = FALSE) override;
    // With `all` the base replace; without it the first (whole-word when
    // asked) case-sensitive match is selected and replaced through
    // ReplaceSelectionWith, together with the character after it.
    int FindReplace(const WCHAR* find, const WCHAR* replacement, BOOL all = FALSE,
                    BOOL wholeWord = FALSE) override;
    int FindReplaceNoCase(const WCHAR* find, const WCHAR* replacement, BOOL all = FALSE,
                          BOOL wholeWord = FALSE) override;
    int ReverseFind(const WCHAR* text, int start = -1, BOOL wholeWord = FALSE) override;
    int ReverseFind(WCHAR ch) override;
    int ReverseFindNoCase(const WCHAR* text, int start = -1, BOOL wholeWord = FALSE) override;
    int ReverseFindNoCase(WCHAR ch, int start = -1, BOOL wholeWord = FALSE) override;
    int GetFieldCount(WCHAR delimiter) override;
    int GetFieldCount(const WCHAR* delimiter) override;

    // Fields of the text without soft breaks.
    VU_CSearchableStringWithSoftLineBreaks GetField(const WCHAR* delimiter, int n) const;
    VU_CSearchableStringWithSoftLineBreaks GetField(WCHAR delimiter, int n) const;
    VU_CSearchableStringWithSoftLineBreaks GetDelimitedField(const WCHAR* open, const WCHAR* close,
                                                             int n) const;

protected:
    // Refreshes the break positions from the text and returns their number;
    // while the breaks stand replaced the stored positions are kept.
    int LocateAllSoftLineBreaks();
    // Moves the selection for text of that length taken out (adding false)
    // or put in (adding true) at every break position.
    void UpdateSelection(BOOL adding, const CString& text);
    // Searches the text without soft breaks and selects the match.
    int FindTextW(const CString& text, BOOL noCase, int start, BOOL wholeWord, BOOL forward);

private:
    // Takes the soft breaks out for the length of one operation.
    class SoftLineBreaksOut;

    void ResetSoftLineBreakState(int selectionStart, int selectionEnd);
    void ReassignText();
    CString CurrentBreakText() const;
    // The text with whatever stands at the breaks taken out, leaving this
    // object as it is.
    CString TextWithoutSoftLineBreaks() const;
    bool FitsWithBreaksReplaced(int breakLength, const CString& text) const;
    // Stands `text` in place of the breakLength characters at every break.
    void SubstituteAtBreaks(int breakLength, const CString& text);
    template <class Operation> int ReplaceAllInOnePass(Operation replace);

    BOOL m_breaksReplaced;             // TRUE while m_replacement stands at the breaks
    CString m_replacement;             // what stands at the breaks now
    int m_selectionStart;              // -1: no selection
    int m_selectionEnd;                // -1: no selection
    CArray<int, int> m_softLineBreaks; // break positions in the text, ascending
};
