// The check-box tree list boxes: choosing what to export from a controller
// project (checks that propagate, with full, partial and empty programs) and
// choosing the tags of a cross reference (two-state checks on the leaves).
#include "Gallery.h"

#include "tree/CheckImages.h"
#include "tree/TreeImages.h"
#include "tree/win/CheckBoxTreeListBox.h"
#include "tree/win/ExCheckBoxTreeListBox.h"

namespace gallery {
namespace {

const int kRowHeight = 16; // the check images are 16 pixels high
const DWORD kListStyle = WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_BORDER | LBS_OWNERDRAWFIXED |
                         LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;

void Prepare(HWND hWnd) {
    SendMessageW(hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                 FALSE);
    SendMessageW(hWnd, LB_SETITEMHEIGHT, 0, kRowHeight);
}

// A program with its routines, shown expanded; returns the program's row.
int AddProgram(VU_CTreeListBox& list, const wchar_t* name,
               std::initializer_list<const wchar_t*> routines) {
    int handle = 0;
    const int row =
        list.AddItem(CString(name), VU_TREEIMAGE_PROGRAM, VU_TREEIMAGE_PROGRAM, 0, -1, &handle);
    for (const wchar_t* routine : routines)
        list.AddItem(CString(routine), VU_TREEIMAGE_ROUTINE, VU_TREEIMAGE_ROUTINE, 0, handle,
                     nullptr, true);
    return row;
}

void CheckClick(Context& c, HWND list, int row) {
    c.Click(list, 4, row * kRowHeight + kRowHeight / 2);
}

void ExportSelection(Context& c, HWND frame, VU_CExCheckBoxTreeListBox& tree) {
    c.Check(tree.Create(kListStyle, CRect(8, 8, 288, 8 + 17 * kRowHeight + 2), frame, 100) != FALSE,
            "creating the propagating check list");
    Prepare(tree.m_hWnd);
    const int filler = AddProgram(tree, L"Filler", {L"MainRoutine", L"Dosing", L"Alarms"});
    const int capper = AddProgram(tree, L"Capper", {L"MainRoutine", L"Torque", L"Alarms"});
    const int labeler = AddProgram(tree, L"Labeler", {L"MainRoutine", L"Printer"});
    tree.AddSeparator();
    tree.AddHeader(CString(L"Data types"));
    const int motor =
        tree.AddItem(CString(L"UDT_Motor"), VU_TREEIMAGE_DATA_TYPE, VU_TREEIMAGE_DATA_TYPE, 0);
    tree.AddItem(CString(L"UDT_Valve"), VU_TREEIMAGE_DATA_TYPE, VU_TREEIMAGE_DATA_TYPE, 0);

    // A user's clicks in the check column: the whole filler, two of the
    // capper's routines, one data type.
    CheckClick(c, tree.m_hWnd, filler);
    CheckClick(c, tree.m_hWnd, capper + 1);
    CheckClick(c, tree.m_hWnd, capper + 3);
    CheckClick(c, tree.m_hWnd, motor);
    c.Check(tree.GetCheckImage(filler) == VU_CHECKIMAGE_ALL, "the filler is fully checked");
    c.Check(tree.GetCheckImage(capper) == VU_CHECKIMAGE_SOME, "the capper is partly checked");
    c.Check(tree.GetCheckImage(labeler) == VU_CHECKIMAGE_UNCHECKED, "the labeler is empty");
    c.Check(tree.IsAnyLeafChecked(), "a leaf is checked");
    tree.SetCurSel(capper + 2);
}

void CrossReferenceTags(Context& c, HWND frame, VU_CCheckBoxTreeListBox& list) {
    c.Check(list.Create(kListStyle, CRect(300, 8, 560, 8 + 17 * kRowHeight + 2), frame, 101) !=
                FALSE,
            "creating the two-state check list");
    Prepare(list.m_hWnd);
    int tags = 0, types = 0;
    list.AddItem(CString(L"Controller Tags"), VU_TREEIMAGE_FOLDER_OPEN, VU_TREEIMAGE_FOLDER_OPEN, 0,
                 -1, &tags);
    for (const wchar_t* tag : {L"Motor_Speed", L"Valve_Open", L"Batch_Count", L"Line_Fault"})
        list.AddItem(CString(tag), VU_TREEIMAGE_TAG, VU_TREEIMAGE_TAG, 0, tags, nullptr, true);
    list.AddItem(CString(L"Program Tags"), VU_TREEIMAGE_FOLDER_OPEN, VU_TREEIMAGE_FOLDER_OPEN, 0,
                 -1, &types);
    for (const wchar_t* tag : {L"Fill_Level", L"Dose_Timer"})
        list.AddItem(CString(tag), VU_TREEIMAGE_TAG, VU_TREEIMAGE_TAG, 0, types, nullptr, true);

    CheckClick(c, list.m_hWnd, 1);
    CheckClick(c, list.m_hWnd, 3);
    list.SetCurSel(6);
    SendMessageW(list.m_hWnd, WM_CHAR, L' ', 1); // the space key checks Fill_Level
    c.Pump();
    CArray<CString, CString> names;
    list.GetCheckedItemNames(&names);
    c.Check(names.GetSize() == 3 && names[2] == CString(L"Fill_Level"),
            "two clicks and the space key check three tags");
    c.Check(!list.IsItemChecked(0), "the folder stays unchecked");
}

void CheckBoxLists(Context& c) {
    HWND frame = c.CreateFrame(L"VuLib gallery - check box lists", 568, 17 * kRowHeight + 18);
    VU_CExCheckBoxTreeListBox tree;
    VU_CCheckBoxTreeListBox list;
    ExportSelection(c, frame, tree);
    CrossReferenceTags(c, frame, list);
    ::SetFocus(tree.m_hWnd);
    c.Pump();
    c.SaveWindowPng(tree.m_hWnd, L"ex_check_box_tree_list_box",
                    L"VU_CExCheckBoxTreeListBox: checks propagate; the filler is fully checked, "
                    L"the capper partly, the labeler not at all");
    c.SaveWindowPng(list.m_hWnd, L"check_box_tree_list_box",
                    L"VU_CCheckBoxTreeListBox: two-state checks on the leaves only");
    c.SaveClientPng(frame, L"check_box_lists", L"Both check-box lists side by side in one frame");
    tree.DestroyWindow();
    list.DestroyWindow();
    c.DestroyFrame(frame);
}

} // namespace
} // namespace gallery

VU_GALLERY_EXHIBIT("check box lists: propagating and two-state check-box tree list boxes",
                   gallery::CheckBoxLists);
