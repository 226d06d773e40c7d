#!/usr/bin/env python3
"""Draws the tree images (bitmap 2336): a strip of 16x16 images, 24 bits per
pixel, with pure blue (0,0,255) as the transparent mask colour.

Each image is a 16x16 character map; the palette below says which colour
each character stands for ('.' is the mask). The order of the images is the
order of the VU_TreeImage constants in tree/TreeImages.h.

Usage: scripts/gen_tree_images.py [output.bmp]
(default resources/tree/TreeImages.bmp)
"""
import os
import struct
import sys

PALETTE = {
    ".": (0, 0, 255),  # mask
    "k": (0, 0, 0),
    "g": (128, 128, 128),
    "l": (192, 192, 192),
    "w": (255, 255, 255),
    "y": (250, 214, 104),
    "Y": (196, 148, 32),
    "b": (70, 120, 210),
    "B": (24, 52, 128),
    "c": (150, 200, 240),
    "r": (210, 50, 40),
    "R": (140, 20, 20),
    "G": (60, 160, 70),
    "D": (20, 100, 40),
    "o": (240, 150, 40),
    "p": (150, 80, 180),
}

IMAGES = [
    ("folder closed", [
        "................",
        "................",
        "..YYYYY.........",
        ".YyyyyyY........",
        ".YYYYYYYYYYYYYY.",
        ".Yyyyyyyyyyyyyyk",
        ".Yyyyyyyyyyyyyyk",
        ".Yyyyyyyyyyyyyyk",
        ".Yyyyyyyyyyyyyyk",
        ".Yyyyyyyyyyyyyyk",
        ".Yyyyyyyyyyyyyyk",
        ".Yyyyyyyyyyyyyyk",
        ".YYYYYYYYYYYYYYk",
        "..kkkkkkkkkkkkkk",
        "................",
        "................",
    ]),
    ("folder open", [
        "................",
        "................",
        "..YYYYY.........",
        ".YyyyyyY........",
        ".YyyyyyYYYYYYY..",
        ".Yyyyyyyyyyyyyk.",
        ".YyyYYYYYYYYYYYY",
        ".YyYYyyyyyyyyyyk",
        ".YyYyyyyyyyyyyk.",
        ".YYyyyyyyyyyyyk.",
        ".YYyyyyyyyyyyk..",
        ".Yyyyyyyyyyyyk..",
        ".YYYYYYYYYYYYk..",
        "..kkkkkkkkkkk...",
        "................",
        "................",
    ]),
    ("controller", [
        "................",
        ".kkkkkkkkkkkkkk.",
        ".klllllllllllgk.",
        ".klGklrklokllgk.",
        ".klllllllllllgk.",
        ".klkkkkkkkkklgk.",
        ".klkcccccccklgk.",
        ".klkcccccccklgk.",
        ".klkkkkkkkkklgk.",
        ".klllllllllllgk.",
        ".klwlwlwlwlwlgk.",
        ".klgggggggggggk.",
        ".klllllllllllgk.",
        ".kgggggggggggggk",
        ".kkkkkkkkkkkkkk.",
        "................",
    ]),
    ("task", [
        "................",
        ".....kkkkkk.....",
        "...kkwwwwwwkk...",
        "..kwwwwBwwwwwk..",
        "..kwwwwBwwwwwk..",
        ".kwwwwwBwwwwwwk.",
        ".kwwwwwBwwwwwwk.",
        ".kwwwwwBBBBBwwk.",
        ".kwwwwwwwwwwwwk.",
        ".kwwwwwwwwwwwwk.",
        "..kwwwwwwwwwwk..",
        "..kwwwwwwwwwwk..",
        "...kkwwwwwwkk...",
        ".....kkkkkk.....",
        "................",
        "................",
    ]),
    ("program", [
        "................",
        "..kkkkkkkkkkk...",
        "..kwwwwwwwwwkk..",
        "..kwbbbbbwwwkwk.",
        "..kwwwwwwwwwkkkk",
        "..kwbbbbbbbwwwwk",
        "..kwwwwwwwwwwwwk",
        "..kwbbbbbbbbbwwk",
        "..kwwwwwwwwwwwwk",
        "..kwbbbbbbwwwwwk",
        "..kwwwwwwwwwwwwk",
        "..kwbbbbbbbbwwwk",
        "..kwwwwwwwwwwwwk",
        "..kkkkkkkkkkkkkk",
        "................",
        "................",
    ]),
    ("routine", [
        "................",
        ".k............k.",
        ".k............k.",
        ".k..k.k...GGG.k.",
        ".kkkk.kkkkG.Gkk.",
        ".k..k.k...GGG.k.",
        ".k............k.",
        ".k............k.",
        ".k............k.",
        ".k..k.k...GGG.k.",
        ".kkkk.kkkkG.Gkk.",
        ".k..k.k...GGG.k.",
        ".k............k.",
        ".k............k.",
        ".k............k.",
        "................",
    ]),
    ("tag", [
        "................",
        "................",
        "......oooooooo..",
        ".....oyyyyyyyyo.",
        "....oyyyyyyyyyo.",
        "...oyyykyyyyyyo.",
        "..oyyykkkyyyyyo.",
        ".oyyyyykyyyyyyo.",
        ".oyyyyyyyyyyyyo.",
        "..oyyyyyyyyyyyo.",
        "...oyyyyyyyyyyo.",
        "....oyyyyyyyyyo.",
        ".....oyyyyyyyyo.",
        "......oooooooo..",
        "................",
        "................",
    ]),
    ("data type", [
        "................",
        ".pppppppppppppp.",
        ".pwwwwwwwwwwwwp.",
        ".pwkkkwwwkkkwwp.",
        ".pwwkwwwwkwkwwp.",
        ".pwwkwwwwkkkwwp.",
        ".pwwkwwwwkwwwwp.",
        ".pppppppppppppp.",
        ".pwwwwwwwwwwwwp.",
        ".pwbbbbwwbbbwwp.",
        ".pwwwwwwwwwwwwp.",
        ".pwbbbwwbbbbwwp.",
        ".pwwwwwwwwwwwwp.",
        ".pppppppppppppp.",
        "................",
        "................",
    ]),
    ("module", [
        "................",
        "..kkkkkkkkkkkk..",
        "..kllllllllllk..",
        "..klGlGlGlGllk..",
        "..kllllllllllk..",
        "..klwwwwwwwwlk..",
        "..klwkwkwkwwlk..",
        "..klwwwwwwwwlk..",
        "..klwkwkwkwwlk..",
        "..klwwwwwwwwlk..",
        "..kllllllllllk..",
        "..kgggggggggglk.",
        "..kkkkkkkkkkkk..",
        "...k.k.k.k.k....",
        "...k.k.k.k.k....",
        "................",
    ]),
    ("document", [
        "................",
        "...kkkkkkkk.....",
        "...kwwwwwwkk....",
        "...kwwwwwwkwk...",
        "...kwggggwkkkk..",
        "...kwwwwwwwwwk..",
        "...kwgggggggwk..",
        "...kwwwwwwwwwk..",
        "...kwgggggggwk..",
        "...kwwwwwwwwwk..",
        "...kwggggggwwk..",
        "...kwwwwwwwwwk..",
        "...kwwwwwwwwwk..",
        "...kkkkkkkkkkk..",
        "................",
        "................",
    ]),
    ("warning", [
        "................",
        ".......kk.......",
        "......koyk......",
        "......kyyk......",
        ".....kyyyyk.....",
        ".....kykkyk.....",
        "....kyykkyyk....",
        "....kyykkyyk....",
        "...kyyykkyyyk...",
        "...kyyyyyyyyk...",
        "..kyyyykkyyyyk..",
        "..kyyyykkyyyyk..",
        ".kyyyyyyyyyyyyk.",
        ".kkkkkkkkkkkkkk.",
        "................",
        "................",
    ]),
    ("error", [
        "................",
        ".....RRRRRR.....",
        "...RRrrrrrrRR...",
        "..RrrrrrrrrrrR..",
        "..RrrwwrrrwwrR..",
        ".RrrrwwrrwwrrrR.",
        ".RrrrrwwwwrrrrR.",
        ".RrrrrrwwrrrrrR.",
        ".RrrrrwwwwrrrrR.",
        ".RrrrwwrrwwrrrR.",
        "..RrrwwrrrwwrR..",
        "..RrrrrrrrrrrR..",
        "...RRrrrrrrRR...",
        ".....RRRRRR.....",
        "................",
        "................",
    ]),
    ("checked ok", [
        "................",
        "................",
        "............DD..",
        "...........DGD..",
        "..........DGD...",
        ".........DGD....",
        "..DD....DGD.....",
        "..DGD..DGD......",
        "...DGDDGD.......",
        "....DGGD........",
        ".....DD.........",
        "................",
        "................",
        "................",
        "................",
        "................",
    ]),
]


def check(images, palette=PALETTE):
    for name, rows in images:
        if len(rows) != 16 or any(len(r) != 16 for r in rows):
            raise SystemExit(f"image {name!r} is not 16x16")
        for r in rows:
            for ch in r:
                if ch not in palette:
                    raise SystemExit(f"image {name!r}: unknown colour {ch!r}")


def write_bmp(path, images, palette=PALETTE):
    width = 16 * len(images)
    height = 16
    stride = (width * 3 + 3) & ~3
    pixels = bytearray()
    for y in reversed(range(height)):  # bottom-up
        row = bytearray()
        for _, rows in images:
            for ch in rows[y]:
                r, g, b = palette[ch]
                row += bytes((b, g, r))
        row += bytes(stride - len(row))
        pixels += row
    header = struct.pack("<2sIHHI", b"BM", 14 + 40 + len(pixels), 0, 0, 14 + 40)
    info = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(pixels), 2835, 2835,
                       0, 0)
    with open(path, "wb") as f:
        f.write(header + info + pixels)


def main():
    root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    out = sys.argv[1] if len(sys.argv) > 1 else os.path.join(root, "resources", "tree",
                                                            "TreeImages.bmp")
    check(IMAGES)
    write_bmp(out, IMAGES)
    print(f"{out}: {len(IMAGES)} images")


if __name__ == "__main__":
    main()
