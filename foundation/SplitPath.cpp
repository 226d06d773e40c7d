#include "foundation/SplitPath.h"

#include <string_view>

namespace vu {

namespace {

bool IsSplitSeparator(char16_t c) {
    return c == u'\\' || c == u'/';
}

// Assigns part to out if out was requested; false when it would not fit in
// a runtime buffer of limit units (terminator included).
bool Fits(const std::u16string* out, std::u16string_view part, std::size_t limit) {
    return out == nullptr || part.size() < limit;
}

void Assign(std::u16string* out, std::u16string_view part) {
    if (out != nullptr)
        out->assign(part);
}

void ClearAll(std::u16string* drive, std::u16string* dir, std::u16string* fname,
              std::u16string* ext) {
    Assign(drive, {});
    Assign(dir, {});
    Assign(fname, {});
    Assign(ext, {});
}

} // namespace

bool SplitPath(const char16_t* path, std::u16string* drive, std::u16string* dir,
               std::u16string* fname, std::u16string* ext) {
    ClearAll(drive, dir, fname, ext);
    if (path == nullptr)
        return false;
    std::u16string_view rest(path);

    std::u16string_view drivePart;
    if (rest.size() >= 2 && rest[1] == u':') {
        drivePart = rest.substr(0, 2);
        rest.remove_prefix(2);
    }

    std::u16string_view dirPart;
    for (std::size_t i = rest.size(); i-- > 0;) {
        if (IsSplitSeparator(rest[i])) {
            dirPart = rest.substr(0, i + 1);
            rest.remove_prefix(i + 1);
            break;
        }
    }

    std::u16string_view namePart = rest;
    std::u16string_view extPart;
    const std::size_t dot = rest.rfind(u'.');
    if (dot != std::u16string_view::npos) {
        namePart = rest.substr(0, dot);
        extPart = rest.substr(dot);
    }

    if (!Fits(drive, drivePart, kMaxDrive) || !Fits(dir, dirPart, kMaxDir) ||
        !Fits(fname, namePart, kMaxFname) || !Fits(ext, extPart, kMaxExt))
        return false;
    Assign(drive, drivePart);
    Assign(dir, dirPart);
    Assign(fname, namePart);
    Assign(ext, extPart);
    return true;
}

} // namespace vu
