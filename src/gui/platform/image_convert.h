#pragma once
// Pictures between the core's Surface (COLORREF 0x00BBGGRR) and Qt's QImage (0xAARRGGBB).
#include <QImage>

#include "core/surface/surface.h"

namespace vexlo::platform {

// A Format_RGB32 picture of the Surface's pixels; a null image for an empty Surface.
QImage ToQImage(const surface::Surface& s);
// A Surface of the image's size and colors; alpha is ignored (each pixel keeps its own color,
// not blended with anything). Its back color is white.
surface::Surface FromQImage(const QImage& image);

}  // namespace vexlo::platform
