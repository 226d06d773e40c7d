#pragma once
// Indices of the images in the tree controls' own image list (bitmap 2336,
// drawn by scripts/gen_tree_images.py in this order).
enum VU_TreeImage : int {
    VU_TREEIMAGE_NONE = -1,
    VU_TREEIMAGE_FOLDER_CLOSED = 0,
    VU_TREEIMAGE_FOLDER_OPEN = 1,
    VU_TREEIMAGE_CONTROLLER = 2,
    VU_TREEIMAGE_TASK = 3,
    VU_TREEIMAGE_PROGRAM = 4,
    VU_TREEIMAGE_ROUTINE = 5,
    VU_TREEIMAGE_TAG = 6,
    VU_TREEIMAGE_DATA_TYPE = 7,
    VU_TREEIMAGE_MODULE = 8,
    VU_TREEIMAGE_DOCUMENT = 9,
    VU_TREEIMAGE_WARNING = 10,
    VU_TREEIMAGE_ERROR = 11,
    VU_TREEIMAGE_CHECK = 12,
    VU_TREEIMAGE_COUNT = 13
};

// Resource number of the bitmap, its image width and its mask colour (blue).
constexpr int VU_IDB_TREE_IMAGES = 2336;
constexpr int VU_TREE_IMAGE_WIDTH = 16;
constexpr unsigned long VU_TREE_IMAGE_MASK = 0x00FF0000UL; // RGB(0,0,255)
