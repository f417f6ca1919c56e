#include "cli/bmp_read.h"

#include <cstdint>

#include "cli/dib_decode.h"

namespace vexlo::cli {

namespace {

constexpr std::uint32_t kBiAlphaBitfields = 6;

}  // namespace

bool ReadBmp(files::Bytes file, const SizeCheck& checkSize, RgbaImage& out, std::string& why) {
    files::ByteReader r(file);
    if (r.U8() != 'B' || r.U8() != 'M') {
        why = "not a BMP";
        return false;
    }
    r.Skip(8);  // bfSize, bfReserved1, bfReserved2
    const std::uint32_t offBits = r.U32();
    DibHeader h;
    if (!ReadDibHeader(r, h, why)) return false;
    DibRows dib;
    dib.Bits = h.BitCount;
    if (h.Compression == kBiBitfields || h.Compression == kBiAlphaBitfields) {
        if (h.BitCount != 32) {
            why = "bit fields at " + std::to_string(h.BitCount) + " bits (only at 32 bits are they read)";
            return false;
        }
        if (h.Size == 40) {  // the masks follow a 40-byte header
            for (int i = 0; i < (h.Compression == kBiAlphaBitfields ? 4 : 3); ++i) h.Masks[i] = r.U32();
            if (h.Compression == kBiBitfields) h.Masks[3] = 0;
        }
        if (!ShiftsOfMasks(h.Masks, dib.Shifts)) {
            why = "bit field masks that are not whole bytes";
            return false;
        }
    } else if (h.Compression != kBiRgb) {
        why = CompressionName(h.Compression) + " compression (only uncompressed pictures are read)";
        return false;
    }
    const std::int64_t height = h.Height < 0 ? -std::int64_t{h.Height} : h.Height;
    if (h.Width <= 0 || height == 0 || height > 0xFFFF || h.Width > 0xFFFF) {
        why = "a picture of " + std::to_string(h.Width) + "x" + std::to_string(h.Height);
        return false;
    }
    if (!checkSize(h.Width, static_cast<int>(height), why)) return false;
    if (h.BitCount <= 8) dib.Table = r.Take(std::uint64_t{ColorTableEntries(h)} * 4);
    if (r.Failed()) {
        why = "cut short before the end of its color table";
        return false;
    }
    dib.Width = h.Width;
    dib.Height = static_cast<int>(height);
    dib.BottomUp = h.Height > 0;
    const std::uint64_t rowBytes = DibStride(static_cast<std::uint64_t>(h.Width), h.BitCount) *
                                   static_cast<std::uint64_t>(height);
    r.Seek(offBits);
    dib.Rows = r.Take(rowBytes);
    if (r.Failed()) {
        why = "its " + std::to_string(rowBytes) + " bytes of pixels at offset " + std::to_string(offBits) +
              " run past the end of the file";
        return false;
    }
    RgbaImage image;
    if (!DecodeDibRows(dib, image, why)) return false;
    if (h.BitCount == 32 && AllAlphaZero(image))
        for (std::size_t i = 3; i < image.Pixels.size(); i += 4) image.Pixels[i] = 255;
    out = std::move(image);
    return true;
}

}  // namespace vexlo::cli
