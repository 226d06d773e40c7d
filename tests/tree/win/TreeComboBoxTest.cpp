// The tree combo box driven with real messages: opening, choosing and
// closing, refused rows, the edit field while the list is open, the XML.
#include "ComboFixture.h"

namespace treetest {
namespace {

using Rows_ = std::vector<std::wstring>;

TEST_F(ComboTest, ExpandColumnTogglesAndKeepsTheListOpenLeafChoosesAndCloses) {
    EXPECT_EQ((Rows_{L"Line", L"Spare"}), Rows());
    Open();
    ASSERT_TRUE(Dropped());
    ClickRow(L"Line", 5); // the expand column of a level-0 row
    EXPECT_EQ((Rows_{L"Line", L"Motor", L"Valve", L"Sensors", L"Spare"}), Rows());
    EXPECT_TRUE(Dropped());
    ClickRow(L"Sensors", 16 + 8); // level 1: its column starts at 16
    EXPECT_EQ(6u, Rows().size());
    EXPECT_TRUE(Dropped());
    EXPECT_EQ(0, parent->CountCommands(CBN_SELENDOK));

    ClickRow(L"Temp", 70);
    EXPECT_FALSE(Dropped());
    EXPECT_EQ(RowOf(L"Temp"), combo->GetCurSel());
    EXPECT_EQ(L"Temp", EditText());
    EXPECT_EQ(14ul, combo->GetCurSelItemData());
    EXPECT_GE(parent->CountCommands(CBN_SELENDOK), 1);
    EXPECT_EQ(RowOf(L"Temp"), combo->GetLastAcceptedSelection());

    // A second open collapses the parent again from its column.
    Open();
    ClickRow(L"Line", 5);
    EXPECT_EQ((Rows_{L"Line", L"Spare"}), Rows());
    EXPECT_TRUE(Dropped());
}

TEST_F(ComboTest, RefusedRowsIgnoreClicksAndAreUndoneOnCloseUp) {
    combo->refusedData = 12; // Valve
    combo->Expand(0);
    Choose(L"Motor");
    ASSERT_EQ(L"Motor", EditText());
    const int motor = RowOf(L"Motor");
    const int selEndOks = parent->CountCommands(CBN_SELENDOK);

    struct Click_ {
        const char* name;
        const wchar_t* row;
        int x;
    } ignored[] = {{"refused leaf", L"Valve", 60}, {"parent's text", L"Sensors", 80}};
    Open();
    for (const Click_& c : ignored) {
        SCOPED_TRACE(c.name);
        ClickRow(c.row, c.x);
        EXPECT_TRUE(Dropped());
        EXPECT_EQ(L"Motor", EditText());
        EXPECT_EQ(selEndOks, parent->CountCommands(CBN_SELENDOK));
    }

    // The keyboard (here the selection message) may rest on it; closing undoes it.
    combo->SetCurSel(RowOf(L"Valve"));
    combo->ShowDropDown(FALSE);
    PumpMessages();
    EXPECT_EQ(motor, combo->GetCurSel());
    EXPECT_EQ(L"Motor", EditText());
    EXPECT_EQ(motor, combo->GetLastAcceptedSelection());
}

TEST_F(ComboTest, FirstCloseUpTakesEvenARefusedSelection) {
    combo->refusedData = 20;
    Open();
    combo->SetCurSel(RowOf(L"Spare"));
    combo->ShowDropDown(FALSE);
    PumpMessages();
    EXPECT_EQ(RowOf(L"Spare"), combo->GetCurSel());
    EXPECT_EQ(RowOf(L"Spare"), combo->GetLastAcceptedSelection());
    EXPECT_EQ(L"Spare", EditText());
}

TEST_F(ComboTest, EditFieldShowsTheSelectedRowWhileOpen) {
    combo->Expand(0);
    Choose(L"Motor");
    Open();
    SetWindowTextW(Edit(), L"typed");
    EXPECT_EQ(L"Motor", EditText());

    struct Typing {
        const char* name;
        bool selectAll;
        wchar_t ch;
        const wchar_t* expected;
    } typing[] = {
        {"a character that matches nothing", false, L'x', L"Motor"},
        {"a new first letter moves the selection", true, L'V', L"Valve"},
        {"case-blind", true, L's', L"Spare"},
    };
    for (const Typing& t : typing) {
        SCOPED_TRACE(t.name);
        if (t.selectAll)
            SendMessageW(Edit(), EM_SETSEL, 0, -1);
        else
            SendMessageW(Edit(), EM_SETSEL, 5, 5);
        SendMessageW(Edit(), WM_CHAR, t.ch, 1);
        EXPECT_EQ(t.expected, EditText());
        EXPECT_TRUE(Dropped());
    }

    combo->ShowDropDown(FALSE);
    PumpMessages();
    SetWindowTextW(Edit(), L"typed");
    EXPECT_EQ(L"typed", EditText()) << "closed, the field takes any text";
}

TEST_F(ComboTest, ArrowKeysMoveOntoALeafWithoutClosing) {
    combo->Expand(0);
    Choose(L"Motor");
    Open();
    Key(Edit(), VK_DOWN);
    PumpMessages();
    EXPECT_TRUE(Dropped());
    EXPECT_EQ(RowOf(L"Valve"), combo->GetCurSel());
    EXPECT_EQ(L"Valve", EditText());

    // Left in the edit field goes to the tree: Valve's parent row.
    Key(Edit(), VK_LEFT);
    PumpMessages();
    EXPECT_TRUE(Dropped());
    EXPECT_EQ(RowOf(L"Line"), static_cast<int>(SendMessageW(List(), LB_GETCURSEL, 0, 0)));

    Key(Edit(), VK_RETURN);
    PumpMessages();
    EXPECT_FALSE(Dropped());
}

TEST_F(ComboTest, SearchAndTextMessagesAnswerFromTheTree) {
    combo->Expand(0);
    struct Search {
        const char* name;
        UINT message;
        const wchar_t* key;
        int expected; // row, -1 for CB_ERR
    } searches[] = {
        {"prefix", CB_FINDSTRING, L"val", 2},
        {"exact needs the whole name", CB_FINDSTRINGEXACT, L"val", -1},
        {"exact, case-blind", CB_FINDSTRINGEXACT, L"valve", 2},
        {"a hidden leaf is not a row", CB_FINDSTRING, L"Spa", 4},
        {"no match", CB_FINDSTRING, L"zzz", -1},
        {"empty key", CB_FINDSTRING, L"", -1},
    };
    for (const Search& s : searches) {
        SCOPED_TRACE(s.name);
        const LRESULT row = SendMessageW(combo->m_hWnd, s.message, static_cast<WPARAM>(-1),
                                         reinterpret_cast<LPARAM>(s.key));
        EXPECT_EQ(s.expected, row == CB_ERR ? -1 : static_cast<int>(row));
    }
    EXPECT_EQ(2, SendMessageW(combo->m_hWnd, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                              reinterpret_cast<LPARAM>(L"VALVE")));
    EXPECT_EQ(2, combo->GetCurSel());
    EXPECT_EQ(L"Valve", EditText());

    wchar_t buffer[32] = {};
    EXPECT_EQ(7, SendMessageW(combo->m_hWnd, CB_GETLBTEXTLEN, 3, 0));
    EXPECT_EQ(7, SendMessageW(combo->m_hWnd, CB_GETLBTEXT, 3, reinterpret_cast<LPARAM>(buffer)));
    EXPECT_EQ(L"Sensors", std::wstring(buffer));
    EXPECT_EQ(CB_ERR, SendMessageW(combo->m_hWnd, CB_GETLBTEXTLEN, 99, 0));

    EXPECT_EQ(4, combo->SelectItemFromItemData(14, true)) << "opens Sensors to show Temp";
    EXPECT_EQ(L"Temp", EditText());
    PumpMessages();
    EXPECT_EQ(1, parent->CountCommands(CBN_SELCHANGE));
    EXPECT_EQ(-1, combo->SelectItemFromString(CString(L"Nowhere"), false));
}

TEST_F(ComboTest, XmlHoldsTheEditPartThenTheTreeList) {
    combo->Expand(0);
    Choose(L"Valve");
    const AF_GString xml = combo->XmlGetString();
    const std::wstring text(xml.begin(), xml.end());
    EXPECT_EQ(0u, text.find(L"<?xml"));
    const size_t combo_ = text.find(L"<HbxComboBox>");
    const size_t edit = text.find(L"<HbxLookAheadEdit><Text>Valve</Text>");
    const size_t list = text.find(L"<HbxTreeList>");
    const size_t chosen = text.find(L"<text>Valve</text>");
    const size_t end = text.rfind(L"</HbxComboBox>");
    ASSERT_NE(std::wstring::npos, combo_);
    ASSERT_NE(std::wstring::npos, edit);
    ASSERT_NE(std::wstring::npos, list);
    ASSERT_NE(std::wstring::npos, chosen);
    EXPECT_LT(combo_, edit);
    EXPECT_LT(edit, list);
    EXPECT_LT(list, chosen);
    EXPECT_EQ(text.size() - 14, end);
}

// ---- Without the tree -------------------------------------------------------------

TEST(ComboWithoutTree, FlatItemsCompleteAsTyped) {
    ParentWindow parent;
    AF_CTreeComboBoxEx combo;
    combo.UseTree(0);
    ASSERT_TRUE(combo.Create(CBS_DROPDOWN | WS_VISIBLE, CRect(10, 10, 260, 210), parent.Handle(),
                             kComboId));
    EXPECT_FALSE(combo.IsListSubclassed());
    for (const wchar_t* text : {L"Motor", L"Valve", L"Value_Max"}) {
        CString item(text);
        combo.AddItem(item, 0, 0, 1, 5 /* ignored */);
    }
    EXPECT_EQ(3, combo.GetCount());
    HWND edit = combo.GetEditControl()->m_hWnd;
    DWORD start = 0, end = 0;

    SendMessageW(edit, WM_CHAR, L'v', 1);
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(L"Valve", WindowText(edit));
    EXPECT_EQ(1u, start);
    EXPECT_EQ(5u, end);
    EXPECT_EQ(1, combo.GetCurSel());

    SendMessageW(edit, WM_CHAR, L'a', 1);
    SendMessageW(edit, WM_CHAR, L'l', 1);
    SendMessageW(edit, WM_CHAR, L'u', 1); // "Valu" now proposes Value_Max
    EXPECT_EQ(L"Value_Max", WindowText(edit));
    EXPECT_EQ(2, combo.GetCurSel());

    SendMessageW(edit, WM_CHAR, 8, 1); // Backspace removes the proposal only
    EXPECT_EQ(L"Valu", WindowText(edit));
    SendMessageW(edit, WM_CHAR, 8, 1);
    EXPECT_EQ(L"Val", WindowText(edit));

    const AF_GString xml = combo.XmlGetString();
    EXPECT_NE(std::wstring::npos, std::wstring(xml).find(L"<Text>Val</Text>"));
    EXPECT_EQ(std::wstring::npos, std::wstring(xml).find(L"<HbxListNode>"));
}

} // namespace
} // namespace treetest
