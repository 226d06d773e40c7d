#pragma once
// VU_CLayoutElementVisitor: the visitor that walks a whole layout tree,
// depth first, each parent before its children:
//   a leaf:                          nothing further;
//   a cell:                          its element, if any;
//   a row, column or collection:     its children in order (CreateIterator);
//   a grid:                          row 0 columns 0.., then row 1, ...;
//   a quadrant container:            quadrants 0, 1, 2, 3, each if present.
// Each child is visited through its own Accept with the same visitor. A
// visitor that does its own work on some kinds derives from this class,
// overrides their Visit and calls this class's Visit to go on into the
// children (or does not, to skip them). A visitor that treats every
// container alike overrides OnEnterContainer instead.
#include "layout/Visitor.h"

class VU_CConcreteElement;
class VU_CLayoutCell;
class VU_COrderedLayoutContainer;
class VU_CLayoutQuadContainer;
class VU_CLayoutCollection;
class VU_CLayoutGrid;
class VU_CLayoutElementContainer;

class VU_CLayoutElementVisitor : public DwIVisitor,
                                 public DwIVisit<VU_CConcreteElement>,
                                 public DwIVisit<VU_CLayoutCell>,
                                 public DwIVisit<VU_COrderedLayoutContainer>,
                                 public DwIVisit<VU_CLayoutQuadContainer>,
                                 public DwIVisit<VU_CLayoutCollection>,
                                 public DwIVisit<VU_CLayoutGrid> {
public:
    void Visit(VU_CConcreteElement* leaf) override;
    void Visit(VU_CLayoutCell* cell) override;
    void Visit(VU_COrderedLayoutContainer* container) override;
    void Visit(VU_CLayoutQuadContainer* container) override;
    void Visit(VU_CLayoutCollection* collection) override;
    void Visit(VU_CLayoutGrid* grid) override;

protected:
    // Overrideables
    // Called on each container before its children; false skips them.
    virtual bool OnEnterContainer(VU_CLayoutElementContainer* container);
};
