#pragma once
// The transforms that lose no pixel: the two mirrors and the two quarter turns of a whole
// Surface. Each answers a new Surface with the source's back color; the source stays as it is.
#include "core/surface/surface.h"

namespace vexlo::transform {

using surface::Surface;

// Mirrored left to right: pixel (x, y) goes to (w - 1 - x, y).
Surface FlippedHorizontal(const Surface& source);
// Mirrored top to bottom: pixel (x, y) goes to (x, h - 1 - y).
Surface FlippedVertical(const Surface& source);
// A quarter turn counterclockwise: pixel (x, y) goes to (y, w - 1 - x); the result is h wide
// and w high.
Surface RotatedLeft(const Surface& source);
// A quarter turn clockwise: pixel (x, y) goes to (h - 1 - y, x); h wide and w high.
Surface RotatedRight(const Surface& source);

}  // namespace vexlo::transform
