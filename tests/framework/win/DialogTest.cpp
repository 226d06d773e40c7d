// Modal dialogs: from a template in memory and through the resource chain,
// OnInitDialog, OK and Cancel, and a child control subclassed in
// OnInitDialog getting its owner-draw calls from the dialog.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "framework/win/Dialog.h"
#include "framework/win/ListBox.h"
#include "support/TestWindow.h"

namespace {

const int kListId = 300;

// A dialog template in memory: caption, an OK button and an owner-drawn
// list box.
class TemplateBuilder {
public:
    TemplateBuilder() {
        m_words.reserve(256);
        Add<DWORD>(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_SETFONT, 0);
        Add<WORD>(2); // items
        Add<short>(10, 10, 150, 100);
        Add<WORD>(0, 0); // no menu, default class
        AddText(L"Template dialog");
        Add<WORD>(8);
        AddText(L"MS Shell Dlg");
        AddItem(WS_CHILD | WS_VISIBLE | BS_DEFPUSHBUTTON, 90, 80, 50, 14, IDOK, 0x0080, L"OK");
        AddItem(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | WS_BORDER, 5, 5, 80, 70, kListId,
                0x0083, L"");
    }
    const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(m_words.data()); }

private:
    template <class T, class... More> void Add(T value, More... more) {
        static_assert(sizeof(T) % 2 == 0);
        WORD words[sizeof(T) / 2];
        std::memcpy(words, &value, sizeof(T));
        m_words.insert(m_words.end(), std::begin(words), std::end(words));
        if constexpr (sizeof...(More) > 0)
            Add<T>(more...);
    }
    void AddText(const wchar_t* text) {
        do
            m_words.push_back(static_cast<WORD>(*text));
        while (*text++ != 0);
    }
    void AddItem(DWORD style, short x, short y, short cx, short cy, WORD id, WORD atom,
                 const wchar_t* text) {
        if (m_words.size() % 2 != 0)
            m_words.push_back(0); // items start on a DWORD boundary
        Add<DWORD>(style, 0);
        Add<short>(x, y, cx, cy);
        Add<WORD>(id, 0xFFFF, atom);
        AddText(text);
        Add<WORD>(0);
    }
    std::vector<WORD> m_words;
};

struct DrawingList : CListBox {
    void DrawItem(LPDRAWITEMSTRUCT dis) override { drawn.push_back(static_cast<int>(dis->itemID)); }
    std::vector<int> drawn;
};

// Subclasses its list box, fills it, and closes itself through a posted
// command once shown.
class TestDialog : public CDialog {
public:
    BOOL OnInitDialog() override {
        sawOwnHandle = m_hWnd != nullptr && CWnd::FromHandlePermanent(m_hWnd) == this;
        list.SubclassDlgItem(kListId, this);
        list.AddString(reinterpret_cast<const wchar_t*>(static_cast<UINT_PTR>(11)));
        list.AddString(reinterpret_cast<const wchar_t*>(static_cast<UINT_PTR>(12)));
        PostMessage(closeMessage, closeWParam, 0);
        return TRUE;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_APP + 20) {
            ShowWindow(SW_SHOW); // a modal dialog shows itself only once its queue is idle
            ::RedrawWindow(list.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
            drawnBeforeClose = list.drawn;
            EndDialog(static_cast<int>(wParam));
            return 0;
        }
        return CDialog::WindowProc(message, wParam, lParam);
    }
    void OnOK() override { ++okCalls, CDialog::OnOK(); }

    DrawingList list;
    int okCalls = 0;
    bool sawOwnHandle = false;
    UINT closeMessage = WM_COMMAND;
    WPARAM closeWParam = MAKEWPARAM(IDOK, BN_CLICKED);
    std::vector<int> drawnBeforeClose;
};

TEST(DialogTest, ModalFromMemoryTemplateEndsWithTheRequestedResult) {
    TemplateBuilder tmpl;
    struct Row {
        const char* name;
        UINT message;
        WPARAM wParam;
        INT_PTR result;
        int okCalls;
        std::vector<int> drawn; // rows drawn through the dialog before closing
    } rows[] = {
        {"OK", WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), IDOK, 1, {}},
        {"close box", WM_CLOSE, 0, IDCANCEL, 0, {}}, // the dialog manager makes it IDCANCEL
        {"EndDialog", WM_APP + 20, 1234, 1234, 0, {0, 1}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        TestDialog dlg;
        dlg.closeMessage = r.message;
        dlg.closeWParam = r.wParam;
        ASSERT_TRUE(dlg.InitModalIndirect(tmpl.Get()));
        EXPECT_EQ(dlg.DoModal(), r.result);
        EXPECT_EQ(dlg.okCalls, r.okCalls);
        EXPECT_TRUE(dlg.sawOwnHandle) << "OnInitDialog ran on a mapped window";
        EXPECT_EQ(dlg.drawnBeforeClose, r.drawn);
        EXPECT_EQ(dlg.m_hWnd, nullptr);
        EXPECT_EQ(dlg.list.m_hWnd, nullptr); // its window went with the dialog
    }
}

TEST(DialogTest, MissingTemplateFailsWithMinusOne) {
    CDialog dlg(59999);
    EXPECT_EQ(dlg.DoModal(), -1);
    EXPECT_EQ(dlg.m_hWnd, nullptr);
    CDialog modeless;
    EXPECT_FALSE(modeless.Create(59999));
}

TEST(DialogTest, ModelessFromMemoryTemplate) {
    TemplateBuilder tmpl;
    CDialog dlg;
    ASSERT_TRUE(dlg.CreateIndirect(tmpl.Get()));
    EXPECT_FALSE(dlg.IsModal());
    dlg.SendMessage(WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    EXPECT_FALSE(dlg.IsWindowVisible()); // a modeless dialog hides on OK
    EXPECT_TRUE(dlg.DestroyWindow());
    EXPECT_EQ(dlg.m_hWnd, nullptr);
}

} // namespace
