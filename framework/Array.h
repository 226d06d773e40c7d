#pragma once
// CArray: the framework's growable array of values. New elements are
// value-initialised (zero for scalars and pointers). Every index given to an
// accessor or to RemoveAt must lie inside the array: otherwise
// AfxThrowInvalidArgException() raises CInvalidArgException. Operations that
// grow the array (SetAtGrow, InsertAt beyond the end) accept any index >= 0.
#include "framework/InvalidArgException.h"
#include "framework/Object.h"
#include "framework/Types.h"

#include <algorithm>
#include <type_traits>
#include <utility>
#include <vector>

template <class TYPE, class ARG_TYPE = const TYPE&> class CArray : public CObject {
    // std::vector<bool> has no element storage to hand out through GetData.
    static_assert(!std::is_same_v<TYPE, bool>, "CArray<bool> is not supported; use BOOL");

public:
    // Construction
    CArray() = default;
    CArray(const CArray& other) : CObject(other), m_data(other.m_data), m_growBy(other.m_growBy) {}
    CArray(CArray&& other) noexcept : m_data(std::move(other.m_data)), m_growBy(other.m_growBy) {}
    CArray& operator=(const CArray& other) {
        Copy(other);
        return *this;
    }
    CArray& operator=(CArray&& other) noexcept {
        m_data = std::move(other.m_data);
        m_growBy = other.m_growBy;
        return *this;
    }
    ~CArray() override = default;

    // Attributes
    INT_PTR GetSize() const { return static_cast<INT_PTR>(m_data.size()); }
    INT_PTR GetCount() const { return GetSize(); }
    bool IsEmpty() const { return m_data.empty(); }
    INT_PTR GetUpperBound() const { return GetSize() - 1; }
    // Sets the size; new elements are value-initialised. growBy >= 0 sets the
    // room reserved beyond the new size when SetSize has to grow the storage.
    void SetSize(INT_PTR newSize, INT_PTR growBy = -1) {
        if (newSize < 0)
            AfxThrowInvalidArgException();
        if (growBy >= 0)
            m_growBy = growBy;
        if (m_growBy > 0 && static_cast<std::size_t>(newSize) > m_data.capacity())
            m_data.reserve(static_cast<std::size_t>(newSize + m_growBy - 1));
        m_data.resize(static_cast<std::size_t>(newSize));
    }

    // Operations
    void FreeExtra() { m_data.shrink_to_fit(); }
    void RemoveAll() {
        m_data.clear();
        m_data.shrink_to_fit();
    }

    // Element access
    const TYPE& GetAt(INT_PTR index) const { return m_data[Checked(index)]; }
    void SetAt(INT_PTR index, ARG_TYPE newElement) { m_data[Checked(index)] = newElement; }
    TYPE& ElementAt(INT_PTR index) { return m_data[Checked(index)]; }
    const TYPE& ElementAt(INT_PTR index) const { return m_data[Checked(index)]; }
    const TYPE* GetData() const { return m_data.data(); }
    TYPE* GetData() { return m_data.data(); }

    // Growing the array
    void SetAtGrow(INT_PTR index, ARG_TYPE newElement) {
        if (index < 0)
            AfxThrowInvalidArgException();
        if (index >= GetSize()) {
            TYPE copy(newElement); // newElement may refer into this array
            m_data.resize(static_cast<std::size_t>(index) + 1);
            m_data[static_cast<std::size_t>(index)] = std::move(copy);
            return;
        }
        m_data[static_cast<std::size_t>(index)] = newElement;
    }
    INT_PTR Add(ARG_TYPE newElement) {
        m_data.push_back(TYPE(newElement));
        return GetSize() - 1;
    }
    // Appends src; returns the index of its first element in this array.
    INT_PTR Append(const CArray& src) {
        const INT_PTR oldSize = GetSize();
        if (&src == this) {
            std::vector<TYPE> copy(m_data);
            m_data.insert(m_data.end(), copy.begin(), copy.end());
        } else {
            m_data.insert(m_data.end(), src.m_data.begin(), src.m_data.end());
        }
        return oldSize;
    }
    void Copy(const CArray& src) {
        if (&src != this)
            m_data = src.m_data;
    }

    // Overloaded operator helpers
    const TYPE& operator[](INT_PTR index) const { return GetAt(index); }
    TYPE& operator[](INT_PTR index) { return ElementAt(index); }

    // Operations that move elements
    // Inserts count copies of newElement before index; an index at or beyond
    // the end first grows the array to index elements.
    void InsertAt(INT_PTR index, ARG_TYPE newElement, INT_PTR count = 1) {
        if (index < 0 || count <= 0)
            AfxThrowInvalidArgException();
        TYPE copy(newElement); // newElement may refer into this array
        if (index >= GetSize())
            m_data.resize(static_cast<std::size_t>(index));
        m_data.insert(m_data.begin() + index, static_cast<std::size_t>(count), copy);
    }
    // Removes count elements from index; the whole range must lie inside.
    void RemoveAt(INT_PTR index, INT_PTR count = 1) {
        if (index < 0 || count < 0 || count > GetSize() - index)
            AfxThrowInvalidArgException();
        m_data.erase(m_data.begin() + index, m_data.begin() + index + count);
    }
    // Inserts all elements of newArray before startIndex (growing as above).
    void InsertAt(INT_PTR startIndex, const CArray* newArray) {
        if (newArray == nullptr || startIndex < 0)
            AfxThrowInvalidArgException();
        if (newArray->IsEmpty())
            return;
        const std::vector<TYPE> copy(newArray->m_data); // newArray may be this
        if (startIndex >= GetSize())
            m_data.resize(static_cast<std::size_t>(startIndex));
        m_data.insert(m_data.begin() + startIndex, copy.begin(), copy.end());
    }

    // Standard iteration, so range-for works over the elements.
    TYPE* begin() { return m_data.data(); }
    TYPE* end() { return m_data.data() + m_data.size(); }
    const TYPE* begin() const { return m_data.data(); }
    const TYPE* end() const { return m_data.data() + m_data.size(); }

private:
    std::size_t Checked(INT_PTR index) const {
        if (index < 0 || index >= GetSize())
            AfxThrowInvalidArgException();
        return static_cast<std::size_t>(index);
    }

    std::vector<TYPE> m_data;
    INT_PTR m_growBy = -1; // the growth step asked for by SetSize (-1: default)
};
