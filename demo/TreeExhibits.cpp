// The project organizer: a tree list box with a packaging line's controller
// project beside a summary list box of the same project.
#include "ControllerProject.h"
#include "Gallery.h"

#include "tree/TreeNodeVisitor.h"
#include "tree/win/SummaryListBox.h"
#include "tree/win/TreeListBox.h"

#include <string>

namespace gallery {
namespace {

const int kRowHeight = 18;
const DWORD kListStyle = WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_BORDER | LBS_OWNERDRAWFIXED |
                         LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;

// Inhibited routines and modules are shown greyed, as the editor does.
class OrganizerTree : public VU_CTreeListBox {
public:
    BOOL IsItemEnabled(int, long itemData) override {
        return (static_cast<unsigned long>(itemData) & kInhibited) == 0;
    }
};

CString Text(const std::wstring& s) {
    return CString(s.c_str());
}
std::wstring Number(int n) {
    const std::string s = std::to_string(n);
    return std::wstring(s.begin(), s.end());
}

int RowOfText(VU_CTreeListBox& tree, const wchar_t* text) {
    for (int row = 0; row < tree.GetRowCount(); ++row)
        if (tree.GetDisplayText(row) == CString(text))
            return row;
    return -1;
}

void SetFont(HWND hWnd) {
    SendMessageW(hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                 FALSE);
}

void FillSummary(VU_CSummaryListBox& summary, const ProjectCounts& counts) {
    const auto line = [&](const std::wstring& text) { summary.AddItem(Text(text), false); };
    summary.AddItem(Text(L"Controller"), true);
    line(L"Name: Line3_Packer");
    line(L"Type: VX-L83E VX 8 series Controller");
    line(L"Revision: 33.011");
    summary.AddItem(Text(L"Logic"), true);
    line(L"Tasks: " + Number(counts.tasks) + L" (1 continuous, 1 periodic, 1 event)");
    line(L"Programs: " + Number(counts.programs));
    line(L"Routines: " + Number(counts.routines));
    line(L"Inhibited: " + Number(counts.inhibited));
    summary.AddItem(Text(L"Tags"), true);
    line(L"Controller tags: " + Number(counts.controllerTags));
    line(L"Program tags: " + Number(counts.programTags));
    line(L"Data types: " + Number(counts.dataTypes));
    summary.AddItem(Text(L"I/O"), true);
    line(L"Modules: " + Number(counts.modules));
    summary.AddItem(Text(L"Verification"), true);
    line(L"Errors: 0");
    line(L"Warnings: 2 (unused tags)");
}

void ProjectOrganizer(Context& c) {
    HWND frame = c.CreateFrame(L"VuLib gallery - project organizer", 900, 600);
    OrganizerTree tree;
    c.Check(tree.Create(kListStyle, CRect(8, 8, 568, 8 + 32 * kRowHeight + 2), frame, 100) != FALSE,
            "creating the tree list box");
    SetFont(tree.m_hWnd);
    SendMessageW(tree.m_hWnd, LB_SETITEMHEIGHT, 0, kRowHeight);
    CWordArray stops;
    stops.Add(22);
    stops.Add(36);
    tree.SetTabStops(stops);
    const ProjectCounts counts = FillControllerProject(tree);
    c.Check(tree.GetNodeCount() > 200, "a project of a few hundred nodes");

    VU_CSummaryListBox summary;
    c.Check(summary.Create(kListStyle, CRect(580, 8, 892, 8 + 20 * kRowHeight + 2), frame, 101) !=
                FALSE,
            "creating the summary list box");
    SetFont(summary.m_hWnd);
    SendMessageW(summary.m_hWnd, LB_SETITEMHEIGHT, 0, kRowHeight);
    FillSummary(summary, counts);
    summary.SetCurSel(2);

    ::SetFocus(tree.m_hWnd);
    c.Pump();

    // The controller: a click on its expand button.
    const int controllerRow =
        RowOfText(tree, L"Line3_Packer\tVX-L83E\tVX 8 series, revision 33.011");
    c.Click(tree.m_hWnd, 8, controllerRow * kRowHeight + kRowHeight / 2);
    c.Check(tree.GetRowCount() > 0 && tree.GetNode(controllerRow)->IsExpanded(),
            "a click on the button expands the controller");

    // The main task: a double click on its text.
    const int mainTask = RowOfText(tree, L"MainTask\tContinuous\tWatchdog 500 ms");
    SendMessageW(tree.m_hWnd, LB_SETTOPINDEX, 0, 0);
    SendMessageW(tree.m_hWnd, WM_LBUTTONDBLCLK, MK_LBUTTON,
                 MAKELPARAM(120, mainTask * kRowHeight + kRowHeight / 2));
    SendMessageW(tree.m_hWnd, WM_LBUTTONUP, 0, MAKELPARAM(120, mainTask * kRowHeight + 9));
    c.Pump();
    c.Check(tree.GetNode(mainTask)->IsExpanded() != 0, "a double click expands the main task");

    // The filler program from the keyboard: right opens it, down walks,
    // left goes back to the parent, and down again to a tag.
    c.Check(tree.SelectItemFromString(Text(L"Filler"), true) >= 0, "selecting the filler");
    c.Key(tree.m_hWnd, VK_RIGHT);
    c.Key(tree.m_hWnd, VK_DOWN); // Program Tags
    c.Key(tree.m_hWnd, VK_RIGHT);
    for (int i = 0; i < 3; ++i)
        c.Key(tree.m_hWnd, VK_DOWN);
    c.Key(tree.m_hWnd, VK_LEFT); // back to Program Tags
    c.Check(tree.GetCurSelDisplayText() == CString(L"Program Tags"), "left selects the parent");
    for (int i = 0; i < 4; ++i)
        c.Key(tree.m_hWnd, VK_DOWN);
    c.Check(tree.GetCurSelDisplayText() == CString(L"Motor\tUDT_Motor\tMain drive"),
            "down walks to the drive tag");
    // The module list, where the spare module is inhibited (greyed).
    tree.Expand(RowOfText(tree, L"VX Backplane, VX-A10"));
    c.Pump();

    const std::wstring xml = tree.XmlGetString();
    c.Check(xml.find(L"<selected>true</selected><text>Motor\tUDT_Motor\tMain drive</text>"
                     L"<parent>Program Tags</parent>") != std::wstring::npos,
            "the XML dump marks the selected tag");
    c.SaveText(L"tree_list_box.xml", xml, L"The tree list box's XML dump (HbxTreeList)");
    c.SaveWindowPng(tree.m_hWnd, L"tree_list_box",
                    L"VU_CTreeListBox: a controller project with tab-separated columns, a header, "
                    L"a separator and an inhibited (greyed) module");
    c.SaveWindowPng(summary.m_hWnd, L"summary_list_box",
                    L"VU_CSummaryListBox: bold headers with indented summary lines");
    c.SaveClientPng(frame, L"project_organizer", L"Both controls side by side in one frame");

    tree.DestroyWindow();
    summary.DestroyWindow();
    c.DestroyFrame(frame);
}

} // namespace
} // namespace gallery

VU_GALLERY_EXHIBIT("project organizer: tree list box and summary list box",
                   gallery::ProjectOrganizer);
