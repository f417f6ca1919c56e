#!/usr/bin/env python3
"""Draws Vexlo's application icon: a 16x16 picture, cell by cell, written as PNG files of 16,
32 and 48 pixels (each cell a 1x1, 2x2 or 3x3 block, as the Editing Area magnifies) and as a
scalable SVG of the same cells. The PNG files are then saved as an icon file by Vexlo's own
writer (vexlo-cli convert), so the picture is drawn and stored the way the editor does.

usage: scripts/draw_app_icon.py OUTDIR [VEXLO_CLI]
"""
import os
import struct
import subprocess
import sys
import zlib

# The picture: a framed grid of painted cells with a pencil over its corner. '.' is transparent.
PICTURE = [
    "................",
    ".kkkkkkkkkkkkk..",
    ".kwwwwwwwwwwwk..",
    ".kwrrwbbwggwwk..",
    ".kwrrwbbwggwwk..",
    ".kwwwwwwwwwwwk..",
    ".kwyywmmwccwwk..",
    ".kwyywmmwccwwk.o",
    ".kwwwwwwwwwwwkoy",
    ".kwoowggwwwwwoy.",
    ".kwoowggwwwwoy..",
    ".kwwwwwwwwwoyk..",
    ".kkkkkkkkkoykk..",
    ".........t......",
    "........k.......",
    "................",
]
COLORS = {
    "k": (0x20, 0x24, 0x30), "w": (0xFF, 0xFF, 0xFF), "r": (0xE0, 0x30, 0x30),
    "b": (0x30, 0x60, 0xE0), "g": (0x30, 0xA0, 0x40), "y": (0xF0, 0xC0, 0x20),
    "m": (0xC0, 0x40, 0xC0), "c": (0x20, 0xB0, 0xC0), "o": (0xF0, 0x80, 0x20),
    "t": (0x60, 0x40, 0x30),
}


def cell(x, y):
    row = PICTURE[y].ljust(16, ".")
    return COLORS.get(row[x])


def write_png(path, scale):
    side = 16 * scale
    rows = b""
    for y in range(side):
        rows += b"\0"
        for x in range(side):
            c = cell(x // scale, y // scale)
            rows += bytes(c + (255,)) if c else b"\0\0\0\0"

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    header = struct.pack(">IIBBBBB", side, side, 8, 6, 0, 0, 0)
    with open(path, "wb") as f:
        f.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows, 9)) +
                chunk(b"IEND", b""))


def write_svg(path):
    rects = []
    for y in range(16):
        for x in range(16):
            c = cell(x, y)
            if c:
                rects.append('<rect x="%d" y="%d" width="1" height="1" fill="#%02x%02x%02x"/>' % ((x, y) + c))
    with open(path, "w") as f:
        f.write('<svg xmlns="http://www.w3.org/2000/svg" width="256" height="256" viewBox="0 0 16 16" '
                'shape-rendering="crispEdges">\n' + "\n".join(rects) + "\n</svg>\n")


def main():
    out = sys.argv[1]
    cli = sys.argv[2] if len(sys.argv) > 2 else None
    os.makedirs(out, exist_ok=True)
    for scale in (1, 2, 3):
        side = 16 * scale
        png = os.path.join(out, "vexlo-%d.png" % side)
        write_png(png, scale)
        if cli:
            subprocess.run([cli, "convert", png, os.path.join(out, "vexlo-%d.ico" % side)], check=True)
    write_svg(os.path.join(out, "vexlo.svg"))


if __name__ == "__main__":
    main()
