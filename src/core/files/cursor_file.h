#pragma once
// Static cursor files of one 32x32 image: an icon file of idType 2 whose directory entry holds
// the hotspot where an icon's has planes and bit count.
//
//   header     6 bytes at 0: idReserved 0, idType 2, idCount (1 when written)
//   entry      16 bytes at 6: bWidth 32, bHeight 32, bColorCount, bReserved 0,
//              wXHotspot, wYHotspot (0..31), dwBytesInRes, dwImageOffset 22
//   image      at 22: BITMAPINFOHEADER, color table, color rows and mask rows as in an icon
//
// Written at 1, 4, 8 or 24 bits, never 32: a cursor keeps no alpha values.
#include <cstdint>
#include <string>
#include <vector>

#include "core/files/byte_reader.h"
#include "core/files/ico_format.h"
#include "core/files/ico_read.h"
#include "core/surface/surface.h"

namespace vexlo::files {

inline constexpr int kCursorSide = 32;
inline constexpr int kCursorImageOffset = kIconFileHeaderBytes + kIconDirEntryBytes;  // 22

// The probe's answer: Text() is "1/" and the colors for a cursor this program opens, else "0/0".
struct CursorProbe {
    bool Valid = false;
    int Colors = 0;    // 2, 16, 256, or -1 for any other biBitCount
    int BitCount = 0;  // biBitCount of the image
    int HotspotX = 0;
    int HotspotY = 0;

    std::string Text() const;
};

// Valid if idCount >= 1, idReserved 0, idType 2, and the first entry is 32x32 with bReserved 0,
// both hotspot fields in 0..31 and dwImageOffset 22, and the image's 40-byte header lies in the
// file. Any other file, a missing one or one over kMaxFileBytes answers "0/0".
CursorProbe ProbeCursorFile(Bytes data);
CursorProbe ProbeCursorFile(const std::string& path);

// 1 for 2 colors, 4 for 16, 8 for 256, 24 for any other count.
int BitsOfColorCount(int colors);

// A cursor decoded: the color plane, the mask plane (0xFFFFFF where the mask is set, else 0),
// both 32x32, and what the probe told.
struct CursorImage {
    CursorProbe Probe;
    DecodedIcon Planes;
};

// Probes and decodes a cursor as an icon image from position 22 + 40 (DecodeIconImage). False,
// with out untouched, for a file that doesn't probe valid, a biBitCount other than 1, 4, 8, 24
// or 32, or rows cut off by the end of the file.
bool ReadCursorFile(Bytes data, CursorImage& out);
bool ReadCursorFile(const std::string& path, CursorImage& out);

// What DrawCursorFrame puts on the target, as DrawIconEx's DI_MASK, DI_IMAGE, DI_NORMAL.
enum class CursorDraw {
    Mask,    // the mask plane, copied (white where transparent)
    Image,   // the color plane, copied
    Normal,  // the cursor over what is there: mask with SRCAND, then image with SRCINVERT
};

// Draws the cursor's 32x32 at (x, y) onto target, clipped to it. A still cursor draws the same
// at any step (step is there for the animated cursors' sake); false for a negative step or a
// cursor without planes.
bool DrawCursorFrame(const CursorImage& cursor, surface::Surface& target, int x, int y, CursorDraw what,
                     int step = 0);

// The bytes of a cursor file of image and mask (both 32x32) with the hotspot (x, y): the depth
// is CountColors(image), true color at 24 bits without alpha; the tables and rows are those of
// an icon. Empty if a plane isn't 32x32 or the hotspot isn't within 0..31.
std::vector<std::uint8_t> BuildCursorFileBytes(const surface::Surface& image, const surface::Surface& mask,
                                               int hotspotX, int hotspotY);
// Writes those bytes with AtomicWriteFile (a file that stood at path is replaced only by a whole
// new one). False, with the reason in *error, on any failure.
bool WriteCursorFile(const surface::Surface& image, const surface::Surface& mask, const std::string& path,
                     int hotspotX, int hotspotY, std::string* error = nullptr);

// ---- Texts -----------------------------------------------------------------------------

inline constexpr const char* kInvalidCursorFile = "Invalid cursor file";
inline constexpr const char* kFailedToLoadIcon = "Failed to load this icon";
inline constexpr const char* kCursorOf32Only = "For cursor of 32x32 only";
inline constexpr const char* kFailedToSaveCursor = "Failed to save curosr";  // spelled so

// path, line break, "Invalid cursor file".
std::string InvalidCursorFileMessage(const std::string& path);
// A failed cursor save of path: ReadOnlyFileMessage() ("File is read-only", two line breaks,
// "You may save it under a different file name or reset the file attributes.") if
// IsProtectedFile(path), else "Failed to save curosr".
std::string CursorSaveFailedMessage(const std::string& path);

}  // namespace vexlo::files
