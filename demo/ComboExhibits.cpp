// The tag picker: a tree combo box that offers a controller's tags by scope,
// shown dropped down with one program opened, as a user sees it while
// choosing. The dropped list is a window of its own on top of the frame, so
// the picture is taken from the screen.
#include "Gallery.h"

#include "tree/TreeImages.h"
#include "tree/win/TreeComboBoxEx.h"

namespace gallery {
namespace {

struct Tag {
    const wchar_t* text;
    int image;
    int level; // 0: a scope, 1: a tag in it, 2: a member of a tag
};

const Tag kTags[] = {
    {L"Controller Tags", VU_TREEIMAGE_CONTROLLER, 0},
    {L"Line3_Start", VU_TREEIMAGE_TAG, 1},
    {L"Line3_Speed", VU_TREEIMAGE_TAG, 1},
    {L"Line3_Fault", VU_TREEIMAGE_TAG, 1},
    {L"Filler", VU_TREEIMAGE_PROGRAM, 0},
    {L"Fill_Level", VU_TREEIMAGE_TAG, 1},
    {L"Fill_Valve", VU_TREEIMAGE_DATA_TYPE, 1},
    {L"Open", VU_TREEIMAGE_TAG, 2},
    {L"Close", VU_TREEIMAGE_TAG, 2},
    {L"Fill_Timer", VU_TREEIMAGE_TAG, 1},
    {L"Capper", VU_TREEIMAGE_PROGRAM, 0},
    {L"Torque_Limit", VU_TREEIMAGE_TAG, 1},
    {L"Cap_Count", VU_TREEIMAGE_TAG, 1},
    {L"Labeler", VU_TREEIMAGE_PROGRAM, 0},
    {L"Label_Skew", VU_TREEIMAGE_TAG, 1},
};

int RowOfText(AF_CTreeComboBoxEx& combo, const wchar_t* text) {
    for (int row = 0; row < combo.GetCount(); ++row) {
        CString shown;
        combo.GetLBItemText(row, shown);
        if (shown == CString(text))
            return row;
    }
    return -1;
}

void TagPicker(Context& c) {
    HWND frame = c.CreateFrame(L"VuLib gallery - tree combo box", 304, 192);
    AF_CTreeComboBoxEx combo;
    c.Check(combo.Create(CBS_DROPDOWN | WS_VISIBLE | WS_TABSTOP, CRect(12, 12, 292, 312), frame,
                         200) != FALSE,
            "creating the tree combo box");
    SendMessageW(combo.m_hWnd, WM_SETFONT,
                 reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    int parents[3] = {-1, -1, -1};
    unsigned long data = 1;
    for (const Tag& tag : kTags) {
        CString text(tag.text);
        const int parent = tag.level == 0 ? -1 : parents[tag.level - 1];
        parents[tag.level] = combo.AddItem(text, tag.image, tag.image, data++, parent);
    }
    c.Check(combo.SelectItemFromString(CString(L"Fill_Level"), false) >= 0,
            "choosing Fill_Level opens its program");
    c.Pump();

    // Open the list as the drop button does, then open Fill_Valve from its
    // expand column (level 1: pixels 16 to 32).
    combo.ShowDropDown(TRUE);
    c.Pump();
    HWND list = combo.GetListBox().m_hWnd;
    const int valve = RowOfText(combo, L"Fill_Valve");
    RECT item{};
    SendMessageW(list, LB_GETITEMRECT, valve, reinterpret_cast<LPARAM>(&item));
    c.Click(list, 24, (item.top + item.bottom) / 2);
    c.Check(combo.GetDroppedState() != FALSE, "the list stays open after the toggle");
    c.Check(RowOfText(combo, L"Open") == valve + 1, "Fill_Valve shows its members");
    combo.SetCurSel(RowOfText(combo, L"Fill_Level"));
    c.Pump();

    // The combo and its dropped list, a top-level window of its own.
    RECT shown{}, dropped{};
    GetWindowRect(combo.m_hWnd, &shown);
    GetWindowRect(list, &dropped);
    UnionRect(&shown, &shown, &dropped);
    InflateRect(&shown, 6, 6);
    c.SaveScreenPng(shown, L"tree_combo_box",
                    L"Tree combo box dropped down: a tag picker with Filler and its valve open");
    c.SaveText(L"tree_combo_box.xml", combo.XmlGetString(),
               L"The tree combo box's XML (HbxComboBox: HbxLookAheadEdit, then HbxTreeList)");

    // A click on a leaf chooses it and closes the list.
    const int open = RowOfText(combo, L"Open");
    SendMessageW(list, LB_GETITEMRECT, open, reinterpret_cast<LPARAM>(&item));
    c.Click(list, 80, (item.top + item.bottom) / 2);
    CString chosen;
    combo.GetEditControl()->GetWindowText(chosen);
    c.Check(combo.GetDroppedState() == FALSE && chosen == CString(L"Open"),
            "a click on a leaf chooses it");
    combo.DestroyWindow();
    c.DestroyFrame(frame);
}

} // namespace
} // namespace gallery

VU_GALLERY_EXHIBIT("tree combo box: a tag picker dropped down", gallery::TagPicker);
