#pragma once
// CMap: the framework's hash map, a table of buckets each holding a chain of
// associations. A key's bucket is HashKey<ARG_KEY>(key) % GetHashTableSize()
// (17 buckets unless InitHashTable chose otherwise); a new association goes
// to the front of its bucket's chain. Iteration (GetStartPosition /
// GetNextAssoc) walks the buckets in order and each chain front to back, so
// the order is a pure function of the keys and the insertion history.
//
// GetNextAssoc moves the position on before it returns, so the association
// just returned may be removed while iterating.
#include "framework/CString.h"
#include "framework/Object.h"
#include "framework/Types.h"

#include <cstddef>
#include <type_traits>
#include <vector>

// The default hash of integer and pointer keys: the value shifted right by
// 4 (pointers and handles are usually 16-byte aligned).
template <class ARG_KEY> inline UINT HashKey(ARG_KEY key) {
    using Key = std::remove_cvref_t<ARG_KEY>;
    if constexpr (std::is_pointer_v<Key>)
        return static_cast<UINT>(reinterpret_cast<UINT_PTR>(key) >> 4);
    else
        return static_cast<UINT>(static_cast<UINT_PTR>(key) >> 4);
}

// Strings hash over their code units (hash * 33 + unit).
UINT HashString(const WCHAR* key);
template <> inline UINT HashKey<const WCHAR*>(const WCHAR* key) {
    return HashString(key);
}
template <> inline UINT HashKey<const CString&>(const CString& key) {
    return HashString(key);
}
template <> inline UINT HashKey<CString>(CString key) {
    return HashString(key);
}
template <> inline UINT HashKey<CString&>(CString& key) {
    return HashString(key);
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE> class CMap : public CObject {
public:
    // A key and its value, as PLookup and the pair iteration hand them out.
    struct CPair {
        const KEY key;
        VALUE value;

    protected:
        explicit CPair(ARG_KEY keyval) : key(keyval), value() {}
    };

private:
    struct CAssoc : CPair {
        explicit CAssoc(ARG_KEY keyval) : CPair(keyval) {}
        CAssoc* pNext = nullptr;
        UINT nHashValue = 0; // the full hash, before the modulo
    };

public:
    static constexpr UINT kDefaultHashTableSize = 17;

    // Construction (the block size of the classic framework is accepted and
    // ignored: each association is its own allocation)
    explicit CMap(INT_PTR blockSize = 10) { (void)blockSize; }
    CMap(const CMap&) = delete;
    CMap& operator=(const CMap&) = delete;
    ~CMap() override { RemoveAll(); }

    // Attributes
    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    bool IsEmpty() const { return m_nCount == 0; }
    UINT GetHashTableSize() const { return m_nHashTableSize; }

    // Looks key up; false (rValue untouched) when absent.
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const {
        const CAssoc* assoc = Find(key);
        if (assoc == nullptr)
            return FALSE;
        rValue = assoc->value;
        return TRUE;
    }
    const CPair* PLookup(ARG_KEY key) const { return Find(key); }
    CPair* PLookup(ARG_KEY key) { return Find(key); }

    // Operations
    // The value of key, added value-initialised when absent.
    VALUE& operator[](ARG_KEY key) {
        const UINT hash = HashKey<ARG_KEY>(key);
        CAssoc* assoc = Find(key, hash);
        if (assoc == nullptr)
            assoc = NewAssoc(key, hash);
        return assoc->value;
    }
    void SetAt(ARG_KEY key, ARG_VALUE newValue) { (*this)[key] = newValue; }
    // Removes key; false when it was not there.
    BOOL RemoveKey(ARG_KEY key) {
        if (m_table.empty())
            return FALSE;
        const UINT hash = HashKey<ARG_KEY>(key);
        CAssoc** link = &m_table[hash % m_nHashTableSize];
        for (CAssoc* assoc = *link; assoc != nullptr; link = &assoc->pNext, assoc = *link) {
            if (assoc->nHashValue == hash && assoc->key == key) {
                *link = assoc->pNext;
                delete assoc;
                --m_nCount;
                return TRUE;
            }
        }
        return FALSE;
    }
    void RemoveAll() {
        for (CAssoc*& head : m_table) {
            while (head != nullptr) {
                CAssoc* next = head->pNext;
                delete head;
                head = next;
            }
        }
        m_table.clear();
        m_nCount = 0;
    }

    // Iteration
    POSITION GetStartPosition() const { return m_nCount == 0 ? nullptr : BEFORE_START_POSITION; }
    // Returns the association at rNextPosition and moves it to the next one
    // (null after the last). A null position leaves the arguments untouched.
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const {
        const CAssoc* assoc = Step(rNextPosition);
        if (assoc == nullptr)
            return;
        rKey = assoc->key;
        rValue = assoc->value;
    }
    // The pair iteration: null at the end.
    const CPair* PGetFirstAssoc() const { return First(); }
    CPair* PGetFirstAssoc() { return First(); }
    const CPair* PGetNextAssoc(const CPair* pair) const {
        return pair == nullptr ? nullptr : After(static_cast<const CAssoc*>(pair));
    }
    CPair* PGetNextAssoc(const CPair* pair) {
        return pair == nullptr ? nullptr : After(static_cast<const CAssoc*>(pair));
    }

    // Sets the number of buckets. Meant to be called before the first
    // insertion; on a filled map the associations are redistributed, so
    // nothing is lost. A size of 0 is ignored.
    void InitHashTable(UINT hashSize, BOOL allocNow = TRUE) {
        if (hashSize == 0)
            return;
        std::vector<CAssoc*> old;
        old.swap(m_table);
        m_nHashTableSize = hashSize;
        if (allocNow || !old.empty())
            m_table.assign(hashSize, nullptr);
        for (CAssoc* head : old) {
            while (head != nullptr) {
                CAssoc* next = head->pNext;
                Link(head);
                head = next;
            }
        }
    }

private:
    CAssoc* Find(ARG_KEY key) const {
        if (m_table.empty())
            return nullptr;
        return Find(key, HashKey<ARG_KEY>(key));
    }
    CAssoc* Find(ARG_KEY key, UINT hash) const {
        if (m_table.empty())
            return nullptr;
        for (CAssoc* assoc = m_table[hash % m_nHashTableSize]; assoc != nullptr;
             assoc = assoc->pNext) {
            if (assoc->nHashValue == hash && assoc->key == key)
                return assoc;
        }
        return nullptr;
    }
    CAssoc* NewAssoc(ARG_KEY key, UINT hash) {
        if (m_table.empty())
            m_table.assign(m_nHashTableSize, nullptr);
        CAssoc* assoc = new CAssoc(key);
        assoc->nHashValue = hash;
        Link(assoc);
        ++m_nCount;
        return assoc;
    }
    void Link(CAssoc* assoc) {
        CAssoc*& head = m_table[assoc->nHashValue % m_nHashTableSize];
        assoc->pNext = head;
        head = assoc;
    }
    CAssoc* FirstInBucketFrom(UINT bucket) const {
        for (; bucket < m_table.size(); ++bucket) {
            if (m_table[bucket] != nullptr)
                return m_table[bucket];
        }
        return nullptr;
    }
    CAssoc* First() const { return m_nCount == 0 ? nullptr : FirstInBucketFrom(0); }
    CAssoc* After(const CAssoc* assoc) const {
        if (assoc->pNext != nullptr)
            return assoc->pNext;
        return FirstInBucketFrom(assoc->nHashValue % m_nHashTableSize + 1);
    }
    const CAssoc* Step(POSITION& position) const {
        if (position == nullptr || m_nCount == 0) {
            position = nullptr;
            return nullptr;
        }
        const CAssoc* assoc =
            position == BEFORE_START_POSITION ? First() : reinterpret_cast<const CAssoc*>(position);
        position = assoc == nullptr ? nullptr : reinterpret_cast<POSITION>(After(assoc));
        return assoc;
    }

    std::vector<CAssoc*> m_table; // bucket heads; empty until the first insertion
    UINT m_nHashTableSize = kDefaultHashTableSize;
    INT_PTR m_nCount = 0;
};
