// Embossed, Engraved, Raised and Shadowed: diagonal relief cells beside the painted cells.
//
// A cell is painted by the plain test on PicIcon, which no pass changes, so the order of the
// cells within a pass does not matter. Writing a cell puts the color into Image and black
// into Mask (the cell becomes opaque). Passes, each over the whole picture:
//   Embossed, Engraved, Raised: 1. first color at (x-1,y-1)   2. second color at (x+1,y+1)
//                               3. each painted cell its own color
//   Shadowed:                   1. first color at (x+1,y+1)   2. each painted cell its own color
// Nothing is written outside the picture.
#include "core/effects/shades.h"

namespace vexlo::effects {
namespace {

struct ReliefColors {
    Color First;
    std::optional<Color> Second;  // none for Shadowed
};

std::optional<ReliefColors> ReliefColorsOf(Effect effect, bool useSelectedColor,
                                           Color selectedColor) {
    switch (effect) {
        case Effect::Embossed: return ReliefColors{kWhite, kReliefGray};
        case Effect::Engraved: return ReliefColors{kReliefGray, kWhite};
        case Effect::Raised: return ReliefColors{kWhite, kBlack};
        case Effect::Shadowed:
            return ReliefColors{useSelectedColor ? selectedColor & surface::kRgbMask : kBlack,
                                std::nullopt};
        case Effect::Invert:
        case Effect::Grayscale:
        case Effect::Cast: break;
    }
    return std::nullopt;
}

// One pass: for every painted cell (x,y), writes the cell at (x+dx,y+dy) when it lies in the
// picture, with color, or with the painted cell's own color when color is empty.
void ReliefPass(ShadesPreview& preview, const Surface& picIcon, int dx, int dy,
                std::optional<Color> color) {
    const int w = preview.Image.Width(), h = preview.Image.Height();
    for (int x = 0; x < w; ++x)
        for (int y = 0; y < h; ++y) {
            const Color own = picIcon.GetPixel(x, y);
            if (own == kTransparentGray) continue;
            const int tx = x + dx, ty = y + dy;
            if (tx < 0 || ty < 0 || tx > w - 1 || ty > h - 1) continue;
            preview.Image.SetPixelV(tx, ty, color.value_or(own));
            preview.Mask.SetPixelV(tx, ty, kBlack);
        }
}

}  // namespace

ShadesPreview PreviewRelief(Effect effect, const IconPlanes& planes, bool useSelectedColor,
                            Color selectedColor) {
    ShadesPreview preview = PreparePreview(planes);
    const std::optional<ReliefColors> colors =
        ReliefColorsOf(effect, useSelectedColor, selectedColor);
    if (!colors) return preview;
    if (colors->Second) {
        ReliefPass(preview, planes.PicIcon, -1, -1, colors->First);
        ReliefPass(preview, planes.PicIcon, 1, 1, colors->Second);
    } else {
        ReliefPass(preview, planes.PicIcon, 1, 1, colors->First);
    }
    ReliefPass(preview, planes.PicIcon, 0, 0, std::nullopt);
    return preview;
}

}  // namespace vexlo::effects
