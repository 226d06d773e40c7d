#pragma once
// The acyclic visitor of the layout engine. DwIVisitor is the empty root that
// Accept takes; a visitor also derives from DwIVisit<T> for each element kind
// T it handles. An element's Accept asks at run time whether the visitor
// implements DwIVisit of its own class and calls Visit(this) only then, so a
// visitor ignores every kind it does not derive from, and a new element kind
// needs no change to existing visitors.
class DwIVisitor {
public:
    virtual ~DwIVisitor() = default;
};

template <class T> class DwIVisit {
public:
    virtual ~DwIVisit() = default;
    virtual void Visit(T* element) = 0;
};

// The dispatch every Accept performs: Visit(element) when visitor handles T.
template <class T> inline void DwDispatchVisit(DwIVisitor* visitor, T* element) {
    if (auto* handler = dynamic_cast<DwIVisit<T>*>(visitor))
        handler->Visit(element);
}
