#include "foundation/Path.h"

#include "foundation/FileSystem.h"
#include "foundation/PathIterator.h"
#include "foundation/SplitPath.h"
#include "framework/CaseMap.h"

#include <string>
#include <string_view>

using vu::FileSystem;

namespace {

// _wfullpath's buffer in MakeAbsolute, terminator included.
constexpr std::size_t kFullPathBuffer = 260;

CString Trimmed(const char16_t* s) {
    CString t(s);
    t.Trim();
    return t;
}

bool EndsWithSeparator(const CString& s) {
    return !s.IsEmpty() && FileSystem::IsSeparator(s[s.GetLength() - 1]);
}

// Drops one trailing separator from a directory longer than one unit, so a
// root directory keeps its single separator.
void DropTrailingSeparator(CString& dir) {
    if (dir.GetLength() > 1 && EndsWithSeparator(dir))
        dir.Delete(dir.GetLength() - 1);
}

bool IsAsciiLetter(char16_t c) {
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

bool StartsWithTwoBackslashes(std::u16string_view s) {
    return s.size() >= 2 && s[0] == u'\\' && s[1] == u'\\';
}

std::size_t Length(const char16_t* s) {
    return std::char_traits<char16_t>::length(s);
}

} // namespace

// ---- construction ------------------------------------------------------------

AF_CPath::AF_CPath(const char16_t* path) {
    SetPath(path);
}

AF_CPath& AF_CPath::operator=(const char16_t* path) {
    Clear();
    SetPath(path);
    return *this;
}

void AF_CPath::SetPath(const char16_t* path) {
    if (path == nullptr || *path == 0)
        return;
    m_FullPath = Trimmed(path);
    SetMachineAndShare();

    std::u16string drive, dir, fname, ext;
    vu::SplitPath(m_FullPath.GetString(), &drive, &dir, &fname, &ext);
    m_Drive = drive.size() == 2 && IsAsciiLetter(drive[0]) ? CString(drive[0]) : CString();
    m_Dir = CString(dir);
    DropTrailingSeparator(m_Dir);
    m_Root = CString(fname);
    m_Ext = CString(ext.empty() ? ext : ext.substr(1));
}

void AF_CPath::Clear() {
    m_Drive.Empty();
    m_Dir.Empty();
    m_Root.Empty();
    m_Ext.Empty();
    m_FullPath.Empty();
    m_Machine.Empty();
    m_Share.Empty();
}

void AF_CPath::SetMachineAndShare() {
    m_Machine.Empty();
    m_Share.Empty();
    const std::u16string_view full = m_FullPath.View();
    if (!StartsWithTwoBackslashes(full))
        return;
    const std::u16string_view afterSlashes = full.substr(2);
    const std::size_t machineEnd = afterSlashes.find(u'\\');
    m_Machine = CString(afterSlashes.substr(0, machineEnd));
    if (machineEnd == std::u16string_view::npos)
        return;
    const std::u16string_view afterMachine = afterSlashes.substr(machineEnd + 1);
    m_Share = CString(afterMachine.substr(0, afterMachine.find(u'\\')));
}

void AF_CPath::BuildPath() {
    CString full;
    if (!m_Drive.IsEmpty()) {
        full += m_Drive;
        full += u':';
    }
    full += m_Dir;
    if (!m_Dir.IsEmpty() && !EndsWithSeparator(m_Dir))
        full += FileSystem::SeparatorFor(m_Dir.View());
    full += m_Root;
    if (!m_Ext.IsEmpty()) {
        full += u'.';
        full += m_Ext;
    }
    m_FullPath = full;
}

// ---- attributes ----------------------------------------------------------------

CString AF_CPath::GetDriveDir() const {
    if (m_Drive.IsEmpty())
        return m_Dir;
    return m_Drive + u':' + m_Dir;
}

CString AF_CPath::GetName() const {
    return m_Root + u'.' + m_Ext;
}

// ---- setters ---------------------------------------------------------------------

void AF_CPath::SetDrive(const char16_t* drive) {
    if (drive == nullptr)
        return;
    const CString t = Trimmed(drive);
    m_Drive = t.IsEmpty() ? CString() : t.Left(1);
    m_Machine.Empty();
    m_Share.Empty();
    BuildPath();
}

void AF_CPath::SetDir(const char16_t* dir) {
    if (dir == nullptr)
        return;
    m_Dir = Trimmed(dir);
    DropTrailingSeparator(m_Dir);
    BuildPath();
    SetMachineAndShare();
}

void AF_CPath::SetDriveDir(const char16_t* driveDir) {
    if (driveDir == nullptr || Length(driveDir) >= static_cast<std::size_t>(kMaxPath))
        return;
    CString t = Trimmed(driveDir);
    if (!t.IsEmpty() && !EndsWithSeparator(t))
        t += FileSystem::SeparatorFor(t.View());
    const AF_CPath parsed(t);
    m_Drive = parsed.m_Drive;
    m_Dir = parsed.m_Dir;
    BuildPath();
    SetMachineAndShare();
}

void AF_CPath::SetRoot(const char16_t* root) {
    if (root == nullptr)
        return;
    m_Root = Trimmed(root);
    if (!m_Root.IsEmpty() && m_Root[m_Root.GetLength() - 1] == u'.')
        m_Root.Delete(m_Root.GetLength() - 1);
    BuildPath();
}

void AF_CPath::SetExt(const char16_t* ext) {
    if (ext == nullptr)
        return;
    m_Ext = Trimmed(ext);
    if (!m_Ext.IsEmpty() && m_Ext[0] == u'.')
        m_Ext.Delete(0);
    BuildPath();
}

void AF_CPath::SetName(const char16_t* name) {
    if (name == nullptr)
        return;
    std::u16string fname, ext;
    vu::SplitPath(name, nullptr, nullptr, &fname, &ext);
    m_Root = CString(fname);
    m_Ext = CString(ext.empty() ? ext : ext.substr(1));
    BuildPath();
}

// ---- comparison ------------------------------------------------------------------

bool AF_CPath::operator==(const AF_CPath& other) const {
    return m_FullPath.CompareNoCase(other.m_FullPath) == 0;
}

bool operator==(const AF_CPath& path, const CString& s) {
    return path == AF_CPath(s);
}
bool operator==(const CString& s, const AF_CPath& path) {
    return AF_CPath(s) == path;
}
bool operator==(const AF_CPath& path, const char16_t* s) {
    return path == AF_CPath(s);
}
bool operator==(const char16_t* s, const AF_CPath& path) {
    return AF_CPath(s) == path;
}
bool operator!=(const AF_CPath& path, const CString& s) {
    return !(path == s);
}
bool operator!=(const CString& s, const AF_CPath& path) {
    return !(s == path);
}
bool operator!=(const AF_CPath& path, const char16_t* s) {
    return !(path == s);
}
bool operator!=(const char16_t* s, const AF_CPath& path) {
    return !(s == path);
}

// ---- static name tests -----------------------------------------------------------

BOOL AF_CPath::IsPathUNC(const char16_t* path) {
    return path != nullptr && StartsWithTwoBackslashes(path) ? TRUE : FALSE;
}

BOOL AF_CPath::IsMachineName(const char16_t* path) {
    if (path == nullptr)
        return FALSE;
    const CString t = Trimmed(path);
    const std::u16string_view s = t.View();
    if (!StartsWithTwoBackslashes(s))
        return FALSE;
    const std::size_t end = s.find(u'\\', 2);
    return end == std::u16string_view::npos || end == s.size() - 1 ? TRUE : FALSE;
}

BOOL AF_CPath::IsShareName(const char16_t* path) {
    if (path == nullptr)
        return FALSE;
    const CString t = Trimmed(path);
    const std::u16string_view s = t.View();
    if (!StartsWithTwoBackslashes(s))
        return FALSE;
    const std::size_t machineEnd = s.find(u'\\', 2);
    if (machineEnd == std::u16string_view::npos || machineEnd == 2)
        return FALSE; // no share, or no machine
    const std::size_t shareStart = machineEnd + 1;
    const std::size_t shareEnd = s.find(u'\\', shareStart);
    const std::size_t shareLength =
        (shareEnd == std::u16string_view::npos ? s.size() : shareEnd) - shareStart;
    if (shareLength == 0)
        return FALSE;
    return shareEnd == std::u16string_view::npos || shareEnd == s.size() - 1 ? TRUE : FALSE;
}

// ---- file system -------------------------------------------------------------------

BOOL AF_CPath::DirExists(const char16_t* path) {
    return path != nullptr && *path != 0 && FileSystem::Exists(path) ? TRUE : FALSE;
}

BOOL AF_CPath::FileExists(const char16_t* path) {
    return DirExists(path);
}

BOOL AF_CPath::DeleteDir(const char16_t* path) {
    return path != nullptr && FileSystem::RemoveDir(path) ? TRUE : FALSE;
}

BOOL AF_CPath::DirExists() const {
    return DirExists(GetDriveDir());
}

BOOL AF_CPath::FileExists() const {
    return FileExists(m_FullPath);
}

CString AF_CPath::GetCwd() {
    std::u16string cwd;
    if (!FileSystem::GetCwd(kMaxPath, cwd))
        return CString();
    return CString(cwd);
}

BOOL AF_CPath::CreateDir() const {
    // The drive's root must exist: 'C:\' on Windows, natively the root '/'.
    if (FileSystem::HasDriveLetters()) {
        if (m_Drive.GetLength() != 1 || !FileSystem::Exists((m_Drive + u":\\").View()))
            return FALSE;
    } else if (!m_Drive.IsEmpty() || !FileSystem::IsRootedWithoutDrive(m_Dir.View())) {
        return FALSE;
    }
    const CString driveDir = GetDriveDir();
    const std::u16string_view dd = driveDir.View();
    if (dd.size() >= static_cast<std::size_t>(kMaxPath))
        return FALSE;
    std::size_t first = 0;
    while (first < dd.size() && !FileSystem::IsSeparator(dd[first]))
        ++first;
    if (first == dd.size())
        return FALSE;
    // Each prefix up to a further separator, then the whole directory.
    for (std::size_t i = first + 1; i <= dd.size(); ++i) {
        if (i < dd.size() && !FileSystem::IsSeparator(dd[i]))
            continue;
        const std::u16string_view prefix = dd.substr(0, i);
        if (!FileSystem::Exists(prefix) && !FileSystem::MakeDir(prefix))
            return FALSE;
    }
    return TRUE;
}

BOOL AF_CPath::DeleteDir() const {
    if (!DirExists())
        return FALSE;
    return FileSystem::RemoveDir(GetDriveDir().View()) ? TRUE : FALSE;
}

BOOL AF_CPath::MakeAbsolute() {
    if (m_FullPath.IsEmpty())
        return TRUE;
    std::u16string full;
    if (!FileSystem::FullPath(m_FullPath.View(), kFullPathBuffer, full))
        return FALSE;
    SetPath(full.c_str());
    return TRUE;
}

BOOL AF_CPath::GetLongName(const char16_t* item, CString* longName) {
    if (item == nullptr || *item == 0 || longName == nullptr)
        return FALSE;
    const std::u16string_view s(item);
    if (s.size() == 1 && FileSystem::IsSeparator(s[0])) {
        // A lone separator is a drive's root on Windows, which has no name;
        // natively it is the file-system root, which stands for the drive.
        if (FileSystem::HasDriveLetters())
            return FALSE;
        *longName = CString(s);
        return TRUE;
    }
    if ((s.size() == 2 || s.size() == 3) && s[1] == u':') {
        *longName = CString(s);
        longName->SetAt(0, vu::ToUpper(s[0]));
        return TRUE;
    }
    std::u16string name;
    if (!FileSystem::FindFirstName(s, name))
        return FALSE;
    *longName = CString(name);
    return TRUE;
}

BOOL AF_CPath::RemoveAliases() {
    const CString driveDir = GetDriveDir();
    AF_CPathIterator walk(driveDir);
    CString result;
    if (!IsPathUNC(driveDir)) {
        if (!GetLongName(walk.First(), &result))
            return FALSE;
    } else {
        walk.First();
        if (walk.Done())
            return FALSE;
        result = walk++;
        result += u'\\';
    }
    for (;;) {
        const CString item = walk++;
        if (walk.Done())
            break;
        CString longName;
        if (!GetLongName(item, &longName))
            return FALSE;
        result += longName;
        result += FileSystem::SeparatorFor(result.View());
    }
    SetDriveDir(result);
    if (GetName().IsEmpty())
        return TRUE;
    CString longName;
    if (!GetLongName(m_FullPath, &longName))
        return FALSE;
    SetName(longName);
    return TRUE;
}
