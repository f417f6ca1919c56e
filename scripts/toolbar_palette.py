"""The palettes of the toolbar pictures: one character a color."""

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
