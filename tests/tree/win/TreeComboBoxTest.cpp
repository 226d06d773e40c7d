// The tree combo box driven with real messages: opening, choosing and
// closing, refused rows, the edit field while the list is open, searches,
// the XML, and the combo without its tree.
#include "ComboFixture.h"

namespace treetest {
namespace {

using Texts = std::vector<std::wstring>;

TEST_F(ComboTest, ExpandColumnTogglesAndKeepsTheListOpenLeafChoosesAndCloses) {
    EXPECT_EQ((Texts{L"Line", L"Spare"}), Rows());
    Open();
    ASSERT_TRUE(Dropped());
    ClickRow(L"Line", 5); // the expand column of a level-0 row
    EXPECT_EQ((Texts{L"Line", L"Motor", L"Valve", L"Sensors", L"Spare"}), Rows());
    ClickRow(L"Sensors", 16 + 8); // level 1: its column starts at 16
    EXPECT_EQ(6u, Rows().size());
    EXPECT_TRUE(Dropped());
    EXPECT_EQ(0, parent->CountCommands(CBN_SELENDOK));

    ClickRow(L"Temp", 70);
    EXPECT_FALSE(Dropped());
    EXPECT_EQ(RowOf(L"Temp"), combo->GetCurSel());
    EXPECT_EQ(L"Temp", EditText());
    EXPECT_GE(parent->CountCommands(CBN_SELENDOK), 1);
}

TEST_F(ComboTest, RefusedRowsIgnoreClicksAndAreUndoneOnCloseUp) {
    combo->refusedData = 12; // Valve
    combo->Expand(0);
    // The keyboard (here the selection message) may rest on a refused row;
    // the first close-up has nothing to go back to and takes it.
    Open();
    combo->SetCurSel(RowOf(L"Valve"));
    combo->ShowDropDown(FALSE);
    PumpMessages();
    EXPECT_EQ(RowOf(L"Valve"), combo->GetLastAcceptedSelection());

    Choose(L"Motor");
    const int selEndOks = parent->CountCommands(CBN_SELENDOK);
    Open();
    for (const wchar_t* row : {L"Valve", L"Sensors"}) { // refused leaf, parent's text
        ClickRow(row, 70);
        EXPECT_TRUE(Dropped());
        EXPECT_EQ(L"Motor", EditText());
        EXPECT_EQ(selEndOks, parent->CountCommands(CBN_SELENDOK));
    }
    combo->SetCurSel(RowOf(L"Valve"));
    combo->ShowDropDown(FALSE);
    PumpMessages();
    EXPECT_EQ(RowOf(L"Motor"), combo->GetCurSel());
    EXPECT_EQ(L"Motor", EditText());
}

TEST_F(ComboTest, EditFieldShowsTheSelectedRowWhileOpen) {
    combo->Expand(0);
    Choose(L"Motor");
    Open();
    SetWindowTextW(Edit(), L"typed");
    EXPECT_EQ(L"Motor", EditText());
    struct Typing {
        const char* name;
        int selStart;
        wchar_t ch;
        const wchar_t* expected;
    } typing[] = {
        {"a character that matches nothing", 5, L'x', L"Motor"},
        {"a new first letter moves the selection, case-blind", 0, L'v', L"Valve"},
    };
    for (const Typing& t : typing) {
        SCOPED_TRACE(t.name);
        SendMessageW(Edit(), EM_SETSEL, t.selStart, -1);
        SendMessageW(Edit(), WM_CHAR, t.ch, 1);
        EXPECT_EQ(t.expected, EditText());
    }
    Key(Edit(), VK_UP); // onto the leaf above: shown, the list stays open
    PumpMessages();
    EXPECT_EQ(RowOf(L"Motor"), combo->GetCurSel());
    EXPECT_EQ(L"Motor", EditText());
    EXPECT_TRUE(Dropped());
    Key(Edit(), VK_LEFT); // goes to the tree: the selected row's parent
    PumpMessages();
    EXPECT_EQ(RowOf(L"Line"), static_cast<int>(SendMessageW(List(), LB_GETCURSEL, 0, 0)));
    Key(Edit(), VK_RETURN);
    PumpMessages();
    EXPECT_FALSE(Dropped());
    SetWindowTextW(Edit(), L"typed");
    EXPECT_EQ(L"typed", EditText()) << "closed, the field takes any text";
}

TEST_F(ComboTest, SearchAndTextMessagesAnswerFromTheTree) {
    combo->Expand(0); // Line Motor Valve Sensors Spare; Temp stays hidden
    struct Search {
        UINT message;
        int start;
        const wchar_t* key;
        int expected; // -1 for CB_ERR
    } searches[] = {{CB_FINDSTRING, -1, L"val", 2},        {CB_FINDSTRINGEXACT, -1, L"val", -1},
                    {CB_FINDSTRINGEXACT, -1, L"VALVE", 2}, {CB_FINDSTRING, -1, L"Spa", 4},
                    {CB_FINDSTRING, 3, L"line", 0},        {CB_FINDSTRING, 2, L"val", 2},
                    {CB_FINDSTRING, -1, L"", -1},          {CB_SELECTSTRING, -1, L"valve", 2}};
    for (const Search& s : searches) {
        SCOPED_TRACE(testing::Message() << s.message << " after " << s.start);
        const LRESULT row = SendMessageW(combo->m_hWnd, s.message, static_cast<WPARAM>(s.start),
                                         reinterpret_cast<LPARAM>(s.key));
        EXPECT_EQ(s.expected, row == CB_ERR ? -1 : static_cast<int>(row));
    }
    EXPECT_EQ(L"Valve", EditText()) << "CB_SELECTSTRING selected it";
    wchar_t buffer[16] = {};
    EXPECT_EQ(7, SendMessageW(combo->m_hWnd, CB_GETLBTEXT, 3, reinterpret_cast<LPARAM>(buffer)));
    EXPECT_EQ(L"Sensors", std::wstring(buffer));

    EXPECT_EQ(4, combo->SelectItemFromItemData(14, true)) << "opens Sensors to show Temp";
    EXPECT_EQ(L"Temp", EditText());
    PumpMessages();
    EXPECT_EQ(1, parent->CountCommands(CBN_SELCHANGE));
}

TEST_F(ComboTest, XmlHoldsTheEditPartThenTheTreeList) {
    combo->Expand(0);
    Choose(L"Valve");
    const std::wstring xml = combo->XmlGetString();
    size_t at = 0;
    for (const wchar_t* part : {L"<HbxComboBox><HbxLookAheadEdit><Text>Valve</Text>",
                                L"</HbxLookAheadEdit><HbxTreeList>", L"<text>Valve</text>"}) {
        at = xml.find(part, at);
        EXPECT_NE(std::wstring::npos, at) << "in order: " << std::string(part, part + 10);
    }
    EXPECT_EQ(xml.size() - 14, xml.rfind(L"</HbxComboBox>"));
}

TEST_F(ComboTest, SwitchingTheTreeOffKeepsTheShownRowsFlat) {
    combo->Expand(0);
    combo->UseTree(0);
    EXPECT_FALSE(combo->IsListSubclassed());
    Open(); // the rows paint through the combo now
    EXPECT_TRUE(Dropped());
    CString text;
    EXPECT_EQ(7, combo->GetLBItemText(3, text));
    EXPECT_EQ(CString(L"Sensors"), text);
}

TEST(ComboWithoutTree, FlatItemsCompleteAsTyped) {
    ParentWindow parent;
    AF_CTreeComboBoxEx combo;
    combo.UseTree(0);
    ASSERT_TRUE(combo.Create(CBS_DROPDOWN | WS_VISIBLE, CRect(10, 10, 260, 210), parent.Handle(),
                             kComboId));
    for (const wchar_t* text : {L"Motor", L"Valve", L"Value_Max"}) {
        CString item(text);
        combo.AddItem(item, 0, 0, 1, 5 /* ignored */);
    }
    HWND edit = combo.GetEditControl()->m_hWnd;
    struct Step {
        wchar_t ch;
        const wchar_t* text;
        DWORD selStart, selEnd;
        int selection;
    } steps[] = {
        {L'v', L"Valve", 1, 5, 1}, {L'a', L"Valve", 2, 5, 1},
        {L'l', L"Valve", 3, 5, 1}, {L'u', L"Value_Max", 4, 9, 2},
        {8, L"Valu", 4, 4, -1},    {8, L"Val", 3, 3, -1}}; // Backspace: no item is named so
    for (const Step& s : steps) {
        SCOPED_TRACE(testing::Message() << "after " << int(s.ch));
        SendMessageW(edit, WM_CHAR, s.ch, 1);
        DWORD start = 0, end = 0;
        SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                     reinterpret_cast<LPARAM>(&end));
        EXPECT_EQ(s.text, WindowText(edit));
        EXPECT_EQ(s.selStart, start);
        EXPECT_EQ(s.selEnd, end);
        EXPECT_EQ(s.selection, combo.GetCurSel());
    }
    EXPECT_NE(std::wstring::npos, combo.XmlGetString().find(L"<Text>Val</Text>"));
}

} // namespace
} // namespace treetest
