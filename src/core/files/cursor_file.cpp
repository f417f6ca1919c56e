#include "core/files/cursor_file.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/files/atomic_file.h"
#include "core/files/ico_format.h"
#include "core/files/ico_messages.h"
#include "core/files/ico_probe.h"
#include "core/files/ico_write.h"

namespace vexlo::files {

std::string CursorProbe::Text() const { return Valid ? "1/" + std::to_string(Colors) : "0/0"; }

CursorProbe ProbeCursorFile(Bytes data) {
    ByteReader r(data);
    const IconFileHeader header = ReadIconFileHeader(r);
    const IconDirEntry entry = ReadIconDirEntry(r);
    // In a cursor's entry the planes and bit count of an icon are the hotspot.
    const int hotX = entry.Planes;
    const int hotY = entry.BitCount;
    r.Seek(entry.ImageOffset);
    const BitmapInfoHeader info = ReadBitmapInfoHeader(r);
    if (!r.Ok()) return {};
    const bool valid = header.Count >= 1 && header.Reserved == 0 && header.Type == 2 &&
                       entry.Width == kCursorSide && entry.Height == kCursorSide && entry.Reserved == 0 &&
                       entry.ImageOffset == std::uint32_t{kCursorImageOffset} && hotX < kCursorSide && hotY < kCursorSide;
    if (!valid) return {};
    return {true, ColorsOfBitCount(info.BitCount), info.BitCount, hotX, hotY};
}

CursorProbe ProbeCursorFile(const std::string& path) {
    std::vector<std::uint8_t> data;
    if (ReadWholeFile(path, data) != FileReadStatus::Ok) return {};
    return ProbeCursorFile(Bytes(data));
}

int BitsOfColorCount(int colors) {
    return colors == 2 ? 1 : colors == 16 ? 4 : colors == 256 ? 8 : 24;
}

bool ReadCursorFile(Bytes data, CursorImage& out) {
    const CursorProbe probe = ProbeCursorFile(data);
    if (!probe.Valid) return false;
    const int bits = probe.BitCount;
    if (bits != 1 && bits != 4 && bits != 8 && bits != 24 && bits != 32) return false;
    DecodedIcon planes;
    if (!DecodeIconImage(data, kCursorImageOffset, kCursorSide, probe.Colors, bits, planes)) return false;
    out.Probe = probe;
    out.Planes = std::move(planes);
    return true;
}

bool ReadCursorFile(const std::string& path, CursorImage& out) {
    std::vector<std::uint8_t> data;
    if (ReadWholeFile(path, data) != FileReadStatus::Ok) return false;
    return ReadCursorFile(Bytes(data), out);
}

namespace {

// One plane of the cursor as a Surface.
surface::Surface PlaneSurface(const std::vector<surface::Color>& pixels, int side) {
    surface::Surface s(side, side, 0xFFFFFF);
    std::copy(pixels.begin(), pixels.end(), s.Data());
    return s;
}

}  // namespace

bool DrawCursorFrame(const CursorImage& cursor, surface::Surface& target, int x, int y, CursorDraw what,
                     int step) {
    const int side = cursor.Planes.Side;
    const std::size_t pixels = static_cast<std::size_t>(side) * static_cast<std::size_t>(side);
    if (step < 0 || side <= 0 || cursor.Planes.Image.size() != pixels || cursor.Planes.Mask.size() != pixels)
        return false;
    using surface::Rop;
    switch (what) {
        case CursorDraw::Mask:
            surface::BitBlt(target, x, y, side, side, PlaneSurface(cursor.Planes.Mask, side), 0, 0, Rop::SrcCopy);
            break;
        case CursorDraw::Image:
            surface::BitBlt(target, x, y, side, side, PlaneSurface(cursor.Planes.Image, side), 0, 0, Rop::SrcCopy);
            break;
        case CursorDraw::Normal:
            surface::BitBlt(target, x, y, side, side, PlaneSurface(cursor.Planes.Mask, side), 0, 0, Rop::SrcAnd);
            surface::BitBlt(target, x, y, side, side, PlaneSurface(cursor.Planes.Image, side), 0, 0, Rop::SrcInvert);
            break;
    }
    return true;
}

std::vector<std::uint8_t> BuildCursorFileBytes(const surface::Surface& image, const surface::Surface& mask,
                                               int hotspotX, int hotspotY) {
    if (image.Width() != kCursorSide || image.Height() != kCursorSide) return {};
    if (hotspotX < 0 || hotspotX >= kCursorSide || hotspotY < 0 || hotspotY >= kCursorSide) return {};
    // The icon writer makes the image (depth from the pixels, no alpha: 24 bits for true
    // color); the cursor differs only in its header and entry.
    std::vector<std::uint8_t> out = BuildIconFileBytes(image, mask, IconWriteOptions{});
    if (out.size() < static_cast<std::size_t>(kCursorImageOffset)) return {};

    ByteReader r{Bytes(out)};
    r.Skip(kIconFileHeaderBytes);
    IconDirEntry entry = ReadIconDirEntry(r);
    entry.Planes = static_cast<std::uint16_t>(hotspotX);
    entry.BitCount = static_cast<std::uint16_t>(hotspotY);
    std::vector<std::uint8_t> head;
    AppendIconFileHeader(head, {0, 2, 1});
    AppendIconDirEntry(head, entry);
    std::copy(head.begin(), head.end(), out.begin());
    return out;
}

bool WriteCursorFile(const surface::Surface& image, const surface::Surface& mask, const std::string& path,
                     int hotspotX, int hotspotY, std::string* error) {
    const std::vector<std::uint8_t> bytes = BuildCursorFileBytes(image, mask, hotspotX, hotspotY);
    if (bytes.empty()) {
        if (error) *error = "the cursor can't be written: not 32x32, or the hotspot outside it";
        return false;
    }
    const FileWriteResult result = AtomicWriteFile(path, Bytes(bytes));
    if (error) *error = result.Error;
    return result.Ok;
}

std::string InvalidCursorFileMessage(const std::string& path) { return path + kCrLf + kInvalidCursorFile; }

std::string CursorSaveFailedMessage(const std::string& path) {
    return IsProtectedFile(path) ? ReadOnlyFileMessage() : std::string(kFailedToSaveCursor);
}

}  // namespace vexlo::files
