#!/usr/bin/env python3
"""Draw Vexlo's toolbar button pictures (16x16 RGBA PNG) from ASCII grids.

Every picture is a 16-line grid of 16 characters; each character is looked
up in the shared palette (optionally extended per picture).  '.' is fully
transparent.  Only the Python standard library is used.

Usage:
    python3 scripts/draw_toolbar_pictures.py            # write the PNGs
    python3 scripts/draw_toolbar_pictures.py --sheet /tmp/toolbar_sheet.png
                                                        # also write an 8x contact sheet

Style: dark outlines, a small shared palette, light from the top-left.
"""

import argparse
import os
import struct
import sys
import zlib

from toolbar_grids_edits import PICTURES as _EDITS
from toolbar_grids_files import PICTURES as _FILES
from toolbar_palette import PALETTE

# (file name relative to src/gui/resources, grid, extra palette), in button order.
PICTURES = _FILES + _EDITS

# --------------------------------------------------------------------------
# PNG writing (RGBA, 8 bits per channel)
# --------------------------------------------------------------------------
def _chunk(kind, data):
    body = kind + data
    return struct.pack('>I', len(data)) + body + struct.pack('>I', zlib.crc32(body) & 0xFFFFFFFF)


def write_png(path, width, height, pixels):
    """pixels: list of rows, each a list of (r, g, b, a) tuples."""
    raw = bytearray()
    for row in pixels:
        raw.append(0)  # filter: none
        for r, g, b, a in row:
            raw += bytes((r, g, b, a))
    png = b'\x89PNG\r\n\x1a\n'
    png += _chunk(b'IHDR', struct.pack('>IIBBBBB', width, height, 8, 6, 0, 0, 0))
    png += _chunk(b'IDAT', zlib.compress(bytes(raw), 9))
    png += _chunk(b'IEND', b'')
    d = os.path.dirname(path)
    if d:
        os.makedirs(d, exist_ok=True)
    with open(path, 'wb') as f:
        f.write(png)


def rgba(c):
    return c if len(c) == 4 else (c[0], c[1], c[2], 255)


def render(name, grid, extra):
    if len(grid) != 16:
        raise ValueError('%s: %d rows, expected 16' % (name, len(grid)))
    pal = dict(PALETTE)
    pal.update(extra)
    out = []
    for y, line in enumerate(grid):
        if len(line) != 16:
            raise ValueError('%s: row %d has %d columns, expected 16' % (name, y, len(line)))
        row = []
        for x, ch in enumerate(line):
            if ch not in pal:
                raise ValueError('%s: unknown colour %r at (%d, %d)' % (name, ch, x, y))
            row.append(rgba(pal[ch]))
        out.append(row)
    return out


# --------------------------------------------------------------------------
# Contact sheet for reviewing the pictures
# --------------------------------------------------------------------------
_DIGITS = {
    '0': ["111", "101", "101", "101", "111"],
    '1': ["010", "110", "010", "010", "111"],
    '2': ["111", "001", "111", "100", "111"],
    '3': ["111", "001", "011", "001", "111"],
    '4': ["101", "101", "111", "001", "001"],
    '5': ["111", "100", "111", "001", "111"],
    '6': ["111", "100", "111", "101", "111"],
    '7': ["111", "001", "010", "010", "010"],
    '8': ["111", "101", "111", "101", "111"],
    '9': ["111", "101", "111", "001", "111"],
    'S': ["111", "100", "111", "001", "111"],
}


def _toolbar_label(name):
    tag = os.path.basename(name)
    return tag[3:5] if tag.startswith('tb_') else 'S'


def write_sheet(path, images, label_of, glyphs=None, scale=8, per_row=7):
    """Contact sheet: every picture at `scale`x on a light and a dark tile,
    plus strips at 1x and 2x on light and dark backgrounds. label_of(name) gives
    each picture's short label."""
    pad = 12
    label_h = 5 * 3 + 6
    cell_w = 16 * scale * 2 + pad * 3
    cell_h = 16 * scale + pad * 2 + label_h
    rows = (len(images) + per_row - 1) // per_row
    strip_h = (16 + 32 + pad * 3) * 2
    width = max(cell_w * per_row, pad + len(images) * 40 + pad)
    height = cell_h * rows + strip_h
    bg = (150, 150, 160)
    light = (236, 236, 236)
    dark = (48, 48, 56)
    canvas = [[bg] * width for _ in range(height)]

    def blend(dst, src):
        a = src[3] / 255.0
        return tuple(int(round(d * (1 - a) + s * a)) for d, s in zip(dst, src[:3]))

    def put(img, ox, oy, s, back):
        for y in range(16):
            for x in range(16):
                c = blend(back, img[y][x])
                for dy in range(s):
                    line = canvas[oy + y * s + dy]
                    for dx in range(s):
                        line[ox + x * s + dx] = c

    def label(text, ox, oy):
        for i, ch in enumerate(text):
            pat = (glyphs or _DIGITS)[ch]
            for y in range(5):
                for x in range(3):
                    if pat[y][x] == '1':
                        for dy in range(3):
                            for dx in range(3):
                                canvas[oy + y * 3 + dy][ox + (i * 4 + x) * 3 + dx] = (0, 0, 0)

    for i, (name, img) in enumerate(images):
        cx = (i % per_row) * cell_w
        cy = (i // per_row) * cell_h
        label(label_of(name), cx + pad, cy + 4)
        put(img, cx + pad, cy + label_h, scale, light)
        put(img, cx + pad * 2 + 16 * scale, cy + label_h, scale, dark)

    # actual-size strips: 1x and 2x, first on light then on dark
    sy = cell_h * rows
    half = strip_h // 2
    for k, back in enumerate((light, dark)):
        top = sy + k * half
        for y in range(top, top + half):
            for x in range(width):
                canvas[y][x] = back
        for i, (name, img) in enumerate(images):
            put(img, pad + i * 22, top + pad, 1, back)
            put(img, pad + i * 40, top + pad * 2 + 16, 2, back)

    write_png(path, width, height, [[c + (255,) for c in row] for row in canvas])


def main(argv=None):
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    here = os.path.dirname(os.path.abspath(__file__))
    ap.add_argument('--out', default=os.path.join(here, '..', 'src', 'gui', 'resources'),
                    help='resources folder to write into')
    ap.add_argument('--sheet', help='also write an 8x contact sheet PNG to this path')
    args = ap.parse_args(argv)

    images = []
    for name, grid, extra in PICTURES:
        img = render(name, grid, extra)
        write_png(os.path.join(args.out, name), 16, 16, img)
        images.append((name, img))
    print('wrote %d pictures under %s' % (len(images), os.path.normpath(args.out)))
    if args.sheet:
        write_sheet(args.sheet, images, _toolbar_label)
        print('wrote contact sheet %s' % args.sheet)
    return 0


if __name__ == '__main__':
    sys.exit(main())
