#pragma once
// Writing an icon file of one image. The pixels decide the depth: CountColors picks the
// smallest encoding that holds the image plane's colors, and only a true-color slot with
// alpha values keeps true color whatever its colors.
//
//   BuildIconFileBytes   the whole file as bytes (pure, no disk)
//   WriteIconFile        those bytes written with AtomicWriteFile
//
// The row writers append to a byte vector in the file's order: rows from y = h-1 down to 0,
// within a row from x = 0 up. They take widths that are a multiple of 8 (16, 32, 48).
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/alpha/alpha_array.h"
#include "core/files/ico_format.h"
#include "core/surface/surface.h"

namespace vexlo::files {

using ColorTable256 = std::array<surface::Color, 256>;

// The two-color table: 0 black, 1 white.
const std::array<surface::Color, 2>& TwoColorTable();
// The sixteen VGA colors in their index order (the 16-color chart's colors).
const std::array<surface::Color, 16>& SixteenColorTable();

// 2 if every pixel is black or white, 16 if every pixel is one of the sixteen VGA colors, 256
// if the distinct colors (black counted as present from the outset) are at most 256, else -1.
// An empty Surface answers -1 (its first pixel can't be read).
int CountColors(const surface::Surface& image);

// Index 0 black, index 255 white, the image's other colors from index 1 in the order of first
// appearance (rows from y = 0 down, x = 0 up), zero entries in between; at most 254 of them.
ColorTable256 BuildPalette256(const surface::Surface& image);

// Appends a color table: for each entry blue, green, red, 0.
void AppendColorTable(std::vector<std::uint8_t>& out, const surface::Color* table, std::size_t count);

// A plane of 1 bit per pixel (color rows of a 2-color image, and the mask rows): a bit is 1
// where the pixel is 0xFFFFFF; two bytes of padding after each row unless the width is 32.
void WriteBitRows(const surface::Surface& plane, std::vector<std::uint8_t>& out);
// 4 bits per pixel, the left pixel in the high nibble, indices into SixteenColorTable; a pixel
// the table lacks repeats the index found last for its side of the pair.
void Write4BitRows(const surface::Surface& image, std::vector<std::uint8_t>& out);
// 8 bits per pixel: 0 for black, 255 for white, else the first entry 1..254 of table with the
// color; a pixel the table lacks repeats the index of the pixel before it.
void Write8BitRows(const surface::Surface& image, const ColorTable256& table,
                   std::vector<std::uint8_t>& out);
// Blue, green, red per pixel, and with withAlpha the pixel's alpha value from alphaValues
// (indexed (x, y)). False, with nothing appended, if withAlpha is set and alphaValues is null
// or doesn't cover the image.
bool WriteTrueColorRows(const surface::Surface& image, std::vector<std::uint8_t>& out, bool withAlpha,
                        const alpha::AlphaArray* alphaValues);

// dwBytesInRes of an image of color count n (2, 16, 256, else true color: 32 bits with
// withAlpha, 24 without) and size w x h, for w of 16, 32 or 48: header and color table, color
// rows padded to 4 bytes, and the mask.
int ImageBytes(int n, int w, int h, bool withAlpha = false);

// The three header records of a file of one image.
struct IconHeaders {
    IconFileHeader Header;
    IconDirEntry Entry;
    BitmapInfoHeader Info;
};
IconHeaders BuildIconHeaders(const surface::Surface& image, int n, bool withAlpha);

// What WriteIconFile needs to know of the slot beside the two planes.
struct IconWriteOptions {
    // Write true color with alpha bytes (the save sets it for BitsPerPixel 32 and HasAlpha).
    bool Alpha = false;
    // Write 2- and 16-color images at 256 colors.
    bool Force256 = false;
    // The slot's ColorCount is -1 and it HasAlpha: true color whatever the colors.
    bool KeepTrueColor = false;
    // The slot's alpha values, indexed (x, y); read only when written with alpha.
    const alpha::AlphaArray* AlphaValues = nullptr;
};

// The color count the file is written with: CountColors, then KeepTrueColor or Force256.
int ColorCountToWrite(const surface::Surface& image, const IconWriteOptions& options);

// The depth of the image's entry as WriteIconFile writes it: Colors as ColorCountOfEntry reads
// it back (2, 16, 256, or -1) and Bits its wBitCount (1, 4, 8, 24 or 32). The pixels decide
// it, not the slot's record, so this is the depth that the duplicate test of a multi-icon
// file must compare.
struct WrittenDepth {
    int Colors = 0;
    int Bits = 0;
};
WrittenDepth DepthToWrite(const surface::Surface& image, const IconWriteOptions& options);

// The bytes of the file: header, entry, BITMAPINFOHEADER, color table, color rows, mask rows.
// Empty if the image isn't square of 16, 32 or 48, the mask isn't of its size, or alpha values
// are asked for and missing.
std::vector<std::uint8_t> BuildIconFileBytes(const surface::Surface& image, const surface::Surface& mask,
                                             const IconWriteOptions& options);

// Builds the bytes and writes them to path so that a failure never leaves a half-written
// file: a file that stood there is replaced only by a whole new one. A read-only target or a
// folder is refused. True if written; else false with the reason in *error (if given).
bool WriteIconFile(const surface::Surface& image, const surface::Surface& mask, const std::string& path,
                   const IconWriteOptions& options, std::string* error = nullptr);

// The message for a failed save of path: the read-only advice if IsProtectedFile(path), else
// "Failed to save this icon".
std::string SaveFailedMessage(const std::string& path);

}  // namespace vexlo::files
