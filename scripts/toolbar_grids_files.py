"""Toolbar pictures 00 to 12: files, undo and the clipboard (16 x 16 ASCII grids)."""

from toolbar_palette import PALETTE  # noqa: F401

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
