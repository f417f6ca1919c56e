#pragma once
// The pictures that convert reads: PNG through libpng, BMP through our own reader, and icon
// files as the editor opens them.
#include <string>

#include "core/alpha/alpha_array.h"
#include "core/surface/surface.h"

namespace vexlo::cli {

// An icon's two planes with what the editor would know of its slot.
struct IconPlanes {
    surface::Surface Image;
    surface::Surface Mask;
    alpha::AlphaArray Alpha;  // single element when the icon has no alpha values
    bool HasAlpha = false;    // a 32-bit icon file's alpha values came with it
};

// Reads a picture of 16x16, 32x32 or 48x48, told by its first bytes: a PNG or a BMP (a pixel
// with alpha below 128 becomes transparent), an icon file (the image that the editor opens
// without asking, decoded by the editor's reader), or a still cursor of 32x32 (the editor's
// cursor reader). False with a reason naming the file.
bool ReadPicture(const std::string& path, IconPlanes& out, std::string& error);

}  // namespace vexlo::cli
