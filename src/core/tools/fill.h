#pragma once
// Fill and Replace Color: they choose their pixels by the composed picture (PicIcon), what the
// user sees, and write both planes, so that the mask tells a painted pixel from a transparent
// one that looks alike. Each acts once, on release, at the cell (cellX, cellY).
//
// The caller sets ShapeLeft and ShapeTop to the cell before, and runs ComposeIcon, MagnifyIcon
// and TakeUndoSnapshot after (also when nothing changed). picIcon must be the composition of
// the two planes; all three have the icon's size. A cell outside the icon changes nothing.
#include "core/surface/surface.h"

namespace vexlo::tools {

using surface::Color;
using surface::Surface;

// A transparent pixel: 0x000000 in picImage and 0xFFFFFF in picMask.
bool IsTransparentPixel(const Surface& picImage, const Surface& picMask, int x, int y);

// Fill. Floods a copy of picIcon from the cell through the 4-connected area of its composed
// color. Without shift the pixels of that area take `selected` (painted), but only those of
// the clicked pixel's class: transparent ones when a transparent pixel was clicked, the
// others otherwise. With shift (Shift, Control or Alt) the non-transparent pixels of the area
// become transparent, and a click on a transparent pixel changes nothing.
void FillAt(Surface& picImage, Surface& picMask, const Surface& picIcon, int cellX, int cellY,
            Color selected, bool shift);

// Replace Color. Every pixel of the icon whose composed color is the clicked one, connected or
// not, becomes `selected` (painted), or transparent with shift. Of composed 0xC0C0C0 only the
// painted grays are replaced; see fill.cpp.
void ReplaceColorAt(Surface& picImage, Surface& picMask, const Surface& picIcon, int cellX,
                    int cellY, Color selected, bool shift);

}  // namespace vexlo::tools
