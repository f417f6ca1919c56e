#pragma once
// The system clipboard for pictures, on QClipboard. A picture goes out as PNG (with its
// transparent pixels transparent), as a 24-bit BMP (transparent pixels in the transparent
// gray) and as a QImage for Qt programs. A picture comes in from any format that Qt reads:
// its size is found first from the encoded bytes, and only the block that is needed is taken,
// so that a huge picture is refused before its pixels are decoded.
#include <QImage>

#include "core/host/host.h"
#include "core/surface/surface.h"

namespace vexlo::platform {

// Pictures with more pixels than this are too large to be read from the clipboard.
inline constexpr qint64 kLargestClipboardPixels = 4096LL * 4096;

// The picture with the pixels that are white in holes fully transparent (ARGB32).
QImage ToQImageWithHoles(const surface::Surface& picture, const surface::Surface& holes);
// The top left w x h pixels of image (at most its size) as a Surface; a pixel of less than
// half opacity becomes the transparent gray 0xC0C0C0.
surface::Surface FromClipboardImage(const QImage& image, int w, int h);

// Whether the clipboard offers a picture in a format that can be read, without reading it.
bool ClipboardHasPicture();
host::ClipboardPicture ClipboardPictureInfo();
bool ReadClipboardPicture(int w, int h, surface::Surface& out);
// Replaces what the clipboard holds by the picture.
void PutPictureOnClipboard(const surface::Surface& picture, const surface::Surface& holes);
void ClearClipboard();

}  // namespace vexlo::platform
