#pragma once
// AF_CPath: a file path split into machine, share, drive, directory, name
// and extension, with rebuilding, comparison, existence tests, directory
// creation and long-name expansion. Splitting, rebuilding, the setters and
// the name tests follow Windows rules on every platform ('\' separates,
// joins add '\'; a '/' is an ordinary unit except to the splitter), so a
// path means the same natively and on Windows. Only the file-system calls
// differ; see foundation/FileSystem.h (natively the root '\' stands for the
// drive).
//
// Parts of any length are kept whole: splitting, the setters and the
// rebuild never drop or empty a part for its length. Only the operations
// that work within a 261-unit path limit refuse longer paths: SetDriveDir
// ignores its argument, the iterator walks nothing, CreateDir fails and
// MakeAbsolute fails when the absolute form needs 260 units or more.
//
// Every setter rebuilds FullPath from Drive, Dir, Root and Ext; Machine and
// Share are not part of the rebuild (a UNC path keeps them inside Dir).
#include "framework/CString.h"
#include "framework/Types.h"

class AF_CPath {
public:
    // Construction
    AF_CPath() = default;
    AF_CPath(const AF_CPath&) = default;
    AF_CPath(const WCHAR* path);
    AF_CPath& operator=(const AF_CPath&) = default;
    // Empties every field, then sets the path.
    AF_CPath& operator=(const WCHAR* path);

    // Sets FullPath to path trimmed of white space and splits it; a null or
    // empty path changes nothing.
    void SetPath(const WCHAR* path);
    void Clear();
    // FullPath = Drive ':' Dir '\' Root '.' Ext, each part only when present
    // (the separator only when Dir does not end in one).
    void BuildPath();

    // Attributes
    const CString& GetDrive() const { return m_Drive; }
    const CString& GetDir() const { return m_Dir; }
    const CString& GetRoot() const { return m_Root; }
    const CString& GetExt() const { return m_Ext; }
    const CString& GetMachine() const { return m_Machine; }
    const CString& GetShare() const { return m_Share; }
    const CString& GetFullPath() const { return m_FullPath; }
    // The directory with its drive ('C' and '\a\b' give 'C:\a\b').
    CString GetDriveDir() const;
    // Root, '.', Ext: always with the dot, so 'name' gives 'name.' and an
    // empty path gives '.'.
    CString GetName() const;
    operator const WCHAR*() const { return m_FullPath; }

    // Setters: each ignores a null argument and rebuilds FullPath.
    void SetDrive(const WCHAR* drive);
    void SetDir(const WCHAR* dir);
    // Ignored for 261 units or more.
    void SetDriveDir(const WCHAR* driveDir);
    void SetRoot(const WCHAR* root);
    void SetExt(const WCHAR* ext);
    void SetName(const WCHAR* name);

    // Comparison of FullPath, case-blind
    bool operator==(const AF_CPath& other) const;
    bool operator!=(const AF_CPath& other) const { return !(*this == other); }

    // File system
    BOOL DirExists() const;  // of GetDriveDir()
    BOOL FileExists() const; // of FullPath
    // Creates every missing directory of GetDriveDir(); FALSE without a
    // drive (natively: without the root), for UNC and relative paths, and
    // when a directory cannot be made.
    BOOL CreateDir() const;
    // Removes the directory GetDriveDir(), if it exists.
    BOOL DeleteDir() const;
    // Replaces the path by its absolute form ('.' and '..' resolved).
    BOOL MakeAbsolute();
    // Replaces short (alias) names by their long forms. A path ending in a
    // separator converts its directory and still returns FALSE, as it has
    // no file part to look up.
    BOOL RemoveAliases();

    // Static tests (the name tests trim their argument first)
    static BOOL IsPathUNC(const WCHAR* path);
    static BOOL IsMachineName(const WCHAR* path);
    static BOOL IsShareName(const WCHAR* path);
    static BOOL DirExists(const WCHAR* path);
    static BOOL FileExists(const WCHAR* path);
    static BOOL DeleteDir(const WCHAR* path);
    // The current directory; empty if it needs more than 260 units.
    static CString GetCwd();
    // The long form of one path item: a drive root ('c:' or 'c:\') with its
    // letter upper-cased, else the stored name of the last component.
    static BOOL GetLongName(const WCHAR* item, CString* longName);

    // The buffer size, in units with the terminator, of the fixed path
    // buffers these operations work within.
    static constexpr int kMaxPath = 261;

private:
    void SetMachineAndShare();

    CString m_Drive;    // letter alone, no colon
    CString m_Dir;      // one trailing '\' removed unless it is the root
    CString m_Root;     // file name without extension
    CString m_Ext;      // extension without its dot
    CString m_FullPath; // as last set (trimmed) or rebuilt
    CString m_Machine;  // UNC: between the leading '\\' and the next '\'
    CString m_Share;    // UNC: after the machine up to the next '\'
};

// A path compared with a string: the string is made a path first, so both
// sides are trimmed alike.
bool operator==(const AF_CPath& path, const CString& s);
bool operator==(const CString& s, const AF_CPath& path);
bool operator==(const AF_CPath& path, const WCHAR* s);
bool operator==(const WCHAR* s, const AF_CPath& path);
bool operator!=(const AF_CPath& path, const CString& s);
bool operator!=(const CString& s, const AF_CPath& path);
bool operator!=(const AF_CPath& path, const WCHAR* s);
bool operator!=(const WCHAR* s, const AF_CPath& path);
