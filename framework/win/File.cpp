#include "framework/win/File.h"

BOOL CFile::Open(const wchar_t* lpszFileName, UINT nOpenFlags) {
    Close();
    if (lpszFileName == nullptr)
        return FALSE;
    DWORD access = GENERIC_READ;
    if (nOpenFlags & modeWrite)
        access = GENERIC_WRITE;
    else if (nOpenFlags & modeReadWrite)
        access = GENERIC_READ | GENERIC_WRITE;
    DWORD share = (nOpenFlags & shareDenyNone) ? FILE_SHARE_READ | FILE_SHARE_WRITE : 0;
    DWORD disposition = OPEN_EXISTING;
    if (nOpenFlags & modeCreate)
        disposition = (nOpenFlags & modeNoTruncate) ? OPEN_ALWAYS : CREATE_ALWAYS;
    m_hFile = CreateFileW(lpszFileName, access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                          nullptr);
    if (m_hFile == INVALID_HANDLE_VALUE)
        return FALSE;
    m_strFileName = lpszFileName;
    if ((nOpenFlags & modeNoTruncate) != 0)
        SetFilePointer(m_hFile, 0, nullptr, FILE_END);
    return TRUE;
}

BOOL CFile::Write(const void* lpBuf, UINT nCount) {
    if (m_hFile == INVALID_HANDLE_VALUE)
        return FALSE;
    DWORD written = 0;
    return WriteFile(m_hFile, lpBuf, nCount, &written, nullptr) && written == nCount;
}

UINT CFile::Read(void* lpBuf, UINT nCount) {
    DWORD read = 0;
    if (m_hFile == INVALID_HANDLE_VALUE || !ReadFile(m_hFile, lpBuf, nCount, &read, nullptr))
        return 0;
    return read;
}

void CFile::Flush() {
    if (m_hFile != INVALID_HANDLE_VALUE)
        FlushFileBuffers(m_hFile);
}

void CFile::Close() {
    if (m_hFile != INVALID_HANDLE_VALUE)
        CloseHandle(m_hFile);
    m_hFile = INVALID_HANDLE_VALUE;
}
