#pragma once
// CDumpContext: diagnostic text written to a file as UTF-8; without a file
// it goes to the debugger (OutputDebugStringW).
#include "framework/CString.h"
#include "framework/Types.h"

class CFile;

class CDumpContext {
public:
    explicit CDumpContext(CFile* pFile = nullptr) : m_pFile(pFile) {}
    CDumpContext(const CDumpContext&) = delete;
    CDumpContext& operator=(const CDumpContext&) = delete;

    CDumpContext& operator<<(const wchar_t* lpsz);
    CDumpContext& operator<<(const CString& str) { return *this << str.GetString(); }
    CDumpContext& operator<<(int n);
    CDumpContext& operator<<(UINT n);
    CDumpContext& operator<<(long n);
    CDumpContext& operator<<(DWORD n);
    CDumpContext& operator<<(long long n);
    CDumpContext& operator<<(unsigned long long n);
    CDumpContext& operator<<(const void* p);
    void Flush();
    int GetDepth() const { return m_nDepth; }
    void SetDepth(int nNewDepth) { m_nDepth = nNewDepth; }
    CFile* GetFile() const { return m_pFile; }

private:
    void Output(const wchar_t* lpsz);

    CFile* m_pFile;
    int m_nDepth = 0;
};
