#pragma once
// VU_CLayoutContainerDecorator: an object attached to a container that draws
// around it (a frame, a background, a caption). The container owns it and
// calls the first hook before it draws its content and the second after.
class CDC;
class DwIVisitor;
class VU_CLayoutElementContainer;

class VU_CLayoutContainerDecorator {
public:
    VU_CLayoutContainerDecorator() = default;
    VU_CLayoutContainerDecorator(const VU_CLayoutContainerDecorator&) = delete;
    VU_CLayoutContainerDecorator& operator=(const VU_CLayoutContainerDecorator&) = delete;

    // Visits through DwIVisit<VU_CLayoutContainerDecorator>, if the visitor has it.
    virtual void Accept(DwIVisitor* visitor);
    virtual ~VU_CLayoutContainerDecorator() = default;

    // Overrideables
    virtual void DrawBefore(CDC* pDC, VU_CLayoutElementContainer* container) = 0;
    virtual void DrawAfter(CDC* pDC, VU_CLayoutElementContainer* container) = 0;
};
