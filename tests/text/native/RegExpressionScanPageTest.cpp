// Strings that end on the last unit of a page followed by an inaccessible
// page: the vectorised scans and a whole search must stop at the NUL without
// touching the next page (a fault would end the test run).
#include "text/RegExpScan.h"
#include "text/RegExpression.h"

#include <gtest/gtest.h>

#include <sys/mman.h>
#include <unistd.h>

#include <string>

namespace {

TEST(RegExpressionScanPage, ScansAndSearchesStopAtTheNulBeforeAGuardPage) {
    const size_t page = size_t(sysconf(_SC_PAGESIZE));
    void* base =
        mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(base, MAP_FAILED);
    ASSERT_EQ(mprotect(static_cast<char*>(base) + page, page, PROT_NONE), 0);
    WCHAR* end = reinterpret_cast<WCHAR*>(static_cast<char*>(base) + page) - 1;
    *end = 0; // the page's last unit
    const WCHAR* patterns[] = {VU_T("xyzzy"), VU_T("a*xyzzy"), VU_T("[ax]+y"),
                               VU_T("q|r"),   VU_T("x$"),      VU_T(".*x")};
    for (size_t length = 1; length < 200; ++length) {
        SCOPED_TRACE(length);
        WCHAR* s = end - length;
        std::fill(s, end - 1, VU_T('a'));
        end[-1] = VU_T('x'); // a literal prefix at the very end
        EXPECT_EQ(VU_CRegExpScan::Length(s), length);
        EXPECT_EQ(VU_CRegExpScan::FindUnit(s, VU_T('q')), nullptr);
        EXPECT_EQ(VU_CRegExpScan::FindLiteral(s, VU_T("xyzzy"), 5), nullptr);
        EXPECT_EQ(VU_CRegExpScan::FindLiteral(s, VU_T("ax"), 2), length >= 2 ? end - 2 : nullptr);
        EXPECT_EQ(VU_CRegExpScan::FindInRanges(s, VU_T("qx"), VU_T("rx"), 2), end - 1);
        EXPECT_EQ(VU_CRegExpScan::RunOf(s, VU_T('a')), length - 1);
        for (size_t i = 0; i < std::size(patterns); ++i) {
            VU_CRegExpression re;
            ASSERT_NE(re.RegComp(patterns[i]), nullptr);
            EXPECT_EQ(re.RegFind(s) >= 0, i >= 4) << "pattern " << i;
        }
    }
    munmap(base, 2 * page);
}

} // namespace
