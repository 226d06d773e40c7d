#include "framework/CString.h"

#include "framework/CaseMap.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

namespace {

vu::StringView ViewOf(const WCHAR* psz) {
    return psz == nullptr ? vu::StringView() : vu::StringView(psz);
}

constexpr vu::StringView kWhiteSpace = VU_T(" \t\r\n\v\f");

bool InSet(vu::StringView set, WCHAR ch) {
    return set.find(ch) != vu::StringView::npos;
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
    Formatter(vu::String& out, va_list* args) : m_out(out), m_args(args) {}

    void Run(const WCHAR* format) {
        const WCHAR* p = format;
        while (*p != 0) {
            if (*p != VU_T('%')) {
                const WCHAR* run = p;
                while (*p != 0 && *p != VU_T('%'))
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
    const WCHAR* Conversion(const WCHAR* start) {
        const WCHAR* p = start + 1;
        FieldSpec spec;
        for (;; ++p) {
            if (*p == VU_T('-'))
                spec.left = true;
            else if (*p == VU_T('+'))
                spec.plus = true;
            else if (*p == VU_T(' '))
                spec.space = true;
            else if (*p == VU_T('#'))
                spec.alt = true;
            else if (*p == VU_T('0'))
                spec.zero = true;
            else
                break;
        }
        if (*p == VU_T('*')) {
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
        if (*p == VU_T('.')) {
            ++p;
            if (*p == VU_T('*')) {
                const int prec = va_arg(*m_args, int);
                spec.precision = prec < 0 ? -1 : std::min(prec, kMaxField);
                ++p;
            } else {
                spec.precision = ReadNumber(p);
            }
        }
        p = ReadLength(p, spec);
        const WCHAR conv = *p;
        if (conv == 0) {
            m_out.append(start, p); // a dangling conversion is kept as text
            return p;
        }
        if (!Convert(conv, spec))
            m_out.append(start, p + 1);
        return p + 1;
    }

    static int ReadNumber(const WCHAR*& p) {
        int n = 0;
        while (*p >= VU_T('0') && *p <= VU_T('9')) {
            n = std::min(n * 10 + (*p - VU_T('0')), kMaxField);
            ++p;
        }
        return n;
    }

    static const WCHAR* ReadLength(const WCHAR* p, FieldSpec& spec) {
        switch (*p) {
        case VU_T('h'):
            if (p[1] == VU_T('h')) {
                spec.length = Length::Char;
                return p + 2;
            }
            spec.length = Length::Short;
            return p + 1;
        case VU_T('l'):
            if (p[1] == VU_T('l')) {
                spec.length = Length::LongLong;
                return p + 2;
            }
            spec.length = Length::Long;
            return p + 1;
        case VU_T('L'):
            spec.length = Length::LongDouble;
            return p + 1;
        case VU_T('j'):
            spec.length = Length::IntMax;
            return p + 1;
        case VU_T('z'):
            spec.length = Length::Size;
            return p + 1;
        case VU_T('t'):
            spec.length = Length::PtrDiff;
            return p + 1;
        case VU_T('w'):
            spec.length = Length::Long; // %ws: a wide string
            return p + 1;
        case VU_T('I'):
            if (p[1] == VU_T('6') && p[2] == VU_T('4')) {
                spec.length = Length::LongLong;
                return p + 3;
            }
            if (p[1] == VU_T('3') && p[2] == VU_T('2')) {
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
    bool Convert(WCHAR conv, const FieldSpec& spec) {
        switch (conv) {
        case VU_T('%'):
            m_out.push_back(VU_T('%'));
            return true;
        case VU_T('d'):
        case VU_T('i'):
            Signed(spec);
            return true;
        case VU_T('u'):
            Unsigned(spec, ReadUnsigned(spec.length), 10, false, false);
            return true;
        case VU_T('o'):
            Unsigned(spec, ReadUnsigned(spec.length), 8, false, false);
            return true;
        case VU_T('x'):
            Unsigned(spec, ReadUnsigned(spec.length), 16, false, spec.alt);
            return true;
        case VU_T('X'):
            Unsigned(spec, ReadUnsigned(spec.length), 16, true, spec.alt);
            return true;
        case VU_T('p'):
            Pointer(spec);
            return true;
        case VU_T('c'):
        case VU_T('C'):
            Char(spec);
            return true;
        case VU_T('s'):
            if (spec.length == Length::Short)
                NarrowString(spec);
            else
                WideString(spec);
            return true;
        case VU_T('S'):
            if (spec.length == Length::Long)
                WideString(spec);
            else
                NarrowString(spec);
            return true;
        case VU_T('e'):
        case VU_T('E'):
        case VU_T('f'):
        case VU_T('F'):
        case VU_T('g'):
        case VU_T('G'):
        case VU_T('a'):
        case VU_T('A'):
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
        vu::String prefix;
        if (v < 0)
            prefix = VU_T("-");
        else if (spec.plus)
            prefix = VU_T("+");
        else if (spec.space)
            prefix = VU_T(" ");
        Number(spec, prefix, Digits(magnitude, 10, false, spec.precision));
    }

    void Unsigned(const FieldSpec& spec, unsigned long long v, unsigned base, bool upper,
                  bool hexPrefix) {
        vu::String digits = Digits(v, base, upper, spec.precision);
        if (base == 8 && spec.alt && (digits.empty() || digits[0] != VU_T('0')))
            digits.insert(digits.begin(), VU_T('0'));
        vu::String prefix;
        if (hexPrefix && v != 0)
            prefix = upper ? VU_T("0X") : VU_T("0x");
        Number(spec, prefix, digits);
    }

    void Pointer(const FieldSpec& spec) {
        const auto v = reinterpret_cast<std::uintptr_t>(va_arg(*m_args, void*));
        FieldSpec padded = spec;
        padded.precision = static_cast<int>(2 * sizeof(void*));
        Unsigned(padded, v, 16, true, false);
    }

    static vu::String Digits(unsigned long long v, unsigned base, bool upper, int precision) {
        const WCHAR* set = upper ? VU_T("0123456789ABCDEF") : VU_T("0123456789abcdef");
        vu::String digits;
        if (v == 0 && precision == 0)
            return digits; // "%.0d" of zero prints no digits
        do {
            digits.push_back(set[v % base]);
            v /= base;
        } while (v != 0);
        if (precision > 0 && static_cast<int>(digits.size()) < precision)
            digits.append(precision - digits.size(), VU_T('0'));
        std::reverse(digits.begin(), digits.end());
        return digits;
    }

    // Pads a number: zeros go between the prefix and the digits when the
    // '0' flag applies (not with '-' nor with a precision), spaces outside.
    void Number(const FieldSpec& spec, vu::StringView prefix, vu::StringView digits) {
        const int len = static_cast<int>(prefix.size() + digits.size());
        const int pad = spec.width > len ? spec.width - len : 0;
        if (spec.zero && !spec.left && spec.precision < 0) {
            m_out.append(prefix);
            m_out.append(pad, VU_T('0'));
            m_out.append(digits);
            return;
        }
        if (!spec.left)
            m_out.append(pad, VU_T(' '));
        m_out.append(prefix);
        m_out.append(digits);
        if (spec.left)
            m_out.append(pad, VU_T(' '));
    }

    void Text(const FieldSpec& spec, vu::StringView text) {
        const int len = static_cast<int>(text.size());
        const int pad = spec.width > len ? spec.width - len : 0;
        if (!spec.left)
            m_out.append(pad, spec.zero ? VU_T('0') : VU_T(' '));
        m_out.append(text);
        if (spec.left)
            m_out.append(pad, VU_T(' '));
    }

    void Char(const FieldSpec& spec) {
        const WCHAR ch = static_cast<WCHAR>(va_arg(*m_args, int));
        Text(spec, vu::StringView(&ch, 1));
    }

    void WideString(const FieldSpec& spec) {
        const WCHAR* s = va_arg(*m_args, const WCHAR*);
        vu::StringView text =
            s == nullptr ? vu::StringView(VU_T("(null)")) : LimitedView(s, spec.precision);
        if (s == nullptr && spec.precision >= 0)
            text = text.substr(0, spec.precision);
        Text(spec, text);
    }

    // A narrow string is taken as Latin-1: each byte is one code unit.
    void NarrowString(const FieldSpec& spec) {
        const char* s = va_arg(*m_args, const char*);
        if (s == nullptr)
            s = "(null)";
        vu::String wide;
        for (int i = 0; s[i] != 0 && (spec.precision < 0 || i < spec.precision); ++i)
            wide.push_back(static_cast<unsigned char>(s[i]));
        Text(spec, wide);
    }

    // The string up to its terminator or precision units, whichever is
    // first; the terminator is not searched beyond the precision.
    static vu::StringView LimitedView(const WCHAR* s, int precision) {
        std::size_t n = 0;
        while ((precision < 0 || n < static_cast<std::size_t>(precision)) && s[n] != 0)
            ++n;
        return vu::StringView(s, n);
    }

    void Floating(const FieldSpec& spec, WCHAR conv) {
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

    vu::String& m_out;
    va_list* m_args;
};

void FormatInto(vu::String& out, const WCHAR* format, va_list args) {
    if (format == nullptr)
        return;
    va_list copy;
    va_copy(copy, args);
    Formatter(out, &copy).Run(format);
    va_end(copy);
}

} // namespace

// ---- construction ----------------------------------------------------------

CString::CString(const WCHAR* psz) : m_str(ViewOf(psz)) {}

CString::CString(const WCHAR* pch, int length) {
    if (pch != nullptr && length > 0)
        m_str.assign(pch, static_cast<std::size_t>(length));
}

CString::CString(WCHAR ch, int repeat) {
    if (repeat > 0)
        m_str.assign(static_cast<std::size_t>(repeat), ch);
}

CString& CString::operator=(const WCHAR* psz) {
    // psz may point into this string: build first, then swap in.
    vu::String copy(ViewOf(psz));
    m_str.swap(copy);
    return *this;
}

CString& CString::operator=(WCHAR ch) {
    m_str.assign(1, ch);
    return *this;
}

CString& CString::operator=(vu::StringView sv) {
    vu::String copy(sv);
    m_str.swap(copy);
    return *this;
}

// ---- attributes and buffer -------------------------------------------------

WCHAR CString::GetAt(int index) const {
    if (index < 0 || index >= GetLength())
        return 0;
    return m_str[static_cast<std::size_t>(index)];
}

void CString::SetAt(int index, WCHAR ch) {
    if (index >= 0 && index < GetLength())
        m_str[static_cast<std::size_t>(index)] = ch;
}

WCHAR* CString::GetBuffer(int minLength) {
    if (minLength > GetLength())
        m_str.resize(static_cast<std::size_t>(minLength));
    return m_str.data();
}

WCHAR* CString::GetBufferSetLength(int length) {
    m_str.resize(static_cast<std::size_t>(std::max(length, 0)));
    return m_str.data();
}

void CString::ReleaseBuffer(int newLength) {
    if (newLength < 0) {
        const std::size_t end = m_str.find(WCHAR(0));
        if (end != vu::String::npos)
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

CString& CString::operator+=(const WCHAR* psz) {
    m_str += ViewOf(psz);
    return *this;
}

CString& CString::operator+=(WCHAR ch) {
    m_str.push_back(ch);
    return *this;
}

CString& CString::operator+=(vu::StringView sv) {
    m_str += sv;
    return *this;
}

void CString::Append(const WCHAR* pch, int length) {
    if (pch != nullptr && length > 0)
        m_str.append(pch, static_cast<std::size_t>(length));
}

// ---- comparison ------------------------------------------------------------

int CString::Compare(const WCHAR* psz) const {
    return ThreeWay(View().compare(ViewOf(psz)));
}

int CString::CompareNoCase(const WCHAR* psz) const {
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

CString CString::SpanIncluding(const WCHAR* set) const {
    const std::size_t end = m_str.find_first_not_of(ViewOf(set));
    return CString(View().substr(0, end));
}

CString CString::SpanExcluding(const WCHAR* set) const {
    const vu::StringView s = ViewOf(set);
    if (s.empty())
        return *this;
    return CString(View().substr(0, m_str.find_first_of(s)));
}

CString CString::Tokenize(const WCHAR* tokens, int& start) const {
    const int length = GetLength();
    if (start < 0 || start >= length) {
        start = -1;
        return CString();
    }
    const vu::StringView set = ViewOf(tokens);
    if (set.empty()) {
        // No delimiters: the rest of the string is the one token.
        CString rest = Mid(start);
        start = length;
        return rest;
    }
    const std::size_t begin = m_str.find_first_not_of(set, static_cast<std::size_t>(start));
    if (begin == vu::String::npos) {
        start = -1;
        return CString();
    }
    std::size_t end = m_str.find_first_of(set, begin);
    if (end == vu::String::npos)
        end = m_str.size();
    start = static_cast<int>(end) + 1;
    if (start > length)
        start = length;
    return CString(m_str.data() + begin, static_cast<int>(end - begin));
}

// ---- searching -------------------------------------------------------------

int CString::Find(WCHAR ch, int start) const {
    if (start < 0)
        start = 0;
    if (start >= GetLength())
        return -1;
    const std::size_t at = m_str.find(ch, static_cast<std::size_t>(start));
    return at == vu::String::npos ? -1 : static_cast<int>(at);
}

int CString::Find(const WCHAR* sub, int start) const {
    if (sub == nullptr)
        return -1;
    if (start < 0)
        start = 0;
    if (start > GetLength())
        return -1;
    const std::size_t at = m_str.find(vu::StringView(sub), static_cast<std::size_t>(start));
    return at == vu::String::npos ? -1 : static_cast<int>(at);
}

int CString::ReverseFind(WCHAR ch) const {
    const std::size_t at = m_str.rfind(ch);
    return at == vu::String::npos ? -1 : static_cast<int>(at);
}

int CString::FindOneOf(const WCHAR* set) const {
    const vu::StringView s = ViewOf(set);
    if (s.empty())
        return -1;
    const std::size_t at = m_str.find_first_of(s);
    return at == vu::String::npos ? -1 : static_cast<int>(at);
}

// ---- editing ---------------------------------------------------------------

int CString::Insert(int index, WCHAR ch) {
    index = std::clamp(index, 0, GetLength());
    m_str.insert(static_cast<std::size_t>(index), 1, ch);
    return GetLength();
}

int CString::Insert(int index, const WCHAR* psz) {
    index = std::clamp(index, 0, GetLength());
    // psz may point into this string: copy it before inserting.
    const vu::String text(ViewOf(psz));
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

int CString::Replace(WCHAR oldCh, WCHAR newCh) {
    if (oldCh == newCh)
        return 0; // nothing would change, so nothing counts as replaced
    int n = 0;
    for (WCHAR& c : m_str) {
        if (c == oldCh) {
            c = newCh;
            ++n;
        }
    }
    return n;
}

int CString::Replace(const WCHAR* oldText, const WCHAR* newText) {
    const vu::StringView from = ViewOf(oldText);
    if (from.empty())
        return 0;
    // Both arguments may point into this string: work on copies.
    const vu::String pattern(from);
    const vu::String replacement(ViewOf(newText));
    std::size_t at = m_str.find(pattern);
    if (at == vu::String::npos)
        return 0;
    vu::String result;
    result.reserve(m_str.size());
    std::size_t done = 0;
    int n = 0;
    for (; at != vu::String::npos; at = m_str.find(pattern, done)) {
        result.append(m_str, done, at - done);
        result += replacement;
        done = at + pattern.size();
        ++n;
    }
    result.append(m_str, done, vu::String::npos);
    m_str.swap(result);
    return n;
}

int CString::Remove(WCHAR ch) {
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

CString& CString::Trim(WCHAR ch) {
    return TrimRight(ch).TrimLeft(ch);
}

CString& CString::Trim(const WCHAR* set) {
    return TrimRight(set).TrimLeft(set);
}

CString& CString::TrimLeft() {
    return TrimLeft(kWhiteSpace.data());
}

CString& CString::TrimLeft(WCHAR ch) {
    const WCHAR set[2] = {ch, 0};
    return ch == 0 ? *this : TrimLeft(set);
}

CString& CString::TrimLeft(const WCHAR* set) {
    const vu::StringView s = ViewOf(set);
    std::size_t begin = 0;
    while (begin < m_str.size() && InSet(s, m_str[begin]))
        ++begin;
    m_str.erase(0, begin);
    return *this;
}

CString& CString::TrimRight() {
    return TrimRight(kWhiteSpace.data());
}

CString& CString::TrimRight(WCHAR ch) {
    const WCHAR set[2] = {ch, 0};
    return ch == 0 ? *this : TrimRight(set);
}

CString& CString::TrimRight(const WCHAR* set) {
    const vu::StringView s = ViewOf(set);
    std::size_t end = m_str.size();
    while (end > 0 && InSet(s, m_str[end - 1]))
        --end;
    m_str.resize(end);
    return *this;
}

// ---- formatting ------------------------------------------------------------

const WCHAR* vu::detail::FormatArg(const CString& s) {
    return s.GetString();
}

void CString::FormatList(const WCHAR* format, ...) {
    va_list args;
    va_start(args, format);
    FormatV(format, args);
    va_end(args);
}

void CString::FormatV(const WCHAR* format, va_list args) {
    vu::String out;
    FormatInto(out, format, args);
    m_str.swap(out);
}

void CString::AppendFormatList(const WCHAR* format, ...) {
    va_list args;
    va_start(args, format);
    AppendFormatV(format, args);
    va_end(args);
}

void CString::AppendFormatV(const WCHAR* format, va_list args) {
    // Format into a separate string: an argument may point into this one.
    vu::String out;
    FormatInto(out, format, args);
    m_str += out;
}

// ---- free operators --------------------------------------------------------

CString operator+(const CString& a, const CString& b) {
    CString r(a);
    r += b;
    return r;
}

CString operator+(const CString& a, const WCHAR* b) {
    CString r(a);
    r += b;
    return r;
}

CString operator+(const WCHAR* a, const CString& b) {
    CString r(a);
    r += b;
    return r;
}

CString operator+(const CString& a, WCHAR b) {
    CString r(a);
    r += b;
    return r;
}

CString operator+(WCHAR a, const CString& b) {
    CString r(a);
    r += b;
    return r;
}

CString operator+(CString&& a, const CString& b) {
    a += b;
    return std::move(a);
}

CString operator+(CString&& a, const WCHAR* b) {
    a += b;
    return std::move(a);
}

CString operator+(CString&& a, WCHAR b) {
    a += b;
    return std::move(a);
}

bool operator==(const CString& a, const CString& b) {
    return a.View() == b.View();
}
bool operator==(const CString& a, const WCHAR* b) {
    return a.View() == ViewOf(b);
}
bool operator==(const WCHAR* a, const CString& b) {
    return ViewOf(a) == b.View();
}
bool operator!=(const CString& a, const CString& b) {
    return !(a == b);
}
bool operator!=(const CString& a, const WCHAR* b) {
    return !(a == b);
}
bool operator!=(const WCHAR* a, const CString& b) {
    return !(a == b);
}
bool operator<(const CString& a, const CString& b) {
    return a.View() < b.View();
}
bool operator<(const CString& a, const WCHAR* b) {
    return a.View() < ViewOf(b);
}
bool operator<(const WCHAR* a, const CString& b) {
    return ViewOf(a) < b.View();
}
bool operator>(const CString& a, const CString& b) {
    return b < a;
}
bool operator>(const CString& a, const WCHAR* b) {
    return b < a;
}
bool operator>(const WCHAR* a, const CString& b) {
    return b < a;
}
bool operator<=(const CString& a, const CString& b) {
    return !(b < a);
}
bool operator<=(const CString& a, const WCHAR* b) {
    return !(b < a);
}
bool operator<=(const WCHAR* a, const CString& b) {
    return !(b < a);
}
bool operator>=(const CString& a, const CString& b) {
    return !(a < b);
}
bool operator>=(const CString& a, const WCHAR* b) {
    return !(a < b);
}
bool operator>=(const WCHAR* a, const CString& b) {
    return !(a < b);
}
