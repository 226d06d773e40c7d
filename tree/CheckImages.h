#pragma once
// Indices of the images in the check image list (bitmap 3336, drawn by
// scripts/gen_check_images.py in this order), and the list's format.
enum VU_CheckImage : int {
    VU_CHECKIMAGE_NONE = -1,
    VU_CHECKIMAGE_ALL = 0,          // a parent whose descendants are all checked
    VU_CHECKIMAGE_SOME = 1,         // a parent with some, not all, descendants checked
    VU_CHECKIMAGE_LEAF_CHECKED = 2, // a checked leaf
    VU_CHECKIMAGE_UNCHECKED = 3,    // an unchecked leaf, or a parent with nothing checked
    VU_CHECKIMAGE_COUNT = 4
};

constexpr int VU_IDB_CHECK_IMAGES = 3336;
constexpr int VU_CHECK_IMAGE_WIDTH = 16;
constexpr unsigned long VU_CHECK_IMAGE_MASK = 0x00FFFFFFUL; // RGB(255,255,255)
