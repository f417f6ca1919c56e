#include "cli/icon_entries.h"

#include <cstring>

#include "cli/dib_decode.h"
#include "cli/png_io.h"

namespace vexlo::cli {

namespace {

std::string Size(int w, int h) { return std::to_string(w) + "x" + std::to_string(h); }

bool StartsWith(files::Bytes data, std::size_t at, const char* text) {
    const std::size_t n = std::strlen(text);
    return data.size() >= at + n && std::memcmp(data.data() + at, text, n) == 0;
}

bool DecodePngEntry(files::Bytes span, const IconEntry& e, EntryImage& out, std::string& why) {
    PngFacts facts;
    const auto sameSize = [&e](int w, int h, std::string& sizeWhy) {
        if (w == e.Width && h == e.Height) return true;
        sizeWhy = "the PNG is " + Size(w, h) + ", the directory says " + Size(e.Width, e.Height);
        return false;
    };
    if (!ReadPng(span, sameSize, out.Pixels, &facts, why)) return false;
    out.Png = true;
    out.Bits = facts.Bits;
    out.Colors = facts.Colors;
    return true;
}

bool DecodeDibEntry(files::Bytes span, const IconEntry& e, EntryImage& out, std::string& why) {
    files::ByteReader r(span);
    DibHeader h;
    if (!ReadDibHeader(r, h, why)) return false;
    if (h.Compression != kBiRgb) {
        why = CompressionName(h.Compression) + " compression (only uncompressed images are read)";
        return false;
    }
    if (h.Width != e.Width) {
        why = "the image header's width " + std::to_string(h.Width) + " differs from the directory's " +
              std::to_string(e.Width);
        return false;
    }
    if (h.Height != 2 * e.Height) {
        why = "the image header's height " + std::to_string(h.Height) + " is not twice the directory's " +
              std::to_string(e.Height) + " (color and mask rows)";
        return false;
    }
    const std::uint32_t entries = ColorTableEntries(h);
    DibRows dib;
    dib.Table = r.Take(std::uint64_t{entries} * 4);
    if (r.Failed()) {
        why = "cut short inside its color table of " + std::to_string(entries) + " entries";
        return false;
    }
    if (h.BitCount > 8) dib.Table = {};  // a table that only suggests colors
    dib.Width = e.Width;
    dib.Height = e.Height;
    dib.Bits = h.BitCount;
    const std::uint64_t colorBytes = DibStride(static_cast<std::uint64_t>(e.Width), h.BitCount) *
                                     static_cast<std::uint64_t>(e.Height);
    const std::uint64_t maskBytes = DibStride(static_cast<std::uint64_t>(e.Width), 1) *
                                    static_cast<std::uint64_t>(e.Height);
    const std::size_t left = r.Remaining();
    dib.Rows = r.Take(colorBytes);
    if (r.Failed()) {
        why = "cut short inside its color rows (" + std::to_string(left) + " of " +
              std::to_string(colorBytes) + " bytes)";
        return false;
    }
    const std::size_t maskLeft = r.Remaining();
    if (maskLeft < maskBytes && !(h.BitCount == 32 && maskLeft == 0)) {
        why = "cut short inside its mask rows (" + std::to_string(maskLeft) + " of " +
              std::to_string(maskBytes) + " bytes)";
        return false;
    }
    if (!DecodeDibRows(dib, out.Pixels, why)) return false;
    out.StoredAlpha.clear();
    if (h.BitCount == 32) {
        out.StoredAlpha.reserve(out.Pixels.Pixels.size() / 4);
        for (std::size_t i = 3; i < out.Pixels.Pixels.size(); i += 4) out.StoredAlpha.push_back(out.Pixels.Pixels[i]);
    }
    out.MaskFromAlpha = maskLeft == 0;
    if (!out.MaskFromAlpha && (h.BitCount < 32 || AllAlphaZero(out.Pixels)))
        AlphaFromMask(r.Take(maskBytes), out.Pixels);
    out.Png = false;
    out.Bits = h.BitCount;
    out.Colors = h.BitCount <= 8 ? static_cast<int>(entries) : -1;
    return true;
}

}  // namespace

bool ReadIconDirectory(files::Bytes file, IconDirectory& dir, std::string& why) {
    if (StartsWith(file, 0, "RIFF") && StartsWith(file, 8, "ACON")) {
        why = "an animated cursor (RIFF ACON); icon and cursor files are read";
        return false;
    }
    if (StartsWith(file, 0, "MZ")) {
        why = "a program or library file (MZ); icon and cursor files are read";
        return false;
    }
    files::ByteReader r(file);
    const std::uint16_t reserved = r.U16(), type = r.U16(), count = r.U16();
    if (r.Failed() || reserved != 0 || (type != 1 && type != 2)) {
        why = "not an icon or cursor file";
        return false;
    }
    dir.Kind = type == 2 ? IconFileKind::Cursor : IconFileKind::Icon;
    if (count == 0) {
        why = std::string(type == 2 ? "a cursor" : "an icon") + " file of no images";
        return false;
    }
    if (!r.Has(std::uint64_t{16} * count)) {
        why = "its directory of " + std::to_string(count) + " entries runs past the end of the file (" +
              std::to_string(file.size()) + " bytes)";
        return false;
    }
    dir.Entries.assign(count, IconEntry{});
    for (IconEntry& e : dir.Entries) {
        const int w = r.U8(), h = r.U8();
        e.Width = w == 0 ? 256 : w;
        e.Height = h == 0 ? 256 : h;
        r.Skip(2);  // bColorCount, bReserved: the image tells its colors
        e.Planes = r.U16();
        e.BitCount = r.U16();
        e.BytesInRes = r.U32();
        e.ImageOffset = r.U32();
    }
    return true;
}

bool DecodeIconEntry(files::Bytes file, const IconDirectory& dir, std::size_t index, EntryImage& out,
                     std::string& why) {
    const IconEntry& e = dir.Entries.at(index);
    if (e.BytesInRes == 0) {
        why = "an entry of 0 bytes";
        return false;
    }
    if (e.ImageOffset < dir.End()) {
        why = "its data at offset " + std::to_string(e.ImageOffset) +
              " overlaps the header and directory, which end at " + std::to_string(dir.End());
        return false;
    }
    if (std::uint64_t{e.ImageOffset} + e.BytesInRes > file.size()) {
        why = "its " + std::to_string(e.BytesInRes) + " bytes at offset " + std::to_string(e.ImageOffset) +
              " run past the end of the file (" + std::to_string(file.size()) + " bytes)";
        return false;
    }
    if (dir.IsCursor() && (e.Planes >= e.Width || e.BitCount >= e.Height)) {
        why = "its hotspot " + std::to_string(e.Planes) + "," + std::to_string(e.BitCount) +
              " lies outside the " + Size(e.Width, e.Height) + " image";
        return false;
    }
    const files::Bytes span = file.subspan(e.ImageOffset, e.BytesInRes);
    EntryImage image;
    if (!(IsPng(span) ? DecodePngEntry(span, e, image, why) : DecodeDibEntry(span, e, image, why)))
        return false;
    out = std::move(image);
    return true;
}

}  // namespace vexlo::cli
