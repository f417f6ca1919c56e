#pragma once
// The picture of an icon group that the platform's icon extraction gives at one size: the
// large icon is 32x32, the small 16x16. The image chosen is the one of exactly that size,
// else the nearest size (of two at the same distance, the larger), and among those of one
// size the deepest, then the first in the group. Only images that the icon reader decodes
// are candidates (bitmaps of 16x16, 32x32 or 48x48 at 1, 4, 8, 24 or 32 bits; see
// files::JudgeIconImage); one of another size is stretched to the size asked for.
#include <vector>

#include "core/extract/icon_groups.h"
#include "core/surface/surface.h"

namespace vexlo::extract {

enum class IconSize { Large, Small };

inline constexpr int kLargeIconSide = 32;
inline constexpr int kSmallIconSide = 16;
constexpr int SideOf(IconSize size) { return size == IconSize::Large ? kLargeIconSide : kSmallIconSide; }

// One icon as the platform draws it, both Surfaces of the size asked for.
struct ExtractedIcon {
    // The icon drawn over white: where the mask is set, white XOR the color (so white for a
    // transparent pixel); elsewhere the color. A 32-bit image with alpha values is blended
    // over white by them instead.
    surface::Surface Image;
    // The mask: 0xFFFFFF transparent (or inverting), 0x000000 opaque. A 32-bit image whose mask
    // rows are clear takes it from its alpha values (files::MaskFromAlpha).
    surface::Surface Mask;
};

// The index in group.Images of the image chosen for side, or -1 if none can be decoded.
int ChooseGroupImage(Bytes file, const IconGroup& group, int side);

// Decodes the chosen image into out at the side of size. False, with out untouched, if no
// image of the group can be decoded.
bool DrawGroupIcon(Bytes file, const IconGroup& group, IconSize size, ExtractedIcon& out);

}  // namespace vexlo::extract
