#include "core/tools/fill.h"

namespace vexlo::tools {

namespace {

constexpr Color kBlack = 0x000000;
constexpr Color kWhite = 0xFFFFFF;
constexpr Color kGray = 0xC0C0C0;
constexpr Color kRed = 0x0000FF;
constexpr Color kYellow = 0x00FFFF;

// picTemp after the flood: a copy of picIcon whose area at (c, r) took fillColor.
Surface FloodedCopy(const Surface& picIcon, int c, int r, Color fillColor) {
    Surface picTemp(picIcon.Width(), picIcon.Height(), kWhite);
    surface::BitBlt(picTemp, 0, 0, picIcon.Width(), picIcon.Height(), picIcon, 0, 0,
                    surface::Rop::SrcCopy);
    surface::ExtFloodFill(picTemp, c, r, picTemp.GetPixel(c, r), surface::kFloodFillSurface,
                          fillColor);
    return picTemp;
}

void SetPainted(Surface& picImage, Surface& picMask, int x, int y, Color c) {
    picImage.SetPixelV(x, y, c);
    picMask.SetPixelV(x, y, kBlack);
}

void SetTransparent(Surface& picImage, Surface& picMask, int x, int y) {
    picImage.SetPixelV(x, y, kBlack);
    picMask.SetPixelV(x, y, kWhite);
}

void FillTransparentAt(Surface& picImage, Surface& picMask, const Surface& picIcon, int c, int r,
                       Color selected) {
    if (IsTransparentPixel(picImage, picMask, c, r)) return;
    // The flood needs a color other than the area's own for picTemp to show it. The test is
    // on picImage, not on the composed color: an inverting pixel whose composed color equals
    // `selected` therefore floods in its own color, and nothing changes.
    Color fillColor = selected;
    if (picImage.GetPixel(c, r) == selected) fillColor = selected == kRed ? kYellow : kRed;
    const Surface picTemp = FloodedCopy(picIcon, c, r, fillColor);
    for (int y = 0; y < picIcon.Height(); ++y)
        for (int x = 0; x < picIcon.Width(); ++x)
            if (picTemp.GetPixel(x, y) != picIcon.GetPixel(x, y) &&
                !IsTransparentPixel(picImage, picMask, x, y))
                SetTransparent(picImage, picMask, x, y);
}

}  // namespace

bool IsTransparentPixel(const Surface& picImage, const Surface& picMask, int x, int y) {
    return picImage.GetPixel(x, y) == kBlack && picMask.GetPixel(x, y) == kWhite;
}

void FillAt(Surface& picImage, Surface& picMask, const Surface& picIcon, int cellX, int cellY,
            Color selected, bool shift) {
    if (!picIcon.Contains(cellX, cellY)) return;
    if (shift) {
        FillTransparentAt(picImage, picMask, picIcon, cellX, cellY, selected);
        return;
    }
    const bool clickedTransparent = IsTransparentPixel(picImage, picMask, cellX, cellY);
    // The flood runs through a transparent area and a painted 0xC0C0C0 alike (the same composed
    // color), but only the clicked pixel's class takes the fill. A `selected` equal to the
    // composed color leaves picTemp, and so the picture, as it was.
    const Surface picTemp = FloodedCopy(picIcon, cellX, cellY, selected);
    for (int y = 0; y < picIcon.Height(); ++y)
        for (int x = 0; x < picIcon.Width(); ++x)
            if (picTemp.GetPixel(x, y) != picIcon.GetPixel(x, y) &&
                IsTransparentPixel(picImage, picMask, x, y) == clickedTransparent)
                SetPainted(picImage, picMask, x, y, selected);
}

// Composed 0xC0C0C0 is both a painted gray (mask 0x000000) and a transparent pixel (mask
// 0xFFFFFF), and Replace Color changes one class only. The rule reads a flag from a mask pixel:
// set when that pixel is 0xFFFFFF, and then the pixels with mask 0x000000 change, else those
// with mask 0xFFFFFF. Our choice follows the tooltip, "Replace painted color (+Shift key if to
// replace by transparent)": the flag is read from the mask of a transparent pixel, so it is
// always set. The painted grays are replaced (by `selected`, or with shift by transparent) and
// transparent pixels never change, whichever of the two classes was clicked. (Reading the
// clicked pixel's mask instead would agree on a click on a transparent pixel, but a click on a
// painted gray would then paint the transparent background and leave the painted grays.)
void ReplaceColorAt(Surface& picImage, Surface& picMask, const Surface& picIcon, int cellX,
                    int cellY, Color selected, bool shift) {
    if (!picIcon.Contains(cellX, cellY)) return;
    const Color t = picIcon.GetPixel(cellX, cellY);
    constexpr bool flag = true;  // as read from a transparent pixel's mask, 0xFFFFFF
    for (int y = 0; y < picIcon.Height(); ++y)
        for (int x = 0; x < picIcon.Width(); ++x) {
            if (picIcon.GetPixel(x, y) != t) continue;
            if (t == kGray && picMask.GetPixel(x, y) != (flag ? kBlack : kWhite)) continue;
            if (shift)
                SetTransparent(picImage, picMask, x, y);
            else
                SetPainted(picImage, picMask, x, y, selected);
        }
}

}  // namespace vexlo::tools
