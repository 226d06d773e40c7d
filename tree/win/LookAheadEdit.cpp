#include "tree/win/LookAheadEdit.h"

#include "text/XmlWriter.h"
#include "tree/LookAheadCompletion.h"

int VU_CLookAheadEdit::Lookup(CString&) {
    return 0;
}

bool VU_CLookAheadEdit::WriteXml(VU_CXmlWriter& writer) const {
    CString text;
    GetWindowText(text);
    int start = 0, end = 0;
    GetSel(start, end);
    return VU_CLookAheadCompletion::WriteXml(
        writer, std::wstring_view(text.GetString(), static_cast<size_t>(text.GetLength())), start,
        end);
}

AF_GString VU_CLookAheadEdit::XmlGetString() const {
    VU_CXmlWriter writer;
    WriteXml(writer);
    return writer.ToString();
}

LRESULT VU_CLookAheadEdit::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_KEYDOWN:
        return OnKeyDown(wParam, lParam);
    case WM_KEYUP:
        return OnKeyUp(wParam, lParam);
    case WM_CHAR:
        return OnChar(wParam, lParam);
    case WM_SETTEXT:
        return OnSetText(wParam, lParam);
    default:
        return CEdit::WindowProc(message, wParam, lParam);
    }
}

LRESULT VU_CLookAheadEdit::OnKeyDown(WPARAM wParam, LPARAM lParam) {
    if (wParam == VK_RETURN) {
        const int length = GetWindowTextLength();
        SetSel(length, length);
    }
    return DefWindowProc(WM_KEYDOWN, wParam, lParam);
}

LRESULT VU_CLookAheadEdit::OnKeyUp(WPARAM wParam, LPARAM lParam) {
    return DefWindowProc(WM_KEYUP, wParam, lParam);
}

LRESULT VU_CLookAheadEdit::OnChar(WPARAM wParam, LPARAM lParam) {
    const LRESULT result = DefWindowProc(WM_CHAR, wParam, lParam);
    int start = 0, end = 0;
    GetSel(start, end);
    if (VU_CLookAheadCompletion::ShouldLookUp(static_cast<wchar_t>(wParam), start, end,
                                              GetWindowTextLength()))
        CompleteTypedText();
    return result;
}

LRESULT VU_CLookAheadEdit::OnSetText(WPARAM wParam, LPARAM lParam) {
    return DefWindowProc(WM_SETTEXT, wParam, lParam);
}

void VU_CLookAheadEdit::CompleteTypedText() {
    CString typed;
    GetWindowText(typed);
    CString found = typed;
    if (Lookup(found) == 0)
        return;
    const auto completion = VU_CLookAheadCompletion::Complete(
        std::wstring_view(typed.GetString(), static_cast<size_t>(typed.GetLength())),
        std::wstring_view(found.GetString(), static_cast<size_t>(found.GetLength())));
    if (!completion)
        return;
    SetWindowText(completion->text.c_str());
    SetSel(completion->selStart, completion->selEnd);
}
