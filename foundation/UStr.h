#pragma once
// AF_CUStr: a lazy converter between narrow (char) and wide (WCHAR)
// text. It keeps the caller's string as it is and converts to the other
// form only when asked, keeping that copy until it is destroyed; it frees
// only the copy it made, never the caller's string.
//
// Conversion does what the Windows C runtime's mbstowcs/wcstombs do in the
// default ("C") locale, on every platform: a byte is the unit of the same
// value (0-255, so narrow "caf\xE9" reads as "caf\u00E9"), and a unit up to
// 0xFF is the byte of the same value. A unit above 0xFF has no byte in that
// locale: the runtime stops there, and the narrow copy holds the text
// before it.
//
// Copies: the caller's string is shared, but a converted copy is duplicated
// so that every object owns (and frees) its own; a copy therefore reads the
// same text as its source and outlives it safely.
#include "framework/Char.h"
#include <cstddef>

class AF_CUStr {
public:
    // Construction (a null pointer reads as null in both forms)
    AF_CUStr(const char* narrow);
    AF_CUStr(const WCHAR* wide);
    AF_CUStr(const AF_CUStr& other);
    AF_CUStr(AF_CUStr&& other) noexcept;
    AF_CUStr& operator=(const AF_CUStr& other);
    AF_CUStr& operator=(AF_CUStr&& other) noexcept;
    ~AF_CUStr();

    // The two forms; the one the object was not built from is converted on
    // first use. Null if the source is null or allocation fails.
    operator const WCHAR*() const { return Wide(); }
    operator const char*() const { return Narrow(); }

    // A newly allocated wide copy of narrow text, or narrow copy of wide
    // text (malloc; release with free). Null for a null argument or when
    // allocation fails.
    static WCHAR* uxdup(const char* narrow);
    static char* uxdup(const WCHAR* wide);

protected:
    WCHAR* Wide() const;
    char* Narrow() const;

private:
    void FreeOwnCopy();
    void CopyFrom(const AF_CUStr& other);

    mutable WCHAR* m_wide;  // caller's string, or the converted copy we own
    mutable char* m_narrow; // caller's string, or the converted copy we own
    int m_fromWide;         // 1 when built from wide text, 0 from narrow
};
