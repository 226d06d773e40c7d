#pragma once
// Vu_CDumpFile: the library's diagnostic dump file, %TEMP%\VuLib-<process
// id>.log. The file is created on the first write, so a process that never
// writes diagnostics leaves no file behind; later writes append.
#include "framework/win/File.h"

class Vu_CDumpFile : public CFile {
public:
    Vu_CDumpFile();

    BOOL Write(const void* lpBuf, UINT nCount) override;
    // Where the file is (or will be) written.
    const CString& GetDumpPath() const { return m_strDumpPath; }
    static CString DefaultDumpPath();

private:
    CString m_strDumpPath;
    bool m_bOpenFailed = false; // do not retry a path that cannot be created
};
