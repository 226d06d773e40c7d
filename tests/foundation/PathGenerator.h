#pragma once
// Generated paths for the path rules: drive prefixes (valid and odd), UNC
// roots, separators of both kinds (single, doubled, trailing), dots, spaces,
// non-ASCII units and names around 255 units. The same seed gives the same
// paths in both builds (mt19937 is fully specified; no distributions), so
// native results can be compared with results recorded under Windows.
#include "framework/Char.h"

#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <random>
#include <string>

namespace vu::test {

// Which parts a split asks for.
struct Mask {
    bool drive, dir, fname, ext;
};

class PathGenerator {
public:
    explicit PathGenerator(unsigned seed) : m_rng(seed) {}

    vu::String Next() {
        vu::String path = Prefix();
        const int components = Pick(0, 5);
        for (int i = 0; i < components; ++i) {
            path += Component();
            if (i + 1 < components || Pick(0, 3) == 0)
                path += Separator();
        }
        if (Pick(0, 6) == 0)
            path = Cat({VU_T(" "), path, VU_T(" ")});
        return path;
    }

    // Mostly every part, as the path class asks; sometimes a subset.
    Mask NextMask() {
        if (Pick(0, 3) != 0)
            return {true, true, true, true};
        return {Pick(0, 1) == 1, Pick(0, 1) == 1, Pick(0, 1) == 1, Pick(0, 1) == 1};
    }

private:
    int Pick(int lo, int hi) {
        return lo + static_cast<int>(m_rng() % static_cast<std::uint32_t>(hi - lo + 1));
    }

    // In order: the pieces are drawn left to right.
    static vu::String Cat(std::initializer_list<vu::String> parts) {
        vu::String out;
        for (const auto& part : parts)
            out += part;
        return out;
    }

    vu::String Prefix() {
        // clang-format off
        static const WCHAR* const prefixes[] = {
            VU_T(""), VU_T("C:"), VU_T("c:"), VU_T("z:\\"), VU_T("C:/"), VU_T("1:"), VU_T(":"),
            VU_T("::"), VU_T("\\:"), VU_T(".:"), VU_T("\\\\"), VU_T("\\\\srv\\share\\"),
            VU_T("//srv/share/"), VU_T("\\"), VU_T("/"), VU_T(".\\"), VU_T("..\\"), VU_T("../"),
            VU_T("\\\\?\\C:\\"), VU_T("\u00e9:"), VU_T("C:\\\\")};
        // clang-format on
        return prefixes[Pick(0, static_cast<int>(std::size(prefixes)) - 1)];
    }

    vu::String Separator() {
        static const WCHAR* const seps[] = {VU_T("\\"), VU_T("/"),   VU_T("\\\\"),
                                            VU_T("//"), VU_T("\\/"), VU_T("/\\")};
        return seps[Pick(0, static_cast<int>(std::size(seps)) - 1)];
    }

    vu::String Component() {
        // clang-format off
        switch (Pick(0, 9)) {
        case 0: return VU_T(".");
        case 1: return VU_T("..");
        case 2: return Cat({Word(Pick(1, 8)), VU_T("."), Word(Pick(0, 4))});
        case 3: return Cat({VU_T("."), Word(Pick(1, 5))});
        case 4: return Cat({Word(Pick(1, 6)), VU_T(".")});
        case 5:
            return Cat({Word(Pick(1, 4)), VU_T("."), Word(Pick(1, 4)), VU_T("."),
                        Word(Pick(0, 3))});
        case 6: return Word(Pick(245, 262)); // around 255 units
        case 7: return Cat({Word(Pick(120, 140)), VU_T("."), Word(Pick(110, 140))});
        case 8: return Cat({Word(Pick(1, 3)), VU_T("."), Word(Pick(250, 258))});
        default: return Word(Pick(1, 12));
        }
        // clang-format on
    }

    vu::String Word(int length) {
        static const WCHAR units[] = VU_T("abcXYZ019_- ~$\u00e4\u00df\u4e2d:");
        vu::String w;
        for (int i = 0; i < length; ++i)
            w += units[Pick(0, static_cast<int>(std::size(units)) - 2)];
        return w;
    }

    std::mt19937 m_rng;
};

} // namespace vu::test
