#pragma once
// AF_CUStr: a lazy converter between narrow (char) and wide (WCHAR)
// text. It keeps the caller's string as it is and converts to the other
// form only when asked, keeping that copy until it is destroyed; it frees
// only the copy it made, never the caller's string.
//
// Conversion behaves like the C runtime's mbstowcs/wcstombs in the "C"
// locale: units 0-127 map one to one. A byte above 127 or a wide unit
// above 127 has no counterpart there, so the conversion stops at it and the
// copy holds the text converted so far.
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
