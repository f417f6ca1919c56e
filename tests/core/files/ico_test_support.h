#pragma once
// Helpers of the icon file tests: planes drawn as ASCII, fixtures, and icon files laid out by
// hand (independently of the writer) so that the reader is not only checked against itself.
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "core/files/ico_format.h"
#include "core/surface/surface.h"
#include "support/test_bytes.h"

namespace vexlo::files::test {

using surface::Color;
using surface::Surface;
using vexlo::test::ByteVec;
using vexlo::test::ReadBytes;
using vexlo::test::U16At;
using vexlo::test::U32At;
using vexlo::test::WriteBytes;

inline ByteVec LoadFixture(const std::string& relative) { return ReadBytes(vexlo::test::FixturePathOf(relative)); }
inline void PatchU16(ByteVec& b, std::size_t at, std::uint16_t v) {
    b[at] = static_cast<std::uint8_t>(v & 0xFF);
    b[at + 1] = static_cast<std::uint8_t>(v >> 8);
}
inline void PatchU32(ByteVec& b, std::size_t at, std::uint32_t v) {
    for (int i = 0; i < 4; ++i) b[at + static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(v >> (8 * i));
}

inline Surface Filled(int side, Color c) {
    Surface s(side, side, 0xFFFFFF);
    s.Fill(c);
    return s;
}

// One image of a hand-made icon file: the entry and header (offset and size are filled in
// by MakeIcoFile), and the bytes after the 40-byte header.
struct RawImage {
    IconDirEntry Entry;
    BitmapInfoHeader Info;
    ByteVec Payload;
};

// A square image of side at bitCount (1, 4, 8, 24, 32) with a color table of n = 2^bitCount
// entries where that applies; table, color rows and mask rows all filled with fill.
inline RawImage PlainImage(int side, int bitCount, std::uint8_t fill = 0) {
    RawImage img;
    const int n = bitCount <= 8 ? 1 << bitCount : kTrueColor;
    img.Entry.Width = static_cast<std::uint8_t>(side);
    img.Entry.Height = static_cast<std::uint8_t>(side);
    img.Entry.ColorCount = static_cast<std::uint8_t>(n == 2 || n == 16 ? n : 0);
    img.Entry.Planes = 1;
    img.Entry.BitCount = static_cast<std::uint16_t>(bitCount);
    img.Info.Width = side;
    img.Info.Height = 2 * side;
    img.Info.BitCount = static_cast<std::uint16_t>(bitCount);
    const std::size_t table = n > 0 ? 4 * static_cast<std::size_t>(n) : 0;
    const std::size_t rows = static_cast<std::size_t>(ColorRowBytes(n, bitCount, side) + BitRowBytes(side)) *
                             static_cast<std::size_t>(side);
    img.Payload.assign(table + rows, fill);
    return img;
}

// Header, directory, then each image in turn.
inline ByteVec MakeIcoFile(std::vector<RawImage> images) {
    ByteVec out;
    AppendIconFileHeader(out, {0, 1, static_cast<std::uint16_t>(images.size())});
    std::uint32_t offset = static_cast<std::uint32_t>(kIconFileHeaderBytes + kIconDirEntryBytes * images.size());
    for (RawImage& img : images) {
        img.Entry.ImageOffset = offset;
        img.Entry.BytesInRes = static_cast<std::uint32_t>(kBitmapInfoHeaderBytes + img.Payload.size());
        offset += static_cast<std::uint32_t>(kBitmapInfoHeaderBytes + img.Payload.size());
        AppendIconDirEntry(out, img.Entry);
    }
    for (const RawImage& img : images) {
        AppendBitmapInfoHeader(out, img.Info);
        out.insert(out.end(), img.Payload.begin(), img.Payload.end());
    }
    return out;
}

}  // namespace vexlo::files::test
