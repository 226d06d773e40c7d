// Every framework header compiles on its own and together.
#include "framework/Array.h"
#include "framework/CString.h"
#include "framework/CaseMap.h"
#include "framework/InvalidArgException.h"
#include "framework/Map.h"
#include "framework/Object.h"
#include "framework/Point.h"
#include "framework/Rect.h"
#include "framework/Size.h"
#include "framework/StringArray.h"
#include "framework/TypedArrays.h"
#include "framework/Types.h"

#include <gtest/gtest.h>

TEST(FrameworkHeaders, ScalarTypesHaveTheSystemWidths) {
    static_assert(sizeof(BYTE) == 1 && sizeof(WORD) == 2 && sizeof(UINT) == 4);
    static_assert(sizeof(INT_PTR) == sizeof(void*) && sizeof(UINT_PTR) == sizeof(void*));
    static_assert(std::is_same_v<DWORD, unsigned long> && std::is_same_v<LONG, long>);
    static_assert(std::is_same_v<BOOL, int> && std::is_same_v<COLORREF, DWORD>);
    static_assert(std::is_standard_layout_v<CRect> && std::is_standard_layout_v<CPoint>);
}
