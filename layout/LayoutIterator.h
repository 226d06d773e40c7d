#pragma once
// VU_CLayoutIterator: walks the children of a row, column or collection in
// their order: for (it.First(); !it.IsDone(); it.Next()) it.CurrentItem().
// It reads the container as it stands: do not add or remove children while
// an iterator is in use.
#include "layout/LayoutElementContainer.h"

#include <cstddef>
#include <vector>

class VU_CLayoutIterator {
public:
    using Children = std::vector<VU_CLayoutElementContainer::Child>;
    explicit VU_CLayoutIterator(const Children& children) : m_children(&children) {}

    void First() { m_index = 0; }
    void Next() {
        if (!IsDone())
            ++m_index;
    }
    bool IsDone() const { return m_index >= m_children->size(); }
    // Null when the walk is done.
    VU_CLayoutElement* CurrentItem() const {
        return IsDone() ? nullptr : (*m_children)[m_index].element;
    }

private:
    const Children* m_children;
    std::size_t m_index = 0;
};
