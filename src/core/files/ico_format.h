#pragma once
// The records of an icon file (little endian throughout) and the row lengths of its planes.
//
//   file header      6 bytes at 0: idReserved 0, idType 1, idCount
//   directory        idCount entries of 16 bytes from 6
//   image            at dwImageOffset: BITMAPINFOHEADER (40 bytes), color table of n entries
//                    (blue, green, red, 0), color rows, mask rows; rows bottom-up
#include <cstdint>
#include <vector>

#include "core/files/byte_reader.h"

namespace vexlo::files {

inline constexpr int kIconFileHeaderBytes = 6;
inline constexpr int kIconDirEntryBytes = 16;
inline constexpr int kBitmapInfoHeaderBytes = 40;
// The color count that stands for true color throughout the program.
inline constexpr int kTrueColor = -1;

struct IconFileHeader {
    std::uint16_t Reserved = 0;  // idReserved
    std::uint16_t Type = 1;      // idType
    std::uint16_t Count = 1;     // idCount
    friend bool operator==(const IconFileHeader&, const IconFileHeader&) = default;
};

struct IconDirEntry {
    std::uint8_t Width = 0;       // bWidth
    std::uint8_t Height = 0;      // bHeight
    std::uint8_t ColorCount = 0;  // bColorCount
    std::uint8_t Reserved = 0;    // bReserved
    std::uint16_t Planes = 0;     // wPlanes
    std::uint16_t BitCount = 0;   // wBitCount
    std::uint32_t BytesInRes = 0;   // dwBytesInRes
    std::uint32_t ImageOffset = 0;  // dwImageOffset
    friend bool operator==(const IconDirEntry&, const IconDirEntry&) = default;
};

struct BitmapInfoHeader {
    std::uint32_t Size = 40;
    std::int32_t Width = 0;
    std::int32_t Height = 0;  // twice the icon's height: both planes
    std::uint16_t Planes = 1;
    std::uint16_t BitCount = 0;
    std::uint32_t Compression = 0;
    std::uint32_t SizeImage = 0;
    std::int32_t XPelsPerMeter = 0;
    std::int32_t YPelsPerMeter = 0;
    std::uint32_t ClrUsed = 0;
    std::uint32_t ClrImportant = 0;
    friend bool operator==(const BitmapInfoHeader&, const BitmapInfoHeader&) = default;
};

// The sizes that the program takes: 16, 32 and 48.
constexpr bool IsIconSide(std::int64_t w) { return w == 16 || w == 32 || w == 48; }

// Bytes of one row of a 1-bit plane (mask rows and 1-bit color rows): w/8, then 2 bytes of
// padding unless w = 32. So 4 for 16, 4 for 32, 8 for 48.
constexpr int BitRowBytes(int w) { return w / 8 + (w == 32 ? 0 : 2); }

// Bytes of one color row for color count n (2, 16, 256, or kTrueColor) and bit count b.
constexpr int ColorRowBytes(int n, int b, int w) {
    return n == 2 ? BitRowBytes(w) : n == 16 ? w / 2 : n == 256 ? w : (b == 24 ? 3 * w : 4 * w);
}

IconFileHeader ReadIconFileHeader(ByteReader& r);
IconDirEntry ReadIconDirEntry(ByteReader& r);
BitmapInfoHeader ReadBitmapInfoHeader(ByteReader& r);

void AppendIconFileHeader(std::vector<std::uint8_t>& out, const IconFileHeader& h);
void AppendIconDirEntry(std::vector<std::uint8_t>& out, const IconDirEntry& e);
void AppendBitmapInfoHeader(std::vector<std::uint8_t>& out, const BitmapInfoHeader& h);

// The header is an icon file's: idReserved 0, idType 1, idCount at least 1.
constexpr bool IsIconFileHeader(const IconFileHeader& h) {
    return h.Reserved == 0 && h.Type == 1 && h.Count >= 1;
}

// Reads the header and the directory entries that lie wholly within data: never more than
// the file can hold, whatever idCount says (an entry cut off by the end of the data, and all
// after it, are left out). False if data is too short for the header.
bool ReadIconDirectory(Bytes data, IconFileHeader& header, std::vector<IconDirEntry>& entries);

}  // namespace vexlo::files
