#!/usr/bin/env python3
"""Writes N single-image icon files into a folder for bench/cli_vs_icotool.sh: pictures made
here as PNG with the standard library alone, turned into icons by icotool (icoutils), so that
neither tool being timed made its own input. The icons cycle through 16x16, 32x32 and 48x48
and through 2, 16, 256 and more colors with alpha (icotool picks 1, 4, 8 or 32 bits); every
tenth image is stored as PNG.
    usage: make_bench_icons.py FOLDER [N]
"""
import os
import struct
import subprocess
import sys
import tempfile
import zlib


def write_png(path, side, pixel):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    raw = b"".join(b"\0" + b"".join(bytes(pixel(x, y)) for x in range(side)) for y in range(side))
    with open(path, "wb") as f:
        f.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", side, side, 8, 6, 0, 0, 0))
                + chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b""))


PICTURES = [
    lambda i: lambda x, y: (255, 255, 255, 255) if (x + y + i) % 3 else (0, 0, 0, 255),
    lambda i: lambda x, y: ((0, 0, 128, 255), (255, 0, 0, 255), (0, 128, 0, 255))[(x // 4 + y // 4 + i) % 3],
    lambda i: lambda x, y: ((x * 8 + i) % 256, (y // 3) * 20 % 256, 77, 255),
    lambda i: lambda x, y: ((x * 5) % 256, (y * 5) % 256, (i * 9) % 256, (x * y + i) % 256),
]


def main():
    folder = sys.argv[1]
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 100
    os.makedirs(folder, exist_ok=True)
    with tempfile.TemporaryDirectory() as tmp:
        for i in range(count):
            side = (16, 32, 48)[i % 3]
            png = os.path.join(tmp, "p.png")
            write_png(png, side, PICTURES[(i // 3) % 4](i))
            ico = os.path.join(folder, "icon%03d.ico" % i)
            args = ["-r", png] if i % 10 == 9 else [png]
            subprocess.run(["icotool", "-c", "-o", ico, *args], check=True)


if __name__ == "__main__":
    main()
