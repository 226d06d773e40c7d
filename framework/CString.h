#pragma once
// CString: the framework's value string of UTF-16 code units. Positions and
// lengths are counts of code units. Out-of-range arguments are clamped or
// give -1/empty results, never a crash; case operations use the library's
// case map (framework/CaseMap.h), so they do not depend on the locale.
#include "framework/Char.h"

#include <cstdarg>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

class CString;

namespace vu::detail {
// What Format passes on for each argument: strings as their pointers,
// scalars (numbers, pointers, enums) and arrays as they are.
const WCHAR* FormatArg(const CString& s);
inline const WCHAR* FormatArg(const vu::String& s) {
    return s.c_str();
}
template <class T>
requires(std::is_scalar_v<T> || std::is_array_v<T>) const T& FormatArg(const T& v) {
    return v;
}
} // namespace vu::detail

class CString {
public:
    // Construction
    CString() = default;
    CString(const WCHAR* psz); // null gives an empty string
    CString(const WCHAR* pch, int length);
    explicit CString(WCHAR ch, int repeat = 1);
    CString(vu::StringView sv) : m_str(sv) {}
    CString(const vu::String& s) : m_str(s) {}
    CString(vu::String&& s) : m_str(std::move(s)) {}
    CString(const CString&) = default;
    CString(CString&&) noexcept = default;
    CString& operator=(const CString&) = default;
    CString& operator=(CString&&) noexcept = default;
    CString& operator=(const WCHAR* psz);
    CString& operator=(WCHAR ch);
    CString& operator=(vu::StringView sv);
    CString& operator=(const vu::String& s) { return *this = vu::StringView(s); }
    ~CString() = default;

    // Attributes
    int GetLength() const { return static_cast<int>(m_str.size()); }
    bool IsEmpty() const { return m_str.empty(); }
    void Empty() { m_str.clear(); }
    // The unit at index; 0 for an index outside the string.
    WCHAR GetAt(int index) const;
    // Replaces the unit at index; nothing happens for an index outside.
    void SetAt(int index, WCHAR ch);
    // Any integer type, so that an unsigned index is not ambiguous with the
    // built-in subscript of the pointer conversion.
    template <class I>
    requires std::is_integral_v<I> WCHAR operator[](I index) const {
        return GetAt(ToIndex(static_cast<long long>(index)));
    }
    operator const WCHAR*() const { return m_str.c_str(); }
    const WCHAR* GetString() const { return m_str.c_str(); }
    vu::StringView View() const { return m_str; }
    const vu::String& Str() const { return m_str; }

    // Direct buffer access: GetBuffer returns a writable buffer of at least
    // minLength units (plus a terminator); ReleaseBuffer(-1) takes the length
    // up to the first 0 unit, ReleaseBuffer(n) sets it to n.
    WCHAR* GetBuffer(int minLength = 0);
    WCHAR* GetBufferSetLength(int length);
    void ReleaseBuffer(int newLength = -1);
    void Preallocate(int length);
    void FreeExtra() { m_str.shrink_to_fit(); }

    // Concatenation
    CString& operator+=(const CString& s);
    CString& operator+=(const WCHAR* psz);
    CString& operator+=(WCHAR ch);
    CString& operator+=(vu::StringView sv);
    CString& operator+=(const vu::String& s) { return *this += vu::StringView(s); }
    void Append(const WCHAR* psz) { *this += psz; }
    void Append(const WCHAR* pch, int length);
    void AppendChar(WCHAR ch) { m_str.push_back(ch); }

    // Comparison: code-unit order (<0, 0, >0); NoCase lowers both sides
    // through the case map first. Collate is the same order as Compare.
    int Compare(const WCHAR* psz) const;
    int CompareNoCase(const WCHAR* psz) const;
    int Collate(const WCHAR* psz) const { return Compare(psz); }
    int CollateNoCase(const WCHAR* psz) const { return CompareNoCase(psz); }

    // Extraction (arguments are clamped to the string)
    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Left(int count) const;
    CString Right(int count) const;
    CString SpanIncluding(const WCHAR* set) const;
    CString SpanExcluding(const WCHAR* set) const;
    // The next token after start that is delimited by any unit of tokens;
    // start moves past it, or becomes -1 with an empty result at the end.
    CString Tokenize(const WCHAR* tokens, int& start) const;

    // Searching: -1 when absent or when start is beyond the end
    int Find(WCHAR ch, int start = 0) const;
    int Find(const WCHAR* sub, int start = 0) const;
    int ReverseFind(WCHAR ch) const;
    int FindOneOf(const WCHAR* set) const;

    // Editing: Insert and Delete return the new length, Replace and Remove
    // the number of replacements or removals.
    int Insert(int index, WCHAR ch);
    int Insert(int index, const WCHAR* psz);
    int Delete(int index, int count = 1);
    int Replace(WCHAR oldCh, WCHAR newCh);
    int Replace(const WCHAR* oldText, const WCHAR* newText);
    int Remove(WCHAR ch);
    CString& MakeLower();
    CString& MakeUpper();
    CString& MakeReverse();

    // Trimming: no argument trims white space (space, tab, CR, LF, VT, FF)
    CString& Trim();
    CString& Trim(WCHAR ch);
    CString& Trim(const WCHAR* set);
    CString& TrimLeft();
    CString& TrimLeft(WCHAR ch);
    CString& TrimLeft(const WCHAR* set);
    CString& TrimRight();
    CString& TrimRight(WCHAR ch);
    CString& TrimRight(const WCHAR* set);

    // Formatting, printf-like over a UTF-16 format: %d %i %u %o %x %X %c %s
    // %p %e %f %g %%, flags - + 0 space #, width and precision (also *), and
    // the length modifiers h hh l ll I I32 I64 z j t. %s and %ls take a
    // const WCHAR* ("(null)" for a null pointer), %hs a const char*, %c
    // and %lc a WCHAR (passed as int). Unknown conversions are copied as
    // they are. A CString or vu::String argument is passed as its
    // character pointer, so it may be given directly for %s; any other class
    // type is rejected at compile time instead of corrupting the arguments.
    template <class... Args> void Format(const WCHAR* format, const Args&... args) {
        FormatList(format, vu::detail::FormatArg(args)...);
    }
    template <class... Args> void AppendFormat(const WCHAR* format, const Args&... args) {
        AppendFormatList(format, vu::detail::FormatArg(args)...);
    }
    void FormatV(const WCHAR* format, va_list args);
    void AppendFormatV(const WCHAR* format, va_list args);

private:
    void FormatList(const WCHAR* format, ...);
    void AppendFormatList(const WCHAR* format, ...);
    static int ToIndex(long long i) { return i < 0 || i > 0x7FFFFFFF ? -1 : static_cast<int>(i); }

    vu::String m_str;
};

// Concatenation
CString operator+(const CString& a, const CString& b);
CString operator+(const CString& a, const WCHAR* b);
CString operator+(const WCHAR* a, const CString& b);
CString operator+(const CString& a, WCHAR b);
CString operator+(WCHAR a, const CString& b);
CString operator+(CString&& a, const CString& b);
CString operator+(CString&& a, const WCHAR* b);
CString operator+(CString&& a, WCHAR b);

// Comparison in code-unit order
bool operator==(const CString& a, const CString& b);
bool operator==(const CString& a, const WCHAR* b);
bool operator==(const WCHAR* a, const CString& b);
bool operator!=(const CString& a, const CString& b);
bool operator!=(const CString& a, const WCHAR* b);
bool operator!=(const WCHAR* a, const CString& b);
bool operator<(const CString& a, const CString& b);
bool operator<(const CString& a, const WCHAR* b);
bool operator<(const WCHAR* a, const CString& b);
bool operator>(const CString& a, const CString& b);
bool operator>(const CString& a, const WCHAR* b);
bool operator>(const WCHAR* a, const CString& b);
bool operator<=(const CString& a, const CString& b);
bool operator<=(const CString& a, const WCHAR* b);
bool operator<=(const WCHAR* a, const CString& b);
bool operator>=(const CString& a, const CString& b);
bool operator>=(const CString& a, const WCHAR* b);
bool operator>=(const WCHAR* a, const CString& b);

template <> struct std::hash<CString> {
    std::size_t operator()(const CString& s) const noexcept {
        return std::hash<vu::StringView>()(s.View());
    }
};
