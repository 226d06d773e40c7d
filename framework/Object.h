#pragma once
// The root of the framework's class tree: a polymorphic base so that
// collections of CObject* (CObArray) can delete what they hold.

class CObject {
public:
    CObject() = default;
    CObject(const CObject&) = default;
    CObject& operator=(const CObject&) = default;
    virtual ~CObject() = default;
};
