#pragma once
// The colors that give an icon's two planes their meaning, named once for every folder.
//
//   painted pixel:     its color in the image plane, black in the mask
//   transparent pixel: black in the image plane, white in the mask
//   inverting pixel:   a color in the image plane, white in the mask
//
// The composed icon shows transparent pixels on kTransparentGray.
#include "core/surface/surface.h"

namespace vexlo::icon {

using surface::Color;

inline constexpr Color kBlack = 0x000000;
inline constexpr Color kWhite = 0xFFFFFF;
// The background on which a composed icon, a preview or the panel shows transparency.
inline constexpr Color kTransparentGray = 0xC0C0C0;
// The system window color: the back color of the planes and of the grid picture.
inline constexpr Color kWindowColor = 0xFFFFFF;

}  // namespace vexlo::icon
