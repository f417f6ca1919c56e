#pragma once
// Adjust Painted Colors: brightness, or one color channel, of the painted cells of the icon
// raised or lowered in steps of percent on a preview (picColorAdj), then written back into
// picImage at Proceed. Steps add up on the preview; the lists go back to "0" after each one.
//
// A cell of the preview counts painted when its color differs from 0xC0C0C0 (the composed
// icon's transparent gray), so a painted cell of true silver is never changed by a step.
// A component c under a step of v percent becomes round(|factor * c|), ties to even, held
// within 0..255, where factor = (v + 100) / 100 is held as a 32-bit float and the product is
// taken in double precision. The float factor is why +10 then -10 takes 50 to 55 and then 49.
#include <array>
#include <string>

#include "core/icon/icon_colors.h"
#include "core/surface/surface.h"

namespace vexlo::effects {

using surface::Color;
using surface::Surface;

// cboBrightNessAdj and each cboColorAdj: "-90", "-80", ... "0", ... "90"; index 9 is "0".
inline constexpr int kAdjustListCount = 19;
inline constexpr int kAdjustZeroIndex = 9;
std::array<std::string, kAdjustListCount> AdjustListEntries();
// The percent of a list index: (index - 9) * 10.
constexpr int AdjustPercentOf(int listIndex) { return (listIndex - kAdjustZeroIndex) * 10; }

// cboColorAdj elements.
enum class ColorChannel { Red = 0, Green = 1, Blue = 2 };

// One component after a step of percent.
int AdjustComponent(int component, int percent);

// Opening and Restore: picColorAdj sized to picImage, holding the picture of PicIcon (so the
// transparent cells show 0xC0C0C0).
Surface PrepareColorAdj(const Surface& picImage, const Surface& PicIcon);

// cboBrightNessAdj click with the value percent: all three components of every painted cell,
// scanned x outer, y inner. False, with nothing changed, when percent is 0.
bool AdjustBrightness(Surface& picColorAdj, int percent);

// cboColorAdj(channel) click with the value percent: only that component of every painted
// cell; the two others stay. False, with nothing changed, when percent is 0.
bool AdjustChannel(Surface& picColorAdj, ColorChannel channel, int percent);

// Proceed: picImage receives the preview's picture (as its stored picture too), and every cell
// of it that equals 0xC0C0C0 becomes black; a painted cell of true silver therefore turns
// black while its mask cell stays black. picMask is not touched, so an inverting cell keeps
// the composed color it showed. The caller then composes, magnifies, outlines the Region if
// there is one, sets Changed, takes the undo snapshot and shows the Colors Panel.
void ProceedAdjustColors(const Surface& picColorAdj, Surface& picImage);

}  // namespace vexlo::effects
