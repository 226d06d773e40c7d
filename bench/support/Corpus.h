#pragma once

// Real English text for the text benchmarks: the Perl documentation that
// Debian's `perl-doc` package installs as /usr/share/perl/<version>/pod/*.pod
// (about 18 MB of prose with some code). Files are read in name order,
// decoded from UTF-8 and widened to UTF-16, so every run sees the same text.

#include "foundation/Utf8.h"
#include "framework/Char.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace vu::bench {

// UTF-8 to UTF-16; malformed bytes become U+FFFD.
inline vu::String DecodeUtf8(std::string_view in) {
    return vu::Utf8ToUtf16(in);
}

// The pod files of the newest Perl documentation directory, in name order.
inline std::vector<std::filesystem::path> CorpusFiles() {
    namespace fs = std::filesystem;
    std::vector<fs::path> dirs;
    std::error_code ec;
    for (const auto& entry : fs::directory_iterator("/usr/share/perl", ec))
        if (entry.is_directory() && !entry.is_symlink() && fs::exists(entry.path() / "pod"))
            dirs.push_back(entry.path() / "pod");
    std::vector<fs::path> files;
    if (dirs.empty())
        return files;
    std::sort(dirs.begin(), dirs.end());
    for (const auto& entry : fs::directory_iterator(dirs.back(), ec))
        if (entry.path().extension() == ".pod")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

// At least `minUnits` units of English text (the documentation repeated if it
// is shorter). Exits with a message when the package is missing.
inline vu::String LoadEnglishCorpus(size_t minUnits = 6'000'000) {
    vu::String text;
    const auto files = CorpusFiles();
    for (size_t round = 0; text.size() < minUnits && !files.empty(); ++round) {
        for (const auto& file : files) {
            std::ifstream in(file, std::ios::binary);
            const std::string bytes((std::istreambuf_iterator<char>(in)),
                                    std::istreambuf_iterator<char>());
            text += DecodeUtf8(bytes);
            if (text.size() >= minUnits)
                break;
        }
    }
    if (text.empty()) {
        std::fprintf(stderr, "benchmark corpus missing: install the Debian package perl-doc\n");
        std::exit(2);
    }
    text.resize(std::min(text.size(), std::max(minUnits, size_t(1))));
    // The engines under test stop at NUL; the documentation has none, but
    // be sure.
    std::replace(text.begin(), text.end(), VU_T('\0'), VU_T(' '));
    return text;
}

// The first `maxLines` lines of `text`, without their line breaks.
inline std::vector<vu::String> SplitLines(vu::StringView text, size_t maxLines) {
    std::vector<vu::String> lines;
    while (!text.empty() && lines.size() < maxLines) {
        const size_t end = std::min(text.find(VU_T('\n')), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

} // namespace vu::bench
