#pragma once
// The rule of a look-ahead edit field: as the user types at the end of the
// text, the field proposes the first item that starts with what was typed
// and shows the rest of that item selected, so that the next character typed
// replaces the proposal and the search goes on. Kept apart from the window
// so that it can be tested without one.
//
// Decisions:
// - Only a printable character typed at the end of the text (caret at the
//   end, nothing selected after the edit) asks for a completion. Backspace,
//   Delete, pasting and typing in the middle never complete: the user is
//   correcting, not extending.
// - The completed text is the item's own text (its case wins), provided it
//   starts with the typed text case-blind and is longer; anything else is no
//   completion (the typed text stays as typed).
// - The edit's XML part is its own element "HbxLookAheadEdit" holding
//   "Text" (the whole text shown), "SelStart" and "SelEnd" (the selection in
//   UTF-16 units) and "Completion" (the selected tail proposed by the look-up,
//   empty when the selection does not run to the end or is empty).
#include "framework/Char.h"

#include <optional>

class VU_CXmlWriter;

class VU_CLookAheadCompletion {
public:
    // What the field shows after a completion: the text and its selection.
    struct Result {
        vu::String text;
        int selStart = 0;
        int selEnd = 0;
    };

    // Whether a character just typed should start a look-up, given the
    // field's text length and selection after the character went in.
    static bool ShouldLookUp(WCHAR typed, int selStart, int selEnd, int length);

    // The field after `typed` was completed to `item`; nothing when `item`
    // does not extend `typed` (case-blind).
    static std::optional<Result> Complete(vu::StringView typed, vu::StringView item);

    // The selected tail proposed by a completion: the text from selStart when
    // the selection is not empty and runs to the end; else empty.
    static vu::StringView ProposedTail(vu::StringView text, int selStart, int selEnd);

    // Writes the "HbxLookAheadEdit" element described above.
    static bool WriteXml(VU_CXmlWriter& writer, vu::StringView text, int selStart, int selEnd);
};
