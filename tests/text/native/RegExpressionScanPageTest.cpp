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

class GuardedPage {
public:
    GuardedPage() {
        m_page = size_t(sysconf(_SC_PAGESIZE));
        void* p =
            mmap(nullptr, 2 * m_page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (p == MAP_FAILED)
            return;
        m_base = static_cast<char*>(p);
        mprotect(m_base + m_page, m_page, PROT_NONE);
    }
    ~GuardedPage() {
        if (m_base)
            munmap(m_base, 2 * m_page);
    }
    bool Ok() const { return m_base != nullptr; }
    // Places `text` and its NUL so that the NUL is the page's last unit.
    const WCHAR* Place(const vu::String& text) {
        WCHAR* end = reinterpret_cast<WCHAR*>(m_base + m_page) - 1;
        WCHAR* s = end - text.size();
        std::copy(text.begin(), text.end(), s);
        *end = 0;
        return s;
    }

private:
    char* m_base = nullptr;
    size_t m_page = 0;
};

TEST(RegExpressionScanPage, ScansStopAtTheNulBeforeAGuardPage) {
    GuardedPage page;
    ASSERT_TRUE(page.Ok());
    for (size_t length = 0; length < 200; ++length) {
        SCOPED_TRACE(length);
        vu::String text(length, VU_T('a'));
        if (length)
            text.back() = VU_T('x'); // a literal prefix at the very end
        const WCHAR* s = page.Place(text);
        EXPECT_EQ(VU_CRegExpScan::Length(s), length);
        EXPECT_EQ(VU_CRegExpScan::FindUnit(s, VU_T('q')), nullptr);
        EXPECT_EQ(VU_CRegExpScan::FindLiteral(s, VU_T("xyzzy"), 5), nullptr);
        EXPECT_EQ(VU_CRegExpScan::FindLiteral(s, VU_T("ax"), 2),
                  length >= 2 ? s + length - 2 : nullptr);
        const WCHAR lo[] = {VU_T('q'), VU_T('x')}, hi[] = {VU_T('r'), VU_T('x')};
        EXPECT_EQ(VU_CRegExpScan::FindInRanges(s, lo, hi, 2), length ? s + length - 1 : nullptr);
        EXPECT_EQ(VU_CRegExpScan::RunOf(s, VU_T('a')), length ? length - 1 : 0);
    }
}

TEST(RegExpressionScanPage, SearchesStopAtTheNulBeforeAGuardPage) {
    GuardedPage page;
    ASSERT_TRUE(page.Ok());
    const WCHAR* patterns[] = {VU_T("xyzzy"), VU_T("a*xyzzy"), VU_T("[ax]+y"),
                               VU_T("q|r"),   VU_T("x$"),      VU_T(".*x")};
    const int expected[] = {-1, -1, -1, -1, 0, 0};
    for (size_t length = 1; length < 150; ++length) {
        const vu::String text = vu::String(length - 1, VU_T('a')) + VU_T("x");
        const WCHAR* s = page.Place(text);
        for (size_t i = 0; i < std::size(patterns); ++i) {
            SCOPED_TRACE(std::to_string(length) + " units, pattern " + std::to_string(i));
            VU_CRegExpression re;
            ASSERT_NE(re.RegComp(patterns[i]), nullptr);
            const int found = re.RegFind(s);
            EXPECT_EQ(found < 0 ? -1 : 0, expected[i]);
        }
    }
}

} // namespace
