#pragma once
// Expand, Shrink and the two Confine entries of the Effects menu as pure steps on the planes:
// Expand doubles the icon (every cell 2 x 2 pixels), Shrink halves it keeping dark pixels,
// Confine to 16 maps each color by a fixed two-stage rule onto the sixteen chart colors, and
// Confine to mono makes dark cells black and bright ones transparent. The window asks, shows
// the frames and updates the slot's record; nothing here prompts.
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/icon/icon_colors.h"
#include "core/surface/surface.h"
#include "core/tools/editing_area.h"

namespace vexlo::effects {

using surface::Color;
using surface::Surface;

// Both planes of an icon at its new size.
struct ResizedPlanes {
    Surface Image;
    Surface Mask;
};

// mnuEffectsExpand: each plane stretched by SRCCOPY from side x side to twice that, whole
// pixels only, so every cell becomes 2 x 2 pixels. Transparent cells stay transparent.
ResizedPlanes ExpandIcon(const Surface& picImage, const Surface& picMask);

// One plane halved as a memory context's default stretch mode does: each pixel the bitwise
// AND of its 2 x 2 source block, so a dark pixel outweighs a light one. On a mask a block with
// any painted cell stays painted; a block wholly transparent stays transparent.
Surface ShrinkPlane(const Surface& plane);
// mnuEffectsShrink: both planes halved by ShrinkPlane. The inverse of ExpandIcon.
ResizedPlanes ShrinkIcon(const Surface& picImage, const Surface& picMask);

// What Expand and Shrink write into the slot's record.
inline constexpr std::string_view kExpandedKind = "Expanded from 16x16";
inline constexpr std::string_view kShrunkKind = "Shrunk from 32x32";
inline constexpr std::string_view kExpandedFileSpec = "Enlarged";
inline constexpr std::string_view kShrunkFileSpec = "Shrunk";
// The three lines that refuse an icon of a multi-icon file (information).
std::string ResizeMultiIconMessage(bool expand);
// The Yes/No question before the change: "Expand from 16x16 to 32x32.  (Undo will not be
// available)" or the Shrink one, a line break, "Proceed?", a line break.
std::string ResizeQuestion(bool expand);

// round((R + G + B) / 3), ties to even.
int AverageColor(Color c);
// True exactly for the sixteen colors of ColorChart16.
bool IsChartColor(Color c);
// The sixteen-color map: stage 1 snaps each component to 0, 128, 192 or 255; a chart color
// then stands, anything else goes through the stage 2 table, first fitting row.
Color MapToChart16(Color c);

inline constexpr std::string_view kMonochromeMessage = "Current image is of monochrome.  ";
inline constexpr std::string_view kSixteenColorMessage = "Current image is of 16-color depth.  ";
inline constexpr std::string_view kConfine16Question = "Confine to 16-color palette.  Proceed?\r\n";

// The message that stops Confine to 16 for a CountColors class (2 or 16); none otherwise.
std::optional<std::string_view> Confine16Refusal(int colorClass);

// mnuEffectsConfineColorsTo16, x outer and y inner: each cell whose PicIcon color is neither
// 0xC0C0C0 nor a chart color gets MapToChart16 of that color in picImage. The mask is left as
// it is, so transparent cells (shown in 0xC0C0C0) stay transparent. afterColumn, if given,
// runs after each column (the window lets pending events through there).
void ConfineTo16(const Surface& picIcon, Surface& picImage,
                 const std::function<void()>& afterColumn = {});

// cboConfineToMonoThreshold: "1" to "354", initially "128".
inline constexpr int kMonoThresholdFirst = 1;
inline constexpr int kMonoThresholdLast = 354;
inline constexpr int kMonoThresholdStart = 128;
inline constexpr std::string_view kMonoThresholdCaption =
    "Threshold:    (If averaged color value below threshold, black)";

// cmdConfineToMonoProceed over the region's cells when given, else the whole of picImage,
// x outer and y inner: a white image cell is left alone; any other becomes black in picImage,
// and turns transparent (picMask white) when AverageColor of it is above threshold. The caller
// then lifts the region (RegionSeeThrough -1) if there is one, composes and so on.
void ConfineToMono(Surface& picImage, Surface& picMask, int threshold,
                   const std::optional<tools::CellRect>& region = std::nullopt);

}  // namespace vexlo::effects
