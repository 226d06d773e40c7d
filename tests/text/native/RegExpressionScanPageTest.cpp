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
    const char16_t* Place(const std::u16string& text) {
        char16_t* end = reinterpret_cast<char16_t*>(m_base + m_page) - 1;
        char16_t* s = end - text.size();
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
        std::u16string text(length, u'a');
        if (length)
            text.back() = u'x'; // a literal prefix at the very end
        const char16_t* s = page.Place(text);
        EXPECT_EQ(VU_CRegExpScan::Length(s), length);
        EXPECT_EQ(VU_CRegExpScan::FindUnit(s, u'q'), nullptr);
        EXPECT_EQ(VU_CRegExpScan::FindLiteral(s, u"xyzzy", 5), nullptr);
        EXPECT_EQ(VU_CRegExpScan::FindLiteral(s, u"ax", 2), length >= 2 ? s + length - 2 : nullptr);
        const char16_t lo[] = {u'q', u'x'}, hi[] = {u'r', u'x'};
        EXPECT_EQ(VU_CRegExpScan::FindInRanges(s, lo, hi, 2), length ? s + length - 1 : nullptr);
        EXPECT_EQ(VU_CRegExpScan::RunOf(s, u'a'), length ? length - 1 : 0);
    }
}

TEST(RegExpressionScanPage, SearchesStopAtTheNulBeforeAGuardPage) {
    GuardedPage page;
    ASSERT_TRUE(page.Ok());
    const char16_t* patterns[] = {u"xyzzy", u"a*xyzzy", u"[ax]+y", u"q|r", u"x$", u".*x"};
    const int expected[] = {-1, -1, -1, -1, 0, 0};
    for (size_t length = 1; length < 150; ++length) {
        const std::u16string text = std::u16string(length - 1, u'a') + u"x";
        const char16_t* s = page.Place(text);
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
