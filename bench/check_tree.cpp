// The check rules at scale. One parent holds n nodes below it (100 groups of
// n/100 leaves), beside 50 top-level leaves, one of which has the parent's
// text, so that a toggle makes every pass of a user's click: the subtree
// check, the walk up and the same-text pass over the top level. The peer is
// a plain recursive pre-order walk over the same nodes that sets or reads a
// flag through a static cast (what any walk of the tree must cost); the
// queries are timed at several sizes so that their growth can be read off.
#include "support/Heap.h"
#include "tree/CheckRules.h"

#include <benchmark/benchmark.h>

#include "framework/Char.h"

using namespace vu::checks;

namespace {

struct CheckForest {
    CTreeNodeArray roots;
    CTreeNode* big = nullptr;      // the parent of the n nodes
    CTreeNode* lastLeaf = nullptr; // its last leaf, deepest in pre-order

    explicit CheckForest(int n) {
        int handle = 0;
        const auto make = [&](const vu::String& text, CTreeNode* parent) {
            auto* node =
                new CCheckboxTreeNode(CString(text.c_str()), -1, -1, ++handle, handle, parent);
            if (parent != nullptr) {
                node->SetLevel(parent->GetLevel() + 1);
                parent->Add(node);
                parent->Expand(1);
            } else {
                roots.Add(node);
            }
            return node;
        };
        big = make(VU_T("Program"), nullptr);
        for (int g = 0; g < 100; ++g) {
            CTreeNode* group = make(VU_T("Routine"), big);
            for (int l = 0; l < n / 100 - 1; ++l)
                lastLeaf = make(VU_T("Tag_") + vu::String(1, VU_T('0') + l % 10), group);
        }
        for (int i = 0; i < 50; ++i)
            make(i == 25 ? VU_T("Program") : VU_T("Single"), nullptr);
    }
    ~CheckForest() {
        for (CTreeNode* root : roots)
            delete root;
    }
};

void PlainSet(CTreeNode* node, bool state) {
    static_cast<CCheckboxTreeNode*>(node)->SetCheck(state);
    for (int i = 0; i < node->GetNumberOfChildren(); ++i)
        PlainSet(node->GetChild(i), state);
}

void PlainCollectLeaves(CTreeNode* node, CArray<CString, CString>& names) {
    if (node->GetNumberOfChildren() == 0 && static_cast<CCheckboxTreeNode*>(node)->IsChecked())
        names.Add(node->GetDisplayText());
    for (int i = 0; i < node->GetNumberOfChildren(); ++i)
        PlainCollectLeaves(node->GetChild(i), names);
}

bool PlainAnyChecked(CTreeNode* node) {
    if (static_cast<CCheckboxTreeNode*>(node)->IsChecked())
        return true;
    for (int i = 0; i < node->GetNumberOfChildren(); ++i)
        if (PlainAnyChecked(node->GetChild(i)))
            return true;
    return false;
}

constexpr int kGoalNodes = 10000;

// ---- Toggles (10k nodes below the toggled parent) ---------------------------

void BM_ToggleParentOf10k(benchmark::State& state) {
    CheckForest f(kGoalNodes);
    for (auto _ : state)
        ToggleNode(f.roots, f.big);
    state.SetItemsProcessed(state.iterations() * kGoalNodes);
}
BENCHMARK(BM_ToggleParentOf10k)->Unit(benchmark::kMicrosecond);

// Checking the last unchecked leaf makes the walk up read every sibling
// subtree; unchecking it stops at once. One iteration does both.
void BM_ToggleLastLeafTwiceUnderFullParent(benchmark::State& state) {
    CheckForest f(kGoalNodes);
    SetAllChecks(f.roots, true);
    for (auto _ : state) {
        ToggleNode(f.roots, f.lastLeaf);
        ToggleNode(f.roots, f.lastLeaf);
    }
    state.SetItemsProcessed(state.iterations() * kGoalNodes);
}
BENCHMARK(BM_ToggleLastLeafTwiceUnderFullParent)->Unit(benchmark::kMicrosecond);

void BM_Peer_PlainWalkSetting10k(benchmark::State& state) {
    CheckForest f(kGoalNodes);
    bool on = false;
    for (auto _ : state)
        PlainSet(f.big, on = !on);
    state.SetItemsProcessed(state.iterations() * kGoalNodes);
}
BENCHMARK(BM_Peer_PlainWalkSetting10k)->Unit(benchmark::kMicrosecond);

// ---- Queries at growing sizes -----------------------------------------------

void BM_IsAnyLeafChecked_NoneChecked(benchmark::State& state) {
    CheckForest f(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(IsAnyLeafChecked(f.roots));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_IsAnyLeafChecked_NoneChecked)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMicrosecond);

void BM_Peer_PlainWalkLookingForACheck(benchmark::State& state) {
    CheckForest f(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        bool any = false;
        for (CTreeNode* root : f.roots)
            any = any || PlainAnyChecked(root);
        benchmark::DoNotOptimize(any);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_Peer_PlainWalkLookingForACheck)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMicrosecond);

void BM_GetCheckedLeafItemNames_AllChecked(benchmark::State& state) {
    CheckForest f(static_cast<int>(state.range(0)));
    SetAllChecks(f.roots, true);
    for (auto _ : state) {
        CArray<CString, CString> names;
        GetCheckedLeafItemNames(f.roots, &names);
        benchmark::DoNotOptimize(names.GetSize());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_GetCheckedLeafItemNames_AllChecked)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMicrosecond);

void BM_Peer_PlainWalkCollectingLeaves(benchmark::State& state) {
    CheckForest f(static_cast<int>(state.range(0)));
    SetAllChecks(f.roots, true);
    for (auto _ : state) {
        CArray<CString, CString> names;
        for (CTreeNode* root : f.roots)
            PlainCollectLeaves(root, names);
        benchmark::DoNotOptimize(names.GetSize());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_Peer_PlainWalkCollectingLeaves)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    vu::bench::KeepFreedMemory();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
