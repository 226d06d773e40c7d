#pragma once
// VU_CTabRecord: the portable part of one tab of a tab beam: its width, its
// displayed lines (which the beam may shorten with "..."), the full text the
// owner set, the mark of the multi-selection and the owner's data object.
// The Windows beam derives Vu_CTabInfo from it to add the menu and bitmap.
//
// A tab text may end in "*" (a modified document); shortening keeps the "*"
// last and puts "..." before it: "Main*" becomes "Mai...*".
#include "framework/CString.h"
#include "framework/Char.h"
#include "framework/Object.h"

class VU_CTabRecord : public CObject {
public:
    // Construction
    VU_CTabRecord() = default;
    ~VU_CTabRecord() override; // deletes the data object when it owns it
    VU_CTabRecord(const VU_CTabRecord&) = delete;
    VU_CTabRecord& operator=(const VU_CTabRecord&) = delete;

    // Operations
    // full text := text; a newline splits it into line 1 (before the first
    // newline) and line 2 (after it); otherwise line 2 is empty.
    void SetText(const CString& text);

    // The characters of a displayed line without its decorations: the
    // length, less 3 for a "..." and less 1 for a "*". 0 for "".
    static int GetNumChars(const CString& str);
    // The larger count of the two lines.
    int GetNumChars() const;

    // Removes one character before the decorations of str and makes sure it
    // ends in "..." (or "...*"): "Routine" -> "Routin...", "Routin..." ->
    // "Routi...", "Main*" -> "Mai...*". A line with no character left to
    // remove ("", "...", "*", "...*") is left as it is; returns whether str
    // changed.
    static bool ShrinkText(CString& str);

    // Overrideables
    // Width in pixels of the image drawn left of the text (0: none).
    virtual int GetImageWidth() const { return 0; }

    // Attributes (the beam reads and writes them directly)
    int m_nWidth = 60;          // pixels, without the overlap
    CString m_strLine1;         // displayed first line
    CString m_strLine2;         // displayed second line ("" for one-line texts)
    CString m_strFullText;      // as set by the owner, never shortened
    int m_bMarked = 0;          // part of the multi-selection
    CObject* m_pData = nullptr; // the owner's object; the key of FindTab
    int m_bOwnsData = 0;        // delete m_pData with the tab
};
