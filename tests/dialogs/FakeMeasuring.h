#pragma once
// A measuring fake with a fixed font: every character 6 pixels wide except
// 'W' (10) and 'i' (3), lines 13 pixels high; wrapping breaks at spaces
// and at line breaks, and a word longer than the width sticks out, as
// DrawText does.
#include "dialogs/DialogMeasuring.h"

#include <algorithm>

class FakeMeasuring : public AF_ADialogMeasuring {
public:
    static constexpr int kLine = 13;
    static int CharWidth(WCHAR c) { return c == VU_T('W') ? 10 : c == VU_T('i') ? 3 : 6; }
    static int Width(const CString& s, int from = 0, int to = -1) {
        int w = 0;
        for (int i = from; i < (to < 0 ? s.GetLength() : to); ++i)
            w += CharWidth(s[i]);
        return w;
    }

    CSize GetTextExtent(const CString& text) override { return CSize(Width(text), kLine); }
    CRect CalcTextRect(const CString& text, const CRect& rect, bool wordBreak) override {
        int lines = 0, widest = 0, lineStart = 0, lastSpace = -1;
        const int n = text.GetLength();
        for (int i = 0; i <= n; ++i) {
            const WCHAR c = i < n ? text[i] : VU_T('\n');
            if (wordBreak && c != VU_T(' ') && c != VU_T('\n') && lastSpace > lineStart &&
                Width(text, lineStart, i + 1) > rect.Width()) {
                widest = std::max(widest, Width(text, lineStart, lastSpace));
                ++lines;
                lineStart = lastSpace + 1;
            }
            if (c == VU_T(' '))
                lastSpace = i;
            if (c == VU_T('\n')) {
                widest = std::max(widest, Width(text, lineStart, i));
                ++lines;
                lineStart = i + 1;
            }
        }
        return CRect(rect.left, rect.top, rect.left + widest,
                     rect.top + (n == 0 ? 0 : lines) * kLine);
    }
    int GetWorkAreaWidth() override { return workArea; }
    int GetDialogFrameWidth() override { return 3; }
    int GetCaptionHeight() override { return 18; }
    int GetAverageCharWidth() override { return 5; }
    int GetSmallIconSize() override { return 16; }
    int GetCheckBoxWidth() override { return 17; }

    int workArea = 1000;
};
