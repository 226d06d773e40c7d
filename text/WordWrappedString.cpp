#include "text/WordWrappedString.h"

#include <algorithm>
#include <climits>
#include <string>
#include <utility>

namespace {

enum class TokenKind { Word, Space, Tab, OtherSpace, HardBreak };

struct Token {
    int length;
    TokenKind kind;
};

bool IsBreakingSpace(WCHAR c) {
    if (c < 0x80)
        return c == VU_T(' ') || (c >= 0x09 && c <= 0x0D);
    switch (c) {
    case 0x0085:
    case 0x1680:
    case 0x2028:
    case 0x2029:
    case 0x205F:
    case 0x3000:
        return true;
    default:
        return c >= 0x2000 && c <= 0x200A && c != 0x2007;
    }
}

// The token that starts at pos (pos < n).
Token NextToken(const WCHAR* s, int n, int pos) {
    const WCHAR c = s[pos];
    if (c == VU_T('\r') && pos + 1 < n && s[pos + 1] == VU_T('\n'))
        return {2, TokenKind::HardBreak};
    if (c == VU_T(' '))
        return {1, TokenKind::Space};
    if (c == VU_T('\t'))
        return {1, TokenKind::Tab};
    if (IsBreakingSpace(c))
        return {1, TokenKind::OtherSpace};
    int end = pos + 1;
    // Printable ASCII is the common case: test it before the full class.
    while (end < n) {
        const WCHAR d = s[end];
        if (d > 0x20 && d < 0x80) {
            ++end;
            continue;
        }
        if (IsBreakingSpace(d))
            break;
        ++end;
    }
    return {end - pos, TokenKind::Word};
}

const WCHAR kInvalidLine[] = VU_T("INVALID_LINE_NUMBER");
const WCHAR kHardBreak[] = VU_T("\r\n");
const WCHAR kSoftBreak[] = VU_T("\r\r\n");

} // namespace

VU_CWordWrappedString::VU_CWordWrappedString(const CString& text, int lineLength)
    : m_maxLineLength(NormalizedLength(lineLength)), m_text(text) {
    Parse();
}

VU_CWordWrappedString::~VU_CWordWrappedString() = default;

int VU_CWordWrappedString::NormalizedLength(int lineLength) {
    return lineLength == -1 ? cNO_LINE_LIMIT : lineLength;
}

// ---- Attributes ---------------------------------------------------------

CString VU_CWordWrappedString::GetLine(int n) const {
    if (n < 0 || n >= GetNumLines())
        return CString(kInvalidLine);
    vu::String out;
    AppendLine(out, m_lines[n]);
    return CString(std::move(out));
}

CString VU_CWordWrappedString::GetFullString(bool wrapped, bool hardBreaks) const {
    if (!wrapped)
        return m_text;
    const vu::StringView brk = hardBreaks ? kHardBreak : kSoftBreak;
    size_t total = 0;
    for (const Line& line : m_lines)
        total += static_cast<size_t>(line.indent) + line.length + brk.size();
    vu::String out;
    out.reserve(total);
    for (size_t i = 0; i < m_lines.size(); ++i) {
        if (i > 0 && !vu::StringView(out).ends_with(kHardBreak))
            out += brk;
        AppendLine(out, m_lines[i]);
    }
    return CString(std::move(out));
}

void VU_CWordWrappedString::AppendLine(vu::String& out, const Line& line) const {
    out.append(static_cast<size_t>(line.indent), VU_T(' '));
    out.append(m_text.GetString() + line.start, static_cast<size_t>(line.length));
}

// ---- Operations ---------------------------------------------------------

void VU_CWordWrappedString::SetString(const CString& text) {
    m_text = text;
    Parse();
}

VU_CWordWrappedString& VU_CWordWrappedString::operator=(const CString& text) {
    SetString(text);
    return *this;
}

VU_CWordWrappedString& VU_CWordWrappedString::operator=(const CString* text) {
    SetString(text ? *text : CString());
    return *this;
}

void VU_CWordWrappedString::SetLineLength(int lineLength) {
    m_maxLineLength = NormalizedLength(lineLength);
    Parse();
}

int VU_CWordWrappedString::IndentText(int spaces, int firstLine) {
    if (spaces < 1 || firstLine < 0 || firstLine >= GetNumLines())
        return 0;
    for (size_t i = static_cast<size_t>(firstLine); i < m_lines.size(); ++i)
        m_lines[i].indent =
            spaces > INT_MAX - m_lines[i].indent ? INT_MAX : m_lines[i].indent + spaces;
    return 1;
}

// ---- Implementation -----------------------------------------------------

void VU_CWordWrappedString::Clear() {
    m_lines.clear();
}

void VU_CWordWrappedString::Tokenize(CStringArray& tokens) const {
    const WCHAR* s = m_text.GetString();
    const int n = m_text.GetLength();
    for (int pos = 0; pos < n;) {
        const Token t = NextToken(s, n, pos);
        tokens.Add(CString(s + pos, t.length));
        pos += t.length;
    }
}

// Greedy fitting over the tokens. The current line L is always the run of the
// text that ends just before the next token, so it is kept as (start, length);
// X is the extra width of the tabs on L (seven columns each beyond their one
// character).
void VU_CWordWrappedString::Parse() {
    Clear();
    const WCHAR* s = m_text.GetString();
    const int n = m_text.GetLength();
    // Lengths below 1 would never let a token fit; wrap them as 1 so that the
    // cutting of long words still makes progress.
    const long long max = std::max(m_maxLineLength, 1);
    const auto emit = [this](int start, int length) { m_lines.push_back({start, length, 0}); };

    int lineStart = 0;
    int lineLength = 0;
    long long extra = 0;
    for (int pos = 0; pos < n;) {
        const Token t = NextToken(s, n, pos);
        const long long column = lineLength + extra;
        const bool fits = t.kind != TokenKind::HardBreak && t.length + column <= max &&
                          !(t.kind == TokenKind::Tab && column + 8 > max);
        if (fits) {
            lineLength += t.length;
        } else if (t.kind == TokenKind::Space || t.kind == TokenKind::HardBreak) {
            // Stays at the end of the line it follows, even one column past.
            emit(lineStart, lineLength + t.length);
            lineStart = pos + t.length;
            lineLength = 0;
            extra = 0;
        } else if (column > 0) {
            // Moves whole to a new line, cut only if it alone is too long; the
            // last piece stays open even when it is exactly full.
            emit(lineStart, lineLength);
            lineStart = pos;
            lineLength = t.length;
            extra = 0;
            while (lineLength > max) {
                emit(lineStart, static_cast<int>(max));
                lineStart += static_cast<int>(max);
                lineLength -= static_cast<int>(max);
            }
        } else {
            // Empty line, token longer than it: full pieces become lines, a
            // shorter rest stays open.
            const int pieces = static_cast<int>(t.length / max);
            for (int i = 0; i < pieces; ++i)
                emit(pos + i * static_cast<int>(max), static_cast<int>(max));
            lineStart = pos + pieces * static_cast<int>(max);
            lineLength = t.length - pieces * static_cast<int>(max);
            extra = 0;
        }
        if (t.kind == TokenKind::Tab)
            extra += 7;
        pos += t.length;
    }
    if (lineLength > 0)
        emit(lineStart, lineLength);
}
