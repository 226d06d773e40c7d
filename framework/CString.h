#pragma once
// CString: the framework's value string of UTF-16 code units. Positions and
// lengths are counts of code units. Out-of-range arguments are clamped or
// give -1/empty results, never a crash; case operations use the library's
// case map (framework/CaseMap.h), so they do not depend on the locale.
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
const char16_t* FormatArg(const CString& s);
inline const char16_t* FormatArg(const std::u16string& s) {
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
    CString(const char16_t* psz); // null gives an empty string
    CString(const char16_t* pch, int length);
    explicit CString(char16_t ch, int repeat = 1);
    CString(std::u16string_view sv) : m_str(sv) {}
    CString(const std::u16string& s) : m_str(s) {}
    CString(std::u16string&& s) : m_str(std::move(s)) {}
    CString(const CString&) = default;
    CString(CString&&) noexcept = default;
    CString& operator=(const CString&) = default;
    CString& operator=(CString&&) noexcept = default;
    CString& operator=(const char16_t* psz);
    CString& operator=(char16_t ch);
    CString& operator=(std::u16string_view sv);
    CString& operator=(const std::u16string& s) { return *this = std::u16string_view(s); }
    ~CString() = default;

    // Attributes
    int GetLength() const { return static_cast<int>(m_str.size()); }
    bool IsEmpty() const { return m_str.empty(); }
    void Empty() { m_str.clear(); }
    // The unit at index; 0 for an index outside the string.
    char16_t GetAt(int index) const;
    // Replaces the unit at index; nothing happens for an index outside.
    void SetAt(int index, char16_t ch);
    // Any integer type, so that an unsigned index is not ambiguous with the
    // built-in subscript of the pointer conversion.
    template <class I>
    requires std::is_integral_v<I>
    char16_t operator[](I index) const { return GetAt(ToIndex(static_cast<long long>(index))); }
    operator const char16_t*() const { return m_str.c_str(); }
    const char16_t* GetString() const { return m_str.c_str(); }
    std::u16string_view View() const { return m_str; }
    const std::u16string& Str() const { return m_str; }

    // Direct buffer access: GetBuffer returns a writable buffer of at least
    // minLength units (plus a terminator); ReleaseBuffer(-1) takes the length
    // up to the first 0 unit, ReleaseBuffer(n) sets it to n.
    char16_t* GetBuffer(int minLength = 0);
    char16_t* GetBufferSetLength(int length);
    void ReleaseBuffer(int newLength = -1);
    void Preallocate(int length);
    void FreeExtra() { m_str.shrink_to_fit(); }

    // Concatenation
    CString& operator+=(const CString& s);
    CString& operator+=(const char16_t* psz);
    CString& operator+=(char16_t ch);
    CString& operator+=(std::u16string_view sv);
    CString& operator+=(const std::u16string& s) { return *this += std::u16string_view(s); }
    void Append(const char16_t* psz) { *this += psz; }
    void Append(const char16_t* pch, int length);
    void AppendChar(char16_t ch) { m_str.push_back(ch); }

    // Comparison: code-unit order (<0, 0, >0); NoCase lowers both sides
    // through the case map first. Collate is the same order as Compare.
    int Compare(const char16_t* psz) const;
    int CompareNoCase(const char16_t* psz) const;
    int Collate(const char16_t* psz) const { return Compare(psz); }
    int CollateNoCase(const char16_t* psz) const { return CompareNoCase(psz); }

    // Extraction (arguments are clamped to the string)
    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Left(int count) const;
    CString Right(int count) const;
    CString SpanIncluding(const char16_t* set) const;
    CString SpanExcluding(const char16_t* set) const;
    // The next token after start that is delimited by any unit of tokens;
    // start moves past it, or becomes -1 with an empty result at the end.
    CString Tokenize(const char16_t* tokens, int& start) const;

    // Searching: -1 when absent or when start is beyond the end
    int Find(char16_t ch, int start = 0) const;
    int Find(const char16_t* sub, int start = 0) const;
    int ReverseFind(char16_t ch) const;
    int FindOneOf(const char16_t* set) const;

    // Editing: Insert and Delete return the new length, Replace and Remove
    // the number of replacements or removals.
    int Insert(int index, char16_t ch);
    int Insert(int index, const char16_t* psz);
    int Delete(int index, int count = 1);
    int Replace(char16_t oldCh, char16_t newCh);
    int Replace(const char16_t* oldText, const char16_t* newText);
    int Remove(char16_t ch);
    CString& MakeLower();
    CString& MakeUpper();
    CString& MakeReverse();

    // Trimming: no argument trims white space (space, tab, CR, LF, VT, FF)
    CString& Trim();
    CString& Trim(char16_t ch);
    CString& Trim(const char16_t* set);
    CString& TrimLeft();
    CString& TrimLeft(char16_t ch);
    CString& TrimLeft(const char16_t* set);
    CString& TrimRight();
    CString& TrimRight(char16_t ch);
    CString& TrimRight(const char16_t* set);

    // Formatting, printf-like over a UTF-16 format: %d %i %u %o %x %X %c %s
    // %p %e %f %g %%, flags - + 0 space #, width and precision (also *), and
    // the length modifiers h hh l ll I I32 I64 z j t. %s and %ls take a
    // const char16_t* ("(null)" for a null pointer), %hs a const char*, %c
    // and %lc a char16_t (passed as int). Unknown conversions are copied as
    // they are. A CString or std::u16string argument is passed as its
    // character pointer, so it may be given directly for %s; any other class
    // type is rejected at compile time instead of corrupting the arguments.
    template <class... Args> void Format(const char16_t* format, const Args&... args) {
        FormatList(format, vu::detail::FormatArg(args)...);
    }
    template <class... Args> void AppendFormat(const char16_t* format, const Args&... args) {
        AppendFormatList(format, vu::detail::FormatArg(args)...);
    }
    void FormatV(const char16_t* format, va_list args);
    void AppendFormatV(const char16_t* format, va_list args);

private:
    void FormatList(const char16_t* format, ...);
    void AppendFormatList(const char16_t* format, ...);
    static int ToIndex(long long i) { return i < 0 || i > 0x7FFFFFFF ? -1 : static_cast<int>(i); }

    std::u16string m_str;
};

// Concatenation
CString operator+(const CString& a, const CString& b);
CString operator+(const CString& a, const char16_t* b);
CString operator+(const char16_t* a, const CString& b);
CString operator+(const CString& a, char16_t b);
CString operator+(char16_t a, const CString& b);
CString operator+(CString&& a, const CString& b);
CString operator+(CString&& a, const char16_t* b);
CString operator+(CString&& a, char16_t b);

// Comparison in code-unit order
bool operator==(const CString& a, const CString& b);
bool operator==(const CString& a, const char16_t* b);
bool operator==(const char16_t* a, const CString& b);
bool operator!=(const CString& a, const CString& b);
bool operator!=(const CString& a, const char16_t* b);
bool operator!=(const char16_t* a, const CString& b);
bool operator<(const CString& a, const CString& b);
bool operator<(const CString& a, const char16_t* b);
bool operator<(const char16_t* a, const CString& b);
bool operator>(const CString& a, const CString& b);
bool operator>(const CString& a, const char16_t* b);
bool operator>(const char16_t* a, const CString& b);
bool operator<=(const CString& a, const CString& b);
bool operator<=(const CString& a, const char16_t* b);
bool operator<=(const char16_t* a, const CString& b);
bool operator>=(const CString& a, const CString& b);
bool operator>=(const CString& a, const char16_t* b);
bool operator>=(const char16_t* a, const CString& b);

template <> struct std::hash<CString> {
    std::size_t operator()(const CString& s) const noexcept {
        return std::hash<std::u16string_view>()(s.View());
    }
};
