#pragma once
// The pictures of the Editing Area: the magnified view of the composed icon, the gridline
// overlay in its four modes, the dotted Region outline and the dotted bands of the shape
// tools, and the readouts under the view. Pure functions on Surfaces.
#include <string>

#include "core/surface/surface.h"

namespace vexlo::tools {

using surface::Color;
using surface::Surface;

inline constexpr int kDispSide = 384;  // picDisp is 32 cells of 12 pixels across, always

// GridColor values: the grid mode and the color of its lines.
inline constexpr Color kGridLight = 0x606060;
inline constexpr Color kGridDark = 0x000000;
inline constexpr Color kGridDotted = 0x800008;
inline constexpr Color kGridNone = 0xC0C0C0;
inline constexpr Color kGridForeColor = 0xE0E0E0;  // a 16x16 quarter's border with no grid

// A rectangle of picDisp pixels, edges included.
struct DispRect {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
};

// A rectangle of icon cells (ShapeLeft, ShapeRight, ShapeTop, ShapeBottom).
struct CellRect {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
};

// The side of the icon as the view takes it: the icon's width when it is 16, 32 or 48 and
// square, else 32 (a picture in transit shows as 32x32).
int ViewIconSide(const Surface& picIcon);

// Rebuilds grid (PicGrid) for an icon of side iw shown at magnifyStep, in the mode gridColor.
void BuildGrid(Surface& grid, int iw, int magnifyStep, Color gridColor);

// Stretches picIcon over picDisp (the top left quarter for a 16x16 icon), combines the grid
// and makes the result picDisp's stored picture. Leaves the Region outline to the caller.
void MagnifyInto(const Surface& picIcon, const Surface& grid, Color gridColor, Surface& disp);

// Combines the grid into disp by SRCAND (skipped with no grid on a 32x32 or 48x48 icon) and
// stores the base picture.
void OverlayGrid(const Surface& grid, Color gridColor, int iw, Surface& disp);

// Draws the Region's outline dotted in invert mode (twice removes it). For a 16x16 icon
// (sizeCode 1) an outline past the icon's quarter is wiped outside it.
void DrawRegionOutline(Surface& disp, const DispRect& region, int sizeCode);

// The dotted line or box of a shape tool's band, in invert mode.
void DrawLineBand(Surface& disp, const DispRect& band);
void DrawBoxBand(Surface& disp, const DispRect& band);

// lblDispXY for the cell (c, r): "X=c  Y=r".
std::string DispXYText(int c, int r);
// lblRegionMeasure for the Region's cell rectangle; empty for a single cell or while the
// Region's edge is dragged.
std::string RegionMeasureText(const CellRect& cells, bool edgeDragged);

// The whole source onto the target at (0,0) in the source's own size, as the target's stored
// picture. False when the copy failed.
bool CopyPicture(const Surface& source, Surface& target);
// The whole source stretched over the whole target with averaging, as the target's stored
// picture. False when the stretch failed.
bool StretchbltPic(const Surface& source, Surface& target);

}  // namespace vexlo::tools
