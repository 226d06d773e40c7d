#pragma once
// Test doubles for the layout tests: a leaf of a fixed size and a decorator,
// both writing what happens to them (draws, hooks, deaths) to a shared log.
#include "layout/ConcreteElement.h"
#include "layout/LayoutContainerDecorator.h"

#include <string>
#include <vector>

namespace layouttest {

using Log = std::vector<std::string>;

inline void Note(Log* log, const std::string& what) {
    if (log != nullptr)
        log->push_back(what);
}
inline Log Expect(std::initializer_list<const char*> items) {
    return Log(items.begin(), items.end());
}

struct Leaf : VU_CConcreteElement {
    Leaf(int cx, int cy, std::string name = "", Log* log = nullptr)
        : size(cx, cy), name(std::move(name)), log(log) {}
    ~Leaf() override { Note(log, "~" + name); }
    CSize RecalcSize() override { return GetVisibility() ? size : CSize(); }
    CRect GetObjectRect() const override { return rect; }
    void SetObjectRect(CRect r) override { rect = r; }
    void OnDraw(CDC*) override { Note(log, "draw " + name); }
    void RecalcLayout(CDC*) override { ++measured; }
    void OnLayoutVisibilityChanged(VU_LayoutDefs::VISIBILITY) override { ++visibilityChanges; }

    CSize size;
    CRect rect;
    std::string name;
    Log* log;
    int visibilityChanges = 0, measured = 0;
};

struct Decorator : VU_CLayoutContainerDecorator {
    Decorator(std::string name, Log* log) : name(std::move(name)), log(log) {}
    ~Decorator() override { Note(log, "~" + name); }
    void DrawBefore(CDC*, VU_CLayoutElementContainer*) override { Note(log, name + " before"); }
    void DrawAfter(CDC*, VU_CLayoutElementContainer*) override { Note(log, name + " after"); }
    std::string name;
    Log* log;
};

} // namespace layouttest
