#!/usr/bin/env python3
"""Draw Vexlo's Toolbox tool pictures (16x16 RGBA PNG) from ASCII grids.

The same pictures serve as the tool buttons and as the mouse pointer while a
tool is in use.  The pointer's hot spot is the bottom-left pixel (0, 15), so
the working tip of the paint, erase, fill and picker pictures touches it.

Every picture is a 16-line grid of 16 characters looked up in the palette
shared with scripts/draw_toolbar_pictures.py (optionally extended per
picture); '.' is fully transparent.  Only the Python standard library is used.

Usage:
    python3 scripts/draw_toolbox_pictures.py            # write the PNGs
    python3 scripts/draw_toolbox_pictures.py --sheet /tmp/toolbox_sheet.png
                                                        # also write an 8x contact sheet

Style: as the toolbar pictures: dark outlines, the shared palette, light
from the top-left.  Thin shapes (lines, outlines) carry a white companion
pixel so they stay visible on dark button backgrounds too.
"""

import argparse
import os
import sys

sys.dont_write_bytecode = True  # leave no __pycache__ beside the scripts
sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from draw_toolbar_pictures import _DIGITS, render, write_png, write_sheet  # noqa: E402

# --------------------------------------------------------------------------
# Extra colours (added to the shared palette per picture)
# --------------------------------------------------------------------------
# Eraser rubber.
ERASER_PALETTE = {
    'p': (216, 96, 128),        # pink shadow
    'q': (255, 208, 220),       # pink highlight
}
# Soft halo around the spotlight.
SPOT_PALETTE = {
    'h': (255, 224, 96, 150),   # inner glow
    'H': (255, 236, 150, 70),   # outer glow
}

# --------------------------------------------------------------------------
# Pictures: (file name relative to src/gui/resources, grid, extra palette)
# --------------------------------------------------------------------------
PICTURES = []


def picture(name, grid, extra=None):
    PICTURES.append((name, grid, extra or {}))


# 00 Paint: a brush; wooden handle to the top-right, metal ferrule, bristles
# loaded with blue paint whose tip is the bottom-left pixel.
picture('toolbox/tool_00_paint.png', [
    "..............KK",
    ".............KTK",
    "............KTUK",
    "...........KTUK.",
    "..........KTUK..",
    ".........KTUK...",
    "........KKUK....",
    ".......KlLKK....",
    "......KlLLGK....",
    ".....KlLLGGK....",
    "....KKKLGGK.....",
    "...KbbBKKK......",
    "..KbBBBNK.......",
    ".KbBBBNK........",
    "KbBBNK..........",
    "BBNK............",
])

# 01 Erase: a pink rubber in a blue sleeve; the rubbing end is at the
# bottom-left.
picture('toolbox/tool_01_erase.png', [
    "................",
    "................",
    "................",
    "........K.......",
    ".......KbK......",
    "......KbBBK.....",
    ".....KbBBBBK....",
    "....KbBBBBKNK...",
    "...KbBBBBKNNK...",
    "..KqKBBBKNNK....",
    ".KqPPKBKNNK.....",
    "KqPPPPKNNK......",
    "KPPPPKppK.......",
    "KPPPKppK........",
    "KPPKppK.........",
    "KKKKKK..........",
], ERASER_PALETTE)

# 02 Fill: a tipping paint bucket; paint pours from its lip down to the
# bottom-left pixel.
picture('toolbox/tool_02_fill.png', [
    "................",
    ".....GGGG.......",
    "...GG....KKK....",
    "..G....KKBBBK...",
    "..G...KbBBBKK...",
    "..G..KbBBBKGGK..",
    "..G..KBBBKLLGK..",
    "...GKBBKKlLLLGK.",
    "...KKKKllLLLLGGK",
    "....KBK.KlLLLLGK",
    "....KBK..KlLLLK.",
    "....KBK...KLLK..",
    "....KBK....KK...",
    "...KbBK.........",
    "..KbBBNK........",
    "BBBBBBBNK.......",
])

# 03 Replace color: a red square, a curved arrow, a blue square.
picture('toolbox/tool_03_replace.png', [
    "KKKKKK..........",
    "KRRRRK..........",
    "KRRRRK.EEEEE....",
    "KRRRRK.EEEEEE...",
    "KRRRRK......EE..",
    "KKKKKK......EE..",
    "............EE..",
    "..........EEEEEE",
    "...........EEEE.",
    "............EE..",
    "..........KKKKKK",
    "..........KBBBBK",
    "..........KBBBBK",
    "..........KBBBBK",
    "..........KBBBBK",
    "..........KKKKKK",
])

# 04 Spotlight: a glowing oval.
picture('toolbox/tool_04_spotlight.png', [
    "................",
    "................",
    "....HHHHHHHH....",
    "..HHhhhhhhhhHH..",
    ".HhhOOOOOOOOhhH.",
    "HhhOYYYYYYYYOhhH",
    "HhOYyyyyyyyyYOhH",
    "HhOYyyWWWWyyYOhH",
    "HhOYyyWWWWyyYOhH",
    "HhOYyyyyyyyyYOhH",
    "HhhOYYYYYYYYOhhH",
    ".HhhOOOOOOOOhhH.",
    "..HHhhhhhhhhHH..",
    "....HHHHHHHH....",
    "................",
    "................",
], SPOT_PALETTE)

# 05 Line: a diagonal line from the bottom-left to the top-right.
picture('toolbox/tool_05_line.png', [
    "...............K",
    "..............KW",
    ".............KW.",
    "............KW..",
    "...........KW...",
    "..........KW....",
    ".........KW.....",
    "........KW......",
    ".......KW.......",
    "......KW........",
    ".....KW.........",
    "....KW..........",
    "...KW...........",
    "..KW............",
    ".KW.............",
    "KW..............",
])

# 06 Broken line: a dotted diagonal line.
picture('toolbox/tool_06_broken_line.png', [
    "...............K",
    "..............KW",
    "................",
    "................",
    "...........KW...",
    "..........KW....",
    "................",
    "................",
    ".......KW.......",
    "......KW........",
    "................",
    "................",
    "...KW...........",
    "..KW............",
    "................",
    "................",
])

# 07 Rectangle: an outlined rectangle.
picture('toolbox/tool_07_rectangle.png', [
    "................",
    "................",
    "KKKKKKKKKKKKKKKK",
    "KWWWWWWWWWWWWWWK",
    "KW............WK",
    "KW............WK",
    "KW............WK",
    "KW............WK",
    "KW............WK",
    "KW............WK",
    "KW............WK",
    "KW............WK",
    "KWWWWWWWWWWWWWWK",
    "KKKKKKKKKKKKKKKK",
    "................",
    "................",
])

# 08 Filled rectangle: a blue rectangle with a dark outline.
picture('toolbox/tool_08_filled_rectangle.png', [
    "................",
    "................",
    "KKKKKKKKKKKKKKKK",
    "KbbbbbbbbbbbbbBK",
    "KbBBBBBBBBBBBBNK",
    "KbBBBBBBBBBBBBNK",
    "KbBBBBBBBBBBBBNK",
    "KbBBBBBBBBBBBBNK",
    "KbBBBBBBBBBBBBNK",
    "KbBBBBBBBBBBBBNK",
    "KbBBBBBBBBBBBBNK",
    "KbBBBBBBBBBBBBNK",
    "KBNNNNNNNNNNNNNK",
    "KKKKKKKKKKKKKKKK",
    "................",
    "................",
])

# 09 Oval: an outlined ellipse.
picture('toolbox/tool_09_oval.png', [
    "................",
    "................",
    "....KKKKKKKK....",
    "..KKWWWWWWWWKK..",
    ".KWW........WWK.",
    ".KW..........WK.",
    "KW............WK",
    "KW............WK",
    "KW............WK",
    "KW............WK",
    ".KW..........WK.",
    ".KWW........WWK.",
    "..KKWWWWWWWWKK..",
    "....KKKKKKKK....",
    "................",
    "................",
])

# 10 Filled oval: a blue ellipse with a dark outline.
picture('toolbox/tool_10_filled_oval.png', [
    "................",
    "................",
    "....KKKKKKKK....",
    "..KKbbbbbbbbKK..",
    ".KbbbBBBBBBBBNK.",
    ".KbBBBBBBBBBBNK.",
    "KbBBBBBBBBBBBBNK",
    "KbBBBBBBBBBBBBNK",
    "KbBBBBBBBBBBBBNK",
    "KbBBBBBBBBBBBBNK",
    ".KbBBBBBBBBBBNK.",
    ".KBBBBBBBBBBNNK.",
    "..KKNNNNNNNNKK..",
    "....KKKKKKKK....",
    "................",
    "................",
])

# 11 Region: a dashed selection rectangle (black and white dashes).
picture('toolbox/tool_11_region.png', [
    "................",
    "................",
    "KKWWKKWWKKWWKKWW",
    "W..............K",
    "W..............K",
    "K..............W",
    "K..............W",
    "W..............K",
    "W..............K",
    "K..............W",
    "K..............W",
    "W..............K",
    "W..............K",
    "WWKKWWKKWWKKWWKK",
    "................",
    "................",
])

# 12 Shift: arrows pointing in the four directions.
picture('toolbox/tool_12_shift.png', [
    ".......BB.......",
    "......BBBB......",
    ".....BBBBBB.....",
    ".......BB.......",
    ".......BB.......",
    "..B....BB....B..",
    ".BB....BB....BB.",
    "BBBBBBBBBBBBBBBB",
    "BBBBBBBBBBBBBBBB",
    ".BB....BB....BB.",
    "..B....BB....B..",
    ".......BB.......",
    ".......BB.......",
    ".....BBBBBB.....",
    "......BBBB......",
    ".......BB.......",
])

# 13 Picker: an eyedropper; glass tube to the bottom-left, red bulb to the
# top-right.
picture('toolbox/tool_picker.png', [
    "............KKK.",
    "...........KRRRK",
    "..........KRRRrK",
    "........KKKRRrK.",
    ".......KLlKKrK..",
    "......KLlLGKK...",
    "......KKLGGK....",
    ".....KWbKKK.....",
    "....KWbBK.......",
    "...KWbBK........",
    "..KWbBK.........",
    ".KWBBK..........",
    ".KBBK...........",
    "KBBK............",
    "KBK.............",
    "BK..............",
])

# Clear: a red X meaning "no tool".
picture('toolbox/tool_clear.png', [
    "................",
    "................",
    "...KKK....KKK...",
    "..KRRRK..KRRRK..",
    "..KRRRRKKRRRRK..",
    "...KRRRRRRRRK...",
    "....KRRRRRRK....",
    ".....KRRRRK.....",
    "....KRRRRRRK....",
    "...KRRRRRRRRK...",
    "..KRRRRKKRRRRK..",
    "..KRRRK..KRRRK..",
    "...KKK....KKK...",
    "................",
    "................",
    "................",
])


# --------------------------------------------------------------------------
# Contact sheet for reviewing the pictures
# --------------------------------------------------------------------------
_GLYPHS = dict(_DIGITS)
_GLYPHS.update({
    'P': ["111", "101", "111", "100", "100"],
    'C': ["111", "100", "100", "100", "111"],
})


def _label(name):
    tag = os.path.basename(name)
    if tag.startswith('tool_') and tag[5:7].isdigit():
        return tag[5:7]
    if tag.startswith('tool_picker'):
        return 'P'
    return 'C'


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
        write_sheet(args.sheet, images, _label, glyphs=_GLYPHS, per_row=5)
        print('wrote contact sheet %s' % args.sheet)
    return 0


if __name__ == '__main__':
    sys.exit(main())
