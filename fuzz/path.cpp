// Fuzzes the path and string utilities: the splitter (its parts must
// concatenate back to the path, or all be empty when one is too long), the
// path class's parse and setters, the prefix walk (items grow, end in
// bounded steps) and the set edits of AF_GString (a ranged edit with an
// unbounded count equals the unranged one). No file-system calls.
#include "foundation/Path.h"
#include "foundation/GString.h"
#include "foundation/PathIterator.h"
#include "foundation/SplitPath.h"

#include "FuzzSupport.h"

#include <cstdint>

namespace {

using fuzz::Check;

// Path-heavy alphabet: separators, dots, colons, spaces, letters, one unit
// beyond ASCII; sometimes a long run to reach the 255-unit limits.
vu::String PathText(FuzzedDataProvider& in) {
    static const WCHAR alphabet[] = VU_T("\\/.:  aBz1\t\u00e9");
    vu::String s;
    const std::size_t n = in.ConsumeIntegralInRange<std::size_t>(0, 40);
    for (std::size_t i = 0; i < n; ++i) {
        const auto pick = in.ConsumeIntegralInRange<std::size_t>(0, std::size(alphabet) - 1);
        if (pick == std::size(alphabet) - 1)
            s.append(in.ConsumeIntegralInRange<std::size_t>(1, 300), VU_T('x'));
        else
            s += alphabet[pick];
    }
    return s;
}

void CheckSplit(const vu::String& path) {
    vu::String drive, dir, fname, ext;
    Check(vu::SplitPath(path.c_str(), &drive, &dir, &fname, &ext)); // parts of any length
    Check(drive + dir + fname + ext == path.substr(0, path.find(VU_T('\0'))));
    Check(dir.empty() || dir.back() == VU_T('\\') || dir.back() == VU_T('/'));
    Check(fname.find_first_of(VU_T("\\/")) == vu::String::npos);
    Check(ext.empty() ||
          (ext[0] == VU_T('.') && ext.find_first_of(VU_T("\\/."), 1) == vu::String::npos));
}

void CheckWalk(const vu::String& path) {
    AF_CPathIterator it(path.c_str());
    vu::String previous = it.First();
    std::size_t steps = 0;
    while (!it.Done()) {
        Check(++steps <= path.size() + 2);
        const vu::String item = it++;
        if (it.Done()) {
            Check(item.empty());
            break;
        }
        Check(item.size() >= previous.size());
        Check(path.compare(0, item.size(), item) == 0);
        previous = item;
    }
}

void EditPath(FuzzedDataProvider& in) {
    using Setter = void (AF_CPath::*)(const WCHAR*);
    static const Setter setters[] = {&AF_CPath::SetDrive, &AF_CPath::SetDir, &AF_CPath::SetDriveDir,
                                     &AF_CPath::SetRoot,  &AF_CPath::SetExt, &AF_CPath::SetName,
                                     &AF_CPath::SetPath};
    AF_CPath p(PathText(in).c_str());
    for (int i = 0; i < 6 && in.remaining_bytes() > 0; ++i) {
        const vu::String arg = PathText(in);
        const auto pick = in.ConsumeIntegralInRange<std::size_t>(0, std::size(setters));
        if (pick < std::size(setters))
            (p.*setters[pick])(arg.c_str());
        else
            p = arg.c_str();
        Check(p.GetDrive().GetLength() <= 1);
        Check(p == AF_CPath(p));
        (void)AF_CPath::IsShareName(p);
        (void)AF_CPath::IsMachineName(p);
        CheckWalk(p.GetDriveDir().Str());
    }
}

void EditString(FuzzedDataProvider& in) {
    const AF_GString text(PathText(in));
    const AF_GString set(PathText(in).substr(0, 3));
    const auto pos = in.ConsumeIntegralInRange<std::size_t>(0, text.size() + 2);
    AF_GString a = text, b = text;
    Check(a.remove(set, pos) == b.remove(set, pos, AF_GString::npos));
    a = b = text;
    Check(a.filter(set, pos) == b.filter(set, pos, AF_GString::npos));
    a = b = text;
    Check(a.remove_substr(set, pos) == b.remove_substr(set, pos, AF_GString::npos));
    a = b = text;
    Check(a.convert(set, VU_T("#"), pos) == b.convert(set, VU_T("#"), pos, AF_GString::npos));
    a = text;
    a.reduce_repeat(set, pos);
    Check(a.size() <= text.size());
    a = text;
    const auto n = in.ConsumeIntegralInRange<std::size_t>(0, 5);
    a.mnemonic(set, n);
    Check(a.find_first_of(set) == vu::String::npos || set.empty());
    (void)text.substr(set, AF_GString(VU_T(".")));
    Check(text.count(set, pos) <= text.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider in(data, size);
    const vu::String path = PathText(in);
    CheckSplit(path);
    CheckWalk(path);
    EditPath(in);
    EditString(in);
    return 0;
}
