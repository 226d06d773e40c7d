#pragma once
// The Windows scalar types that the framework's signatures use. On Windows
// these are spelled exactly as the system headers spell them, so that a
// translation unit may include both <windows.h> and this header.
#include "framework/Char.h"

#include <cstdint>

#ifndef FALSE
#define FALSE 0
#endif
#ifndef TRUE
#define TRUE 1
#endif

typedef int BOOL;
typedef unsigned char BYTE;
typedef unsigned short WORD;
typedef unsigned int UINT;
typedef unsigned long DWORD;
typedef long LONG;
typedef unsigned long ULONG;

#if defined(_WIN64)
typedef long long INT_PTR;
typedef unsigned long long UINT_PTR;
typedef long long LONG_PTR;
typedef unsigned long long ULONG_PTR;
#elif defined(_WIN32)
typedef int INT_PTR;
typedef unsigned int UINT_PTR;
typedef long LONG_PTR;
typedef unsigned long ULONG_PTR;
#else
typedef std::intptr_t INT_PTR;
typedef std::uintptr_t UINT_PTR;
typedef std::intptr_t LONG_PTR;
typedef std::uintptr_t ULONG_PTR;
#endif
typedef ULONG_PTR DWORD_PTR;

typedef DWORD COLORREF;

// An iteration position in a framework collection: an opaque pointer.
struct __POSITION {};
typedef __POSITION* POSITION;

// The position before the first element, where an iteration starts.
#define BEFORE_START_POSITION ((POSITION)-1L)
