#pragma once
// Device-independent bitmaps as icon entries and BMP files hold them: the info header, the
// color table and the pixel rows. Callers take every span through a files::ByteReader, so a
// size from the file is checked against the bytes at hand before anything is read or sized.
#include <cstdint>
#include <string>

#include "cli/rgba_image.h"
#include "core/files/byte_reader.h"

namespace vexlo::cli {

using files::Bytes;

inline constexpr std::uint32_t kBiRgb = 0;
inline constexpr std::uint32_t kBiBitfields = 3;

struct DibHeader {
    std::uint32_t Size = 0;  // 40, 52, 56, 108 or 124
    std::int32_t Width = 0;
    std::int32_t Height = 0;
    std::uint16_t Planes = 0;
    std::uint16_t BitCount = 0;
    std::uint32_t Compression = 0;
    std::uint32_t ClrUsed = 0;
    // Red, green, blue and alpha masks of a header of 52 bytes or more (0 where absent).
    std::uint32_t Masks[4] = {};
};

// Reads the info header at the reader's position and checks what every reader here needs: a
// known size, one plane, 1, 4, 8, 24 or 32 bits, and for up to 8 bits a biClrUsed within
// 2^bits. The compression is the caller's to judge. False with the reason in why.
bool ReadDibHeader(files::ByteReader& r, DibHeader& h, std::string& why);

// "RLE8", "RLE4", "bit fields", ...: the name of a biCompression value for messages.
std::string CompressionName(std::uint32_t compression);

// Entries of the color table that follows the header: biClrUsed, or 2^bits when that is 0,
// for up to 8 bits; biClrUsed for more (a table that only suggests colors).
std::uint32_t ColorTableEntries(const DibHeader& h);

// Bytes of one row of w pixels at bits per pixel, padded to a multiple of 4.
constexpr std::uint64_t DibStride(std::uint64_t w, int bits) {
    return (w * static_cast<std::uint64_t>(bits) + 31) / 32 * 4;
}

// Where each channel of a 32-bit pixel (read as a little-endian word) sits: a shift of 0, 8,
// 16 or 24, or -1 for a channel the pixel lacks. The plain layout is blue, green, red, alpha.
struct ChannelShifts {
    int Red = 16, Green = 8, Blue = 0, Alpha = 24;
};

// The shifts of byte-aligned bit field masks (each 0 or 0xFF at a byte); false for others.
bool ShiftsOfMasks(const std::uint32_t masks[4], ChannelShifts& out);

// The pixel rows of a bitmap, already taken from the data: Rows holds at least
// DibStride(Width, Bits) * Height bytes, Table (blue, green, red, unused per entry) the
// color table for up to 8 bits.
struct DibRows {
    Bytes Rows;
    Bytes Table;
    int Width = 0;
    int Height = 0;
    int Bits = 0;
    bool BottomUp = true;
    ChannelShifts Shifts;  // 32 bits only
};

// Decodes the rows into out (sized to Width x Height): alpha 255, or for 32 bits the pixel's
// alpha byte. False, with the pixel named in why, for an index past the color table.
bool DecodeDibRows(const DibRows& dib, RgbaImage& out, std::string& why);

// The alpha of every pixel from a 1-bit AND mask of bottom-up rows padded to 4 bytes: 0 where
// the bit is set (transparent or inverting), 255 where not. maskRows holds them all.
void AlphaFromMask(Bytes maskRows, RgbaImage& image);

// True if every pixel's alpha is 0: a 32-bit image that carries no alpha in its fourth bytes.
bool AllAlphaZero(const RgbaImage& image);

}  // namespace vexlo::cli
