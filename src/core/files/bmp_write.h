#pragma once
// Bitmaps: the 24-bit BMP that Save As Bitmap writes of the composed icon, and the pure part
// of turning a loaded picture into an icon (the window loads the picture, through Qt, into a
// Surface and hands it here).
//
//   BITMAPFILEHEADER  14 bytes: "BM", bfSize, 0, 0, bfOffBits 54
//   BITMAPINFOHEADER  40 bytes: biSize 40, width, height (positive: rows bottom-up), planes 1,
//                     24 bits, BI_RGB, biSizeImage the bytes of the rows, all else 0
//   rows              from the bottom row up: blue, green, red per pixel, each row padded
//                     with zeros to a multiple of 4 bytes
#include <cstdint>
#include <string>
#include <vector>

#include "core/files/atomic_file.h"
#include "core/icon/icon_colors.h"
#include "core/surface/surface.h"

namespace vexlo::files {

inline constexpr int kBmpFileHeaderBytes = 14;
inline constexpr int kBmpPixelOffset = 54;

// Bytes of one 24-bit row of width w: 3w rounded up to a multiple of 4.
constexpr std::int64_t BmpRowBytes(std::int64_t w) { return (3 * w + 3) / 4 * 4; }

// The whole file of the Surface's pixels. Empty for a Surface without pixels or one too large
// for the 32-bit size fields.
std::vector<std::uint8_t> BuildBmpBytes(const surface::Surface& picture);

// Writes those bytes with AtomicWriteFile; on failure the reason and its errno are in the
// result (EINVAL for a picture of no pixels).
FileWriteResult WriteBmpFile(const surface::Surface& picture, const std::string& path);

// ---- Import ----------------------------------------------------------------------------

// The gray of the session's transparent color: such pixels of a picture become transparent.
inline constexpr surface::Color kImportTransparent = icon::kTransparentGray;

// True for a Surface of 16x16, 32x32 or 48x48.
bool IsIconSize(const surface::Surface& picture);

// The icon side for a picture of w x h: 48 if w or h is above 32, else 32 if w or h is above
// 16, else 16. A larger picture is cut to it, not scaled.
int ImportSide(int w, int h);

// The icon planes of a picture: image and mask get the size t x t of ImportSide (image black,
// mask white: transparent); every pixel of the picture's top-left t x t that isn't
// kImportTransparent goes to the image with the mask 0 there. Gray pixels and everything beyond
// the picture's edges stay transparent. Answers t.
int ImportPicture(const surface::Surface& picture, surface::Surface& image, surface::Surface& mask);

// ---- Texts -----------------------------------------------------------------------------

inline constexpr const char* kNotIconSizeTail = "; not 16x16, 32x32 or 48x48.";
inline constexpr const char* kChangeToSuit = "Change to suit the most appropriate size?";
inline constexpr const char* kBitmapReminder = "Reminder:  Since the incoming image is of bitmap format,";
inline constexpr const char* kBitmapReminderHow = "use Erase, or Fill (+Shift Key), to create transparent area(s).";

// "Image size is of ", w, "x", h, "; not 16x16, 32x32 or 48x48.", two line breaks,
// "Change to suit the most appropriate size?" (a question with Yes and No).
std::string NotIconSizeQuestion(int w, int h);
// "Reminder:  Since the incoming image is of bitmap format,", line break, "use Erase, or Fill
// (+Shift Key), to create transparent area(s)." (information).
std::string BitmapReminderMessage();
// A picture that can't be loaded, in the manner of the icon files: path, line break,
// "Failed to load this file".
std::string PictureNotLoadedMessage(const std::string& path);

}  // namespace vexlo::files
