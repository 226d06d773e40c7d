#!/usr/bin/env python3
"""Draws the layout engine's icons and bitmaps (resources/layout/).

Icons (.ico, each with a 16x16 and a 32x32 image, 32 bits with alpha and an
AND mask) are ladder-diagram symbols drawn from shapes in a unit square, so
both sizes come from one description:
  Contact.ico  a normally open contact  -| |-
  Coil.ico     an output coil           -( )-
  Lamp.ico     an indicator lamp
Bitmaps (.bmp, 24 bits):
  Timer.bmp    48x32  a timer instruction block
  Probe.bmp    8x4    for tests: rows 0-2 red on the left half and blue on
                      the right, row 3 magenta (the transparency colour)
  ProbeAlt.bmp 5x3    for tests: all green

Usage: scripts/gen_layout_images.py [output directory]
(default resources/layout)
"""
import math
import os
import struct
import sys

MAGENTA = (255, 0, 255)
BLACK = (0, 0, 0)
WIRE = (40, 40, 40)
BLUE = (30, 70, 170)
GREEN = (30, 140, 60)
YELLOW = (250, 210, 60)
RED = (200, 40, 30)
WHITE = (255, 255, 255)


def blank(n):
    return [[None] * n for _ in range(n)]


def fill(img, x0, y0, x1, y1, colour):
    """Fills the unit-square box [x0, x1) x [y0, y1)."""
    n = len(img)
    for y in range(round(y0 * n), round(y1 * n)):
        for x in range(round(x0 * n), round(x1 * n)):
            img[y][x] = colour


def ring(img, cx, cy, r_out, r_in, colour, keep=lambda dx: True):
    n = len(img)
    for y in range(n):
        for x in range(n):
            dx, dy = (x + 0.5) / n - cx, (y + 0.5) / n - cy
            d = math.hypot(dx, dy)
            if r_in <= d <= r_out and keep(dx):
                img[y][x] = colour


def wires(img, left_end, right_start):
    fill(img, 0, 7 / 16, left_end, 9 / 16, WIRE)
    fill(img, right_start, 7 / 16, 1, 9 / 16, WIRE)


def contact(n):
    img = blank(n)
    wires(img, 5 / 16, 11 / 16)
    fill(img, 4 / 16, 3 / 16, 6 / 16, 13 / 16, BLUE)
    fill(img, 10 / 16, 3 / 16, 12 / 16, 13 / 16, BLUE)
    return img


def coil(n):
    img = blank(n)
    wires(img, 4 / 16, 12 / 16)
    ring(img, 0.5, 0.5, 6 / 16, 4.6 / 16, GREEN, keep=lambda dx: abs(dx) > 2.5 / 16)
    return img


def lamp(n):
    img = blank(n)
    ring(img, 0.5, 0.5, 6.5 / 16, 0, YELLOW)
    ring(img, 0.5, 0.5, 7 / 16, 5.8 / 16, BLACK)
    return img


def ico(images):
    """An .ico file of square images (rows of (r,g,b) or None)."""
    header = struct.pack('<HHH', 0, 1, len(images))
    entries, blobs = b'', b''
    offset = 6 + 16 * len(images)
    for img in images:
        n = len(img)
        xor = b''.join(
            bytes((c[2], c[1], c[0], 255)) if c else bytes(4) for row in reversed(img)
            for c in row)
        stride = (n + 31) // 32 * 4
        mask = b''
        for row in reversed(img):
            bits = bytearray(stride)
            for x, c in enumerate(row):
                if c is None:
                    bits[x // 8] |= 0x80 >> (x % 8)
            mask += bytes(bits)
        info = struct.pack('<IiiHHIIiiII', 40, n, 2 * n, 1, 32, 0, len(xor) + len(mask), 0, 0,
                           0, 0)
        blob = info + xor + mask
        entries += struct.pack('<BBBBHHII', n, n, 0, 0, 1, 32, len(blob), offset)
        offset += len(blob)
        blobs += blob
    return header + entries + blobs


def bmp(rows):
    """A 24-bit .bmp of rows of (r,g,b)."""
    h, w = len(rows), len(rows[0])
    stride = (w * 3 + 3) // 4 * 4
    pixels = b''
    for row in reversed(rows):
        line = b''.join(bytes((b, g, r)) for r, g, b in row)
        pixels += line + b'\0' * (stride - len(line))
    info = struct.pack('<IiiHHIIiiII', 40, w, h, 1, 24, 0, len(pixels), 2835, 2835, 0, 0)
    head = struct.pack('<2sIHHI', b'BM', 14 + len(info) + len(pixels), 0, 0, 14 + len(info))
    return head + info + pixels


def timer_bitmap():
    w, h = 48, 32
    rows = [[WHITE] * w for _ in range(h)]
    for y in range(h):
        for x in range(w):
            if x in (0, w - 1) or y in (0, h - 1):
                rows[y][x] = BLACK
            elif y < 9:
                rows[y][x] = BLUE
            elif math.hypot(x - 24 + 0.5, y - 20.5) < 8.5:
                edge = math.hypot(x - 24 + 0.5, y - 20.5) > 7
                hand = (x == 23 and 14 <= y <= 20) or (y == 20 and 23 <= x <= 28)
                rows[y][x] = BLACK if edge or hand else YELLOW
    return rows


def probe_bitmap():
    return [[((255, 0, 0) if x < 4 else (0, 0, 255)) if y < 3 else MAGENTA for x in range(8)]
            for y in range(4)]


def main():
    out = sys.argv[1] if len(sys.argv) > 1 else os.path.join('resources', 'layout')
    os.makedirs(out, exist_ok=True)
    files = {
        'Contact.ico': ico([contact(16), contact(32)]),
        'Coil.ico': ico([coil(16), coil(32)]),
        'Lamp.ico': ico([lamp(16), lamp(32)]),
        'Timer.bmp': bmp(timer_bitmap()),
        'Probe.bmp': bmp(probe_bitmap()),
        'ProbeAlt.bmp': bmp([[(0, 255, 0)] * 5 for _ in range(3)]),
    }
    for name, data in files.items():
        with open(os.path.join(out, name), 'wb') as f:
            f.write(data)


if __name__ == '__main__':
    main()
