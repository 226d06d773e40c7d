// Fuzzes the path and string utilities: the splitter (its parts concatenate
// back to the path), the path class's setters, the prefix walk (items grow,
// end in bounded steps) and the set edits of AF_GString (a ranged edit with
// an unbounded count equals the unranged one). No file-system calls.
#include "foundation/Path.h"
#include "foundation/GString.h"
#include "foundation/PathIterator.h"
#include "foundation/SplitPath.h"

#include "FuzzSupport.h"

#include <cstdint>

namespace {

using fuzz::Check;

// Path-heavy alphabet: separators, dots, colons, spaces, letters, one unit
// beyond ASCII; '#' stands for a long run to reach the 255-unit limits.
vu::String PathText(FuzzedDataProvider& in) {
    vu::String s;
    for (WCHAR c : fuzz::Text(in, VU_T("\\/.:  aBz1\t\u00e9#"), 40))
        s.append(c == VU_T('#') ? in.ConsumeIntegralInRange<std::size_t>(1, 300) : 1,
                 c == VU_T('#') ? VU_T('x') : c);
    return s;
}

void CheckWalk(const vu::String& path) {
    AF_CPathIterator it(path.c_str());
    vu::String previous = it.First();
    for (std::size_t steps = 0; !it.Done();) {
        Check(++steps <= path.size() + 2);
        const vu::String item = it++;
        if (it.Done())
            return Check(item.empty());
        Check(item.size() >= previous.size() && path.compare(0, item.size(), item) == 0);
        previous = item;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider in(data, size);
    const vu::String path = PathText(in);
    vu::String drive, dir, fname, ext;
    Check(vu::SplitPath(path.c_str(), &drive, &dir, &fname, &ext)); // parts of any length
    Check(drive + dir + fname + ext == path);
    CheckWalk(path);

    using Setter = void (AF_CPath::*)(const WCHAR*);
    static const Setter setters[] = {&AF_CPath::SetDrive, &AF_CPath::SetDir, &AF_CPath::SetDriveDir,
                                     &AF_CPath::SetRoot,  &AF_CPath::SetExt, &AF_CPath::SetName,
                                     &AF_CPath::SetPath};
    AF_CPath p(path.c_str());
    for (int i = 0; i < 6 && in.remaining_bytes() > 0; ++i) {
        (p.*setters[in.ConsumeIntegralInRange<std::size_t>(0, std::size(setters) - 1)])(
            PathText(in).c_str());
        Check(p.GetDrive().GetLength() <= 1 && p == AF_CPath(p));
        CheckWalk(p.GetDriveDir().Str());
    }

    const AF_GString text(PathText(in)), set(PathText(in).substr(0, 3));
    const auto pos = in.ConsumeIntegralInRange<std::size_t>(0, text.size() + 2);
    AF_GString a = text, b = text;
    Check(a.remove(set, pos) == b.remove(set, pos, AF_GString::npos));
    Check(a.filter(set, pos) == b.filter(set, pos, AF_GString::npos));
    Check(a.remove_substr(set, pos) == b.remove_substr(set, pos, AF_GString::npos));
    Check(a.convert(set, VU_T("#"), pos) == b.convert(set, VU_T("#"), pos, AF_GString::npos));
    Check(text.count(set, pos) <= text.size());
    return 0;
}
