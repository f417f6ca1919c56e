"""Toolbar pictures 13 to 25 and the status bar: transforms, effects, extraction, alpha."""

from toolbar_palette import GRADIENT_PALETTE, ALPHA_PALETTE, STATUS_PALETTE  # noqa: F401

PICTURES = []


def picture(name, grid, extra=None):
    PICTURES.append((name, grid, extra or {}))


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
