// The generated case table against the Unicode character database itself.
#include "framework/CaseMap.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

const char* kUnicodeData = "/usr/share/unicode/UnicodeData.txt";

std::vector<std::string> Fields(const std::string& line) {
    std::vector<std::string> fields;
    std::stringstream in(line);
    std::string f;
    while (std::getline(in, f, ';'))
        fields.push_back(f);
    return fields;
}

TEST(CaseMapOracle, EveryBmpCodePointMatchesUnicodeData) {
    std::ifstream in(kUnicodeData);
    if (!in)
        GTEST_SKIP() << kUnicodeData << " missing (Debian package unicode-data)";
    std::vector<WCHAR> lower(0x10000), upper(0x10000);
    for (unsigned c = 0; c <= 0xFFFF; ++c)
        lower[c] = upper[c] = static_cast<WCHAR>(c);
    std::string line;
    while (std::getline(in, line)) {
        const std::vector<std::string> f = Fields(line);
        if (f.size() < 14)
            continue;
        const unsigned long cp = std::stoul(f[0], nullptr, 16);
        if (cp > 0xFFFF)
            continue;
        if (!f[12].empty() && std::stoul(f[12], nullptr, 16) <= 0xFFFF)
            upper[cp] = static_cast<WCHAR>(std::stoul(f[12], nullptr, 16));
        if (!f[13].empty() && std::stoul(f[13], nullptr, 16) <= 0xFFFF)
            lower[cp] = static_cast<WCHAR>(std::stoul(f[13], nullptr, 16));
    }
    int mismatches = 0;
    for (unsigned c = 0; c <= 0xFFFF; ++c) {
        const WCHAR ch = static_cast<WCHAR>(c);
        if (vu::ToLower(ch) != lower[c] || vu::ToUpper(ch) != upper[c]) {
            if (++mismatches <= 10)
                ADD_FAILURE() << std::hex << "U+" << c << ": lower " << int(vu::ToLower(ch))
                              << " want " << int(lower[c]) << ", upper " << int(vu::ToUpper(ch))
                              << " want " << int(upper[c]);
        }
    }
    EXPECT_EQ(mismatches, 0);
}

} // namespace
