// AF_CUStr against the C runtime's own mbstowcs/wcstombs in the default
// locale: every byte value, and every unit from 0 to 0x2FF plus those
// around the surrogates and the top of the range, each between ordinary
// text so that what comes after a stop is checked too.
#include "foundation/UStr.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

// What the runtime's wcstombs writes for wide: on a failure it returns -1
// and leaves the buffer unterminated, so the written bytes are found by
// running it over two differently filled buffers.
std::string RuntimeNarrow(const std::wstring& wide) {
    std::vector<char> a(wide.size() * 2 + 4, '\x01'), b(wide.size() * 2 + 4, '\x02');
    const std::size_t n = std::wcstombs(a.data(), wide.c_str(), a.size());
    std::wcstombs(b.data(), wide.c_str(), b.size());
    if (n != static_cast<std::size_t>(-1))
        return std::string(a.data(), n);
    std::size_t written = 0;
    while (a[written] == b[written])
        ++written;
    return std::string(a.data(), written);
}

std::wstring RuntimeWide(const std::string& narrow) {
    std::vector<wchar_t> out(narrow.size() + 1, L'\x1111');
    const std::size_t n = std::mbstowcs(out.data(), narrow.c_str(), out.size());
    return n == static_cast<std::size_t>(-1) ? L"<error>" : std::wstring(out.data(), n);
}

TEST(UStrDifferential, EveryByteConvertsAsTheRuntime) {
    ASSERT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
    for (int byte = 1; byte < 256; ++byte) {
        const std::string narrow = std::string("a") + static_cast<char>(byte) + "z";
        wchar_t* ours = AF_CUStr::uxdup(narrow.c_str());
        const std::wstring expected = RuntimeWide(narrow);
        ASSERT_NE(ours, nullptr);
        EXPECT_EQ(std::wstring(ours), expected) << "byte " << byte;
        EXPECT_EQ(std::wstring(static_cast<const wchar_t*>(AF_CUStr(narrow.c_str()))), expected)
            << "lazily, byte " << byte;
        std::free(ours);
    }
}

TEST(UStrDifferential, UnitsAroundTheByteRangeConvertAsTheRuntime) {
    std::vector<unsigned> units;
    for (unsigned u = 1; u < 0x300; ++u)
        units.push_back(u);
    for (unsigned u : {0x20ACu, 0xD7FFu, 0xD800u, 0xDBFFu, 0xDC00u, 0xDFFFu, 0xE000u, 0xFEFFu,
                       0xFFFDu, 0xFFFEu, 0xFFFFu})
        units.push_back(u);
    int stops = 0;
    for (unsigned u : units) {
        const std::wstring wide = std::wstring(L"ab") + static_cast<wchar_t>(u) + L"cd";
        char* ours = AF_CUStr::uxdup(wide.c_str());
        ASSERT_NE(ours, nullptr);
        const std::string expected = RuntimeNarrow(wide);
        stops += expected.size() < 5 ? 1 : 0;
        EXPECT_EQ(std::string(ours), expected) << "unit " << std::hex << u;
        EXPECT_EQ(std::string(static_cast<const char*>(AF_CUStr(wide.c_str()))), expected)
            << "lazily, unit " << std::hex << u;
        std::free(ours);
    }
    // The runtime must stop at some units and not at others, or the
    // comparison proves little.
    EXPECT_GT(stops, 500);
    EXPECT_LT(stops, static_cast<int>(units.size()) - 200);
}

} // namespace
