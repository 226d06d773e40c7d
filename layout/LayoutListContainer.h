#pragma once
// VU_CLayoutListContainer: the part that rows, columns and collections
// share, a list of children in order. It adds, removes, moves, draws and
// shows them; how they are measured and arranged is the derived class's.
#include "layout/LayoutElementContainer.h"
#include "layout/LayoutIterator.h"

#include <vector>

class VU_CLayoutListContainer : public VU_CLayoutElementContainer {
public:
    using VU_CLayoutElementContainer::VU_CLayoutElementContainer;
    // Deletes the children by the deletion mode.
    ~VU_CLayoutListContainer() override;

    // Operations of every element
    void MoveBy(CSize size) override;
    void OnDraw(CDC* pDC) override;

    // Operations of containers
    void RemoveAll() override;
    BOOL Remove(VU_CLayoutElement* element) override;
    void SetChildVisibility(VU_LayoutDefs::VISIBILITY visibility) override;

    // Operations of lists
    // Appends the element (null is refused). An element belongs to one
    // container and is added once.
    virtual BOOL Add(VU_CLayoutElement* element);
    // Inserts before `index` (0 to GetCount()); FALSE when out of range.
    virtual BOOL InsertAt(int index, VU_CLayoutElement* element);
    virtual VU_CLayoutIterator CreateIterator() const;

    // Attributes
    int GetCount() const { return static_cast<int>(m_children.size()); }
    // Null when out of range.
    VU_CLayoutElement* GetAt(int index) const;

protected:
    // Measures every child; the sizes are kept with the children.
    void MeasureChildren();
    // The weight of a child that may grow in a direction, 0 otherwise.
    float GrowWeight(const Child& child, VU_LayoutDefs::HV_DIRECTION direction) const;

    std::vector<Child> m_children;
};
