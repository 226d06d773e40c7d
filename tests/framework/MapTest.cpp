#include "framework/Map.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace {

// A window-handle-like key: a pointer to an opaque struct.
struct Handle__;
typedef Handle__* HANDLE_T;

HANDLE_T H(UINT_PTR v) {
    return reinterpret_cast<HANDLE_T>(v);
}

typedef CMap<HANDLE_T, HANDLE_T&, int, int> HandleMap;

template <class K, class AK, class V, class AV>
std::vector<K> KeysInOrder(const CMap<K, AK, V, AV>& map) {
    std::vector<K> keys;
    POSITION pos = map.GetStartPosition();
    while (pos != nullptr) {
        K key{};
        V value{};
        map.GetNextAssoc(pos, key, value);
        keys.push_back(key);
    }
    return keys;
}

// ---- buckets and iteration order ---------------------------------------------

TEST(CMap, IterationGoesByBucketThenNewestKeyFirst) {
    // The bucket is the key shifted right by four, modulo 17.
    HandleMap m;
    for (UINT_PTR k : {0x10, 0x20, 0x110, 0x120, 0x230, 0x90}) { // buckets 1, 2, 0, 1, 1, 9
        HANDLE_T h = H(k);
        m[h] = 1;
    }
    EXPECT_EQ(m.GetHashTableSize(), 17u);
    EXPECT_EQ(KeysInOrder(m),
              (std::vector<HANDLE_T>{H(0x110), H(0x230), H(0x120), H(0x10), H(0x20), H(0x90)}));
    HANDLE_T middle = H(0x120);
    EXPECT_TRUE(m.RemoveKey(middle)); // from the middle of a chain
    EXPECT_EQ(KeysInOrder(m),
              (std::vector<HANDLE_T>{H(0x110), H(0x230), H(0x10), H(0x20), H(0x90)}));
    int v = 0;
    EXPECT_FALSE(m.Lookup(middle, v));
}

TEST(CMap, InitHashTableSetsTheBucketCountAndKeepsEntries) {
    CMap<int, int, int, int> m;
    m.InitHashTable(5);
    EXPECT_EQ(m.GetHashTableSize(), 5u);
    for (int k : {0x40, 0x10, 0x30}) // hashes 4, 1, 3
        m[k] = k;
    EXPECT_EQ(KeysInOrder(m), (std::vector<int>{0x10, 0x30, 0x40}));

    m.InitHashTable(2); // on a filled map: redistributed, nothing lost
    EXPECT_EQ(m.GetCount(), 3);
    for (int k : {0x40, 0x10, 0x30})
        EXPECT_TRUE(m.PLookup(k) != nullptr && m.PLookup(k)->value == k) << k;
    m.InitHashTable(0); // ignored
    EXPECT_EQ(m.GetHashTableSize(), 2u);
}

// ---- changes -------------------------------------------------------------------

TEST(CMap, RemovingTheReturnedKeyWhileIteratingVisitsEveryKeyOnce) {
    HandleMap m;
    std::map<HANDLE_T, int> seen;
    for (UINT_PTR k = 1; k <= 60; ++k) {
        HANDLE_T h = H(k * 0x18); // spreads over buckets, several per bucket
        m[h] = static_cast<int>(k);
    }
    POSITION pos = m.GetStartPosition();
    while (pos != nullptr) {
        HANDLE_T key = nullptr;
        int value = 0;
        m.GetNextAssoc(pos, key, value);
        ++seen[key];
        EXPECT_TRUE(m.RemoveKey(key));
    }
    EXPECT_EQ(seen.size(), 60u);
    for (const auto& [key, count] : seen)
        EXPECT_EQ(count, 1) << key;
    EXPECT_TRUE(m.IsEmpty());
    EXPECT_EQ(m.GetStartPosition(), nullptr);
}

TEST(CMap, LargeMapAgreesWithAReferenceMap) {
    // Keys 0..1999 over 17 buckets, sixteen to a hash value: many chains and
    // equal hashes that only the key comparison tells apart.
    CMap<UINT, UINT, UINT, UINT> m;
    std::map<UINT, UINT> ref;
    UINT x = 12345;
    for (int i = 0; i < 3000; ++i) {
        x = x * 1103515245u + 12345u;
        const UINT key = (x >> 8) % 2000;
        if (x & 0x10000) {
            m[key] = x;
            ref[key] = x;
        } else {
            EXPECT_EQ(m.RemoveKey(key) != FALSE, ref.erase(key) == 1) << key;
        }
    }
    EXPECT_EQ(m.GetCount(), static_cast<INT_PTR>(ref.size()));
    for (const auto& [key, value] : ref) {
        UINT v = 0;
        ASSERT_TRUE(m.Lookup(key, v)) << key;
        EXPECT_EQ(v, value);
    }
    std::map<UINT, UINT> iterated;
    for (const auto* p = m.PGetFirstAssoc(); p != nullptr; p = m.PGetNextAssoc(p))
        iterated[p->key] = p->value;
    EXPECT_EQ(iterated, ref);
    m.RemoveAll();
    EXPECT_TRUE(m.IsEmpty());
    m[3] = 4; // usable again after RemoveAll
    EXPECT_EQ(m.GetCount(), 1);
}

TEST(CMap, StringKeysCompareByContentAndEmptyMapsGiveClearResults) {
    CMap<CString, const CString&, int, int> m;
    m[CString(VU_T("Motor"))] = 1;
    m.SetAt(CString(VU_T("Mo")) + VU_T("tor"), 3);
    EXPECT_EQ(m.GetCount(), 1);
    EXPECT_EQ(m.PLookup(CString(VU_T("MOTOR"))), nullptr);

    HandleMap empty;
    EXPECT_EQ(empty.PGetFirstAssoc(), nullptr);
    POSITION pos = nullptr;
    HANDLE_T key = H(1);
    int v = 9;
    empty.GetNextAssoc(pos, key, v);
    EXPECT_EQ(key, H(1));
    EXPECT_EQ(v, 9);
}

} // namespace
