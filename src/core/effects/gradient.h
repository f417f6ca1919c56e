#pragma once
// Gradient Unpainted Area: the three gradient pictures of fraGradient (Linear at an angle,
// Square, Spherical around a centre) and Proceed, which fills every unpainted cell of the icon
// from the chosen picture and makes the whole icon opaque. The frame shows the pictures and
// keeps the colors, the angle and the chosen kind; everything here is pure drawing.
#include <string_view>
#include <vector>

#include "core/icon/icon_colors.h"
#include "core/surface/surface.h"

namespace vexlo::effects {

using surface::Color;
using surface::Surface;

// The frame's texts.
inline constexpr std::string_view kGradientCaption = "Gradient unpainted area";
inline constexpr std::string_view kGradientTypeCaptions[3] = {"Linear", "Square", "Spherical"};
inline constexpr std::string_view kGradientColorsCaption = "Starting && ending colors:";
inline constexpr std::string_view kGradientCenterCaption = "(Click to change center point)";
inline constexpr std::string_view kGradientColorTips[2] = {"Click for first color",
                                                           "Click for second color"};
inline constexpr std::string_view kNoUnpaintedArea = "(Icon has no blank area)";
inline constexpr std::string_view kCloseCancelTip = "Close/cancel";
// The menu's refusal on a 16x16 icon (information).
inline constexpr std::string_view kGradientLargeOnly = "For icons of 32x32 or 48x48 only";
// cboGradientAngle: the entries "0" to "360", the angle being the entry's index.
inline constexpr int kGradientAngles = 361;

// cmdGradientColor's starting back colors.
inline constexpr Color kGradientFirstColor = 0xC0C000;
inline constexpr Color kGradientSecondColor = 0xFFFFFF;

// OptGradType elements, also the index of each PicGradient.
enum class GradientKind { Linear = 0, Square = 1, Spherical = 2 };

struct GradientPoint {
    int X = 0;
    int Y = 0;
};

// Turns point around center by angle degrees, in place: with t = angle x 3.14159265359 / 180
// and (dx, dy) = point - center, point becomes (dx cos t + dy sin t, -dx sin t + dy cos t) +
// center, each rounded to nearest, ties to even.
void RotatePoint(const GradientPoint& center, GradientPoint& point, double angle);

// The edge that the linear sweep starts from; it runs towards the opposite one.
enum class SweepStart { Bottom, Top, Left, Right };
// The sweep for an angle in degrees, by the band the angle falls in (0..90, above 90 up to
// 180, above 180 up to 270, any other), for a wide line (more across than down) or not.
SweepStart LinearSweepOf(int angle, bool wideLine);

// The points of the sweep, pairs (k, k+1) for even k being the rungs: the rotated line shifted
// onto its starting edge, then each entry the one two back plus the unit step, until the two
// latest have both passed the far edge. Empty below 16 pixels either way.
std::vector<GradientPoint> LinearSweepPoints(int width, int height, int angle);

// Draws the linear gradient over the surface (nothing is cleared first; surfaces under 16
// pixels either way are left alone): MakeColorRamp(c1, c2, N) over the N sweep points, and
// each point i but the last joined to point i + 1 with a width-1 line in ramp entry i. The
// rungs and the slanted strokes between them leave no pixel out.
void DrawLinearGradient(Surface& s, int angle, Color c1, Color c2);

// Nested width-3 box outlines from the edge inwards, n = width / 2 of them, outline i in
// MakeColorRamp(c1, c2, n) entry i. A cell at ring k (k cells in from the nearest edge) ends in
// entry min(k + 1, n - 1).
void DrawSquareGradient(Surface& s, Color c1, Color c2);

// n = round(r), ties to even, r being the distance from (x, y) to the farthest of the points
// just outside the corners, (-1,-1), (W,-1), (W,H), (-1,H).
int SphericalRingCount(int width, int height, int x, int y);
// Clears the surface, then draws the width-1 circles of radius 0..n-1 around (x, y), circle i
// in MakeColorRamp(c1, c2, n) entry i. A few cells between two circles keep the back color.
void DrawSphericalGradient(Surface& s, int x, int y, Color c1, Color c2);

// The three pictures as the frame draws them (opening, a color change): Linear at angle,
// Square, and Spherical around the middle (half the width and height), each cleared to size
// first.
void DrawAllGradients(Surface (&pictures)[3], int side, int angle, Color c1, Color c2);

// True if any cell of the mask is white (an unpainted cell: transparent or inverting).
bool HasUnpaintedCell(const Surface& mask);

// cmdGradientProceed: every cell whose picMask is white takes the color of picture at that
// cell in picImage, then picMask is black all over. Painted cells are left as they are. The
// caller then composes, sets Changed, magnifies, takes the undo snapshot and shows the Colors
// Panel.
void ProceedGradient(const Surface& picture, Surface& picImage, Surface& picMask);

}  // namespace vexlo::effects
