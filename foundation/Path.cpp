#include "foundation/Path.h"

#include "foundation/FileSystem.h"
#include "foundation/PathIterator.h"
#include "foundation/SplitPath.h"
#include "framework/CaseMap.h"

#include <string>
#include <string_view>
#include <vector>

using vu::FileSystem;

namespace {

// _wfullpath's buffer in MakeAbsolute, terminator included.
constexpr std::size_t kFullPathBuffer = 260;

CString Trimmed(const WCHAR* s) {
    CString t(s);
    t.Trim();
    return t;
}

bool EndsWithSeparator(const CString& s) {
    return !s.IsEmpty() && vu::IsDirSeparator(s[s.GetLength() - 1]);
}

// Drops one trailing separator from a directory longer than one unit, so a
// root directory keeps its single separator.
void DropTrailingSeparator(CString& dir) {
    if (dir.GetLength() > 1 && EndsWithSeparator(dir))
        dir.Delete(dir.GetLength() - 1);
}

bool IsAsciiLetter(WCHAR c) {
    return (c >= VU_T('A') && c <= VU_T('Z')) || (c >= VU_T('a') && c <= VU_T('z'));
}

bool StartsWithTwoBackslashes(vu::StringView s) {
    return s.size() >= 2 && s[0] == VU_T('\\') && s[1] == VU_T('\\');
}

std::size_t Length(const WCHAR* s) {
    return std::char_traits<WCHAR>::length(s);
}

} // namespace

// ---- construction ------------------------------------------------------------

AF_CPath::AF_CPath(const WCHAR* path) {
    SetPath(path);
}

AF_CPath& AF_CPath::operator=(const WCHAR* path) {
    Clear();
    SetPath(path);
    return *this;
}

void AF_CPath::SetPath(const WCHAR* path) {
    if (path == nullptr || *path == 0)
        return;
    m_FullPath = Trimmed(path);
    SetMachineAndShare();

    vu::String drive, dir, fname, ext;
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
    const vu::StringView full = m_FullPath.View();
    if (!StartsWithTwoBackslashes(full))
        return;
    const vu::StringView afterSlashes = full.substr(2);
    const std::size_t machineEnd = afterSlashes.find(VU_T('\\'));
    m_Machine = CString(afterSlashes.substr(0, machineEnd));
    if (machineEnd == vu::StringView::npos)
        return;
    const vu::StringView afterMachine = afterSlashes.substr(machineEnd + 1);
    m_Share = CString(afterMachine.substr(0, afterMachine.find(VU_T('\\'))));
}

void AF_CPath::BuildPath() {
    CString full;
    if (!m_Drive.IsEmpty()) {
        full += m_Drive;
        full += VU_T(':');
    }
    full += m_Dir;
    if (!m_Dir.IsEmpty() && !EndsWithSeparator(m_Dir))
        full += vu::kDirSeparator;
    full += m_Root;
    if (!m_Ext.IsEmpty()) {
        full += VU_T('.');
        full += m_Ext;
    }
    m_FullPath = full;
}

// ---- attributes ----------------------------------------------------------------

CString AF_CPath::GetDriveDir() const {
    if (m_Drive.IsEmpty())
        return m_Dir;
    return m_Drive + VU_T(':') + m_Dir;
}

CString AF_CPath::GetName() const {
    return m_Root + VU_T('.') + m_Ext;
}

// ---- setters ---------------------------------------------------------------------

void AF_CPath::SetDrive(const WCHAR* drive) {
    if (drive == nullptr)
        return;
    const CString t = Trimmed(drive);
    m_Drive = t.IsEmpty() ? CString() : t.Left(1);
    m_Machine.Empty();
    m_Share.Empty();
    BuildPath();
}

void AF_CPath::SetDir(const WCHAR* dir) {
    if (dir == nullptr)
        return;
    m_Dir = Trimmed(dir);
    DropTrailingSeparator(m_Dir);
    BuildPath();
    SetMachineAndShare();
}

void AF_CPath::SetDriveDir(const WCHAR* driveDir) {
    if (driveDir == nullptr || Length(driveDir) >= static_cast<std::size_t>(kMaxPath))
        return;
    CString t = Trimmed(driveDir);
    if (!t.IsEmpty() && !EndsWithSeparator(t))
        t += vu::kDirSeparator;
    const AF_CPath parsed(t);
    m_Drive = parsed.m_Drive;
    m_Dir = parsed.m_Dir;
    BuildPath();
    SetMachineAndShare();
}

void AF_CPath::SetRoot(const WCHAR* root) {
    if (root == nullptr)
        return;
    m_Root = Trimmed(root);
    if (!m_Root.IsEmpty() && m_Root[m_Root.GetLength() - 1] == VU_T('.'))
        m_Root.Delete(m_Root.GetLength() - 1);
    BuildPath();
}

void AF_CPath::SetExt(const WCHAR* ext) {
    if (ext == nullptr)
        return;
    m_Ext = Trimmed(ext);
    if (!m_Ext.IsEmpty() && m_Ext[0] == VU_T('.'))
        m_Ext.Delete(0);
    BuildPath();
}

void AF_CPath::SetName(const WCHAR* name) {
    if (name == nullptr)
        return;
    vu::String fname, ext;
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
bool operator==(const AF_CPath& path, const WCHAR* s) {
    return path == AF_CPath(s);
}
bool operator==(const WCHAR* s, const AF_CPath& path) {
    return AF_CPath(s) == path;
}
bool operator!=(const AF_CPath& path, const CString& s) {
    return !(path == s);
}
bool operator!=(const CString& s, const AF_CPath& path) {
    return !(s == path);
}
bool operator!=(const AF_CPath& path, const WCHAR* s) {
    return !(path == s);
}
bool operator!=(const WCHAR* s, const AF_CPath& path) {
    return !(s == path);
}

// ---- static name tests -----------------------------------------------------------

BOOL AF_CPath::IsPathUNC(const WCHAR* path) {
    return path != nullptr && StartsWithTwoBackslashes(path) ? TRUE : FALSE;
}

BOOL AF_CPath::IsMachineName(const WCHAR* path) {
    if (path == nullptr)
        return FALSE;
    const CString t = Trimmed(path);
    const vu::StringView s = t.View();
    if (!StartsWithTwoBackslashes(s))
        return FALSE;
    const std::size_t end = s.find(VU_T('\\'), 2);
    return end == vu::StringView::npos || end == s.size() - 1 ? TRUE : FALSE;
}

BOOL AF_CPath::IsShareName(const WCHAR* path) {
    if (path == nullptr)
        return FALSE;
    const CString t = Trimmed(path);
    const vu::StringView s = t.View();
    if (!StartsWithTwoBackslashes(s))
        return FALSE;
    const std::size_t machineEnd = s.find(VU_T('\\'), 2);
    if (machineEnd == vu::StringView::npos || machineEnd == 2)
        return FALSE; // no share, or no machine
    const std::size_t shareStart = machineEnd + 1;
    const std::size_t shareEnd = s.find(VU_T('\\'), shareStart);
    const std::size_t shareLength =
        (shareEnd == vu::StringView::npos ? s.size() : shareEnd) - shareStart;
    if (shareLength == 0)
        return FALSE;
    return shareEnd == vu::StringView::npos || shareEnd == s.size() - 1 ? TRUE : FALSE;
}

// ---- file system -------------------------------------------------------------------

BOOL AF_CPath::DirExists(const WCHAR* path) {
    return path != nullptr && *path != 0 && FileSystem::Exists(path) ? TRUE : FALSE;
}

BOOL AF_CPath::FileExists(const WCHAR* path) {
    return DirExists(path);
}

BOOL AF_CPath::DeleteDir(const WCHAR* path) {
    return path != nullptr && FileSystem::RemoveDir(path) ? TRUE : FALSE;
}

BOOL AF_CPath::DirExists() const {
    return DirExists(GetDriveDir());
}

BOOL AF_CPath::FileExists() const {
    return FileExists(m_FullPath);
}

CString AF_CPath::GetCwd() {
    vu::String cwd;
    if (!FileSystem::GetCwd(kMaxPath, cwd))
        return CString();
    return CString(cwd);
}

BOOL AF_CPath::CreateDir() const {
    // The drive's root must exist: 'C:\' on Windows, natively the root '/'.
    if (FileSystem::HasDriveLetters()) {
        if (m_Drive.GetLength() != 1 || !FileSystem::Exists((m_Drive + VU_T(":\\")).View()))
            return FALSE;
    } else if (!m_Drive.IsEmpty() || !FileSystem::IsRootedWithoutDrive(m_Dir.View())) {
        return FALSE;
    }
    const CString driveDir = GetDriveDir();
    const vu::StringView dd = driveDir.View();
    if (dd.size() >= static_cast<std::size_t>(kMaxPath))
        return FALSE;
    std::size_t first = 0;
    while (first < dd.size() && !vu::IsDirSeparator(dd[first]))
        ++first;
    if (first == dd.size())
        return FALSE;
    // Each prefix up to a further separator, then the whole directory.
    for (std::size_t i = first + 1; i <= dd.size(); ++i) {
        if (i < dd.size() && !vu::IsDirSeparator(dd[i]))
            continue;
        const vu::StringView prefix = dd.substr(0, i);
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
    vu::String full;
    if (!FileSystem::FullPath(m_FullPath.View(), kFullPathBuffer, full))
        return FALSE;
    SetPath(full.c_str());
    return TRUE;
}

BOOL AF_CPath::GetLongName(const WCHAR* item, CString* longName) {
    if (item == nullptr || *item == 0 || longName == nullptr)
        return FALSE;
    const vu::StringView s(item);
    if (s.size() == 1 && vu::IsDirSeparator(s[0]))
        return FALSE; // a drive's root has no name
    if ((s.size() == 2 || s.size() == 3) && s[1] == VU_T(':')) {
        *longName = CString(s);
        longName->SetAt(0, vu::ToUpper(s[0]));
        return TRUE;
    }
    vu::String name;
    if (!FileSystem::FindFirstName(s, name))
        return FALSE;
    *longName = CString(name);
    return TRUE;
}

BOOL AF_CPath::RemoveAliases() {
    const CString driveDir = GetDriveDir();
    const vu::StringView dd = driveDir.View();
    std::vector<CString> items; // growing prefixes, each looked up
    CString result;
    if (FileSystem::IsRootedWithoutDrive(dd)) {
        // Natively the root '\' stands for the drive's root and is kept as
        // it is; every longer prefix up to a separator is looked up.
        result = VU_T("\\");
        for (std::size_t i = 1; i <= dd.size(); ++i)
            if ((i == dd.size() || vu::IsDirSeparator(dd[i])) && !vu::IsDirSeparator(dd[i - 1]))
                items.emplace_back(dd.substr(0, i));
    } else {
        AF_CPathIterator walk(driveDir);
        if (!IsPathUNC(driveDir)) {
            if (!GetLongName(walk.First(), &result))
                return FALSE;
        } else {
            walk.First();
            if (walk.Done())
                return FALSE;
            result = walk++;
            result += vu::kDirSeparator;
        }
        for (CString item = walk++; !walk.Done(); item = walk++)
            items.push_back(item);
    }
    for (const CString& item : items) {
        CString longName;
        if (!GetLongName(item, &longName))
            return FALSE;
        result += longName;
        result += vu::kDirSeparator;
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
