#pragma once
// Spotlight: a shaded glowing oval painted over the picture, with a gradient from the selected
// color towards white, a table of blending percentages by distance from the centre, and a small
// highlight. Also MakeColorRamp, which the effects use as well.
#include <functional>
#include <vector>

#include "core/surface/surface.h"
#include "core/tools/editing_area.h"
#include "core/tools/tool_state.h"

namespace vexlo::tools {

// MakeColorRamp(c1, c2, n): n colors, entry i - 1 = c1 + i (c2 - c1) / n per channel for i in
// 1..n, the step a 32-bit float and the sum in 32-bit floats, rounded to the nearest integer
// with ties to even. The first entry is one step on from c1, the last is c2; empty for n <= 0.
std::vector<Color> MakeColorRamp(Color c1, Color c2, int n);

// SpotlightBlend: the percentage of the underlying pixel in a Spotlight pixel at (x, y), by its
// distance from the centre; 65 beyond the table's 8 cells.
int SpotlightBlend(int centerX, int centerY, int x, int y);

// The size limit in the pointer-moved event: unless the band is at most 15 cells (15 s picDisp
// pixels, s = MagnifyStep) both across and down, band and shape become 15 cells on from their
// press corner in both directions, a Spotlight of 16 x 16 cells. A drag to the left or upwards
// is never limited.
void SpotlightLimit(DispRect& band, CellRect& shape, int magnifyStep);

// Whether (x, y) lies in one of the rounded corners that the spot (L, R, T, B) leaves out.
bool SpotlightCornerLeftOut(const CellRect& spot, int x, int y);

// The pale ring picture: picImageTemp cleared to picIcon's size, with rings of radius 0..n-1
// around its centre in MakeColorRamp(0xC0C0C0, 0xFFFFEE, n), pen width 2, not filled.
void DrawPaleRings(Surface& picImageTemp, const Surface& picIcon, int n);
// The colored ring picture: the same on picTemp with MakeColorRamp(selected, 0xFFFFFF, n),
// each ring the arc from 0 to 6 radians with the given aspect (a gap below the +x axis).
// Answers the ramp.
std::vector<Color> DrawColoredRings(Surface& picTemp, const Surface& picIcon, int n,
                                    Color selected, double aspect);

// The plot on release, on the stored rectangle d.Shape. Runs ShapeGeometry on it first (so the
// oval fields of d, OvalAspect among them, are left as that call sets them) and plots nothing
// when its width isn't above 0; answers whether it plotted. A spot smaller than 4 cells either
// way, or one dragged to the left or upwards, is 9 x 9 cells from the press cell. Every pixel of
// the spot becomes painted (picMask 0x000000), transparent or not; parts past the icon's edge
// are cut. picTemp and picImageTemp are the scratch Surfaces (back color 0xFFFFFF): they end up
// cleared at picIcon's size. doEvents, if given, runs after every pixel.
//
// The caller then does ComposeIcon, MagnifyIcon and TakeUndoSnapshot. picIcon must be the
// composition of the planes.
bool PlotSpotlight(Surface& picImage, Surface& picMask, const Surface& picIcon, Surface& picTemp,
                   Surface& picImageTemp, DrawState& d, Color selected,
                   const std::function<void()>& doEvents = {});

}  // namespace vexlo::tools
