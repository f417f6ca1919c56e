#include "cli/dib_decode.h"

namespace vexlo::cli {

bool ReadDibHeader(files::ByteReader& r, DibHeader& h, std::string& why) {
    const std::size_t start = r.Position();
    h.Size = r.U32();
    if (r.Failed()) {
        why = "cut short inside its image header";
        return false;
    }
    if (h.Size != 40 && h.Size != 52 && h.Size != 56 && h.Size != 108 && h.Size != 124) {
        why = "an image header of " + std::to_string(h.Size) + " bytes (40, 52, 56, 108 or 124 are read)";
        return false;
    }
    if (!r.Has(h.Size - 4)) {
        why = "cut short inside its image header of " + std::to_string(h.Size) + " bytes";
        return false;
    }
    h.Width = r.I32();
    h.Height = r.I32();
    h.Planes = r.U16();
    h.BitCount = r.U16();
    h.Compression = r.U32();
    r.Skip(12);  // biSizeImage, biXPelsPerMeter, biYPelsPerMeter
    h.ClrUsed = r.U32();
    r.Skip(4);  // biClrImportant
    for (int i = 0; i < 4 && r.Position() - start + 4 <= h.Size; ++i) h.Masks[i] = r.U32();
    r.Seek(start + h.Size);
    if (h.Planes != 1) {
        why = std::to_string(h.Planes) + " planes in the image header (1 is read)";
        return false;
    }
    const int b = h.BitCount;
    if (b != 1 && b != 4 && b != 8 && b != 24 && b != 32) {
        why = "a bit count of " + std::to_string(b) + " (1, 4, 8, 24 and 32 are read)";
        return false;
    }
    if (b <= 8 && h.ClrUsed > (1u << b)) {
        why = "a color table of " + std::to_string(h.ClrUsed) + " entries (at most " +
              std::to_string(1u << b) + " at " + std::to_string(b) + " bits per pixel)";
        return false;
    }
    return true;
}

std::string CompressionName(std::uint32_t compression) {
    switch (compression) {
        case 0: return "no";
        case 1: return "RLE8";
        case 2: return "RLE4";
        case 3: return "bit fields";
        case 4: return "JPEG";
        case 5: return "PNG";
        case 6: return "alpha bit fields";
        default: return "unknown (" + std::to_string(compression) + ")";
    }
}

std::uint32_t ColorTableEntries(const DibHeader& h) {
    if (h.BitCount <= 8 && h.ClrUsed == 0) return 1u << h.BitCount;
    return h.ClrUsed;
}

bool ShiftsOfMasks(const std::uint32_t masks[4], ChannelShifts& out) {
    int* shifts[4] = {&out.Red, &out.Green, &out.Blue, &out.Alpha};
    for (int i = 0; i < 4; ++i) {
        *shifts[i] = -1;
        for (int s = 0; s < 32; s += 8)
            if (masks[i] == (0xFFu << s)) *shifts[i] = s;
        if (*shifts[i] < 0 && (masks[i] != 0 || i < 3)) return false;
    }
    return true;
}

bool DecodeDibRows(const DibRows& dib, RgbaImage& out, std::string& why) {
    const int w = dib.Width, h = dib.Height, bits = dib.Bits;
    const std::size_t stride = static_cast<std::size_t>(DibStride(static_cast<std::uint64_t>(w), bits));
    const std::size_t entries = dib.Table.size() / 4;
    out.Reset(w, h);
    for (int row = 0; row < h; ++row) {
        const int y = dib.BottomUp ? h - 1 - row : row;
        const std::uint8_t* src = dib.Rows.data() + static_cast<std::size_t>(row) * stride;
        for (int x = 0; x < w; ++x) {
            std::uint8_t* px = out.At(x, y);
            if (bits <= 8) {
                const int perByte = 8 / bits;
                const int shift = 8 - bits * (x % perByte + 1);
                const std::size_t index = (src[x / perByte] >> shift) & ((1u << bits) - 1);
                if (index >= entries) {
                    why = "pixel " + std::to_string(x) + "," + std::to_string(y) + " uses color " +
                          std::to_string(index) + " of a table of " + std::to_string(entries);
                    return false;
                }
                const std::uint8_t* c = dib.Table.data() + index * 4;
                px[0] = c[2], px[1] = c[1], px[2] = c[0], px[3] = 255;
            } else if (bits == 24) {
                const std::uint8_t* c = src + static_cast<std::size_t>(x) * 3;
                px[0] = c[2], px[1] = c[1], px[2] = c[0], px[3] = 255;
            } else {
                const std::uint8_t* c = src + static_cast<std::size_t>(x) * 4;
                const std::uint32_t v =
                    c[0] | (c[1] << 8) | (c[2] << 16) | (static_cast<std::uint32_t>(c[3]) << 24);
                const ChannelShifts& s = dib.Shifts;
                px[0] = static_cast<std::uint8_t>(v >> s.Red);
                px[1] = static_cast<std::uint8_t>(v >> s.Green);
                px[2] = static_cast<std::uint8_t>(v >> s.Blue);
                px[3] = s.Alpha < 0 ? 255 : static_cast<std::uint8_t>(v >> s.Alpha);
            }
        }
    }
    return true;
}

void AlphaFromMask(Bytes maskRows, RgbaImage& image) {
    const std::size_t stride = static_cast<std::size_t>(DibStride(static_cast<std::uint64_t>(image.Width), 1));
    for (int row = 0; row < image.Height; ++row) {
        const std::uint8_t* src = maskRows.data() + static_cast<std::size_t>(row) * stride;
        const int y = image.Height - 1 - row;
        for (int x = 0; x < image.Width; ++x)
            image.At(x, y)[3] = (src[x / 8] >> (7 - x % 8)) & 1 ? 0 : 255;
    }
}

bool AllAlphaZero(const RgbaImage& image) {
    for (std::size_t i = 3; i < image.Pixels.size(); i += 4)
        if (image.Pixels[i] != 0) return false;
    return true;
}

}  // namespace vexlo::cli
