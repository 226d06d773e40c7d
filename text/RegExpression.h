#pragma once

// VU_CRegExpression: a small regular-expression engine over NUL-terminated
// UTF-16 text (one character = one 16-bit unit, compared exactly).
//
// Dialect: ^ $ . [set] [^set] (group) a|b x* x+ x? \c. `^` and `$` match only
// at the start and the end of the searched string; up to nine groups; no
// escape classes, counted repeats, lazy forms or back-references.
//
// RegComp compiles a pattern in two passes (size, then emit) into a node
// program (see the opcode list below; the format is stable and may be read by
// tests). RegFind runs a backtracking matcher that tries positions left to
// right and, at each, paths in a fixed order (greedy repeats, first
// alternative first); the first successful path is the match. The matcher
// keeps its choice points on an explicit heap stack, so long subjects cannot
// overflow the machine stack; an optional step budget bounds its running time.
//
// The dialect has no back-references and refuses repeats of items that can
// match empty, so whether the rest of the program matches from a node at a
// text position depends on that pair alone, and no path returns to a pair
// without consuming text. A pair that failed once therefore fails again, from
// any later start. Once a search has done clearly more work than a linear
// scan would (see SetFailureMemoThreshold), the matcher records the failed
// pairs of its choice nodes in a bitmap and prunes them, and repetitions walk
// one character per step; from then on the search costs at most in
// proportion to text length x program length, and its result is the one the
// plain order of attempts gives. Scratch memory above a modest size is
// released at the end of every search.
//
// Copying duplicates the program and the found text (each object owns its
// own); the group positions of a copy point into the same searched string.

#include "framework/Char.h"
#include <cstddef>
#include <cstdint>
#include <vector>

class VU_CRegExpression {
public:
    // Node opcodes. A node is: opcode (1 unit), 32-bit next link (2 units,
    // low half first), then, for OpInSet/OpNotInSet/OpLiteral, a
    // NUL-terminated operand. The link of OpLoopBack points backwards.
    enum Opcode : WCHAR {
        OpEnd = 0,         // success
        OpAtStart = 1,     // empty, at the start of the searched string
        OpAtEnd = 2,       // empty, at the terminating NUL
        OpAnyChar = 3,     // any one character
        OpInSet = 4,       // one character from the operand list
        OpNotInSet = 5,    // one character not in the operand list
        OpAlternative = 6, // one choice; its contents start at unit 3
        OpLoopBack = 7,    // empty; link points backwards
        OpLiteral = 8,     // the operand string
        OpEmpty = 9,       // empty
        OpStar = 10,       // zero or more of the simple node at unit 3
        OpPlus = 11,       // one or more of the simple node at unit 3
        OpGroupOpen = 20,  // + n: start of group n (1..9)
        OpGroupClose = 30, // + n: end of group n (1..9)
    };

    // Flags passed between the parsing steps.
    enum ParseFlag : int {
        HasWidth = 1,         // cannot match the empty string
        Simple = 2,           // single-character matcher, usable under OpStar/OpPlus
        StartsWithRepeat = 4, // begins with a repetition
    };

    static constexpr int kGroupCount = 10;    // group 0 (whole match) and 1..9
    static constexpr unsigned kNodeUnits = 3; // opcode + two link units

    // Construction
    VU_CRegExpression();
    ~VU_CRegExpression();
    VU_CRegExpression(const VU_CRegExpression& other);
    VU_CRegExpression& operator=(const VU_CRegExpression& other);
    VU_CRegExpression(VU_CRegExpression&& other) noexcept;
    VU_CRegExpression& operator=(VU_CRegExpression&& other) noexcept;

    // Operations

    // Compiles `pattern`; returns this, or null on a syntax error or a null
    // pattern. After a failed compile the previous program stays in use.
    VU_CRegExpression* RegComp(const WCHAR* pattern);
    // Index of the first match in `string`, or -1 (also when the search ran
    // out of steps or memory, or the index would not fit in an int).
    int RegFind(const WCHAR* string);
    // Length of the last whole match, 0 when there is none.
    int GetFindLen() const;
    // The replacement template expanded with the last match (& and \0..\9
    // insert groups, \\ and \& give \ and &); a new array the caller frees
    // with delete[], or null after a failed search or for a null template.
    WCHAR* GetReplaceString(const WCHAR* replacement) const;

    // Step budget: 0 (the default) means unlimited. When a search runs out of
    // steps RegFind returns -1 and IsStepLimitExceeded() is true until the
    // next search. A step is one node visited or one backtrack; scanning a
    // repetition costs one step per 16 characters (per character while the
    // failure memo is on).
    void SetStepLimit(unsigned long long limit) { m_stepLimit = limit; }
    unsigned long long GetStepLimit() const { return m_stepLimit; }
    bool IsStepLimitExceeded() const { return m_stepLimitExceeded; }

    // Failure memo: it is switched on when a search's work (nodes visited,
    // backtracks and characters scanned by repetitions) passes this threshold
    // plus eight per character of the text, so ordinary searches never
    // allocate it. 0 switches it on at the first node (tests use that to check
    // that the memo changes no result). A text x program bitmap above
    // kMaxMemoBits is not allocated; such a search runs without the memo.
    static constexpr unsigned long long kDefaultMemoThreshold = 1ull << 16;
    static constexpr unsigned long long kMaxMemoBits = 1ull << 30; // 128 MB
    void SetFailureMemoThreshold(unsigned long long work) { m_memoThreshold = work; }
    unsigned long long GetFailureMemoThreshold() const { return m_memoThreshold; }
    // Bytes of matcher scratch (backtracking stack, failure memo) kept
    // between searches.
    size_t GetScratchBytes() const;

    // Attributes (mainly for tests and diagnostics)
    bool IsCompiled() const { return m_compiled != 0; }
    const WCHAR* GetProgram() const { return m_program; }
    unsigned GetProgramSize() const { return m_program ? m_programSize : 0; }
    WCHAR GetFirstChar() const { return m_firstChar; }
    bool IsAnchored() const { return m_anchored != 0; }
    const WCHAR* GetRequiredLiteral() const { return m_required; }
    unsigned GetRequiredLength() const { return m_requiredLength; }
    // Group n (0..9) of the last search as character offsets from the start
    // of the string last searched, or -1 when not set.
    int GetGroupStart(int n) const;
    int GetGroupEnd(int n) const;
    // The text of the last match, or null after a failed search.
    const WCHAR* GetFoundText() const { return m_hasFound ? m_foundText.data() : nullptr; }

    // Reads the 32-bit link of the node at `node`.
    static uint32_t ReadLink(const WCHAR* node) {
        return uint32_t(node[1]) | (uint32_t(node[2]) << 16);
    }

private:
    // A character class as sorted, merged ranges, with a Latin-1 bitmap.
    struct CharRanges {
        std::vector<WCHAR> lo, hi; // inclusive
        uint64_t latin1[4] = {0, 0, 0, 0};
        bool Contains(WCHAR c) const {
            return c < 256 ? ((latin1[c >> 6] >> (c & 63)) & 1) != 0 : ContainsAbove255(c);
        }
        bool ContainsAbove255(WCHAR c) const;
    };
    // Membership data for one OpInSet/OpNotInSet node.
    struct SetInfo {
        uint32_t node; // offset of the node in the program
        CharRanges members;
    };
    enum class MatchResult { Fail, Match, OutOfSteps };

    // Parser, one step per grammar level
    WCHAR* ParseExpression(bool paren, int& flags);
    WCHAR* ParseBranch(int& flags);
    WCHAR* ParsePiece(int& flags);
    WCHAR* ParseAtom(int& flags);
    WCHAR* ParseSet();
    // Emitters
    WCHAR* EmitNode(WCHAR op);
    void EmitUnit(WCHAR ch);
    void InsertNode(WCHAR op, WCHAR* operand);
    void LinkTail(WCHAR* p, const WCHAR* target);
    void LinkOperandTail(WCHAR* p, const WCHAR* target);
    // Node access
    static const WCHAR* NextNode(const WCHAR* p);
    static WCHAR* NextNode(WCHAR* p);
    static WCHAR OpOf(const WCHAR* p) { return *p; }
    static const WCHAR* OperandOf(const WCHAR* p) { return p + kNodeUnits; }
    static WCHAR* OperandOf(WCHAR* p) { return p + kNodeUnits; }
    // Matcher
    bool TryAt(const WCHAR* position);
    MatchResult MatchFrom(const WCHAR* node);
    size_t CountRepeat(const WCHAR* node, const WCHAR* at) const;
    bool InSet(const WCHAR* node, WCHAR c) const;
    const SetInfo* FindSetInfo(const WCHAR* node) const;
    const WCHAR* SkipDeadAlternatives(const WCHAR* alt, WCHAR c) const;
    bool MatchesOne(const WCHAR* simple, WCHAR c) const;
    MatchResult RepeatOneByOne(const WCHAR* node, WCHAR lookAhead, const WCHAR*& in, uint64_t& top,
                               unsigned long long& steps);
    // Failure memo
    void ConsiderFailureMemo(unsigned long long steps, unsigned long long& trigger);
    bool TestAndSetFailed(const WCHAR* node, const WCHAR* at);
    void ReleaseScratch();

    // Compile-time analysis
    void ComputeHints(int flags);
    void BuildSetInfo();
    void ComputeStartSet();
    bool CollectStartChars(const WCHAR* node, std::vector<WCHAR>& units,
                           std::vector<uint8_t>& visiting, int depth) const;

    // Search helpers
    int FinishMatch(const WCHAR* position);
    void ClearGroups();
    void DiscardFoundText() { m_hasFound = false; }
    void CopyFields(const VU_CRegExpression& other);
    void CopyFrom(const VU_CRegExpression& other);
    void Release();

    // State, in the order of the classic layout, then our additions
    uint32_t m_emitting = 0;                     // 0 sizing pass, 1 emitting pass
    uint32_t m_compiled = 0;                     // set by RegComp
    std::vector<WCHAR> m_foundText;              // copy of the last match + NUL
    bool m_hasFound = false;                     // m_foundText is valid
    const WCHAR* m_groupStart[kGroupCount] = {}; // group starts in the searched string
    const WCHAR* m_groupEnd[kGroupCount] = {};   // group ends (one past)
    WCHAR m_firstChar = 0;                       // every match begins with it, or 0
    uint16_t m_anchored = 0;                     // matches only at the string start
    const WCHAR* m_required = nullptr;           // literal every match contains
    uint32_t m_requiredLength = 0;               // its length
    WCHAR* m_program = nullptr;                  // the node program (owned)
    const WCHAR* m_parse = nullptr;              // pattern position while compiling
    int m_groupCount = 1;                        // next group number while compiling
    WCHAR* m_emit = nullptr;                     // next unit to write
    WCHAR m_dummy[kNodeUnits] = {OpEmpty, 0, 0}; // target of sizing-pass writes
    uint64_t m_programSize = 0;                  // units counted by the sizing pass
    const WCHAR* m_input = nullptr;              // matcher position
    const WCHAR* m_stringStart = nullptr;        // where ^ matches

    // Search acceleration, derived from the program at compile time
    const WCHAR* m_firstLiteral = nullptr; // operand of the leading literal
    uint32_t m_firstLiteralLength = 0;
    bool m_leadingRepeat = false; // program starts with OpStar/OpPlus
    size_t m_leadingRun = 0;      // its count in the last attempt
    bool m_hasLeadingRun = false; // m_leadingRun is valid
    bool m_hasStartSet = false;   // every match starts with a char in m_startSet
    CharRanges m_startSet;
    std::vector<SetInfo> m_sets; // sorted by node offset

    // Matching budget and scratch
    unsigned long long m_stepLimit = 0; // 0 = unlimited
    unsigned long long m_stepsLeft = 0; // remaining in the current search
    bool m_stepLimitExceeded = false;   // the last search ran out of steps
    std::vector<uint32_t> m_stack;      // backtracking records (reused)

    // Failure memo: one bit per (choice node, text position) pair
    unsigned long long m_memoThreshold = kDefaultMemoThreshold;
    std::vector<uint32_t> m_memoNodes; // offsets of the choice nodes, ascending
    std::vector<uint64_t> m_memo;      // bit pos * m_memoNodes.size() + slot
    bool m_memoOn = false;             // set during a search that needs it
    bool m_textLengthKnown = false;    // m_textLength is valid for this search
    size_t m_textLength = 0;           // units of the searched string
    // The memo is considered when the step counter falls to m_memoTrigger
    // (0: not armed). Characters scanned by repetitions raise the trigger, so
    // that they count as work without a second counter on every node.
    unsigned long long m_memoTrigger = 0;
};
