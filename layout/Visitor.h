#pragma once
// The acyclic visitor of the layout engine. DwIVisitor is the empty root that
// Accept takes; a visitor also derives from DwIVisit<T> for each element kind
// T it handles. An element's Accept asks at run time whether the visitor
// implements DwIVisit of its own class and calls Visit(this) only then, so a
// visitor ignores every kind it does not derive from, and a new element kind
// needs no change to existing visitors.
#include <typeinfo>

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
//
// The cross cast from DwIVisitor to DwIVisit<T> costs more than most visits,
// and a walk makes one per element with the same visitor. So the last
// visitor seen (its address and dynamic type) and the cast's result are
// kept per element kind and thread; another visitor, or another object of
// another type at the same address, casts afresh.
template <class T> inline void DwDispatchVisit(DwIVisitor* visitor, T* element) {
    struct LastAnswer {
        const DwIVisitor* visitor = nullptr;
        const std::type_info* type = nullptr;
        DwIVisit<T>* handler = nullptr;
    };
    thread_local LastAnswer last;
    if (visitor == nullptr)
        return;
    const std::type_info& type = typeid(*visitor);
    if (last.visitor != visitor || last.type != &type)
        last = {visitor, &type, dynamic_cast<DwIVisit<T>*>(visitor)};
    if (last.handler != nullptr)
        last.handler->Visit(element);
}
