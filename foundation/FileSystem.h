#pragma once
// vu::FileSystem: the few file-system calls that the path classes use, in
// one place. Paths follow Windows rules on every platform (see
// foundation/SplitPath.h); only these calls differ. On Windows they are the
// C runtime's wide calls (_waccess, _wmkdir, _wrmdir, _wfullpath, _wgetcwd,
// _wfindfirst). Natively they are POSIX calls on UTF-8 names:
//
//  - a '\' in a path given to them is read as '/';
//  - there are no drive letters: a path that begins with '\' (and is not a
//    UNC path) is rooted at the file-system root, which stands for the drive
//    and its root directory ('\tmp\a\f.txt' names /tmp/a/f.txt);
//  - the paths they return (GetCwd, FullPath) are written with '\', so the
//    path classes read them as they read any other.
#include "framework/Char.h"
#include <cstddef>
#include <string>
#include <string_view>

namespace vu {

class FileSystem {
public:
    // ---- where the platforms differ ------------------------------------------

    // Whether paths on this platform can carry a drive letter ('C:').
    static bool HasDriveLetters();
    // Whether path is rooted at the file-system root without a drive
    // (natively '\...'; never on Windows, where the drive's root is 'C:\').
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
