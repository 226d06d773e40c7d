#!/usr/bin/env python3
"""Draws the splitter's resize cursor (cursor 30980): a 32x32 monochrome
cursor showing two bars with arrows pointing left and right, black with a
white outline so that it shows on light and dark ground. The hot spot is the
centre between the bars.

The shape is a 32x32 character map: 'k' black, 'w' white, '.' transparent.
The white outline is not drawn by hand: every transparent pixel that touches
a black one (in eight directions) becomes white.

Usage: scripts/gen_tab_cursors.py [output.cur]
(default resources/tabs/TabSplitter.cur)
"""
import os
import struct
import sys

SIZE = 32
HOTSPOT = (15, 15)


def shape():
    """Black pixels of the cursor as a set of (x, y)."""
    black = set()
    for y in range(7, 24):  # the two bars
        black.add((14, y))
        black.add((16, y))
    for x in list(range(4, 13)) + list(range(19, 28)):  # the arrow shafts
        black.add((x, 15))
    for d in range(1, 5):  # the arrow heads
        for y in range(15 - d, 16 + d):
            black.add((3 + d, y))
            black.add((28 - d, y))
    black.add((3, 15))
    black.add((28, 15))
    return black


def character_map():
    black = shape()
    rows = []
    for y in range(SIZE):
        row = ""
        for x in range(SIZE):
            if (x, y) in black:
                row += "k"
            elif any((x + dx, y + dy) in black for dx in (-1, 0, 1) for dy in (-1, 0, 1)):
                row += "w"
            else:
                row += "."
        rows.append(row)
    return rows


def mask_rows(rows, bit_of):
    """1-bit rows, bottom-up, each padded to 32 bits."""
    data = b""
    for row in reversed(rows):
        value = 0
        for x, ch in enumerate(row):
            if bit_of(ch):
                value |= 1 << (31 - x)
        data += struct.pack(">I", value)
    return data


def cursor_file(rows):
    # XOR mask: 1 for white; AND mask: 1 where the screen shows through.
    xor = mask_rows(rows, lambda ch: ch == "w")
    and_ = mask_rows(rows, lambda ch: ch == ".")
    header = struct.pack("<IiiHHIIiiII", 40, SIZE, SIZE * 2, 1, 1, 0, len(xor) + len(and_), 0,
                         0, 2, 0)
    palette = struct.pack("<II", 0x000000, 0xFFFFFF)
    image = header + palette + xor + and_
    directory = struct.pack("<HHH", 0, 2, 1)
    entry = struct.pack("<BBBBHHII", SIZE, SIZE, 0, 0, HOTSPOT[0], HOTSPOT[1], len(image), 6 + 16)
    return directory + entry + image


def main():
    out = sys.argv[1] if len(sys.argv) > 1 else os.path.join(
        os.path.dirname(__file__), "..", "resources", "tabs", "TabSplitter.cur")
    rows = character_map()
    with open(out, "wb") as f:
        f.write(cursor_file(rows))
    print("\n".join(rows))


if __name__ == "__main__":
    main()
