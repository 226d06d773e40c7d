#pragma once
// The visitor-accepting interface: the first operation of every element.
class DwIVisitor;

class DwIAccept {
public:
    virtual void Accept(DwIVisitor* visitor) = 0;

protected:
    ~DwIAccept() = default;
};
