#pragma once
// VU_CLayoutElementContainer: the base of every element that holds others.
//
// A container has a layout rectangle (where it lies), a deletion mode (whether
// it deletes the children it holds) and an optional decorator that it owns.
//
// The rules every container follows:
// - Measuring. RecalcSize asks each child for its size (so the whole subtree
//   is measured, bottom up) and returns the size the container needs. A
//   child takes the space of the size it reports: a hidden bitmap or a
//   hidden container reports (0, 0) and takes none, a hidden icon keeps its
//   place; a negative extent counts as 0. A hidden container needs (0, 0).
//   The sizes are kept for the next RepositionChildren, so measure again
//   after changing the content.
// - Arranging. RepositionChildren gives each child a slot inside the layout
//   rectangle and arranges the child's own children in turn. A child flexible
//   in a direction takes its slot's whole extent in that direction; one that
//   is not keeps its own extent at the slot's start (left, or top); a
//   container whose ResizeChild flag is set treats all its children as
//   flexible. A child never shrinks below its own size: when the layout
//   rectangle is too small, the children stick out at its right and bottom.
//   A child container receives its slot as its layout rectangle, a leaf as
//   its object rectangle.
// - Flipped rectangles (bottom < top, after mirroring for a y-up device) are
//   arranged mirrored: what lies at the top in the unflipped rectangle lies
//   at its top edge, and slots come out flipped too.
// - RecalcLayout(dc) lets every leaf measure itself with the device context
//   (VU_CConcreteElement::RecalcLayout), measures the subtree, grows the
//   layout rectangle to at least the required size (its top-left corner
//   stays) and arranges the children.
// - Drawing: Draw calls the decorator's first hook, OnDraw, then the second
//   hook. OnDraw draws the children in order (a later child paints over an
//   earlier one): a child container with Draw, a leaf with OnDraw.
// - Visibility: SetVisibility always passes the value on to every child,
//   so showing a container shows every element below it.
// - The elements form a tree: an element is in one container, once, and a
//   container never holds itself or one of its ancestors.
#include "layout/LayoutElement.h"

#include <vector>

class VU_CLayoutContainerDecorator;
class VU_CConcreteElement;

class VU_CLayoutElementContainer : public VU_CLayoutElement {
public:
    explicit VU_CLayoutElementContainer(
        VU_CLayoutContainerDecorator* decorator = nullptr,
        VU_LayoutDefs::PLACEMENT placement = VU_LayoutDefs::INTERNAL,
        VU_LayoutDefs::DELETION_MODE mode = VU_LayoutDefs::DELETE_CHILDREN);
    // Containers hold pointers they may delete: they are not copied.
    VU_CLayoutElementContainer(const VU_CLayoutElementContainer&) = delete;
    VU_CLayoutElementContainer& operator=(const VU_CLayoutElementContainer&) = delete;
    // Deletes the decorator; each container deletes its children by its mode.
    ~VU_CLayoutElementContainer() override;

    // Operations of every element
    void Accept(DwIVisitor* visitor) override;
    // Keeps the layout rectangle's size, moves its top-left corner to point
    // and arranges the children there.
    void Reposition(CPoint point) override;
    // Offsets the layout rectangle; containers with children move them too.
    void MoveBy(CSize size) override;
    void Draw(CDC* pDC) override;
    void SetVisibility(VU_LayoutDefs::VISIBILITY visibility) override;

    // Operations of containers
    virtual VU_CLayoutContainerDecorator* GetDecorator() const;
    // Deletes the attached decorator, then keeps the new one (which may be
    // null). Passing the decorator already attached is not allowed.
    virtual void SetDecorator(VU_CLayoutContainerDecorator* decorator);
    virtual void RemoveAll() = 0;
    // FALSE when the element is not a child of this container.
    virtual BOOL Remove(VU_CLayoutElement* element) = 0;
    virtual void RecalcLayout(CDC* pDC);
    virtual CRect GetLayoutRect() const;
    // Stores the rectangle only; RepositionChildren arranges the children.
    virtual void SetLayoutRect(CRect rect);
    virtual void SetLayoutWidth(int width);
    virtual void SetLayoutHeight(int height);
    virtual void SetChildDeletionMode(VU_LayoutDefs::DELETION_MODE mode);
    virtual VU_LayoutDefs::DELETION_MODE GetChildDeletionMode() const;
    virtual void RepositionChildren() = 0;
    virtual void SetChildVisibility(VU_LayoutDefs::VISIBILITY visibility) = 0;

    // Whether the layout rectangle is flipped (bottom above top).
    bool IsFlipped() const { return m_rectLayout.bottom < m_rectLayout.top; }

protected:
    friend class VU_CLayoutIterator;

    // A child as a container holds it: the element, what kind it is (found
    // once when it is added, so that arranging needs no type checks) and the
    // size it reported at the last measuring.
    struct Child {
        Child() = default;
        explicit Child(VU_CLayoutElement* pElement);
        VU_CLayoutElement* element = nullptr;
        VU_CLayoutElementContainer* container = nullptr; // when it is a container
        VU_CConcreteElement* leaf = nullptr;             // when it is a leaf
        CSize size;

        CSize Measure();
        // Gives the child the rectangle (flipped or not) and arranges it.
        void Place(const CRect& rect) const;
        void Draw(CDC* pDC) const;
    };

    // The element's size, a negative extent counted as 0.
    static CSize MeasureElement(VU_CLayoutElement* element);
    // The slot (x, y, cx, cy) measured from the layout rectangle's top-left
    // corner, mirrored when the rectangle is flipped.
    CRect SlotRect(int x, int y, int cx, int cy) const;
    // The extent a child gets in one direction of a slot.
    int ChildExtent(const VU_CLayoutElement* child, VU_LayoutDefs::HV_DIRECTION direction, int own,
                    int slot) const;
    // Deletes the element when the deletion mode says so.
    void Discard(VU_CLayoutElement* element) const;
    // The layout rectangle's width and height, whichever way it is flipped.
    CSize LayoutExtent() const;

    CRect m_rectLayout;

private:
    VU_LayoutDefs::DELETION_MODE m_deletionMode;
    VU_CLayoutContainerDecorator* m_pDecorator;
};
