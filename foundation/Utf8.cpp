#include "foundation/Utf8.h"

namespace vu {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsHighSurrogate(char32_t c) {
    return c >= 0xD800 && c <= 0xDBFF;
}
bool IsLowSurrogate(char32_t c) {
    return c >= 0xDC00 && c <= 0xDFFF;
}

void AppendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

void AppendUtf16(vu::String& out, char32_t c) {
    if (c >= 0x10000) {
        out += static_cast<WCHAR>(0xD800 + ((c - 0x10000) >> 10));
        out += static_cast<WCHAR>(0xDC00 + ((c - 0x10000) & 0x3FF));
    } else {
        out += static_cast<WCHAR>(c);
    }
}

// Length of the sequence a lead byte starts (0 for a byte that cannot lead).
int SequenceLength(unsigned char lead) {
    return lead < 0x80             ? 1
           : (lead & 0xE0) == 0xC0 ? 2
           : (lead & 0xF0) == 0xE0 ? 3
           : (lead & 0xF8) == 0xF0 ? 4
                                   : 0;
}

} // namespace

std::string Utf16ToUtf8(vu::StringView text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char32_t c = text[i];
        if (IsHighSurrogate(c) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            AppendUtf8(out, 0x10000 + ((c - 0xD800) << 10) + (text[i + 1] - 0xDC00));
            ++i;
        } else {
            AppendUtf8(out, IsHighSurrogate(c) || IsLowSurrogate(c) ? kReplacement : c);
        }
    }
    return out;
}

vu::String Utf8ToUtf16(std::string_view bytes) {
    static constexpr char32_t kMinimum[] = {0, 0, 0x80, 0x800, 0x10000};
    static constexpr unsigned char kLeadMask[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    vu::String out;
    out.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[i]);
        const int length = SequenceLength(lead);
        bool ok = length > 0 && i + length <= bytes.size();
        char32_t c = ok ? (lead & kLeadMask[length]) : 0;
        for (int k = 1; ok && k < length; ++k) {
            const auto trail = static_cast<unsigned char>(bytes[i + k]);
            ok = (trail & 0xC0) == 0x80;
            c = (c << 6) | (trail & 0x3F);
        }
        ok = ok && c >= kMinimum[length] && c <= 0x10FFFF && !IsHighSurrogate(c) &&
             !IsLowSurrogate(c);
        if (!ok) {
            out += static_cast<WCHAR>(kReplacement);
            ++i;
            continue;
        }
        AppendUtf16(out, c);
        i += length;
    }
    return out;
}

} // namespace vu
