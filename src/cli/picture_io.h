#pragma once
// Pictures in and out of vexlo-cli: the two planes of an icon from a PNG, BMP or ICO file, and
// an icon's planes out as an RGBA PNG.
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

// Reads a picture of 16x16, 32x32 or 48x48: an ICO file (the image that the editor opens) or
// any picture Qt reads; a pixel with alpha below 128 becomes transparent. False with a reason.
bool ReadPicture(const std::string& path, IconPlanes& out, std::string& error);

// Writes the planes as an RGBA PNG: the image plane's color, alpha 0 where the mask is set,
// or for an icon with alpha values those values. False with a reason.
bool WritePng(const IconPlanes& icon, const std::string& path, std::string& error);

}  // namespace vexlo::cli
