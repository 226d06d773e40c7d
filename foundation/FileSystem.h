#pragma once
// vu::FileSystem: the few file-system calls and path conventions that the
// path classes use, in one place. On Windows they are the C runtime's wide
// calls (_waccess, _wmkdir, _wrmdir, _wfullpath, _wgetcwd, _wfindfirst).
// Natively they are POSIX calls on UTF-8 names, and paths follow Windows
// rules mapped onto POSIX:
//
//  - '\' and '/' both separate directories ('\' is read as '/');
//  - there are no drive letters: a path that begins with a separator (and
//    is not a UNC path) is rooted at the file-system root '/', which stands
//    for the drive and its root directory: AF_CPath keeps Drive empty and
//    Dir beginning with the separator ('/tmp/a/f.txt': Dir '/tmp/a');
//  - the separator added when joining is the one the path already uses, or
//    '/' when it has none.
//
// Windows keeps its own rules exactly: only '\' ends a directory in the
// path rules (the splitter still accepts '/'), and joins add '\'.
#include "framework/Char.h"
#include <cstddef>
#include <string>
#include <string_view>

namespace vu {

class FileSystem {
public:
    // ---- path conventions ----------------------------------------------------

    // Whether paths on this platform can carry a drive letter ('C:').
    static bool HasDriveLetters();
    // Whether c ends a directory in the path rules.
    static bool IsSeparator(WCHAR c);
    // The separator to put after path when joining another part to it.
    static WCHAR SeparatorFor(vu::StringView path);
    // Whether path is rooted at the file-system root without a drive
    // (natively '/...'; never on Windows, where the drive's root is 'C:\').
    static bool IsRootedWithoutDrive(vu::StringView path);

    // ---- file-system calls -----------------------------------------------------

    // Whether an entry of any kind exists at path.
    static bool Exists(vu::StringView path);
    static bool MakeDir(vu::StringView path);
    static bool RemoveDir(vu::StringView path);
    // The absolute form of path, with '.' and '..' resolved; false if it
    // cannot be made or needs bufferUnits units or more (terminator
    // included).
    static bool FullPath(vu::StringView path, std::size_t bufferUnits, vu::String& out);
    // The current directory; false if it needs more than bufferUnits units
    // (terminator included).
    static bool GetCwd(std::size_t bufferUnits, vu::String& out);
    // The name, as stored, of the first entry that path's last component
    // names (it may hold the wildcards '*' and '?'); false if none does or
    // the path ends in a separator.
    static bool FindFirstName(vu::StringView path, vu::String& name);
};

} // namespace vu
