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

# --------------------------------------------------------------------------
# Shared palette: char -> (r, g, b) or (r, g, b, a)
# --------------------------------------------------------------------------
PALETTE = {
    '.': (0, 0, 0, 0),          # transparent
    'K': (0, 0, 0),             # outline
    'D': (72, 72, 72),          # dark grey
    'G': (128, 128, 128),       # grey
    'L': (192, 192, 192),       # light grey
    'l': (226, 226, 226),       # very light grey
    'W': (255, 255, 255),       # white
    'Y': (255, 212, 64),        # yellow
    'y': (255, 240, 168),       # pale yellow (highlight)
    'O': (208, 152, 32),        # ochre (yellow shadow)
    'o': (150, 100, 16),        # dark ochre
    'B': (40, 96, 216),         # blue
    'b': (128, 176, 255),       # light blue (highlight)
    'N': (16, 40, 136),         # navy (blue shadow)
    'R': (216, 32, 32),         # red
    'r': (136, 8, 8),           # dark red
    'E': (40, 168, 56),         # green
    'e': (144, 224, 128),       # light green (highlight)
    'n': (16, 104, 32),         # dark green (shadow)
    'P': (255, 152, 176),       # pink
    'T': (192, 136, 72),        # tan / wood
    'U': (120, 76, 32),         # dark brown
    'A': (248, 136, 0),         # orange
    'C': (0, 184, 208),         # cyan
    'M': (184, 64, 200),        # magenta
}


def _mix(c1, c2, t):
    """Linear mix of two RGB colours, t in 0..1 (0 -> c1)."""
    return tuple(int(round(a + (b - a) * t)) for a, b in zip(c1, c2))


# Gradient steps for the "Gradient background" picture (top -> bottom).
_GRAD_CHARS = '0123456789ab'
GRADIENT_PALETTE = {
    ch: _mix((24, 56, 176), (236, 244, 255), i / (len(_GRAD_CHARS) - 1))
    for i, ch in enumerate(_GRAD_CHARS)
}

# Checkerboard colours used by the alpha pictures, and a blue seen through
# them at several opacities.
CHECK_LIGHT = (255, 255, 255)
CHECK_DARK = (196, 196, 196)
ALPHA_BLUE = (24, 72, 216)
# Half-transparent blue square over the light / dark checker cells.
ALPHA_PALETTE = {
    'w': CHECK_LIGHT,
    'g': CHECK_DARK,
    'p': _mix(CHECK_LIGHT, ALPHA_BLUE, 0.5),
    'q': _mix(CHECK_DARK, ALPHA_BLUE, 0.5),
    'N': (8, 32, 120),
}
# Fading bar for the status picture: '0'..'7' over light cells,
# 'A'..'H' over dark cells; opacity falls from 1.0 to about 0.1.
_FADE = [1.0, 0.86, 0.72, 0.59, 0.46, 0.34, 0.22, 0.11]
STATUS_PALETTE = {'w': CHECK_LIGHT, 'g': CHECK_DARK}
for _i, _a in enumerate(_FADE):
    STATUS_PALETTE['01234567'[_i]] = _mix(CHECK_LIGHT, ALPHA_BLUE, _a)
    STATUS_PALETTE['ABCDEFGH'[_i]] = _mix(CHECK_DARK, ALPHA_BLUE, _a)

# --------------------------------------------------------------------------
# Pictures: (file name relative to src/gui/resources, grid, extra palette)
# --------------------------------------------------------------------------
PICTURES = []


def picture(name, grid, extra=None):
    PICTURES.append((name, grid, extra or {}))


# 00 New 32x32: a full page with a "32" on it.
picture('toolbar/tb_00_new_32.png', [
    "..KKKKKKKKK.....",
    "..KWWWWWWWKK....",
    "..KWWWWWWWKlK...",
    "..KWWWWWWWKKKK..",
    "..KWWWWWWWWWlK..",
    "..KWWWWWWWWWlK..",
    "..KWWWWWWWWWlK..",
    "..KWBBBWBBBWlK..",
    "..KWWWBWWWBWlK..",
    "..KWWBBWBBBWlK..",
    "..KWWWBWBWWWlK..",
    "..KWBBBWBBBWlK..",
    "..KWWWWWWWWWlK..",
    "..KWWWWWWWWWlK..",
    "..KllllllllllK..",
    "..KKKKKKKKKKKK..",
])

# 01 New 16x16: a smaller page with a "16" on it.
picture('toolbar/tb_01_new_16.png', [
    "................",
    "................",
    "................",
    "................",
    "...KKKKKKK......",
    "...KWWWWWKK.....",
    "...KWWWWWKlK....",
    "...KWWWWWKKKK...",
    "...KWWWWWWWlK...",
    "...KWWBWBBBlK...",
    "...KWBBWBWWlK...",
    "...KWWBWBBBlK...",
    "...KWWBWBWBlK...",
    "...KWWBWBBBlK...",
    "...KllllllllK...",
    "...KKKKKKKKKK...",
])

# 02 Open icon file: an open folder.
picture('toolbar/tb_02_open.png', [
    "................",
    "................",
    "................",
    ".KKKK...........",
    "KyyyyK..........",
    "KyOOOOKKKKKKK...",
    "KyOOOOOOOOOOK...",
    "KyOKKKKKKKKKKKKK",
    "KyOKyyyyyyyyyyyK",
    "KOKYYYYYYYYYYYK.",
    "KOKYYYYYYYYYYYK.",
    "KKYYYYYYYYYYYOK.",
    "KKYYYYYYYYYYYK..",
    "KKOOOOOOOOOOOK..",
    "KKKKKKKKKKKKKK..",
    "................",
])

# 03 Display all icons in folder: a folder carrying a grid of tiny icons.
picture('toolbar/tb_03_folder_icons.png', [
    "................",
    ".KKKK...........",
    "KyyyyKKKKKKKKKK.",
    "KyyyyyyyyyyyyyK.",
    "KyYYYYYYYYYYYOK.",
    "KyKKKKYKKKKYYOK.",
    "KyKRRKYKEEKYYOK.",
    "KyKRRKYKEEKYYOK.",
    "KyKKKKYKKKKYYOK.",
    "KyYYYYYYYYYYYOK.",
    "KyKKKKYKKKKYYOK.",
    "KyKBBKYKAAKYYOK.",
    "KyKBBKYKAAKYYOK.",
    "KyKKKKYKKKKYYOK.",
    "KOOOOOOOOOOOOOK.",
    "KKKKKKKKKKKKKKK.",
])

# 04 Save to icon file: a floppy disk.
picture('toolbar/tb_04_save.png', [
    "................",
    ".KKKKKKKKKKKKKK.",
    ".KbKWWWWWWWWKBK.",
    ".KbKWWWWWWWWKBK.",
    ".KbKWGGGGGGWKBK.",
    ".KbKWWWWWWWWKBK.",
    ".KbKWGGGGGGWKBK.",
    ".KbKWWWWWWWWKBK.",
    ".KbBKKKKKKKKBBK.",
    ".KbBBBBBBBBBBNK.",
    ".KbBBLLLLLLLBNK.",
    ".KbBBLDDLLLLBNK.",
    ".KbBBLDDLLLLBNK.",
    ".KbBBLLLLLLLBNK.",
    ".KKKKKKKKKKKKKK.",
    "................",
])

# 05 Save as: a floppy disk with a pencil.
picture('toolbar/tb_05_save_as.png', [
    "KKKKKKKKKKKK....",
    "KbKWWWWWWKBK....",
    "KbKWGGGGWKBK....",
    "KbKWWWWWWKBK....",
    "KbKWGGGGWKBK....",
    "KbKWWWWWWKBKKKK.",
    "KbBKKKKKKBBKPPPK",
    "KbBBBBBBBBKPPPK.",
    "KbBLLLLLLKLLLK..",
    "KbBLDDLLKyYOK...",
    "KbBLDDLKyYOK....",
    "KKKKKKKyYOK.....",
    ".....KyYOK......",
    "....KTTTK.......",
    "...KTTK.........",
    "..DDK...........",
])

# 06 Undo: arrow heading left, tail curving down on the right.
picture('toolbar/tb_06_undo.png', [
    "................",
    ".....K..........",
    "....KbK.........",
    "...KbBK.........",
    "..KbBBKKKKK.....",
    ".KbBBBbbbbbKK...",
    "KbBBBBBBBBBBBK..",
    ".KBBBBBBBBBBBNK.",
    "..KBBBKKKKBBBNK.",
    "...KBBK...KBBNK.",
    "....KBK...KBBNK.",
    ".....K....KBBNK.",
    "..........KBBNK.",
    "..........KBBNK.",
    "...........KKK..",
    "................",
])

# 07 Redo: mirror image of undo.
picture('toolbar/tb_07_redo.png', [
    "................",
    "..........K.....",
    ".........KbK....",
    ".........KBbK...",
    ".....KKKKKBBbK..",
    "...KKbbbbbBBBbK.",
    "..KbBBBBBBBBBBbK",
    ".KbBBBBBBBBBBBK.",
    ".KbBBKKKKBBBNK..",
    ".KbBK...KBBNK...",
    ".KbBK...KBNK....",
    ".KbBK....KK.....",
    ".KbBK...........",
    ".KbBK...........",
    "..KKK...........",
    "................",
])

# 08 Cut and copy: scissors in front of a page.
picture('toolbar/tb_08_cut_copy.png', [
    "........KKKKKK..",
    "........KWWWWKK.",
    "........KWGGWKlK",
    ".K......KWWWWKKK",
    ".KK....KKWGGGGWK",
    ".KWK..KLKWWWWWWK",
    "..KWKKLKKWGGGGWK",
    "...KWLK.KWWWWWWK",
    "...KDDK.KWGGGGWK",
    "..KLKKLKKWWWWWWK",
    ".KLK..KLKKKKKKKK",
    ".KKK..KKK.......",
    "KRRRKKRRRK......",
    "KRKRKKRKRK......",
    "KRRRKKRRRK......",
    ".KKK..KKK.......",
])

# 09 Cut: scissors.
picture('toolbar/tb_09_cut.png', [
    "..K..........K..",
    "..KK........KK..",
    "..KWK......KLK..",
    "...KWK....KLK...",
    "...KWLK..KLLK...",
    "....KWLKKLLK....",
    ".....KWLLLK.....",
    ".....KLDDLK.....",
    "....KLLKKLLK....",
    "..KKKKK..KKKKK..",
    ".KRRRRK..KRRRRK.",
    "KRRKKRRKKRRKKRRK",
    "KRK..KRKKRK..KRK",
    "KRRKKRRKKRRKKRRK",
    ".KRRRRK..KRRRRK.",
    "..KKKK....KKKK..",
])

# 10 Copy: two overlapping pages.
picture('toolbar/tb_10_copy.png', [
    ".KKKKKKKKK......",
    ".KWWWWWWWK......",
    ".KWGGGGGWK......",
    ".KWWWWWWWK......",
    ".KWGGGKKKKKKKKK.",
    ".KWWWWKWWWWWWWK.",
    ".KWGGGKWGGGGGWK.",
    ".KWWWWKWWWWWWWK.",
    ".KWGGGKWGGGGGWK.",
    ".KWWWWKWWWWWWWK.",
    ".KWWWWKWGGGGGWK.",
    ".KKKKKKWWWWWWWK.",
    "......KWGGGGGWK.",
    "......KWWWWWWWK.",
    "......KWWWWWWWK.",
    "......KKKKKKKKK.",
])

# 11 Paste: a clipboard.
picture('toolbar/tb_11_paste.png', [
    "......KKKK......",
    ".KKKKKLllLKKKKK.",
    ".KTTKLLKKLLKTTK.",
    ".KTTKKKKKKKKTTK.",
    ".KTWWWWWWWWWWUK.",
    ".KTWGGGGGGGGWUK.",
    ".KTWWWWWWWWWWUK.",
    ".KTWGGGGGGWWWUK.",
    ".KTWWWWWWWWWWUK.",
    ".KTWGGGGGGGGWUK.",
    ".KTWWWWWWWWWWUK.",
    ".KTWGGGGGWWWWUK.",
    ".KTWWWWWWWWWWUK.",
    ".KTWWWWWWWWWWUK.",
    ".KTUUUUUUUUUUUK.",
    ".KKKKKKKKKKKKKK.",
])

# 12 Paste opaque: a clipboard holding a solid filled square.
picture('toolbar/tb_12_paste_opaque.png', [
    "......KKKK......",
    ".KKKKKLllLKKKKK.",
    ".KTTKLLKKLLKTTK.",
    ".KTTKKKKKKKKTTK.",
    ".KTWWWWWWWWWWUK.",
    ".KTWGGGGGGGGWUK.",
    ".KTWKKKKKKKWWUK.",
    ".KTWKbbbbbKGWUK.",
    ".KTWKbBBBBKWWUK.",
    ".KTWKbBBBBKGWUK.",
    ".KTWKbBBBBKWWUK.",
    ".KTWKbBBBBKGWUK.",
    ".KTWKKKKKKKWWUK.",
    ".KTWWWWWWWWWWUK.",
    ".KTUUUUUUUUUUUK.",
    ".KKKKKKKKKKKKKK.",
])

# 13 Flip horizontally: two triangles mirrored around a dashed vertical axis.
picture('toolbar/tb_13_flip_horizontal.png', [
    "................",
    ".......G........",
    ".....K.G.K......",
    "....KK...KK.....",
    "...KBK.G.KWK....",
    "..KBBK.G.KWWK...",
    ".KBBBK...KWWWK..",
    "KBBBBK.G.KWWWWK.",
    "KBBBBK.G.KWWWWK.",
    ".KBBBK...KWWWK..",
    "..KBBK.G.KWWK...",
    "...KBK.G.KWK....",
    "....KK...KK.....",
    ".....K.G.K......",
    ".......G........",
    "................",
])

# 14 Flip vertically: two triangles mirrored around a dashed horizontal axis.
picture('toolbar/tb_14_flip_vertical.png', [
    ".......KK.......",
    "......KBBK......",
    ".....KBBBBK.....",
    "....KBBBBBBK....",
    "...KBBBBBBBBK...",
    "..KKKKKKKKKKKK..",
    "................",
    ".GG.GG.GG.GG.GG.",
    "................",
    "..KKKKKKKKKKKK..",
    "...KWWWWWWWWK...",
    "....KWWWWWWK....",
    ".....KWWWWK.....",
    "......KWWK......",
    ".......KK.......",
    "................",
])

# 15 Rotate left 90 degrees: counter-clockwise circular arrow.
picture('toolbar/tb_15_rotate_left.png', [
    ".......K........",
    "......KeK.......",
    ".....KeEK.......",
    "....KeEEKKK.....",
    "...KEEEEeeeK....",
    "...KEEEEEEEeK...",
    "....KEEEKKEEeK..",
    ".....KEEK.KEEeK.",
    "......KEK..KEeK.",
    "...KK..K...KEeK.",
    "..KnEK.....KEEK.",
    "..KnEEK...KEEEK.",
    "...KnEEKKKEEEK..",
    "....KnnEEEEEK...",
    ".....KnnnnnK....",
    "......KKKKK.....",
])

# 16 Rotate right 90 degrees: clockwise circular arrow.
picture('toolbar/tb_16_rotate_right.png', [
    "........K.......",
    ".......KeK......",
    ".......KEeK.....",
    ".....KKKEEeK....",
    "....KeeeEEEEK...",
    "...KeEEEEEEEK...",
    "..KeEEKKEEEK....",
    ".KeEEK.KEEK.....",
    ".KeEK..KEK......",
    ".KeEK...K..KK...",
    ".KEEK.....KEnK..",
    ".KEEEK...KEEnK..",
    "..KEEEKKKEEnK...",
    "...KEEEEEnnK....",
    "....KnnnnnK.....",
    ".....KKKKK......",
])

# 17 Add text: a bold letter A.
picture('toolbar/tb_17_text.png', [
    "................",
    "......KKKK......",
    "......KKKK......",
    ".....KKKKKK.....",
    ".....KKKKKK.....",
    "....KKK..KKK....",
    "....KKK..KKK....",
    "...KKK....KKK...",
    "...KKK....KKK...",
    "..KKKKKKKKKKKK..",
    "..KKKKKKKKKKKK..",
    ".KKK........KKK.",
    ".KKK........KKK.",
    "KKK..........KKK",
    "KKK..........KKK",
    "................",
])

# 18 Buttonize: a raised 3D button.
picture('toolbar/tb_18_buttonize.png', [
    "................",
    "................",
    "KKKKKKKKKKKKKKKK",
    "KWWWWWWWWWWWWWDK",
    "KWlllllllllllGDK",
    "KWlLLLLLLLLLLGDK",
    "KWlLLLLLLLLLLGDK",
    "KWlLLLLLLLLLLGDK",
    "KWlLLLLLLLLLLGDK",
    "KWlLLLLLLLLLLGDK",
    "KWlLLLLLLLLLLGDK",
    "KWGGGGGGGGGGGGDK",
    "KDDDDDDDDDDDDDDK",
    "KKKKKKKKKKKKKKKK",
    "................",
    "................",
])

# 19 Adjust painted color: a sun (brightness).
picture('toolbar/tb_19_adjust_color.png', [
    ".......AA.......",
    ".AA....AA....AA.",
    "..AA...AA...AA..",
    "...A........A...",
    "......KKKK......",
    ".....KyyYYK.....",
    "....KyYYYYOK....",
    "AAA.KYYYYYOK.AAA",
    "AAA.KYYYYYOK.AAA",
    "....KYYYYOOK....",
    ".....KYOOOK.....",
    "......KKKK......",
    "...A........A...",
    "..AA...AA...AA..",
    ".AA....AA....AA.",
    ".......AA.......",
])

# 20 Gradient background: a square filled with a top-to-bottom gradient.
picture('toolbar/tb_20_gradient.png', [
    "................",
    ".KKKKKKKKKKKKKK.",
    ".K000000000000K.",
    ".K111111111111K.",
    ".K222222222222K.",
    ".K333333333333K.",
    ".K444444444444K.",
    ".K555555555555K.",
    ".K666666666666K.",
    ".K777777777777K.",
    ".K888888888888K.",
    ".K999999999999K.",
    ".KaaaaaaaaaaaaK.",
    ".KbbbbbbbbbbbbK.",
    ".KKKKKKKKKKKKKK.",
    "................",
], GRADIENT_PALETTE)

# 21 General properties: an "i" information mark.
picture('toolbar/tb_21_properties.png', [
    "......KKKK......",
    "....KKbbbbKK....",
    "...KbbbBBBBBK...",
    "..KbbBBWWBBBBK..",
    ".KbBBBBWWBBBBBK.",
    ".KbBBBBBBBBBBBK.",
    "KbBBBBWWWBBBBBBK",
    "KbBBBBBWWBBBBBBK",
    "KBBBBBBWWBBBBBBK",
    "KBBBBBBWWBBBBBNK",
    ".KBBBBBWWBBBBNK.",
    ".KBBBBBWWBBBBNK.",
    "..KBBBWWWWBBNK..",
    "...KBBBBBBNNK...",
    "....KKNNNNKK....",
    "......KKKK......",
])

# 22 Extract icons from ANI file: a film strip with an arrow coming out.
picture('toolbar/tb_22_extract_ani.png', [
    "KKKKKKKKKKKKKKKK",
    "KDlDDlDDlDDlDDlK",
    "KDDDDDDDDDDDDDDK",
    "KbbbbDbbbbDbbbbK",
    "KbRbbDbbRbDbbbRK",
    "KbbbbDbbbbDbbbbK",
    "KDDDDDDDDDDDDDDK",
    "KDlDDlDDlDDlDDlK",
    "KKKKKKKKKKKKKKKK",
    "......KEEK......",
    "......KEEK......",
    "...KKKKEEKKKK...",
    "....KeEEEEnK....",
    ".....KEEEnK.....",
    "......KEnK......",
    ".......KK.......",
])

# 23 Capture image from desktop: a camera.
picture('toolbar/tb_23_capture.png', [
    "................",
    "................",
    "....KKKKK.......",
    "...KlllllK..KKK.",
    "KKKKKKKKKKKKKRKK",
    "KllllKKKKKKllllK",
    "KLLLKDbbbbDKLLLK",
    "KLLKDbWbbbBDKLLK",
    "KLLKbWbbbbBBKLLK",
    "KLLKbbbbbBBBKLLK",
    "KGGKbbbbBBBNKGGK",
    "KGGKDbBBBBNDKGGK",
    "KGGGKDBBBNDKGGGK",
    "KGGGGKKKKKKGGGGK",
    "KKKKKKKKKKKKKKKK",
    "................",
])

# 24 Create/edit animated cursor: a film strip with a pointer arrow.
picture('toolbar/tb_24_ani_cursor.png', [
    "KKKKKKKKKKKKKKKK",
    "KDlDDlDDlDDlDDlK",
    "KDDDDDDDDDDDDDDK",
    "KbbbbDbbbbDbbbbK",
    "KbRbbDbKRbDbbbRK",
    "KbbbbDbKKbDbbbbK",
    "KDDDDDDKWKDDDDDK",
    "KDlDDlDKWWKlDDlK",
    "KKKKKKKKWWWKKKKK",
    ".......KWWWWK...",
    ".......KWWWWWK..",
    ".......KWWKKKKK.",
    ".......KWKKWK...",
    ".......KK.KWK...",
    ".......K...KWK..",
    "...........KK...",
])

# 25 View/edit/create Alpha (32 BPP icon): a half-transparent square on a
# checkerboard.
picture('toolbar/tb_25_alpha.png', [
    "................",
    ".KKKKKKKKKKKKKK.",
    ".KwwwgggwwwgggK.",
    ".KwwwgggwwwgggK.",
    ".KwwNNNNNNNNggK.",
    ".KggNpppqqqNwwK.",
    ".KggNpppqqqNwwK.",
    ".KggNpppqqqNwwK.",
    ".KwwNqqqpppNggK.",
    ".KwwNqqqpppNggK.",
    ".KwwNqqqpppNggK.",
    ".KggNNNNNNNNwwK.",
    ".KgggwwwgggwwwK.",
    ".KgggwwwgggwwwK.",
    ".KKKKKKKKKKKKKK.",
    "................",
], ALPHA_PALETTE)

# Status bar: checkerboard with a blue bar fading out to the right.
picture('status/alpha.png', [
    "................",
    "KKKKKKKKKKKKKKKK",
    "KwwwgggwwwgggwwK",
    "KwwwgggwwwgggwwK",
    "KgggwwwgggwwwggK",
    "KAAB122DEE556GHK",
    "KAAB122DEE556GHK",
    "K001BCC344FFG67K",
    "K001BCC344FFG67K",
    "K001BCC344FFG67K",
    "KAAB122DEE556GHK",
    "KgggwwwgggwwwggK",
    "KgggwwwgggwwwggK",
    "KwwwgggwwwgggwwK",
    "KKKKKKKKKKKKKKKK",
    "................",
], STATUS_PALETTE)


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
