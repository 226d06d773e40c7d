#pragma once
// A fixed fake font: characters 6 pixels wide, 'W' 10, 'i' 3, lines 13 high;
// lines wrap at spaces, and a longer word sticks out, as with DrawText.
#include "dialogs/DialogMeasuring.h"

#include <algorithm>

class FakeMeasuring : public AF_ADialogMeasuring {
public:
    static int Width(const CString& s, int from, int to) {
        int w = 0;
        for (int i = from; i < to; ++i)
            w += s[i] == VU_T('W') ? 10 : s[i] == VU_T('i') ? 3 : 6;
        return w;
    }
    CSize GetTextExtent(const CString& t) override { return CSize(Width(t, 0, t.GetLength()), 13); }
    CRect CalcTextRect(const CString& t, const CRect& rect, bool wordBreak) override {
        int lines = 0, widest = 0, start = 0, space = -1;
        for (int i = 0, n = t.GetLength(); i <= n; ++i) {
            const WCHAR c = i < n ? t[i] : VU_T('\n');
            const bool wrap = wordBreak && c != VU_T(' ') && c != VU_T('\n') && space > start &&
                              Width(t, start, i + 1) > rect.Width();
            if (c == VU_T('\n') || wrap) {
                const int end = wrap ? space : i;
                widest = std::max(widest, Width(t, start, end));
                start = end + 1, ++lines;
            }
            space = c == VU_T(' ') ? i : space;
        }
        return CRect(rect.left, rect.top, rect.left + widest,
                     rect.top + (t.IsEmpty() ? 0 : lines) * 13);
    }
    int GetWorkAreaWidth() override { return workArea; }
    int GetDialogFrameWidth() override { return 3; }
    int GetCaptionHeight() override { return 18; }
    int GetAverageCharWidth() override { return 5; }
    int GetSmallIconSize() override { return 16; }
    int GetCheckBoxWidth() override { return 17; }
    int workArea = 1000;
};
