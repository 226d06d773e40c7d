#include "foundation/FileSystem.h"

#ifdef _WIN32

#include <direct.h>
#include <io.h>
#include <stdlib.h>
#include <vector>
#else
#include "foundation/Utf8.h"
#include "framework/CaseMap.h"
#include <algorithm>

#include <cerrno>
#include <dirent.h>
#include <fnmatch.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>
#endif

namespace vu {

#ifdef _WIN32

// ---- Windows: the C runtime's wide calls ------------------------------------

bool FileSystem::HasDriveLetters() {
    return true;
}
bool FileSystem::IsRootedWithoutDrive(vu::StringView) {
    return false;
}

bool FileSystem::Exists(vu::StringView path) {
    const vu::String z(path);
    return _waccess(z.c_str(), 0) == 0;
}

bool FileSystem::MakeDir(vu::StringView path) {
    const vu::String z(path);
    return _wmkdir(z.c_str()) == 0;
}

bool FileSystem::RemoveDir(vu::StringView path) {
    const vu::String z(path);
    return _wrmdir(z.c_str()) == 0;
}

bool FileSystem::FullPath(vu::StringView path, std::size_t bufferUnits, vu::String& out) {
    const vu::String z(path);
    std::vector<wchar_t> buffer(bufferUnits + 1);
    if (_wfullpath(buffer.data(), z.c_str(), bufferUnits) == nullptr)
        return false;
    out = buffer.data();
    return true;
}

bool FileSystem::GetCwd(std::size_t bufferUnits, vu::String& out) {
    std::vector<wchar_t> buffer(bufferUnits + 1);
    if (_wgetcwd(buffer.data(), static_cast<int>(bufferUnits)) == nullptr)
        return false;
    out = buffer.data();
    return true;
}

bool FileSystem::FindFirstName(vu::StringView path, vu::String& name) {
    const vu::String z(path);
    struct _wfinddata_t data;
    const intptr_t handle = _wfindfirst(z.c_str(), &data);
    if (handle == -1)
        return false;
    name = data.name;
    _findclose(handle);
    return true;
}

#else

// ---- natively: POSIX calls on UTF-8 names -------------------------------------

namespace {

bool IsUncStart(vu::StringView path) {
    return path.size() >= 2 && path[0] == VU_T('\\') && path[1] == VU_T('\\');
}

// UTF-16 to the UTF-8 name POSIX takes, with '\' read as '/'. The text ends
// at the first 0 unit, as a C string would.
std::string ToNative(vu::StringView path) {
    std::string out = vu::Utf16ToUtf8(path.substr(0, path.find(VU_T('\0'))));
    std::replace(out.begin(), out.end(), '\\', '/');
    return out;
}

// UTF-8 from the file system to UTF-16.
vu::String FromNative(std::string_view s) {
    return vu::Utf8ToUtf16(s);
}

// A native path as the path rules read it: '/' becomes '\'.
vu::String PathFromNative(std::string_view s) {
    vu::String out = FromNative(s);
    std::replace(out.begin(), out.end(), VU_T('/'), VU_T('\\'));
    return out;
}

// The file system reads both '\' and '/' as a separator.
bool IsNativeSeparator(WCHAR c) {
    return c == VU_T('\\') || c == VU_T('/');
}

bool HasDrivePrefix(vu::StringView path) {
    return path.size() >= 2 && path[1] == VU_T(':');
}

bool HasWildcard(vu::StringView s) {
    return s.find_first_of(VU_T("*?")) != vu::StringView::npos;
}

} // namespace

bool FileSystem::HasDriveLetters() {
    return false;
}
bool FileSystem::IsRootedWithoutDrive(vu::StringView path) {
    return !path.empty() && path[0] == VU_T('\\') && !IsUncStart(path);
}

bool FileSystem::Exists(vu::StringView path) {
    const std::string native = ToNative(path);
    return !native.empty() && ::access(native.c_str(), F_OK) == 0;
}

bool FileSystem::MakeDir(vu::StringView path) {
    const std::string native = ToNative(path);
    return !native.empty() && ::mkdir(native.c_str(), 0777) == 0;
}

bool FileSystem::RemoveDir(vu::StringView path) {
    const std::string native = ToNative(path);
    return !native.empty() && ::rmdir(native.c_str()) == 0;
}

// Resolves textually, like _wfullpath: '.' and empty components vanish,
// '..' drops the component before it (never above the root), symbolic
// links are not followed and nothing needs to exist. A trailing separator
// is kept. Drive-letter and UNC paths have no counterpart here.
bool FileSystem::FullPath(vu::StringView path, std::size_t bufferUnits, vu::String& out) {
    if (path.empty() || HasDrivePrefix(path) || IsUncStart(path))
        return false;
    vu::String combined;
    if (!IsNativeSeparator(path[0]) && !GetCwd(vu::String::npos, combined))
        return false;
    combined += VU_T('\\');
    combined += path;

    std::vector<vu::StringView> parts;
    const vu::StringView all(combined);
    std::size_t start = 0;
    while (start <= all.size()) {
        std::size_t end = start;
        while (end < all.size() && !IsNativeSeparator(all[end]))
            ++end;
        const vu::StringView part = all.substr(start, end - start);
        if (part == VU_T("..")) {
            if (!parts.empty())
                parts.pop_back();
        } else if (!part.empty() && part != VU_T(".")) {
            parts.push_back(part);
        }
        start = end + 1;
    }

    vu::String result;
    for (const auto& part : parts) {
        result += VU_T('\\');
        result += part;
    }
    if (result.empty() || IsNativeSeparator(path.back()))
        result += VU_T('\\');
    if (result.size() + 1 > bufferUnits)
        return false;
    out = std::move(result);
    return true;
}

bool FileSystem::GetCwd(std::size_t bufferUnits, vu::String& out) {
    std::vector<char> buffer(4096);
    while (::getcwd(buffer.data(), buffer.size()) == nullptr) {
        if (errno != ERANGE || buffer.size() > (1u << 20))
            return false;
        buffer.resize(buffer.size() * 2);
    }
    vu::String cwd = PathFromNative(buffer.data());
    if (cwd.size() + 1 > bufferUnits)
        return false;
    out = std::move(cwd);
    return true;
}

bool FileSystem::FindFirstName(vu::StringView path, vu::String& name) {
    if (path.empty() || IsNativeSeparator(path.back()))
        return false;
    const std::size_t cut = path.find_last_of(VU_T("\\/"));
    const vu::StringView last = cut == vu::StringView::npos ? path : path.substr(cut + 1);
    const vu::StringView parent =
        cut == vu::StringView::npos ? vu::StringView(VU_T(".")) : path.substr(0, cut + 1);
    const bool wild = HasWildcard(last);
    if (!wild && !Exists(path))
        return false;

    const std::string pattern = ToNative(last);
    DIR* dir = ::opendir(ToNative(parent).c_str());
    if (dir == nullptr) {
        if (wild)
            return false;
        name.assign(last); // exists, but the directory cannot be listed
        return true;
    }
    // Wildcards give the first match in name order (directory order is not
    // defined here); a plain name gives the entry as stored, found exactly
    // or, on a case-blind file system, by case-blind comparison.
    std::string best;
    vu::String caseBlind;
    bool found = false;
    while (const dirent* entry = ::readdir(dir)) {
        const std::string entryName = entry->d_name;
        if (wild) {
            if (::fnmatch(pattern.c_str(), entryName.c_str(), 0) == 0 &&
                (!found || entryName < best)) {
                best = entryName;
                found = true;
            }
        } else if (entryName == pattern) {
            best = entryName;
            found = true;
            break;
        } else if (caseBlind.empty()) {
            vu::String candidate = FromNative(entryName);
            if (EqualNoCase(candidate, last))
                caseBlind = std::move(candidate);
        }
    }
    ::closedir(dir);
    if (found)
        name = FromNative(best);
    else if (!wild)
        name = caseBlind.empty() ? vu::String(last) : caseBlind;
    return found || !wild;
}

#endif

} // namespace vu
