// Compares vu::SplitPath with the C runtime's own _wsplitpath over a few
// thousand generated paths (the portable suite runs the same paths through
// both builds). Any difference is a fault in our splitter: the runtime is
// the reference, except that where its fixed buffers make it give up on a
// long part, our parts must stay whole and follow the same rules.
#include "../PathGenerator.h"
#include "foundation/SplitPath.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

namespace {

// Generous buffers so that the runtime can never write past them, whatever
// it does with overlong parts.
constexpr std::size_t kBuffer = 4096;

struct Split {
    bool ok = true;
    std::wstring drive, dir, fname, ext;
    bool operator==(const Split&) const = default;
};

using vu::test::Mask;

Split RuntimeSplit(const std::wstring& path, Mask mask) {
    static wchar_t d[kBuffer], di[kBuffer], f[kBuffer], e[kBuffer];
    // Fill with a marker so a part the runtime leaves alone is visible.
    for (auto* buf : {d, di, f, e}) {
        std::fill(buf, buf + kBuffer - 1, L'#');
        buf[kBuffer - 1] = 0;
    }
    errno = 0;
    _wsplitpath(reinterpret_cast<const wchar_t*>(path.c_str()), mask.drive ? d : nullptr,
                mask.dir ? di : nullptr, mask.fname ? f : nullptr, mask.ext ? e : nullptr);
    Split s;
    s.ok = errno != ERANGE;
    auto take = [](bool wanted, const wchar_t* buf) {
        return wanted ? std::wstring(reinterpret_cast<const wchar_t*>(buf)) : std::wstring();
    };
    s.drive = take(mask.drive, d);
    s.dir = take(mask.dir, di);
    s.fname = take(mask.fname, f);
    s.ext = take(mask.ext, e);
    return s;
}

Split CoreSplit(const std::wstring& path, Mask mask) {
    Split s;
    s.ok = vu::SplitPath(path.c_str(), mask.drive ? &s.drive : nullptr, mask.dir ? &s.dir : nullptr,
                         mask.fname ? &s.fname : nullptr, mask.ext ? &s.ext : nullptr);
    return s;
}

std::string Show(const std::wstring& s) {
    std::ostringstream out;
    if (s.size() > 60) {
        out << '<' << s.size() << " units>";
        return out.str();
    }
    for (wchar_t c : s)
        if (c >= 0x20 && c < 0x7F)
            out << static_cast<char>(c);
        else
            out << "\\u" << std::hex << +c << std::dec;
    return '"' + out.str() + '"';
}

std::string Show(const Split& s) {
    return std::string(s.ok ? "ok" : "ERANGE") + " drive=" + Show(s.drive) + " dir=" + Show(s.dir) +
           " fname=" + Show(s.fname) + " ext=" + Show(s.ext);
}

// Where the runtime gave up: the parts still make up the path, and each
// follows the splitting rules.
bool WholeParts(const std::wstring& path, const Split& s) {
    const auto isSep = [](wchar_t c) { return c == L'\\' || c == L'/'; };
    const std::wstring name = s.fname + s.ext;
    return s.ok && s.drive + s.dir + name == path &&
           (s.drive.empty() || (s.drive.size() == 2 && s.drive[1] == L':')) &&
           (s.dir.empty() || isSep(s.dir.back())) &&
           name.find_first_of(L"\\/") == std::wstring::npos &&
           (s.ext.empty() || (s.ext[0] == L'.' && s.ext.find(L'.', 1) == std::wstring::npos)) &&
           (!s.ext.empty() || name.find(L'.') == std::wstring::npos);
}

TEST(PathSplitDifferential, GeneratedPathsSplitAsTheRuntimeDoes) {
    vu::test::PathGenerator gen(20240611u);
    constexpr int kPaths = 5000;
    int differences = 0;
    int overlong = 0, withDrive = 0, withDir = 0, withExt = 0, partial = 0;
    for (int i = 0; i < kPaths; ++i) {
        const std::wstring path = gen.Next();
        const Mask mask = gen.NextMask();
        const Split expected = RuntimeSplit(path, mask);
        const Split actual = CoreSplit(path, mask);
        if (!expected.ok) {
            ++overlong;
            EXPECT_TRUE(WholeParts(path, CoreSplit(path, {true, true, true, true}))) << Show(path);
            continue;
        }
        withDrive += expected.drive.empty() ? 0 : 1;
        withDir += expected.dir.empty() ? 0 : 1;
        withExt += expected.ext.empty() ? 0 : 1;
        partial += (mask.drive && mask.dir && mask.fname && mask.ext) ? 0 : 1;
        if (expected != actual) {
            if (++differences <= 20)
                ADD_FAILURE() << "path " << Show(path) << " mask " << mask.drive << mask.dir
                              << mask.fname << mask.ext << "\n  runtime: " << Show(expected)
                              << "\n  core:    " << Show(actual);
        }
    }
    EXPECT_EQ(differences, 0);
    // The generator must reach every class of input, or the comparison
    // proves little.
    EXPECT_GT(overlong, 50);
    EXPECT_GT(withDrive, 500);
    EXPECT_GT(withDir, 1000);
    EXPECT_GT(withExt, 1000);
    EXPECT_GT(partial, 500);
}

} // namespace
