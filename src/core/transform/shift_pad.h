#pragma once
// Shift Directions: the nine-cell pad that slides the whole icon one pixel at a time, and the
// redraw of the planes from the picture kept when the tool was turned on. The displacement
// is the offset at which that picture is read: a positive x means the picture went left, a
// positive y that it went up.
#include "core/surface/surface.h"

namespace vexlo::transform {

using surface::Surface;

// A cell of the pad: column and row, each 0, 1 or 2.
struct PadCell {
    int Column = 1;
    int Row = 1;
};

// The cell under (x, y) of a pad padWidth pixels across and high. Columns and rows part at
// t and 2t with t = padWidth / 3; a position on a dividing line belongs to the cell after it.
PadCell ShiftPadCell(int x, int y, int padWidth);

// The step of a click on cell, kept within -(w - 1)..w - 1 and -(h - 1)..h - 1: the left
// column adds 1 to shiftX and the right one takes 1 away, the top row adds 1 to shiftY and
// the bottom one takes 1 away. A change that would pass its limit is left out while the other
// one is made. False when the click changes nothing and isn't on the centre cell, which
// redraws without a change.
bool StepShift(PadCell cell, int w, int h, int& shiftX, int& shiftY);

// The planes redrawn from start (the composed picture as it was) read at (shiftX, shiftY):
// everything transparent first, then every pixel that has a source inside start and isn't
// the transparent gray is painted in the source's color.
void RedrawShifted(const Surface& start, int shiftX, int shiftY, Surface& image, Surface& mask);

// The pad's picture: a square of side pixels, the nine cells parted by lines, an arrow in
// each outer cell pointing the way the picture goes and a dot in the centre.
Surface ShiftPadPicture(int side);

}  // namespace vexlo::transform
