#pragma once
// A realistic controller project for the gallery: a packaging line with its
// tasks, programs, routines, tags and data types, laid into a tree list box
// the way the editor's project organizer shows it.
#include "tree/win/TreeListBox.h"

namespace gallery {

// Item data: the kind in the top byte, an inhibited flag, a running number.
enum ItemKind : unsigned long {
    kKindFolder = 1,
    kKindController = 2,
    kKindTask = 3,
    kKindProgram = 4,
    kKindRoutine = 5,
    kKindTag = 6,
    kKindDataType = 7,
    kKindMember = 8,
    kKindModule = 9,
};
constexpr unsigned long kInhibited = 1ul << 23;
inline unsigned long KindOf(unsigned long data) {
    return data >> 24;
}

struct ProjectCounts {
    int tasks = 0;
    int programs = 0;
    int routines = 0;
    int controllerTags = 0;
    int programTags = 0;
    int dataTypes = 0;
    int modules = 0;
    int inhibited = 0;
};

// Fills the list (expandParent false throughout: only the top level shows).
ProjectCounts FillControllerProject(VU_CTreeListBox& list);

} // namespace gallery
