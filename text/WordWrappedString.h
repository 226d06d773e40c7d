#pragma once

#include "framework/CString.h"
#include "framework/StringArray.h"

#include <vector>

// A text and its division into display lines of at most a maximum number of
// characters. Lines break after whitespace where they can; a word longer than
// a line is cut. Tabs take eight columns, "\r\n" pairs are hard breaks that
// stay at the end of their line. The lines are recomputed whenever the text or
// the length changes.
//
// Whitespace is a fixed, locale-independent set: the ASCII controls 0x09-0x0D,
// the space, and the Unicode spaces and separators that allow a break
// (U+0085, U+1680, U+2000-U+2006, U+2008-U+200A, U+2028, U+2029, U+205F,
// U+3000). The no-break spaces U+00A0, U+2007 and U+202F do not break.
class VU_CWordWrappedString {
public:
    // A line length of -1 means "no limit" and is stored as this value.
    static constexpr int cNO_LINE_LIMIT = 2147483647;

    VU_CWordWrappedString(const CString& text = CString(), int lineLength = -1);
    VU_CWordWrappedString(const VU_CWordWrappedString&) = default;
    VU_CWordWrappedString& operator=(const VU_CWordWrappedString&) = default;
    virtual ~VU_CWordWrappedString();

    // Attributes
    int GetMaxLineLength() const { return m_maxLineLength; }
    int GetNumLines() const { return static_cast<int>(m_lines.size()); }
    // Line n (0-based), or "INVALID_LINE_NUMBER" when n is out of range.
    CString GetLine(int n) const;
    int GetUnparsedLength() const { return m_text.GetLength(); }
    // Without `wrapped` the text as given. With it the lines joined, with
    // "\r\n" (hardBreaks) or the soft break "\r\r\n" between two lines unless
    // the earlier line already ends in "\r\n".
    CString GetFullString(bool wrapped, bool hardBreaks) const;

    // Operations
    void SetString(const CString& text);
    VU_CWordWrappedString& operator=(const CString& text);
    VU_CWordWrappedString& operator=(const CString* text); // null counts as empty
    void SetLineLength(int lineLength);
    // Prefixes lines firstLine..last with `spaces` spaces (not re-wrapped).
    // Returns 0 and changes nothing when firstLine is out of range or
    // spaces < 1, else 1.
    int IndentText(int spaces, int firstLine);

protected:
    void SetMaxLineLength(int lineLength) { m_maxLineLength = lineLength; }
    // Appends the tokens of the text: words, single whitespace characters and
    // "\r\n" pairs.
    void Tokenize(CStringArray& tokens) const;
    void Parse();
    void Clear();

private:
    // Every line is a run of the text, so a line is kept as its place in the
    // text plus the indentation IndentText gave it.
    struct Line {
        int start;
        int length;
        int indent;
    };

    static int NormalizedLength(int lineLength);
    void AppendLine(vu::String& out, const Line& line) const;

    int m_maxLineLength = cNO_LINE_LIMIT;
    std::vector<Line> m_lines;
    CString m_text;
};
