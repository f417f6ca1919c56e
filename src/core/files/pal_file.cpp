// Palette files: the BMP picture of the Color Mixer's strip, read with every size checked
// against the file before it is used, and written beside the target then renamed.
#include "core/files/pal_file.h"

#include <bit>

#include "core/files/bmp_write.h"

namespace vexlo::files {
namespace {

constexpr std::size_t kFileHeaderBytes = 14;
constexpr std::uint32_t kBiRgb = 0;
constexpr std::uint32_t kBiBitfields = 3;
// Sides beyond this are no picture of any program; it also keeps the row sums small.
constexpr std::int64_t kMaxSide = std::int64_t{1} << 20;

bool Fail(PaletteReadError& error, const std::string& why) {
    error = {kInvalidPictureNumber, "Invalid picture: " + why};
    return false;
}

bool KnownHeaderSize(std::uint32_t size) {
    return size == 12 || size == 40 || size == 52 || size == 56 || size == 108 || size == 124;
}

// The default masks of 16-bit (5-5-5) and 32-bit (8-8-8) pixels without bit fields.
std::array<std::uint32_t, 3> DefaultMasks(int bits) {
    if (bits == 16) return {0x7C00, 0x03E0, 0x001F};
    return {0x00FF0000, 0x0000FF00, 0x000000FF};
}

// One component of a packed pixel brought to 8 bits as display drivers do: a narrower field
// shifted up (so 5 bits of 31 give 248), a wider one cut to its top 8 bits.
int Component(std::uint32_t pixel, std::uint32_t mask) {
    if (mask == 0) return 0;
    const int shift = std::countr_zero(mask);
    const int width = std::bit_width(mask >> shift);
    const std::uint32_t v = (pixel & mask) >> shift;
    return static_cast<int>(width <= 8 ? (v << (8 - width)) & 0xFF : (v >> (width - 8)) & 0xFF);
}

}  // namespace

bool IsBmpBytes(Bytes data) { return data.size() >= 2 && data[0] == 'B' && data[1] == 'M'; }

bool ReadPaletteLayout(Bytes data, PaletteLayout& layout, PaletteReadError& error) {
    if (!IsBmpBytes(data)) return Fail(error, "not a bitmap (no \"BM\" at the start)");
    ByteReader r(data);
    r.Skip(10);
    const std::uint32_t offBits = r.U32();
    const std::uint32_t headerSize = r.U32();
    if (r.Failed()) return Fail(error, "the file ends inside the bitmap's header");
    if (!KnownHeaderSize(headerSize))
        return Fail(error, "unknown bitmap header of " + std::to_string(headerSize) + " bytes");
    if (!r.Has(headerSize - 4)) return Fail(error, "the file ends inside the bitmap's header");

    std::int64_t width = 0, height = 0;
    std::uint16_t planes = 0, bits = 0;
    std::uint32_t compression = kBiRgb, colorsUsed = 0;
    if (headerSize == 12) {
        width = r.U16();
        height = static_cast<std::int16_t>(r.U16());
        planes = r.U16();
        bits = r.U16();
    } else {
        width = r.I32();
        height = r.I32();
        planes = r.U16();
        bits = r.U16();
        compression = r.U32();
        r.Skip(12);  // image size, resolution
        colorsUsed = r.U32();
    }
    PaletteLayout out;
    out.TopDown = height < 0;
    if (height < 0) height = -height;
    if (width < 1 || height < 1 || width > kMaxSide || height > kMaxSide)
        return Fail(error, "a bitmap of " + std::to_string(width) + " x " + std::to_string(height) +
                               " pixels");
    if (planes != 1) return Fail(error, std::to_string(planes) + " planes");
    const bool paletted = bits == 1 || bits == 4 || bits == 8;
    if (!paletted && bits != 16 && bits != 24 && bits != 32)
        return Fail(error, "bitmaps of " + std::to_string(bits) + " bits are not read");
    const bool fields = compression == kBiBitfields && (bits == 16 || bits == 32);
    if (compression != kBiRgb && !fields)
        return Fail(error, "compressed bitmaps (compression " + std::to_string(compression) +
                               ") are not read");
    if (out.TopDown && headerSize == 12) return Fail(error, "a bitmap of negative height");

    // Bit fields follow a 40-byte header; later headers hold them at the same place.
    std::size_t tableAt = kFileHeaderBytes + headerSize;
    out.Masks = DefaultMasks(bits);
    if (fields) {
        r.Seek(kFileHeaderBytes + 40);
        out.Masks = {r.U32(), r.U32(), r.U32()};
        if (r.Failed()) return Fail(error, "the file ends inside the bit fields");
        if (headerSize == 40) tableAt += 12;
    }
    if (paletted) {
        const std::uint32_t most = 1u << bits;
        if (colorsUsed > most)
            return Fail(error, "a color table of " + std::to_string(colorsUsed) + " entries for " +
                                   std::to_string(bits) + " bits");
        const std::uint32_t count = colorsUsed == 0 ? most : colorsUsed;
        const std::size_t entry = headerSize == 12 ? 3 : 4;
        r.Seek(tableAt);
        if (!r.Has(std::uint64_t{count} * entry)) return Fail(error, "the color table runs past the end of the file");
        out.Table.reserve(count);
        for (std::uint32_t i = 0; i < count; ++i) {
            const std::uint8_t b = r.U8(), g = r.U8(), red = r.U8();
            if (entry == 4) r.U8();
            out.Table.push_back(surface::Rgb(red, g, b));
        }
        tableAt = r.Position();
    }
    if (offBits < tableAt || offBits > data.size())
        return Fail(error, "the pixel rows start at " + std::to_string(offBits) +
                               ", outside the file or inside its headers");
    const std::uint64_t rowBytes = (static_cast<std::uint64_t>(width) * bits + 31) / 32 * 4;
    if (rowBytes * static_cast<std::uint64_t>(height) > data.size() - offBits)
        return Fail(error, "the pixel rows run past the end of the file");

    out.Width = static_cast<int>(width);
    out.Height = static_cast<int>(height);
    out.BitCount = bits;
    out.PixelOffset = offBits;
    out.RowBytes = static_cast<std::size_t>(rowBytes);
    layout = std::move(out);
    return true;
}

bool DecodePalettePicture(Bytes data, const PaletteLayout& layout, surface::Surface& picture) {
    if (std::int64_t{layout.Width} * layout.Height > kMaxPalettePixels) return false;
    if (layout.PixelOffset + layout.RowBytes * static_cast<std::size_t>(layout.Height) > data.size())
        return false;
    surface::Surface out(layout.Width, layout.Height, 0xFFFFFF);
    const int bits = layout.BitCount;
    for (int row = 0; row < layout.Height; ++row) {
        const std::uint8_t* p = data.data() + layout.PixelOffset + layout.RowBytes * static_cast<std::size_t>(row);
        const int y = layout.TopDown ? row : layout.Height - 1 - row;
        for (int x = 0; x < layout.Width; ++x) {
            surface::Color c = 0;
            if (bits <= 8) {
                const int perByte = 8 / bits;
                const int shift = 8 - bits * (x % perByte + 1);
                const std::size_t index = (p[x / perByte] >> shift) & ((1u << bits) - 1);
                c = index < layout.Table.size() ? layout.Table[index] : 0;
            } else if (bits == 24) {
                c = surface::Rgb(p[3 * x + 2], p[3 * x + 1], p[3 * x]);
            } else {
                const std::size_t at = static_cast<std::size_t>(x) * (bits / 8);
                std::uint32_t v = p[at] | (p[at + 1] << 8);
                if (bits == 32) v |= (std::uint32_t{p[at + 2]} << 16) | (std::uint32_t{p[at + 3]} << 24);
                c = surface::Rgb(Component(v, layout.Masks[0]), Component(v, layout.Masks[1]),
                                 Component(v, layout.Masks[2]));
            }
            out.SetPixelV(x, y, c);
        }
    }
    picture = std::move(out);
    return true;
}

bool ReadPaletteFileBytes(const std::string& path, std::vector<std::uint8_t>& bytes,
                          PaletteReadError& error) {
    switch (ReadWholeFile(path, bytes)) {
        case FileReadStatus::Ok: return true;
        case FileReadStatus::NotFound: error = {kFileNotFoundNumber, "File not found"}; return false;
        case FileReadStatus::TooLarge:
            error = {kInvalidPictureNumber, "Invalid picture: the file is too large for a palette"};
            return false;
        case FileReadStatus::NotRegular:
        case FileReadStatus::ReadError: break;
    }
    error = {kFileAccessNumber, "Path/File access error"};
    return false;
}

FileWriteResult WritePaletteFile(const surface::Surface& strip, const std::string& path) {
    return WriteBmpFile(strip, path);
}

}  // namespace vexlo::files
