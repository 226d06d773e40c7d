#include "framework/win/DumpContext.h"

#include <windows.h>

#include <cstdio>
#include <string>

#include "framework/win/File.h"

void CDumpContext::Output(const wchar_t* lpsz) {
    if (lpsz == nullptr || *lpsz == 0)
        return;
    if (m_pFile == nullptr) {
        OutputDebugStringW(lpsz);
        return;
    }
    int bytes = WideCharToMultiByte(CP_UTF8, 0, lpsz, -1, nullptr, 0, nullptr, nullptr);
    if (bytes <= 1)
        return;
    std::string utf8(static_cast<std::size_t>(bytes), '\0');
    WideCharToMultiByte(CP_UTF8, 0, lpsz, -1, utf8.data(), bytes, nullptr, nullptr);
    m_pFile->Write(utf8.data(), static_cast<UINT>(bytes - 1));
}

CDumpContext& CDumpContext::operator<<(const wchar_t* lpsz) {
    Output(lpsz != nullptr ? lpsz : L"(NULL)");
    return *this;
}

CDumpContext& CDumpContext::operator<<(int n) {
    return *this << static_cast<long long>(n);
}
CDumpContext& CDumpContext::operator<<(long n) {
    return *this << static_cast<long long>(n);
}
CDumpContext& CDumpContext::operator<<(UINT n) {
    return *this << static_cast<unsigned long long>(n);
}
CDumpContext& CDumpContext::operator<<(DWORD n) {
    return *this << static_cast<unsigned long long>(n);
}

CDumpContext& CDumpContext::operator<<(long long n) {
    wchar_t text[32];
    swprintf(text, 32, L"%lld", n);
    Output(text);
    return *this;
}

CDumpContext& CDumpContext::operator<<(unsigned long long n) {
    wchar_t text[32];
    swprintf(text, 32, L"%llu", n);
    Output(text);
    return *this;
}

CDumpContext& CDumpContext::operator<<(const void* p) {
    wchar_t text[32];
    swprintf(text, 32, L"$%llX", static_cast<unsigned long long>(reinterpret_cast<UINT_PTR>(p)));
    Output(text);
    return *this;
}

void CDumpContext::Flush() {
    if (m_pFile != nullptr)
        m_pFile->Flush();
}
