#include "core/files/icon_image_check.h"

#include <algorithm>

#include "core/files/ico_format.h"
#include "core/files/ico_probe.h"

namespace vexlo::files {

namespace {

bool IsDepth(int bits) { return bits == 1 || bits == 4 || bits == 8 || bits == 24 || bits == 32; }

constexpr surface::Color kMaskSet = 0xFFFFFF;

}  // namespace

UsableIconImage JudgeIconImage(Bytes data, std::uint64_t offset) {
    ByteReader r(data);
    r.Seek(offset);
    const BitmapInfoHeader h = ReadBitmapInfoHeader(r);
    if (!r.Ok() || h.Size != kBitmapInfoHeaderBytes || !IsIconSide(h.Width) || h.Height != 2 * h.Width ||
        !IsDepth(h.BitCount) || h.Compression != 0)
        return {};
    const int side = h.Width;
    const int colors = ColorsOfBitCount(h.BitCount);
    const std::uint64_t table = colors > 0 ? 4 * static_cast<std::uint64_t>(colors) : 0;
    const std::uint64_t rows =
        static_cast<std::uint64_t>(ColorRowBytes(colors, h.BitCount, side) + BitRowBytes(side)) *
        static_cast<std::uint64_t>(side);
    if (!r.Has(table + rows)) return {};
    return {true, side, h.BitCount};
}

bool DecodeUsableImage(Bytes data, std::uint64_t offset, DecodedIcon& out) {
    const UsableIconImage u = JudgeIconImage(data, offset);
    return u.Usable && DecodeIconImage(data, offset, u.Side, ColorsOfBitCount(u.BitCount), u.BitCount, out);
}

void MaskFromAlpha(DecodedIcon& d) {
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

surface::Surface PlaneAtSide(const std::vector<surface::Color>& pixels, int side, int target) {
    surface::Surface plane(side, side, 0);
    std::copy(pixels.begin(), pixels.end(), plane.Data());
    if (side == target) return plane;
    surface::Surface out(target, target, 0);
    surface::StretchBlt(out, 0, 0, target, target, plane, 0, 0, side, side, surface::Rop::SrcCopy);
    return out;
}

}  // namespace vexlo::files
