#include "foundation/FileSystem.h"

#ifdef _WIN32
#include "framework/win/Wide.h"

#include <direct.h>
#include <io.h>
#include <stdlib.h>
#include <vector>
#else
#include "framework/CaseMap.h"

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

constexpr char16_t kReplacement = 0xFFFD;

bool IsUncStart(std::u16string_view path) {
    return path.size() >= 2 && path[0] == u'\\' && path[1] == u'\\';
}

void AppendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

bool IsHighSurrogate(char16_t c) {
    return c >= 0xD800 && c <= 0xDBFF;
}
bool IsLowSurrogate(char16_t c) {
    return c >= 0xDC00 && c <= 0xDFFF;
}

// UTF-16 to the UTF-8 name POSIX takes, with '\' read as '/'. The text
// ends at the first 0 unit, as a C string would; an unpaired surrogate
// becomes U+FFFD.
std::string ToNative(std::u16string_view path) {
    std::string out;
    out.reserve(path.size());
    for (std::size_t i = 0; i < path.size() && path[i] != 0; ++i) {
        char16_t c = path[i];
        if (c == u'\\') {
            out += '/';
        } else if (IsHighSurrogate(c) && i + 1 < path.size() && IsLowSurrogate(path[i + 1])) {
            AppendUtf8(out, 0x10000 + ((char32_t(c) - 0xD800) << 10) + (path[i + 1] - 0xDC00));
            ++i;
        } else {
            AppendUtf8(out, IsHighSurrogate(c) || IsLowSurrogate(c) ? kReplacement : c);
        }
    }
    return out;
}

// UTF-8 from the file system to UTF-16; a malformed byte becomes U+FFFD.
std::u16string FromNative(std::string_view s) {
    std::u16string out;
    out.reserve(s.size());
    for (std::size_t i = 0; i < s.size();) {
        const auto b = static_cast<unsigned char>(s[i]);
        int extra = b < 0x80             ? 0
                    : (b & 0xE0) == 0xC0 ? 1
                    : (b & 0xF0) == 0xE0 ? 2
                    : (b & 0xF8) == 0xF0 ? 3
                                         : -1;
        char32_t c = extra == 0   ? b
                     : extra == 1 ? (b & 0x1F)
                     : extra == 2 ? (b & 0x0F)
                                  : (b & 0x07);
        bool ok = extra >= 0 && i + extra < s.size();
        for (int k = 1; ok && k <= extra; ++k) {
            const auto t = static_cast<unsigned char>(s[i + k]);
            ok = (t & 0xC0) == 0x80;
            c = (c << 6) | (t & 0x3F);
        }
        static constexpr char32_t kMinimum[] = {0, 0x80, 0x800, 0x10000};
        ok = ok && c >= kMinimum[extra] && c <= 0x10FFFF && !(c >= 0xD800 && c <= 0xDFFF);
        if (!ok) {
            out += kReplacement;
            ++i;
            continue;
        }
        if (c >= 0x10000) {
            out += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            out += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        } else {
            out += static_cast<char16_t>(c);
        }
        i += extra + 1;
    }
    return out;
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
