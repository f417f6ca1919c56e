#pragma once
// Buttonize: a bevel of one of three patterns drawn along the icon's edge, straight into
// picImage and picMask. Every drawn cell becomes opaque; the four corner cells end
// transparent; cells further in than the pattern's rings are left as they were.
//
// Each drawing step is done on picImage in the step's color and on picMask in black, with the
// Surface's GDI rules: a line leaves out its end point, a box outline includes all four
// corners and is not filled. Steps run in order, a later one overwriting an earlier one.
// W and H below are the last column and row (15, 31 or 47).
//
//   pattern 1 (index 0): ring 0 white at the top and left, black at the right and bottom.
//   pattern 2 (index 1): ring 0 black; rings 1 and 2 white at the top and left, mid gray at
//                        the right and bottom.
//   pattern 3 (index 2): ring 0 as pattern 1; ring 1 white at the top and left, warm gray at
//                        the right and bottom.
#include <array>
#include <string_view>

#include "core/icon/icon_colors.h"
#include "core/surface/surface.h"

namespace vexlo::effects {

using surface::Color;
using surface::Surface;

inline constexpr Color kButtonMidGray = 0x808080;   // RGB(128,128,128)
inline constexpr Color kButtonWarmGray = 0x888488;  // R 0x88, G 0x84, B 0x88

// cboButtonizePattern: the entries "1", "2", "3"; the list starts at index 0.
inline constexpr int kButtonizePatternCount = 3;
inline constexpr std::array<std::string_view, kButtonizePatternCount> kButtonizePatternEntries{
    "1", "2", "3"};
inline constexpr int kButtonizeInitialIndex = 0;

// cmdButtonizeProceed: draws the pattern of list index patternIndex onto the planes (both of
// the icon's square size) and cuts the corners (0,0), (0,H), (W,0), (W,H) to transparent:
// picImage black, picMask white. Only the drawing changes, not a plane's stored picture.
// False, with nothing drawn, for an index outside 0..2 (the frame stays open). The caller then
// composes, sets Changed, magnifies, takes the undo snapshot and shows the Colors Panel.
bool ProceedButtonize(int patternIndex, Surface& picImage, Surface& picMask);

// picButtonize(patternIndex): the pattern drawn on a fully transparent icon of the given side,
// composed on 0xC0C0C0 as the user sees it. An empty Surface for an index outside 0..2.
Surface ButtonizeSample(int patternIndex, int side);

}  // namespace vexlo::effects
