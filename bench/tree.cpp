// The tree model at scale: 100 roots of 10 children of 100 leaves each
// (101,100 nodes). Searches and counts against a plain scan of the same
// nodes kept in a std::vector in pre-order (the floor of any walk that
// touches every node), and the XML dump of the visible rows against pugixml
// building and saving the same document. The dump is also timed at several
// sizes so that its growth can be read off (it should be linear in the rows).
//
// As in the other benchmarks, freed memory stays in the heap between
// iterations (first touches of fresh pages are slow in a sandbox and would
// swamp the dump); VU_BENCH_COLD_MEMORY=1 leaves the allocator alone.
#include "support/Heap.h"
#include "tree/TreeNode.h"

#include <benchmark/benchmark.h>
#include <pugixml.hpp>

#include <cstdlib>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

constexpr int kRoots = 100;
constexpr int kChildren = 10;
constexpr int kLeaves = 100;

struct Forest {
    CTreeNodeArray roots;
    std::vector<CTreeNode*> preOrder;
    int lastHandle = 0;

    explicit Forest(int roots_ = kRoots, int children = kChildren, int leaves = kLeaves) {
        int handle = 0;
        const auto make = [&](const vu::String& text, CTreeNode* parent) {
            ++handle;
            auto* node = new CTreeNode(CString(text.c_str()), 6, 6,
                                       static_cast<unsigned long>(handle) * 7, handle, parent);
            if (parent != nullptr) {
                node->SetLevel(parent->GetLevel() + 1);
                parent->Add(node);
            } else {
                this->roots.Add(node);
            }
            preOrder.push_back(node);
            return node;
        };
        for (int r = 0; r < roots_; ++r) {
            CTreeNode* root = make(VU_T("Program_") + vu::String(1, VU_T('A') + r % 26), nullptr);
            for (int c = 0; c < children; ++c) {
                CTreeNode* child = make(VU_T("Routine_") + vu::String(1, VU_T('a') + c % 26), root);
                for (int l = 0; l < leaves; ++l)
                    make(VU_T("Tag_") + vu::String(1, VU_T('0') + l % 10) +
                             VU_T("\tDINT\tcounter & <limit>"),
                         child);
            }
        }
        lastHandle = handle;
    }
    ~Forest() {
        for (CTreeNode* root : roots)
            delete root;
    }
    void ExpandAll() {
        for (CTreeNode* n : preOrder)
            n->Expand(1);
    }
};

Forest& SharedForest() {
    static Forest forest;
    return forest;
}

// ---- Searches and counts -------------------------------------------------------

void BM_FindNode_LastHandle(benchmark::State& state) {
    Forest& f = SharedForest();
    for (auto _ : state) {
        CTreeNode* found = nullptr;
        for (CTreeNode* root : f.roots)
            if ((found = root->FindNode(f.lastHandle)) != nullptr)
                break;
        benchmark::DoNotOptimize(found);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(f.preOrder.size()));
}
BENCHMARK(BM_FindNode_LastHandle)->Unit(benchmark::kMicrosecond);

void BM_FindNodeFromItemData_Last(benchmark::State& state) {
    Forest& f = SharedForest();
    const unsigned long data = static_cast<unsigned long>(f.lastHandle) * 7;
    for (auto _ : state) {
        CTreeNode* found = nullptr;
        for (CTreeNode* root : f.roots)
            if ((found = root->FindNodeFromItemData(data)) != nullptr)
                break;
        benchmark::DoNotOptimize(found);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(f.preOrder.size()));
}
BENCHMARK(BM_FindNodeFromItemData_Last)->Unit(benchmark::kMicrosecond);

void BM_Peer_VectorScanForHandle(benchmark::State& state) {
    Forest& f = SharedForest();
    for (auto _ : state) {
        CTreeNode* found = nullptr;
        for (CTreeNode* n : f.preOrder)
            if (n->GetTreeNodeItemHandle() == f.lastHandle) {
                found = n;
                break;
            }
        benchmark::DoNotOptimize(found);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(f.preOrder.size()));
}
BENCHMARK(BM_Peer_VectorScanForHandle)->Unit(benchmark::kMicrosecond);

void BM_GetNumberOfNodes(benchmark::State& state) {
    Forest& f = SharedForest();
    for (auto _ : state) {
        int count = 0;
        for (CTreeNode* root : f.roots)
            count += root->GetNumberOfNodes();
        benchmark::DoNotOptimize(count);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(f.preOrder.size()));
}
BENCHMARK(BM_GetNumberOfNodes)->Unit(benchmark::kMicrosecond);

void BM_ComputeNumberOfExpandedNodesShowing(benchmark::State& state) {
    Forest& f = SharedForest();
    f.ExpandAll();
    for (auto _ : state) {
        int count = 0;
        for (CTreeNode* root : f.roots)
            count += 1 + root->ComputeNumberOfExpandedNodesShowing();
        benchmark::DoNotOptimize(count);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(f.preOrder.size()));
}
BENCHMARK(BM_ComputeNumberOfExpandedNodesShowing)->Unit(benchmark::kMicrosecond);

void BM_FindNoCaseChildString_Miss(benchmark::State& state) {
    Forest& f = SharedForest();
    const CString key(VU_T("Valve"));
    for (auto _ : state) {
        int handle = -1;
        for (CTreeNode* root : f.roots)
            if ((handle = root->FindNoCaseChildString(key, true, 5, 0)) != -1)
                break;
        benchmark::DoNotOptimize(handle);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(f.preOrder.size()));
}
BENCHMARK(BM_FindNoCaseChildString_Miss)->Unit(benchmark::kMicrosecond);

// ---- The XML dump -------------------------------------------------------------------

// Rows = roots * 10 children * 100 leaves + ..., every node expanded.
void BM_XmlGetString_AllRows(benchmark::State& state) {
    const int roots = static_cast<int>(state.range(0));
    Forest f(roots);
    f.ExpandAll();
    size_t bytes = 0;
    for (auto _ : state) {
        CTreeNode::ResetXmlRowCounter(5);
        AF_GString xml = f.roots.XmlGetString();
        bytes = xml.size() * 2;
        benchmark::DoNotOptimize(xml.data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(f.preOrder.size()));
    state.SetComplexityN(static_cast<int64_t>(f.preOrder.size()));
    state.counters["rows"] = static_cast<double>(f.preOrder.size());
    state.counters["MB"] = static_cast<double>(bytes) / 1e6;
}
BENCHMARK(BM_XmlGetString_AllRows)
    ->Arg(10)
    ->Arg(30)
    ->Arg(100)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

std::string Narrow(const CString& s) {
    std::string out;
    for (int i = 0; i < s.GetLength(); ++i)
        out += static_cast<char>(s[i] < 0x80 ? s[i] : '?');
    return out;
}

// pugixml building the same element-only document from the same rows.
void BM_Peer_Pugixml_AllRows(benchmark::State& state) {
    const int roots = static_cast<int>(state.range(0));
    Forest f(roots);
    f.ExpandAll();
    std::vector<std::string> texts, parents;
    for (CTreeNode* n : f.preOrder) {
        texts.push_back(Narrow(n->GetDisplayText()));
        parents.push_back(n->GetParent() ? Narrow(n->GetParent()->GetDisplayText()) : "");
    }
    for (auto _ : state) {
        pugi::xml_document doc;
        pugi::xml_node list = doc.append_child("HbxTreeList");
        for (size_t i = 0; i < texts.size(); ++i) {
            pugi::xml_node row = list.append_child("HbxListNode");
            row.append_child("id").text().set(static_cast<long long>(i));
            row.append_child("expanded").text().set(f.preOrder[i]->IsExpanded() != 0);
            row.append_child("selected").text().set(i == 5);
            row.append_child("text").text().set(texts[i].c_str());
            row.append_child("parent").text().set(parents[i].c_str());
        }
        std::ostringstream out;
        doc.save(out, "", pugi::format_raw | pugi::format_no_declaration);
        benchmark::DoNotOptimize(out.str().data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(f.preOrder.size()));
    state.SetComplexityN(static_cast<int64_t>(f.preOrder.size()));
}
BENCHMARK(BM_Peer_Pugixml_AllRows)
    ->Arg(10)
    ->Arg(30)
    ->Arg(100)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

} // namespace

int main(int argc, char** argv) {
    vu::bench::KeepFreedMemory();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
