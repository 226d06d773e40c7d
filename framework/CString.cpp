#include "framework/CString.h"

#include "framework/CaseMap.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

namespace {

std::u16string_view ViewOf(const char16_t* psz) {
    return psz == nullptr ? std::u16string_view() : std::u16string_view(psz);
}

constexpr std::u16string_view kWhiteSpace = u" \t\r\n\v\f";

bool InSet(std::u16string_view set, char16_t ch) {
    return set.find(ch) != std::u16string_view::npos;
}

int ThreeWay(int r) {
    return r < 0 ? -1 : (r > 0 ? 1 : 0);
}

// ---- the formatter ---------------------------------------------------------

enum class Length { None, Char, Short, Long, LongLong, IntMax, Size, PtrDiff, IntPtr, LongDouble };

struct FieldSpec {
    bool left = false;  // '-': pad on the right
    bool plus = false;  // '+': always a sign on signed conversions
    bool space = false; // ' ': a space where a plus sign would go
    bool alt = false;   // '#': 0x prefix, leading 0 for octal
    bool zero = false;  // '0': pad numbers with zeros after the sign
    int width = 0;
    int precision = -1; // -1: none given
    Length length = Length::None;
};

// Widths and precisions beyond this are cut, so a malformed format cannot
// ask for gigabytes of padding.
constexpr int kMaxField = 1 << 20;

class Formatter {
public:
    Formatter(std::u16string& out, va_list* args) : m_out(out), m_args(args) {}

    void Run(const char16_t* format) {
        const char16_t* p = format;
        while (*p != 0) {
            if (*p != u'%') {
                const char16_t* run = p;
                while (*p != 0 && *p != u'%')
                    ++p;
                m_out.append(run, p);
                continue;
            }
            p = Conversion(p);
        }
    }

private:
    // Formats the conversion that starts at the '%' at p; returns the
    // position after it.
    const char16_t* Conversion(const char16_t* start) {
        const char16_t* p = start + 1;
        FieldSpec spec;
        for (;; ++p) {
            if (*p == u'-')
                spec.left = true;
            else if (*p == u'+')
                spec.plus = true;
            else if (*p == u' ')
                spec.space = true;
            else if (*p == u'#')
                spec.alt = true;
            else if (*p == u'0')
                spec.zero = true;
            else
                break;
        }
        if (*p == u'*') {
            int w = va_arg(*m_args, int);
            if (w < 0) {
                spec.left = true;
                w = w == INT32_MIN ? kMaxField : -w;
            }
            spec.width = std::min(w, kMaxField);
            ++p;
        } else {
            spec.width = ReadNumber(p);
        }
        if (*p == u'.') {
            ++p;
            if (*p == u'*') {
                const int prec = va_arg(*m_args, int);
                spec.precision = prec < 0 ? -1 : std::min(prec, kMaxField);
                ++p;
            } else {
                spec.precision = ReadNumber(p);
            }
        }
        p = ReadLength(p, spec);
        const char16_t conv = *p;
        if (conv == 0) {
            m_out.append(start, p); // a dangling conversion is kept as text
            return p;
        }
        if (!Convert(conv, spec))
            m_out.append(start, p + 1);
        return p + 1;
    }

    static int ReadNumber(const char16_t*& p) {
        int n = 0;
        while (*p >= u'0' && *p <= u'9') {
            n = std::min(n * 10 + (*p - u'0'), kMaxField);
            ++p;
        }
        return n;
    }

    static const char16_t* ReadLength(const char16_t* p, FieldSpec& spec) {
        switch (*p) {
        case u'h':
            if (p[1] == u'h') {
                spec.length = Length::Char;
                return p + 2;
            }
            spec.length = Length::Short;
            return p + 1;
        case u'l':
            if (p[1] == u'l') {
                spec.length = Length::LongLong;
                return p + 2;
            }
            spec.length = Length::Long;
            return p + 1;
        case u'L':
            spec.length = Length::LongDouble;
            return p + 1;
        case u'j':
            spec.length = Length::IntMax;
            return p + 1;
        case u'z':
            spec.length = Length::Size;
            return p + 1;
        case u't':
            spec.length = Length::PtrDiff;
            return p + 1;
        case u'w':
            spec.length = Length::Long; // %ws: a wide string
            return p + 1;
        case u'I':
            if (p[1] == u'6' && p[2] == u'4') {
                spec.length = Length::LongLong;
                return p + 3;
            }
            if (p[1] == u'3' && p[2] == u'2') {
                spec.length = Length::None;
                return p + 3;
            }
            spec.length = Length::IntPtr;
            return p + 1;
        default:
            return p;
        }
    }

    // Emits one conversion; false for a conversion it does not know.
    bool Convert(char16_t conv, const FieldSpec& spec) {
        switch (conv) {
        case u'%':
            m_out.push_back(u'%');
            return true;
        case u'd':
        case u'i':
            Signed(spec);
            return true;
        case u'u':
            Unsigned(spec, ReadUnsigned(spec.length), 10, false, false);
            return true;
        case u'o':
            Unsigned(spec, ReadUnsigned(spec.length), 8, false, false);
            return true;
        case u'x':
            Unsigned(spec, ReadUnsigned(spec.length), 16, false, spec.alt);
            return true;
        case u'X':
            Unsigned(spec, ReadUnsigned(spec.length), 16, true, spec.alt);
            return true;
        case u'p':
            Pointer(spec);
            return true;
        case u'c':
        case u'C':
            Char(spec);
            return true;
        case u's':
            if (spec.length == Length::Short)
                NarrowString(spec);
            else
                WideString(spec);
            return true;
        case u'S':
            if (spec.length == Length::Long)
                WideString(spec);
            else
                NarrowString(spec);
            return true;
        case u'e':
        case u'E':
        case u'f':
        case u'F':
        case u'g':
        case u'G':
        case u'a':
        case u'A':
            Floating(spec, conv);
            return true;
        default:
            return false;
        }
    }

    long long ReadSigned(Length length) {
        switch (length) {
        case Length::Char:
            return static_cast<signed char>(va_arg(*m_args, int));
        case Length::Short:
            return static_cast<short>(va_arg(*m_args, int));
        case Length::Long:
            return va_arg(*m_args, long);
        case Length::LongLong:
            return va_arg(*m_args, long long);
        case Length::IntMax:
            return static_cast<long long>(va_arg(*m_args, std::intmax_t));
        case Length::Size:
        case Length::PtrDiff:
            return static_cast<long long>(va_arg(*m_args, std::ptrdiff_t));
        case Length::IntPtr:
            return static_cast<long long>(va_arg(*m_args, std::intptr_t));
        default:
            return va_arg(*m_args, int);
        }
    }

    unsigned long long ReadUnsigned(Length length) {
        switch (length) {
        case Length::Char:
            return static_cast<unsigned char>(va_arg(*m_args, unsigned));
        case Length::Short:
            return static_cast<unsigned short>(va_arg(*m_args, unsigned));
        case Length::Long:
            return va_arg(*m_args, unsigned long);
        case Length::LongLong:
            return va_arg(*m_args, unsigned long long);
        case Length::IntMax:
            return static_cast<unsigned long long>(va_arg(*m_args, std::uintmax_t));
        case Length::Size:
        case Length::PtrDiff:
            return static_cast<unsigned long long>(va_arg(*m_args, std::size_t));
        case Length::IntPtr:
            return static_cast<unsigned long long>(va_arg(*m_args, std::uintptr_t));
        default:
            return va_arg(*m_args, unsigned);
        }
    }

    void Signed(const FieldSpec& spec) {
        const long long v = ReadSigned(spec.length);
        const unsigned long long magnitude =
            v < 0 ? 0ULL - static_cast<unsigned long long>(v) : static_cast<unsigned long long>(v);
        std::u16string prefix;
        if (v < 0)
            prefix = u"-";
        else if (spec.plus)
            prefix = u"+";
        else if (spec.space)
            prefix = u" ";
        Number(spec, prefix, Digits(magnitude, 10, false, spec.precision));
    }

    void Unsigned(const FieldSpec& spec, unsigned long long v, unsigned base, bool upper,
                  bool hexPrefix) {
        std::u16string digits = Digits(v, base, upper, spec.precision);
        if (base == 8 && spec.alt && (digits.empty() || digits[0] != u'0'))
            digits.insert(digits.begin(), u'0');
        std::u16string prefix;
        if (hexPrefix && v != 0)
            prefix = upper ? u"0X" : u"0x";
        Number(spec, prefix, digits);
    }

    void Pointer(const FieldSpec& spec) {
        const auto v = reinterpret_cast<std::uintptr_t>(va_arg(*m_args, void*));
        FieldSpec padded = spec;
        padded.precision = static_cast<int>(2 * sizeof(void*));
        Unsigned(padded, v, 16, true, false);
    }

    static std::u16string Digits(unsigned long long v, unsigned base, bool upper, int precision) {
        const char16_t* set = upper ? u"0123456789ABCDEF" : u"0123456789abcdef";
        std::u16string digits;
        if (v == 0 && precision == 0)
            return digits; // "%.0d" of zero prints no digits
        do {
            digits.push_back(set[v % base]);
            v /= base;
        } while (v != 0);
        if (precision > 0 && static_cast<int>(digits.size()) < precision)
            digits.append(precision - digits.size(), u'0');
        std::reverse(digits.begin(), digits.end());
        return digits;
    }

    // Pads a number: zeros go between the prefix and the digits when the
    // '0' flag applies (not with '-' nor with a precision), spaces outside.
    void Number(const FieldSpec& spec, std::u16string_view prefix, std::u16string_view digits) {
        const int len = static_cast<int>(prefix.size() + digits.size());
        const int pad = spec.width > len ? spec.width - len : 0;
        if (spec.zero && !spec.left && spec.precision < 0) {
            m_out.append(prefix);
            m_out.append(pad, u'0');
            m_out.append(digits);
            return;
        }
        if (!spec.left)
            m_out.append(pad, u' ');
        m_out.append(prefix);
        m_out.append(digits);
        if (spec.left)
            m_out.append(pad, u' ');
    }

    void Text(const FieldSpec& spec, std::u16string_view text) {
        const int len = static_cast<int>(text.size());
        const int pad = spec.width > len ? spec.width - len : 0;
        if (!spec.left)
            m_out.append(pad, spec.zero ? u'0' : u' ');
        m_out.append(text);
        if (spec.left)
            m_out.append(pad, u' ');
    }

    void Char(const FieldSpec& spec) {
        const char16_t ch = static_cast<char16_t>(va_arg(*m_args, int));
        Text(spec, std::u16string_view(&ch, 1));
    }

    void WideString(const FieldSpec& spec) {
        const char16_t* s = va_arg(*m_args, const char16_t*);
        std::u16string_view text =
            s == nullptr ? std::u16string_view(u"(null)") : LimitedView(s, spec.precision);
        if (s == nullptr && spec.precision >= 0)
            text = text.substr(0, spec.precision);
        Text(spec, text);
    }

    // A narrow string is taken as Latin-1: each byte is one code unit.
    void NarrowString(const FieldSpec& spec) {
        const char* s = va_arg(*m_args, const char*);
        if (s == nullptr)
            s = "(null)";
        std::u16string wide;
        for (int i = 0; s[i] != 0 && (spec.precision < 0 || i < spec.precision); ++i)
            wide.push_back(static_cast<unsigned char>(s[i]));
        Text(spec, wide);
    }

    // The string up to its terminator or precision units, whichever is
    // first; the terminator is not searched beyond the precision.
    static std::u16string_view LimitedView(const char16_t* s, int precision) {
        std::size_t n = 0;
        while ((precision < 0 || n < static_cast<std::size_t>(precision)) && s[n] != 0)
            ++n;
        return std::u16string_view(s, n);
    }

    void Floating(const FieldSpec& spec, char16_t conv) {
        char narrowFormat[32];
        int n = 0;
        narrowFormat[n++] = '%';
        if (spec.left)
            narrowFormat[n++] = '-';
        if (spec.plus)
            narrowFormat[n++] = '+';
        if (spec.space)
            narrowFormat[n++] = ' ';
        if (spec.alt)
            narrowFormat[n++] = '#';
        if (spec.zero)
            narrowFormat[n++] = '0';
        narrowFormat[n++] = '*';
        narrowFormat[n++] = '.';
        narrowFormat[n++] = '*';
        if (spec.length == Length::LongDouble)
            narrowFormat[n++] = 'L';
        narrowFormat[n++] = static_cast<char>(conv);
        narrowFormat[n] = 0;

        std::string buffer(64, '\0');
        int written;
        if (spec.length == Length::LongDouble) {
            const long double v = va_arg(*m_args, long double);
            written = Print(buffer, narrowFormat, spec, v);
        } else {
            const double v = va_arg(*m_args, double);
            written = Print(buffer, narrowFormat, spec, v);
        }
        for (int i = 0; i < written; ++i)
            m_out.push_back(static_cast<unsigned char>(buffer[i]));
    }

    template <class T>
    static int Print(std::string& buffer, const char* format, const FieldSpec& spec, T v) {
        int written =
            std::snprintf(buffer.data(), buffer.size(), format, spec.width, spec.precision, v);
        if (written < 0)
            return 0;
        if (static_cast<std::size_t>(written) >= buffer.size()) {
            buffer.assign(static_cast<std::size_t>(written) + 1, '\0');
            written =
                std::snprintf(buffer.data(), buffer.size(), format, spec.width, spec.precision, v);
        }
        return written < 0 ? 0 : written;
    }

    std::u16string& m_out;
    va_list* m_args;
};

void FormatInto(std::u16string& out, const char16_t* format, va_list args) {
    if (format == nullptr)
        return;
    va_list copy;
    va_copy(copy, args);
    Formatter(out, &copy).Run(format);
    va_end(copy);
}

} // namespace

// ---- construction ----------------------------------------------------------

CString::CString(const char16_t* psz) : m_str(ViewOf(psz)) {}

CString::CString(const char16_t* pch, int length) {
    if (pch != nullptr && length > 0)
        m_str.assign(pch, static_cast<std::size_t>(length));
}

CString::CString(char16_t ch, int repeat) {
    if (repeat > 0)
        m_str.assign(static_cast<std::size_t>(repeat), ch);
}

CString& CString::operator=(const char16_t* psz) {
    // psz may point into this string: build first, then swap in.
    std::u16string copy(ViewOf(psz));
    m_str.swap(copy);
    return *this;
}

CString& CString::operator=(char16_t ch) {
    m_str.assign(1, ch);
    return *this;
}

CString& CString::operator=(std::u16string_view sv) {
    std::u16string copy(sv);
    m_str.swap(copy);
    return *this;
}

// ---- attributes and buffer -------------------------------------------------

char16_t CString::GetAt(int index) const {
    if (index < 0 || index >= GetLength())
        return 0;
    return m_str[static_cast<std::size_t>(index)];
}

void CString::SetAt(int index, char16_t ch) {
    if (index >= 0 && index < GetLength())
        m_str[static_cast<std::size_t>(index)] = ch;
}

char16_t* CString::GetBuffer(int minLength) {
    if (minLength > GetLength())
        m_str.resize(static_cast<std::size_t>(minLength));
    return m_str.data();
}

char16_t* CString::GetBufferSetLength(int length) {
    m_str.resize(static_cast<std::size_t>(std::max(length, 0)));
    return m_str.data();
}

void CString::ReleaseBuffer(int newLength) {
    if (newLength < 0) {
        const std::size_t end = m_str.find(char16_t(0));
        if (end != std::u16string::npos)
            m_str.resize(end);
        return;
    }
    m_str.resize(std::min(static_cast<std::size_t>(newLength), m_str.size()));
}

void CString::Preallocate(int length) {
    if (length > 0)
        m_str.reserve(static_cast<std::size_t>(length));
}

// ---- concatenation ---------------------------------------------------------

CString& CString::operator+=(const CString& s) {
    m_str += s.m_str;
    return *this;
}

CString& CString::operator+=(const char16_t* psz) {
    m_str += ViewOf(psz);
    return *this;
}

CString& CString::operator+=(char16_t ch) {
    m_str.push_back(ch);
    return *this;
}

CString& CString::operator+=(std::u16string_view sv) {
    m_str += sv;
    return *this;
}

void CString::Append(const char16_t* pch, int length) {
    if (pch != nullptr && length > 0)
        m_str.append(pch, static_cast<std::size_t>(length));
}

// ---- comparison ------------------------------------------------------------

int CString::Compare(const char16_t* psz) const {
    return ThreeWay(View().compare(ViewOf(psz)));
}

int CString::CompareNoCase(const char16_t* psz) const {
    return vu::CompareNoCase(View(), ViewOf(psz));
}

// ---- extraction ------------------------------------------------------------

CString CString::Mid(int first) const {
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const {
    const int length = GetLength();
    first = std::clamp(first, 0, length);
    count = std::clamp(count, 0, length - first);
    return CString(m_str.data() + first, count);
}

CString CString::Left(int count) const {
    return CString(m_str.data(), std::clamp(count, 0, GetLength()));
}

CString CString::Right(int count) const {
    count = std::clamp(count, 0, GetLength());
    return CString(m_str.data() + (GetLength() - count), count);
}

CString CString::SpanIncluding(const char16_t* set) const {
    const std::size_t end = m_str.find_first_not_of(ViewOf(set));
    return CString(View().substr(0, end));
}

CString CString::SpanExcluding(const char16_t* set) const {
    const std::u16string_view s = ViewOf(set);
    if (s.empty())
        return *this;
    return CString(View().substr(0, m_str.find_first_of(s)));
}

CString CString::Tokenize(const char16_t* tokens, int& start) const {
    const int length = GetLength();
    if (start < 0 || start >= length) {
        start = -1;
        return CString();
    }
    const std::u16string_view set = ViewOf(tokens);
    if (set.empty()) {
        // No delimiters: the rest of the string is the one token.
        CString rest = Mid(start);
        start = length;
        return rest;
    }
    const std::size_t begin = m_str.find_first_not_of(set, static_cast<std::size_t>(start));
    if (begin == std::u16string::npos) {
        start = -1;
        return CString();
    }
    std::size_t end = m_str.find_first_of(set, begin);
    if (end == std::u16string::npos)
        end = m_str.size();
    start = static_cast<int>(end) + 1;
    if (start > length)
        start = length;
    return CString(m_str.data() + begin, static_cast<int>(end - begin));
}

// ---- searching -------------------------------------------------------------

int CString::Find(char16_t ch, int start) const {
    if (start < 0)
        start = 0;
    if (start >= GetLength())
        return -1;
    const std::size_t at = m_str.find(ch, static_cast<std::size_t>(start));
    return at == std::u16string::npos ? -1 : static_cast<int>(at);
}

int CString::Find(const char16_t* sub, int start) const {
    if (sub == nullptr)
        return -1;
    if (start < 0)
        start = 0;
    if (start > GetLength())
        return -1;
    const std::size_t at = m_str.find(std::u16string_view(sub), static_cast<std::size_t>(start));
    return at == std::u16string::npos ? -1 : static_cast<int>(at);
}

int CString::ReverseFind(char16_t ch) const {
    const std::size_t at = m_str.rfind(ch);
    return at == std::u16string::npos ? -1 : static_cast<int>(at);
}

int CString::FindOneOf(const char16_t* set) const {
    const std::u16string_view s = ViewOf(set);
    if (s.empty())
        return -1;
    const std::size_t at = m_str.find_first_of(s);
    return at == std::u16string::npos ? -1 : static_cast<int>(at);
}

// ---- editing ---------------------------------------------------------------

int CString::Insert(int index, char16_t ch) {
    index = std::clamp(index, 0, GetLength());
    m_str.insert(static_cast<std::size_t>(index), 1, ch);
    return GetLength();
}

int CString::Insert(int index, const char16_t* psz) {
    index = std::clamp(index, 0, GetLength());
    // psz may point into this string: copy it before inserting.
    const std::u16string text(ViewOf(psz));
    m_str.insert(static_cast<std::size_t>(index), text);
    return GetLength();
}

int CString::Delete(int index, int count) {
    const int length = GetLength();
    if (index < 0)
        index = 0;
    if (count > 0 && index < length) {
        count = std::min(count, length - index);
        m_str.erase(static_cast<std::size_t>(index), static_cast<std::size_t>(count));
    }
    return GetLength();
}

int CString::Replace(char16_t oldCh, char16_t newCh) {
    if (oldCh == newCh)
        return 0; // nothing would change, so nothing counts as replaced
    int n = 0;
    for (char16_t& c : m_str) {
        if (c == oldCh) {
            c = newCh;
            ++n;
        }
    }
    return n;
}

int CString::Replace(const char16_t* oldText, const char16_t* newText) {
    const std::u16string_view from = ViewOf(oldText);
    if (from.empty())
        return 0;
    // Both arguments may point into this string: work on copies.
    const std::u16string pattern(from);
    const std::u16string replacement(ViewOf(newText));
    std::size_t at = m_str.find(pattern);
    if (at == std::u16string::npos)
        return 0;
    std::u16string result;
    result.reserve(m_str.size());
    std::size_t done = 0;
    int n = 0;
    for (; at != std::u16string::npos; at = m_str.find(pattern, done)) {
        result.append(m_str, done, at - done);
        result += replacement;
        done = at + pattern.size();
        ++n;
    }
    result.append(m_str, done, std::u16string::npos);
    m_str.swap(result);
    return n;
}

int CString::Remove(char16_t ch) {
    const std::size_t before = m_str.size();
    std::erase(m_str, ch);
    return static_cast<int>(before - m_str.size());
}

CString& CString::MakeLower() {
    vu::MakeLower(m_str.data(), m_str.size());
    return *this;
}

CString& CString::MakeUpper() {
    vu::MakeUpper(m_str.data(), m_str.size());
    return *this;
}

CString& CString::MakeReverse() {
    std::reverse(m_str.begin(), m_str.end());
    return *this;
}

// ---- trimming --------------------------------------------------------------

CString& CString::Trim() {
    return TrimRight().TrimLeft();
}

CString& CString::Trim(char16_t ch) {
    return TrimRight(ch).TrimLeft(ch);
}

CString& CString::Trim(const char16_t* set) {
    return TrimRight(set).TrimLeft(set);
}

CString& CString::TrimLeft() {
    return TrimLeft(kWhiteSpace.data());
}

CString& CString::TrimLeft(char16_t ch) {
    const char16_t set[2] = {ch, 0};
    return ch == 0 ? *this : TrimLeft(set);
}

CString& CString::TrimLeft(const char16_t* set) {
    const std::u16string_view s = ViewOf(set);
    std::size_t begin = 0;
    while (begin < m_str.size() && InSet(s, m_str[begin]))
        ++begin;
    m_str.erase(0, begin);
    return *this;
}

CString& CString::TrimRight() {
    return TrimRight(kWhiteSpace.data());
}

CString& CString::TrimRight(char16_t ch) {
    const char16_t set[2] = {ch, 0};
    return ch == 0 ? *this : TrimRight(set);
}

CString& CString::TrimRight(const char16_t* set) {
    const std::u16string_view s = ViewOf(set);
    std::size_t end = m_str.size();
    while (end > 0 && InSet(s, m_str[end - 1]))
        --end;
    m_str.resize(end);
    return *this;
}

// ---- formatting ------------------------------------------------------------

const char16_t* vu::detail::FormatArg(const CString& s) {
    return s.GetString();
}

void CString::FormatList(const char16_t* format, ...) {
    va_list args;
    va_start(args, format);
    FormatV(format, args);
    va_end(args);
}

void CString::FormatV(const char16_t* format, va_list args) {
    std::u16string out;
    FormatInto(out, format, args);
    m_str.swap(out);
}

void CString::AppendFormatList(const char16_t* format, ...) {
    va_list args;
    va_start(args, format);
    AppendFormatV(format, args);
    va_end(args);
}

void CString::AppendFormatV(const char16_t* format, va_list args) {
    // Format into a separate string: an argument may point into this one.
    std::u16string out;
    FormatInto(out, format, args);
    m_str += out;
}

// ---- free operators --------------------------------------------------------

CString operator+(const CString& a, const CString& b) {
    CString r(a);
    r += b;
    return r;
}

CString operator+(const CString& a, const char16_t* b) {
    CString r(a);
    r += b;
    return r;
}

CString operator+(const char16_t* a, const CString& b) {
    CString r(a);
    r += b;
    return r;
}

CString operator+(const CString& a, char16_t b) {
    CString r(a);
    r += b;
    return r;
}

CString operator+(char16_t a, const CString& b) {
    CString r(a);
    r += b;
    return r;
}

CString operator+(CString&& a, const CString& b) {
    a += b;
    return std::move(a);
}

CString operator+(CString&& a, const char16_t* b) {
    a += b;
    return std::move(a);
}

CString operator+(CString&& a, char16_t b) {
    a += b;
    return std::move(a);
}

bool operator==(const CString& a, const CString& b) {
    return a.View() == b.View();
}
bool operator==(const CString& a, const char16_t* b) {
    return a.View() == ViewOf(b);
}
bool operator==(const char16_t* a, const CString& b) {
    return ViewOf(a) == b.View();
}
bool operator!=(const CString& a, const CString& b) {
    return !(a == b);
}
bool operator!=(const CString& a, const char16_t* b) {
    return !(a == b);
}
bool operator!=(const char16_t* a, const CString& b) {
    return !(a == b);
}
bool operator<(const CString& a, const CString& b) {
    return a.View() < b.View();
}
bool operator<(const CString& a, const char16_t* b) {
    return a.View() < ViewOf(b);
}
bool operator<(const char16_t* a, const CString& b) {
    return ViewOf(a) < b.View();
}
bool operator>(const CString& a, const CString& b) {
    return b < a;
}
bool operator>(const CString& a, const char16_t* b) {
    return b < a;
}
bool operator>(const char16_t* a, const CString& b) {
    return b < a;
}
bool operator<=(const CString& a, const CString& b) {
    return !(b < a);
}
bool operator<=(const CString& a, const char16_t* b) {
    return !(b < a);
}
bool operator<=(const char16_t* a, const CString& b) {
    return !(b < a);
}
bool operator>=(const CString& a, const CString& b) {
    return !(a < b);
}
bool operator>=(const CString& a, const char16_t* b) {
    return !(a < b);
}
bool operator>=(const char16_t* a, const CString& b) {
    return !(a < b);
}
