// Keyboard, mouse and list-box messages sent to a real tree list box.
#include "TreeFixture.h"

namespace treetest {
namespace {

// ---- Keyboard -------------------------------------------------------------------

// Rows written as a string: 'n' a normal row, 'h' a header, 's' a separator.
void BuildPattern(VU_CTreeListBox& list, const char* pattern) {
    int i = 0;
    for (const char* p = pattern; *p; ++p, ++i) {
        if (*p == 'h')
            list.AddHeader(S(L"Header"));
        else if (*p == 's')
            list.AddSeparator();
        else
            list.AddItem(CString(std::wstring(L"row ") + wchar_t(L'0' + i)), 6, 6, 0);
    }
}

TEST_F(TreeListTest, PagingNeverRestsOnAHeader) {
    BuildPattern(*list, "nnnnnnnnnnnnnnnnnnnnnnnnnnnnnn");
    Select(0);
    Key(Hwnd(), VK_NEXT);
    PumpMessages();
    const int landing = Selected();
    ASSERT_GT(landing, 1);

    list->ResetTreeContents();
    std::string pattern(30, 'n');
    pattern[static_cast<size_t>(landing)] = 'h';
    BuildPattern(*list, pattern.c_str());
    Select(0);
    Key(Hwnd(), VK_NEXT);
    PumpMessages(); // the posted VK_UP
    EXPECT_EQ(landing - 1, Selected());
}

TEST_F(TreeListTest, LeftKeyCollapsesOrGoesToTheParentWithANotification) {
    BuildSample();
    list->ExpandThisAndParent(list->FindNode(3)); // A, A1, A1a, A1b, A2, B, C
    Select(1);                                    // A1, expanded
    Key(Hwnd(), VK_LEFT);
    EXPECT_EQ((RowList{L"A", L"A1", L"A2", L"B", L"C"}), Rows());
    EXPECT_EQ(1, Selected());
    EXPECT_EQ(0, parent->CountCommands(LBN_SELCHANGE));

    Key(Hwnd(), VK_LEFT); // A1 is now a collapsed child: go to A
    EXPECT_EQ(0, Selected());
    ASSERT_EQ(1, parent->CountCommands(LBN_SELCHANGE));
    EXPECT_EQ(kControlId, parent->commands.back().id);
    EXPECT_EQ(Hwnd(), parent->commands.back().from);

    Select(2); // A2, a leaf: to its parent
    Key(Hwnd(), VK_LEFT);
    EXPECT_EQ(0, Selected());

    Key(Hwnd(), VK_LEFT); // A: a root with children, expanded
    Key(Hwnd(), VK_LEFT); // A collapsed root: nothing
    EXPECT_EQ((RowList{L"A", L"B", L"C"}), Rows());
    EXPECT_EQ(2, parent->CountCommands(LBN_SELCHANGE));
}

TEST_F(TreeListTest, RightPlusAndMinusKeys) {
    BuildSample();
    Key(Hwnd(), VK_RIGHT); // nothing selected: nothing expands
    EXPECT_EQ((RowList{L"A", L"B", L"C"}), Rows());
    Select(0);
    Key(Hwnd(), VK_RIGHT);
    EXPECT_EQ((RowList{L"A", L"A1", L"A2", L"B", L"C"}), Rows());
    EXPECT_EQ(0, Selected()) << "right expands and does nothing else";
    Key(Hwnd(), VK_SUBTRACT);
    EXPECT_EQ((RowList{L"A", L"B", L"C"}), Rows());
    Key(Hwnd(), VK_ADD);
    EXPECT_EQ(5u, Rows().size());
}

// ---- Mouse ------------------------------------------------------------------------

TEST_F(TreeListTest, ClickOnTheButtonColumnTogglesUpToItsLastPixel) {
    BuildSample();
    list->Expand(0); // A1 at row 1, level 1
    struct Case {
        int gutter;
        int x;
        bool toggles;
    } cases[] = {{0, 15, false}, {0, 32, true}, {10, 26, true}, {10, 43, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE("gutter " + std::to_string(c.gutter) + " x " + std::to_string(c.x));
        list->SetLeftGutterSize(c.gutter);
        Click(Hwnd(), c.x, MidY(1));
        EXPECT_EQ(1, Selected()) << "the click selects in every case";
        EXPECT_EQ(c.toggles ? 7 : 5, list->GetRowCount());
        list->Collapse(1);
    }
}

// The parent may change the tree when the list box notifies it during the
// default handling of the click (LBN_SELCHANGE on Windows, LBN_SETFOCUS as
// well; Wine sends only the latter there): the click toggles the node that
// is on the row afterwards.
TEST_F(TreeListTest, ClickTogglesTheNodeOnItsRowAfterTheParentWasNotified) {
    BuildSample();
    list->Expand(0); // A, A1, A2, B, C
    parent->onCommand = [&](const Command& c) {
        if ((c.code == LBN_SELCHANGE || c.code == LBN_SETFOCUS) && list->GetRowCount() == 5)
            list->DeleteItemByIndex(0); // A goes; collapsed B takes row 0
    };
    SetFocus(parent->Handle());
    Click(Hwnd(), 8, MidY(0));
    EXPECT_EQ((RowList{L"B", L"B1", L"C"}), Rows());
}

TEST_F(TreeListTest, DoubleClickTogglesFromTheButtonRightwards) {
    BuildSample();
    list->SetLeftGutterSize(20);
    DoubleClick(Hwnd(), 150, MidY(0));
    EXPECT_EQ((RowList{L"A", L"A1", L"A2", L"B", L"C"}), Rows());
    DoubleClick(Hwnd(), 20, MidY(0));
    EXPECT_EQ((RowList{L"A", L"B", L"C"}), Rows());
    DoubleClick(Hwnd(), 19, MidY(0)); // in the gutter
    EXPECT_EQ((RowList{L"A", L"B", L"C"}), Rows());
}

// ---- List-box messages ------------------------------------------------------------

TEST_F(TreeListTest, FindMessagesSearchTheShownRows) {
    BuildSample();
    list->Expand(0); // A, A1, A2, B, C
    list->AddItem(S(L"Motor\tBOOL"), 6, 6, 0);
    list->AddItem(S(L"Motors\tINT"), 6, 6, 0);
    struct Case {
        const char* name;
        UINT message;
        const wchar_t* text;
        LRESULT expected;
    } cases[] = {
        {"prefix across the tab", LB_FINDSTRING, L"motor\tb", 5},
        {"hidden rows are not found", LB_FINDSTRING, L"a1b", LB_ERR},
        {"exact name before the tab", LB_FINDSTRINGEXACT, L"MOTORS", 6},
        {"exact takes the first column only", LB_FINDSTRINGEXACT, L"Motor\tBOOL", LB_ERR},
        {"select-string searches exactly", LB_SELECTSTRING, L"b", 3},
        {"empty key", LB_FINDSTRING, L"", LB_ERR},
    };
    Select(4);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(c.expected, SendMessageW(Hwnd(), c.message, static_cast<WPARAM>(-1),
                                           reinterpret_cast<LPARAM>(c.text)));
    }
    EXPECT_EQ(4, Selected()) << "LB_SELECTSTRING leaves the selection alone";
}

// The node search's own rules are the model's (TreeNodeTest); here the
// control's additions: a prefix length, an empty key, the found text.
TEST_F(TreeListTest, FindNoCaseChildStringTakesAPrefixLength) {
    BuildSample();
    list->Expand(0);
    EXPECT_EQ(1, list->FindNoCaseChildString(S(L"A1xyz"), 2, 1));
    EXPECT_EQ(-1, list->FindNoCaseChildString(S(L"x"), 0, 1)) << "length 0";
    CString found;
    EXPECT_EQ(3, list->FindNoCaseChildStringItem(S(L"b"), found, 1, 1, 0));
    EXPECT_EQ(CString(L"B"), found);
}

// ---- XML ------------------------------------------------------------------------------

// The rows' own XML is checked with the model and read back by libxml2 natively;
// here the control's part: the wrapper, the selected row and the shown rows only.
TEST_F(TreeListTest, XmlDumpOfTheShownRows) {
    BuildSample();
    list->Expand(0);
    Select(2);
    const std::wstring xml = list->XmlGetString();
    EXPECT_EQ(0u, xml.find(L"<HbxTreeList><HbxListNode><id>0</id><expanded>true</expanded>"));
    EXPECT_EQ(xml.find(L"<selected>true</selected><text>A2</text><parent>A</parent>"),
              xml.rfind(L"<selected>true"));
    EXPECT_EQ(xml.npos, xml.find(L"A1a")) << "hidden rows are not written";
    list->ResetTreeContents();
    EXPECT_EQ(std::wstring(L"<HbxTreeList></HbxTreeList>"), std::wstring(list->XmlGetString()));
}

} // namespace
} // namespace treetest
