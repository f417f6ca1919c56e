#pragma once
// RotatePicture: a picture turned by any angle into another Surface, by inverse mapping with
// nearest-neighbour reads (or, for previews only, a bilinear read). Text and Rotate at any
// angle both turn their pictures with it.
//
// Positions are doubles; "round" is to the nearest integer, ties to even; pi is taken as
// 3.14159265359. With (sx, sy) = trunc of half the source's size, (cx, cy) the centre in the
// target (0 means trunc of half the target's size), d = round(sqrt(W^2 + H^2) + 2) for the
// source's W x H and theta the angle in radians, for i = 0, 1, ... while i <= d / 2 and within
// it j = 0, 1, ... while j <= d / 2:
//   phi = pi / 2 when i is 0, else atan(j / i); r = sqrt(i^2 + j^2);
//   a = r cos(theta + phi), b = r sin(theta + phi);
//   source (sx + a, sy + b) feeds target (cx + i, cy + j)
//   source (sx - a, sy - b) feeds target (cx - i, cy - j)
//   source (sx + b, sy - a) feeds target (cx + j, cy - i)
//   source (sx - b, sy + a) feeds target (cx - j, cy + i)
// in that order, each read at the rounded position. A read outside the source is skipped; so
// is a color equal to keyColor when useKey is set. With antiAlias the color written is the
// bilinear InterpolateXY at the exact position instead. Target cells outside the target are
// left alone. A positive angle turns the picture counterclockwise on the screen.
#include "core/surface/surface.h"

namespace vexlo::effects {

using surface::Color;
using surface::Surface;

inline constexpr double kRotatePi = 3.14159265359;

struct RotateOptions {
    bool UseKey = false;
    Color KeyColor = 0;
    bool AntiAlias = false;
    int CenterX = 0;  // 0: the middle of the target
    int CenterY = 0;
};

void RotatePicture(const Surface& source, Surface& target, double angle,
                   const RotateOptions& options = {});

// Per component, with p the component of c1 and q that of c2: round(q * w1 + p * w2). The
// blend at the fraction w1 from c1 towards c2 when w2 = 1 - w1.
Color MixColors(Color c1, double w1, Color c2, double w2);
// The bilinear read at (x, y): InterpolateY at floor(x) and, unless x is within 0.001 below a
// whole number, at floor(x + 0.999), mixed by the fraction of x. A read outside the source
// counts as 0xFFFFFFFF, whose components are all 255.
Color InterpolateXY(const Surface& source, double x, double y);
// The same along y at the column round(x).
Color InterpolateY(const Surface& source, double x, double y);

}  // namespace vexlo::effects
