#pragma once
// A measuring fake with a fixed font: characters 6 pixels wide, 'W' 10 and
// 'i' 3, lines 13 high; wrapping breaks at spaces and line breaks, and a
// word longer than the width sticks out, as DrawText does.
#include "dialogs/DialogMeasuring.h"

#include <algorithm>

class FakeMeasuring : public AF_ADialogMeasuring {
public:
    static int Width(const CString& s, int from = 0, int to = -1) {
        int w = 0;
        for (int i = from; i < (to < 0 ? s.GetLength() : to); ++i)
            w += s[i] == VU_T('W') ? 10 : s[i] == VU_T('i') ? 3 : 6;
        return w;
    }
    CSize GetTextExtent(const CString& text) override { return CSize(Width(text), 13); }
    CRect CalcTextRect(const CString& text, const CRect& rect, bool wordBreak) override {
        int lines = 0, widest = 0, start = 0, space = -1;
        const int n = text.GetLength();
        for (int i = 0; i <= n; ++i) {
            const WCHAR c = i < n ? text[i] : VU_T('\n');
            if (wordBreak && c != VU_T(' ') && c != VU_T('\n') && space > start &&
                Width(text, start, i + 1) > rect.Width()) {
                widest = std::max(widest, Width(text, start, space));
                ++lines;
                start = space + 1;
            }
            space = c == VU_T(' ') ? i : space;
            if (c == VU_T('\n')) {
                widest = std::max(widest, Width(text, start, i));
                ++lines;
                start = i + 1;
            }
        }
        return CRect(rect.left, rect.top, rect.left + widest, rect.top + (n ? lines : 0) * 13);
    }
    int GetWorkAreaWidth() override { return workArea; }
    int GetDialogFrameWidth() override { return 3; }
    int GetCaptionHeight() override { return 18; }
    int GetAverageCharWidth() override { return 5; }
    int GetSmallIconSize() override { return 16; }
    int GetCheckBoxWidth() override { return 17; }

    int workArea = 1000;
};
