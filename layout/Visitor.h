#pragma once
// The acyclic visitor of the layout engine. DwIVisitor is the empty root that
// Accept takes; a visitor also derives from DwIVisit<T> for each element kind
// T it handles. An element's Accept asks at run time whether the visitor
// implements DwIVisit of its own class and calls Visit(this) only then, so a
// visitor ignores every kind it does not derive from, and a new element kind
// needs no change to existing visitors.
#include <cstddef>
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
// and a walk makes one per element with the same visitor. Its outcome
// depends only on the visitor's dynamic type, so the last type asked about
// and where its DwIVisit<T> lies are kept per element kind and thread. (A
// visitor class derives from DwIVisitor once.)
template <class T> inline void DwDispatchVisit(DwIVisitor* visitor, T* element) {
    struct LastAnswer {
        const std::type_info* type = nullptr;
        std::ptrdiff_t offset = 0; // from the DwIVisitor to the DwIVisit<T>
        bool handles = false;
    };
    thread_local LastAnswer last;
    if (visitor == nullptr)
        return;
    const std::type_info& type = typeid(*visitor);
    if (last.type != &type) {
        auto* handler = dynamic_cast<DwIVisit<T>*>(visitor);
        last.handles = handler != nullptr;
        last.offset =
            last.handles ? reinterpret_cast<char*>(handler) - reinterpret_cast<char*>(visitor) : 0;
        last.type = &type;
    }
    if (last.handles)
        reinterpret_cast<DwIVisit<T>*>(reinterpret_cast<char*>(visitor) + last.offset)
            ->Visit(element);
}
