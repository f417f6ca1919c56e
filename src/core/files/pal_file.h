#pragma once
// Palette files of the Color Mixer. A ".pal" file holds no table of colors: it is a plain BMP
// picture of the mixer's strip, written as Save As Bitmap writes (bmp_write.h). Reading goes in
// two steps so that the caller can judge the picture's size before any pixel is decoded:
// ReadPaletteLayout checks the headers, the color table and that every pixel row lies inside
// the file; DecodePalettePicture then turns the rows into a Surface.
//
// Read: "BM", a BITMAPCOREHEADER (12 bytes), BITMAPINFOHEADER (40) or a later version (52, 56,
// 108, 124), 1, 4, 8, 16, 24 or 32 bits, uncompressed (BI_RGB) or with bit fields for 16 and
// 32 bits (BI_BITFIELDS), rows bottom-up or (negative height) top-down. A color index past the
// table reads as black. bfSize is not relied on.
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "core/files/atomic_file.h"
#include "core/files/byte_reader.h"
#include "core/surface/surface.h"

namespace vexlo::files {

// Why a palette file can't be read, as the common error box shows a fault: a number and its
// description (481 an invalid picture, 53 a missing file, 75 a file that can't be read).
struct PaletteReadError {
    long Number = 0;
    std::string Description;
};

inline constexpr long kInvalidPictureNumber = 481;
inline constexpr long kFileNotFoundNumber = 53;
inline constexpr long kFileAccessNumber = 75;

// The checked headers of a palette file.
struct PaletteLayout {
    int Width = 0;
    int Height = 0;
    bool TopDown = false;
    int BitCount = 0;
    std::array<std::uint32_t, 3> Masks{};  // red, green, blue of 16- and 32-bit pixels
    std::vector<surface::Color> Table;     // the color table of 1-, 4- and 8-bit pixels
    std::size_t PixelOffset = 0;           // bfOffBits
    std::size_t RowBytes = 0;              // one row with its padding to 4 bytes
};

// Larger pictures are never decoded (a 16 MiB file of 1-bit rows could hold 134 million
// pixels); the mixer refuses them by size before it decodes.
inline constexpr std::int64_t kMaxPalettePixels = std::int64_t{1} << 22;

// True if the bytes start with "BM".
bool IsBmpBytes(Bytes data);
// The headers of data checked against its length; false with the reason otherwise.
bool ReadPaletteLayout(Bytes data, PaletteLayout& layout, PaletteReadError& error);
// The pixels of a layout that ReadPaletteLayout gave for the same data; false (picture left
// as it was) for a picture of more than kMaxPalettePixels pixels.
bool DecodePalettePicture(Bytes data, const PaletteLayout& layout, surface::Surface& picture);

// The whole file into bytes (at most kMaxFileBytes); false with the reason otherwise.
bool ReadPaletteFileBytes(const std::string& path, std::vector<std::uint8_t>& bytes,
                          PaletteReadError& error);

// Saves the strip as a palette file: a 24-bit BMP written beside the target and renamed.
FileWriteResult WritePaletteFile(const surface::Surface& strip, const std::string& path);

}  // namespace vexlo::files
