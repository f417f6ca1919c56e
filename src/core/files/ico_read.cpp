#include "core/files/ico_read.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/files/ico_format.h"
#include "core/files/ico_probe.h"
#include "core/icon/icon_planes.h"

namespace vexlo::files {

using surface::Color;

namespace {

constexpr Color kMaskSet = 0xFFFFFF;

// One color row of the file into the pixels of a row.
void DecodeColorRow(const std::uint8_t* src, int side, int colors, int bitCount,
                    const std::array<Color, 256>& palette, Color* dst, alpha::AlphaArray& alpha,
                    int y) {
    switch (colors) {
        case 2:
            for (int x = 0; x < side; ++x) dst[x] = palette[(src[x >> 3] >> (7 - (x & 7))) & 1];
            break;
        case 16:
            for (int x = 0; x < side; ++x) {
                const std::uint8_t b = src[x >> 1];
                dst[x] = palette[(x & 1) ? (b & 0x0F) : (b >> 4)];
            }
            break;
        case 256:
            for (int x = 0; x < side; ++x) dst[x] = palette[src[x]];
            break;
        default:
            if (bitCount == 24) {
                for (int x = 0; x < side; ++x, src += 3) dst[x] = surface::Rgb(src[2], src[1], src[0]);
            } else {
                for (int x = 0; x < side; ++x, src += 4) {
                    dst[x] = surface::Rgb(src[2], src[1], src[0]);
                    alpha.At(x, y) = src[3];
                }
            }
            break;
    }
}

}  // namespace

bool DecodeIconImage(Bytes data, std::uint64_t imageOffset, int side, int colors, int bitCount,
                     DecodedIcon& out) {
    if (!IsIconSide(side)) return false;
    const bool trueColor = colors <= 0;
    if (!trueColor && colors != 2 && colors != 16 && colors != 256) return false;

    // Every part is checked against the data before anything is decoded or allocated.
    ByteReader r(data);
    r.Seek(imageOffset);
    r.Skip(kBitmapInfoHeaderBytes);
    const Bytes table = trueColor ? Bytes{} : r.Take(std::uint64_t{4} * static_cast<unsigned>(colors));
    const int colorRowBytes = ColorRowBytes(colors, bitCount, side);
    const int maskRowBytes = BitRowBytes(side);
    const Bytes colorRows = r.Take(std::uint64_t{1} * static_cast<unsigned>(colorRowBytes * side));
    const Bytes maskRows = r.Take(std::uint64_t{1} * static_cast<unsigned>(maskRowBytes * side));
    if (!r.Ok()) return false;

    std::array<Color, 256> palette{};
    for (std::size_t i = 0; i < table.size() / 4; ++i)
        palette[i] = surface::Rgb(table[4 * i + 2], table[4 * i + 1], table[4 * i]);

    DecodedIcon d;
    d.Side = side;
    const std::size_t pixels = static_cast<std::size_t>(side) * static_cast<std::size_t>(side);
    d.Image.resize(pixels);
    d.Mask.resize(pixels);
    d.TrueColor = trueColor;
    if (trueColor) d.Alpha.SetBounds(side - 1);  // zero filled; 24 bits leave it so

    // Rows run from the bottom row of the icon to the top one.
    for (int row = 0; row < side; ++row) {
        const int y = side - 1 - row;
        Color* dst = d.Image.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(side);
        DecodeColorRow(colorRows.data() + static_cast<std::size_t>(row) * colorRowBytes, side, colors,
                       bitCount, palette, dst, d.Alpha, y);
        const std::uint8_t* m = maskRows.data() + static_cast<std::size_t>(row) * maskRowBytes;
        Color* mdst = d.Mask.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(side);
        for (int x = 0; x < side; ++x) mdst[x] = ((m[x >> 3] >> (7 - (x & 7))) & 1) ? kMaskSet : 0;
    }
    out = std::move(d);
    return true;
}

void PutDecodedIcon(DecodedIcon&& icon, surface::Surface& image, surface::Surface& mask,
                    alpha::AlphaArray& incomingAlpha) {
    surface::ResizeSurface(image, icon.Side, icon.Side);
    surface::ResizeSurface(mask, icon.Side, icon.Side);
    std::copy(icon.Image.begin(), icon.Image.end(), image.Data());
    std::copy(icon.Mask.begin(), icon.Mask.end(), mask.Data());
    if (icon.TrueColor) incomingAlpha = std::move(icon.Alpha);
}

bool ReadIconFileToImage(Bytes data, int index, surface::Surface& image, surface::Surface& mask,
                         alpha::AlphaArray& incomingAlpha) {
    ByteReader r(data);
    const IconFileHeader header = ReadIconFileHeader(r);
    if (!r.Ok() || !IsIconFileHeader(header) || index < 0 || index > header.Count - 1) return false;
    // Only the entry asked for is read; one that idCount names but the file cuts off fails.
    r.Skip(std::uint64_t{kIconDirEntryBytes} * static_cast<unsigned>(index));
    const IconDirEntry entry = ReadIconDirEntry(r);
    if (!r.Ok()) return false;

    DecodedIcon decoded;
    if (!DecodeIconImage(data, entry.ImageOffset, entry.Width, ColorCountOfEntry(entry),
                         entry.BitCount, decoded))
        return false;
    PutDecodedIcon(std::move(decoded), image, mask, incomingAlpha);
    return true;
}

bool ReadIconFileToImage(const std::string& path, int index, surface::Surface& image,
                         surface::Surface& mask, alpha::AlphaArray& incomingAlpha) {
    std::vector<std::uint8_t> data;
    if (ReadWholeFile(path, data) != FileReadStatus::Ok) return false;
    return ReadIconFileToImage(Bytes(data), index, image, mask, incomingAlpha);
}

bool ReadIconToPreview(Bytes data, surface::Surface& image, surface::Surface& mask,
                       surface::Surface& composed) {
    const ProbeAnswer probe = ProbeIconFile(data, true);
    if (probe.Kind == 0 || probe.Usable == 0 || !IsIconSide(probe.Width)) return false;
    alpha::AlphaArray scratch;
    if (!ReadIconFileToImage(data, probe.Index, image, mask, scratch)) return false;
    icon::ComposeResized(image, mask, composed);
    return true;
}

bool ReadIconToPreview(const std::string& path, surface::Surface& image, surface::Surface& mask,
                       surface::Surface& composed) {
    std::vector<std::uint8_t> data;
    if (ReadWholeFile(path, data) != FileReadStatus::Ok) return false;
    return ReadIconToPreview(Bytes(data), image, mask, composed);
}

}  // namespace vexlo::files
