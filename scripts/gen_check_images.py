#!/usr/bin/env python3
"""Draws the check images (bitmap 3336): a strip of 16x16 images, 24 bits per
pixel, with white (255,255,255) as the transparent mask colour, so the box's
inside is a near-white that stays opaque on a selected row.

Each image is a 16x16 character map; the palette below says which colour
each character stands for ('.' is the mask). The order of the images is the
order of the VU_CheckImage constants in tree/CheckImages.h.

Usage: scripts/gen_check_images.py [output.bmp]
(default resources/tree/CheckImages.bmp)
"""
import os
import sys

from gen_tree_images import check, write_bmp

PALETTE = {
    ".": (255, 255, 255),  # mask
    "f": (112, 112, 112),  # box frame
    "i": (250, 250, 250),  # box inside
    "t": (214, 228, 248),  # inside of a parent whose descendants are all checked
    "k": (24, 24, 24),  # check mark
    "s": (70, 110, 170),  # the square of a partly checked parent
}

BOX = [
    "................",
    ".fffffffffffff..",
    ".fiiiiiiiiiiif..",
    ".fiiiiiiiiiiif..",
    ".fiiiiiiiiiiif..",
    ".fiiiiiiiiiiif..",
    ".fiiiiiiiiiiif..",
    ".fiiiiiiiiiiif..",
    ".fiiiiiiiiiiif..",
    ".fiiiiiiiiiiif..",
    ".fiiiiiiiiiiif..",
    ".fiiiiiiiiiiif..",
    ".fiiiiiiiiiiif..",
    ".fffffffffffff..",
    "................",
    "................",
]

# A check mark, three pixels thick, inside the box.
MARK = [(4, 6), (5, 7), (6, 8), (7, 7), (8, 6), (9, 5), (10, 4)]
MARK_CELLS = {(x, y + d) for x, y in MARK for d in range(3)}

# The partly checked square, seven pixels wide, in the middle of the box.
SQUARE_CELLS = {(x, y) for x in range(4, 11) for y in range(4, 11)}


def box(inside, cells, ink):
    rows = []
    for y, row in enumerate(BOX):
        out = ""
        for x, ch in enumerate(row):
            if (x, y) in cells:
                out += ink
            elif ch == "i":
                out += inside
            else:
                out += ch
        rows.append(out)
    return rows


IMAGES = [
    ("all checked", box("t", MARK_CELLS, "k")),
    ("some checked", box("i", SQUARE_CELLS, "s")),
    ("leaf checked", box("i", MARK_CELLS, "k")),
    ("unchecked", box("i", set(), "k")),
]


def main():
    root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    out = sys.argv[1] if len(sys.argv) > 1 else os.path.join(root, "resources", "tree",
                                                            "CheckImages.bmp")
    check(IMAGES, PALETTE)
    write_bmp(out, IMAGES, PALETTE)
    print(f"{out}: {len(IMAGES)} images")


if __name__ == "__main__":
    main()
