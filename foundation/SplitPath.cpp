#include "foundation/SplitPath.h"

#include <string_view>

namespace vu {

namespace {

bool IsSplitSeparator(WCHAR c) {
    return c == VU_T('\\') || c == VU_T('/');
}

void Assign(vu::String* out, vu::StringView part) {
    if (out != nullptr)
        out->assign(part);
}

void ClearAll(vu::String* drive, vu::String* dir, vu::String* fname, vu::String* ext) {
    Assign(drive, {});
    Assign(dir, {});
    Assign(fname, {});
    Assign(ext, {});
}

} // namespace

bool SplitPath(const WCHAR* path, vu::String* drive, vu::String* dir, vu::String* fname,
               vu::String* ext) {
    ClearAll(drive, dir, fname, ext);
    if (path == nullptr)
        return false;
    vu::StringView rest(path);

    vu::StringView drivePart;
    if (rest.size() >= 2 && rest[1] == VU_T(':')) {
        drivePart = rest.substr(0, 2);
        rest.remove_prefix(2);
    }

    vu::StringView dirPart;
    for (std::size_t i = rest.size(); i-- > 0;) {
        if (IsSplitSeparator(rest[i])) {
            dirPart = rest.substr(0, i + 1);
            rest.remove_prefix(i + 1);
            break;
        }
    }

    vu::StringView namePart = rest;
    vu::StringView extPart;
    const std::size_t dot = rest.rfind(VU_T('.'));
    if (dot != vu::StringView::npos) {
        namePart = rest.substr(0, dot);
        extPart = rest.substr(dot);
    }

    Assign(drive, drivePart);
    Assign(dir, dirPart);
    Assign(fname, namePart);
    Assign(ext, extPart);
    return true;
}

} // namespace vu
