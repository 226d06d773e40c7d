#include "tabs/TabRecord.h"

namespace {
const WCHAR kEllipsis[] = VU_T("...");
const WCHAR kStar[] = VU_T("*");

bool Contains(const CString& str, const WCHAR* part) {
    return str.Find(part) >= 0;
}
} // namespace

VU_CTabRecord::~VU_CTabRecord() {
    if (m_bOwnsData)
        delete m_pData;
}

void VU_CTabRecord::SetText(const CString& text) {
    m_strFullText = text;
    int newline = text.Find(VU_T('\n'));
    if (newline < 0) {
        m_strLine1 = text;
        m_strLine2.Empty();
    } else {
        m_strLine1 = text.Left(newline);
        m_strLine2 = text.Mid(newline + 1);
    }
}

int VU_CTabRecord::GetNumChars(const CString& str) {
    if (str.IsEmpty())
        return 0;
    bool ellipsis = Contains(str, kEllipsis);
    bool star = Contains(str, kStar);
    int decorations = (ellipsis ? 3 : 0) + (star ? 1 : 0);
    return str.GetLength() - decorations;
}

int VU_CTabRecord::GetNumChars() const {
    int first = GetNumChars(m_strLine1);
    int second = GetNumChars(m_strLine2);
    return first > second ? first : second;
}

bool VU_CTabRecord::ShrinkText(CString& str) {
    bool ellipsis = Contains(str, kEllipsis);
    bool star = Contains(str, kStar);
    int length = str.GetLength();
    // The decorations kept at the end, and the room needed for one more
    // character before them.
    int kept = ellipsis ? (star ? 4 : 3) : (star ? 1 : 0);
    if (length < kept + 1)
        return false;
    // Edited in place: the same result as concatenating the kept parts.
    if (!ellipsis && !star) {
        str.Delete(length - 1);
        str += kEllipsis;
    } else if (!ellipsis) {
        str.Delete(length - 2);
        str.Insert(length - 2, kEllipsis);
    } else {
        str.Delete(length - kept - 1);
    }
    return true;
}
