#include "core/ani/frame_image.h"

#include <algorithm>
#include <cstdlib>

#include "core/files/ico_format.h"
#include "core/files/ico_probe.h"
#include "core/files/ico_read.h"

namespace vexlo::ani {

namespace {

using files::ByteReader;

constexpr surface::Color kMaskSet = 0xFFFFFF;

bool IsDepth(int bits) { return bits == 1 || bits == 4 || bits == 8 || bits == 24 || bits == 32; }

// The image's header at its offset, and all its bytes within the data.
void JudgeImage(Bytes data, FrameImageFacts& f) {
    ByteReader r(data);
    r.Seek(f.Offset);
    const files::BitmapInfoHeader h = files::ReadBitmapInfoHeader(r);
    if (!r.Ok() || h.Size != files::kBitmapInfoHeaderBytes || !files::IsIconSide(h.Width) ||
        h.Height != 2 * h.Width || !IsDepth(h.BitCount) || h.Compression != 0)
        return;
    const int side = h.Width;
    const int colors = files::ColorsOfBitCount(h.BitCount);
    const std::uint64_t table = colors > 0 ? 4 * static_cast<std::uint64_t>(colors) : 0;
    const std::uint64_t rows =
        static_cast<std::uint64_t>(files::ColorRowBytes(colors, h.BitCount, side) + files::BitRowBytes(side)) *
        static_cast<std::uint64_t>(side);
    if (!r.Has(table + rows)) return;
    f.Usable = true;
    f.Side = side;
    f.BitCount = h.BitCount;
}

// A 32-bit image with a clear mask keeps its transparency in its alpha values.
void MaskFromAlpha(files::DecodedIcon& d) {
    if (!d.TrueColor || d.Alpha.IsSingle()) return;
    if (std::any_of(d.Mask.begin(), d.Mask.end(), [](surface::Color m) { return m != 0; })) return;
    const int side = d.Side;
    bool anyAlpha = false;
    for (int y = 0; y < side && !anyAlpha; ++y)
        for (int x = 0; x < side && !anyAlpha; ++x) anyAlpha = d.Alpha.At(x, y) != 0;
    if (!anyAlpha) return;
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            if (d.Alpha.At(x, y) < 128) d.Mask[static_cast<std::size_t>(y * side + x)] = kMaskSet;
}

surface::Surface AtFrameSide(const std::vector<surface::Color>& pixels, int side) {
    surface::Surface plane(side, side, 0);
    std::copy(pixels.begin(), pixels.end(), plane.Data());
    if (side == 32) return plane;
    surface::Surface out(32, 32, 0);
    surface::StretchBlt(out, 0, 0, 32, 32, plane, 0, 0, side, side, surface::Rop::SrcCopy);
    return out;
}

}  // namespace

std::vector<FrameImageFacts> ListFrameImages(Bytes data) {
    ByteReader r(data);
    const files::IconFileHeader header = files::ReadIconFileHeader(r);
    if (!r.Ok() || header.Reserved != 0 || (header.Type != 1 && header.Type != 2)) return {};
    const bool cursor = header.Type == 2;
    const std::size_t present = std::min<std::size_t>(header.Count, r.Remaining() / files::kIconDirEntryBytes);
    std::vector<FrameImageFacts> images;
    images.reserve(present);
    for (std::size_t i = 0; i < present; ++i) {
        const files::IconDirEntry e = files::ReadIconDirEntry(r);
        FrameImageFacts f;
        f.Index = static_cast<int>(i);
        f.Offset = e.ImageOffset;
        if (cursor) {
            f.HotX = e.Planes;
            f.HotY = e.BitCount;
        }
        JudgeImage(data, f);
        images.push_back(f);
    }
    return images;
}

int ChooseFrameImage(const std::vector<FrameImageFacts>& images) {
    const FrameImageFacts* best = nullptr;
    const auto better = [](const FrameImageFacts& a, const FrameImageFacts& b) {
        const int da = std::abs(a.Side - 32), db = std::abs(b.Side - 32);
        if (da != db) return da < db;
        if (a.Side != b.Side) return a.Side > b.Side;
        return a.BitCount > b.BitCount;
    };
    for (const FrameImageFacts& f : images)
        if (f.Usable && (!best || better(f, *best))) best = &f;
    return best ? best->Index : -1;
}

int ChooseFrameImage(Bytes data) { return ChooseFrameImage(ListFrameImages(data)); }

bool DecodeFramePlanes(Bytes data, FramePlanes& out) {
    const std::vector<FrameImageFacts> images = ListFrameImages(data);
    const int chosen = ChooseFrameImage(images);
    if (chosen < 0) return false;
    const FrameImageFacts& f = images[static_cast<std::size_t>(chosen)];
    files::DecodedIcon d;
    if (!files::DecodeIconImage(data, f.Offset, f.Side, files::ColorsOfBitCount(f.BitCount), f.BitCount, d))
        return false;
    MaskFromAlpha(d);
    out.Image = AtFrameSide(d.Image, f.Side);
    out.Mask = AtFrameSide(d.Mask, f.Side);
    out.HotX = f.HotX;
    out.HotY = f.HotY;
    return true;
}

}  // namespace vexlo::ani
