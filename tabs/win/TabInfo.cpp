#include "tabs/win/TabInfo.h"

Vu_CTabInfo::~Vu_CTabInfo() {
    if (m_hMenu != nullptr)
        ::DeleteObject(reinterpret_cast<HGDIOBJ>(m_hMenu));
}
