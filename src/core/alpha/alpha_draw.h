#pragma once
// How alpha values are shown: as grays (opaque black, faint white) and as the icon blended
// over the display gray 0xC0C0C0, both in whole percent steps of opacity.
#include <cstdint>

#include "core/alpha/alpha_array.h"
#include "core/surface/surface.h"

namespace vexlo::alpha {

inline constexpr surface::Color kAlphaBackground = 0xC0C0C0;

// The opacity of an alpha value in whole percent, rounded down: 255 -> 100, 128 -> 50, 1 -> 0.
int AlphaPercent(int alpha);
// The gray level that shows an alpha value: (100 - percent) of 255, to the nearest, ties to even.
int AlphaGray(int alpha);
// The swatch of a chosen value: as AlphaGray but with the percent rounded (ties to even).
surface::Color AlphaSwatch(int alpha);
// One color blended over the gray background at the alpha value's percent, each channel
// rounded down: floor(((100 - p) * 192 + p * c) / 100).
surface::Color BlendOverBackground(surface::Color color, int alpha);

// DrawAlphaValues: every cell whose mask pixel is black becomes the gray of its alpha value;
// the other cells keep what target holds. Cells outside alpha, mask or target are left alone.
void DrawAlphaValues(const surface::Surface& mask, const AlphaArray& alpha, surface::Surface& target);
// DrawAlphaIcon: target filled with the background over side x side, then every cell whose
// mask pixel is black gets the image's color blended at its alpha value.
void DrawAlphaIcon(const surface::Surface& mask, const surface::Surface& image,
                   const AlphaArray& alpha, int side, surface::Surface& target);

}  // namespace vexlo::alpha
