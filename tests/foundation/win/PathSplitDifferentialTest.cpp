// Compares vu::SplitPath with the C runtime's own _wsplitpath over a few
// thousand generated paths. Any difference is a fault in our splitter: the
// runtime is the reference.
#include "foundation/SplitPath.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <random>
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

// Which parts a call asks for (the runtime checks only those).
struct Mask {
    bool drive, dir, fname, ext;
};

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
    out << '"';
    if (s.size() > 60) {
        out << "<" << s.size() << " units>";
    } else {
        for (wchar_t c : s) {
            if (c >= 0x20 && c < 0x7F)
                out << static_cast<char>(c);
            else
                out << "\\u" << std::hex << static_cast<unsigned>(c) << std::dec;
        }
    }
    out << '"';
    return out.str();
}

std::string Show(const Split& s) {
    return std::string(s.ok ? "ok" : "ERANGE") + " drive=" + Show(s.drive) + " dir=" + Show(s.dir) +
           " fname=" + Show(s.fname) + " ext=" + Show(s.ext);
}

// Concatenates in order (the pieces are drawn left to right, so the
// generated paths do not depend on the compiler's evaluation order).
std::wstring Cat(std::initializer_list<std::wstring> parts) {
    std::wstring out;
    for (const auto& part : parts)
        out.append(part);
    return out;
}

// Builds paths from the pieces that matter to splitting: drive prefixes
// (valid and odd), UNC roots, separators of both kinds (single, doubled,
// trailing), dots, spaces, non-ASCII units and names around the runtime's
// 255-unit part limits.
class PathGenerator {
public:
    explicit PathGenerator(unsigned seed) : m_rng(seed) {}

    std::wstring Next() {
        std::wstring path = Prefix();
        const int components = Pick(0, 5);
        for (int i = 0; i < components; ++i) {
            path += Component();
            if (i + 1 < components || Pick(0, 3) == 0)
                path += Separator();
        }
        if (Pick(0, 6) == 0)
            path = Cat({L" ", path, L" "});
        return path;
    }

    Mask NextMask() {
        // Mostly every part, as the path class asks; sometimes a subset.
        if (Pick(0, 3) != 0)
            return {true, true, true, true};
        return {Pick(0, 1) == 1, Pick(0, 1) == 1, Pick(0, 1) == 1, Pick(0, 1) == 1};
    }

private:
    int Pick(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(m_rng); }

    std::wstring Prefix() {
        // clang-format off
        static const std::wstring prefixes[] = {
            L"", L"C:", L"c:", L"z:\\", L"C:/", L"1:", L":", L"::", L"\\:", L".:", L"\\\\",
            L"\\\\srv\\share\\", L"//srv/share/", L"\\", L"/", L".\\", L"..\\", L"../",
            L"\\\\?\\C:\\", L"\u00e9:", L"C:\\\\"
        };
        // clang-format on
        return prefixes[Pick(0, static_cast<int>(std::size(prefixes)) - 1)];
    }

    std::wstring Separator() {
        static const std::wstring seps[] = {L"\\", L"/", L"\\\\", L"//", L"\\/", L"/\\"};
        return seps[Pick(0, static_cast<int>(std::size(seps)) - 1)];
    }

    std::wstring Component() {
        switch (Pick(0, 9)) {
        case 0:
            return L".";
        case 1:
            return L"..";
        case 2:
            return Cat({Word(Pick(1, 8)), L".", Word(Pick(0, 4))});
        case 3:
            return Cat({L".", Word(Pick(1, 5))});
        case 4:
            return Cat({Word(Pick(1, 6)), L"."});
        case 5:
            return Cat({Word(Pick(1, 4)), L".", Word(Pick(1, 4)), L".", Word(Pick(0, 3))});
        case 6: // around the 255-unit part limits
            return Word(Pick(245, 262));
        case 7:
            return Cat({Word(Pick(120, 140)), L".", Word(Pick(110, 140))});
        case 8:
            return Cat({Word(Pick(1, 3)), L".", Word(Pick(250, 258))});
        default:
            return Word(Pick(1, 12));
        }
    }

    std::wstring Word(int length) {
        static const wchar_t units[] = L"abcXYZ019_- ~$\u00e4\u00df\u4e2d:";
        std::wstring w;
        for (int i = 0; i < length; ++i)
            w += units[Pick(0, static_cast<int>(std::size(units)) - 2)];
        return w;
    }

    std::mt19937 m_rng;
};

TEST(PathSplitDifferential, GeneratedPathsSplitAsTheRuntimeDoes) {
    PathGenerator gen(20240611u);
    constexpr int kPaths = 5000;
    int differences = 0;
    int overlong = 0, withDrive = 0, withDir = 0, withExt = 0, partial = 0;
    for (int i = 0; i < kPaths; ++i) {
        const std::wstring path = gen.Next();
        const Mask mask = gen.NextMask();
        const Split expected = RuntimeSplit(path, mask);
        const Split actual = CoreSplit(path, mask);
        overlong += expected.ok ? 0 : 1;
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

// Inputs chosen by hand at the edges of each rule.
TEST(PathSplitDifferential, HandPickedEdgesSplitAsTheRuntimeDoes) {
    const std::wstring longPart(255, L'n');
    // clang-format off
    const std::wstring cases[] = {
        L"", L"C:", L"C:\\", L"C:file", L"\\", L"/", L".", L"..", L"...", L".ext", L"name.",
        L"a.b.c", L"dir.d\\name", L"\\\\srv\\share", L"\\\\srv\\share\\",
        L"\\\\srv\\share\\d\\f.txt", L"C:/a/b/f.txt", L"C:\\a\\\\b\\\\",
        L"  C:\\Work\\Project.ACD  ", L"a:b:c", Cat({L"\\", longPart.substr(0, 254), L"\\f"}),
        Cat({L"\\", longPart, L"\\f"}), longPart, Cat({longPart, L"n"}),
        Cat({L"f.", longPart.substr(0, 254)}), Cat({L"f.", longPart})
    };
    // clang-format on
    for (const auto& path : cases) {
        SCOPED_TRACE(Show(path));
        const Mask all{true, true, true, true};
        EXPECT_EQ(Show(CoreSplit(path, all)), Show(RuntimeSplit(path, all)));
    }
}

} // namespace
