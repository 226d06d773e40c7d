#include "text/RegExpression.h"

#include "text/RegExpScan.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <new>

namespace {

// Characters with a meaning of their own; a literal run stops at any of them.
constexpr WCHAR kMeta[] = VU_T("^$.[()|?+*\\");

bool IsMeta(WCHAR c) {
    for (const WCHAR* m = kMeta; *m; ++m)
        if (*m == c)
            return true;
    return false;
}

bool IsRepeat(WCHAR c) {
    return c == VU_T('*') || c == VU_T('+') || c == VU_T('?');
}

size_t OperandLength(const WCHAR* operand) {
    size_t n = 0;
    while (operand[n])
        ++n;
    return n;
}

// Programs larger than this are refused as if memory had run out (128 MB).
constexpr uint64_t kMaxProgramUnits = uint64_t(1) << 26;
// The start-set analysis is skipped for programs above this size.
constexpr uint64_t kMaxAnalysedUnits = uint64_t(1) << 20;
// Matcher scratch kept between searches; anything larger is given back.
constexpr size_t kKeptScratchBytes = 64 * 1024;

} // namespace

// ---- Construction ------------------------------------------------------

VU_CRegExpression::VU_CRegExpression() = default;

VU_CRegExpression::~VU_CRegExpression() {
    Release();
}

VU_CRegExpression::VU_CRegExpression(const VU_CRegExpression& other) {
    CopyFrom(other);
}

VU_CRegExpression& VU_CRegExpression::operator=(const VU_CRegExpression& other) {
    if (this != &other) {
        Release();
        CopyFrom(other);
    }
    return *this;
}

VU_CRegExpression::VU_CRegExpression(VU_CRegExpression&& other) noexcept {
    *this = std::move(other);
}

VU_CRegExpression& VU_CRegExpression::operator=(VU_CRegExpression&& other) noexcept {
    if (this == &other)
        return *this;
    Release();
    CopyFields(other);
    m_foundText = std::move(other.m_foundText);
    m_startSet = std::move(other.m_startSet);
    m_sets = std::move(other.m_sets);
    m_memoNodes = std::move(other.m_memoNodes);
    // The hint pointers point into the program, which moves with them.
    m_program = other.m_program;
    m_required = other.m_required;
    m_firstLiteral = other.m_firstLiteral;
    other.m_program = nullptr;
    other.m_required = other.m_firstLiteral = nullptr;
    other.m_hasFound = false;
    other.m_compiled = 0;
    return *this;
}

void VU_CRegExpression::Release() {
    delete[] m_program;
    m_program = nullptr;
    m_required = m_firstLiteral = nullptr;
    m_hasFound = false;
}

// Everything but the owned buffers and the pointers into the program.
void VU_CRegExpression::CopyFields(const VU_CRegExpression& other) {
    m_emitting = other.m_emitting;
    m_compiled = other.m_compiled;
    m_hasFound = other.m_hasFound;
    std::copy(other.m_groupStart, other.m_groupStart + kGroupCount, m_groupStart);
    std::copy(other.m_groupEnd, other.m_groupEnd + kGroupCount, m_groupEnd);
    m_firstChar = other.m_firstChar;
    m_anchored = other.m_anchored;
    m_requiredLength = other.m_requiredLength;
    m_programSize = other.m_programSize;
    m_groupCount = other.m_groupCount;
    m_input = other.m_input;
    m_stringStart = other.m_stringStart;
    m_firstLiteralLength = other.m_firstLiteralLength;
    m_leadingRepeat = other.m_leadingRepeat;
    m_hasStartSet = other.m_hasStartSet;
    m_stepLimit = other.m_stepLimit;
    m_stepLimitExceeded = other.m_stepLimitExceeded;
    m_memoThreshold = other.m_memoThreshold;
}

void VU_CRegExpression::CopyFrom(const VU_CRegExpression& other) {
    CopyFields(other);
    m_foundText = other.m_foundText;
    m_startSet = other.m_startSet;
    m_sets = other.m_sets;
    m_memoNodes = other.m_memoNodes;
    m_program = nullptr;
    m_required = m_firstLiteral = nullptr;
    if (other.m_program) {
        // A copy owns its own program; the hints are rebased onto it.
        m_program = new WCHAR[other.m_programSize];
        std::memcpy(m_program, other.m_program, other.m_programSize * sizeof(WCHAR));
        if (other.m_required)
            m_required = m_program + (other.m_required - other.m_program);
        if (other.m_firstLiteral)
            m_firstLiteral = m_program + (other.m_firstLiteral - other.m_program);
    }
}

// ---- Compilation -------------------------------------------------------

VU_CRegExpression* VU_CRegExpression::RegComp(const WCHAR* pattern) {
    if (!pattern)
        return nullptr;
    m_compiled = 1;
    const uint64_t previousSize = m_programSize;

    // Sizing pass: nothing is written, the units are only counted.
    m_groupCount = 1;
    m_emitting = 0;
    m_programSize = 0;
    m_emit = m_dummy;
    m_parse = pattern;
    int flags = 0;
    if (!ParseExpression(false, flags) || m_programSize > kMaxProgramUnits) {
        m_programSize = previousSize;
        return nullptr;
    }

    // Emitting pass into a buffer of the exact size. The old program is
    // kept until the new one is complete.
    WCHAR* program = new (std::nothrow) WCHAR[m_programSize]();
    if (!program) {
        m_programSize = previousSize;
        return nullptr;
    }
    WCHAR* old = m_program;
    m_program = program;
    m_groupCount = 1;
    m_emitting = 1;
    m_emit = program;
    m_parse = pattern;
    if (!ParseExpression(false, flags) || uint64_t(m_emit - program) != m_programSize) {
        m_program = old; // cannot happen: both passes parse the same text
        delete[] program;
        m_programSize = previousSize;
        return nullptr;
    }
    delete[] old;
    m_emit = nullptr;
    m_parse = nullptr;

    ComputeHints(flags);
    BuildSetInfo();
    ComputeStartSet();
    return this;
}

// ParseExpression: a whole expression (paren false) or a group body; alternatives are
// chained OpAlternative nodes whose contents all end in the closing node.
WCHAR* VU_CRegExpression::ParseExpression(bool paren, int& flags) {
    flags = HasWidth; // until a branch proves otherwise
    int groupNumber = 0;
    WCHAR* ret = nullptr;
    if (paren) {
        if (m_groupCount >= kGroupCount)
            return nullptr;
        groupNumber = m_groupCount++;
        ret = EmitNode(WCHAR(OpGroupOpen + groupNumber));
    }

    int branchFlags = 0;
    WCHAR* branch = ParseBranch(branchFlags);
    if (!branch)
        return nullptr;
    if (ret)
        LinkTail(ret, branch);
    else
        ret = branch;
    if (!(branchFlags & HasWidth))
        flags &= ~HasWidth;
    flags |= branchFlags & StartsWithRepeat;
    WCHAR* last = branch; // the chain's last alternative, linked in O(1)
    while (*m_parse == VU_T('|')) {
        ++m_parse;
        branch = ParseBranch(branchFlags);
        if (!branch)
            return nullptr;
        LinkTail(last, branch);
        last = branch;
        if (!(branchFlags & HasWidth))
            flags &= ~HasWidth;
        flags |= branchFlags & StartsWithRepeat;
    }

    WCHAR* ender = EmitNode(paren ? WCHAR(OpGroupClose + groupNumber) : WCHAR(OpEnd));
    LinkTail(ret, ender);
    for (WCHAR* p = ret; p; p = NextNode(p))
        LinkOperandTail(p, ender);

    if (paren) {
        if (*m_parse != VU_T(')'))
            return nullptr;
        ++m_parse;
    } else if (*m_parse != 0) {
        return nullptr; // an unbalanced ')'
    }
    return ret;
}

// ParseBranch: one alternative, a sequence of pieces.
WCHAR* VU_CRegExpression::ParseBranch(int& flags) {
    flags = 0;
    WCHAR* ret = EmitNode(OpAlternative);
    WCHAR* chain = nullptr;
    while (*m_parse && *m_parse != VU_T('|') && *m_parse != VU_T(')')) {
        int pieceFlags = 0;
        WCHAR* latest = ParsePiece(pieceFlags);
        if (!latest)
            return nullptr;
        flags |= pieceFlags & HasWidth;
        if (!chain)
            flags |= pieceFlags & StartsWithRepeat;
        else
            LinkTail(chain, latest);
        chain = latest;
    }
    if (!chain)
        EmitNode(OpEmpty);
    return ret;
}

// ParsePiece: an atom with an optional *, + or ?.
WCHAR* VU_CRegExpression::ParsePiece(int& flags) {
    int atomFlags = 0;
    WCHAR* ret = ParseAtom(atomFlags);
    if (!ret)
        return nullptr;
    const WCHAR op = *m_parse;
    if (!IsRepeat(op)) {
        flags = atomFlags;
        return ret;
    }
    if (!(atomFlags & HasWidth) && op != VU_T('?'))
        return nullptr; // the repeated item could match empty
    flags = op == VU_T('*')   ? StartsWithRepeat
            : op == VU_T('+') ? (HasWidth | StartsWithRepeat)
                              : 0;

    if (op == VU_T('*') && (atomFlags & Simple)) {
        InsertNode(OpStar, ret);
    } else if (op == VU_T('*')) {
        // x* as (x<loop>|<empty>)
        InsertNode(OpAlternative, ret);
        LinkOperandTail(ret, EmitNode(OpLoopBack));
        LinkOperandTail(ret, ret);
        LinkTail(ret, EmitNode(OpAlternative));
        LinkTail(ret, EmitNode(OpEmpty));
    } else if (op == VU_T('+') && (atomFlags & Simple)) {
        InsertNode(OpPlus, ret);
    } else if (op == VU_T('+')) {
        // x+ as x(<loop>|<empty>)
        WCHAR* next = EmitNode(OpAlternative);
        LinkTail(ret, next);
        LinkTail(EmitNode(OpLoopBack), ret);
        LinkTail(next, EmitNode(OpAlternative));
        LinkTail(ret, EmitNode(OpEmpty));
    } else {
        // x? as (x|<empty>)
        InsertNode(OpAlternative, ret);
        LinkTail(ret, EmitNode(OpAlternative));
        WCHAR* next = EmitNode(OpEmpty);
        LinkTail(ret, next);
        LinkOperandTail(ret, next);
    }
    ++m_parse;
    if (IsRepeat(*m_parse))
        return nullptr; // nested repetition
    return ret;
}

// ParseAtom: the smallest unit of a pattern.
WCHAR* VU_CRegExpression::ParseAtom(int& flags) {
    flags = 0;
    WCHAR* ret = nullptr;
    switch (*m_parse++) {
    case VU_T('^'):
        ret = EmitNode(OpAtStart);
        break;
    case VU_T('$'):
        ret = EmitNode(OpAtEnd);
        break;
    case VU_T('.'):
        ret = EmitNode(OpAnyChar);
        flags |= HasWidth | Simple;
        break;
    case VU_T('['):
        ret = ParseSet();
        flags |= HasWidth | Simple;
        break;
    case VU_T('('): {
        int groupFlags = 0;
        ret = ParseExpression(true, groupFlags);
        flags |= groupFlags & (HasWidth | StartsWithRepeat);
        break;
    }
    case 0:
    case VU_T('|'):
    case VU_T(')'):
    case VU_T('?'):
    case VU_T('+'):
    case VU_T('*'):
        return nullptr; // nothing to repeat, or nothing at all
    case VU_T('\\'):
        if (*m_parse == 0)
            return nullptr;
        ret = EmitNode(OpLiteral);
        EmitUnit(*m_parse++);
        EmitUnit(0);
        flags |= HasWidth | Simple;
        break;
    default: {
        --m_parse;
        size_t length = 0;
        while (m_parse[length] && !IsMeta(m_parse[length]))
            ++length;
        // A repeat operator applies to the last character of the run only.
        if (length > 1 && IsRepeat(m_parse[length]))
            --length;
        flags |= HasWidth;
        if (length == 1)
            flags |= Simple;
        ret = EmitNode(OpLiteral);
        while (length-- > 0)
            EmitUnit(*m_parse++);
        EmitUnit(0);
        break;
    }
    }
    return ret;
}

// ParseSet: the members of [...] (m_parse is past the '['), expanded one unit
// each.
WCHAR* VU_CRegExpression::ParseSet() {
    WCHAR* ret;
    if (*m_parse == VU_T('^')) {
        ret = EmitNode(OpNotInSet);
        ++m_parse;
    } else {
        ret = EmitNode(OpInSet);
    }
    if (*m_parse == VU_T(']') || *m_parse == VU_T('-'))
        EmitUnit(*m_parse++);
    while (*m_parse && *m_parse != VU_T(']')) {
        if (*m_parse != VU_T('-')) {
            EmitUnit(*m_parse++);
            continue;
        }
        ++m_parse;
        if (*m_parse == VU_T(']') || *m_parse == 0) {
            EmitUnit(VU_T('-'));
            continue;
        }
        // The lower end, the unit before '-', is already in the list.
        const uint32_t lower = uint32_t(m_parse[-2]) + 1;
        const uint32_t upper = *m_parse;
        if (lower > upper + 1)
            return nullptr;
        if (!m_emitting)
            m_programSize += upper + 1 - lower;
        else
            for (uint32_t c = lower; c <= upper; ++c)
                EmitUnit(WCHAR(c));
        ++m_parse;
    }
    EmitUnit(0);
    if (*m_parse != VU_T(']'))
        return nullptr;
    ++m_parse;
    return ret;
}

WCHAR* VU_CRegExpression::EmitNode(WCHAR op) {
    if (!m_emitting) {
        m_programSize += kNodeUnits;
        return m_dummy;
    }
    WCHAR* p = m_emit;
    p[0] = op;
    p[1] = p[2] = 0;
    m_emit += kNodeUnits;
    return p;
}

void VU_CRegExpression::EmitUnit(WCHAR ch) {
    if (!m_emitting) {
        ++m_programSize;
        return;
    }
    *m_emit++ = ch;
}

void VU_CRegExpression::InsertNode(WCHAR op, WCHAR* operand) {
    if (!m_emitting) {
        m_programSize += kNodeUnits;
        return;
    }
    std::memmove(operand + kNodeUnits, operand, size_t(m_emit - operand) * sizeof(WCHAR));
    m_emit += kNodeUnits;
    operand[0] = op;
    operand[1] = operand[2] = 0;
}

void VU_CRegExpression::LinkTail(WCHAR* p, const WCHAR* target) {
    if (!m_emitting)
        return;
    WCHAR* scan = p;
    for (WCHAR* next; (next = NextNode(scan)) != nullptr;)
        scan = next;
    const uint32_t offset =
        OpOf(scan) == OpLoopBack ? uint32_t(scan - target) : uint32_t(target - scan);
    scan[1] = WCHAR(offset & 0xFFFF);
    scan[2] = WCHAR(offset >> 16);
}

void VU_CRegExpression::LinkOperandTail(WCHAR* p, const WCHAR* target) {
    if (!m_emitting || !p || OpOf(p) != OpAlternative)
        return;
    LinkTail(OperandOf(p), target);
}

const WCHAR* VU_CRegExpression::NextNode(const WCHAR* p) {
    const uint32_t link = ReadLink(p);
    if (link == 0)
        return nullptr;
    return OpOf(p) == OpLoopBack ? p - link : p + link;
}

WCHAR* VU_CRegExpression::NextNode(WCHAR* p) {
    return const_cast<WCHAR*>(NextNode(static_cast<const WCHAR*>(p)));
}

// ---- Compile-time analysis ---------------------------------------------

void VU_CRegExpression::ComputeHints(int flags) {
    m_firstChar = 0;
    m_anchored = 0;
    m_required = nullptr;
    m_requiredLength = 0;
    m_firstLiteral = nullptr;
    m_firstLiteralLength = 0;
    m_leadingRepeat = false;

    const WCHAR* scan = m_program; // the first top-level alternative
    const WCHAR* next = NextNode(scan);
    if (!next || OpOf(next) != OpEnd)
        return; // several top-level alternatives
    scan = OperandOf(scan);
    if (OpOf(scan) == OpLiteral) {
        m_firstChar = *OperandOf(scan);
        m_firstLiteral = OperandOf(scan);
        m_firstLiteralLength = uint32_t(OperandLength(m_firstLiteral));
    } else if (OpOf(scan) == OpAtStart) {
        m_anchored = 1;
    }
    m_leadingRepeat = OpOf(scan) == OpStar || OpOf(scan) == OpPlus;

    if (flags & StartsWithRepeat) {
        // The longest literal of the top-level chain; a later one wins a tie.
        const WCHAR* longest = nullptr;
        size_t length = 0;
        for (; scan; scan = NextNode(scan)) {
            if (OpOf(scan) != OpLiteral)
                continue;
            const size_t n = OperandLength(OperandOf(scan));
            if (n >= length) {
                longest = OperandOf(scan);
                length = n;
            }
        }
        m_required = longest;
        m_requiredLength = uint32_t(length);
    }
}

namespace {

// The runs of set bits in a 65536-bit map as inclusive ranges (unit 0, the
// terminator, is never a member).
void RangesFromBits(const std::vector<uint64_t>& bits, std::vector<WCHAR>& lo,
                    std::vector<WCHAR>& hi) {
    lo.clear();
    hi.clear();
    bool open = false;
    for (uint32_t word = 0; word < bits.size(); ++word) {
        const uint64_t w = bits[word];
        if ((w == 0 && !open) || (w == ~uint64_t(0) && open))
            continue; // nothing changes in this word
        for (uint32_t bit = 0; bit < 64; ++bit) {
            const uint32_t c = word * 64 + bit;
            const bool member = c != 0 && ((w >> bit) & 1);
            if (member && !open) {
                lo.push_back(WCHAR(c));
                open = true;
            } else if (!member && open) {
                hi.push_back(WCHAR(c - 1));
                open = false;
            }
        }
    }
    if (open)
        hi.push_back(WCHAR(0xFFFF));
}

// Sorted, merged inclusive ranges of the given units: a sort for small
// lists, a 65536-bit map for large ones.
void MakeRanges(const WCHAR* units, size_t n, std::vector<WCHAR>& lo, std::vector<WCHAR>& hi) {
    if (n > 4096) {
        std::vector<uint64_t> bits(65536 / 64, 0);
        for (size_t i = 0; i < n; ++i)
            bits[units[i] >> 6] |= uint64_t(1) << (units[i] & 63);
        RangesFromBits(bits, lo, hi);
        return;
    }
    std::vector<WCHAR> sorted(units, units + n);
    std::sort(sorted.begin(), sorted.end());
    lo.clear();
    hi.clear();
    for (WCHAR c : sorted) {
        if (c == 0)
            continue;
        if (!hi.empty() && uint32_t(c) <= uint32_t(hi.back()) + 1) {
            hi.back() = std::max(hi.back(), c);
            continue;
        }
        lo.push_back(c);
        hi.push_back(c);
    }
}

// The Latin-1 part of a set of ranges as a bitmap.
void FillLatin1(const std::vector<WCHAR>& lo, const std::vector<WCHAR>& hi, uint64_t bitmap[4]) {
    std::fill(bitmap, bitmap + 4, 0);
    for (size_t i = 0; i < lo.size() && lo[i] < 256; ++i)
        for (uint32_t c = lo[i]; c <= hi[i] && c < 256; ++c)
            bitmap[c >> 6] |= uint64_t(1) << (c & 63);
}

} // namespace

bool VU_CRegExpression::CharRanges::ContainsAbove255(WCHAR c) const {
    auto it = std::upper_bound(lo.begin(), lo.end(), c);
    if (it == lo.begin())
        return false;
    return c <= hi[size_t(it - lo.begin()) - 1];
}

// Records, for every set node, its members as ranges with a Latin-1 bitmap,
// so that a membership test does not walk the operand.
// Also lists the choice nodes (alternatives and repetitions), the places
// where the failure memo records failed positions.
void VU_CRegExpression::BuildSetInfo() {
    m_sets.clear();
    m_memoNodes.clear();
    for (uint64_t at = 0; at < m_programSize;) {
        const WCHAR op = m_program[at];
        const WCHAR* operand = m_program + at + kNodeUnits;
        if (op == OpAlternative || op == OpStar || op == OpPlus)
            m_memoNodes.push_back(uint32_t(at));
        at += kNodeUnits;
        if (op != OpInSet && op != OpNotInSet && op != OpLiteral)
            continue;
        const size_t n = OperandLength(operand);
        at += n + 1;
        if (op == OpLiteral)
            continue;
        SetInfo info;
        info.node = uint32_t(operand - kNodeUnits - m_program);
        MakeRanges(operand, n, info.members.lo, info.members.hi);
        FillLatin1(info.members.lo, info.members.hi, info.members.latin1);
        m_sets.push_back(std::move(info));
    }
}

const VU_CRegExpression::SetInfo* VU_CRegExpression::FindSetInfo(const WCHAR* node) const {
    const uint32_t offset = uint32_t(node - m_program);
    auto it = std::lower_bound(m_sets.begin(), m_sets.end(), offset,
                               [](const SetInfo& s, uint32_t o) { return s.node < o; });
    return it != m_sets.end() && it->node == offset ? &*it : nullptr;
}

bool VU_CRegExpression::InSet(const WCHAR* node, WCHAR c) const {
    const SetInfo* info = FindSetInfo(node);
    return info && info->members.Contains(c);
}

// Collects into `units` every character a match can begin with at `node`.
// Returns false when that cannot be bounded (any character, an empty match).
bool VU_CRegExpression::CollectStartChars(const WCHAR* node, std::vector<WCHAR>& units,
                                          std::vector<uint8_t>& visited, int depth) const {
    if (depth > 64)
        return false;
    auto addUnit = [&units](WCHAR c) { units.push_back(c); };
    auto addRepeated = [&](const WCHAR* item) {
        if (OpOf(item) == OpLiteral) {
            addUnit(*OperandOf(item));
            return true;
        }
        if (OpOf(item) != OpInSet)
            return false;
        for (const WCHAR* m = OperandOf(item); *m; ++m)
            addUnit(*m);
        return true;
    };
    for (;;) {
        if (!node)
            return true; // a dead end matches nothing
        uint8_t& seen = visited[size_t(node - m_program)];
        if (seen)
            return true; // already accounted for
        seen = 1;
        const WCHAR op = OpOf(node);
        switch (op) {
        case OpEnd:
        case OpAtEnd:
        case OpAnyChar:
        case OpNotInSet:
            return false;
        case OpInSet:
        case OpLiteral:
            return addRepeated(node);
        case OpStar:
            if (!addRepeated(OperandOf(node)))
                return false;
            node = NextNode(node);
            continue;
        case OpPlus:
            return addRepeated(OperandOf(node));
        case OpAlternative: {
            const WCHAR* next = NextNode(node);
            if (!next || OpOf(next) != OpAlternative) {
                node = OperandOf(node);
                continue;
            }
            for (const WCHAR* alt = node; alt && OpOf(alt) == OpAlternative; alt = NextNode(alt)) {
                if (alt != node)
                    visited[size_t(alt - m_program)] = 1;
                if (!CollectStartChars(OperandOf(alt), units, visited, depth + 1))
                    return false;
            }
            return true;
        }
        default:
            if ((op > OpGroupOpen && op < OpGroupOpen + kGroupCount) ||
                (op > OpGroupClose && op < OpGroupClose + kGroupCount) || op == OpAtStart ||
                op == OpEmpty || op == OpLoopBack) {
                node = NextNode(node);
                continue;
            }
            return true; // never matches
        }
    }
}

void VU_CRegExpression::ComputeStartSet() {
    m_hasStartSet = false;
    m_startSet = CharRanges();
    if (m_anchored || m_firstChar || m_programSize > kMaxAnalysedUnits)
        return; // those searches have better hints
    std::vector<WCHAR> units;
    std::vector<uint8_t> visited(m_programSize, 0);
    if (!CollectStartChars(m_program, units, visited, 0))
        return;
    std::vector<WCHAR> lo, hi;
    MakeRanges(units.data(), units.size(), lo, hi);
    if (lo.size() > size_t(VU_CRegExpScan::kMaxRanges))
        return;
    m_startSet.lo = std::move(lo);
    m_startSet.hi = std::move(hi);
    FillLatin1(m_startSet.lo, m_startSet.hi, m_startSet.latin1);
    m_hasStartSet = true;
}

// ---- Searching ---------------------------------------------------------

int VU_CRegExpression::RegFind(const WCHAR* string) {
    DiscardFoundText();
    m_stepLimitExceeded = false;
    if (!string || !m_compiled)
        return -1;
    const WCHAR* requiredAt = nullptr;
    if (m_required) {
        requiredAt = VU_CRegExpScan::FindLiteral(string, m_required, m_requiredLength);
        if (!requiredAt)
            return -1;
    }
    m_stringStart = string;
    m_stepsLeft = m_stepLimit ? m_stepLimit : ULLONG_MAX;
    // Armed at threshold steps from now (at once for 0); never armed when
    // the budget runs out first.
    m_memoTrigger = m_memoNodes.empty() || m_memoThreshold >= m_stepsLeft
                        ? 0
                        : std::max(m_stepsLeft - m_memoThreshold - 1, 1ull);
    m_memoOn = false;
    m_textLengthKnown = false;

    const WCHAR* at = string;
    bool matched = false;
    try {
        if (!m_program) {
            ClearGroups(); // a failed first compile: every attempt fails
        } else if (m_anchored) {
            matched = TryAt(string);
        } else if (m_firstChar) {
            // Every match starts with the leading literal: after the first
            // position only its occurrences can match.
            for (;;) {
                if (TryAt(at)) {
                    matched = true;
                    break;
                }
                if (m_stepLimitExceeded || !*at)
                    break;
                at = VU_CRegExpScan::FindLiteral(at + 1, m_firstLiteral, m_firstLiteralLength);
                if (!at)
                    break;
            }
        } else {
            // Every position up to the terminating NUL, skipping those that
            // cannot start a match; a failed attempt leaves no group set.
            ClearGroups();
            const WCHAR* repeated = m_leadingRepeat ? OperandOf(OperandOf(m_program)) : nullptr;
            for (;;) {
                if (m_hasStartSet && !m_startSet.Contains(*at)) {
                    at = VU_CRegExpScan::FindInRanges(
                        at, m_startSet.lo.data(), m_startSet.hi.data(), int(m_startSet.lo.size()));
                    if (!at)
                        break;
                }
                if (requiredAt && at > requiredAt) {
                    // A match from here must contain the literal further on.
                    requiredAt = VU_CRegExpScan::FindLiteral(at, m_required, m_requiredLength);
                    if (!requiredAt)
                        break;
                }
                if (TryAt(at)) {
                    matched = true;
                    break;
                }
                if (m_stepLimitExceeded || !*at)
                    break;
                if (repeated) {
                    // The attempt here already tried every end of the leading
                    // run, so attempts inside the run would fail the same way.
                    const size_t run = m_hasLeadingRun ? m_leadingRun : CountRepeat(repeated, at);
                    if (!at[run])
                        break;
                    at += run + 1;
                } else {
                    ++at;
                }
            }
        }
    } catch (const std::bad_alloc&) {
        matched = false;
        ClearGroups();
    }
    m_memoOn = false;
    if (m_stack.capacity() > kKeptScratchBytes / sizeof(uint32_t) ||
        m_memo.capacity() > kKeptScratchBytes / sizeof(uint64_t))
        ReleaseScratch();
    if (!matched)
        return -1;
    return FinishMatch(at);
}

void VU_CRegExpression::ReleaseScratch() {
    if (m_stack.capacity() > kKeptScratchBytes / sizeof(uint32_t))
        std::vector<uint32_t>().swap(m_stack);
    if (m_memo.capacity() > kKeptScratchBytes / sizeof(uint64_t))
        std::vector<uint64_t>().swap(m_memo);
}

size_t VU_CRegExpression::GetScratchBytes() const {
    return m_stack.capacity() * sizeof(uint32_t) + m_memo.capacity() * sizeof(uint64_t);
}

// Called when the step counter falls to the trigger, that is when the work
// (steps taken plus characters scanned) reaches the threshold: switches the
// memo on once the work also exceeds a linear allowance for the text, else
// moves the trigger to that point.
[[gnu::noinline]] void VU_CRegExpression::ConsiderFailureMemo(unsigned long long steps,
                                                              unsigned long long& trigger) {
    if (m_memoOn)
        return;
    if (!m_textLengthKnown) {
        m_textLength = VU_CRegExpScan::Length(m_stringStart);
        m_textLengthKnown = true;
        const unsigned long long positions = m_textLength + 1ull;
        const unsigned long long allowance = m_memoThreshold == 0          ? 0
                                             : positions > ULLONG_MAX / 16 ? ULLONG_MAX
                                                                           : positions * 8;
        trigger = trigger > allowance ? trigger - allowance : 0;
        if (steps > trigger)
            return; // not yet; the trigger now includes the allowance (0: never)
    }
    trigger = 0;
    const unsigned long long positions = m_textLength + 1ull;
    if (positions > kMaxMemoBits / m_memoNodes.size())
        return; // too large to record: the search goes on without the memo
    try {
        m_memo.assign(size_t((positions * m_memoNodes.size() + 63) / 64), 0);
    } catch (const std::bad_alloc&) {
        return;
    }
    m_memoOn = true;
}

// Whether the pair (node, at) has been entered before in this search, which
// (no path returns to a pair without consuming text) means it failed; marks
// it entered.
[[gnu::noinline]] bool VU_CRegExpression::TestAndSetFailed(const WCHAR* node, const WCHAR* at) {
    const uint32_t offset = uint32_t(node - m_program);
    const size_t slot = size_t(std::lower_bound(m_memoNodes.begin(), m_memoNodes.end(), offset) -
                               m_memoNodes.begin());
    const uint64_t bit = uint64_t(at - m_stringStart) * m_memoNodes.size() + slot;
    uint64_t& word = m_memo[size_t(bit >> 6)];
    const uint64_t mask = uint64_t(1) << (bit & 63);
    if (word & mask)
        return true;
    word |= mask;
    return false;
}

int VU_CRegExpression::FinishMatch(const WCHAR* position) {
    const ptrdiff_t index = position - m_stringStart;
    if (index > INT_MAX) {
        ClearGroups(); // not representable in the result
        return -1;
    }
    try {
        m_foundText.assign(m_groupStart[0], m_groupEnd[0]);
        m_foundText.push_back(0);
    } catch (const std::bad_alloc&) {
        ClearGroups();
        return -1;
    }
    m_hasFound = true;
    return int(index);
}

void VU_CRegExpression::ClearGroups() {
    std::fill(m_groupStart, m_groupStart + kGroupCount, nullptr);
    std::fill(m_groupEnd, m_groupEnd + kGroupCount, nullptr);
}

bool VU_CRegExpression::TryAt(const WCHAR* position) {
    m_input = position;
    m_hasLeadingRun = false;
    ClearGroups();
    const MatchResult result = MatchFrom(m_program);
    if (result == MatchResult::OutOfSteps) {
        m_stepLimitExceeded = true;
        ClearGroups();
        return false;
    }
    if (result != MatchResult::Match)
        return false;
    m_groupStart[0] = position;
    m_groupEnd[0] = m_input;
    return true;
}

// Whether the single-character node `simple` accepts c (never the NUL).
bool VU_CRegExpression::MatchesOne(const WCHAR* simple, WCHAR c) const {
    if (!c)
        return false;
    switch (OpOf(simple)) {
    case OpAnyChar:
        return true;
    case OpLiteral:
        return *OperandOf(simple) == c;
    case OpInSet:
        return InSet(simple, c);
    case OpNotInSet:
        return !InSet(simple, c);
    default:
        return false;
    }
}

size_t VU_CRegExpression::CountRepeat(const WCHAR* node, const WCHAR* at) const {
    switch (OpOf(node)) {
    case OpAnyChar:
        return VU_CRegExpScan::Length(at);
    case OpLiteral:
        return VU_CRegExpScan::RunOf(at, *OperandOf(node));
    case OpInSet:
    case OpNotInSet: {
        const SetInfo* info = FindSetInfo(node);
        if (!info)
            return 0;
        const bool wanted = OpOf(node) == OpInSet;
        const WCHAR* p = at;
        while (*p && info->members.Contains(*p) == wanted)
            ++p;
        return size_t(p - at);
    }
    default:
        return 0;
    }
}

// The first alternative of the chain from `alt` whose contents could start
// with `c`; alternatives whose first node rejects `c` would fail at once and
// leave nothing behind, so skipping them keeps the order of attempts.
const WCHAR* VU_CRegExpression::SkipDeadAlternatives(const WCHAR* alt, WCHAR c) const {
    for (; alt && OpOf(alt) == OpAlternative; alt = NextNode(alt)) {
        const WCHAR* first = OperandOf(alt);
        switch (OpOf(first)) {
        case OpLiteral:
            if (*OperandOf(first) == c)
                return alt;
            break;
        case OpAnyChar:
            if (c)
                return alt;
            break;
        case OpInSet:
            if (c && InSet(first, c))
                return alt;
            break;
        case OpNotInSet:
            if (c && !InSet(first, c))
                return alt;
            break;
        default:
            return alt;
        }
        if (!NextNode(alt) || OpOf(NextNode(alt)) != OpAlternative)
            return nullptr;
    }
    return nullptr;
}

// MatchFrom: depth-first search over the program from `start` at m_input.
// The recursion of the classic matcher is replaced by a stack of records in
// m_stack, 32-bit words with the header word on top. Each record holds its
// input position as the distance from the record below (the first from the
// start of the attempt), so that the records of a long loop stay one word:
//   choice of the remaining alternatives  [alt offset:26][distance:4][0]
//   group boundary passed                 [distance:25][slot:5][2]
//   choice of shorter repetitions         [count:64][distance:64][node offset:30][1]
//   choice to stop a repetition here      [node offset:26][distance:4][3]
// (the last only while the failure memo is on: repetitions then take one
// character per step and leave this record before each).
// A distance field of all ones means the distance follows in the two words
// below the header. A failure pops back to the latest choice. On success the
// group positions are read from the boundary records, the latest per group
// winning, which is what the recursive matcher records while it returns.
namespace {

enum RecordKind : uint32_t {
    kBranchRecord = 0,
    kRepeatRecord = 1,
    kGroupRecord = 2,
    kStopRecord = 3
};
constexpr uint32_t kBranchDistanceEscape = 15;
constexpr uint32_t kGroupDistanceEscape = (1u << 25) - 1;

struct Record {
    uint32_t kind;
    uint32_t payload;  // node offset or group slot
    uint64_t distance; // from the position of the record below
    size_t words;
};

inline uint64_t ReadWide(const std::vector<uint32_t>& stack, size_t at) {
    return uint64_t(stack[at]) | (uint64_t(stack[at + 1]) << 32);
}

inline void PushWide(std::vector<uint32_t>& stack, uint64_t value) {
    stack.push_back(uint32_t(value));
    stack.push_back(uint32_t(value >> 32));
}

// The record whose header is at stack[end - 1].
inline Record DecodeRecord(const std::vector<uint32_t>& stack, size_t end) {
    const uint32_t header = stack[end - 1];
    Record r{header & 3, 0, 0, 1};
    switch (r.kind) {
    case kGroupRecord:
        r.payload = (header >> 2) & 31;
        r.distance = header >> 7;
        if (r.distance == kGroupDistanceEscape) {
            r.distance = ReadWide(stack, end - 3);
            r.words = 3;
        }
        break;
    case kBranchRecord:
    case kStopRecord:
        r.payload = (header >> 2) & ((1u << 26) - 1);
        r.distance = header >> 28;
        if (r.distance == kBranchDistanceEscape) {
            r.distance = ReadWide(stack, end - 3);
            r.words = 3;
        }
        break;
    default:
        r.payload = header >> 2;
        r.distance = ReadWide(stack, end - 3);
        r.words = 5;
        break;
    }
    return r;
}

// A choice record (branch or stop) for the node at `offset`, input at pos.
inline void PushChoice(std::vector<uint32_t>& stack, uint64_t& top, RecordKind kind,
                       uint32_t offset, uint64_t pos) {
    const uint64_t distance = pos - top;
    top = pos;
    uint32_t field = uint32_t(distance);
    if (distance >= kBranchDistanceEscape) {
        PushWide(stack, distance);
        field = kBranchDistanceEscape;
    }
    stack.push_back(kind | offset << 2 | field << 28);
}

} // namespace

// A repetition while the failure memo is on: one character per step, with
// before each the choice to stop there, which the greedy order tries after
// the longer runs. Match means: go on to the next node at `in`. Kept out of
// MatchFrom so that the plain path stays small.
[[gnu::noinline]] VU_CRegExpression::MatchResult
VU_CRegExpression::RepeatOneByOne(const WCHAR* node, WCHAR lookAhead, const WCHAR*& in,
                                  uint64_t& top, unsigned long long& steps) {
    const WCHAR* simple = OperandOf(node);
    if (OpOf(node) == OpPlus) {
        if (!MatchesOne(simple, *in))
            return MatchResult::Fail;
        ++in;
    }
    for (;;) {
        if (TestAndSetFailed(node, in))
            return MatchResult::Fail;
        const bool canStop = !lookAhead || *in == lookAhead;
        if (!MatchesOne(simple, *in))
            return canStop ? MatchResult::Match : MatchResult::Fail;
        if (canStop)
            PushChoice(m_stack, top, kStopRecord, uint32_t(node - m_program),
                       uint64_t(in - m_stringStart));
        ++in;
        if (--steps == 0)
            return MatchResult::OutOfSteps;
    }
}

VU_CRegExpression::MatchResult VU_CRegExpression::MatchFrom(const WCHAR* start) {
    const WCHAR* const base = m_stringStart;
    const WCHAR* const program = m_program;
    std::vector<uint32_t>& stack = m_stack;
    stack.clear();
    unsigned long long steps = m_stepsLeft;
    unsigned long long trigger = m_memoTrigger;
    const WCHAR* in = m_input;
    const WCHAR* node = start;
    uint64_t top = uint64_t(in - base); // position of the top record

    auto offsetOf = [program](const WCHAR* p) { return uint32_t(p - program); };
    auto leave = [&](MatchResult result) {
        m_stepsLeft = result == MatchResult::OutOfSteps ? 0 : steps;
        m_memoTrigger = trigger;
        return result;
    };
    auto pushBranch = [&](const WCHAR* alt, uint64_t pos) {
        PushChoice(stack, top, kBranchRecord, offsetOf(alt), pos);
    };
    auto pushGroup = [&](uint32_t slot, uint64_t pos) {
        const uint64_t distance = pos - top;
        top = pos;
        uint32_t field = uint32_t(distance);
        if (distance >= kGroupDistanceEscape) {
            PushWide(stack, distance);
            field = kGroupDistanceEscape;
        }
        stack.push_back(kGroupRecord | slot << 2 | field << 7);
    };
    auto pushRepeat = [&](const WCHAR* repeat, uint64_t pos, uint64_t count) {
        PushWide(stack, count);
        PushWide(stack, pos - top);
        top = pos;
        stack.push_back(kRepeatRecord | offsetOf(repeat) << 2);
    };

    for (;;) {
        // ---- advance along the program until success or failure
        bool failed = false;
        while (!failed) {
            if (--steps <= trigger) {
                if (steps == 0)
                    return leave(MatchResult::OutOfSteps);
                ConsiderFailureMemo(steps, trigger);
            }
            if (!node) {
                failed = true;
                break;
            }
            const WCHAR* next = NextNode(node);
            const WCHAR op = OpOf(node);
            switch (op) {
            case OpAtStart:
                failed = in != base;
                break;
            case OpAtEnd:
                failed = *in != 0;
                break;
            case OpAnyChar:
                if (*in)
                    ++in;
                else
                    failed = true;
                break;
            case OpInSet:
                if (*in && InSet(node, *in))
                    ++in;
                else
                    failed = true;
                break;
            case OpNotInSet:
                if (*in && !InSet(node, *in))
                    ++in;
                else
                    failed = true;
                break;
            case OpLiteral: {
                const WCHAR* lit = OperandOf(node);
                if (*lit != *in) {
                    failed = true;
                    break;
                }
                ++lit;
                ++in;
                while (*lit && *lit == *in) {
                    ++lit;
                    ++in;
                }
                failed = *lit != 0;
                break;
            }
            case OpEmpty:
            case OpLoopBack:
                break;
            case OpAlternative: {
                if (m_memoOn && TestAndSetFailed(node, in)) {
                    failed = true;
                    break;
                }
                if (!next || OpOf(next) != OpAlternative) {
                    next = OperandOf(node); // a single choice
                    break;
                }
                const WCHAR* first = SkipDeadAlternatives(node, *in);
                if (!first) {
                    failed = true;
                    break;
                }
                const WCHAR* rest = NextNode(first);
                rest =
                    rest && OpOf(rest) == OpAlternative ? SkipDeadAlternatives(rest, *in) : nullptr;
                if (rest)
                    pushBranch(rest, uint64_t(in - base));
                next = OperandOf(first);
                break;
            }
            case OpStar:
            case OpPlus: {
                const size_t minimum = op == OpStar ? 0 : 1;
                const WCHAR lookAhead = next && OpOf(next) == OpLiteral ? *OperandOf(next) : 0;
                if (m_memoOn) {
                    const MatchResult r = RepeatOneByOne(node, lookAhead, in, top, steps);
                    if (r == MatchResult::OutOfSteps)
                        return leave(r);
                    failed = r == MatchResult::Fail;
                    break;
                }
                const size_t count = CountRepeat(OperandOf(node), in);
                if (trigger) // the characters scanned count as work
                    trigger += std::min<unsigned long long>(count, ULLONG_MAX - trigger);
                if (m_stepLimit) {
                    const unsigned long long cost = count >> 4;
                    if (cost >= steps)
                        return leave(MatchResult::OutOfSteps);
                    steps -= cost;
                }
                if (node == OperandOf(program) && in == m_input) {
                    // The leading repetition: the search skips its run.
                    m_leadingRun = count;
                    m_hasLeadingRun = true;
                }
                if (count < minimum) {
                    failed = true;
                    break;
                }
                // The longest repetition the next literal can follow.
                size_t k = count;
                if (lookAhead) {
                    while (in[k] != lookAhead && k > minimum)
                        --k;
                    if (in[k] != lookAhead) {
                        failed = true;
                        break;
                    }
                }
                if (k > minimum)
                    pushRepeat(node, uint64_t(in - base), k);
                in += k;
                break;
            }
            case OpEnd: {
                // Success: the latest boundary record of each group wins.
                bool seen[2 * kGroupCount] = {};
                uint64_t pos = top;
                for (size_t end = stack.size(); end > 0;) {
                    const Record r = DecodeRecord(stack, end);
                    if (r.kind == kGroupRecord && !seen[r.payload]) {
                        seen[r.payload] = true;
                        if (r.payload < kGroupCount)
                            m_groupStart[r.payload] = base + pos;
                        else
                            m_groupEnd[r.payload - kGroupCount] = base + pos;
                    }
                    pos -= r.distance;
                    end -= r.words;
                }
                m_input = in;
                return leave(MatchResult::Match);
            }
            default:
                if (op > OpGroupOpen && op < OpGroupOpen + kGroupCount)
                    pushGroup(uint32_t(op - OpGroupOpen), uint64_t(in - base));
                else if (op > OpGroupClose && op < OpGroupClose + kGroupCount)
                    pushGroup(uint32_t(kGroupCount + op - OpGroupClose), uint64_t(in - base));
                else
                    failed = true; // not an opcode
                break;
            }
            if (!failed)
                node = next;
        }

        // ---- backtrack to the latest choice
        bool resumed = false;
        while (!resumed) {
            if (stack.empty())
                return leave(MatchResult::Fail);
            if (--steps == 0)
                return leave(MatchResult::OutOfSteps);
            const Record r = DecodeRecord(stack, stack.size());
            const uint64_t pos = top;
            if (r.kind == kGroupRecord) {
                stack.resize(stack.size() - r.words);
                top = pos - r.distance;
                continue;
            }
            if (r.kind == kBranchRecord) {
                stack.resize(stack.size() - r.words);
                top = pos - r.distance;
                const WCHAR* alt = program + r.payload;
                in = base + pos;
                const WCHAR* rest = NextNode(alt);
                rest =
                    rest && OpOf(rest) == OpAlternative ? SkipDeadAlternatives(rest, *in) : nullptr;
                if (rest)
                    pushBranch(rest, pos);
                node = OperandOf(alt);
                resumed = true;
                continue;
            }
            if (r.kind == kStopRecord) {
                stack.resize(stack.size() - r.words);
                top = pos - r.distance;
                in = base + pos;
                node = NextNode(program + r.payload);
                resumed = true;
                continue;
            }
            // A repetition: the next shorter count the following literal can
            // follow, if any.
            const WCHAR* repeat = program + r.payload;
            const WCHAR* next = NextNode(repeat);
            const size_t minimum = OpOf(repeat) == OpStar ? 0 : 1;
            const WCHAR lookAhead = next && OpOf(next) == OpLiteral ? *OperandOf(next) : 0;
            const WCHAR* from = base + pos;
            const size_t countAt = stack.size() - r.words;
            size_t k = size_t(ReadWide(stack, countAt));
            bool found = false;
            while (k > minimum) {
                --k;
                if (!lookAhead || from[k] == lookAhead) {
                    found = true;
                    break;
                }
            }
            if (found && k > minimum) {
                stack[countAt] = uint32_t(k);
                stack[countAt + 1] = uint32_t(uint64_t(k) >> 32);
            } else {
                stack.resize(countAt);
                top = pos - r.distance;
            }
            if (found) {
                in = from + k;
                node = next;
                resumed = true;
            }
        }
    }
}

// ---- Results -----------------------------------------------------------

int VU_CRegExpression::GetFindLen() const {
    if (!m_groupStart[0] || !m_groupEnd[0])
        return 0;
    const ptrdiff_t length = m_groupEnd[0] - m_groupStart[0];
    return length > INT_MAX ? INT_MAX : int(length);
}

int VU_CRegExpression::GetGroupStart(int n) const {
    if (n < 0 || n >= kGroupCount || !m_groupStart[n])
        return -1;
    return int(m_groupStart[n] - m_stringStart);
}

int VU_CRegExpression::GetGroupEnd(int n) const {
    if (n < 0 || n >= kGroupCount || !m_groupEnd[n])
        return -1;
    return int(m_groupEnd[n] - m_stringStart);
}

WCHAR* VU_CRegExpression::GetReplaceString(const WCHAR* replacement) const {
    if (!replacement || !m_hasFound)
        return nullptr;
    const size_t foundLength = m_foundText.size() - 1;
    // Two passes with the same rules: count, then copy.
    auto expand = [&](WCHAR* out) {
        size_t n = 0;
        for (const WCHAR* src = replacement; *src;) {
            WCHAR c = *src++;
            int group = -1;
            if (c == VU_T('&'))
                group = 0;
            else if (c == VU_T('\\') && *src >= VU_T('0') && *src <= VU_T('9'))
                group = *src++ - VU_T('0');
            if (group < 0) {
                if (c == VU_T('\\') && (*src == VU_T('\\') || *src == VU_T('&')))
                    c = *src++;
                if (out)
                    out[n] = c;
                ++n;
                continue;
            }
            const WCHAR* from = m_groupStart[group];
            const WCHAR* to = m_groupEnd[group];
            if (!from || !to || to <= from || from < m_groupStart[0])
                continue;
            const size_t offset = size_t(from - m_groupStart[0]);
            const size_t length =
                std::min(size_t(to - from), foundLength - std::min(offset, foundLength));
            if (out)
                std::copy(m_foundText.data() + offset, m_foundText.data() + offset + length,
                          out + n);
            n += length;
        }
        return n;
    };
    const size_t length = expand(nullptr);
    WCHAR* result = new (std::nothrow) WCHAR[length + 1];
    if (!result)
        return nullptr;
    expand(result);
    result[length] = 0;
    return result;
}
