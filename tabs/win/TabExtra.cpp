#include "tabs/win/TabExtra.h"

void AF_CTabExtra::OnHScroll(UINT, UINT, CScrollBar*) {}
void AF_CTabExtra::ScrollbarActivated() {}
DWORD AF_CTabExtra::GetRoutineUID() const {
    return 0;
}
