#include "layout/LayoutElementContainer.h"

#include "layout/ConcreteElement.h"
#include "layout/LayoutContainerDecorator.h"
#include "layout/LayoutElementVisitor.h"
#include "layout/Visitor.h"

#include <algorithm>
#include <cstdlib>

namespace {

// Lets every leaf of a subtree measure itself with a device context.
class LeafMeasurer : public VU_CLayoutElementVisitor {
public:
    explicit LeafMeasurer(CDC* pDC) : m_pDC(pDC) {}
    void Visit(VU_CConcreteElement* leaf) override { leaf->RecalcLayout(m_pDC); }

private:
    CDC* m_pDC;
};

} // namespace

VU_CLayoutElementContainer::VU_CLayoutElementContainer(VU_CLayoutContainerDecorator* decorator,
                                                       VU_LayoutDefs::PLACEMENT placement,
                                                       VU_LayoutDefs::DELETION_MODE mode)
    : VU_CLayoutElement(placement), m_deletionMode(mode), m_pDecorator(decorator) {}

VU_CLayoutElementContainer::~VU_CLayoutElementContainer() {
    delete m_pDecorator;
}

void VU_CLayoutElementContainer::Accept(DwIVisitor* visitor) {
    DwDispatchVisit<VU_CLayoutElementContainer>(visitor, this);
}

void VU_CLayoutElementContainer::Reposition(CPoint point) {
    CRect rect = m_rectLayout;
    rect.OffsetRect(point - rect.TopLeft());
    SetLayoutRect(rect);
    RepositionChildren();
}

void VU_CLayoutElementContainer::MoveBy(CSize size) {
    m_rectLayout.OffsetRect(size);
}

void VU_CLayoutElementContainer::Draw(CDC* pDC) {
    if (m_pDecorator != nullptr)
        m_pDecorator->DrawBefore(pDC, this);
    OnDraw(pDC);
    if (m_pDecorator != nullptr)
        m_pDecorator->DrawAfter(pDC, this);
}

void VU_CLayoutElementContainer::SetVisibility(VU_LayoutDefs::VISIBILITY visibility) {
    VU_CLayoutElement::SetVisibility(visibility);
    SetChildVisibility(visibility);
}

VU_CLayoutContainerDecorator* VU_CLayoutElementContainer::GetDecorator() const {
    return m_pDecorator;
}

void VU_CLayoutElementContainer::SetDecorator(VU_CLayoutContainerDecorator* decorator) {
    delete m_pDecorator;
    m_pDecorator = decorator;
}

void VU_CLayoutElementContainer::RecalcLayout(CDC* pDC) {
    LeafMeasurer measurer(pDC);
    Accept(&measurer);
    const CSize need = RecalcSize();
    const CSize have = LayoutExtent();
    if (have.cx < need.cx)
        SetLayoutWidth(need.cx);
    if (have.cy < need.cy)
        SetLayoutHeight(need.cy);
    RepositionChildren();
}

CRect VU_CLayoutElementContainer::GetLayoutRect() const {
    return m_rectLayout;
}
void VU_CLayoutElementContainer::SetLayoutRect(CRect rect) {
    m_rectLayout = rect;
}
void VU_CLayoutElementContainer::SetLayoutWidth(int width) {
    m_rectLayout.right = m_rectLayout.left + width;
}
// Keeps a flipped rectangle flipped.
void VU_CLayoutElementContainer::SetLayoutHeight(int height) {
    m_rectLayout.bottom = IsFlipped() ? m_rectLayout.top - height : m_rectLayout.top + height;
}

void VU_CLayoutElementContainer::SetChildDeletionMode(VU_LayoutDefs::DELETION_MODE mode) {
    m_deletionMode = mode;
}
VU_LayoutDefs::DELETION_MODE VU_CLayoutElementContainer::GetChildDeletionMode() const {
    return m_deletionMode;
}

// ---- Implementation ---------------------------------------------------------

VU_CLayoutElementContainer::Child::Child(VU_CLayoutElement* pElement)
    : element(pElement), container(dynamic_cast<VU_CLayoutElementContainer*>(pElement)),
      leaf(dynamic_cast<VU_CConcreteElement*>(pElement)) {}

CSize VU_CLayoutElementContainer::Child::Measure() {
    size = element != nullptr ? MeasureElement(element) : CSize();
    return size;
}

void VU_CLayoutElementContainer::Child::Place(const CRect& rect) const {
    if (container != nullptr) {
        container->SetLayoutRect(rect);
        container->RepositionChildren();
    } else if (leaf != nullptr) {
        leaf->SetObjectRect(rect);
    } else if (element != nullptr) {
        element->Reposition(rect.TopLeft());
    }
}

void VU_CLayoutElementContainer::Child::Draw(CDC* pDC) const {
    if (container != nullptr)
        container->Draw(pDC);
    else if (element != nullptr)
        element->OnDraw(pDC);
}

CSize VU_CLayoutElementContainer::MeasureElement(VU_CLayoutElement* element) {
    const CSize size = element->RecalcSize();
    return CSize(std::max<int>(size.cx, 0), std::max<int>(size.cy, 0));
}

CRect VU_CLayoutElementContainer::SlotRect(int x, int y, int cx, int cy) const {
    const int left = m_rectLayout.left + x;
    if (IsFlipped())
        return CRect(left, m_rectLayout.top - y, left + cx, m_rectLayout.top - y - cy);
    return CRect(left, m_rectLayout.top + y, left + cx, m_rectLayout.top + y + cy);
}

int VU_CLayoutElementContainer::ChildExtent(const VU_CLayoutElement* child,
                                            VU_LayoutDefs::HV_DIRECTION direction, int own,
                                            int slot) const {
    if (ResizeChild() || child->IsFlexible(direction))
        return std::max(own, slot);
    return own;
}

void VU_CLayoutElementContainer::Discard(VU_CLayoutElement* element) const {
    if (m_deletionMode == VU_LayoutDefs::DELETE_CHILDREN)
        delete element;
}

CSize VU_CLayoutElementContainer::LayoutExtent() const {
    return CSize(m_rectLayout.Width(), std::abs(m_rectLayout.Height()));
}
