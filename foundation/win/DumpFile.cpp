#include "foundation/win/DumpFile.h"

CString Vu_CDumpFile::DefaultDumpPath() {
    wchar_t dir[MAX_PATH + 1] = {};
    DWORD length = GetTempPathW(MAX_PATH + 1, dir);
    CString path(length > 0 && length <= MAX_PATH ? dir : L".\\");
    if (path.GetLength() > 0 && path[path.GetLength() - 1] != L'\\')
        path += L'\\';
    CString name;
    name.Format(L"VuLib-%u.log", static_cast<unsigned>(GetCurrentProcessId()));
    return path + name;
}

Vu_CDumpFile::Vu_CDumpFile() : m_strDumpPath(DefaultDumpPath()) {}

BOOL Vu_CDumpFile::Write(const void* lpBuf, UINT nCount) {
    if (!IsOpen()) {
        if (m_bOpenFailed)
            return FALSE;
        if (!Open(m_strDumpPath, modeWrite | modeCreate | modeNoTruncate | shareDenyNone)) {
            m_bOpenFailed = true;
            return FALSE;
        }
    }
    return CFile::Write(lpBuf, nCount);
}
