#include "foundation/FileSystem.h"

#ifdef _WIN32
#include "framework/win/Wide.h"

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
bool FileSystem::IsSeparator(char16_t c) {
    return c == u'\\';
}
char16_t FileSystem::SeparatorFor(std::u16string_view) {
    return u'\\';
}
bool FileSystem::IsRootedWithoutDrive(std::u16string_view) {
    return false;
}

bool FileSystem::Exists(std::u16string_view path) {
    const std::u16string z(path);
    return _waccess(W(z.c_str()), 0) == 0;
}

bool FileSystem::MakeDir(std::u16string_view path) {
    const std::u16string z(path);
    return _wmkdir(W(z.c_str())) == 0;
}

bool FileSystem::RemoveDir(std::u16string_view path) {
    const std::u16string z(path);
    return _wrmdir(W(z.c_str())) == 0;
}

bool FileSystem::FullPath(std::u16string_view path, std::size_t bufferUnits, std::u16string& out) {
    const std::u16string z(path);
    std::vector<wchar_t> buffer(bufferUnits + 1);
    if (_wfullpath(buffer.data(), W(z.c_str()), bufferUnits) == nullptr)
        return false;
    out = U(buffer.data());
    return true;
}

bool FileSystem::GetCwd(std::size_t bufferUnits, std::u16string& out) {
    std::vector<wchar_t> buffer(bufferUnits + 1);
    if (_wgetcwd(buffer.data(), static_cast<int>(bufferUnits)) == nullptr)
        return false;
    out = U(buffer.data());
    return true;
}

bool FileSystem::FindFirstName(std::u16string_view path, std::u16string& name) {
    const std::u16string z(path);
    struct _wfinddata_t data;
    const intptr_t handle = _wfindfirst(W(z.c_str()), &data);
    if (handle == -1)
        return false;
    name = U(data.name);
    _findclose(handle);
    return true;
}

#else

// ---- natively: POSIX calls on UTF-8 names -------------------------------------

namespace {

bool IsUncStart(std::u16string_view path) {
    return path.size() >= 2 && path[0] == u'\\' && path[1] == u'\\';
}

// UTF-16 to the UTF-8 name POSIX takes, with '\' read as '/'. The text ends
// at the first 0 unit, as a C string would.
std::string ToNative(std::u16string_view path) {
    std::string out = vu::Utf16ToUtf8(path.substr(0, path.find(u'\0')));
    std::replace(out.begin(), out.end(), '\\', '/');
    return out;
}

// UTF-8 from the file system to UTF-16.
std::u16string FromNative(std::string_view s) {
    return vu::Utf8ToUtf16(s);
}

bool HasDrivePrefix(std::u16string_view path) {
    return path.size() >= 2 && path[1] == u':';
}

bool HasWildcard(std::u16string_view s) {
    return s.find_first_of(u"*?") != std::u16string_view::npos;
}

} // namespace

bool FileSystem::HasDriveLetters() {
    return false;
}
bool FileSystem::IsSeparator(char16_t c) {
    return c == u'\\' || c == u'/';
}

char16_t FileSystem::SeparatorFor(std::u16string_view path) {
    const std::size_t last = path.find_last_of(u"\\/");
    return last == std::u16string_view::npos ? u'/' : path[last];
}

bool FileSystem::IsRootedWithoutDrive(std::u16string_view path) {
    return !path.empty() && IsSeparator(path[0]) && !IsUncStart(path);
}

bool FileSystem::Exists(std::u16string_view path) {
    const std::string native = ToNative(path);
    return !native.empty() && ::access(native.c_str(), F_OK) == 0;
}

bool FileSystem::MakeDir(std::u16string_view path) {
    const std::string native = ToNative(path);
    return !native.empty() && ::mkdir(native.c_str(), 0777) == 0;
}

bool FileSystem::RemoveDir(std::u16string_view path) {
    const std::string native = ToNative(path);
    return !native.empty() && ::rmdir(native.c_str()) == 0;
}

// Resolves textually, like _wfullpath: '.' and empty components vanish,
// '..' drops the component before it (never above the root), symbolic
// links are not followed and nothing needs to exist. A trailing separator
// is kept. Drive-letter and UNC paths have no counterpart here.
bool FileSystem::FullPath(std::u16string_view path, std::size_t bufferUnits, std::u16string& out) {
    if (path.empty() || HasDrivePrefix(path) || IsUncStart(path))
        return false;
    std::u16string combined;
    if (!IsSeparator(path[0]) && !GetCwd(std::u16string::npos, combined))
        return false;
    combined += u'/';
    combined += path;

    std::vector<std::u16string_view> parts;
    const std::u16string_view all(combined);
    std::size_t start = 0;
    while (start <= all.size()) {
        std::size_t end = start;
        while (end < all.size() && !IsSeparator(all[end]))
            ++end;
        const std::u16string_view part = all.substr(start, end - start);
        if (part == u"..") {
            if (!parts.empty())
                parts.pop_back();
        } else if (!part.empty() && part != u".") {
            parts.push_back(part);
        }
        start = end + 1;
    }

    std::u16string result;
    for (const auto& part : parts) {
        result += u'/';
        result += part;
    }
    if (result.empty() || IsSeparator(path.back()))
        result += u'/';
    if (result.size() + 1 > bufferUnits)
        return false;
    out = std::move(result);
    return true;
}

bool FileSystem::GetCwd(std::size_t bufferUnits, std::u16string& out) {
    std::vector<char> buffer(4096);
    while (::getcwd(buffer.data(), buffer.size()) == nullptr) {
        if (errno != ERANGE || buffer.size() > (1u << 20))
            return false;
        buffer.resize(buffer.size() * 2);
    }
    std::u16string cwd = FromNative(buffer.data());
    if (cwd.size() + 1 > bufferUnits)
        return false;
    out = std::move(cwd);
    return true;
}

bool FileSystem::FindFirstName(std::u16string_view path, std::u16string& name) {
    if (path.empty() || IsSeparator(path.back()))
        return false;
    const std::size_t cut = path.find_last_of(u"\\/");
    const std::u16string_view last = cut == std::u16string_view::npos ? path : path.substr(cut + 1);
    const std::u16string_view parent =
        cut == std::u16string_view::npos ? std::u16string_view(u".") : path.substr(0, cut + 1);
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
    std::u16string caseBlind;
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
            std::u16string candidate = FromNative(entryName);
            if (EqualNoCase(candidate, last))
                caseBlind = std::move(candidate);
        }
    }
    ::closedir(dir);
    if (found)
        name = FromNative(best);
    else if (!wild)
        name = caseBlind.empty() ? std::u16string(last) : caseBlind;
    return found || !wild;
}

#endif

} // namespace vu
