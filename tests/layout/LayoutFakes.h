#pragma once
// Test doubles for the layout tests: a leaf of a fixed size that records
// what happens to it, and a decorator that records its hooks and its death.
#include "layout/ConcreteElement.h"
#include "layout/LayoutContainerDecorator.h"

#include <string>
#include <vector>

namespace layouttest {

// Shared record of draws and deaths, in order.
using Log = std::vector<std::string>;

class Leaf : public VU_CConcreteElement {
public:
    Leaf(int cx, int cy, std::string name = "", Log* log = nullptr)
        : m_size(cx, cy), m_name(std::move(name)), m_log(log) {}
    ~Leaf() override { Note("~" + m_name); }

    CSize RecalcSize() override {
        return GetVisibility() == VU_LayoutDefs::VISIBLE ? m_size : CSize();
    }
    CRect GetObjectRect() const override { return m_rect; }
    void SetObjectRect(CRect rect) override { m_rect = rect; }
    void OnDraw(CDC*) override { Note("draw " + m_name); }
    void RecalcLayout(CDC*) override { ++measured; }

    int visibilityChanges = 0;
    int measured = 0;

protected:
    void OnLayoutVisibilityChanged(VU_LayoutDefs::VISIBILITY) override { ++visibilityChanges; }

private:
    void Note(const std::string& what) const {
        if (m_log != nullptr)
            m_log->push_back(what);
    }
    CSize m_size;
    CRect m_rect;
    std::string m_name;
    Log* m_log;
};

class Decorator : public VU_CLayoutContainerDecorator {
public:
    Decorator(std::string name, Log* log) : m_name(std::move(name)), m_log(log) {}
    ~Decorator() override { m_log->push_back("~" + m_name); }
    void DrawBefore(CDC*, VU_CLayoutElementContainer*) override {
        m_log->push_back(m_name + " before");
    }
    void DrawAfter(CDC*, VU_CLayoutElementContainer*) override {
        m_log->push_back(m_name + " after");
    }

private:
    std::string m_name;
    Log* m_log;
};

inline Log Expect(std::initializer_list<const char*> items) {
    return Log(items.begin(), items.end());
}

} // namespace layouttest
