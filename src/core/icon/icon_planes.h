#pragma once
// One icon as the program holds it: the image plane, the mask plane and, for a 32-bit icon,
// its alpha values, all of one square size. Compose is the one place where the two planes
// become the picture that the user sees.
#include "core/alpha/alpha_array.h"
#include "core/icon/icon_colors.h"
#include "core/surface/surface.h"

namespace vexlo::icon {

using surface::Surface;

// SizeCode: 1 = 16x16, 2 = 32x32, 3 = 48x48. Anything else is no icon size.
constexpr int IconSideOf(int sizeCode) {
    return sizeCode == 1 ? 16 : sizeCode == 2 ? 32 : sizeCode == 3 ? 48 : 0;
}
constexpr int SizeCodeOfSide(int side) {
    return side == 16 ? 1 : side == 32 ? 2 : side == 48 ? 3 : 0;
}

// A plain record of one icon's pictures.
struct IconPlanes {
    Surface Image;
    Surface Mask;
    alpha::AlphaArray Alpha;  // the single element when the icon has no alpha values

    int Side() const { return Image.Width(); }
};

// The composed icon: out cleared to its back color, then the mask ANDed and the image XORed
// over the w x h pixels at its origin (out's own size when w or h is below 0). Painted pixels
// show their color, transparent ones the back color, inverting ones the back color inverted.
void Compose(const Surface& image, const Surface& mask, Surface& out, int w = -1, int h = -1);

// Compose into out given the image's size first (out keeps its back color).
void ComposeResized(const Surface& image, const Surface& mask, Surface& out);

// Both planes of a fully transparent icon: image black, mask white.
void FillTransparent(Surface& image, Surface& mask);

}  // namespace vexlo::icon
