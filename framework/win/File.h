#pragma once
// CFile: a binary file over a Win32 handle; only what the diagnostics use.
#include <windows.h>

#include "framework/CString.h"
#include "framework/Object.h"

class CFile : public CObject {
public:
    enum OpenFlags : UINT {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareDenyNone = 0x0040,
        modeCreate = 0x1000,
        modeNoTruncate = 0x2000,
    };

    CFile() = default;
    ~CFile() override { Close(); }
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;

    HANDLE m_hFile = INVALID_HANDLE_VALUE;

    virtual BOOL Open(const wchar_t* lpszFileName, UINT nOpenFlags);
    // Writes everything or returns FALSE.
    virtual BOOL Write(const void* lpBuf, UINT nCount);
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Flush();
    virtual void Close();
    BOOL IsOpen() const { return m_hFile != INVALID_HANDLE_VALUE; }
    const CString& GetFilePath() const { return m_strFileName; }

protected:
    CString m_strFileName;
};
